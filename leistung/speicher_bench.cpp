// Resident memory with 5000 songs: the program without a toolkit, and the Qt window above an empty one.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "leistung/speicher.hpp"
#include "leistung/verhaeltnis.hpp"
#include "oberflaeche/fenster.hpp"
#include "probe/stumme_ansicht.hpp"
#include "programm/programm.hpp"

namespace {

// What the command prints; `sonst` when it fails.
double gemessen(const std::string& befehl, double sonst) {
    std::FILE* rohr = popen(befehl.c_str(), "r");
    double wert = 0;
    if (rohr == nullptr || std::fscanf(rohr, "%lf", &wert) != 1) wert = sonst;
    if (rohr != nullptr) pclose(rohr);
    return wert;
}

}  // namespace

int main() {
    using namespace tonkartei;
    double ohne = 0;
    {
        Stumme_Ansicht ansicht;
        Speicherprobe probe;
        Programm programm(probe.maschine(), ansicht, "");
        programm.starten();
        ohne = Speicher_MB();
    }
    const std::string qt = TONKARTEI_SPEICHER_QT;
    const double fenster = gemessen(qt, 1e9), leer = gemessen(qt + " leer", 0);
    Verhältnisse v;
    v.Wert("Speicher mit 5000 Liedern, ohne Oberfläche", ohne, "MByte", 20);
    v.Wert("Qt-Fenster mit 5000 Liedern über einem leeren", fenster - leer, "MByte", 25);
    return v.Ergebnis();
}
