#include "austausch/austausch.hpp"
#include "playlist/playlist.hpp"
#include "programm/anschluesse.hpp"

namespace tonkartei {
namespace {

void Sicherung_anschließen(Sicherung& sicherung, Hauptmenü& menü) {
    menü.Befehl("Menü_Backup_Portionen", [&sicherung] { sicherung.portionen.Menü_Backup_Portionen(); });
    menü.Befehl("Menü_Backup_anlegen", [&sicherung] { sicherung.datenbank.Menü_Backup_anlegen(); });
    menü.Befehl("Backup_Verzeichnis_erstellen", [&sicherung] { sicherung.befehle.Backup_Verzeichnis_erstellen(); });
    menü.Befehl("Backup_Verzeichnis_erweitern", [&sicherung] { sicherung.befehle.Backup_Verzeichnis_erweitern(); });
    menü.Befehl("Backup_Warnung_ändern", [&sicherung] { sicherung.befehle.Backup_Warnung_ändern(); });
}

void Vergleich_anschließen(Vergleich& vergleich, Hauptmenü& menü) {
    menü.Befehl("Vergleichsdatei_erstellen", [&vergleich] { vergleich.datei.Vergleichsdatei_erstellen(); });
    menü.Befehl("Datenbank_vergleichen", [&vergleich] { vergleich.befehl.Datenbank_vergleichen(); });
    menü.Befehl("Anforderungs_Datenbank_erstellen",
                [&vergleich] { vergleich.anforderung.Anforderungs_Datenbank_erstellen(); });
}

}  // namespace

void Austausch_anschließen(Austausch& austausch, Playlist& playlist, Tonkartei& fenster) {
    Hauptmenü& menü = fenster.Menüleiste;
    Sicherung_anschließen(austausch.sicherung, menü);
    Vergleich_anschließen(austausch.vergleich, menü);

    Abgleich& abgleich = austausch.abgleich;
    abgleich.fenster.Lieder_geändert.verbinden([&fenster, &playlist] {
        fenster.Lieder.aktualisiere_Liste();
        playlist.aktualisieren();
    });
    menü.Befehl("Menü_Live_abgleich", [&abgleich] { abgleich.befehl.Menü_Live_abgleich(); });
    menü.Befehl("zeige_Ignorieren_Liste", [&abgleich, &fenster] { abgleich.zeige_Ignorieren_Liste(fenster); });

    Auflösung& auflösung = austausch.auflösung;
    menü.Befehl("Datenbank_auflösen", [&auflösung, &fenster] {
        if (auflösung.fenster.Datenbank_auflösen()) fenster.Lieder.aktualisiere_Liste();
    });
    menü.Befehl("Kategorie_abgleich", [&auflösung, &fenster] {
        if (auflösung.abgleich.Kategorie_abgleich()) fenster.Lieder.aktualisiere_Liste();
    });
}

}  // namespace tonkartei
