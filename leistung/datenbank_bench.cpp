// Loading and saving a collection of 5000 songs against the plainest way to move the same bytes.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "datenbank/info_datei.hpp"
#include "echt.hpp"
#include "leistung/verhaeltnis.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"
#include "probe/stumme_ansicht.hpp"
#include "testordner.hpp"

namespace {

using namespace tonkartei;

// A disk that waits for the platter only when told: without it the writing itself is measured.
struct Platte : Dateisystem_echt {
    bool wartet = false;
    void sichern(Griff griff) override {
        if (wartet) Dateisystem_echt::sichern(griff);
    }
};

void von_Hand_sichern(const std::string& pfad) {
    const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC);
    ::fsync(fd);
    ::close(fd);
}

void füllen(Modell& modell) {
    modell.Programmversion = "V 1.02 16";
    Standard_Datenbank(modell, true);
    modell.Anzahl_Lieder = Lieder_maximal;
    for (int n = 1; n <= Lieder_maximal; ++n) {
        Lied& lied = modell.Lieder[n];
        lied.Artist = (n % 7 == 0 ? "Die Schöne Kapelle " : "Some Band With A Name ") + std::to_string(n * 7919 % 997);
        lied.Titel = "A title of the usual length no. " + std::to_string(n);
        lied.Größe = 3000 + n;
        lied.Anzahl = n % 50;
        lied.Kategorie = static_cast<Byte>(1 + n % 6);
        lied.Zeit = Zeit_aus(0, 3, n % 60);
    }
}

}  // namespace

int main(int, char** argv) {
    // Beside the benchmark, as the temporary folder may lie in memory.
    const Testordner ordner(std::filesystem::absolute(argv[0]).parent_path().string());
    Platte dateien;
    dateien.aktuellen_Ordner_setzen(ordner.pfad());
    Kanäle kanäle(dateien);
    Stumme_Ansicht ansicht;
    Fortschritts_Fenster fortschritt(ansicht);
    Modell modell;
    füllen(modell);
    modell.Datenbank_Verzeichnis = ordner.pfad();
    Info_Datei info(modell, kanäle, dateien, fortschritt, ordner.pfad());
    info.schreibe_Datenbank(false);
    const Text pfad = ordner.pfad("MP3_Info.MDB");
    const std::string bytes = ordner.inhalt("MP3_Info.MDB");

    Verhältnisse v(31);
    v.höchstens(
        "Laden von 5000 Liedern", 1.2, "Zeilen derselben Datei lesen",
        [&] {
            Text datei = pfad;
            int nummer = 0;
            return info.pruefe_Info_Datei(datei, nummer) && info.lesen(nummer) ? modell.Anzahl_Lieder : 0;
        },
        [&] {
            std::ifstream strom(pfad, std::ios::binary);
            std::vector<std::string> zeilen;
            for (std::string zeile; std::getline(strom, zeile);) zeilen.push_back(zeile);
            return zeilen.size();
        });
    const auto durch_uns = [&] { return info.schreibe_Datenbank(false) ? 1 : 0; };
    const auto von_Hand = [&] {
        // The same steps around it: the old file aside, the new one, the copy gone.
        std::filesystem::rename(pfad, ordner.pfad("MP3_Bak.MDB"));
        std::ofstream strom(pfad, std::ios::binary);
        strom.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        strom.close();
        if (dateien.wartet)
            for (const Text& was : {pfad, ordner.pfad()}) von_Hand_sichern(was);
        std::filesystem::remove(ordner.pfad("MP3_Bak.MDB"));
        return bytes.size();
    };
    v.zum_Vergleich("Speichern von 5000 Liedern", "dieselben Bytes schreiben", durch_uns, von_Hand);
    // A disk takes as long as it likes: more rounds.
    dateien.wartet = true;
    Verhältnisse platte(101);
    platte.Uhr = verstrichene_Zeit;
    platte.höchstens("dasselbe, bis es auf der Platte ist", 1.5, "dieselben Bytes, bis sie es sind", durch_uns, von_Hand);
    return std::max(v.Ergebnis(), platte.Ergebnis());
}
