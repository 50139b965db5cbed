// File operations by a real shell; the starting of processes is simulated.
#pragma once

#include "plattform/shell.hpp"
#include "probe/fenstersystem_probe.hpp"
#include "probe/stoerung.hpp"

namespace tonkartei {

class Shell_Probe : public Shell {
public:
    Shell_Probe(Shell& dateien, Fenstersystem_Probe& fenster, Störungen& störungen)
        : dateien_(dateien), fenster_(fenster), störungen_(störungen) {}

    Shell_Ergebnis SHFileOperationA(const Shell_Vorgang& vorgang) override { return dateien_.SHFileOperationA(vorgang); }
    void starten(const Text& befehl, int fensterstil) override;

private:
    Shell& dateien_;
    Fenstersystem_Probe& fenster_;
    Störungen& störungen_;
};

}  // namespace tonkartei
