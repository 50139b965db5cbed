#include "datenbank/modell.hpp"
#include "programm/menuetafel.hpp"

namespace tonkartei {
namespace {

Menüzeile Listeneinstellungen() {
    std::vector<Menüzeile> suche =
        Reihe("Liste_aktualisieren", {"immer &aktualisieren", "ab &2 Buchstaben aktualisieren",
                                      "ab &3 Buchstaben aktualisieren", "ab &4 Buchstaben aktualisieren"});
    suche.push_back(Strich("Listensuche_Strich1"));
    suche.push_back(Eintrag("Listensuche_unvisible", "Beim suchen &ausblenden"));
    return Untermenü("OMP_Listeneinstellungen", "&Listen-Einstellungen",
                     {Untermenü("UMP_Doppelclick", "Listen-&Doppelklick...",
                                Reihe("DblClk", {"Lied mit WinAmp &starten", "Lied in &Playliste aufnehemen", "&beides"})),
                      Untermenü("OMP_Listensuche", "&Listen-Suche", std::move(suche)),
                      Eintrag("Menü_Liste2_animiert", "&Alben-Titel-Liste animieren")});
}

Menüzeile Kategorien() {
    std::vector<Menüzeile> schemas;
    for (int n = 0; n <= Schemas_maximal; ++n) {
        const Text text = n == 0 ? Text("&keine Schemas") : "&" + Zahltext(n) + (n == 1 ? " Schema" : " Schemas");
        schemas.push_back(Eintrag("Anz_Kat_Schemas", text, n));
    }
    return Untermenü("UMP_Kategorien", "&Kategorien...",
                     {Untermenü("UMP_Katrechts", "&Rechtsklick...",
                                Reihe("Katrechts", {"Nur diese Kategorie &wählen", "aktuellem &Lied zuweisen"})),
                      Untermenü("UMP_Kategorie_Schemas", "Anzahl &Schemas...", std::move(schemas)),
                      Eintrag("Kat_Schema_zuweisen", "Kategorie-Schema &zuweisen"),
                      Eintrag("Kat_Schema_Kurzbeschreibung", "Kategorie-Schema-&Kurzbeschreibung"),
                      Strich("Kategorien_Strich1"), Eintrag("Kategorien_merken", "Kategorien beim beenden &merken"),
                      Eintrag("Kat_wechsel_bestätigen", "Kategorie w&echsel bestätigen")});
}

Menüzeile Allgemeines() {
    std::vector<Menüzeile> minimieren =
        Reihe("Fenster_minimieren", {"nur in die &Taskleiste", "nur in den &System-Tray", "in &beide"});
    minimieren.push_back(Strich("Fenster_minimieren_Strich1"));
    minimieren.push_back(Eintrag("Winamp_Mini_verstecken", "WinAmp &verstecken"));
    return Untermenü(
        "UMP_Allgemeines", "&Allgemeines...",
        {Untermenü("UMP_Lieder_Namen", "Lieder &Namen/Größe...",
                   Reihe("LN_lesen", {"bei jedem &Start neu einlesen", "beim Start von &Datei lesen"})),
         Untermenü("UMP_Fenster_minimieren", "Fenster &minimieren...", std::move(minimieren)),
         Untermenü("UMP_Farben", "&Farben...",
                   {Eintrag("Kategorie_Farbe", "hervorgehobene &Kategorie..."),
                    Eintrag("automatische_Kategorie_Farbe", "&automatische Kategorien..."),
                    Eintrag("markierte_Farbe", "&markierte Farbe..."),
                    Eintrag("markierte_Listen_Farbe", "markierte &Listen-Farbe")}),
         Eintrag("Systray_always", "System-&Tray Symbol immer sichtbar"),
         Eintrag("Mousemove_markierung", "&Objekt unter der Maus markieren"),
         Eintrag("Position_merken", "&Position beim beenden merken"), Eintrag("Random_Prozent", "&Random-Einstellungen"),
         Eintrag("Zeit_Anzahl", "&Zeit zum erhöhen der Anzahl"),
         Eintrag("Papierkorb_löschen", "Lieder &löschen in den Papierkorb")});
}

Menüzeile WinAmp() {
    return Untermenü("UMP_WinAmp", "&Winamp...",
                     {Eintrag("WinAmp_Verzeichnis_wählen", "&Verzeichnis..."), Strich("WinAmp_Strich1"),
                      Eintrag("Menü_WinAmp_Fernsteuerung", "&Fernsteuerung"),
                      Eintrag("Menü_WinAmp_Fernsteuerung_animiert", "Fernsteuerung &animiert auf und zu"),
                      Eintrag("WinAmp_FS_Lautstärke", "Fernsteuerung-&Lautstärke bei WinAmp-Start setzen"),
                      Strich("WinAmp_Strich2"), Eintrag("Menü_WinAmp_verstecken", "verstec&ken"),
                      Untermenü("UMP_WinAmp_beenden", "Be&enden...",
                                Reihe("Menü_WinAmp_Beenden",
                                      {"&Nie", "&Immer", "Nur wenn ge&stoppt", "Nur wenn &Pause oder gestoppt"}))});
}

}  // namespace

Menüzeile Optionen_Tafel() {
    return Untermenü("OMP_Optionen", "&Optionen",
                     {Listeneinstellungen(), Kategorien(), Allgemeines(), WinAmp(), Strich("Optionen_Strich1"),
                      Eintrag("Backup_Warnung_ändern", "nächste &Backup-Warnung"),
                      Eintrag("Menü_Display_Setup", "&Display/Tasten-Einstellungen..."), Strich("Optionen_Strich2"),
                      Eintrag("Uninstall", "&Uninstall")});
}

}  // namespace tonkartei
