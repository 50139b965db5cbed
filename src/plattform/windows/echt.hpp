// This machine, by the names that are the same for every machine a program can be built for.
#pragma once

#include "plattform/windows/aufruf.hpp"
#include "plattform/windows/dateisystem_windows.hpp"
#include "plattform/windows/endesignale.hpp"
#include "plattform/windows/fenstersystem_windows.hpp"
#include "plattform/windows/papierkorb_windows.hpp"
#include "plattform/windows/rechner_windows.hpp"
#include "plattform/windows/registrierung_windows.hpp"
#include "plattform/windows/shell_windows.hpp"

namespace tonkartei {

using Dateisystem_echt = Dateisystem_Windows;
using Registrierung_echt = Registrierung_Windows;
using Fenstersystem_echt = Fenstersystem_Windows;
using Papierkorb_echt = Papierkorb_Windows;
using Shell_echt = Shell_Windows;
using Rechner_echt = Rechner_Windows;

// Where the settings lie: the user's own tree.
inline Text Einstellungsort() { return {}; }
// The folder in which the player of this build is found: its own.
inline Text Spieler_bereitstellen(const Text&) { return Ordner_von(Programmpfad()); }

}  // namespace tonkartei
