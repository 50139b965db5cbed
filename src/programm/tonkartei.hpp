// The main window: the areas of the subsystems in one window under one menu.
#pragma once

#include <functional>

#include "kategorien/kategorienbereich.hpp"
#include "liste/listenbereich.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"
#include "programm/hauptmenue.hpp"
#include "wiedergabe/bereiche.hpp"
#include "wiedergabe/fernsteuerung.hpp"
#include "wiedergabe/wiedergabebereich.hpp"

namespace tonkartei {

class Startparameter;
class WinAmp;
struct Albenraum;
struct Haus;
struct Kategorienraum;

class Tonkartei : public Fenster {
public:
    Tonkartei(Haus& haus, Albenraum& alben, Kategorienraum& kategorien, WinAmp& spieler);

    Schriftfeld Datenbank_Text{*this, "Datenbank_Text", "D&atenbank:"};
    Auswahlfeld Datenbank{*this, "Datenbank"};
    // Before what lies in it: only what is in the window is told to a screen reader as what it is.
    Rahmen rechte_Spalte{*this, "rechte_Spalte"};
    // The order of making is the tab order; `Lieder` only keeps its reference to `Kategorien` while it is made.
    Listenbereich Lieder;
    Kategorienbereich Kategorien;
    Rahmen Wiedergabe_Rahmen{*this, "Wiedergabe_Rahmen", "Wiedergabe"};
    Wiedergabebereich Wiedergabe;
    tonkartei::Fernsteuerung Fernsteuerung;
    Traysymbol SysTray{*this, "SysTray"};
    Hauptmenü Menüleiste;

    // The window that stands in its place: brought forth instead of it.
    Fenster* Vertreter = nullptr;

    Bereiche bereiche() { return {Lieder, Kategorien, Wiedergabe}; }

    // The first place on the screen, by start parameters and settings.
    void platzieren(const Startparameter& parameter);
    // Brings everything in line with the collection that was just loaded or made.
    void Datenbank_geladen(bool Startkategorien_setzen);
    // The combo box as the recent list has it; its first line is the open collection.
    void Datenbank_Liste_zeigen();
    // The tray symbol and the window's hiding by the settings and the window's state.
    void Tray_nachführen();
    // Back in its normal state, in front.
    void hervorholen();

    // A line of the combo box of recent folders was picked by hand.
    Ereignis<const Text&> Datenbank_gewählt;
    // Either of them, before anything follows from it.
    Ereignis<> Größe_oder_Zustand_geändert;
    // The state went to minimised (true) or normal.
    Ereignis<bool> minimiert;
    // The collection has been loaded: what else is up before the window is rebuilt (the splash) can go.
    Ereignis<> vor_dem_Zeigen;
    // Whether the closing may go on, and what it does; connected by the composition.
    std::function<bool(Schließgrund)> darf_schließen;
    std::function<void()> wird_geschlossen;
    std::function<void()> wurde_geladen;

protected:
    Knoten anordnung() override;
    Größe Startgröße() override { return {13500, 9300}; }
    void beim_Laden() override;
    bool beim_Schließen(Schließgrund grund) override;
    void beim_Entladen() override;
    void bei_neuer_Größe() override;
    void bei_neuer_Anordnung() override;
    void bei_neuem_Zustand() override;

private:
    Modell& modell_;
    Einstellungen& einstellungen_;
    bool füllt_Liste_ = false;
};

}  // namespace tonkartei
