// Qt itself, for the life of the process: application object, German texts of Qt's own dialogs, style, font, icon.
#pragma once

#include <memory>

#include "grundlagen/text.hpp"

namespace tonkartei {

class Qt_Umgebung {
public:
    // Ends the process where no window system can be reached. Takes Qt's own arguments (such as -platform offscreen) out;
    // what is left are the program's.
    Qt_Umgebung(int& argc, char** argv);
    ~Qt_Umgebung();
    Qt_Umgebung(const Qt_Umgebung&) = delete;
    Qt_Umgebung& operator=(const Qt_Umgebung&) = delete;

    // The program's start parameters, joined by blanks.
    const Text& Kommandozeile() const noexcept;

private:
    struct Innen;
    std::unique_ptr<Innen> innen_;
};

}  // namespace tonkartei
