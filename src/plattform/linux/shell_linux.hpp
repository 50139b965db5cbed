// The shell on Linux: file operations, and processes that outlive this one.
#pragma once

#include "plattform/schale_dateien.hpp"

namespace tonkartei {

class Shell_Linux : public Shell {
public:
    // Without a question handed in, what would ask is aborted.
    Shell_Linux(Dateisystem& dateien, Papierkorb& papierkorb, Shell_Frage frage = {});
    // The user interface is there later than the machine.
    void Frage_setzen(Shell_Frage frage) { frage_ = std::move(frage); }

    Shell_Ergebnis SHFileOperationA(const Shell_Vorgang& vorgang) override;
    // The process gets a session of its own and no open files of this one. The window style has no meaning here: how a
    // window appears is between the process and the desktop.
    void starten(const Text& befehl, int fensterstil) override;

private:
    Dateisystem& dateien_;
    Papierkorb& papierkorb_;
    Shell_Frage frage_;
};

}  // namespace tonkartei
