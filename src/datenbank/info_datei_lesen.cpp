#include <algorithm>
#include <array>
#include <string_view>

#include "datenbank/info_datei.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/version.hpp"
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

Info_Datei::Info_Datei(Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Fortschritts_Fenster& fortschritt,
                       const Text& Temp_Verzeichnis)
    : Gerettetes(modell, kanäle, dateien, fortschritt.ansicht()),
      modell_(modell),
      kanäle_(kanäle),
      dateien_(dateien),
      ansicht_(fortschritt.ansicht()),
      fortschritt_(fortschritt),
      konvertierung_(modell, kanäle, dateien, fortschritt, Temp_Verzeichnis) {}

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
    const Text crcr(CRCR);
    Text meldung;
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
    if (stufe == 3 && !konvertierung_.konvertiere_1_00(Datei, Dateinummer)) return false;
    return stufe == 1 || konvertierung_.konvertiere_1_01(Datei, Dateinummer);
}

bool Info_Datei::lesen(int Dateinummer) {
    // Read aside first: a file that ends too soon must not leave half of it in the place of the songs that are shown.
    Bestand neu;
    fortschritt_.Text_setzen("Datenbank laden...");
    fortschritt_.kurze_Schritte();
    try {
        Info_Körper_lesen(kanäle_, Dateinummer, neu, [&](Long nr, Long anzahl) {
            Kategorie_berichtigen(neu, neu.Lieder[nr]);
            fortschritt_.anzeigen(Prozent(nr, anzahl));
        });
        fortschritt_.anzeigen(100);
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

void Info_Datei::Kategorie_berichtigen(Bestand& bestand, Lied& lied) {
    if (Kategorie_bekannt(bestand, lied.Kategorie)) return;
    lied.Kategorie = 1;
    ansicht_.informieren("Datenbank laden", "Das Lied " + in_Anführungszeichen(lied.Titel) + Text(CR) + "von " +
                                                in_Anführungszeichen(lied.Artist) + Text(CR) +
                                                "hat einen Fehler bei der eingestellten Kategorie!" + Text(CRCR) +
                                                "Die Kategorie wurde auf " + in_Anführungszeichen(bestand.Kategorien[1]) +
                                                " gesetzt." + Text(CRCR) + "Bitte überprüfen!");
}

}  // namespace tonkartei
