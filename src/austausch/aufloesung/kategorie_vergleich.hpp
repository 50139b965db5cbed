// The songs that two collections share under different categories, and the taking over of the other's category.
#pragma once

#include <vector>

#include "datenbank/modell.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Fortschritts_Fenster;
class WinAmp_Starter;

// A song of the own collection whose category differs from that of its counterpart.
struct Kategorie_Unterschied {
    Long Nr = 0;
    Byte Quelle = 0;  // category there; the tables are the same
};

// Own songs in the order of their numbers; the counterpart of each is the first source song of exactly its title and artist.
std::vector<Kategorie_Unterschied> Kategorien_vergleichen(const Bestand& eigene, const Bestand& quelle,
                                                          Fortschritts_Fenster& fortschritt);

class Kategorie_vergleich : public Fenster {
public:
    Kategorie_vergleich(Ansicht& ansicht, Modell& modell, WinAmp_Starter& starter);

    Schriftfeld Liste_Text{*this, "Liste_Text", "&Lieder mit anderer Kategorie:"};
    Listenfeld Liste{*this, "Liste"};
    // Own numbers, 8 digits, line by line.
    Listenfeld Nr_Liste{*this, "Nr_Liste"};
    Schriftfeld Quelle_Text{*this, "Quelle_Text", "Quell-Kategorie:"};
    Schriftfeld Quelle{*this, "Quelle"};
    Schriftfeld Ziel_Text{*this, "Ziel_Text", "eigene Kategorie:"};
    Schriftfeld Ziel{*this, "Ziel"};
    Knopf Kategorie_stimmt{*this, "Kategorie_stimmt", "Quell-Kategorie &stimmt"};
    Knopf anhören{*this, "anhören", "mit WinAmp &anhören"};
    Knopf Ok{*this, "Ok", "&OK"};

    // Modal, so that the songs keep their numbers.
    void anzeigen(std::vector<Kategorie_Unterschied> unterschiede);

protected:
    Knoten anordnung() override;
    void beim_Laden() override;

private:
    void Zeile_zeigen();
    void Kategorie_übernehmen();
    const Kategorie_Unterschied* gewählter() const;

    Modell& modell_;
    WinAmp_Starter& starter_;
    std::vector<Kategorie_Unterschied> unterschiede_;  // line by line
};

}  // namespace tonkartei
