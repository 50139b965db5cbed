// What two collections have to do with each other: four times the songs may take somewhat more than four times as long, and
// not sixteen times. And the comparison file against the system calls that it cannot do without.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

#include "alben/albenraum.hpp"
#include "albenverwaltung/album_abgleich.hpp"
#include "austausch/austausch.hpp"
#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "kategorien/kategorienraum.hpp"
#include "leistung/speicher.hpp"
#include "leistung/verhaeltnis.hpp"
#include "lieder/liederraum.hpp"
#include "liste/listenbereich.hpp"
#include "probe/stumme_ansicht.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace {

using namespace tonkartei;

struct Wählend : Stumme_Ansicht {
    Text Ordner, Datei;
    Text Verzeichnis_wählen(const Text&) override { return Ordner; }
    Text Datei_wählen(const Dateiwahl&) override { return Datei; }
    Antwort melden(const Meldungsfeld& feld) override {
        return feld.art == Meldungsfeld::Art::Frage ? Antwort::Ja : Antwort::OK;
    }
};

// The open collection has so many songs, and so has another one that shares half of them; none has a file.
struct Sammlungen : Fenster {
    explicit Sammlungen(Wählend& ansicht, Long anzahl) : Fenster(ansicht, "Sammlungen", ""), anzahl_(anzahl) {
        Standard_Datenbank(haus.modell, true);
        haus.modell.Datenbank_Verzeichnis = probe.ordner.pfad();
        haus.modell.Datenbank_offen = true;
        haus.modell.Anzahl_Lieder = anzahl;
        std::string bytes = "Tonkartei\r\n" + haus.modell.Programmversion + "\r\n 1 \r\nAlle\r\n 0 \r\n";
        for (int s = 1; s <= 9; ++s) bytes += " 1 \r\nSchema\r\n 1 \r\n";
        bytes += " 0 \r\n " + std::to_string(anzahl) + " \r\n";
        for (Long n = 1; n <= anzahl; ++n) {
            Lied& lied = haus.modell.Lieder[n];
            lied.Artist = "Some Band With A Name " + std::to_string(n % 997);
            lied.Titel = "A title of the usual length no. " + std::to_string(n);
            lied.Größe = 3000 + n;
            lied.Kategorie = 1;
            bytes += " 0 \r\n" + lied.Artist + "\r\n " + std::to_string(9000 + n) + " \r\n 1 \r\n" + lied.Titel +
                     (n % 2 == 0 ? " live" : "") + "\r\n0\r\n3\r\n30\r\n";
        }
        probe.ordner.ordner("andere");
        probe.ordner.datei("andere/MP3_Info.MDB", bytes);
        probe.dateien.aktuellen_Ordner_setzen(probe.ordner.pfad());
    }
    std::size_t abgleichen() {
        static_cast<Wählend&>(ansicht()).Ordner = probe.ordner.pfad("andere");
        austausch.abgleich.befehl.Menü_Live_abgleich();
        const auto& fenster = austausch.abgleich.fenster;
        return static_cast<std::size_t>(fenster.fehlende.Anzahl()) + static_cast<std::size_t>(fenster.andere.Anzahl());
    }
    std::size_t durch_Datei_vergleichen() {
        austausch.vergleich.befehl.Datenbank_vergleichen();
        return static_cast<std::size_t>(austausch.vergleich.ergebnis.andere.Anzahl());
    }
    Long album_scannen() {
        Album album;
        album.Titel_Anzahl = Album_Titel_maximal;
        for (int t = 1; t <= Album_Titel_maximal; ++t) {
            const Lied& lied = haus.modell.Lieder[static_cast<long long>(anzahl_) / Album_Titel_maximal * t];
            album.Lieder[t] = {lied.Artist, lied.Titel, 0, false, 0};
        }
        Long summe = 0;
        for (int n = 0; n < 5; ++n) summe += Titel_verknüpfen(album, haus.modell, [](int) {});
        return summe;
    }

    Speicherprobe probe;
    Haus haus{probe.maschine(), ansicht()};
    Datenbankraum datenbank{haus};
    Albenraum alben{datenbank};
    Kategorienraum kategorien{haus};
    Kategorienbereich kategoriebereich{*this, haus.modell, haus.einstellungen, kategorien.bearbeiten};
    Listenbereich liste{*this, haus, alben, kategoriebereich};
    Wiedergabe wiedergabe{haus};
    Liederraum lieder{datenbank, alben, kategorien, wiedergabe, liste};
    Austausch austausch{datenbank, kategorien, lieder, wiedergabe, liste};

private:
    Long anzahl_;
};

// The calls alone: ask each file for its time, and write the same bytes.
std::size_t nur_Aufrufe(const std::vector<std::string>& pfade, const std::string& ziel, const std::string& bytes) {
    std::size_t summe = 0;
    for (const std::string& pfad : pfade) {
        struct stat da {};
        std::tm zeit{};
        if (::stat(pfad.c_str(), &da) == 0 && ::localtime_r(&da.st_mtime, &zeit) != nullptr)
            summe += static_cast<std::size_t>(zeit.tm_sec);
    }
    const int datei = ::open(ziel.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    for (std::size_t von = 0; von < bytes.size();) {
        const ssize_t n = ::write(datei, bytes.data() + von, std::min<std::size_t>(65536, bytes.size() - von));
        if (n <= 0) break;
        von += static_cast<std::size_t>(n);
    }
    ::close(datei);
    return summe;
}

}  // namespace

int main() {
    Wählend ansicht;
    Sammlungen ganz(ansicht, Lieder_maximal), viertel(ansicht, Lieder_maximal / 4);
    Verhältnisse v(15);
    v.höchstens(
        "Abgleich von 5000 Liedern mit 5000", 6, "der von 1250 mit 1250", [&] { return ganz.abgleichen(); },
        [&] { return viertel.abgleichen(); });
    v.höchstens(
        "Suche nach 200 Titeln in 5000 Liedern", 6, "die in 1250", [&] { return ganz.album_scannen(); },
        [&] { return viertel.album_scannen(); });

    std::vector<std::string> pfade;
    for (Sammlungen* s : {&ganz, &viertel})
        for (Long n = 1; n <= s->haus.modell.Anzahl_Lieder; ++n) {
            s->probe.ordner.datei(Lied_Dateiname(n));
            if (s == &ganz) pfade.push_back(s->haus.modell.Lied_Pfad(n));
        }
    const auto erstellen = [&](Sammlungen& s, const char* name) {
        ansicht.Datei = ganz.probe.ordner.pfad(name);
        s.austausch.vergleich.datei.Vergleichsdatei_erstellen();
        return Testordner::inhalt_von(ansicht.Datei);
    };
    const std::string bytes = erstellen(ganz, "ganz.mvd");
    erstellen(viertel, "viertel.mvd");
    const auto vergleichen = [&](Sammlungen& s, const char* name) {
        ansicht.Datei = ganz.probe.ordner.pfad(name);
        return s.durch_Datei_vergleichen();
    };
    v.höchstens(
        "Vergleich von 5000 Liedern mit 5000 einer Datei", 6, "der von 1250 mit 1250",
        [&] { return vergleichen(ganz, "ganz.mvd"); }, [&] { return vergleichen(viertel, "viertel.mvd"); });
    ansicht.Datei = ganz.probe.ordner.pfad("neu.mvd");
    v.höchstens(
        "Vergleichsdatei von 5000 Liedern", 1.5, "Systemaufrufe",
        [&] {
            ganz.austausch.vergleich.datei.Vergleichsdatei_erstellen();
            return bytes.size();
        },
        [&] { return nur_Aufrufe(pfade, ganz.probe.ordner.pfad("roh.mvd"), bytes); });
    return v.Ergebnis();
}
