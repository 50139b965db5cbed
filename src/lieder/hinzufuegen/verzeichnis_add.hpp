// The dialog that asks for a folder with new songs.
#pragma once

#include "datenbank/einstellungen.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/wartedialog.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

class Verzeichnis_add : public Wartedialog<Text> {
public:
    Verzeichnis_add(Ansicht& ansicht, Dateisystem& dateien, const Einstellungen& einstellungen);

    Schriftfeld Pfad_Text{*this, "Pfad_Text", "&Verzeichnis mit MP3-Dateien:"};
    Textfeld Pfad{*this, "Pfad"};
    Knopf Pfad_wählen{*this, "Pfad_wählen", "&Durchsuchen..."};
    Schriftfeld Liste_Text{*this, "Liste_Text", "&zuletzt hinzugefügte Verzeichnisse:"};
    Listenfeld Liste{*this, "Liste"};
    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "&Abbruch"};

    // Waits for the user: the folder with a trailing separator, or empty.
    Text Dialog();

protected:
    Knoten anordnung() override;
    void beim_Laden() override;

private:
    void bestätigen();

    Dateisystem& dateien_;
    const Einstellungen& einstellungen_;
};

}  // namespace tonkartei
