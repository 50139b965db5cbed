#include "austausch/sicherung/backup_verzeichnis.hpp"

#include "datenbank/info_koerper.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr const char* Kennung = "Backup-Verzeichnis";
constexpr const char* Titel_lesen = "Backup-Verzeichnis lesen";

Text Fehlermeldung(const char* was) {
    return "Es ist ein Fehler aufgetreten!" + Text(CRCR) + was + Text(CRCR) + "Bitte kontaktieren sie den Autor!";
}

}  // namespace

bool Backup_Verzeichnis::vorhanden() const { return dateien_.Datei_da(modell_.Pfad(Backup_Verzeichnis_Name)); }

bool Backup_Verzeichnis::Backup_Verzeichnis_lesen() {
    Ansicht& ansicht = fortschritt_.ansicht();
    if (!vorhanden()) {
        ansicht.informieren(Titel_lesen, "Für diese Datenbank existiert noch kein Backup-Verzeichnis!");
        return false;
    }
    Einträge.clear();
    int nummer = 0;
    std::optional<Text> meldung;
    try {
        nummer = kanäle_.öffnen_zum_Lesen(modell_.Pfad(Backup_Verzeichnis_Name));
        meldung = Inhalt_lesen(nummer);
    } catch (const Laufzeitfehler&) {
        meldung = "Es ist ein Fehler beim lesen des Backup-Verzeichnisses aufgetreten!";
    }
    kanäle_.aufgeben(nummer);
    if (meldung) ansicht.informieren(Titel_lesen, *meldung);
    return true;
}

// What is wrong with its head, if anything.
std::optional<Text> Backup_Verzeichnis::Inhalt_lesen(int nummer) {
    if (kanäle_.lese_Zeile(nummer) != Programmtitel)
        return Fehlermeldung("Die Backup-Verzeichnis-Datei wurde nicht von diesem Prorgramm erstellt!");
    kanäle_.lese_Zeile(nummer);  // Every version passes: the layout never changed.
    if (kanäle_.lese_Zeile(nummer) != Kennung) return Fehlermeldung("Die Backup-Verzeichnis-Datei hat einen Fehler!");
    const Long anzahl = kanäle_.lese_Long(nummer);
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen("Backup-Verzeichnis lesen...");
    for (Long i = 1; i <= anzahl; ++i) {
        if (i > Backup_Verzeichnis_maximal) throw Laufzeitfehler(Fehler_Index);
        Eintrag eintrag;
        eintrag.Artist = kanäle_.lese_Zeile(nummer);
        eintrag.Titel = kanäle_.lese_Zeile(nummer);
        Einträge.push_back(std::move(eintrag));
        fortschritt_.anzeigen(Prozent(i, anzahl));
    }
    return std::nullopt;
}

bool Backup_Verzeichnis::Backup_Verzeichnis_schreiben() {
    const Text pfad = modell_.Pfad(Backup_Verzeichnis_Name);
    int nummer = 0;
    try {
        const Fortschritts_Ende ende(fortschritt_);
        if (dateien_.Datei_da(pfad)) dateien_.umbenennen(pfad, Backup_Kopie_Name);
        nummer = kanäle_.öffnen_zum_Schreiben(pfad);
        fortschritt_.Text_setzen("Backup-Verzeichnis schreiben...");
        Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion, Kennung);
        const auto anzahl = static_cast<std::int64_t>(Einträge.size());
        kanäle_.schreibe_Zahl(nummer, anzahl);
        std::int64_t geschrieben = 0;
        for (const Eintrag& eintrag : Einträge) {
            kanäle_.schreibe_Zeile(nummer, eintrag.Artist);
            kanäle_.schreibe_Zeile(nummer, eintrag.Titel);
            fortschritt_.anzeigen(Prozent(static_cast<double>(++geschrieben), static_cast<double>(anzahl)));
        }
        // On the disk before the copy goes: at every instant one whole directory exists.
        kanäle_.schließen(nummer, true);
        if (dateien_.Datei_da(Backup_Kopie_Name)) dateien_.löschen(Backup_Kopie_Name);
        return true;
    } catch (const Dateifehler&) {
        kanäle_.aufgeben(nummer);
    }
    fortschritt_.ansicht().informieren("Backup-Verzeichnis",
                                       "Es ist ein Fehler beim schreiben des Backup-Verzeichnisses aufgetreten!");
    return false;
}

}  // namespace tonkartei
