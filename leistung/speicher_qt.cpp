// Resident memory of the desktop's window with 5000 songs, and with the argument "leer" that of an empty Qt window.
#include <QCoreApplication>
#include <QWidget>

#include "leistung/speicher.hpp"
#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"
#include "programm/programm.hpp"

using namespace tonkartei;

int main(int argc, char** argv) {
    const bool leer = argc > 1 && std::string(argv[1]) == "leer";
    const Qt_Umgebung qt(argc, argv);
    double speicher = 0;
    if (leer) {
        QWidget fenster;
        fenster.resize(900, 620);
        fenster.show();
        for (int i = 0; i < 50; ++i) QCoreApplication::processEvents();
        speicher = Speicher_MB();
    } else {
        Ansicht_Qt ansicht;
        Speicherprobe probe;
        Programm programm(probe.maschine(), ansicht, "");
        ansicht.ausführen([&programm] { programm.starten(); });
        for (int i = 0; i < 50; ++i) ansicht.Ereignisse_laufen_lassen();
        speicher = Speicher_MB();
    }
    std::printf("%.2f\n", speicher);
    std::fflush(stdout);
    std::_Exit(0);
}
