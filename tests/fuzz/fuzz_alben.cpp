// The reader of the album file: whatever its bytes, it reads them or says that it cannot, and what it read it writes back
// so that it reads the same again.
#include "alben/alben_datei.hpp"
#include "datenbank/modell.hpp"
#include "fuzz/treiber.hpp"
#include "mp3/speicher_dateisystem.hpp"
#include "plattform/kanaele.hpp"
#include "probe/rechner_probe.hpp"
#include "probe/stumme_ansicht.hpp"

using namespace tonkartei;

namespace {

constexpr const char* Pfad = "/MP3_Info.ALB";
constexpr const char* Kopie = "MP3_Bak.ALB";

std::string Saat(const std::string& version) {
    std::string bytes = "Tonkartei\r\n" + version + "\r\nDatenbank Alben-Verwaltung\r\n 3 \r\n";
    for (int n = 0; n < 3; ++n) {
        bytes += " " + std::to_string(n) + " \r\nInterpret, der\r\n 1969 \r\nT\r\nTitel\r\n";
        for (int t = 0; t < n; ++t) bytes += "Artist\r\n0\r\n4\r\n3\r\nT\r\n 12 \r\nLied\r\n";
    }
    return bytes;
}

}  // namespace

std::vector<std::string> Fuzz_Saat() { return {Saat("V 1.02 16"), Saat("V 1.02 03"), Saat("V 9.99 99"), ""}; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
    Speicher_Dateisystem dateien;
    dateien.Dateien[Pfad].Inhalt.assign(reinterpret_cast<const char*>(daten), größe);
    Kanäle kanäle(dateien);
    Ja_Ansicht ansicht;
    Rechner_Probe rechner({2026, 1, 15, 12, 0, 0}, "/", false);
    Modell modell;
    modell.Programmversion = "V 1.02 16";
    modell.Datenbank_Verzeichnis = "/";
    Alben alben(rechner, ansicht);
    Alben_Datei datei(modell, alben, kanäle, dateien, ansicht);
    const bool gelesen = datei.Alben_lesen();
    verlangt(!kanäle.offen(1), "the file is closed");
    verlangt(modell.Alben_geladen == gelesen, "loaded is what was read");
    if (!gelesen) return 0;
    verlangt(datei.Alben_schreiben(), "what was read can be written");
    const std::string einmal = dateien.Dateien[Pfad].Inhalt;
    verlangt(datei.Alben_lesen() && datei.Alben_schreiben(), "and read again");
    verlangt(dateien.Dateien[Pfad].Inhalt == einmal, "without a change");
    verlangt(!dateien.Dateien.contains(Kopie), "the copy is gone");
    return 0;
}
