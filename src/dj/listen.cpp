#include "dj/listen.hpp"

#include <algorithm>
#include <utility>

#include "datenbank/haus.hpp"
#include "dj/striche.hpp"
#include "dj/zufall.hpp"
#include "liste/lieder_liste.hpp"
#include "liste/quicksort.hpp"

namespace tonkartei {
namespace {

constexpr const char* Zufallszeile = ">>> Random <<<";
// A line of the wish list is a header when it begins with these.
constexpr const char* Kopfstriche = "----------";
// Twips that border and scroll bar take from a row of dashes.
constexpr int Randabzug = 120;

}  // namespace

Text Listen::Liedzeile(Long Nr) const { return Listenzeile(modell_.Lieder[Nr], Sortierung::Artist); }

int Listen::Strichbreite(int liste) const { return Liste[liste].breite() - Randabzug; }

// The name stands at the right, and the dashes fill the row.
Text Listen::Kopfzeile(int k) const {
    const Text name = k >= 1 && k <= Kategorien_maximal ? Kategorie[k].beschriftung() : Text();
    return Striche(Strich_Anzahl(ansicht_, Strichbreite(Wunschliste), name, Liste[Wunschliste].schrift())) + name;
}

void Listen::erstelle_Suchliste() {
    std::vector<Long>& nummern = Lieder_Liste(Suchliste);
    nummern = suche_.passende(Schnellsuche.text(), [this](int k) { return wahl_.zeigt(k); });
    Quicksort<Text, Long> ordnung;
    ordnung.Quicksort_Init(static_cast<Long>(nummern.size()));
    Long i = 0;
    for (const Long nr : nummern) {
        ordnung.Schlüssel(++i) = Liedzeile(nr);
        ordnung.Wert(i) = nr;
    }
    ordnung.Quicksort_Start();
    std::vector<Text> zeilen(nummern.size());
    for (i = 1; i <= static_cast<Long>(nummern.size()); ++i) {
        nummern[static_cast<std::size_t>(i - 1)] = ordnung.Wert(i);
        zeilen[static_cast<std::size_t>(i - 1)] = std::move(ordnung.Schlüssel(i));
    }
    Liste[Suchliste].setzen(std::move(zeilen));
}

// The last line stands for a random song, also where there is no other.
void Listen::zeige_Playlist() {
    std::vector<Text> zeilen;
    for (const Long nr : Lieder(Playlist)) zeilen.push_back(Liedzeile(nr));
    const int platz = Strich_Anzahl(ansicht_, Strichbreite(Playlist), Zufallszeile, Liste[Playlist].schrift());
    const Text striche = Striche(gerundet(platz / 2.0));
    zeilen.push_back(striche + Zufallszeile + striche);
    Liste[Playlist].setzen(std::move(zeilen));
}

// The collection itself is kept sorted by category, then by name.
void Listen::zeige_Wunschliste() {
    std::vector<Long>& nummern = Lieder_Liste(Wunschliste);
    if (nummern.empty()) return Liste[Wunschliste].setzen({Kopfzeile(1)});
    Quicksort<Text, Long> ordnung;
    ordnung.Quicksort_Init(static_cast<Long>(nummern.size()));
    Long i = 0;
    for (const Long nr : nummern) {
        ordnung.Schlüssel(++i) = Zahl_mit_Nullen(modell_.Lieder[nr].Kategorie, 2) + Liedzeile(nr);
        ordnung.Wert(i) = nr;
    }
    ordnung.Quicksort_Start();
    std::vector<Text> zeilen;
    int vorige = -1;
    for (i = 1; i <= static_cast<Long>(nummern.size()); ++i) {
        const Long nr = nummern[static_cast<std::size_t>(i - 1)] = ordnung.Wert(i);
        const int kategorie = modell_.Lieder[nr].Kategorie;
        if (kategorie != vorige) zeilen.push_back(Kopfzeile(kategorie));
        vorige = kategorie;
        zeilen.push_back(Liedzeile(nr));
    }
    Liste[Wunschliste].setzen(std::move(zeilen));
}

void Listen::zeichnen(int liste) { liste == Playlist ? zeige_Playlist() : zeige_Wunschliste(); }

void Listen::neu_ausrichten() {
    for (const int liste : {Playlist, Wunschliste}) {
        const int gewählt = Liste[liste].gewählt(), erste = Liste[liste].erste();
        zeichnen(liste);
        if (gewählt >= 0 && gewählt < Liste[liste].Anzahl()) Liste[liste].wähle(gewählt);
        Liste[liste].erste(erste);
    }
}

void Listen::setzen(int liste, std::vector<Long> nummern) {
    Lieder_Liste(liste) = std::move(nummern);
    zeichnen(liste);
}

void Listen::anhängen(int liste, Long Nr) {
    Lieder_Liste(liste).push_back(Nr);
    zeichnen(liste);
}

void Listen::Lied_entfernen(Long Nr) {
    if (Nr < 1) return;
    for (const int liste : {Playlist, Wunschliste}) {
        if (Lieder(liste).empty()) continue;
        std::erase(Lieder_Liste(liste), Nr);
        zeichnen(liste);
    }
}

int Listen::Wunsch_Position() const {
    const Listenfeld& liste = Liste[Wunschliste];
    const int gewählt = liste.gewählt();
    const auto ist_Kopf = [](const Text& zeile) { return zeile.starts_with(Kopfstriche); };
    if (gewählt < 0 || ist_Kopf(liste.zeile(gewählt))) return 0;
    const auto anfang = liste.zeilen().begin();
    const auto position = gewählt + 1 - std::count_if(anfang, anfang + gewählt + 1, ist_Kopf);
    return position < 1 || position > static_cast<std::ptrdiff_t>(Lieder(Wunschliste).size()) ? 0
                                                                                              : static_cast<int>(position);
}

Long Listen::Lied_aus_Tag(const Text& Tag) {
    const Text marke = Listenmarke;
    if (Tag.size() != marke.size() + 2 || !Tag.starts_with(marke)) return 0;
    const int liste = Tag.back() - '0';
    if (liste < Suchliste || liste > Wunschliste || Liste[liste].gewählt() < 0) return 0;
    const std::vector<Long>& nummern = Lieder(liste);
    std::size_t position = static_cast<std::size_t>(Liste[liste].gewählt()) + 1;
    if (liste == Wunschliste) position = static_cast<std::size_t>(Wunsch_Position());
    if (liste == Playlist && position > nummern.size()) return Zufalls_Nr();
    return position < 1 || position > nummern.size() ? 0 : nummern[position - 1];
}

Long Listen::Zufalls_Nr() {
    const std::vector<Long>& nummern = Lieder(Suchliste);
    if (nummern.empty()) return 0;
    return nummern[static_cast<std::size_t>(Zufall(rechner_, 1, static_cast<Long>(nummern.size()))) - 1];
}

}  // namespace tonkartei
