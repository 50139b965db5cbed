#include "dj/spielerprozess.hpp"

#include <utility>
#include <vector>

#include "datenbank/haus.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {
namespace {

// By then a new process plays its file.
constexpr int Anspielen_ms = 500;

}  // namespace

Spielerprozess::Spielerprozess(Text Klasse, Wiedergabe& wiedergabe, Haus& haus)
    : Fenster(wiedergabe.Steuerung),
      Klasse_(std::move(Klasse)),
      wiedergabe_(wiedergabe),
      system_(haus.plattform.Fenstersystem),
      rechner_(haus.plattform.Rechner) {}

bool Spielerprozess::starten(const Text& Datei) {
    Text Parameter = "/NEW /CLASS=" + in_Anführungszeichen(Klasse_);
    // A quotation mark in a name, which not every system forbids, is doubled.
    if (!Datei.empty()) Parameter += " " + in_Anführungszeichen(ersetzt(Datei, "\"", "\"\""));
    if (!wiedergabe_.Starter.starte_WinAmp(Parameter)) return false;
    Fenster.Fenster = wiedergabe_.Suche.Fenster_suchen_global(Klasse_);
    andere_schließen();
    Fenster.verstecken();
    return Fenster.Fenster != 0;
}

bool Spielerprozess::wechseln(const Text& Datei) {
    const int dieser = ++Wechsel_;
    Fenster.Lautstärke(0);
    Fenster.schließen();
    starten(Datei);
    if (dieser != Wechsel_) return false;
    rechner_.Sleep(Anspielen_ms);
    Fenster.Befehl(WinAmp_Code_Pause);
    return true;
}

void Spielerprozess::beenden() {
    Fenster.schließen();
    Fenster.Fenster = 0;
    andere_schließen();
}

// There is one process of a class. Another one was left by a run of the program that was killed, or by a start in the middle
// of this one: hidden as they are, nobody else could ever stop them.
void Spielerprozess::andere_schließen() {
    std::vector<Hwnd> andere;
    for (Hwnd kind = system_.GetWindow(system_.GetDesktopWindow(), GW_CHILD); kind != 0;
         kind = system_.GetWindow(kind, GW_HWNDNEXT))
        if (kind != Fenster.Fenster && system_.GetClassNameA(kind) == Klasse_) andere.push_back(kind);
    for (const Hwnd fenster : andere) wiedergabe_.Steuerung.Fenster_schließen(fenster);
}

}  // namespace tonkartei
