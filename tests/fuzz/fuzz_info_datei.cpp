// The reader of the info file: whatever its bytes, it reads them, says that it cannot, or ends with the overflow or bounds
// error that damaged counts and numbers call for; and what it could read it writes back.
#include "datenbank/fortschritt.hpp"
#include "datenbank/info_datei.hpp"
#include "datenbank/vorschau.hpp"
#include "fuzz/treiber.hpp"
#include "mp3/speicher_dateisystem.hpp"
#include "plattform/kanaele.hpp"
#include "probe/stumme_ansicht.hpp"

using namespace tonkartei;

namespace {

std::string Saat(const std::string& version) {
    std::string bytes = "Tonkartei\r\n" + version + "\r\n 2 \r\nAlle\r\nTechno\r\n 1 \r\n";
    for (int s = 1; s <= 9; ++s) bytes += " 1 \r\nSchema " + std::to_string(s) + "\r\n 1 \r\n";
    bytes += " 0 \r\n 3 \r\n";
    for (int i = 0; i < 3; ++i) bytes += " 1 \r\nArtist\r\n 3000 \r\n 2 \r\nTitel, der\r\n0\r\n3\r\n5\r\n";
    return bytes;
}

}  // namespace

std::vector<std::string> Fuzz_Saat() { return {Saat("V 1.02 16"), Saat("V 1.02 03"), Saat("V 9.99 99"), ""}; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
    Speicher_Dateisystem dateien;
    dateien.Dateien["/MP3_Info.MDB"].Inhalt.assign(reinterpret_cast<const char*>(daten), größe);
    Kanäle kanäle(dateien);
    Ja_Ansicht ansicht;
    Fortschritts_Fenster fortschritt(ansicht);
    Modell modell;
    modell.Programmversion = "V 1.02 16";
    modell.Datenbank_Verzeichnis = "/";
    Info_Datei info(modell, kanäle, dateien, ansicht, fortschritt);
    try {
        Text pfad = "/MP3_Info.MDB";
        int nummer = 0;
        if (!info.pruefe_Info_Datei(pfad, nummer) || !info.lesen(nummer)) {
            verlangt(!kanäle.offen(1), "a refused file is closed");
            return 0;
        }
    } catch (const Dateifehler&) {
        verlangt(false, "file failures stay within the reader");
    } catch (const Laufzeitfehler& fehler) {
        verlangt(fehler.Nummer() == Fehler_Überlauf || fehler.Nummer() == Fehler_Index, "only overflow and bounds end it");
        return 0;
    }
    for (Long n = 1; n <= modell.Anzahl_Lieder; ++n) verlangt(modell.Lieder[n].Kategorie >= 1, "every song has a category");
    lese_Vorschau(kanäle, "/MP3_Info.MDB", modell.Programmversion);
    verlangt(!kanäle.offen(1), "the preview closes its file");
    return 0;
}
