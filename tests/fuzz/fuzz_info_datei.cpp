// The reader of the info file with its conversions: whatever the bytes, it reads them, says that it cannot, or ends with the
// overflow or bounds error that damaged counts and numbers call for. The old file is whole until the new one is.
#include "datenbank/info_datei.hpp"
#include "datenbank/vorschau.hpp"
#include "fuzz/treiber.hpp"
#include "mp3/speicher_dateisystem.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"
#include "probe/stumme_ansicht.hpp"

using namespace tonkartei;

namespace {

constexpr const char* Pfad = "/MP3_Info.MDB";

struct Platte : Speicher_Dateisystem {
    void umbenennen(const Text& von, const Text& nach) override {
        verlangt(offene() == 0, "no file is renamed while one is open");
        Speicher_Dateisystem::umbenennen(von, nach);
    }
};

std::string Saat_1_00() {
    return "Tonkartei\r\nV 1.00 03\r\n 2 \r\nAlle\r\nTechno\r\n 2 \r\n"
           " 1 \r\nA\x82 B\r\n 3000 \r\n 2 \r\n\x81T\x81\r\n-1 \r\n\r\n 0 \r\n 1 \r\n\r\n";
}

std::string Saat_1_01() {
    std::string bytes = "Tonkartei\r\nV 1.01 05\r\n 2 \r\nAlle\r\nTechno\r\n 1 \r\n";
    for (int s = 1; s <= 9; ++s) bytes += " 1 \r\nSchema " + std::to_string(s) + "\r\n 1 \r\n";
    return bytes + " 1 \r\n 7 \r\nArtist, der\r\n 3000 \r\n 2 \r\n Titel\r\n";
}

// Of today's form, whatever version it bears.
std::string Saat(const std::string& version) {
    std::string bytes = "Tonkartei\r\n" + version + "\r\n 2 \r\nAlle\r\nTechno\r\n 1 \r\n";
    for (int s = 1; s <= 9; ++s) bytes += " 1 \r\nSchema " + std::to_string(s) + "\r\n 1 \r\n";
    bytes += " 0 \r\n 3 \r\n";
    for (int i = 0; i < 3; ++i) bytes += " 1 \r\nArtist\r\n 3000 \r\n 2 \r\nTitel, der\r\n0\r\n3\r\n5\r\n";
    return bytes;
}

}  // namespace

std::vector<std::string> Fuzz_Saat() {
    return {Saat("V 1.02 16"), Saat("V 1.02 03"), Saat("V 9.99 99"), Saat_1_00(), Saat_1_01(), ""};
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
    const std::string vorher(reinterpret_cast<const char*>(daten), größe);
    Platte dateien;
    dateien.Dateien[Pfad].Inhalt = vorher;
    Kanäle kanäle(dateien);
    Ja_Ansicht ansicht;
    Fortschritts_Fenster fortschritt(ansicht);
    Modell modell;
    modell.Programmversion = "V 1.02 16";
    modell.Datenbank_Verzeichnis = "/";
    Info_Datei info(modell, kanäle, dateien, fortschritt, "/temp/");
    try {
        Text pfad = Pfad;
        int nummer = 0;
        const bool geprüft = info.pruefe_Info_Datei(pfad, nummer);
        verlangt(geprüft == kanäle.offen(1) && !kanäle.offen(2), "the file is open after success, nothing after failure");
        const auto kopie = dateien.Dateien.find("/konvert.bak");
        verlangt(kopie == dateien.Dateien.end() || !geprüft, "the old file goes with success");
        if (!geprüft)
            verlangt((kopie != dateien.Dateien.end() ? kopie->second : dateien.Dateien.at(Pfad)).Inhalt == vorher,
                     "and is whole after failure");
        verlangt(!dateien.Dateien.contains("/konvert.tmp"), "what lay between goes in any case");
        const bool konvertiert = geprüft && dateien.Dateien.at(Pfad).Inhalt != vorher;
        const bool gelesen = geprüft && info.lesen(nummer);
        verlangt(gelesen || !geprüft || !konvertiert, "what was converted can be read");
        verlangt(!kanäle.offen(1), "read or refused, the file is closed");
        for (Long n = 1; gelesen && n <= modell.Anzahl_Lieder; ++n)
            verlangt(modell.Lieder[n].Kategorie >= 1, "every song has a category");
        lese_Vorschau(kanäle, Pfad, modell.Programmversion);
        verlangt(!kanäle.offen(1), "the preview closes its file");
    } catch (const Dateifehler&) {
        verlangt(false, "file failures stay within the steps");
    } catch (const Laufzeitfehler& fehler) {
        verlangt(fehler.Nummer() == Fehler_Überlauf || fehler.Nummer() == Fehler_Index, "only overflow and bounds end it");
    }
    return 0;
}
