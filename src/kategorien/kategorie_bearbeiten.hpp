// The category editor. Every change goes straight into the table; there is no undo and no cancel.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/modell.hpp"
#include "grundlagen/ereignis.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Kategorie_Wahl;

// Number of songs of a category; category 1 counts all.
Long Lieder_in_Kategorie(const Modell& modell, int Kategorie);

class Kategorie_bearbeiten : public Fenster {
public:
    Kategorie_bearbeiten(Ansicht& ansicht, Modell& modell, Kategorie_Wahl& wahl);

    Listenfeld Liste{*this, "Liste"};
    Regler Reihenfolge{*this, "Reihenfolge", 1, 3, ohne_Index, Regler::Form::Bildlauf};  // 1 up, 2 at rest, 3 down
    Schriftfeld Kategorie_Name_Text{*this, "Kategorie_Name_Text", "&Name:"};
    Textfeld Kategorie_Name{*this, "Kategorie_Name"};
    Schriftfeld Anz_Lieder_Text{*this, "Anz_Lieder_Text", "Lieder:"};
    Schriftfeld Anz_Lieder{*this, "Anz_Lieder"};
    Knopf add_Kategorie{*this, "add_Kategorie", "&hinzufügen"};
    Knopf kill_Kategorie{*this, "kill_Kategorie", "&löschen"};
    Knopf Ok{*this, "Ok", "&Ok"};

    // Who opened it, which decides what its closing does; to be told before it is shown. 0 while nobody has.
    static constexpr Byte vom_Hauptfenster = 1, von_Kategorie_Wahl = 2, von_DBadd_Kategorien = 3, von_Live_abgleich = 4;
    void Aufrufer(Byte Wert) { aufrufer_ = Wert; }
    Byte Aufrufer() const noexcept { return aufrufer_; }
    // Shows it for that caller, who has disabled itself. What comes back is the value before, 0 when the window was not
    // open.
    Byte öffnen(Byte Wert);

    // Categories got other numbers: the new one of an old one, 0 when it is gone. Raised with the records already changed.
    Ereignis<const std::function<Byte(Byte)>&> umnummeriert;
    // At every closing, before the caller's turn: what shows the categories follows.
    Ereignis<> geschlossen;
    // What the closing does, by caller, places 1 to 4; the one of Kategorie_Wahl is connected here. False: the closing is
    // cancelled, the window was open before.
    Feld<std::function<bool()>, 4> zurück;

protected:
    Knoten anordnung() override;
    void beim_Laden() override;
    bool beim_Schließen(Schließgrund grund) override;
    void beim_Entladen() override;

private:
    int gewählte() const { return Liste.gewählt() + 1; }
    void Zeile_gewählt();
    void Name_geändert();
    void hinzufügen();
    void löschen();
    void Lieder_umsetzen(int gelöschte);
    void verwaiste_einordnen();
    void verschieben();
    void Tabelle_geändert();
    void aus_der_Wahl();
    bool zurück_zur_Wahl();

    Modell& modell_;
    Kategorie_Wahl& wahl_;
    Byte aufrufer_ = 0;
    std::vector<Byte> frühere_Aufrufer_;  // of the openings by Kategorie_Wahl, the last one behind
};

}  // namespace tonkartei
