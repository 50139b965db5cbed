#include "albenverwaltung/albenarbeit.hpp"

#include <utility>

#include "alben/album_start.hpp"
#include "albenverwaltung/album_abgleich.hpp"
#include "datenbank/modell.hpp"
#include "liste/listenbereich.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "playlist/playlist.hpp"
#include "wiedergabe/abspieler.hpp"

namespace tonkartei {

Albenarbeit::Albenarbeit(Modell& modell, Alben& alben, Fortschritts_Fenster& fortschritt, const Nachbarn& nachbarn)
    : modell_(modell), alben_(alben), fortschritt_(fortschritt), ansicht_(fortschritt.ansicht()), nachbarn_(nachbarn) {}

bool Albenarbeit::Album_löschen(Long Nr) {
    Albenbestand& bestand = alben_.eigene;
    const Album& album = bestand.Alben[Nr];
    if (!ansicht_.fragen("Album löschen", "Wollen sie das Album " + in_Anführungszeichen(album.Titel) + " von " +
                                              in_Anführungszeichen(album.Interpret) + " wirklisch löschen?"))
        return false;
    for (Long n = Nr; n < bestand.Anzahl; ++n) bestand.Alben[n] = std::move(bestand.Alben[n + 1]);
    bestand.Alben[bestand.Anzahl] = {};
    --bestand.Anzahl;
    modell_.Alben_geändert = true;
    return true;
}

bool Albenarbeit::Titel_löschen(Long Nr, int Titel) {
    Album& album = alben_.eigene.Alben[Nr];
    const Album_Lied& titel = album.Lieder[Titel];
    if (!ansicht_.fragen("Titel löschen", "Wollen sie den Titel " + in_Anführungszeichen(titel.Titel) + " von " +
                                              in_Anführungszeichen(titel.Artist) + " wirklich löschen?"))
        return false;
    for (int t = Titel; t < album.Titel_Anzahl; ++t) album.Lieder[t] = std::move(album.Lieder[t + 1]);
    --album.Titel_Anzahl;
    modell_.Alben_geändert = true;
    return true;
}

void Albenarbeit::Titel_tauschen(Long Nr, int a, int b) {
    Album& album = alben_.eigene.Alben[Nr];
    std::swap(album.Lieder[a], album.Lieder[b]);
    modell_.Alben_geändert = true;
}

void Albenarbeit::starten(Long Nr) { nachbarn_.Start.starte_Album(Nr); }

void Albenarbeit::zur_Playlist(Long Nr) {
    nachbarn_.Liste.zeigen_falls_nötig();
    const Album& album = alben_.eigene.Alben[Nr];
    for (int t = 1; t <= album.Titel_Anzahl; ++t)
        if (const Long nr = Lied_von(modell_, album.Lieder[t]); nr > 0) nachbarn_.Liste.add_Lied(nr, true);
}

void Albenarbeit::Lied_starten(const Album_Lied& titel) {
    if (const Long nr = Lied_von(modell_, titel); nr > 0) nachbarn_.Spieler.starte_Lied(nr);
}

void Albenarbeit::Verknüpfungen_löschen(Long Nr) {
    Album& album = alben_.eigene.Alben[Nr];
    for (int t = 1; t <= album.Titel_Anzahl; ++t) {
        album.Lieder[t].in_Datenbank = false;
        album.Lieder[t].Lied_Nr = 0;
    }
    modell_.Alben_geändert = true;
}

void Albenarbeit::Scanne_DB(Long Nr, bool Meldung_zeigen) {
    Album& album = alben_.eigene.Alben[Nr];
    if (album.Titel_Anzahl == 0) return;
    Long gefunden = 0;
    {
        const Fortschritts_Ende ende(fortschritt_);
        fortschritt_.Text_setzen("Datenbank nach Titel scannen...");
        gefunden = Titel_verknüpfen(album, modell_, [&](int t) { fortschritt_.anzeigen(Prozent(t, album.Titel_Anzahl)); });
    }
    modell_.Alben_geändert = true;
    if (!Meldung_zeigen) return;
    ansicht_.informieren("Datenbank nach Titeln scannen",
                         (gefunden == 1 ? Text("Es wurde 1 Lied") : "Es wurden " + Zahltext(gefunden) + " Lieder") +
                             " in der Datenbank gefunden.");
}

void Albenarbeit::Zeiten_übernehmen(Long Nr) {
    Album& album = alben_.eigene.Alben[Nr];
    if (album.Titel_Anzahl == 0) return;
    const bool nur_leere = ansicht_.fragen(
        "Zeit eintragen", "Soll die Zeit nur bei Liedern eingetragen werden, die eine Länge von 00:00 haben?");
    for (int t = 1; t <= album.Titel_Anzahl; ++t) {
        Album_Lied& titel = album.Lieder[t];
        if (nur_leere && Sekunden_von(titel.Zeit) != 0) continue;
        if (const Long nr = Lied_von(modell_, titel); nr > 0) titel.Zeit = modell_.Lieder[nr].Zeit;
    }
    modell_.Alben_geändert = true;
}

Long Albenarbeit::gewähltes_Lied() const {
    const Listenbereich& bereich = nachbarn_.Hauptliste;
    if (!modell_.Datenbank_offen || bereich.Datenbank_Modus.wert() != 0) return 0;
    // A special list may hold numbers of a collection that is no longer open.
    const Long nr = bereich.gewähltes_Lied();
    return nr <= modell_.Anzahl_Lieder ? nr : 0;
}

Long Albenarbeit::gezogenes_Lied(const Element& quelle) const {
    return &quelle == &nachbarn_.Hauptliste.Liste ? gewähltes_Lied() : 0;
}

int Albenarbeit::Lied_anhängen(Long Nr, Long Lied_Nr) {
    const int t = alben_.Titel_neu(Nr);
    if (t == 0) return 0;
    const Lied& lied = modell_.Lieder[Lied_Nr];
    alben_.eigene.Alben[Nr].Lieder[t] = {lied.Artist, lied.Titel, lied.Zeit, true, Lied_Nr};
    modell_.Alben_geändert = true;
    return t;
}

std::vector<Long> Albenarbeit::Lieder_der_Hauptliste() const {
    const Listenbereich& bereich = nachbarn_.Hauptliste;
    std::vector<Long> nummern;
    for (int i = 0; i < bereich.Liste.Anzahl(); ++i)
        if (const Long nr = bereich.Lied_Nr(i); nr >= 1 && nr <= modell_.Anzahl_Lieder) nummern.push_back(nr);
    return nummern;
}

bool Albenarbeit::alle_anhängen(Long Nr) {
    if (Nr < 1) {
        ansicht_.informieren("zu Album hinzufügen",
                             "Bitte wählen sie zuerst ein Album aus, zu dem die Lieder hinzugefügt werden sollen!");
        return false;
    }
    const std::vector<Long> lieder = Lieder_der_Hauptliste();
    const int frei = Album_Titel_maximal - alben_.eigene.Alben[Nr].Titel_Anzahl;
    if (static_cast<int>(lieder.size()) > frei) {
        ansicht_.informieren("zum Album hinzufügen",
                             "Sie wollen zuviele Lieder hinzufügen. In das aktuelle Album " +
                                 (frei == 1 ? Text("kann nur noch maximal ein Lied")
                                            : "können nur noch maximal " + Zahltext(frei) + " Lieder") +
                                 " hinzugefügt werden!");
        return false;
    }
    for (const Long lied : lieder) Lied_anhängen(Nr, lied);
    return true;
}

}  // namespace tonkartei
