#include "kategorien/kategorie_wahl.hpp"

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Kategorie_Wahl::Kategorie_Wahl(Ansicht& ansicht, const Modell& modell)
    : Fenster(ansicht, "Kategorie_Wahl", "Kategorie"), modell_(modell) {
    Titel.wie_Daten = true;
    Titel.fett(true);
    Artist.wie_Daten = true;
    abspielen.tooltip("spielt das Lied mit WinAmp ab");
    Kategorie_Edit.tooltip("öffnet das Fenster zum Bearbeiten der Kategorien");
    Liste.tooltip("Wählen sie die Kategorie des Liedes");
    Liste.Klick.verbinden([this] { gewählt_ = true; });
    abspielen.Klick.verbinden([this] {
        if (Datei_abspielen) Datei_abspielen(datei_);
    });
    Kategorie_Edit.Klick.verbinden([this] {
        if (Kategorien_bearbeiten) Kategorien_bearbeiten();
    });
}

Knoten Kategorie_Wahl::anordnung() {
    return Spalte({Knoten(Titel).zeichen(40), Knoten(Artist).zeichen(40), Knoten(Liste).zeilen(12).dehnen(1, 1),
                   Zeile({abspielen, Feder(), Kategorie_Edit})})
        .rand(180);
}

void Kategorie_Wahl::Kategorien_füllen() {
    std::vector<Text> namen;
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) namen.push_back(modell_.Kategorien[k]);
    Liste.setzen(std::move(namen));
}

Byte Kategorie_Wahl::wählen(const Text& titel, const Text& artist, const Text& Datei) {
    laden();
    datei_ = Datei;
    gewählt_ = false;
    Titel.beschriftung(und_verdoppelt(titel));
    Artist.beschriftung(und_verdoppelt(artist));
    abspielen.aktiv(!Datei.empty());
    Kategorie_Edit.aktiv(static_cast<bool>(Kategorien_bearbeiten));
    Kategorien_füllen();
    zeigen();
    ansicht().fokus(Liste);
    ansicht().warten_bis(*this, [this] { return gewählt_ || !geladen(); });
    const int zeile = Liste.gewählt();
    verstecken();
    // Only an end from outside leaves the dialog without a choice.
    return als_Byte(zeile < 0 ? 1 : zeile + 1);
}

bool Kategorie_Wahl::beim_Schließen(Schließgrund grund) { return grund != Schließgrund::Hand; }

}  // namespace tonkartei
