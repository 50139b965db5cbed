// The dialog "Datenbank wählen": a recent folder, or any other.
#pragma once

#include "datenbank/einstellungen.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/wartedialog.hpp"

namespace tonkartei {

class Dateisystem;

class Datenbank_öffnen : public Wartedialog<Text> {
public:
    Datenbank_öffnen(Ansicht& ansicht, const Einstellungen& einstellungen, Dateisystem& dateien);

    Schriftfeld Liste_Text{*this, "Liste_Text", "&zuletzt geöffnete Datenbanken:"};
    Listenfeld Liste{*this, "Liste"};
    Textfeld Pfad{*this, "Pfad"};
    Knopf Pfad_wählen{*this, "Pfad_wählen", "&Durchsuchen..."};
    Knopf Ok{*this, "Ok", "&Ok"};
    Knopf Abbruch{*this, "Abbruch", "&Abbruch"};

    // Waits for the choice: a folder with trailing separator, or an empty text.
    Text Dialog();

protected:
    Knoten anordnung() override;
    Größe Startgröße() override { return {7200, 4500}; }
    void beim_Laden() override;

private:
    void bestätigen();

    const Einstellungen& einstellungen_;
    Dateisystem& dateien_;
};

}  // namespace tonkartei
