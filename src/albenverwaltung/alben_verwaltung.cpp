#include "albenverwaltung/alben_verwaltung.hpp"

#include <algorithm>
#include <limits>
#include <optional>

#include "albenverwaltung/albenarbeit.hpp"
#include "albenverwaltung/album_abgleich.hpp"
#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "grundlagen/waehrend.hpp"
#include "lieder/lied_bearbeiten.hpp"
#include "liste/sortierung.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

constexpr int Nr_Stellen = 4;

// What a field tells as a number; none when no number of that kind can hold it.
std::optional<Long> Zahl_aus(const Textfeld& feld) {
    const double wert = Zahlwert(feld.text());
    if (wert < std::numeric_limits<Long>::min() || wert > std::numeric_limits<Long>::max()) return std::nullopt;
    return gerundet(wert);
}

}  // namespace

Alben_Verwaltung::Alben_Verwaltung(Ansicht& ansicht, Modell& modell, Einstellungen& einstellungen, Alben& alben,
                                   Albenarbeit& arbeit)
    : Fenster(ansicht, "Alben_Verwaltung", "Alben-Verwaltung"),
      modell_(modell),
      einstellungen_(einstellungen),
      alben_(alben),
      arbeit_(arbeit) {
    eigenständig = true;
    Nr_Liste.unsichtbarer_Helfer = true;
    Nr_Liste.sichtbar(false);
    Felder_beschreiben();
    Album_verbinden();
    Titel_verbinden();
    Ende.Klick.verbinden([this] { entladen(); });
}

void Alben_Verwaltung::beim_Laden() {
    const auto& tisch = einstellungen_.Schreibtisch;
    if (tisch.Alben_Breite > 0) größe(tisch.Alben_Breite, tisch.Alben_Höhe);
    const Größe schirm = ansicht().Bildschirm();
    const Long x = einstellungen_.Alben_PositionX, y = einstellungen_.Alben_PositionY;
    // A place that the screen no longer has is as good as none.
    if (x >= 0 && y >= 0 && x < schirm.breite && y < schirm.höhe) bewegen(x, y);
}

void Alben_Verwaltung::beim_Entladen() {
    if (zustand() == Fensterzustand::normal) {
        einstellungen_.Alben_PositionX = lage().links;
        einstellungen_.Alben_PositionY = lage().oben;
        if (Größe_gewählt()) {
            einstellungen_.Schreibtisch.Alben_Breite = lage().breite;
            einstellungen_.Schreibtisch.Alben_Höhe = lage().höhe;
        }
    }
    Titel_Tabelle.zeigen(nullptr);
    geschlossen();
}

void Alben_Verwaltung::Init() {
    zeige_Alben_Liste();
    if (Liste.Anzahl() > 0) Liste.wähle(0);
}

void Alben_Verwaltung::zeige_Alben_Liste() {
    const Long vorher = Album_Nr();
    const Albenbestand& bestand = alben_.eigene;
    const Text gesucht = groß(Schnellsuche.text());
    Sortier_Liste sortiert;
    for (Long n = 1; n <= bestand.Anzahl; ++n) {
        const Album& album = bestand.Alben[n];
        if (groß(album.Titel + album.Interpret).find(gesucht) != Text::npos)
            sortiert.hinzufügen(album.Titel, album.Interpret, n, Nr_Stellen);
    }
    std::vector<Text> zeilen, nummern;
    for (const long long n : sortiert.sortierte_Nummern()) {
        zeilen.push_back(Album_Text(bestand.Alben[n]));
        nummern.push_back(Zahltext(n));
    }
    Nr_Liste.setzen(std::move(nummern));
    Liste.setzen(std::move(zeilen));
    Liste_Anzahl.beschriftung(Zahltext(Liste.Anzahl()));
    Album_wählen(vorher);
}

void Alben_Verwaltung::Album_wählen(Long Nr) {
    const auto& nummern = Nr_Liste.zeilen();
    const auto zeile = std::find(nummern.begin(), nummern.end(), Zahltext(Nr));
    if (zeile == nummern.end())
        Album_zeigen();
    else
        Liste.wähle(static_cast<int>(zeile - nummern.begin()));
}

Long Alben_Verwaltung::Album_Nr() const {
    const int zeile = Liste.gewählt();
    if (!geladen() || zeile < 0 || zeile >= Nr_Liste.Anzahl()) return 0;
    const Long nr = gerundet(Zahlwert(Nr_Liste.zeile(zeile)));
    return nr <= alben_.eigene.Anzahl ? nr : 0;
}

Album* Alben_Verwaltung::gewähltes_Album() {
    const Long nr = Album_Nr();
    return nr == 0 ? nullptr : &alben_.eigene.Alben[nr];
}

Album_Lied* Alben_Verwaltung::aktueller_Titel() {
    Album* album = gewähltes_Album();
    const int titel = Titel_Tabelle.Titel_Nr();
    return album == nullptr || titel < 1 || titel > album->Titel_Anzahl ? nullptr : &album->Lieder[titel];
}

void Alben_Verwaltung::Album_zeigen() {
    const Album* album = gewähltes_Album();
    {
        const Während füllt(füllt_);
        Interpret.text(album == nullptr ? Text{} : album->Interpret);
        Album_Titel.text(album == nullptr ? Text{} : album->Titel);
        Jahr.text(album == nullptr ? Text{} : Zahltext(album->Jahr));
        Maxi_CD.wert(album != nullptr && album->Maxi_CD);
    }
    Titel_Tabelle.zeigen(album);
    if (album != nullptr && album->Titel_Anzahl > 0) Titel_Tabelle.Titel_wählen(1);
    Summen_zeigen();
}

void Alben_Verwaltung::aktualisieren() {
    if (!geladen()) return;
    Titel_Tabelle.zeigen(gewähltes_Album());
    Summen_zeigen();
}

void Alben_Verwaltung::Titel_zeigen() {
    const Album_Lied* titel = aktueller_Titel();
    const Während füllt(füllt_);
    Artist.text(titel == nullptr ? Text{} : titel->Artist);
    Titel.text(titel == nullptr ? Text{} : titel->Titel);
    Zeit.text(titel == nullptr ? Text{} : Minuten_Sekunden(titel->Zeit));
    in_Datenbank.wert(titel != nullptr && titel->in_Datenbank);
    Datenbank_Nr.text(titel == nullptr ? Text{} : Zahltext(titel->Lied_Nr));
}

// How many titles, and how long they are together, as a record sleeve tells it: minutes and seconds.
void Alben_Verwaltung::Summen_zeigen() {
    const Album* album = gewähltes_Album();
    long long sekunden = 0;
    for (int t = 1; album != nullptr && t <= album->Titel_Anzahl; ++t) sekunden += Sekunden_von(album->Lieder[t].Zeit);
    Anzahl_Titel.beschriftung(album == nullptr ? Text{} : Zahltext(album->Titel_Anzahl));
    Album_Zeit.beschriftung(album == nullptr ? Text{} : Zahltext(sekunden / 60) + ":" + Zahl_mit_Nullen(sekunden % 60, 2));
}

void Alben_Verwaltung::Album_verbinden() {
    Schnellsuche.Geändert.verbinden([this] { zeige_Alben_Liste(); });
    Liste.Klick.verbinden([this] { Album_zeigen(); });
    // Each field writes through; without an album it is emptied again.
    const auto durchschreiben = [this](Textfeld& feld, auto setzen) {
        feld.Geändert.verbinden([this, &feld, setzen] {
            if (füllt_) return;
            Album* album = gewähltes_Album();
            if (album == nullptr) {
                const Während füllt(füllt_);
                feld.text("");
                return;
            }
            setzen(*album);
            modell_.Alben_geändert = true;
            Liste.zeile(Liste.gewählt(), Album_Text(*album));
        });
    };
    durchschreiben(Interpret, [this](Album& album) { album.Interpret = als_Name(Interpret.text()); });
    durchschreiben(Album_Titel, [this](Album& album) { album.Titel = als_Name(Album_Titel.text()); });
    durchschreiben(Jahr, [this](Album& album) { album.Jahr = Zahl_aus(Jahr).value_or(album.Jahr); });
    Maxi_CD.Klick.verbinden([this] {
        if (füllt_) return;
        Album* album = gewähltes_Album();
        if (album != nullptr) {
            album->Maxi_CD = Maxi_CD.wert();
            modell_.Alben_geändert = true;
        } else {
            const Während füllt(füllt_);
            Maxi_CD.wert(false);
        }
    });

    Album_neu.Klick.verbinden([this] {
        const Long nr = alben_.Album_neu();
        if (nr == 0) return;
        modell_.Alben_geändert = true;
        zeige_Alben_Liste();
        Album_wählen(nr);
    });
    Album_löschen.Klick.verbinden([this] {
        if (Album_Nr() == 0 || !arbeit_.Album_löschen(Album_Nr())) return;
        // The numbers behind it mean other albums now.
        Liste.wähle(-1);
        zeige_Alben_Liste();
    });
    Album_import.Klick.verbinden([this] { Import_gewünscht(); });
    Play_Album.Klick.verbinden([this] { arbeit_.starten(Album_Nr()); });
    add_to_Playlist.Klick.verbinden([this] {
        if (Album_Nr() > 0) arbeit_.zur_Playlist(Album_Nr());
    });
}

void Alben_Verwaltung::Titel_verbinden() {
    Titel_Tabelle.gewählt.verbinden([this] { Titel_zeigen(); });
    Titel_Tabelle.starten.verbinden([this] {
        if (const Album_Lied* titel = aktueller_Titel()) arbeit_.Lied_starten(*titel);
    });
    Titel_Tabelle.abgelegt.verbinden([this](Element& quelle) {
        const Long lied = arbeit_.gezogenes_Lied(quelle);
        if (lied > 0 && Album_Nr() > 0) neue_Titel_zeigen(arbeit_.Lied_anhängen(Album_Nr(), lied));
    });
    Lied_Position.Geändert.verbinden([this] { verschieben(Lied_Position.wert()); });

    for (Textfeld* feld : {&Artist, &Titel, &Datenbank_Nr}) feld->Geändert.verbinden([this] { Titel_geändert(); });
    in_Datenbank.Klick.verbinden([this] { Titel_geändert(); });
    Zeit.Geändert.verbinden([this] { Zeit_geändert(); });

    Titel_neu.Klick.verbinden([this] { neuer_Titel(); });
    Titel_löschen.Klick.verbinden([this] {
        if (aktueller_Titel() != nullptr && arbeit_.Titel_löschen(Album_Nr(), Titel_Tabelle.Titel_Nr())) aktualisieren();
    });
    const auto am_Album = [this](Knopf& knopf, auto arbeit) {
        knopf.Klick.verbinden([this, arbeit] {
            const Long nr = Album_Nr();
            if (nr == 0) return;
            arbeit(nr);
            aktualisieren();
        });
    };
    am_Album(Datenbank_Titel_Null, [this](Long nr) { arbeit_.Verknüpfungen_löschen(nr); });
    am_Album(Scan_DB, [this](Long nr) { arbeit_.Scanne_DB(nr, true); });
    am_Album(Scan_Zeit, [this](Long nr) { arbeit_.Zeiten_übernehmen(nr); });
    aktuelles_Lied.Klick.verbinden([this] {
        if (aktueller_Titel() == nullptr) {
            Datenbank_Nr.text("");
        } else if (const Long nr = arbeit_.gewähltes_Lied(); nr > 0) {
            Datenbank_Nr.text(Zahltext(nr));
            in_Datenbank.wert(true);
        }
    });
}

// One of the current title's fields but the time: all of them are taken.
void Alben_Verwaltung::Titel_geändert() {
    if (füllt_) return;
    Album_Lied* titel = aktueller_Titel();
    if (titel == nullptr) {
        Titel_zeigen();
        return;
    }
    titel->Artist = als_Name(Artist.text());
    titel->Titel = als_Name(Titel.text());
    titel->in_Datenbank = in_Datenbank.wert();
    titel->Lied_Nr = Zahl_aus(Datenbank_Nr).value_or(titel->Lied_Nr);
    modell_.Alben_geändert = true;
    Titel_Tabelle.Zeilen_nachführen();
}

void Alben_Verwaltung::Zeit_geändert() {
    if (füllt_) return;
    Album_Lied* titel = aktueller_Titel();
    if (titel == nullptr) {
        Titel_zeigen();
        return;
    }
    titel->Zeit = Zeit_aus_Eingabe(Zeit.text());
    modell_.Alben_geändert = true;
    Titel_Tabelle.Zeilen_nachführen();
    Summen_zeigen();
}

void Alben_Verwaltung::verschieben(int stufe) {
    if (stufe == Dreistufer::Ruhe) return;
    const int titel = Titel_Tabelle.Titel_Nr();
    const int ziel = stufe == Dreistufer::oben_Stufe ? titel - 1 : titel + 1;
    const Album* album = gewähltes_Album();
    if (aktueller_Titel() != nullptr && ziel >= 1 && ziel <= album->Titel_Anzahl) {
        arbeit_.Titel_tauschen(Album_Nr(), titel, ziel);
        Titel_Tabelle.Titel_wählen(ziel);
    }
    Lied_Position.wert(Dreistufer::Ruhe);
}

void Alben_Verwaltung::neuer_Titel() {
    if (Album_Nr() == 0) return;
    const int titel = alben_.Titel_neu(Album_Nr());
    if (titel == 0) return;
    modell_.Alben_geändert = true;
    neue_Titel_zeigen(titel);
    ansicht().fokus(Titel);
}

// The titles have become more: the range follows, and that one is the current title; 0 leaves all as it is.
void Alben_Verwaltung::neue_Titel_zeigen(int titel) {
    if (titel == 0) return;
    aktualisieren();
    Titel_Tabelle.Titel_wählen(titel);
}

void Alben_Verwaltung::alle_aus_Datenbank_hinzufügen() {
    if (arbeit_.alle_anhängen(Album_Nr()) && gewähltes_Album()->Titel_Anzahl > 0) neue_Titel_zeigen(1);
}

}  // namespace tonkartei
