#include <algorithm>
#include <array>
#include <string_view>

#include "datenbank/info_datei.hpp"
#include "datenbank/version.hpp"
#include "datenbank/zeitleser.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

const Text Lesefehler = "Es ist ein Fehler beim öffnen der Informationsdatei aufgetreten!";

// "V 1.02 " and a revision of two digits, of which those up to `höchste` are known.
bool ist_Version(const Text& version, std::string_view stamm, int niedrigste, int höchste) {
    for (int revision = niedrigste; revision <= höchste; ++revision)
        if (version == Text(stamm) + Zahl_mit_Nullen(revision, 2)) return true;
    return false;
}

}  // namespace

int Versionsstufe(const Text& version) {
    if (ist_Version(version, "V 1.00 ", 1, 6)) return 3;
    if (ist_Version(version, "V 1.01 ", 0, 6)) return 2;
    if (ist_Version(version, "V 1.02 ", 0, 15)) return 1;
    return 0;
}

Info_Datei::Info_Datei(Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Ansicht& ansicht,
                       Fortschritts_Fenster& fortschritt)
    : modell_(modell), kanäle_(kanäle), dateien_(dateien), ansicht_(ansicht), fortschritt_(fortschritt) {}

bool Info_Datei::pruefe_Info_Datei(Text& Datei, int& Dateinummer) {
    modell_.konvertiert_in_Temp = false;
    Dateinummer = 0;
    try {
        Dateinummer = kanäle_.öffnen_zum_Lesen(Datei);
        if (Kopf_prüfen(Datei, Dateinummer)) return true;
    } catch (const Dateifehler&) {
        ansicht_.informieren(Programmtitel, Lesefehler);
    }
    kanäle_.aufgeben(Dateinummer);
    return false;
}

bool Info_Datei::Kopf_prüfen(Text& Datei, int& Dateinummer) {
    Text& meldung = modell_.Meldung;
    const Text crcr(CRCR);
    if (kanäle_.lese_Wert(Dateinummer) != Programmtitel) {
        meldung = "Die Informationsdatei " + Text(Info_Datei_Name) + " ist fehlerhaft!" + crcr +
                  "Kontaktieren sie den Autor, um eventuell noch die Daten zu retten." + crcr + Kontaktadresse;
        ansicht_.informieren(Programmtitel, meldung);
        return false;
    }
    const Text version = kanäle_.lese_Wert(Dateinummer);
    if (version == modell_.Programmversion) return true;

    meldung = "Die Informationsdatei ist von einer anderen Programmversion." + crcr +
              "aktuelle Programmversion: " + modell_.Programmversion + Text(CR) + "Dateiversion: " + version + crcr;
    const int stufe = Versionsstufe(version);
    if (stufe == 0) {
        meldung += "Kontaktieren sie den Autor für ein Update oder einen Konverter für die Datei." + crcr + Kontaktadresse +
                   crcr + "Es kann auf eigene Gefahr hin versucht werden die Datei trotzdem zu lesen. Wollen sie dies tun?";
        return ansicht_.fragen(Programmtitel, meldung, Antwort::Nein);
    }
    meldung +=
        "Die alte Versionen der Datei kann eingelesen und konvertiert werden. "
        "Allerdings kann sie dann nicht mehr mit Programmversionen, die kleiner "
        "Version des Programms geöffnet werden." +
        crcr + "Soll die Datenbank geöffnet und konvertiert werden?";
    if (!ansicht_.fragen(Programmtitel, meldung, Antwort::Ja)) return false;
    const auto Schritt = [&](const Konvertierer& schritt) { return schritt && schritt(Datei, Dateinummer); };
    if (stufe == 3 && !Schritt(konvertiere_1_00)) return false;
    return stufe == 1 || Schritt(konvertiere_1_01);
}

bool Info_Datei::lesen(int Dateinummer) {
    // Read aside first: a file that ends too soon must not leave half of it in the place of the songs that are shown.
    Bestand neu;
    fortschritt_.Text_setzen("Datenbank laden...");
    try {
        Körper_lesen(Dateinummer, neu);
        kanäle_.schließen(Dateinummer);
    } catch (const Dateifehler&) {
        fortschritt_.anzeigen(100);
        kanäle_.aufgeben(Dateinummer);
        ansicht_.informieren(Programmtitel, Lesefehler);
        return false;
    }
    static_cast<Bestand&>(modell_) = std::move(neu);
    return true;
}

void Info_Datei::Körper_lesen(int nummer, Bestand& bestand) {
    bestand.Anzahl_Kategorien = kanäle_.lese_Byte(nummer);
    for (int k = 1; k <= bestand.Anzahl_Kategorien; ++k) bestand.Kategorien[k] = kanäle_.lese_Zeile(nummer);
    bestand.Anz_Kat_Schemas = kanäle_.lese_Byte(nummer);
    for (int s = 1; s <= Schemas_maximal; ++s) {
        Schema& schema = bestand.Schemas[s];
        schema.Anzahl = kanäle_.lese_Byte(nummer);
        schema.Name = kanäle_.lese_Zeile(nummer);
        for (int i = 1; i <= schema.Anzahl; ++i) schema.Kategorien[i] = kanäle_.lese_Byte(nummer);
    }
    bestand.Backup_Warnungs_Grenze = kanäle_.lese_Long(nummer);
    bestand.Anzahl_Lieder = kanäle_.lese_Long(nummer);
    if (bestand.Anzahl_Lieder < 1) return;
    for (Long n = 1; n <= bestand.Anzahl_Lieder; ++n) {
        Lied_lesen(nummer, bestand, bestand.Lieder[n]);
        fortschritt_.anzeigen(Prozent(n, bestand.Anzahl_Lieder));
    }
    fortschritt_.anzeigen(100);
}

void Info_Datei::Lied_lesen(int nummer, Bestand& bestand, Lied& lied) {
    lied.Anzahl = kanäle_.lese_Long(nummer);
    lied.Artist = kanäle_.lese_Zeile(nummer);
    lied.Größe = kanäle_.lese_Long(nummer);
    lied.Kategorie = kanäle_.lese_Byte(nummer);
    lied.Titel = kanäle_.lese_Zeile(nummer);
    const auto [stunden, minuten, sekunden] = drei_Zahlen_lesen(kanäle_);
    lied.Zeit = Zeit_aus(stunden, minuten, sekunden);
    if (lied.Kategorie >= 1 && lied.Kategorie <= bestand.Anzahl_Kategorien) return;
    lied.Kategorie = 1;
    modell_.Meldung = "Das Lied " + in_Anführungszeichen(lied.Titel) + Text(CR) + "von " +
                      in_Anführungszeichen(lied.Artist) + Text(CR) + "hat einen Fehler bei der eingestellten Kategorie!" +
                      Text(CRCR) + "Die Kategorie wurde auf " + in_Anführungszeichen(bestand.Kategorien[1]) + " gesetzt." +
                      Text(CRCR) + "Bitte überprüfen!";
    ansicht_.informieren("Datenbank laden", modell_.Meldung);
}

}  // namespace tonkartei
