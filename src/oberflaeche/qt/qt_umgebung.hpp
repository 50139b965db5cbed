// Qt itself, for the life of the process: application object, German texts of Qt's own dialogs, style, font, icon.
#pragma once

#include <memory>

#include "grundlagen/text.hpp"
#include "oberflaeche/qt/farben.hpp"

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

    // The colours of all windows, those that are up included. At first they are what the desktop's own palette looks like.
    // What TONKARTEI_FARBEN says ("hell", "dunkel", "kontrast", "kontrast-hell") stays whatever is set here.
    void Schema_setzen(Farbschema schema);

private:
    struct Innen;
    std::unique_ptr<Innen> innen_;
};

}  // namespace tonkartei
