#include "programm/lied_befehle.hpp"

#include "programm/teile.hpp"

namespace tonkartei {

void Lied_Befehle::verbinden() {
    auto& fenster = t_.fenster;
    fenster.Wiedergabe.Lied_kopieren.Klick.verbinden([this] { Lied_kopieren(); });
    fenster.Wiedergabe.Lied_löschen.Klick.verbinden([this] { Lied_löschen(); });
    fenster.Lieder.Titel_ändern.verbinden([this](Long nr) {
        if (t_.lied_bearbeiten.Titel_ändern(nr)) zeigen(nr);
    });
    fenster.Lieder.Artist_ändern.verbinden([this](Long nr) {
        if (t_.lied_bearbeiten.Artist_ändern(nr)) zeigen(nr);
    });
    fenster.Lieder.Anzahl_ändern.verbinden([this](Long nr) { Anzahl_ändern(nr); });
}

Long Lied_Befehle::Lied() const {
    if (!t_.modell.Datenbank_offen) return 0;
    const auto& bereich = t_.fenster.Lieder;
    const Long gewählt = bereich.gewähltes_Lied();
    const Long nr = gewählt > 0 ? gewählt : bereich.angezeigtes_Lied();
    // A special list may hold numbers of a collection that is no longer open.
    return nr <= t_.modell.Anzahl_Lieder ? nr : 0;
}

void Lied_Befehle::neu_aufbauen() {
    t_.fenster.Lieder.aktualisiere_Liste();
    t_.playlist_anschluss.aktualisieren();
    t_.fenster.Lieder.Schnellsuche_fokussieren();
}

void Lied_Befehle::zeigen(Long Nr) {
    neu_aufbauen();
    t_.fenster.Lieder.zeige_Lied(Nr);
}

void Lied_Befehle::Lied_kopieren() {
    if (const Long nr = Lied(); nr > 0) t_.lied_kopieren.ausführen(nr);
}

void Lied_Befehle::Lied_löschen() {
    const Long nr = Lied();
    if (nr < 1 || !t_.lieder_entfernen.Lied_löschen(nr)) return;
    auto& liste = t_.fenster.Lieder.Liste;
    if (liste.Anzahl() > 0) liste.wähle(0);
    neu_aufbauen();
}

void Lied_Befehle::Lied_tauschen() {
    const Long nr = Lied();
    if (nr > 0 && t_.lied_austauschen.Lied_tauschen(nr)) neu_aufbauen();
}

void Lied_Befehle::aktuellen_Namen_einlesen() {
    const Long nr = Lied();
    if (nr < 1) return;
    t_.einlesen.einlesen(nr);
    zeigen(nr);
}

// The pick list of the main window changes it, and asks.
void Lied_Befehle::Menü_Lied_Kategorie() {
    const Long nr = Lied();
    if (nr < 1) return;
    t_.fenster.Lieder.zeige_Lied(nr);
    t_.ansicht.fokus(t_.fenster.Kategorien.Lied_Kategorie);
}

void Lied_Befehle::Menü_Lied_Anzahl() {
    if (const Long nr = Lied(); nr > 0) Anzahl_ändern(nr);
}

void Lied_Befehle::Anzahl_ändern(Long Nr) {
    if (t_.lied_anzahl.ändern(Nr)) zeigen(Nr);
}

void Lied_Befehle::Menü_Lied_Info() {
    if (const Long nr = Lied(); nr > 0) t_.lied_bearbeiten.Info_zeigen(nr);
}

void Lied_Befehle::Artist_Titel_Clipboard() {
    const Long nr = Lied();
    if (nr < 1) return;
    const auto& lied = t_.modell.Lieder[nr];
    t_.ansicht.Zwischenablage_setzen(lied.Artist + " - " + lied.Titel);
}

void Lied_Befehle::Lieder_kopieren() { t_.lied_kopieren.Lieder_kopieren(t_.fenster.Lieder.Lieder_in_Liste()); }

void Lied_Befehle::alle_Lieder_löschen() {
    if (t_.lieder_entfernen.alle_Lieder_löschen(t_.fenster.Lieder.Lieder_in_Liste())) neu_aufbauen();
}

void Lied_Befehle::Lieder_Kategorie_ändern() {
    const std::vector<Long> nummern = t_.fenster.Lieder.Lieder_in_Liste();
    if (nummern.empty()) return;
    auto& meldung = t_.modell.Meldung;
    if (nummern.size() > 1) {
        meldung = "Wollen sie wirklich bei allen " + Zahltext(static_cast<long long>(nummern.size())) +
                  " Liedern in der Liste die Kategorie ändern?";
        if (!t_.ansicht.fragen("Kategorie ändern", meldung)) return;
    }
    const bool gleiche = t_.ansicht.fragen("Kategorie ändern", "Sollen alle Lieder die gleiche Kategorie bekommen?");
    // Events run while the dialog waits: another command must not change the numbers meanwhile.
    struct Sperre {
        Fenster& fenster;
        explicit Sperre(Fenster& f) : fenster(f) { fenster.aktiv(false); }
        ~Sperre() { fenster.aktiv(true); }
        Sperre(const Sperre&) = delete;
        Sperre& operator=(const Sperre&) = delete;
    };
    {
        const Sperre sperre(t_.fenster);
        Byte kategorie = gleiche ? t_.kategorie_wahl.wählen("alle Lieder in der Liste", {}, {}) : Byte{0};
        for (const Long nr : nummern) {
            auto& lied = t_.modell.Lieder[nr];
            if (!gleiche) kategorie = t_.kategorie_wahl.wählen(lied.Titel, lied.Artist, t_.modell.Lied_Pfad(nr));
            lied.Kategorie = kategorie;
        }
    }
    neu_aufbauen();
}

void Lied_Befehle::Lieder_Anzahl() {
    if (t_.lied_anzahl.alle_auf_Null(t_.fenster.Lieder.Lieder_in_Liste())) neu_aufbauen();
}

void Lied_Befehle::alle_Anzahl_ändern() {
    if (t_.lied_anzahl.alle_ändern(t_.fenster.Lieder.Lieder_in_Liste())) neu_aufbauen();
}

void Lied_Befehle::Lücken_füllen() {
    if (t_.modell.Datenbank_offen && t_.lücken.Lücken_füllen()) neu_aufbauen();
}

}  // namespace tonkartei
