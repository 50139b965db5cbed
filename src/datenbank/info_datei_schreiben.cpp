#include <utility>

#include "datenbank/info_datei.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/version.hpp"
#include "grundlagen/versuchen.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

bool Info_Datei::schreibe_Datenbank(bool Fortschritt_zeigen) {
    zu_retten_ = false;
    if (modell_.konvertiert_in_Temp) {
        ansicht_.informieren("Datenbank speichern", "Die Datenbank wurde nur in ein Temp-Verzeichnis konvertiert." +
                                                        Text(CRCR) + "Alle Änderungen gehen beim schließen verloren.");
        // A temporary file that stays behind harms nobody.
        versuchen([&] { dateien_.löschen(modell_.Temp_Info_Datei); });
        modell_.konvertiert_in_Temp = false;
        return false;
    }
    bool ergebnis = Datei_schreiben(Fortschritt_zeigen);
    zu_retten_ = !ergebnis;
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
        const bool alte_da = dateien_.Datei_da(pfad);
        if (alte_da) dateien_.umbenennen(pfad, Info_Kopie_Name);
        const int nummer = kanäle_.öffnen_zum_Schreiben(pfad);
        Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion);
        if (Fortschritt_zeigen && modell_.Anzahl_Lieder > 0) fortschritt_.Text_setzen("Datenbank speichern...");
        Liedzähler zähler;
        if (Fortschritt_zeigen) zähler = [this](Long nr, Long anzahl) { fortschritt_.anzeigen(Prozent(nr, anzahl)); };
        Info_Körper_schreiben(kanäle_, nummer, std::as_const(modell_), zähler);
        // On the disk before the copy goes: at every instant one whole collection exists.
        kanäle_.schließen(nummer, true);
        const bool kopie_da = dateien_.Datei_da(Info_Kopie_Name);
        if (kopie_da && alte_da) dateien_.löschen(Info_Kopie_Name);
        Gerettetes.gespeichert();
        // Not made by this save: the only trace of another one, which did not come to its end.
        if (kopie_da && !alte_da) Gerettetes.Kopie_übernehmen(Info_Kopie_Name);
        const Text zugriff = modell_.Pfad(Zugriffsdatei_Name);
        if (dateien_.Datei_da(zugriff)) dateien_.löschen(zugriff);
        return true;
    } catch (const Dateifehler&) {
        // The file stays open and the copy where it is: nothing is rolled back, the user is told to look after it.
        ansicht_.informieren(Programmtitel,
                             "Es ist ein Fehler beim Schreiben der Datenbank-Informations-Datei aufgetreten!" + Text(CRCR) +
                                 "Eventuell ist der Datenträger schreibgeschützt?");
        return false;
    }
}

}  // namespace tonkartei
