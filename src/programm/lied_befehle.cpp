#include "programm/lied_befehle.hpp"

#include "datenbank/haus.hpp"
#include "kategorien/kategorie_wahl.hpp"
#include "lieder/liederraum.hpp"
#include "programm/tonkartei.hpp"

namespace tonkartei {

Long Lied_Befehle::Lied() const { return fenster_.Lieder.gemeintes_Lied(); }

void Lied_Befehle::neu_aufbauen() {
    fenster_.Lieder.aktualisiere_Liste();
    geändert();
    fenster_.Lieder.Schnellsuche_fokussieren();
}

void Lied_Befehle::zeigen(Long Nr) {
    neu_aufbauen();
    fenster_.Lieder.zeige_Lied(Nr);
}

void Lied_Befehle::Lied_kopieren() {
    if (const Long nr = Lied(); nr > 0) lieder_.kopieren.ausführen(nr);
}

void Lied_Befehle::Lied_löschen() {
    const Long nr = Lied();
    if (nr < 1 || !lieder_.entfernen.Lied_löschen(nr)) return;
    auto& liste = fenster_.Lieder.Liste;
    if (liste.Anzahl() > 0) liste.wähle(0);
    neu_aufbauen();
}

void Lied_Befehle::Lied_tauschen() {
    const Long nr = Lied();
    if (nr > 0 && lieder_.austauschen.Lied_tauschen(nr)) neu_aufbauen();
}

void Lied_Befehle::aktuellen_Namen_einlesen() {
    const Long nr = Lied();
    if (nr < 1) return;
    lieder_.einlesen.einlesen(nr);
    zeigen(nr);
}

// The pick list of the main window changes it, and asks.
void Lied_Befehle::Menü_Lied_Kategorie() {
    const Long nr = Lied();
    if (nr < 1) return;
    fenster_.Lieder.zeige_Lied(nr);
    haus_.ansicht.fokus(fenster_.Kategorien.Lied_Kategorie);
}

void Lied_Befehle::Menü_Lied_Anzahl() {
    if (const Long nr = Lied(); nr > 0) Anzahl_ändern(nr);
}

void Lied_Befehle::Anzahl_ändern(Long Nr) {
    if (lieder_.anzahl.ändern(Nr)) zeigen(Nr);
}

void Lied_Befehle::Titel_ändern(Long Nr) {
    if (lieder_.bearbeiten.Titel_ändern(Nr)) zeigen(Nr);
}

void Lied_Befehle::Artist_ändern(Long Nr) {
    if (lieder_.bearbeiten.Artist_ändern(Nr)) zeigen(Nr);
}

void Lied_Befehle::Menü_Lied_Info() {
    if (const Long nr = Lied(); nr > 0) lieder_.bearbeiten.Info_zeigen(nr);
}

void Lied_Befehle::Artist_Titel_Clipboard() {
    const Long nr = Lied();
    if (nr < 1) return;
    const auto& lied = haus_.modell.Lieder[nr];
    haus_.ansicht.Zwischenablage_setzen(lied.Artist + " - " + lied.Titel);
}

void Lied_Befehle::Lieder_kopieren() { lieder_.kopieren.Lieder_kopieren(fenster_.Lieder.Lieder_in_Liste()); }

void Lied_Befehle::alle_Lieder_löschen() {
    if (lieder_.entfernen.alle_Lieder_löschen(fenster_.Lieder.Lieder_in_Liste())) neu_aufbauen();
}

void Lied_Befehle::Lieder_Kategorie_ändern() {
    const std::vector<Long> nummern = fenster_.Lieder.Lieder_in_Liste();
    if (nummern.empty()) return;
    if (nummern.size() > 1 &&
        !haus_.ansicht.fragen("Kategorie ändern", "Wollen sie wirklich bei allen " +
                                                      Zahltext(static_cast<long long>(nummern.size())) +
                                                      " Liedern in der Liste die Kategorie ändern?"))
        return;
    const bool gleiche = haus_.ansicht.fragen("Kategorie ändern", "Sollen alle Lieder die gleiche Kategorie bekommen?");
    // Events run while the dialog waits: another command must not change the numbers meanwhile.
    struct Sperre {
        Fenster& fenster;
        explicit Sperre(Fenster& f) : fenster(f) { fenster.aktiv(false); }
        ~Sperre() { fenster.aktiv(true); }
        Sperre(const Sperre&) = delete;
        Sperre& operator=(const Sperre&) = delete;
    };
    {
        const Sperre sperre(fenster_);
        Byte kategorie = gleiche ? wahl_.wählen("alle Lieder in der Liste", {}, {}) : Byte{0};
        for (const Long nr : nummern) {
            auto& lied = haus_.modell.Lieder[nr];
            if (!gleiche) kategorie = wahl_.wählen(lied.Titel, lied.Artist, haus_.modell.Lied_Pfad(nr));
            lied.Kategorie = kategorie;
        }
    }
    neu_aufbauen();
}

void Lied_Befehle::Lieder_Anzahl() {
    if (lieder_.anzahl.alle_auf_Null(fenster_.Lieder.Lieder_in_Liste())) neu_aufbauen();
}

void Lied_Befehle::alle_Anzahl_ändern() {
    if (lieder_.anzahl.alle_ändern(fenster_.Lieder.Lieder_in_Liste())) neu_aufbauen();
}

void Lied_Befehle::Lücken_füllen() {
    if (haus_.modell.Datenbank_offen && lieder_.lücken.Lücken_füllen()) neu_aufbauen();
}

}  // namespace tonkartei
