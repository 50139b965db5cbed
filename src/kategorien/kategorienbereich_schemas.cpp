// The stored selections of categories and their buttons.
#include <utility>

#include "grundlagen/codepage.hpp"
#include "grundlagen/waehrend.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {

void Kategorienbereich::Anz_Kat_Schemas_setzen(int n) {
    if (änderbar()) modell_.Anz_Kat_Schemas = als_Byte(n);
    Schemas_zeigen();
    schema_modus_ = Schema_Modus::wählen;
}

void Kategorienbereich::Schemas_zeigen() {
    for (int n = 1; n <= Schemas_maximal; ++n) {
        Knopf& knopf = Kategorie_Schema(n);
        knopf.tooltip(modell_.Schemas[n].Name);
        knopf.sichtbar(n <= modell_.Anz_Kat_Schemas);
    }
    Schema_Rahmen.sichtbar(modell_.Anz_Kat_Schemas > 0);
    melden();
}

void Kategorienbereich::Schema_klicken(int n) {
    switch (std::exchange(schema_modus_, Schema_Modus::wählen)) {
        case Schema_Modus::wählen: Schema_wählen(n); break;
        case Schema_Modus::speichern: Schema_speichern(n); break;
        case Schema_Modus::beschreiben: Schema_beschreiben(n); break;
    }
}

// A click as any other for what the next one means.
void Kategorienbereich::Schema_rechtsklicken(int n) {
    schema_modus_ = Schema_Modus::wählen;
    Schema_speichern(n);
    Schema_beschreiben(n);
}

void Kategorienbereich::Schema_wählen(int n) {
    von_anderswo_gesetzt();
    {
        const Während stille(Kategorie_Ereignisse_an_, false);
        for (int k = 1; k <= Kategorien_maximal; ++k) zeige_Kategorie(k).wert(false);
        const Schema& schema = modell_.Schemas[n];
        for (int i = 1; i <= schema.Anzahl; ++i) {
            const Byte k = schema.Kategorien[i];
            if (k >= 1 && k <= modell_.Anzahl_Kategorien) zeige_Kategorie(k).wert(true);
        }
    }
    Auswahl_geändert();
    Suche_fokussieren();
}

void Kategorienbereich::Schema_speichern(int n) {
    if (!änderbar()) return;
    Schema& schema = modell_.Schemas[n];
    schema.Anzahl = 0;
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k)
        if (zeige_Kategorie(k).wert()) schema.Kategorien[++schema.Anzahl] = als_Byte(k);
}

void Kategorienbereich::Schema_beschreiben(int n) {
    if (!änderbar()) return;
    Schema& schema = modell_.Schemas[n];
    const Text name = auf_Seite(fenster_.ansicht().eingeben("Geben sie eine neue Kurzbeschreibung für dieses Schema ein:",
                                                            "Kategorie-Schema-Kurzbeschreibung ändern", schema.Name));
    if (name.empty()) return;
    schema.Name = name;
    Kategorie_Schema(n).tooltip(name);
    melden();
}

void Kategorienbereich::beginnen(Schema_Modus modus, const Text& titel, const Text& text) {
    if (!änderbar()) return;
    fenster_.ansicht().informieren(titel, text);
    schema_modus_ = modus;
}

void Kategorienbereich::Schema_zuweisen_beginnen() {
    beginnen(Schema_Modus::speichern, "Kategorie-Schema zuweisen",
             "Klicken sie auf eine Kategorie-Schema Schaltfläche, "
             "um die aktuell ausgewählten Kategorien dort zu speichern.");
}

void Kategorienbereich::Schema_beschreiben_beginnen() {
    beginnen(Schema_Modus::beschreiben, "Kategorie-Kurzbeschreibung ändern",
             "Klicken sie auf eine Kategorie-Schema Schaltfläche, "
             "um deren Kurzbeschreibung zu ändern.");
}

}  // namespace tonkartei
