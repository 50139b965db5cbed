// The remote control of the player: a panel that comes out over the song buttons when the mouse is on its marker.
#pragma once

#include "grundlagen/ereignis.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elemente.hpp"
#include "plattform/rechner.hpp"
#include "wiedergabe/fernsteuerung_bewegung.hpp"
#include "wiedergabe/griff.hpp"

namespace tonkartei {

class WinAmp;
struct Einstellungen;

class Fernsteuerung {
public:
    // `ecke` is the control at whose left and top the open panel begins.
    Fernsteuerung(Fenster& fenster, Einstellungen& einstellungen, WinAmp& winamp, Rechner& rechner, const Element& ecke);

    // Mouse-over numbers of the marker and of the panel's controls.
    static constexpr int erste_Mausnummer = 69, letzte_Mausnummer = 78;

    Bildfläche WinAmp_Show;
    Rahmen WinAmp_Frame;
    Knopf WinAmp_zurück, WinAmp_Play, Winamp_Pause, WinAmp_Stop, WinAmp_vor;
    Bildfläche Vol_Bild;
    Regler WinAmp_Vol;
    Schriftfeld WinAmp_Zeit;
    Regler WinAmp_Position;  // seconds

    bool sichtbar() const noexcept { return WinAmp_Frame.sichtbar(); }
    void Fernsteuerung_öffnen(bool animiert) { bewegung_.öffnen(animiert); }
    void Fernsteuerung_schließen(bool animiert);
    // Opens it for the keyboard, whose focus goes there; Escape closes it again. Nothing where it is not offered.
    void mit_Taste_öffnen();

    // The main window opens, the settings have been read: marker and volume as they say; nothing is sent.
    void Einstellungen_setzen();
    // The setting that offers the panel was switched / that moves it.
    void Fernsteuerung_umgeschaltet();
    void Animation_umgeschaltet();
    // After the window's layout.
    void Lage_nachführen() { bewegung_.Lage_nachführen(); }

    // The tick: time, position slider and winding, as long as the panel is open.
    void anzeigen();

    // A short press on the button that winds on.
    Ereignis<> Zufallslied_gewünscht;
    // The panel has gone with the focus on one of its controls.
    Ereignis<> Fokus_frei;

    Knoten Markenknoten() { return Knoten(WinAmp_Show).dehnen(0, 1); }
    Knoten Tafelknoten();

private:
    void Tasten_verbinden();
    void Lautstärke_geändert();
    void Leiste_angeklickt(int x);

    Einstellungen& einstellungen_;
    WinAmp& winamp_;
    Rechner& rechner_;
    Fernsteuerung_Bewegung bewegung_;
    Griff vor_, zurück_, Position_;
    bool setzt_Einstellungen_ = false;
};

}  // namespace tonkartei
