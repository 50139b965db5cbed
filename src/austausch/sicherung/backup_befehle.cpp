#include "austausch/sicherung/backup_befehle.hpp"

#include <limits>
#include <set>
#include <string_view>
#include <utility>

#include "austausch/sicherung/backup_verzeichnis.hpp"
#include "datenbank/quell_datenbank.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

constexpr const char* Titel_erstellen = "Backup-Verzeichnis erstellen";
constexpr const char* Titel_erweitern = "Backup-Verzeichnis erweitern";

}  // namespace

void Backup_Befehle::Backup_Verzeichnis_erstellen() {
    if (!modell_.Datenbank_offen) return;
    if (verzeichnis_.vorhanden()) {
        fortschritt_.ansicht().informieren(Titel_erstellen,
                                           "Es existiert bereits ein Backup-Verzeichnis bei dieser Datenbank!");
        return;
    }
    if (!fortschritt_.ansicht().fragen(Titel_erstellen,
                                       "Das Backup-Verzeichnis dient zum vereinfachen zukünftiger Backups, "
                                       "wenn das Backup auf eine CD gebrannt wird." +
                                           Text(CRCR) +
                                           "Es wird ein Verzeichnis der bereits auf CD gesicherten "
                                           "MP3-Dateien erstellt, damit beim nächsten Backup nicht wieder erst alle "
                                           "CD's eingelegt werden müssen." +
                                           Text(CRCR) + "Wollen sie ein solches Backup-Verzeichnis erstellen?"))
        return;
    verzeichnis_.Einträge.clear();
    if (!verzeichnis_.Backup_Verzeichnis_schreiben()) return;
    if (fortschritt_.ansicht().fragen(Titel_erstellen, "Das Backup-Verzeichnis wurde erfolgreich angelegt." + Text(CRCR) +
                                                           "Wollen sie gleich ein Backup darin aufnehmen?"))
        Backup_Verzeichnis_erweitern();
}

void Backup_Befehle::Backup_Verzeichnis_erweitern() {
    if (!modell_.Datenbank_offen || !verzeichnis_.Backup_Verzeichnis_lesen()) return;
    fortschritt_.ansicht().informieren(Titel_erweitern,
                                       "Bitte geben sie das Verzeichnis an, wo sich das bereits fertige Backup befindet, "
                                       "mit dem das Backup-Verzeichnis erweitert werden soll.");
    const Text ordner = mit_Trenner(fortschritt_.ansicht().Verzeichnis_wählen("Verzeichnis des alten Backups:"));
    if (ordner.empty()) return;
    if (!quelle_.vorhanden(ordner)) {
        fortschritt_.ansicht().informieren(Titel_erweitern, "In diesem Verzeichnis wurde keine Datenbank gefunden.");
        return;
    }
    const auto backup = quelle_.lesen(ordner);
    if (!backup) return;
    const Long neue = aufnehmen(*backup);
    if (!verzeichnis_.Backup_Verzeichnis_schreiben()) return;
    fortschritt_.ansicht().informieren(Titel_erweitern,
                                       Text("Es wurde") + (neue == 1 ? Text(" 1 Lied") : "n " + Zahltext(neue) + " Lieder") +
                                           " zum Backup-Verzeichnis hinzugefügt.");
}

// How many of its songs are new to the directory.
Long Backup_Befehle::aufnehmen(const Bestand& backup) {
    auto& einträge = verzeichnis_.Einträge;
    std::set<std::pair<Text, Text>> bekannt;
    for (const auto& eintrag : einträge) bekannt.emplace(eintrag.Artist, eintrag.Titel);
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen("Backup-Verzeichnis erweitern...");
    Long neue = 0;
    for (Long nr = 1; nr <= backup.Anzahl_Lieder; ++nr) {
        const Lied& lied = backup.Lieder[nr];
        fortschritt_.anzeigen(Prozent(nr, backup.Anzahl_Lieder));
        if (bekannt.contains({lied.Artist, lied.Titel})) continue;
        if (einträge.size() == Backup_Verzeichnis_maximal) {
            fortschritt_.ansicht().informieren(Titel_erweitern, "Das Backup-Verzeichnis ist voll! Es können maximal " +
                                                                    Zahltext(Backup_Verzeichnis_maximal) +
                                                                    " Lieder aufgenommen werden!");
            break;
        }
        bekannt.emplace(lied.Artist, lied.Titel);
        einträge.push_back({lied.Artist, lied.Titel});
        ++neue;
    }
    return neue;
}

void Backup_Befehle::Backup_Warnung_ändern() {
    if (!modell_.Datenbank_offen) return;
    double KByte = 0;
    for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) KByte += modell_.Lieder[nr].Größe;
    const Long G = gerundet(KByte / 1024);
    const auto MB = [](Long wert) { return Zahltext(wert) + " MB"; };
    const Text antwort = fortschritt_.ansicht().eingeben(
        "Ab wieviel MB soll die nächste Backup-Warnung angezeigt werden?" + Text(CRCR) + "0= Backup-Warnung aus" + Text(CR) +
            "aktuelle Datenbankgröße: " + MB(G) + Text(CR) + "aktuelle Datenbankgröße + 650 MB: " + MB(G + 650) + Text(CR) +
            "aktuelle Datenbankgröße + 700 MB: " + MB(G + 700),
        "Backup-Warnung ändern", Zahltext(modell_.Backup_Warnungs_Grenze));
    if (antwort.empty()) return;
    // What no limit can hold is as good as not understood: the old one stays.
    const double grenze = Zahlwert(antwort);
    if (grenze >= std::numeric_limits<Long>::min() && grenze <= std::numeric_limits<Long>::max())
        modell_.Backup_Warnungs_Grenze = gerundet(grenze);
}

}  // namespace tonkartei
