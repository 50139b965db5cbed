// The dialog of the text export.
#pragma once

#include "ausgabe/liedausgabe.hpp"
#include "oberflaeche/elementreihe.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Listenbereich;

class Datei_ausgabe : public Fenster {
public:
    // `liste` is the main window's area.
    Datei_ausgabe(Ansicht& ansicht, Dateisystem& dateien, Liedausgabe& ausgabe, const Listenbereich& liste);

    Rahmen Spalten_Rahmen{*this, "Spalten_Rahmen", "Spalten"};
    Elementreihe<Schriftfeld, Spalten_maximal> Spalte_Text{*this, "Spalte_Text", {"&1.", "&2.", "&3.", "&4.", "&5.", "&6."}};
    Elementreihe<Auswahlfeld, Spalten_maximal> Spalte{*this, "Spalte"};
    Rahmen Trenner_Rahmen{*this, "Trenner_Rahmen", "Spaltentrenner"};
    Elementreihe<Optionsfeld, 4> Spaltentrenner{*this, "Spaltentrenner", {"TAB", "SPACE", " | ", "anderes:"}};
    Textfeld Spaltentrennzeichen{*this, "Spaltentrennzeichen", ","};
    Schriftfeld Dateiname_Text{*this, "Dateiname_Text", "&Dateiname:"};
    Textfeld Dateiname{*this, "Dateiname"};
    Knopf Dateiname_suchen{*this, "Dateiname_suchen", "..."};
    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "&Abbruch"};

    // Only when there are songs in the list.
    void öffnen();

protected:
    Knoten anordnung() override;
    void beim_Laden() override;

private:
    void suchen();
    void bestätigen();
    // All that has to be asked before something is written.
    bool darf_schreiben();
    Ausgabeform Form() const;
    // The songs on the lines of the list, in their order.
    std::vector<Long> Nummern() const;

    Dateisystem& dateien_;
    Liedausgabe& ausgabe_;
    const Listenbereich& liste_;
    int Trenner_Nr_ = 1;
};

}  // namespace tonkartei
