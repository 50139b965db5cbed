#include "kategorien/kategorie_bearbeiten.hpp"

#include <algorithm>
#include <utility>

#include "grundlagen/codepage.hpp"
#include "kategorien/kategorie_wahl.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

constexpr std::size_t Namenslänge = 16;  // what the display has room for; longer names are kept all the same
constexpr Farbe Hellgelb = RGB(255, 255, 0);
constexpr int Ruhestellung = 2;

}  // namespace

Long Lieder_in_Kategorie(const Modell& modell, int Kategorie) {
    if (Kategorie == 1) return modell.Anzahl_Lieder;
    Long anzahl = 0;
    for (Long n = 1; n <= modell.Anzahl_Lieder; ++n)
        if (modell.Lieder[n].Kategorie == Kategorie) ++anzahl;
    return anzahl;
}

Kategorie_bearbeiten::Kategorie_bearbeiten(Ansicht& ansicht, Modell& modell, Kategorie_Wahl& wahl)
    : Fenster(ansicht, "Kategorie_bearbeiten", "Kategorien"), modell_(modell), wahl_(wahl) {
    Liste.Vorlesename = "Kategorien";
    Reihenfolge.Vorlesename = "Reihenfolge";
    Liste.tooltip("Zeigt die momentan vorhandenen Kategorien an");
    Reihenfolge.tooltip("verschiebt die gewählte Kategorie");
    Reihenfolge.senkrecht = true;
    Reihenfolge.wert(Ruhestellung);
    Kategorie_Name.tooltip("Der Name der gewählten Kategorie");
    Anz_Lieder.tooltip("So viele Lieder haben diese Kategorie");
    Anz_Lieder.ausrichtung = Schriftfeld::Ausrichtung::rechts;
    Anz_Lieder.eingerahmt = true;
    Vorgabeknopf = &Ok;
    Liste.Klick.verbinden([this] { Zeile_gewählt(); });
    Kategorie_Name.Geändert.verbinden([this] { Name_geändert(); });
    add_Kategorie.Klick.verbinden([this] { hinzufügen(); });
    kill_Kategorie.Klick.verbinden([this] { löschen(); });
    Reihenfolge.Geändert.verbinden([this] { verschieben(); });
    Ok.Klick.verbinden([this] { entladen(); });
    wahl_.Kategorien_bearbeiten = [this] { aus_der_Wahl(); };
    zurück[von_Kategorie_Wahl] = [this] { return zurück_zur_Wahl(); };
}

Knoten Kategorie_bearbeiten::anordnung() {
    return Spalte({Zeile({Knoten(Liste).zeilen(14).zeichen(28).dehnen(1, 1), Knoten(Reihenfolge).mindestens(0, 900)}),
                   Zeile({Kategorie_Name_Text, Knoten(Kategorie_Name).zeichen(20).dehnen(1), Anz_Lieder_Text,
                          Knoten(Anz_Lieder).zeichen(5)}),
                   Zeile({add_Kategorie, kill_Kategorie, Feder(), Ok})})
        .rand(180);
}

Byte Kategorie_bearbeiten::öffnen(Byte Wert) {
    const Byte vorher = geladen() ? aufrufer_ : Byte{0};
    aufrufer_ = Wert;
    zeigen();
    ansicht().fokus(Liste);
    return vorher;
}

// The dialog may come from this window's own removal of a category; the closing then only leads back to it.
void Kategorie_bearbeiten::aus_der_Wahl() {
    wahl_.aktiv(false);
    frühere_Aufrufer_.push_back(öffnen(von_Kategorie_Wahl));
}

bool Kategorie_bearbeiten::zurück_zur_Wahl() {
    if (wahl_.sichtbar()) {
        wahl_.Kategorien_füllen();
        wahl_.aktiv(true);
        wahl_.nach_vorn();
    }
    if (frühere_Aufrufer_.empty()) return true;
    aufrufer_ = frühere_Aufrufer_.back();
    frühere_Aufrufer_.pop_back();
    return aufrufer_ == 0;
}

void Kategorie_bearbeiten::beim_Laden() {
    std::vector<Text> namen;
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) namen.push_back(modell_.Kategorien[k]);
    Liste.setzen(std::move(namen));
    Reihenfolge.wert(Ruhestellung);
    if (Liste.Anzahl() > 0) Liste.wähle(0);
}

void Kategorie_bearbeiten::Zeile_gewählt() {
    Kategorie_Name.text(modell_.Kategorien[gewählte()]);
    Anz_Lieder.beschriftung(Zahltext(Lieder_in_Kategorie(modell_, gewählte())));
}

void Kategorie_bearbeiten::Name_geändert() {
    const bool zu_lang = Zeichenzahl(Kategorie_Name.text()) > Namenslänge;
    Kategorie_Name.hintergrund(zu_lang ? Hellgelb : Liste.hintergrund());
    const int k = gewählte();
    if (k < 1) {
        Kategorie_Name.text("");
        return;
    }
    const Text name = auf_Seite(Kategorie_Name.text());
    if (modell_.Kategorien[k] == name) return;
    modell_.Kategorien[k] = name;
    Liste.zeile(k - 1, name);
    Tabelle_geändert();
}

void Kategorie_bearbeiten::hinzufügen() {
    if (modell_.Anzahl_Kategorien >= Kategorien_maximal) {
        ansicht().informieren("Kategorie hinzufügen",
                              "Es sind maximal " + Zahltext(modell_.Anzahl_Kategorien) + "Kategorien erlaubt!");
        return;
    }
    const int k = ++modell_.Anzahl_Kategorien;
    modell_.Kategorien[k] = "Kategorie " + Zahltext(k);
    Liste.hinzufügen(modell_.Kategorien[k]);
    Tabelle_geändert();
    Liste.wähle(k - 1);
    ansicht().fokus(Kategorie_Name);
    Kategorie_Name.alles_markieren();
}

void Kategorie_bearbeiten::löschen() {
    const int k = gewählte();
    if (k < 1) return;
    const Text& name = modell_.Kategorien[k];
    if (k == 1) {
        ansicht().informieren("Kategorie löschen",
                              "Die Kategorie " + name + (name == "Alle" ? "" : " (Alle)") + " darf nicht gelöscht werden!");
        return;
    }
    if (!ansicht().fragen("Kategorie löschen", "Wollen sie die Kategorie " + name + " wirklich löschen?")) return;
    --modell_.Anzahl_Kategorien;
    for (int i = k; i <= modell_.Anzahl_Kategorien; ++i) modell_.Kategorien[i] = modell_.Kategorien[i + 1];
    Liste.entfernen(k - 1);
    Lieder_umsetzen(k);
    umnummeriert([k](Byte alte) { return als_Byte(alte == k ? 0 : alte > k ? alte - 1 : alte); });
    Tabelle_geändert();
    verwaiste_einordnen();
    // The choice of a new category lets events run: the table may be shorter by now.
    if (geladen()) Liste.wähle(std::min(k, Liste.Anzahl()) - 1);
}

void Kategorie_bearbeiten::Lieder_umsetzen(int gelöschte) {
    for (Long n = 1; n <= modell_.Anzahl_Lieder; ++n) {
        Byte& kategorie = modell_.Lieder[n].Kategorie;
        if (kategorie == gelöschte)
            kategorie = ohne_Kategorie;
        else if (kategorie > gelöschte && kategorie != ohne_Kategorie)
            --kategorie;
    }
}

// The songs of a category that is gone get the one that the user picks.
void Kategorie_bearbeiten::verwaiste_einordnen() {
    const Long anzahl = Lieder_in_Kategorie(modell_, ohne_Kategorie);
    if (anzahl == 0) return;
    ansicht().informieren("gelöschte Kategorie", "Bitte wählen sie eine Kategorie für die " + Zahltext(anzahl) +
                                                     " Lieder der gelöschten Kategorie!");
    const Byte neue = wahl_.wählen("neue Kategorie", {}, {});
    for (Long n = 1; n <= modell_.Anzahl_Lieder; ++n)
        if (modell_.Lieder[n].Kategorie == ohne_Kategorie) modell_.Lieder[n].Kategorie = neue;
}

void Kategorie_bearbeiten::verschieben() {
    const int richtung = Reihenfolge.wert() - Ruhestellung;
    if (richtung == 0) return;
    Reihenfolge.wert(Ruhestellung);
    const int k = gewählte();
    if (k < 1) return;
    const int ziel = k + richtung;
    if (k == 1 || ziel == 1) {
        ansicht().informieren("Fehler", "Die Kategorie 1 darf nicht verschoben werden!");
        return;
    }
    if (ziel > modell_.Anzahl_Kategorien) return;
    for (Long n = 1; n <= modell_.Anzahl_Lieder; ++n) {
        Byte& kategorie = modell_.Lieder[n].Kategorie;
        if (kategorie == k)
            kategorie = als_Byte(ziel);
        else if (kategorie == ziel)
            kategorie = als_Byte(k);
    }
    std::swap(modell_.Kategorien[k], modell_.Kategorien[ziel]);
    Liste.zeile(k - 1, modell_.Kategorien[k]);
    Liste.zeile(ziel - 1, modell_.Kategorien[ziel]);
    umnummeriert([k, ziel](Byte alte) { return als_Byte(alte == k ? ziel : alte == ziel ? k : alte); });
    Tabelle_geändert();
    Liste.wähle(ziel - 1);
}

// The dialog may be waiting for a choice meanwhile: a line of it must never name a category that is gone.
void Kategorie_bearbeiten::Tabelle_geändert() {
    if (wahl_.sichtbar()) wahl_.Kategorien_füllen();
}

bool Kategorie_bearbeiten::beim_Schließen(Schließgrund) {
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) {
        if (Zeichenzahl(modell_.Kategorien[k]) <= Namenslänge) continue;
        ansicht().informieren("Hinweis", "Mindestens ein Kategoriename ist länger als 16 Zeichen!");
        break;
    }
    geschlossen();
    if (aufrufer_ < 1 || aufrufer_ > zurück.Größe()) return true;
    const std::function<bool()> rückweg = zurück[aufrufer_];
    return !rückweg || rückweg();
}

void Kategorie_bearbeiten::beim_Entladen() {
    aufrufer_ = 0;
    frühere_Aufrufer_.clear();
}

}  // namespace tonkartei
