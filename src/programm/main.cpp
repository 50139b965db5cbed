// Entry point: builds the machine and the view, and runs the program on them. Which machine
// and which desktop, the build says (echt.hpp, nachbarn.hpp).
#include <cstdio>

#include "echt.hpp"
#include "grundlagen/auskunft.hpp"
#include "nachbarn.hpp"
#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"
#include "programm/hilfetext.hpp"
#include "programm/programm.hpp"
#include "programm/shellfrage.hpp"

using namespace tonkartei;

int main(int argc, char** argv) {
    Aufruf aufruf(argc, argv);
    if (const auto auskunft = Auskunft(aufruf.Anzahl, aufruf.Argumente, Hilfetext(), "Tonkartei " TONKARTEI_VERSION "\n")) {
        std::fputs(auskunft->c_str(), stdout);
        return 0;
    }
    if (const Text hindernis = Aufruf::Hindernis(); !hindernis.empty()) {
        std::fputs(("Tonkartei: " + hindernis + ".\n").c_str(), stderr);
        return 1;
    }
    // Before anything starts a thread, which would die of a signal in our place.
    Endesignale signale;
    Qt_Umgebung qt(aufruf.Anzahl, aufruf.Argumente);
    Nachbarn nachbarn(qt);
    Ansicht_Qt ansicht;

    Dateisystem_echt dateien;
    Registrierung_echt registrierung(Einstellungsort());
    Fenstersystem_echt fenster;
    Papierkorb_echt papierkorb(dateien);
    Shell_echt shell(dateien, papierkorb, Frage_über(ansicht));
    Rechner_echt rechner;
    Spieler_bereitstellen(rechner.WinAmp_Vorgabe());

    Programm programm(Plattform{dateien, registrierung, fenster, shell, rechner}, ansicht, qt.Kommandozeile());
    signale.anschließen(
        ansicht, [&] { ansicht.Sitzung_beenden(); }, [&] { ansicht.ausführen([&programm] { programm.gerufen(); }); });
    ansicht.ausführen([&programm] { programm.starten(); });
    nachbarn.anschließen(ansicht);
    if (!ansicht.endet()) ansicht.Hauptschleife();
    return 0;
}
