#include "austausch/sicherung/backup_portionen.hpp"

#include "austausch/sicherung/backup_verzeichnis.hpp"
#include "austausch/sicherung/portionserstellung.hpp"
#include "datenbank/quell_datenbank.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

Backup_Portionen::Backup_Portionen(const Modell& modell, Backup_Verzeichnis& verzeichnis, Quell_Datenbank& quelle,
                                   Portionserstellung& erstellung, Fortschritts_Fenster& fortschritt)
    : Fenster(fortschritt.ansicht(), "Backup_Portionen", "Portionsdateien erstellen"),
      modell_(modell),
      verzeichnis_(verzeichnis),
      quelle_(quelle),
      erstellung_(erstellung),
      fortschritt_(fortschritt) {
    größenveränderlich = false;
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    Backup_Portionsgröße.tooltip("So viel paßt auf einen Datenträger");
    Backup_berücksichtigen.tooltip("läßt die Lieder aus, die ein älteres Backup schon enthält");
    Ok.tooltip("Die Portionsdateien schreiben");
    Backup_Portionsgröße.Geändert.verbinden([this] { Werte_zeigen(); });
    Backup_berücksichtigen.Klick.verbinden([this] { altes_Backup_berücksichtigen(); });
    Ok.Klick.verbinden([this] {
        if (erstellung_.erstellen(*plan_, P())) entladen();
    });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

Knoten Backup_Portionen::anordnung() {
    return Spalte({Gitter(2, {Backup_Anzahl_Lieder_Text, Knoten(Backup_Anzahl_Lieder).zeichen(14).dehnen(1),
                              Backup_Gesamtgröße_Text, Knoten(Backup_Gesamtgröße).zeichen(14).dehnen(1),
                              Backup_Portionsgröße_Text, Knoten(Backup_Portionsgröße).zeichen(14).dehnen(1),
                              Backup_Anzahl_Portionen_Text, Knoten(Backup_Anzahl_Portionen).zeichen(14).dehnen(1)}),
                   Zeile({Backup_berücksichtigen, Feder(), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void Backup_Portionen::Menü_Backup_Portionen() {
    if (!modell_.Datenbank_offen) return;
    zeigen_modal(&Backup_Portionsgröße);
}

void Backup_Portionen::beim_Laden() {
    plan_.emplace(modell_);
    Backup_Portionsgröße.text("650");
    Verzeichnis_berücksichtigen();
    Werte_zeigen();
}

void Backup_Portionen::Verzeichnis_berücksichtigen() {
    if (!verzeichnis_.vorhanden() ||
        !ansicht().fragen("Backup-Verzeichnis", "Für diese Datenbank existiert ein Backup-Verzeichnis." + Text(CRCR) +
                                                    "Soll dieses Verzeichnis benutzt werden?") ||
        !verzeichnis_.Backup_Verzeichnis_lesen())
        return;
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen("Backup-Verzeichnis berücksichtigen...");
    const auto anzahl = static_cast<double>(verzeichnis_.Einträge.size());
    double erledigt = 0;
    for (const auto& eintrag : verzeichnis_.Einträge) {
        plan_->Eintrag_auslassen(eintrag.Artist, eintrag.Titel);
        fortschritt_.anzeigen(Prozent(++erledigt, anzahl));
    }
}

void Backup_Portionen::altes_Backup_berücksichtigen() {
    const Text ordner = mit_Trenner(ansicht().Verzeichnis_wählen("Verzeichnis des alten Backups:"));
    if (ordner.empty()) return;
    if (!quelle_.vorhanden(ordner)) {
        ansicht().informieren("altes Backup berücksichtigen", "In diesem Verzeichnis wurde keine Datenbank gefunden.");
    } else if (const auto altes = quelle_.lesen(ordner)) {
        const Fortschritts_Ende ende(fortschritt_);
        fortschritt_.Text_setzen("altes Backup berücksichtigen...");
        for (Long nr = 1; nr <= altes->Anzahl_Lieder; ++nr) {
            plan_->Lied_auslassen(altes->Lieder[nr].Artist, altes->Lieder[nr].Titel);
            fortschritt_.anzeigen(Prozent(nr, altes->Anzahl_Lieder));
        }
    }
    Werte_zeigen();
}

double Backup_Portionen::P() const { return Zahlwert(Backup_Portionsgröße.text()); }

void Backup_Portionen::Werte_zeigen() {
    if (!plan_) return;
    Backup_Anzahl_Lieder.beschriftung(Zahltext(plan_->Backup_Lieder));
    Backup_Gesamtgröße.beschriftung(Zahltext(plan_->Gesamtgröße()));
    if (P() < plan_->Minimale_Portion)
        Backup_Anzahl_Portionen.beschriftung("min. " + Zahltext(plan_->Minimale_Portion) + " MB");
    else
        Backup_Anzahl_Portionen.beschriftung(Zahltext(plan_->Anzahl_Portionen(P())));
}

}  // namespace tonkartei
