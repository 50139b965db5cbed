// Making the collection that another collector has asked for.
#pragma once

namespace tonkartei {

class Anforderungsdatei;
class Ansicht;
class Auszugsdatenbank;
struct Modell;

class Anforderungs_Datenbank {
public:
    Anforderungs_Datenbank(const Modell& modell, Ansicht& ansicht, Anforderungsdatei& datei, Auszugsdatenbank& auszug)
        : modell_(modell), ansicht_(ansicht), datei_(datei), auszug_(auszug) {}

    // The menu's command. Numbers mean what they mean by now: should songs have gone meanwhile, others come in their place.
    void Anforderungs_Datenbank_erstellen();

private:
    const Modell& modell_;
    Ansicht& ansicht_;
    Anforderungsdatei& datei_;
    Auszugsdatenbank& auszug_;
};

}  // namespace tonkartei
