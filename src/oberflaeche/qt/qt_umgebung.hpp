// Qt itself, for the life of the process: application object, German texts of Qt's own dialogs, style, font, icon.
#pragma once

#include <memory>

#include "grundlagen/text.hpp"
#include "oberflaeche/qt/farben.hpp"

namespace tonkartei {

class Qt_Umgebung {
public:
    // Whether a window system can be reached; asked before the first Qt_Umgebung is made, which ends the process without
    // one.
    static bool Bildschirm_da();

    // Takes Qt's own arguments (such as -platform offscreen) out; what is left are the program's.
    Qt_Umgebung(int& argc, char** argv);
    ~Qt_Umgebung();
    Qt_Umgebung(const Qt_Umgebung&) = delete;
    Qt_Umgebung& operator=(const Qt_Umgebung&) = delete;

    // The program's start parameters, joined by blanks.
    const Text& Kommandozeile() const noexcept;

    // The colours of all windows, those that are up included. At first they are what the desktop's own palette looks like.
    // What TONKARTEI_FARBEN says ("hell", "dunkel", "kontrast", "kontrast-hell") stays whatever is set here.
    void Schema_setzen(Farbschema schema);

private:
    struct Innen;
    std::unique_ptr<Innen> innen_;
};

}  // namespace tonkartei
