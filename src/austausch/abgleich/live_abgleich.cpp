#include "austausch/abgleich/live_abgleich.hpp"

#include "austausch/abgleich/abgleich_uebernahme.hpp"
#include "austausch/abgleich/ignorieren_liste.hpp"
#include "austausch/abgleich/la_ignorieren.hpp"
#include "kategorien/kategorie_bearbeiten.hpp"
#include "lieder/lied_austauschen.hpp"
#include "liste/listenbereich.hpp"
#include "mp3/mp3_taghead.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenstersperre.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "wiedergabe/winamp/winamp_starter.hpp"

namespace tonkartei {

Live_abgleich::Live_abgleich(const Modell& modell, Abgleich_Übernahme& übernahme, LA_Ignorieren& ignorierte,
                             Kategorie_bearbeiten& editor, const Abgleichswerkzeug& werkzeug)
    : Vergleichsfenster(ignorierte.ansicht(), "Live_abgleich", "Live abgleich mit Datenbank"),
      modell_(modell),
      übernahme_(übernahme),
      ignorierte_(ignorierte),
      editor_(editor),
      werkzeug_(werkzeug) {
    Abbruchknopf = &Ok;
    KatListe.Vorlesename = "Kategorien der anderen Datenbank";
    KatListe.tooltip("Welche Kategorie die Lieder in dieser Datenbank bekommen");
    neue_Kategorie.tooltip("Die neue Kategorie der gewählten Zeile");
    Kategorie_Edit.tooltip("Die Kategorien dieser Datenbank ändern");
    hinzufügen.tooltip("Das gewählte Lied in diese Datenbank kopieren");
    alle_hinzufügen.tooltip("Alle Lieder der gezeigten Liste in diese Datenbank kopieren");
    austauschen.tooltip("Das im Hauptfenster gewählte Lied durch dieses ersetzen");
    ignorieren.tooltip("Dieses Lied nie mehr anbieten");
    zeige_ignorieren_Liste.tooltip("Die Lieder, die nicht mehr angeboten werden");
    löschen.tooltip("Das Lied aus dieser Liste nehmen");
    anhören.tooltip("Das gewählte Lied mit WinAmp abspielen");
    Ok.tooltip("Den Abgleich beenden");
    verbinden();
}

void Live_abgleich::verbinden() {
    hinzufügen.Klick.verbinden([this] { dieses_hinzufügen(); });
    alle_hinzufügen.Klick.verbinden([this] { alle_gezeigten_hinzufügen(); });
    austauschen.Klick.verbinden([this] { dieses_austauschen(); });
    ignorieren.Klick.verbinden([this] { dieses_ignorieren(); });
    zeige_ignorieren_Liste.Klick.verbinden([this] { ignorierte_.anzeigen(*this); });
    löschen.Klick.verbinden([this] {
        if (Liste.gewählt() >= 0) Zeile_entfernen(Liste.gewählt());
    });
    anhören.Klick.verbinden([this] {
        if (Liste.gewählt() >= 0) werkzeug_.Starter.starte_WinAmp_Datei(Quellpfad(gewählte_Zeile()));
    });
    Lied_Info.Klick.verbinden([this] { Info_zeigen(); });
    Ok.Klick.verbinden([this] { entladen(); });

    Kategorie_Edit.Klick.verbinden([this] {
        zuordnung_.vor_dem_Bearbeiten();
        Hauptfenster().aktiv(false);
        aktiv(false);
        editor_.öffnen(Kategorie_bearbeiten::von_Live_abgleich);
    });
    editor_.zurück[Kategorie_bearbeiten::von_Live_abgleich] = [this] {
        Hauptfenster().aktiv(true);
        aktiv(true);
        if (geladen()) nach_vorn();
        return true;
    };
    editor_.umnummeriert.verbinden([this](const std::function<Byte(Byte)>& neue) { zuordnung_.umnummerieren(neue); });
    // Whoever opened the editor: the names may be others now.
    editor_.geschlossen.verbinden([this] {
        if (geladen()) zuordnung_.nach_dem_Bearbeiten();
    });
}

void Live_abgleich::zeigen(Abgleichsquelle quelle, Vergleichsergebnisse ergebnisse) {
    quelle_ = std::move(quelle);
    laden();
    zuordnung_.Quelle_setzen(quelle_.Kategorien);
    zuordnung_.zeigen();
    if (KatListe.Anzahl() > 0) KatListe.wähle(0);
    Vergleichsfenster::zeigen(std::move(ergebnisse));
}

Ignorieren_Liste& Live_abgleich::Ignorierte() const { return ignorierte_.Einträge(); }

Knoten Live_abgleich::anordnung() {
    return Spalte({Zeile({Listenknoten(), Spalte({hinzufügen, alle_hinzufügen, austauschen, ignorieren, löschen, anhören,
                                                  Lied_Info, Feder(0, 1), zeige_ignorieren_Liste})})
                       .dehnen(1, 1),
                   Gruppe(Kategorien, Zeile({Knoten(KatListe).zeichen(40).zeilen(6).dehnen(1),
                                             Spalte({Zeile({neue_Kategorie_Text, Knoten(neue_Kategorie).zeichen(22)}),
                                                     Kategorie_Edit, Feder(0, 1)})})),
                   Zeile({Feder(), Knoten(Ok).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void Live_abgleich::beim_Entladen() { quelle_ = {}; }

Fenster& Live_abgleich::Hauptfenster() const { return werkzeug_.Hauptliste.Liste.fenster(); }

const Lied& Live_abgleich::Quell_Lied_von(const Text& zeile) const {
    return quelle_.Lieder.at(static_cast<std::size_t>(Quell_Nr(zeile) - 1));
}

Text Live_abgleich::Quellpfad(const Text& zeile) const { return quelle_.Verzeichnis + Lied_Dateiname(Quell_Nr(zeile)); }

// True when the song has been taken over and its line is gone.
bool Live_abgleich::Zeile_hinzufügen(int zeile) {
    const Text text = gezeigte().zeile(zeile);
    const Byte ziel = zuordnung_.Ziel(Quell_Lied_von(text).Kategorie);
    if (!übernahme_.hinzufügen(Quellpfad(text), Vergleichsname(text), ziel)) return false;
    if (geladen()) Zeile_entfernen(zeile);
    return true;
}

void Live_abgleich::dieses_hinzufügen() {
    if (!modell_.Datenbank_offen || Liste.gewählt() < 0) return;
    bool neu = false;
    {
        const Fenstersperre diese(*this), haupt(Hauptfenster());
        neu = Zeile_hinzufügen(Liste.gewählt());
    }
    if (neu) Lieder_geändert();
}

void Live_abgleich::alle_gezeigten_hinzufügen() {
    const int anzahl = Liste.Anzahl();
    if (!modell_.Datenbank_offen || anzahl == 0) return;
    if (!ansicht().fragen("Lieder hinzufügen", "Wollen sie wirklich alle " + Zahltext(anzahl) + " " +
                                                   (anzahl == 1 ? "Lied" : "Lieder") + " hinzufügen?"))
        return;
    {
        const Fenstersperre diese(*this), haupt(Hauptfenster());
        const Fortschritts_Ende ende(werkzeug_.Fortschritt);
        werkzeug_.Fortschritt.Text_setzen("Lieder hinzufügen...");
        int zeile = 0;  // what could not be taken over stays, above those that are still to come
        for (int erledigt = 1; erledigt <= anzahl && zeile < Liste.Anzahl(); ++erledigt) {
            if (!Zeile_hinzufügen(zeile)) ++zeile;
            werkzeug_.Fortschritt.anzeigen(Prozent(erledigt, anzahl));
        }
    }
    Lieder_geändert();
}

void Live_abgleich::dieses_austauschen() {
    if (!modell_.Datenbank_offen || Liste.gewählt() < 0) return;
    const Long nr = werkzeug_.Hauptliste.gewähltes_Lied();
    if (nr < 1 || nr > modell_.Anzahl_Lieder) {
        ansicht().informieren("Lied austauschen", "In der Datenbank-Liste ist kein Lied zum austauschen gewählt!");
        return;
    }
    if (!werkzeug_.Austausch.ausführen(nr, Quellpfad(gewählte_Zeile()))) return;
    Zeile_entfernen(Liste.gewählt());
    Lieder_geändert();
}

// The entry is what the file's tag says. Where that differs from the other collection's record the song is offered again
// next time.
void Live_abgleich::dieses_ignorieren() {
    if (!modell_.Datenbank_offen || Liste.gewählt() < 0) return;
    Ignorieren_Liste& liste = Ignorierte();
    if (!liste.geladen_oder_gelesen()) return;
    const Long nr = liste.Ignorieren_neu();
    if (nr == 0) return;
    Ignorieren_Liste::Eintrag eintrag;
    werkzeug_.MP3.Lied_Tag_lesen(Quellpfad(gewählte_Zeile()), eintrag.Titel, eintrag.Artist);
    liste.eintragen(nr, std::move(eintrag));
    Zeile_entfernen(Liste.gewählt());
}

void Live_abgleich::Info_zeigen() {
    if (Liste.gewählt() < 0) return;
    const Text zeile = gewählte_Zeile();
    const Lied& lied = Quell_Lied_von(zeile);
    ansicht().informieren("Lied-Info", "Titel: " + lied.Titel + Text(CR) + "Artist: " + lied.Artist + Text(CR) +
                                           "Dateigröße: " + Zahltext(lied.Größe) + " kBytes" + Text(CR) +
                                           "Dateiname: " + anzeigbar(Quellpfad(zeile)));
}

}  // namespace tonkartei
