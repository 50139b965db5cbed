// Which own category stands for each category of another collection: a list of theirs, and the choice of ours.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/modell.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Kategoriezuordnung {
public:
    // `Liste` has a line for each category over there, `neue_Kategorie` those of the open collection.
    Kategoriezuordnung(const Modell& modell, Listenfeld& Liste, Auswahlfeld& neue_Kategorie);

    // Takes over the names of the other collection's categories, from 1, at most 20, and maps each to the own one of exactly
    // that name.
    void Quelle_setzen(std::vector<Text> kategorien);
    void nach_Namen_zuordnen();
    const std::vector<Text>& Quell_Kategorien() const noexcept { return quelle_; }
    // The own category for one over there; 0 where each song is to be asked for.
    Byte Ziel(Byte Quelle) const;

    // Fills both controls.
    void zeigen();
    // The category editor is about to be opened / was closed. What has no target then takes a category of its name that has
    // come up meanwhile.
    void vor_dem_Bearbeiten();
    void nach_dem_Bearbeiten();
    // The editor gave the own categories other numbers (0: gone, then each song is asked for).
    void umnummerieren(const std::function<Byte(Byte)>& neue);

private:
    Byte gleichnamige(const Text& name) const;
    Text Zeile_von(int quelle) const;
    void Quelle_gewählt();
    void Ziel_gewählt();

    const Modell& modell_;
    Listenfeld& liste_;
    Auswahlfeld& ziele_;
    std::vector<Text> quelle_;
    Feld<Byte, Kategorien_maximal> zuordnung_;  // by number over there
    std::vector<Text> alte_Namen_;              // of the own categories, before the editor was opened
    bool füllt_ = false;
};

}  // namespace tonkartei
