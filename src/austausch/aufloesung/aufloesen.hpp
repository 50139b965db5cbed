// The window in which the user says what the folders and files of a dissolved collection are named after.
#pragma once

#include <array>

#include "austausch/aufloesung/ablageplan.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Datenbank_Auflösung;
class Dateisystem;

class auflösen : public Fenster {
public:
    auflösen(Ansicht& ansicht, const Modell& modell, Dateisystem& dateien, Datenbank_Auflösung& arbeit);

    Rahmen Verzeichnisse{*this, "Verzeichnisse", "Verzeichnisse"};
    Schriftfeld Ebene_Text[3]{{*this, "Ebene_Text", "&1. Ebene:", 1},
                              {*this, "Ebene_Text", "&2. Ebene:", 2},
                              {*this, "Ebene_Text", "&3. Ebene:", 3}};
    Auswahlfeld Ebene[3]{{*this, "Ebene", 1}, {*this, "Ebene", 2}, {*this, "Ebene", 3}};
    Rahmen Dateinamen{*this, "Dateinamen", "Dateiname"};
    Schriftfeld DName_Text[3]{
        {*this, "DName_Text", "1. &Teil:", 1}, {*this, "DName_Text", "2. Tei&l:", 2}, {*this, "DName_Text", "3. Te&il:", 3}};
    Auswahlfeld DName[3]{{*this, "DName", 1}, {*this, "DName", 2}, {*this, "DName", 3}};
    Rahmen Aktionen{*this, "Aktionen", "Lieder"};
    Optionsfeld Aktion[2]{{*this, "Aktion", "kopieren", 1}, {*this, "Aktion", "bewegen", 2}};
    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "&Abbruch"};

    // The menu's command: asks, then shows the window modal, so that the songs keep their numbers. True when the songs have
    // been gone through, so that the list is to be rebuilt.
    bool Datenbank_auflösen();

protected:
    Knoten anordnung() override;
    void beim_Laden() override;

private:
    void Folge_nachführen(Auswahlfeld (&felder)[3]);
    void bestätigen();
    Ablageplan Plan() const;

    const Modell& modell_;
    Dateisystem& dateien_;
    Datenbank_Auflösung& arbeit_;
    bool ausgeführt_ = false;
};

}  // namespace tonkartei
