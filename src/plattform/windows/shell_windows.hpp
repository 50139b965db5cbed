// The shell: file operations, and processes that outlive this one.
#pragma once

#include "plattform/schale_dateien.hpp"

namespace tonkartei {

// Throwing away is the shell's. What is moved and copied goes by the disk's own calls: the shell's is older than long paths,
// asks in its own words, and neither keeps what it replaces until the new is there nor tells on all systems the same.
class Shell_Windows : public Shell {
public:
    // Without a question handed in, what would ask is aborted.
    Shell_Windows(Dateisystem& dateien, Papierkorb& papierkorb, Shell_Frage frage = {});
    // The user interface is there later than the machine.
    void Frage_setzen(Shell_Frage frage) { frage_ = std::move(frage); }

    Shell_Ergebnis SHFileOperationA(const Shell_Vorgang& vorgang) override;
    // The process gets the window style as its first wish, and no open files of this one.
    void starten(const Text& befehl, int fensterstil) override;

private:
    Dateisystem& dateien_;
    Papierkorb& papierkorb_;
    Shell_Frage frage_;
};

}  // namespace tonkartei
