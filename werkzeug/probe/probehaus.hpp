// The probe's machine, written down call by call, with the program's house on it: for tests of single rooms.
#pragma once

#include "datenbank/haus.hpp"
#include "echt.hpp"
#include "probe/antwortende_ansicht.hpp"
#include "probe/dateisystem_probe.hpp"
#include "probe/fenstersystem_probe.hpp"
#include "probe/mitschrift.hpp"
#include "probe/rechner_probe.hpp"
#include "probe/shell_probe.hpp"
#include "testordner.hpp"

namespace tonkartei {

// A player's program lies in the folder. The open collection is that folder, too, and has no songs.
struct Probehaus {
    explicit Probehaus(const Zeitpunkt& uhr = {2026, 1, 15, 12, 0, 0}) : rechner(uhr, ordner.pfad(), false) {
        ordner.datei("WinAmp.Exe");
        einstellungen.WinAmp_Verzeichnis = modell.Datenbank_Verzeichnis = ordner.pfad();
        modell.Datenbank_offen = true;
        dateien.aktuellen_Ordner_setzen(ordner.pfad());
    }

    Testordner ordner;
    Antwortende_Ansicht ansicht;
    Störungen störungen{[] {}};
    Fenstersystem_Probe fenster;
    Rechner_Probe rechner;

private:
    Dateisystem_echt echte_Dateien_;
    Registrierung_echt registrierung_{ordner.pfad("einstellungen.reg")};

public:
    Dateisystem_Probe dateien{echte_Dateien_, störungen};

private:
    Papierkorb_echt korb_{dateien, ordner.pfad("korb")};
    Shell_echt echte_Shell_{dateien, korb_};
    Shell_Probe shell_{echte_Shell_, fenster, störungen};

public:
    Mitschrift mitschrift{[this] { return rechner.Uhr(); }};

private:
    Fenstersystem_Mitschrift fenster_geschrieben_{fenster, mitschrift};
    Shell_Mitschrift shell_geschrieben_{shell_, mitschrift};
    Rechner_Mitschrift rechner_geschrieben_{rechner, mitschrift};

public:
    Haus haus{{dateien, registrierung_, fenster_geschrieben_, shell_geschrieben_, rechner_geschrieben_}, ansicht};
    Modell& modell = haus.modell;
    Einstellungen& einstellungen = haus.einstellungen;
};

}  // namespace tonkartei
