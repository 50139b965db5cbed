// Entry point on Linux with Qt: builds the machine and the view, and runs the program on them.
#include <cstdio>

#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "plattform/linux/fenstersystem_linux.hpp"
#include "plattform/linux/papierkorb_freedesktop.hpp"
#include "plattform/linux/rechner_linux.hpp"
#include "plattform/linux/registrierung_linux.hpp"
#include "plattform/linux/shell_linux.hpp"
#include "plattform/linux/spielerort.hpp"
#include "plattform/linux/xdg.hpp"
#include "programm/programm.hpp"

namespace {

using namespace tonkartei;

// The shell asks with the program's own boxes.
Shell_Antwort fragen(Ansicht& ansicht, const Text& titel, const Text& text) {
    switch (ansicht.fragen_oder_abbrechen(titel, text, "shell")) {
        case Antwort::Ja: return Shell_Antwort::Ja;
        case Antwort::Nein: return Shell_Antwort::Nein;
        default: return Shell_Antwort::Abbrechen;
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (!Qt_Umgebung::Bildschirm_da()) {
        std::fputs("Tonkartei: kein Bildschirm da (weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt).\n", stderr);
        return 1;
    }
    const Qt_Umgebung qt(argc, argv);
    Ansicht_Qt ansicht;

    Dateisystem_Linux dateien;
    Registrierung_Linux registrierung(Einstellungsordner() + "einstellungen.reg");
    Fenstersystem_Linux fenster;
    Papierkorb_Freedesktop papierkorb(dateien);
    Shell_Linux shell(dateien, papierkorb,
                      [&ansicht](const Text& titel, const Text& text) { return fragen(ansicht, titel, text); });
    Rechner_Linux rechner;
    if (const Text spieler = Spieler_Pfad(); !spieler.empty()) WinAmp_Verknüpfung_anlegen(rechner.WinAmp_Vorgabe(), spieler);

    Programm programm(Plattform{dateien, registrierung, fenster, shell, rechner}, ansicht, qt.Kommandozeile());
    ansicht.ausführen([&programm] { programm.starten(); });
    if (!ansicht.endet()) ansicht.Hauptschleife();
    return 0;
}
