#include "datenbank/sitzung.hpp"

#include <optional>

#include "datenbank/haus.hpp"
#include "datenbank/info_datei.hpp"
#include "datenbank/version.hpp"
#include "datenbank/zugriffsdatei.hpp"
#include "grundlagen/waehrend.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

constexpr const char* Titel_öffnen = "Datenbank öffnen";
constexpr const char* Titel_erstellen = "Datenbank erstellen";
constexpr const char* Titel_speichern = "Datenbank speichern";

}  // namespace

Sitzung::Sitzung(Haus& haus, Info_Datei& info, Zugriffsdatei& zugriff)
    : modell_(haus.modell),
      einstellungen_(haus.einstellungen),
      info_(info),
      zugriff_(zugriff),
      plattform_(haus.plattform),
      ansicht_(haus.ansicht) {}

void Sitzung::Verzeichnis_setzen(const Text& Pfad) {
    modell_.Datenbank_Verzeichnis = mit_Trenner(Pfad);
    if (!Pfad.empty()) plattform_.Dateisystem.aktuellen_Ordner_setzen(modell_.Datenbank_Verzeichnis);
}

// Asks when the access file says that the collection is open already.
bool Sitzung::Zugriff_erlaubt() {
    const Text datei = modell_.Pfad(Zugriffsdatei_Name);
    if (!plattform_.Dateisystem.Datei_da(datei)) return true;
    if (Zugriffsdatei_ignorieren && !modell_.erste_Datenbank_geladen) return true;
    Zeitpunkt zeitpunkt;
    Text computer, benutzer;
    if (!zugriff_.lese_Zugriffsdatei(datei, zeitpunkt, computer, benutzer)) return false;
    const Text frage = "Die Datenbank " + in_Anführungszeichen(modell_.Datenbank_Verzeichnis) + " ist bereits geöffnet!" +
                       Text(CRCR) + "Geöffnet am " + mittleres_Datum(zeitpunkt) + " um " + kurze_Uhrzeit(zeitpunkt) +
                       " Uhr von " + in_Anführungszeichen(benutzer) + " auf dem Computer " + in_Anführungszeichen(computer) +
                       "." + Text(CRCR) +
                       "Die Datenbank sollte jetzt nur geöffnet werden, wenn der Rechner "
                       "vorher abgestürzt ist, anonsten führt das zu Datenverlust!" +
                       Text(CRCR) + "Wollen sie die Datenbank jetzt trotzdem öffnen?";
    return ansicht_.fragen(Titel_öffnen, frage);
}

bool Sitzung::lade_Datenbank() {
    std::optional<Halb_getan> wechsel(std::in_place, wechselt_);
    if (!Zugriff_erlaubt()) return false;
    Text datei = modell_.Pfad(Info_Datei_Name);
    info_.Gerettetes.anbieten(datei);
    if (!plattform_.Dateisystem.Datei_da(datei)) {
        if (!ansicht_.fragen(Titel_erstellen, "In folgendem Verzeichnis existiert noch keine Datenbank:" + Text(CRCR) +
                                                  modell_.Datenbank_Verzeichnis + Text(CRCR) +
                                                  "Soll dort eine erstellt werden?")) {
            modell_.Datenbank_offen = false;
            return false;
        }
        // Nothing is written yet: the first save makes the file.
        Standard_Datenbank(modell_, true);
        modell_.konvertiert_in_Temp = false;
        modell_.Datenbank_offen = true;
        return true;
    }
    int nummer = 0;
    if (!info_.pruefe_Info_Datei(datei, nummer) || !info_.lesen(nummer)) {
        modell_.Datenbank_offen = false;
        return false;
    }
    wechsel.reset();
    modell_.Datenbank_offen = true;
    zugriff_.schreibe_Zugriffsdatei();
    if (einstellungen_.Lieder_Namen_lesen && Lieder_einlesen) Lieder_einlesen();
    modell_.erste_Datenbank_geladen = true;
    return true;
}

bool Sitzung::schreibe_Datenbank(bool Fortschritt_zeigen) { return info_.schreibe_Datenbank(Fortschritt_zeigen); }

bool Sitzung::ungespeichert_verlassen() { return info_.zu_retten() && info_.Gerettetes.schreiben(); }

// False when the save failed and the user wants to stay.
bool Sitzung::gespeichert_oder_verzichtet(const Text& titel, const Text& frage) {
    return !modell_.Datenbank_offen || schreibe_Datenbank(true) || ansicht_.fragen(titel, frage);
}

// The albums and the ignore list belong to the collection that is left; they must not end up in the folder of the next one.
void Sitzung::andere_Speicher_vergessen() {
    modell_.Alben_geladen = false;
    modell_.Alben_geändert = false;
    modell_.Ignorieren_geladen = false;
    modell_.Ignorieren_geändert = false;
}

void Sitzung::öffne_Datenbank_Verzeichnis(const Text& Pfad) {
    if (!gespeichert_oder_verzichtet(
            Titel_öffnen,
            "Wollen sie wirklich eine neue Datenbank öffnen, ohne das die alten Informationen gespeichert wurden?"))
        return;
    if (Pfad.empty()) return;
    vor_Wechsel();
    const bool gerettet = ungespeichert_verlassen();
    const Text altes_Verzeichnis = modell_.Datenbank_Verzeichnis;
    Verzeichnis_setzen(Pfad);
    if (lade_Datenbank()) {
        andere_Speicher_vergessen();
        geladen(true);
    } else {
        Verzeichnis_setzen(altes_Verzeichnis);
        // Refused for its access file: the session goes on with the old one, which was not left after all.
        if (gerettet && modell_.Datenbank_offen) info_.Gerettetes.zurücknehmen();
    }
}

bool Sitzung::Datenbank_erstellen(bool fragen, bool Kategorien_übernehmen) {
    if (!gespeichert_oder_verzichtet(
            Titel_erstellen,
            "Wollen sie wirklich eine neue Datenbank erstellen, ohne das die alten Informationen gespeichert wurden?"))
        return false;
    ansicht_.informieren(Titel_erstellen,
                         "Geben sie bitte das Ober-Verzeichnis an, in dem die neue Datenbank erstellt werden soll.");
    const Text oberes = ansicht_.Verzeichnis_wählen("Verzeichnis der neuen Tonkartei:");
    if (oberes.empty()) return false;
    const Text name = ansicht_.eingeben("Bitte geben sie den Namen der neuen Datenbank an.", Titel_erstellen, "");
    if (name.empty()) return false;
    const Text pfad = mit_Trenner(oberes) + name;
    try {
        plattform_.Dateisystem.Ordner_anlegen(pfad);
    } catch (const Dateifehler&) {
        ansicht_.informieren(Programmtitel, "Es ist ein Fehler beim anlegen der Datenbank aufgetreten!" + Text(CRCR) +
                                                "Eventuell existiert das Verzeichnis" + Text(CRCR) + pfad + Text(CRCR) +
                                                "bereits.");
        return false;
    }
    ungespeichert_verlassen();
    Verzeichnis_setzen(pfad);
    std::optional<Halb_getan> wechsel(std::in_place, wechselt_);
    if (fragen)
        Kategorien_übernehmen = ansicht_.fragen(
            Titel_erstellen, "Wollen sie die Kategorien aus der aktuellen Datenbank in die neue übernehmen?");
    // A run that has had no collection yet has no categories to take over.
    const bool neue_Kategorien = !Kategorien_übernehmen || modell_.Anzahl_Kategorien == 0;
    Standard_Datenbank(modell_, neue_Kategorien);
    wechsel.reset();
    modell_.konvertiert_in_Temp = false;
    andere_Speicher_vergessen();
    modell_.Datenbank_offen = true;
    geladen(neue_Kategorien);
    return true;
}

void Sitzung::speichern_von_Hand() {
    if (!modell_.Datenbank_offen) {
        ansicht_.informieren(Titel_speichern, " Die Datenbank kann nicht gespeichert werden. Eventuell ist keine geöffnet?");
        return;
    }
    const Text erklärung =
        "Dieses Programm speichert die Änderungen an der Datenbank automatisch, "
        "wenn eine neue geöffnet wird, oder wenn das Programm beendet wird." +
        Text(CRCR) + "Aus diesem Grund ist es normalerweise nicht nötig die Änderungen mit diesem Menüpunkt zu speichern.";
    ansicht_.informieren(Titel_speichern, erklärung);
    if (schreibe_Datenbank(true)) {
        // The save took the access file away, the session goes on.
        zugriff_.schreibe_Zugriffsdatei();
    } else {
        ansicht_.informieren(Titel_speichern, "Es ist ein Fehler beim speichern aufgetreten!");
    }
}

void Sitzung::zuletzt_geöffnete_wählen(const Text& Pfad) {
    if (Pfad == modell_.Datenbank_Verzeichnis) return;
    if (plattform_.Dateisystem.Ordner_da(Pfad)) {
        öffne_Datenbank_Verzeichnis(Pfad);
        return;
    }
    ansicht_.informieren(Titel_öffnen, "Die gewählte Datenbank existiert nicht mehr, oder ist momentan nicht verfügbar.");
}

void Sitzung::Datenbank_Liste_nachführen() {
    auto& liste = einstellungen_.Datenbank_Liste;
    auto& anzahl = einstellungen_.Datenbank_Liste_Anzahl;
    const Text& pfad = modell_.Datenbank_Verzeichnis;
    int platz = 1;
    while (platz <= anzahl && liste[platz] != pfad) ++platz;
    if (platz > anzahl) {
        if (anzahl < Verzeichnisse_maximal) ++anzahl;
        platz = anzahl;
    }
    for (; platz > 1; --platz) liste[platz] = liste[platz - 1];
    liste[1] = pfad;
}

}  // namespace tonkartei
