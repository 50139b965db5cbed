// Loading and saving 5000 albums of twelve titles against the plainest way to move the same bytes.
#include <fstream>
#include <string>
#include <vector>

#include "alben/alben_datei.hpp"
#include "datenbank/modell.hpp"
#include "echt.hpp"
#include "leistung/verhaeltnis.hpp"
#include "plattform/kanaele.hpp"
#include "probe/stumme_ansicht.hpp"
#include "testordner.hpp"

namespace {

using namespace tonkartei;

struct Dateisystem_ohne_Sichern : Dateisystem_echt {
    void sichern(Griff) override {}
};

void füllen(Albenbestand& bestand) {
    constexpr int Titel = 12;
    bestand.Anzahl = Alben_maximal;
    for (int n = 1; n <= Alben_maximal; ++n) {
        Album& album = bestand.Alben[n];
        album.Interpret = "Die Schöne Kapelle " + std::to_string(n * 7919 % 997);
        album.Titel = "An album of the usual length no. " + std::to_string(n);
        album.Jahr = 1970 + n % 50;
        album.Titel_Anzahl = Titel;
        for (int t = 1; t <= Titel; ++t) {
            Album_Lied& lied = album.Lieder[t];
            lied.Artist = album.Interpret;
            lied.Titel = "A title of the usual length no. " + std::to_string(t);
            lied.Zeit = Zeit_aus(0, 3, t);
            lied.in_Datenbank = t % 2 == 0;
            lied.Lied_Nr = lied.in_Datenbank ? n : 0;
        }
    }
}

}  // namespace

int main() {
    const Testordner ordner;
    Dateisystem_ohne_Sichern dateien;
    dateien.aktuellen_Ordner_setzen(ordner.pfad());
    Rechner_echt rechner;
    Stumme_Ansicht ansicht;
    Kanäle kanäle(dateien);
    Modell modell;
    modell.Programmversion = "V 1.02 16";
    modell.Datenbank_Verzeichnis = ordner.pfad();
    modell.Alben_geladen = true;
    Alben alben(rechner, ansicht);
    füllen(alben.eigene);
    Alben_Datei datei(modell, alben, kanäle, dateien, ansicht);
    const Text pfad = modell.Pfad(Alben_Datei_Name);
    const auto schreiben = [&] { return datei.Alben_schreiben() ? 1 : 0; };
    const auto lesen = [&] { return datei.Alben_lesen() ? alben.eigene.Anzahl : 0; };
    if (schreiben() == 0 || lesen() != Alben_maximal) {
        std::fprintf(stderr, "Die Alben kommen nicht heil zurück.\n");
        return 1;
    }
    const std::string bytes = Testordner::inhalt_von(pfad);

    Verhältnisse v;
    v.höchstens("Laden von 5000 Alben", 1.2, "Zeilen derselben Datei lesen", lesen, [&] {
        std::ifstream strom(pfad, std::ios::binary);
        std::vector<std::string> zeilen;
        for (std::string zeile; std::getline(strom, zeile);) zeilen.push_back(zeile);
        return zeilen.size();
    });
    v.höchstens("Speichern von 5000 Alben", 6, "dieselben Bytes schreiben", schreiben, [&] {
        std::ofstream strom(pfad, std::ios::binary);
        strom.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return bytes.size();
    });
    return v.Ergebnis();
}
