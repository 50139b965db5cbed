// Entry point on Linux with Qt: builds the machine and the view, and runs the program on them.
#include <cstdio>

#include "grundlagen/auskunft.hpp"
#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/freedesktop/farbwunsch.hpp"
#include "oberflaeche/qt/freedesktop/mitteilung.hpp"
#include "oberflaeche/qt/freedesktop/mpris.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "plattform/linux/endesignale.hpp"
#include "plattform/linux/fenstersystem_linux.hpp"
#include "plattform/linux/papierkorb_freedesktop.hpp"
#include "plattform/linux/rechner_linux.hpp"
#include "plattform/linux/registrierung_linux.hpp"
#include "plattform/linux/shell_linux.hpp"
#include "plattform/linux/spielerort.hpp"
#include "plattform/linux/xdg.hpp"
#include "programm/hilfetext.hpp"
#include "programm/programm.hpp"
#include "programm/shellfrage.hpp"

using namespace tonkartei;

int main(int argc, char** argv) {
    if (const auto auskunft = Auskunft(argc, argv, Hilfetext(), "Tonkartei " TONKARTEI_VERSION "\n")) {
        std::fputs(auskunft->c_str(), stdout);
        return 0;
    }
    if (!Qt_Umgebung::Bildschirm_da()) {
        std::fputs("Tonkartei: kein Bildschirm da (weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt).\n", stderr);
        return 1;
    }
    // Before anything starts a thread, which would die of a signal in our place.
    const Endesignale signale;
    Qt_Umgebung qt(argc, argv);
    const Farbwunsch farben([&qt](Farbschema schema) { qt.Schema_setzen(schema); });
    Ansicht_Qt ansicht;

    Dateisystem_Linux dateien;
    Registrierung_Linux registrierung(Einstellungsordner() + "einstellungen.reg");
    Fenstersystem_Linux fenster;
    Papierkorb_Freedesktop papierkorb(dateien);
    Shell_Linux shell(dateien, papierkorb, Frage_über(ansicht));
    Rechner_Linux rechner;
    if (const Text spieler = Spieler_Pfad(); !spieler.empty()) WinAmp_Verknüpfung_anlegen(rechner.WinAmp_Vorgabe(), spieler);

    Programm programm(Plattform{dateien, registrierung, fenster, shell, rechner}, ansicht, qt.Kommandozeile());
    ansicht.bei_Lesbarkeit(signale.Deskriptor(), [&] {
        const auto zeichen = signale.abholen();
        if (zeichen.Ende) ansicht.Sitzung_beenden();
        if (zeichen.Ruf) ansicht.ausführen([&programm] { programm.gerufen(); });
    });
    ansicht.ausführen([&programm] { programm.starten(); });
    // Behind the start: it must not wait for a bus.
    Mpris medien(ansicht.Medien, [&ansicht](const std::function<void()>& befehl) { ansicht.ausführen(befehl); });
    Mitteilung mitteilung;
    if (medien.spricht()) ansicht.bei_Medien = [&medien](const Medienstand& stand) { medien.zeigen(stand); };
    ansicht.bei_Mitteilung = [&mitteilung](const Text& titel, const Text& text) { mitteilung.zeigen(titel, text); };
    if (!ansicht.endet()) ansicht.Hauptschleife();
    return 0;
}
