#include "austausch/sicherung/portionserstellung.hpp"

#include "austausch/sicherung/backup_datenbank.hpp"
#include "austausch/sicherung/portionsdatei.hpp"
#include "austausch/sicherung/portionsplan.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {
namespace {

constexpr const char* Überschrift = "Portionsdateien erstellen";

Text Portionspfad(const Text& grundname, std::size_t nummer) { return grundname + std::to_string(nummer) + ".MBP"; }

}  // namespace

// Folder and beginning of the file names; empty when the user gave up.
Text Portionserstellung::Grundname() {
    const Text ordner = ansicht_.Verzeichnis_wählen("Verzeichnis der Positionsdateien:");
    if (ordner.empty()) return {};
    Text name = ansicht_.eingeben("Bitte geben sie den Dateinamen, ohne Erweiterung, für die Positionsdateien an",
                                  Überschrift, "MP3-BACKUP vom " + mittleres_Datum(rechner_.jetzt()));
    if (name.empty()) return {};
    for (char& zeichen : name)
        if (zeichen == ':' || zeichen == '\\' || zeichen == '?' || zeichen == '/') zeichen = '_';
    return mit_Trenner(ordner) + name + " - Portion ";
}

bool Portionserstellung::erstellen(const Portionsplan& plan, double P) {
    if (plan.Backup_Lieder == 0) {
        ansicht_.informieren(Überschrift, "Es sind keine Lieder  für dieses Backup vorgesehen.");
        return false;
    }
    if (P < plan.Minimale_Portion) {
        ansicht_.informieren(Überschrift, "Die minimale Größe einer Portion dieses Backups beträgt " +
                                              Zahltext(plan.Minimale_Portion) + " MB!");
        return false;
    }
    const Text grundname = Grundname();
    if (grundname.empty()) return false;
    const auto portionen = plan.Portionen(P);
    for (std::size_t i = 0; i < portionen.size(); ++i) {
        const Text pfad = Portionspfad(grundname, i + 1);
        try {
            datei_.schreiben(pfad, portionen[i]);
        } catch (const Dateifehler& fehler) {
            ansicht_.informieren(Programmtitel, fehler.mit_Pfad(pfad));
            return false;
        }
    }
    const bool mehrere = portionen.size() > 1;
    if (ansicht_.fragen(Überschrift, Text("Es wurde") + (mehrere ? "n" : "") + " " + std::to_string(portionen.size()) +
                                         " Portionsdatei" + (mehrere ? "en" : "") + " erstellt." + Text(CRCR) +
                                         "Soll gleich für die erste Portion eine Backup-Datenbank angelegt werden?"))
        datenbank_.Backup_Datenbank_anlegen(Portionspfad(grundname, 1));
    ansicht_.informieren("Backup-Warnung",
                         "Vergesen sie nicht Ihre Backup-Warnungs-Grenze für das nächste Backup "
                         "hochzusetzen (Optionen/Backup-Warnung)!");
    return true;
}

}  // namespace tonkartei
