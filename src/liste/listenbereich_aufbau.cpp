// What the list shows, and its totals.
#include <algorithm>
#include <utility>

#include "alben/alben.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "liste/alben_liste.hpp"
#include "liste/listenbereich.hpp"

namespace tonkartei {

void Listenbereich::aktualisiere_Liste() {
    if (Datenbank_Modus.wert() == 0)
        erstelle_Lieder_Liste();
    else
        erstelle_Alben_Liste();
}

void Listenbereich::erstelle_Lieder_Liste() {
    const Long gemerkt = Liste.Anzahl() > 0 && Liste.gewählt() >= 0 ? Lied_Nr(Liste.gewählt()) : 0;
    const auto nummern =
        ordnung_.gefilterte_Lieder(modell_, sortierung_, Schnellsuche.text(), [this](int k) { return zeigt_Kategorie(k); });
    Nr_Liste_setzen(nummern);
    if (!nummern.empty()) {
        erstelle_Liste_von_Nr_Liste();
        const auto fund = gemerkt > 0 ? std::find(nummern.begin(), nummern.end(), gemerkt) : nummern.end();
        if (fund != nummern.end()) {
            // The last line first: the song's line then comes to the top of what is visible.
            Liste.wähle(Liste.Anzahl() - 1);
            Liste.wähle(static_cast<int>(fund - nummern.begin()));
        }
    } else {
        Liste.leeren();
        Liste.leertext(modell_.Anzahl_Lieder < 1 ? "Noch keine Lieder. Über „Lieder / hinzufügen...“ kommen welche herein."
                       : Schnellsuche.text().empty() ? "In den gewählten Kategorien ist kein Lied."
                                                     : "Kein Lied gefunden. Escape zeigt wieder alle.");
        Liste_Anzahl.beschriftung("0");
        Liste_Größe.beschriftung("0");
    }
    Einzelheiten_leeren();
}

void Listenbereich::Nr_Liste_setzen(const std::vector<long long>& nummern) {
    std::vector<Text> zeilen;
    zeilen.reserve(nummern.size());
    for (const long long nr : nummern) zeilen.push_back(Zahltext(nr));
    Nr_Liste.setzen(std::move(zeilen));
}

void Listenbereich::erstelle_Liste_von_Nr_Liste() {
    Liste.sichtbar(einstellungen_.bei_Listensuche_sichtbar);
    Listensumme summe;
    std::vector<Text> zeilen;
    zeilen.reserve(Nr_Liste.zeilen().size());
    for (const Text& nr : Nr_Liste.zeilen()) {
        const Lied& lied = std::as_const(modell_).Lieder[Nummer_von(nr)];
        zeilen.push_back(Listenzeile(lied, sortierung_));
        summe.dazu(lied);
    }
    Liste.setzen(std::move(zeilen));
    Summe_zeigen(Liste.Anzahl(), summe);
    Liste.sichtbar(true);
}

void Listenbereich::Summe_zeigen(int anzahl, const Listensumme& summe) {
    Liste_Anzahl.beschriftung(Zahltext(anzahl));
    Liste_Größe.beschriftung(Zahltext(summe.KByte / 1024));
    Liste_Dauer.beschriftung(Dauer_Text(static_cast<double>(summe.Sekunden)));
}

// All albums, whatever the search holds. None of them is chosen, so there are no titles and no totals.
void Listenbereich::erstelle_Alben_Liste() {
    Liste2.hinausfahren();
    Liste2.leeren();
    Liste.leertext("");
    const auto nummern = modell_.Alben_geladen ? sortierte_Alben(alben_) : std::vector<long long>{};
    Nr_Liste_setzen(nummern);
    std::vector<Text> zeilen;
    zeilen.reserve(nummern.size());
    for (const long long nr : nummern) zeilen.push_back(Album_Zeile(alben_.Alben[nr]));
    Liste.setzen(std::move(zeilen));
    Liste_Anzahl.beschriftung("---");
    Liste_Größe.beschriftung("");
    Liste_Dauer.beschriftung("");
    // The song whose details stand there may be one of a collection that is no longer open.
    Einzelheiten_leeren();
}

void Listenbereich::zeige_Album(Long Nr) {
    const Album& album = alben_.Alben[Nr];
    Liste2.setzen(Titelzeilen(album));
    Listensumme summe;
    for (int t = 1; t <= album.Titel_Anzahl; ++t)
        if (const Long lied = Lied_von(modell_, album.Lieder[t]); lied > 0) summe.dazu(modell_.Lieder[lied]);
    Summe_zeigen(Liste2.Anzahl(), summe);
    Liste2.hineinfahren();
}

// After a rebuild no details are shown, even where the choice was restored, until the next click. The song's time stays.
void Listenbereich::Einzelheiten_leeren() {
    angezeigtes_Lied_ = 0;
    for (Schriftfeld* feld : {&Titel, &Artist, &Anzahl, &Lied_Größe}) feld->beschriftung("");
    Reset_Anzahl.aktiv(false);
    kategorien_.Lied_Kategorie.aktiv(false);
    kategorien_.Farben_zurücksetzen();
}

}  // namespace tonkartei
