#include "albenverwaltung/titeltabelle.hpp"

#include <algorithm>

namespace tonkartei {

Titeltabelle::Zeile::Zeile(Fenster& fenster, int nummer)
    : Lied_Nr(fenster, "Lied_Nr", "", nummer),
      Lied_Artist(fenster, "Lied_Artist", "", nummer),
      Lied_Titel(fenster, "Lied_Titel", "", nummer),
      Lied_Zeit(fenster, "Lied_Zeit", "", nummer) {
    for (Schriftfeld* feld : Felder()) {
        feld->wie_Daten = true;
        feld->eingerahmt = true;
    }
    Lied_Nr.Vorlesename = "Nummer";
    Lied_Artist.Vorlesename = "Artist";
    Lied_Titel.Vorlesename = "Titel";
    Lied_Zeit.Vorlesename = "Zeit";
    Lied_Nr.ausrichtung = Lied_Zeit.ausrichtung = Schriftfeld::Ausrichtung::rechts;
}

Titeltabelle::Titeltabelle(Fenster& fenster)
    : Lieder_Scroll(fenster, "Lieder_Scroll", 0, 0, ohne_Index, Regler::Form::Bildlauf) {
    Lieder_Scroll.Vorlesename = "aktueller Titel";
    Lieder_Scroll.senkrecht = true;
    Lieder_Scroll.Geändert.verbinden([this] {
        Zeilen_füllen();
        gewählt();
    });
    for (int i = 0; i < Titelzeilen_sichtbar; ++i) {
        auto& zeile = Zeilen[static_cast<std::size_t>(i)];
        zeile = std::make_unique<Zeile>(fenster, i + 1);
        for (Schriftfeld* feld : zeile->Felder()) {
            feld->Klick.verbinden([this, i] { Zeile_angeklickt(i); });
            // The first of the two clicks has moved the rows already; where there was none, this one chooses.
            feld->Doppelklick.verbinden([this, i] {
                const bool da = angeklickt_ == i || Zeile_angeklickt(i);
                angeklickt_ = keine;
                if (da && Titel_Nr() > 0) starten();
            });
            feld->Abgelegt.verbinden([this](Element& quelle) { abgelegt(quelle); });
        }
    }
}

// True when there is a title on the row, which is the current one then.
bool Titeltabelle::Zeile_angeklickt(int zeile) {
    const int nummer = Titel_Nr() + zeile;
    const bool da = Titel_Nr() > 0 && nummer <= Lieder_Scroll.max();
    angeklickt_ = da ? zeile : keine;
    if (da) Titel_wählen(nummer);
    return da;
}

void Titeltabelle::zeigen(const Album* album) {
    album_ = album;
    const int anzahl = album == nullptr ? 0 : album->Titel_Anzahl;
    const int vorher = Titel_Nr();
    Lieder_Scroll.bereich(std::min(anzahl, 1), anzahl);
    // A range that moves the value has told of it already.
    if (Titel_Nr() == vorher) {
        Zeilen_füllen();
        gewählt();
    }
}

void Titeltabelle::Zeilen_füllen() {
    for (int i = 0; i < Titelzeilen_sichtbar; ++i) {
        Zeile& zeile = *Zeilen[static_cast<std::size_t>(i)];
        const int nummer = Titel_Nr() + i;
        if (album_ == nullptr || Titel_Nr() < 1 || nummer > album_->Titel_Anzahl) {
            for (Schriftfeld* feld : zeile.Felder()) feld->beschriftung("");
            continue;
        }
        const Album_Lied& titel = album_->Lieder[nummer];
        zeile.Lied_Nr.beschriftung(Zahltext(nummer));
        zeile.Lied_Artist.beschriftung(titel.Artist);
        zeile.Lied_Titel.beschriftung(titel.Titel);
        zeile.Lied_Zeit.beschriftung(Minuten_Sekunden(titel.Zeit));
    }
}

Knoten Titeltabelle::Tabellenknoten() {
    std::vector<Knoten> zellen;
    for (auto& zeile : Zeilen) {
        zellen.push_back(Knoten(zeile->Lied_Nr).zeichen(4));
        zellen.push_back(Knoten(zeile->Lied_Artist).zeichen(18).dehnen(1));
        zellen.push_back(Knoten(zeile->Lied_Titel).zeichen(22).dehnen(1));
        zellen.push_back(Knoten(zeile->Lied_Zeit).zeichen(6));
    }
    return tonkartei::Zeile(
        {Gitter(4, std::move(zellen)).lücke(2 * Twips_je_Pixel).dehnen(1, 0), Knoten(Lieder_Scroll).dehnen(0, 1)});
}

}  // namespace tonkartei
