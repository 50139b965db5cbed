#include "wiedergabe/winamp/winamp_starter.hpp"

#include "datenbank/modell.hpp"
#include "datenbank/version.hpp"
#include "grundlagen/fehler.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"
#include "wiedergabe/winamp/winamp.hpp"
#include "wiedergabe/winamp/winamp_programm.hpp"

namespace tonkartei {

WinAmp_Starter::WinAmp_Starter(Modell& modell, Dateisystem& dateien, Ansicht& ansicht, WinAmp& winamp,
                               WinAmp_Programm& programm)
    : modell_(modell), dateien_(dateien), ansicht_(ansicht), winamp_(winamp), programm_(programm) {}

bool WinAmp_Starter::starte_WinAmp(const Text& Parameter) {
    modell_.Meldung.clear();
    if (programm_.WinAmp_existiert()) {
        winamp_.vor_dem_Start();
        try {
            programm_.starten(Parameter);
        } catch (const Dateifehler& fehler) {
            // The program's path, not the failure's own: that may be the whole command text.
            modell_.Meldung = fehler.mit_Pfad(programm_.Pfad());
            ansicht_.informieren(Programmtitel, modell_.Meldung);
            return false;
        }
        Takt();
        winamp_.nach_dem_Start();
    } else {
        modell_.Meldung = "WinAmp wurde nicht gefunden!" + Text(CRCR) +
                          "Das Verzeichnis muß unter Optionen/WinAmp-Verzeichnis eingestellt werden!";
    }
    // The tick may have started something itself, whose message then shows up here.
    if (modell_.Meldung.empty()) return true;
    ansicht_.informieren("Fehler", modell_.Meldung);
    return false;
}

bool WinAmp_Starter::starte_WinAmp_Datei(const Text& Datei) {
    // A quotation mark in a name, which not every system forbids, is doubled.
    if (dateien_.Datei_da(Datei)) return starte_WinAmp(in_Anführungszeichen(ersetzt(Datei, "\"", "\"\"")));
    modell_.Meldung =
        "Die Datei " + anzeigbar(Datei) + " wurde nicht gefunden." + Text(CRCR) + "WinAmp wird nicht gestartet.";
    return false;
}

void WinAmp_Starter::starte_WinAmp_Liste(const Text& Datei) {
    starte_WinAmp_Datei(Datei);
    Liste_gestartet();
}

}  // namespace tonkartei
