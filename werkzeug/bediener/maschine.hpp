// The machine under the operated program: simulated or real, with a record of the calls to its other side.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "bediener/ansicht_bediener.hpp"
#include "plattform/plattform.hpp"
#include "probe/mitschrift.hpp"

namespace tonkartei {

class Dateisystem_Probe;
class Fenstersystem_Probe;
class Rechner_Probe;
class Störungen;

struct Spielerauskunft {
    Text Klasse, Datei;
    int Status = 0, Position = 0, Länge = 0, Lautstärke = 0;
    bool sichtbar = false;
};

// What can be staged; on the simulated machine only.
struct Probe {
    tonkartei::Rechner_Probe& Rechner;
    tonkartei::Dateisystem_Probe& Dateien;
    tonkartei::Fenstersystem_Probe& Fenster;
    tonkartei::Störungen& Störungen;
};

struct Maschinenwahl {
    bool echt = false;
    Text wurzel;  // scratch folder, with trailing separator
    std::optional<Text> ordner;
    Zeitpunkt uhr{2026, 1, 15, 12, 0, 0};
    bool zweite_Instanz = false;
    // Ends the process on the spot.
    std::function<void()> abstürzen;
};

struct Maschine {
    virtual ~Maschine() = default;

    virtual Plattform plattform() = 0;
    virtual Uhrwerk& uhr() = 0;
    virtual Mitschrift& mitschrift() = 0;
    // Null on the real machine.
    virtual Probe* probe() = 0;
    // In window order.
    virtual std::vector<Spielerauskunft> Spielerliste() = 0;
    // Keys with their default values, by the path below the root of all.
    virtual std::vector<std::pair<Text, Text>> registrierung() const = 0;
    // A setting, by its name below the program's own key. False for a number that is none.
    bool Einstellung_setzen(const Text& schlüssel, const Text& wert, bool dword);
    // Whom the shell asks when names collide.
    virtual void Ansicht_setzen(Ansicht& ansicht) = 0;
};

std::unique_ptr<Maschine> Maschine_bauen(const Maschinenwahl& wahl);

}  // namespace tonkartei
