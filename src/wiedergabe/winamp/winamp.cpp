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
    : Klasse_(std::move(Klasse)), einstellungen_(einstellungen), fenster_(steuerung), suche_(suche), rechner_(rechner) {}

void WinAmp::nachsehen() {
    WinAmp_Hwnd = fenster_.Fenster = suche_.Fenster_suchen_global(Klasse_);
    WinAmp_da = WinAmp_Hwnd != 0;
    if (!WinAmp_da) return;
    WinAmp_Status = fenster_.Status();
    if (einstellungen_.WinAmp_verstecken && !WinAmp_versteckt) verstecken();
}

void WinAmp::verstecken() {
    fenster_.verstecken();
    WinAmp_versteckt = true;
}

void WinAmp::vor_dem_Start() {
    if (WinAmp_da && WinAmp_versteckt) fenster_.zeigen();
    WinAmp_versteckt = false;
}

void WinAmp::nach_dem_Start() {
    if (!WinAmp_da) return;
    if (einstellungen_.WinAmp_FS_Lautstärke) Lautstärke_stellen(einstellungen_.WinAmp_Lautstärke);
    // A second time after the look before: by now the player may have shown itself again to take its file.
    if (einstellungen_.WinAmp_verstecken) verstecken();
}

void WinAmp::Befehl(std::int32_t Code) {
    if (WinAmp_da) fenster_.Befehl(Code);
}

void WinAmp::springen(double Sekunden) {
    using Grenze = std::numeric_limits<Long>;
    if (WinAmp_da) fenster_.springen(gerundet(std::clamp<double>(Sekunden * 1000, Grenze::min(), Grenze::max())));
}

Long WinAmp::Position() { return WinAmp_da ? fenster_.Position() : 0; }

Long WinAmp::Länge() { return WinAmp_da ? fenster_.Länge() : 0; }

void WinAmp::Lautstärke_stellen(Long Wert) {
    Wert = std::clamp<Long>(Wert, 0, Lautstärke_maximal);
    if (WinAmp_da) fenster_.Lautstärke(gerundet(Wert * Lautstärke_je_Reglerschritt));
    einstellungen_.WinAmp_Lautstärke = Wert;
}

void WinAmp::Verstecken_umgeschaltet() {
    if (!WinAmp_da) return;
    if (einstellungen_.WinAmp_verstecken && !WinAmp_versteckt) fenster_.verstecken();
    if (!einstellungen_.WinAmp_verstecken && WinAmp_versteckt) fenster_.zeigen();
}

void WinAmp::Hauptfenster_minimiert() {
    if (WinAmp_da && einstellungen_.WinAmp_verstecken_minimiert && !WinAmp_versteckt) verstecken();
}

void WinAmp::Hauptfenster_normal() {
    if (!WinAmp_da || !WinAmp_versteckt || einstellungen_.WinAmp_verstecken) return;
    fenster_.zeigen();
    WinAmp_versteckt = false;
}

void WinAmp::für_Dateiarbeit_anhalten() {
    if (!WinAmp_da) return;
    fenster_.Befehl(WinAmp_Code_Stop);
    rechner_.Sleep(Loslassen_ms);
}

void WinAmp::schließen() {
    if (WinAmp_da) fenster_.schließen();
}

void WinAmp::am_Programmende() {
    if (!WinAmp_da) return;
    if (WinAmp_versteckt) fenster_.zeigen();
    const Long regel = einstellungen_.WinAmp_beenden;
    if (regel == Beenden_immer || (regel == Beenden_wenn_gestoppt && WinAmp_Status == Status_gestoppt)) fenster_.schließen();
}

}  // namespace tonkartei
