// A rebuild of the song list against sorting the same keys.
#include <algorithm>
#include <string>
#include <vector>

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "kategorien/kategorienraum.hpp"
#include "leistung/speicher.hpp"
#include "leistung/verhaeltnis.hpp"
#include "liste/listenbereich.hpp"
#include "oberflaeche/fenster.hpp"
#include "probe/stumme_ansicht.hpp"

namespace {

using namespace tonkartei;

struct Listenfenster : Fenster {
    Speicherprobe probe;
    Haus haus{probe.maschine(), ansicht()};
    Modell& modell = haus.modell;
    Datenbankraum datenbank{haus};
    Albenraum albenraum{datenbank};
    Albenbestand& alben = albenraum.alben.eigene;
    Kategorienraum kategoriefenster{haus};
    Kategorienbereich kategorien{*this, modell, haus.einstellungen, kategoriefenster.bearbeiten};
    Listenbereich lieder{*this, haus, albenraum, kategorien};
    explicit Listenfenster(Ansicht& ansicht) : Fenster(ansicht, "Listenfenster", "") {}
};

}  // namespace

int main() {
    Stumme_Ansicht ansicht;
    Listenfenster f(ansicht);
    Standard_Datenbank(f.modell, true);
    f.modell.Anzahl_Lieder = Lieder_maximal;
    for (int n = 1; n <= Lieder_maximal; ++n) {
        Lied& lied = f.modell.Lieder[n];
        lied.Artist = (n % 7 == 0 ? "Die Schöne Kapelle " : "Some Band With A Name ") + std::to_string(n * 7919 % 997);
        lied.Titel = "A title of the usual length no. " + std::to_string(n * 31 % 5003);
        lied.Kategorie = static_cast<Byte>(1 + n % 6);
        lied.Größe = 3000;
    }
    f.laden();
    f.kategorien.aktualisiere_Kategorie_List(false);

    std::vector<std::string> schlüssel;
    for (int n = 1; n <= Lieder_maximal; ++n)
        schlüssel.push_back(groß(f.modell.Lieder[n].Artist + f.modell.Lieder[n].Titel) + Zahl_mit_Nullen(n, 8));

    Verhältnisse v(51);
    const auto Sortieren = [&] {
        std::vector<std::string> kopie = schlüssel;
        std::sort(kopie.begin(), kopie.end());
        return kopie.front().size();
    };
    int runde = 0;
    v.höchstens(
        "Aufbau der Liste aus 5000 Liedern", 3, "std::sort derselben Schlüssel",
        [&] {
            // A title that changes makes the order that is kept from build to build worthless.
            f.modell.Lieder[17].Titel = std::to_string(++runde);
            f.lieder.aktualisiere_Liste();
            return f.lieder.Liste.Anzahl();
        },
        Sortieren);
    f.lieder.Schnellsuche.text("band");
    std::vector<std::string> passende;
    for (const std::string& zeile : schlüssel)
        if (zeile.find("BAND") != std::string::npos) passende.push_back(zeile);
    v.höchstens(
        "ein Tastendruck in der Schnellsuche", 2, "std::sort dessen, was übrig bleibt",
        [&] {
            f.lieder.Schnellsuche.text(++runde % 2 == 0 ? "band" : "ban");
            return f.lieder.Liste.Anzahl();
        },
        [&] {
            std::vector<std::string> kopie = passende;
            std::sort(kopie.begin(), kopie.end());
            return kopie.front().size();
        });

    std::vector<std::string> albumschlüssel;
    f.alben.Anzahl = Alben_maximal;
    for (int n = 1; n <= Alben_maximal; ++n) {
        Album& album = f.alben.Alben[n];
        album.Interpret = "Some Band With A Name " + std::to_string(n * 7919 % 997);
        album.Titel = "An album of the usual length no. " + std::to_string(n * 31 % 5003);
        albumschlüssel.push_back(groß(album.Interpret + album.Titel) + Zahl_mit_Nullen(n, 4));
    }
    f.modell.Alben_geladen = true;
    v.höchstens(
        "Öffnen des Reiters mit 5000 Alben", 2.5, "std::sort derselben Schlüssel",
        [&] {
            // Back and forth; the way back to the songs found by the search is part of it.
            f.lieder.Schnellsuche.text("nichts dergleichen");
            f.lieder.Datenbank_Modus.wert(1);
            const int zeilen = f.lieder.Liste.Anzahl();
            f.lieder.Datenbank_Modus.wert(0);
            return zeilen;
        },
        [&] {
            std::vector<std::string> kopie = albumschlüssel;
            std::sort(kopie.begin(), kopie.end());
            return kopie.front().size();
        });
    return v.Ergebnis();
}
