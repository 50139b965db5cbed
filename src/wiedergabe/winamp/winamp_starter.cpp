#include "wiedergabe/winamp/winamp_starter.hpp"

#include "datenbank/version.hpp"
#include "grundlagen/fehler.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"
#include "wiedergabe/winamp/winamp.hpp"
#include "wiedergabe/winamp/winamp_programm.hpp"

namespace tonkartei {

WinAmp_Starter::WinAmp_Starter(Dateisystem& dateien, Ansicht& ansicht, WinAmp& winamp, WinAmp_Programm& programm)
    : dateien_(dateien), ansicht_(ansicht), winamp_(winamp), programm_(programm), Meldung_(ansicht) {}

bool WinAmp_Starter::starte_WinAmp(const Text& Parameter) {
    Meldung_.text.clear();
    if (programm_.WinAmp_existiert()) {
        winamp_.vor_dem_Start();
        try {
            programm_.starten(Parameter);
        } catch (const Dateifehler& fehler) {
            // The program's path, not the failure's own: that may be the whole command text.
            ansicht_.informieren(Programmtitel, fehler.mit_Pfad(programm_.Pfad()));
            return false;
        }
        Takt();
        winamp_.nach_dem_Start();
    } else {
        Meldung_.text = "WinAmp wurde nicht gefunden!" + Text(CRCR) +
                        "Das Verzeichnis muß unter Optionen/WinAmp-Verzeichnis eingestellt werden!";
    }
    // The tick may have started something itself, whose message then shows up here.
    if (Meldung_.text.empty()) return true;
    ansicht_.informieren("Fehler", Meldung_.text);
    return false;
}

bool WinAmp_Starter::starte_WinAmp_Datei(const Text& Datei) {
    // A quotation mark in a name, which not every system forbids, is doubled.
    if (dateien_.Datei_da(Datei)) return starte_WinAmp(in_Anführungszeichen(ersetzt(Datei, "\"", "\"\"")));
    Meldung_.text = "Die Datei " + anzeigbar(Datei) + " wurde nicht gefunden." + Text(CRCR) + "WinAmp wird nicht gestartet.";
    return false;
}

void WinAmp_Starter::starte_WinAmp_Liste(const Text& Datei) {
    starte_WinAmp_Datei(Datei);
    Liste_gestartet();
}

}  // namespace tonkartei
