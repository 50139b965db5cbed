#include "kategorien/kategorie_wahl.hpp"

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Kategorie_Wahl::Kategorie_Wahl(Ansicht& ansicht, const Modell& modell)
    : Wartedialog(ansicht, "Kategorie_Wahl", "Kategorie", Zweitfrage::vorziehen), modell_(modell) {
    Titel.wie_Daten = true;
    Titel.fett(true);
    Artist.wie_Daten = true;
    abspielen.tooltip("spielt das Lied mit WinAmp ab");
    Kategorie_Edit.tooltip("öffnet das Fenster zum Bearbeiten der Kategorien");
    Liste.Vorlesename = "Kategorie des Liedes";
    Liste.tooltip("Wählen sie die Kategorie des Liedes");
    Liste.wählt_erst_auf_Return = true;
    Liste.Klick.verbinden([this] { antworten(als_Byte(Liste.gewählt() + 1)); });
    abspielen.Klick.verbinden([this] {
        if (Datei_abspielen && wartet()) Datei_abspielen(datei_);
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
    const auto stellen = [&] {
        Titel.beschriftung(und_verdoppelt(titel));
        Artist.beschriftung(und_verdoppelt(artist));
        datei_ = Datei;
        abspielen.aktiv(!Datei.empty());
        Kategorie_Edit.aktiv(static_cast<bool>(Kategorien_bearbeiten));
        Kategorien_füllen();
    };
    // Only an end from outside leaves the dialog without a choice.
    return fragen(stellen, Liste).value_or(Byte{1});
}

bool Kategorie_Wahl::beim_Schließen(Schließgrund grund) { return grund != Schließgrund::Hand; }

}  // namespace tonkartei
