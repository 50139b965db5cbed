// The settings of chance and of the automatic change of category, which the user types in.
#pragma once

namespace tonkartei {

class Ansicht;
struct Einstellungen;
struct Modell;

class Zufallsoptionen {
public:
    Zufallsoptionen(Modell& modell, Einstellungen& einstellungen, Ansicht& ansicht)
        : modell_(modell), einstellungen_(einstellungen), ansicht_(ansicht) {}

    void Random_Prozent();
    void auto_Kat_Wechsel_Setup();

private:
    Modell& modell_;
    Einstellungen& einstellungen_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
