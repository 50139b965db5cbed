#include "albenverwaltung/album_importieren.hpp"

#include <algorithm>

#include "albenverwaltung/albenarbeit.hpp"
#include "albenverwaltung/album_titel_liste.hpp"
#include "datenbank/modell.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

constexpr const char* Überschrift = "Alben importieren";

}  // namespace

Album_importieren::Album_importieren(Ansicht& ansicht, Modell& modell, Alben& alben, Albenarbeit& arbeit,
                                     Album_Titel_Liste& titel)
    : Fenster(ansicht, "Album_importieren", Überschrift), modell_(modell), alben_(alben), arbeit_(arbeit), titel_(titel) {
    Nr_Liste.unsichtbarer_Helfer = true;
    Nr_Liste.sichtbar(false);
    Liste.tooltip("Die Alben der anderen Datenbank");
    Liste2.tooltip("Diese Alben werden übernommen");
    Titel_anzeigen.tooltip("Die Titel des gewählten Albums");
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    hinzufügen.Klick.verbinden([this] { aufnehmen(Liste.gewählt()); });
    Liste.Doppelklick.verbinden([this] { aufnehmen(Liste.gewählt()); });
    alle_hinzufügen.Klick.verbinden([this] {
        std::vector<Text> nummern;
        for (int n = 1; n <= Liste.Anzahl(); ++n) nummern.push_back(Zahltext(n));
        Nr_Liste.setzen(std::move(nummern));
        Liste2.setzen(Liste.zeilen());
    });
    nicht_hinzufügen.Klick.verbinden([this] {
        const int zeile = Liste2.gewählt();
        if (zeile < 0) return;
        Nr_Liste.entfernen(zeile);
        Liste2.entfernen(zeile);
        if (Liste2.Anzahl() > 0) Liste2.wähle(std::min(zeile, Liste2.Anzahl() - 1));
    });
    Liste_löschen.Klick.verbinden([this] {
        Nr_Liste.leeren();
        Liste2.leeren();
    });
    Titel_anzeigen.Klick.verbinden([this] {
        if (Liste.gewählt() >= 0) titel_.anzeigen(alben_.fremde.Alben[Liste.gewählt() + 1]);
    });
    Ok.Klick.verbinden([this] {
        if (Liste2.Anzahl() > 0) importieren();
    });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

Knoten Album_importieren::anordnung() {
    return Spalte({Zeile({Spalte({Liste_Text, Knoten(Liste).zeichen(34).zeilen(14).dehnen(1, 1)}).dehnen(1, 1),
                          Spalte({Feder(0, 1), hinzufügen, alle_hinzufügen, nicht_hinzufügen, Liste_löschen, Titel_anzeigen,
                                  Feder(0, 1)}),
                          Spalte({Liste2_Text, Knoten(Liste2).zeichen(34).zeilen(14).dehnen(1, 1)}).dehnen(1, 1)})
                       .dehnen(1, 1),
                   Zeile({Feder(), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void Album_importieren::Init() {
    laden();
    std::vector<Text> zeilen;
    for (Long n = 1; n <= alben_.fremde.Anzahl; ++n) zeilen.push_back(Album_Text(alben_.fremde.Alben[n]));
    Liste.setzen(std::move(zeilen));
    zeigen();
    ansicht().fokus(Liste);
}

// The foreign albums need no memory any more.
void Album_importieren::beim_Entladen() {
    alben_.fremde = {};
    geschlossen();
}

void Album_importieren::aufnehmen(int album) {
    if (album < 0) return;
    const auto& nummern = Nr_Liste.zeilen();
    if (std::find(nummern.begin(), nummern.end(), Zahltext(album + 1)) != nummern.end()) return;
    Nr_Liste.hinzufügen(Zahltext(album + 1));
    Liste2.hinzufügen(Liste.zeile(album));
}

bool Album_importieren::vorhanden(const Album& album) const {
    for (Long n = 1; n <= alben_.eigene.Anzahl; ++n)
        if (const Album& eigenes = alben_.eigene.Alben[n];
            eigenes.Titel == album.Titel && eigenes.Interpret == album.Interpret)
            return true;
    return false;
}

// The number of the new album; 0 when there is one of that name, or no room. The links come along as they are, though they
// mean songs of the other collection.
Long Album_importieren::übernehmen(Long Nr) {
    Album& album = alben_.fremde.Alben[Nr];
    if (vorhanden(album)) return 0;
    const Long neu = alben_.Album_neu();
    if (neu > 0) alben_.eigene.Alben[neu] = std::move(album);
    return neu;
}

void Album_importieren::importieren() {
    const int anzahl = Nr_Liste.Anzahl();
    if (!ansicht().fragen(Überschrift,
                          "Wollen sie " + Zahltext(anzahl) + " " + (anzahl == 1 ? "Album" : "Alben") + " importieren?"))
        return;
    std::vector<Long> neue;
    for (const Text& nummer : Nr_Liste.zeilen())
        if (const Long neu = übernehmen(gerundet(Zahlwert(nummer))); neu > 0) neue.push_back(neu);
    if (neue.empty()) {
        ansicht().informieren(Überschrift, "Es wurde kein Album hinzugefügt.");
    } else {
        modell_.Alben_geändert = true;
        const bool eines = neue.size() == 1;
        if (ansicht().fragen(Überschrift, Text("Es wurde") +
                                              (eines ? Text(" 1 Album")
                                                     : "n " + Zahltext(static_cast<long long>(neue.size())) + " Alben") +
                                              " hinzugefügt." + Text(CRCR) + "Soll bei diese" + (eines ? "m" : "n") +
                                              " gleich die Datenbank nach Titeln gescannt werden?"))
            for (const Long nr : neue) arbeit_.Scanne_DB(nr, false);
    }
    entladen();
    übernommen();
}

}  // namespace tonkartei
