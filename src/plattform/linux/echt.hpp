// This machine, by the names that are the same for every machine a program can be built for.
#pragma once

#include "plattform/linux/aufruf.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "plattform/linux/endesignale.hpp"
#include "plattform/linux/fenstersystem_linux.hpp"
#include "plattform/linux/papierkorb_freedesktop.hpp"
#include "plattform/linux/rechner_linux.hpp"
#include "plattform/linux/registrierung_linux.hpp"
#include "plattform/linux/shell_linux.hpp"
#include "plattform/linux/spielerort.hpp"
#include "plattform/linux/xdg.hpp"

namespace tonkartei {

using Dateisystem_echt = Dateisystem_Linux;
using Registrierung_echt = Registrierung_Linux;
using Fenstersystem_echt = Fenstersystem_Linux;
using Papierkorb_echt = Papierkorb_Freedesktop;
using Shell_echt = Shell_Linux;
using Rechner_echt = Rechner_Linux;

// Where the settings lie.
inline Text Einstellungsort() { return Einstellungsordner() + "einstellungen.reg"; }
// The folder in which the player of this build is found: a link to it is put into this one.
inline Text Spieler_bereitstellen(const Text& ordner) {
    if (const Text spieler = Spieler_Pfad(); !spieler.empty()) WinAmp_Verknüpfung_anlegen(ordner, spieler);
    return ordner;
}

}  // namespace tonkartei
