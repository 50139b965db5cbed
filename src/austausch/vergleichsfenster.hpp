// What the two windows that show a comparison have in common: the missing and the changed songs of the other collection, of
// which one list is shown.
#pragma once

#include "grundlagen/zahl.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

// A line of the hidden lists: the song's number over there, the own one it was compared with, 4 digits each, and the name.
Text Vergleichszeile(Long Quelle, Long Eigene, const Text& Artist, const Text& Titel);
// The number over there.
Long Quell_Nr(const Text& zeile);
// What is shown of a line.
Text Vergleichsname(const Text& zeile);

// The outcome of a comparison.
struct Vergleichsergebnisse {
    Long gleiche = 0;
    std::vector<Text> fehlende, andere;  // Vergleichszeilen
};

class Vergleichsfenster : public Fenster {
public:
    Vergleichsfenster(Ansicht& ansicht, Text name, Text titel);

    Optionsfeld anzeigen[2]{{*this, "anzeigen", "&fehlende MP3's", 1}, {*this, "anzeigen", "&geänderte MP3's", 2}};
    Schriftfeld gleiche_Text{*this, "gleiche_Text", "identische Lieder:"};
    Schriftfeld gleiche{*this, "gleiche", "0"};
    Listenfeld Liste{*this, "Liste"};
    Schriftfeld Liste_Anzahl_Text{*this, "Liste_Anzahl_Text", "Anzahl:"};
    Schriftfeld Liste_Anzahl{*this, "Liste_Anzahl", "0"};
    Listenfeld fehlende{*this, "fehlende"};
    Listenfeld andere{*this, "andere"};

    static constexpr Byte zeigt_fehlende = 1, zeigt_andere = 2;
    // Which of the two lists is shown.
    Byte Ansicht_Nr = zeigt_fehlende;

    // Takes the outcome, chooses the missing songs and shows the window.
    void zeigen(Vergleichsergebnisse ergebnisse);

protected:
    Listenfeld& gezeigte() { return Ansicht_Nr == zeigt_andere ? andere : fehlende; }
    // The line of the hidden list behind the chosen one; empty without a choice.
    Text gewählte_Zeile();
    // Takes a line out of the shown list, hidden and visible.
    void Zeile_entfernen(int zeile);
    // The list with what belongs to it.
    Knoten Listenknoten();

private:
    void Liste_füllen();
};

}  // namespace tonkartei
