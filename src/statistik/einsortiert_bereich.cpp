#include "statistik/einsortiert_bereich.hpp"

#include <algorithm>

#include "datenbank/modell.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {
namespace {

constexpr Farbe Markierfarbe = RGB(0, 128, 0);
// The columns and rows are whole pixels, all of one width.
constexpr int Spaltenraster = Monate * Twips_je_Pixel, Zeilenraster = 10 * Twips_je_Pixel;
constexpr int Abstand = 4 * Twips_je_Pixel;

}  // namespace

Einsortiert_Bereich::Einsortiert_Bereich(Fenster& fenster, const Modell& modell, Dateisystem& dateien, Rechner& rechner,
                                         Fortschritts_Fenster& fortschritt)
    : Einsortiert_Jahr_Text(fenster, "Einsortiert_Jahr_Text", "&Jahr:"),
      Einsortiert_Jahr(fenster, "Einsortiert_Jahr"),
      Einsortiert_Anzahl_Text(fenster, "Einsortiert_Anzahl_Text", "in diesem Jahr einsortiert:"),
      Einsortiert_Anzahl(fenster, "Einsortiert_Anzahl", "0"),
      Zeichenrahmen(fenster, "Einsortiert_Rahmen"),
      Einsortiert_Grafik(fenster, "Einsortiert_Grafik", ""),
      Einsortiert_Y(fenster, "Einsortiert_Y"),
      Einsortiert_X(fenster, "Einsortiert_X",
                    {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun", "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"}),
      Monat_Anzahl(fenster, "Monat_Anzahl"),
      modell_(modell),
      dateien_(dateien),
      rechner_(rechner),
      fortschritt_(fortschritt) {
    Einsortiert_Jahr.tooltip("Das Jahr, dessen Verlauf gezeigt wird.");
    Einsortiert_Anzahl.eingerahmt = true;
    Einsortiert_Anzahl.ausrichtung = Schriftfeld::Ausrichtung::rechts;
    Einsortiert_Grafik.eingerahmt = true;
    Einsortiert_Grafik.Rasterspalten = Monate;
    Einsortiert_Grafik.Rasterzeilen = Einsortiert_Y.Anzahl();
    const auto einrichten = [this](Element& element) {
        element.frei = true;
        element.rahmen(&Zeichenrahmen);
    };
    einrichten(Einsortiert_Grafik);
    for (Schriftfeld& feld : Einsortiert_Y) {
        einrichten(feld);
        feld.ausrichtung = Schriftfeld::Ausrichtung::rechts;
    }
    for (auto* reihe : {&Einsortiert_X, &Monat_Anzahl}) {
        for (Schriftfeld& feld : *reihe) {
            einrichten(feld);
            feld.ausrichtung = Schriftfeld::Ausrichtung::Mitte;
        }
    }
    for (Schriftfeld& feld : Monat_Anzahl) feld.tooltip("Die Lieder dieses Monats.");
    Einsortiert_Jahr.Klick.verbinden([this] { zeichnen(); });
    Einsortiert_Grafik.Mausbewegung.verbinden([this](int x, int y) { Maus_bei(x, y); });
    Zeichenrahmen.Mausbewegung.verbinden([this](int, int) { Markierung_löschen(); });
}

void Einsortiert_Bereich::leeren() { Datei_Datum_.clear(); }

void Einsortiert_Bereich::lesen() {
    std::vector<Text> jahre;
    const Long fehlende = Daten_lesen(jahre);
    std::sort(jahre.begin(), jahre.end());
    Einsortiert_Jahr.setzen(std::move(jahre));
    for (int i = 1; i <= Einsortiert_Y.Anzahl(); ++i)
        Einsortiert_Y[i].beschriftung(Zahltext(static_cast<long long>(gerundet(modell_.Anzahl_Lieder / 10.0)) * i));
    if (fehlende > 0)
        fortschritt_.ansicht().informieren(
            "Fehler beim einlesen der Daten",
            "Achtung: Es " + (fehlende == 1 ? Text("fehlt ein Lied") : "fehlen " + Zahltext(fehlende) + " Lieder") +
                " in der Datenbank!" + Text(CRCR) +
                "Benutzen sie die Funktion Lücken suchen/auffüllen unter Lieder/Wartung/Fehlersuche!");
    const auto& zeilen = Einsortiert_Jahr.zeilen();
    const auto dieses = std::find(zeilen.begin(), zeilen.end(), Zahltext(rechner_.jetzt().Jahr));
    if (dieses != zeilen.end()) Einsortiert_Jahr.wähle(static_cast<int>(dieses - zeilen.begin()));
}

// How many files are missing; their songs keep the empty date.
Long Einsortiert_Bereich::Daten_lesen(std::vector<Text>& Jahre) {
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen("Datum der MP3-Dateien lesen...");
    const Long anzahl = modell_.Anzahl_Lieder;
    Datei_Datum_.assign(static_cast<std::size_t>(anzahl), Zeitpunkt{});
    std::vector<int> jahre;
    Long fehlende = 0;
    for (Long nr = 1; nr <= anzahl; ++nr) {
        if (const auto datum = dateien_.Änderungszeit(modell_.Lied_Pfad(nr))) {
            Datei_Datum_[static_cast<std::size_t>(nr - 1)] = *datum;
            if (std::find(jahre.begin(), jahre.end(), datum->Jahr) == jahre.end()) jahre.push_back(datum->Jahr);
        } else {
            ++fehlende;
        }
        fortschritt_.anzeigen(Prozent(nr, anzahl));
    }
    for (const int jahr : jahre) Jahre.push_back(Zahltext(jahr));
    return fehlende;
}

// Whoever can choose a year has a song with a file: the collection is not empty.
void Einsortiert_Bereich::zeichnen() {
    if (Einsortiert_Jahr.gewählt() < 0) return;
    const Jahresverlauf verlauf = Jahr_zählen(Datei_Datum_, gerundet(Zahlwert(Einsortiert_Jahr.gewählter_Text())));
    Zeichengrund grund;
    for (int m = 1; m <= Monate; ++m)
        grund.Spalten.at(static_cast<std::size_t>(m - 1)) = {Einsortiert_X[m].links() - Einsortiert_X[1].links(),
                                                             Einsortiert_X[m].breite()};
    grund.Höhe = Einsortiert_Grafik.höhe();
    grund.Gipfel = static_cast<Long>(Datei_Datum_.size());
    Einsortiert_Anzahl.beschriftung(Zahltext(verlauf.Jahr_Anzahl));
    Einsortiert_Grafik.linien(Verlauf_zeichnen(verlauf, grund, rechner_.jetzt()));
    for (int m = 1; m <= Monate; ++m) Monat_Anzahl[m].beschriftung(Zahltext(verlauf.Monat_Anzahl(m)));
}

void Einsortiert_Bereich::Maus_bei(int x, int y) {
    const int breite = Einsortiert_X[1].breite();
    const int höhe = Einsortiert_Grafik.höhe() / Einsortiert_Y.Anzahl();
    if (breite > 0 && höhe > 0) markieren(x / breite + 1, Einsortiert_Y.Anzahl() - y / höhe);
}

void Einsortiert_Bereich::markieren(int Monat, int Reihe) {
    const auto färben = [](auto& felder, int welches) {
        for (Schriftfeld& feld : felder) feld.hintergrund(feld.Index() == welches ? Markierfarbe : Farbe_Standard);
    };
    färben(Einsortiert_X, Monat);
    färben(Einsortiert_Y, Reihe);
}

Knoten Einsortiert_Bereich::knoten() {
    return Spalte({Zeile({Einsortiert_Jahr_Text, Knoten(Einsortiert_Jahr).zeichen(8), Feder(), Einsortiert_Anzahl_Text,
                          Knoten(Einsortiert_Anzahl).zeichen(8)}),
                   Gruppe(Zeichenrahmen, Feder(1, 1).mindestens(10000, 5000))});
}

// The labels left of the graph stand beside the lines of its grid, the uppermost one half above it.
void Einsortiert_Bereich::platzieren() {
    const Ansicht& ansicht = fortschritt_.ansicht();
    const auto Zeilen = [](int twips, int raster) { return twips / raster * raster; };
    const int zeile = ansicht.Wunschgröße(Einsortiert_X[1]).höhe;
    const int halbe = Zeilen(zeile / 2, Twips_je_Pixel);
    const int links = ansicht.Textbreite("00000", Einsortiert_Y[1].schrift()) + 2 * Abstand;
    const int unten = 2 * zeile + Abstand;
    const int breite = Zeilen(Zeichenrahmen.breite() - links, Spaltenraster);
    const int höhe = Zeilen(Zeichenrahmen.höhe() - halbe - unten, Zeilenraster);
    Einsortiert_Grafik.lage({links, halbe, breite, höhe});
    for (int i = 1; i <= Einsortiert_Y.Anzahl(); ++i)
        Einsortiert_Y[i].lage({0, höhe * (Einsortiert_Y.Anzahl() - i) / Einsortiert_Y.Anzahl(), links - 2 * Abstand, zeile});
    const int spalte = breite / Monate;
    for (int m = 1; m <= Monate; ++m) {
        Einsortiert_X[m].lage({links + (m - 1) * spalte, halbe + höhe + Abstand, spalte, zeile});
        Monat_Anzahl[m].lage({links + (m - 1) * spalte, halbe + höhe + Abstand + zeile, spalte, zeile});
    }
    zeichnen();
}

}  // namespace tonkartei
