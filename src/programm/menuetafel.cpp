#include "programm/menuetafel.hpp"

namespace tonkartei {
namespace {

Menüzeile Datei() {
    return Untermenü("OMP_Datei", "&Datei",
                     {Eintrag("Datenbank_neu", "Datenbank erstelle&n"), Eintrag("öffne_Datenbank", "Datenbank ö&ffnen..."),
                      Eintrag("Menü_schreibe_Datenbank", "Datenbank &speichern"),
                      Eintrag("Datenbank_auflösen", "Datenbank &auflösen"), Strich("Datei_Strich1"),
                      Untermenü("OMP_Backup", "&Backup...",
                                {Eintrag("Menü_Backup_Portionen", "&Portionsdatei(en) erstellen"),
                                 Eintrag("Menü_Backup_anlegen", "&Backup-Datenbank erstellen"),
                                 Eintrag("Backup_Verzeichnis_erstellen", "Backup-&Verzeichnis erstellen"),
                                 Eintrag("Backup_Verzeichnis_erweitern", "Backup-Verzeichnis &erweitern")}),
                      Untermenü("OMP_Datenbank_vergleichen", "Datenbank &vergleichen/abgleichen...",
                                {Eintrag("Vergleichsdatei_erstellen", "Datenbank-Vergleichsdatei &erstellen"),
                                 Eintrag("Datenbank_vergleichen", "Datenbank &vergleichen"),
                                 Eintrag("Anforderungs_Datenbank_erstellen", "&Anforderungs-Datenbank erstellen"),
                                 Strich("Vergleich_Strich1"), Eintrag("Menü_Live_abgleich", "&Live abgleich mit Datenbank"),
                                 Eintrag("zeige_Ignorieren_Liste", "Live abgleich &Ignorieren-Liste"),
                                 Strich("Vergleich_Strich2"), Eintrag("Kategorie_abgleich", "&Kategorien vergleichen")}),
                      Strich("Datei_Strich2"), Eintrag("starte_DJ_Modus_alt", "DJ-Modus (Alt)"),
                      Eintrag("starte_DJ_Modus", "&DJ-Modus"), Strich("Datei_Strich3"), Eintrag("MP_Beenden", "Be&enden")});
}

Menüzeile Bearbeiten() {
    return Untermenü(
        "OMP_Bearbeiten", "&Bearbeiten",
        {Eintrag("Artist_Titel_Clipboard", "aktueller Artist und Titel in Zwischenablage"), Strich("Bearbeiten_Strich1"),
         Eintrag("zeige_Playlist", "eigene WinAmp &Playlist..."), Eintrag("zentriere_Playlist", "Playliste &zentrieren"),
         Strich("Bearbeiten_Strich2"), Eintrag("zeige_Alben_Verwaltung", "&Alben-Verwaltung..."),
         Eintrag("Alben_Verwaltung_zentrieren", "Alben-&Verwaltung zentrieren"),
         Eintrag("Menü_starte_Album", "Album &spielen..."), Strich("Bearbeiten_Strich3"),
         Eintrag("zentrieren", "Datenbank &zentrieren")});
}

// Also the pop-up menu of a song.
Menüzeile aktuelles() {
    return Untermenü("UMP_aktuelles", "&aktuelles...",
                     {Eintrag("Menü_Lied_kopieren", "&kopieren"), Eintrag("Menü_Lied_löschen", "&löschen"),
                      Eintrag("aktuellen_Namen_einlesen", "Name/Größe/Zeit &neu einlesen"),
                      Eintrag("Menü_Lied_Kategorie", "Kategorie &ändern"), Eintrag("Menü_Lied_Anzahl", "&Anzahl Reset"),
                      Eintrag("Menü_Lied_Info", "&Info"), Eintrag("Menü_Lied_tauschen", "aus&tauschen"),
                      Strich("aktuelles_Strich1"), Eintrag("Menü_add_to_Playlist", "zur &Playlist hinzufügen")});
}

Menüzeile alle_in_der_Liste() {
    return Untermenü(
        "UMP_Liste", "alle in der &Liste...",
        {Eintrag("Lieder_kopieren", "&kopieren"), Eintrag("alle_Lieder_löschen", "&löschen"),
         Eintrag("Lieder_Kategorie_ändern", "Kategorie &ändern"), Eintrag("Lieder_Anzahl", "&Anzahl Reset"),
         Eintrag("alle_Anzahl_ändern", "An&zahl ändern"), Eintrag("Liste_einlesen", "Namen/Größen/Zeiten &neu einlesen"),
         Eintrag("Durchschnitts_Anzahl", "&Durchschnitts-Anzahl"), Strich("Liste_Strich1"),
         Eintrag("Lieder_add_to_Playlist", "zur &Playlist hinzufügen"),
         Eintrag("Lieder_add_to_Album", "zum aktuellen &Album hinzufügen"),
         Eintrag("ASCII_Datei", "Liedernamen in &Datei ausgeben")});
}

Menüzeile Lieder() {
    return Untermenü(
        "OMP_Lieder", "&Lieder",
        {Untermenü("UMP_Lieder_hinzufügen", "&hinzufügen...",
                   {Eintrag("add_Datenbank", "von &Datenbank"), Eintrag("Lieder_hinzufügen_Playlist", "von &Playlist..."),
                    Eintrag("Lieder_hinzufügen_Verzeichnis", "von &Verzeichnis...")}),
         aktuelles(), alle_in_der_Liste(), Strich("Lieder_Strich1"),
         Eintrag("Lieder_Namen_einlesen", "alle Namen/Größen/Zeiten &neu einlesen"),
         Eintrag("Statistik_anzeigen", "&Statistik"), Eintrag("zeige_Random_Liste", "&Heute gespielten..."),
         Eintrag("Lieder_ab_Datum", "ab &Datum..."), Strich("Lieder_Strich2"),
         Untermenü("UMP_Wartung", "&Wartung/Fehlersuche",
                   {Eintrag("Check_DB", "Namen/Größen/Zeiten mit MP3's &vergleichen"),
                    Eintrag("Lücken_füllen", "&Lücken suchen/auffüllen"), Strich("Wartung_Strich1"),
                    Eintrag("zeige_Kategorie_Alle", "zeige falsche &Kategorien (Alle)"),
                    Eintrag("zeige_Zeit_null", "zeige mit &Zeit 00:00"), Strich("Wartung_Strich2"),
                    Eintrag("doppelte_Namen_anzeigen", "doppelte (Artist &und Titel) anzeigen"),
                    Eintrag("doppelte_Artisten", "doppelte &Artisten anzeigen"),
                    Eintrag("doppelte_Titel", "doppelte &Titel anzeigen"),
                    Eintrag("doppelte_anzeigen", "&doppelte (Datum und Größe) anzeigen")})});
}

Menüzeile Hilfe() {
    return Untermenü(
        "OMP_Hilfe", "&?",
        {Eintrag("zeige_Info", "&Info"), Eintrag("zeige_Parameter", "Kommandozeilen-Parameter"), Strich("Hilfe_Strich1"),
         Eintrag("zeige_Handbuch", "&Handbuch"), Eintrag("Liedwechsel_melden", "&Liedwechsel melden")});
}

}  // namespace

std::vector<Menüzeile> Reihe(const Text& name, std::initializer_list<const char*> texte) {
    std::vector<Menüzeile> reihe;
    for (const char* text : texte) reihe.push_back(Eintrag(name, text, static_cast<int>(reihe.size()) + 1));
    return reihe;
}

std::vector<Menüzeile> Menütafel() { return {Datei(), Bearbeiten(), Lieder(), Optionen_Tafel(), Hilfe()}; }

}  // namespace tonkartei
