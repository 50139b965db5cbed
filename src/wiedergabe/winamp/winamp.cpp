#include "wiedergabe/winamp/winamp.hpp"

#include <algorithm>
#include <limits>
#include <utility>

#include "datenbank/einstellungen.hpp"
#include "plattform/rechner.hpp"
#include "wiedergabe/winamp/fenstersuche.hpp"

namespace tonkartei {
namespace {

constexpr double Lautstärke_je_Reglerschritt = 2.55;  // 100 is the player's 255

// Time in which a player lets go of its file.
constexpr int Loslassen_ms = 1000;

// Closing rules. 1 and 4 close nothing; 4 does so in spite of its caption, and stays that way.
constexpr Long Beenden_immer = 2;
constexpr Long Beenden_wenn_gestoppt = 3;

}  // namespace

WinAmp::WinAmp(Text Klasse, Einstellungen& einstellungen, WinAmp_Steuerung& steuerung, Fenstersuche& suche, Rechner& rechner)
    : Klasse_(std::move(Klasse)), einstellungen_(einstellungen), steuerung_(steuerung), suche_(suche), rechner_(rechner) {}

void WinAmp::nachsehen() {
    WinAmp_Hwnd = suche_.Fenster_suchen_global(Klasse_);
    WinAmp_da = WinAmp_Hwnd != 0;
    if (!WinAmp_da) return;
    WinAmp_Status = steuerung_.WinAmp_Status_lesen(WinAmp_Hwnd).value_or(WinAmp_Status);
    if (einstellungen_.WinAmp_verstecken && !WinAmp_versteckt) verstecken();
}

void WinAmp::verstecken() {
    steuerung_.verstecken(WinAmp_Hwnd);
    WinAmp_versteckt = true;
}

void WinAmp::vor_dem_Start() {
    if (WinAmp_da && WinAmp_versteckt) steuerung_.zeigen(WinAmp_Hwnd);
    WinAmp_versteckt = false;
}

void WinAmp::nach_dem_Start() {
    if (!WinAmp_da) return;
    if (einstellungen_.WinAmp_FS_Lautstärke) Lautstärke_stellen(einstellungen_.WinAmp_Lautstärke);
    // A second time after the look before: by now the player may have shown itself again to take its file.
    if (einstellungen_.WinAmp_verstecken) verstecken();
}

void WinAmp::Befehl(std::int32_t Code) {
    if (WinAmp_da) steuerung_.WinAmp_Befehl(Code, WinAmp_Hwnd);
}

void WinAmp::springen(double Sekunden) {
    using Grenze = std::numeric_limits<Long>;
    if (WinAmp_da)
        steuerung_.WinAmp_springen(WinAmp_Hwnd, gerundet(std::clamp<double>(Sekunden * 1000, Grenze::min(), Grenze::max())));
}

Long WinAmp::Position() {
    if (!WinAmp_da) return 0;
    return Position_ = steuerung_.WinAmp_Position_lesen(WinAmp_Hwnd).value_or(Position_);
}

Long WinAmp::Länge() {
    if (!WinAmp_da) return 0;
    return Länge_ = steuerung_.WinAmp_Länge_lesen(WinAmp_Hwnd).value_or(Länge_);
}

void WinAmp::Lautstärke_stellen(Long Wert) {
    Wert = std::clamp<Long>(Wert, 0, Lautstärke_maximal);
    if (WinAmp_da) {
        Long lautstärke = gerundet(Wert * Lautstärke_je_Reglerschritt);
        steuerung_.WinAmp_Lautstärke_setzen(WinAmp_Hwnd, lautstärke);
    }
    einstellungen_.WinAmp_Lautstärke = Wert;
}

void WinAmp::Verstecken_umgeschaltet() {
    if (!WinAmp_da) return;
    if (einstellungen_.WinAmp_verstecken && !WinAmp_versteckt) steuerung_.verstecken(WinAmp_Hwnd);
    if (!einstellungen_.WinAmp_verstecken && WinAmp_versteckt) steuerung_.zeigen(WinAmp_Hwnd);
}

void WinAmp::Hauptfenster_minimiert() {
    if (WinAmp_da && einstellungen_.WinAmp_verstecken_minimiert && !WinAmp_versteckt) verstecken();
}

void WinAmp::Hauptfenster_normal() {
    if (!WinAmp_da || !WinAmp_versteckt || einstellungen_.WinAmp_verstecken) return;
    steuerung_.zeigen(WinAmp_Hwnd);
    WinAmp_versteckt = false;
}

void WinAmp::für_Dateiarbeit_anhalten() {
    if (!WinAmp_da) return;
    steuerung_.WinAmp_Befehl(WinAmp_Code_Stop, WinAmp_Hwnd);
    rechner_.Sleep(Loslassen_ms);
}

void WinAmp::am_Programmende() {
    if (!WinAmp_da) return;
    if (WinAmp_versteckt) steuerung_.zeigen(WinAmp_Hwnd);
    const Long regel = einstellungen_.WinAmp_beenden;
    if (regel == Beenden_immer || (regel == Beenden_wenn_gestoppt && WinAmp_Status == Status_gestoppt))
        steuerung_.Fenster_schließen(WinAmp_Hwnd);
}

}  // namespace tonkartei
