// The readers of the five files of exchange: whatever their bytes, they read them or say that they cannot, no number leaves
// its range, and what the two lists read they write back so that it reads the same again.
#include "austausch/fuenf_dateien.hpp"
#include "fuzz/treiber.hpp"

using namespace tonkartei;

namespace {

constexpr Fünf_Dateien::Art Arten[] = {Fünf_Dateien::BKV, Fünf_Dateien::MBP, Fünf_Dateien::MVD, Fünf_Dateien::MAD,
                                       Fünf_Dateien::LIL};

}  // namespace

// The first byte says which of the five it is.
std::vector<std::string> Fuzz_Saat() {
    std::vector<std::string> saat{""};
    for (const auto art : Arten)
        for (const char* version : {"V 1.02 16", "V 1.02 12", "V 9.99 99"}) {
            Fünf_Dateien d;
            d.modell.Programmversion = version;
            d.schreiben(art, "Artist, \"der\"", "Titel");
            saat.push_back(static_cast<char>(art) + d.inhalt(art));
        }
    return saat;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
    if (größe == 0) return 0;
    const auto art = Arten[daten[0] % std::size(Arten)];
    Fünf_Dateien d;
    d.inhalt(art).assign(reinterpret_cast<const char*>(daten) + 1, größe - 1);
    const Text gelesen = d.lesen(art);
    verlangt(!d.kanäle.offen(1), "the file is closed");
    if (art == Fünf_Dateien::MBP || art == Fünf_Dateien::MAD) {
        std::size_t anzahl = 0;
        for (std::size_t von = 0; von < gelesen.size(); ++anzahl) {
            const std::size_t bis = std::min(gelesen.find('\n', von + 1), gelesen.size());
            const double nr = Zahlwert(gelesen.substr(von + 1, bis - von - 1));
            verlangt(nr >= 1 && nr <= Lieder_maximal, "a number that a song can have");
            von = bis;
        }
        verlangt(anzahl <= Lieder_maximal, "as many as a collection can hold");
        verlangt(gelesen.empty() || d.ansicht.Meldungen.empty(), "numbers or a message");
    }
    if (art != Fünf_Dateien::BKV && art != Fünf_Dateien::LIL) return 0;
    verlangt(art == Fünf_Dateien::BKV || gelesen.empty() || d.modell.Ignorieren_geladen, "loaded is what was read");
    if (art == Fünf_Dateien::LIL && !d.modell.Ignorieren_geladen) return 0;
    verlangt(art == Fünf_Dateien::BKV ? d.verzeichnis.Backup_Verzeichnis_schreiben() : d.ignorierte.Ignorieren_schreiben(),
             "what was read can be written");
    verlangt(d.dateien.Dateien.size() == 1, "the copy is gone");
    // A CR at the end of a name goes together with the line's own end.
    if (d.inhalt(art).find("\r\r") != std::string::npos) return 0;
    verlangt(d.lesen(art) == gelesen, "and reads the same again");
    verlangt(d.ansicht.Meldungen.empty(), "without a message");
    return 0;
}
