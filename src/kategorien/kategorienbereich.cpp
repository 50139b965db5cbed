#include "kategorien/kategorienbereich.hpp"

#include "grundlagen/waehrend.hpp"
#include "kategorien/kategorie_bearbeiten.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {

Kategorienbereich::Kategorienbereich(Fenster& fenster, Modell& modell, Einstellungen& einstellungen,
                                     Kategorie_bearbeiten& editor)
    : Lied_Kategorie(fenster, "Lied_Kategorie"),
      Kategorien_Rahmen(fenster, "Kategorien_Rahmen", "Kategorien"),
      Schema_Rahmen(fenster, "Schema_Rahmen"),
      Kategorie_Edit(fenster, "Kategorie_Edit", "Kategorien b&earbeiten..."),
      fenster_(fenster),
      modell_(modell),
      einstellungen_(einstellungen) {
    for (int k = 1; k <= Kategorien_maximal; ++k) {
        auto& kasten = kästen_[static_cast<std::size_t>(k - 1)];
        kasten = std::make_unique<Kasten>(fenster, "zeige_Kategorie", "", k);
        kasten->tooltip("Die Kategorien, die in der Liste angezeigt werden.");
        kasten->Beschriftung_wörtlich = true;
        kasten->sichtbar(false);
        kasten->Klick.verbinden([this, k] { Kasten_geändert(k); });
        kasten->Rechtsklick.verbinden([this, k](int) { Rechtsklick_auf_Kasten(k); });
    }
    for (int n = 1; n <= Schemas_maximal; ++n) {
        auto& knopf = schemas_[static_cast<std::size_t>(n - 1)];
        knopf = std::make_unique<Knopf>(fenster, "Kategorie_Schema", Zahltext(n), n);
        knopf->Vorlesename = "Schema " + Zahltext(n);
        knopf->klein = true;
        knopf->sichtbar(false);
        knopf->Klick.verbinden([this, n] { Schema_klicken(n); });
        knopf->Rechtsklick.verbinden([this, n](int) { Schema_rechtsklicken(n); });
    }
    Kategorie_Edit.tooltip("öffnet das Fenster zum Bearbeiten der Kategorien");
    Editor_anschließen(editor);
    Lied_Kategorie.aktiv(false);
    Lied_Kategorie.tooltip("Die Kategorie des Liedes");
    Lied_Kategorie.Klick.verbinden([this] { Kategorie_des_Liedes_geändert(); });
}

// While it is open the main window is locked.
void Kategorienbereich::Editor_anschließen(Kategorie_bearbeiten& editor) {
    Kategorie_Edit.Klick.verbinden([this, &editor] {
        if (!änderbar()) return;
        fenster_.aktiv(false);
        editor.öffnen(Kategorie_bearbeiten::vom_Hauptfenster);
    });
    editor.geschlossen.verbinden([this] { aktualisiere_Kategorie_List(false); });
    editor.zurück[Kategorie_bearbeiten::vom_Hauptfenster] = [this] {
        fenster_.aktiv(true);
        Suche_fokussieren();
        return true;
    };
}

Kasten& Kategorienbereich::zeige_Kategorie(int k) const {
    if (k < 1 || k > Kategorien_maximal) throw Laufzeitfehler(Fehler_Index);
    return *kästen_[static_cast<std::size_t>(k - 1)];
}

Knopf& Kategorienbereich::Kategorie_Schema(int n) const {
    if (n < 1 || n > Schemas_maximal) throw Laufzeitfehler(Fehler_Index);
    return *schemas_[static_cast<std::size_t>(n - 1)];
}

Knoten Kategorienbereich::anordnung() {
    std::vector<Knoten> kästen;
    for (auto& kasten : kästen_) kästen.push_back(Knoten(*kasten).dehnen(1));
    std::vector<Knoten> schemas;
    for (auto& knopf : schemas_) schemas.push_back(Knoten(*knopf));
    return Gruppe(Kategorien_Rahmen,
                  Spalte({Gitter(2, std::move(kästen)).lücke(30),
                          Zeile({Gruppe(Schema_Rahmen, Zeile(std::move(schemas)).lücke(30)), Feder(), Kategorie_Edit})}));
}

void Kategorienbereich::melden() { Tabelle_geändert(); }

// The automatic change goes on only as long as it alone sets the boxes: its draw needs one of its categories off show, and
// its categories may be others by now. Ended before the boxes change, so that nothing of it stays in them.
void Kategorienbereich::von_anderswo_gesetzt() {
    if (Auto_Wechsel_an() && !Kategorie_intern) Auto_Wechsel_beenden();
}

void Kategorienbereich::aktualisiere_Kategorie_List(bool Startkategorien_setzen) {
    von_anderswo_gesetzt();
    {
        const Während stille(Kategorie_Ereignisse_an_, false);
        std::vector<Text> namen;
        for (int k = 1; k <= Kategorien_maximal; ++k) {
            Kasten& kasten = zeige_Kategorie(k);
            const bool da = k <= modell_.Anzahl_Kategorien;
            if (da) {
                namen.push_back(modell_.Kategorien[k]);
                kasten.beschriftung(modell_.Kategorien[k]);
            }
            kasten.wert(false);
            kasten.sichtbar(da);
        }
        Lied_Kategorie.setzen(std::move(namen));
        zeige_Kategorie(1).wert(true);
    }
    fenster_.neu_anordnen();
    melden();
    if (Startkategorien_setzen && einstellungen_.Kategorien_merken)
        setzte_Startkategorien();
    else if (!Startkategorien_setzen)
        Auswahl_geändert();
}

// Not while the category of a song is asked for whose own one was removed.
bool Kategorienbereich::hat_Kategorie(const Lied& lied) const {
    return lied.Kategorie >= 1 && lied.Kategorie <= modell_.Anzahl_Kategorien;
}

bool Kategorienbereich::Wechsel_bestätigt(const Lied& lied, int neu) {
    if (!einstellungen_.Kategorie_wechsel_bestätigen) return true;
    const Text alte = hat_Kategorie(lied) ? modell_.Kategorien[lied.Kategorie] : Text{};
    return fenster_.ansicht().fragen("Kategorie wechseln",
                                     "Wollen sie die Kategorie des Liedes " + in_Anführungszeichen(lied.Titel) + " von " +
                                         in_Anführungszeichen(lied.Artist) + " wirklich von " + in_Anführungszeichen(alte) +
                                         " auf " + in_Anführungszeichen(modell_.Kategorien[neu]) + " ändern?");
}

void Kategorienbereich::Kategorie_des_Liedes_geändert() {
    const Long nr = angezeigtes_Lied();
    if (nr < 1) return;
    Lied& lied = modell_.Lieder[nr];
    const int neu = Lied_Kategorie.gewählt() + 1;
    if (neu == lied.Kategorie) return;
    if (!änderbar() || !Wechsel_bestätigt(lied, neu)) {
        Lied_Kategorie.wähle(hat_Kategorie(lied) ? lied.Kategorie - 1 : -1);
        return;
    }
    lied.Kategorie = als_Byte(neu);
    zeige_Kategorie_Farben();
}

void Kategorienbereich::zeige_Kategorie_Farben() {
    const bool auto_an = Auto_Wechsel_an();
    for (int k = 1; k <= Kategorien_maximal; ++k) {
        Farbe farbe = Farbe_Standard;
        if (k == Lied_Kategorie.gewählt() + 1)
            farbe = einstellungen_.Kategorie_Farbe;
        else if (auto_an && Auto_Wechsel_Kategorie[k])
            farbe = einstellungen_.automatische_Kategorien_Farbe;
        zeige_Kategorie(k).farbe(farbe);
    }
}

void Kategorienbereich::Farben_zurücksetzen() {
    for (int k = 1; k <= Kategorien_maximal; ++k) zeige_Kategorie(k).farbe(Farbe_Standard);
}

void Kategorienbereich::Farbe_ändern(Long Einstellungen::*einstellung) {
    if (const auto farbe = fenster_.ansicht().Farbe_wählen(einstellungen_.*einstellung)) {
        einstellungen_.*einstellung = *farbe;
        zeige_Kategorie_Farben();
    }
}

}  // namespace tonkartei
