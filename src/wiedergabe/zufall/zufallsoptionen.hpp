// The settings of chance and of the automatic change of category, which the user types in.
#pragma once

namespace tonkartei {

class Ansicht;
struct Einstellungen;

class Zufallsoptionen {
public:
    Zufallsoptionen(Einstellungen& einstellungen, Ansicht& ansicht) : einstellungen_(einstellungen), ansicht_(ansicht) {}

    void Random_Prozent();
    void auto_Kat_Wechsel_Setup();

private:
    Einstellungen& einstellungen_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
