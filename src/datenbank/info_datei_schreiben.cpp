#include <utility>

#include "datenbank/info_datei.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/zeilenbau.hpp"

namespace tonkartei {

bool Info_Datei::schreibe_Datenbank(bool Fortschritt_zeigen) {
    if (modell_.konvertiert_in_Temp) {
        modell_.Meldung = "Die Datenbank wurde nur in ein Temp-Verzeichnis konvertiert." + Text(CRCR) +
                          "Alle Änderungen gehen beim schließen verloren.";
        ansicht_.informieren("Datenbank speichern", modell_.Meldung);
        try {
            dateien_.löschen(modell_.Temp_Info_Datei);
        } catch (const Dateifehler&) {
            // A temporary file that stays behind harms nobody.
        }
        modell_.konvertiert_in_Temp = false;
        return false;
    }
    bool ergebnis = Datei_schreiben(Fortschritt_zeigen);
    const auto weitere = [&](bool& geändert, const std::function<bool()>& schreiben) {
        if (!ergebnis || !geändert || !schreiben) return;
        ergebnis = schreiben();
        if (ergebnis) geändert = false;
    };
    weitere(modell_.Alben_geändert, Alben_schreiben);
    weitere(modell_.Ignorieren_geändert, Ignorieren_schreiben);
    if (Fortschritt_zeigen) fortschritt_.anzeigen(100);
    return ergebnis;
}

bool Info_Datei::Datei_schreiben(bool Fortschritt_zeigen) {
    const Text pfad = modell_.Pfad(Info_Datei_Name);
    try {
        if (dateien_.Datei_da(pfad)) dateien_.umbenennen(pfad, Info_Kopie_Name);
        const int nummer = kanäle_.öffnen_zum_Schreiben(pfad);
        Körper_schreiben(nummer, Fortschritt_zeigen);
        // On the disk before the copy goes: at every instant one whole collection exists.
        kanäle_.schließen(nummer, true);
        if (dateien_.Datei_da(Info_Kopie_Name)) dateien_.löschen(Info_Kopie_Name);
        const Text zugriff = modell_.Pfad(Zugriffsdatei_Name);
        if (dateien_.Datei_da(zugriff)) dateien_.löschen(zugriff);
        return true;
    } catch (const Dateifehler&) {
        // The file stays open and the copy where it is: nothing is rolled back, the user is told to look after it.
        modell_.Meldung = "Es ist ein Fehler beim Schreiben der Datenbank-Informations-Datei aufgetreten!" + Text(CRCR) +
                          "Eventuell ist der Datenträger schreibgeschützt?";
        ansicht_.informieren(Programmtitel, modell_.Meldung);
        return false;
    }
}

void Info_Datei::Körper_schreiben(int nummer, bool Fortschritt_zeigen) {
    kanäle_.schreibe_Zeile(nummer, Programmtitel);
    kanäle_.schreibe_Zeile(nummer, modell_.Programmversion);
    kanäle_.schreibe_Zahl(nummer, modell_.Anzahl_Kategorien);
    for (int k = 1; k <= modell_.Anzahl_Kategorien; ++k) kanäle_.schreibe_Zeile(nummer, modell_.Kategorien[k]);
    kanäle_.schreibe_Zahl(nummer, modell_.Anz_Kat_Schemas);
    for (int s = 1; s <= Schemas_maximal; ++s) {
        const Schema& schema = modell_.Schemas[s];
        kanäle_.schreibe_Zahl(nummer, schema.Anzahl);
        kanäle_.schreibe_Zeile(nummer, schema.Name);
        for (int i = 1; i <= schema.Anzahl; ++i) kanäle_.schreibe_Zahl(nummer, schema.Kategorien[i]);
    }
    kanäle_.schreibe_Zahl(nummer, modell_.Backup_Warnungs_Grenze);
    kanäle_.schreibe_Zahl(nummer, modell_.Anzahl_Lieder);
    if (Fortschritt_zeigen && modell_.Anzahl_Lieder > 0) fortschritt_.Text_setzen("Datenbank speichern...");
    Zeilenbau zeilen(kanäle_, nummer);
    for (Long n = 1; n <= modell_.Anzahl_Lieder; ++n) {
        const Lied& lied = std::as_const(modell_).Lieder[n];
        const Long sekunden = Sekunden_von(lied.Zeit);
        zeilen.Zahl(lied.Anzahl);
        zeilen.Zeile(lied.Artist);
        zeilen.Zahl(lied.Größe);
        zeilen.Zahl(lied.Kategorie);
        zeilen.Zeile(lied.Titel);
        zeilen.reine_Zahl(sekunden / 3600);
        zeilen.reine_Zahl(sekunden / 60 % 60);
        zeilen.reine_Zahl(sekunden % 60);
        if (Fortschritt_zeigen) fortschritt_.anzeigen(Prozent(n, modell_.Anzahl_Lieder));
    }
    zeilen.übergeben();
}

}  // namespace tonkartei
