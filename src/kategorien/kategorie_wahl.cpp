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
    Liste.Klick.verbinden([this] {
        if (!fragen_.empty()) fragen_.back()->zeile = Liste.gewählt();
    });
    abspielen.Klick.verbinden([this] {
        if (Datei_abspielen && !fragen_.empty()) Datei_abspielen(fragen_.back()->datei);
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

void Kategorie_Wahl::stellen(const Frage& frage) {
    Titel.beschriftung(und_verdoppelt(frage.titel));
    Artist.beschriftung(und_verdoppelt(frage.artist));
    abspielen.aktiv(!frage.datei.empty());
    Kategorie_Edit.aktiv(static_cast<bool>(Kategorien_bearbeiten));
    Kategorien_füllen();
}

Byte Kategorie_Wahl::wählen(const Text& titel, const Text& artist, const Text& Datei) {
    Frage frage{titel, artist, Datei};
    struct Platz {
        std::vector<Frage*>& fragen;
        Platz(std::vector<Frage*>& f, Frage& neue) : fragen(f) { fragen.push_back(&neue); }
        ~Platz() { fragen.pop_back(); }
    };
    const bool war_aktiv = aktiv();
    {
        const Platz platz(fragen_, frage);
        laden();
        aktiv(true);
        stellen(frage);
        zeigen();
        ansicht().fokus(Liste);
        ansicht().warten_bis(*this, [&] { return frage.zeile >= 0 || !geladen(); });
    }
    if (fragen_.empty()) {
        verstecken();
    } else {
        // Back to the question before, which may be waiting for the editor.
        stellen(*fragen_.back());
        aktiv(war_aktiv);
    }
    // Only an end from outside leaves the dialog without a choice.
    return als_Byte(frage.zeile < 0 ? 1 : frage.zeile + 1);
}

bool Kategorie_Wahl::beim_Schließen(Schließgrund grund) { return grund != Schließgrund::Hand; }

}  // namespace tonkartei
