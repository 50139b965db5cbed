// The settings as a whole: read at the start, written at the end, forgotten on request.
#pragma once

namespace tonkartei {

class Registry;
class Tonkartei;
struct Haus;

class Programmeinstellungen {
public:
    Programmeinstellungen(Haus& haus, Registry& registry, Tonkartei& fenster);

    // Reads them, and brings the menu's marks and the controls that mirror a setting in line with them.
    void lesen();
    // Nothing after `nicht_schreiben`, or when the user had them forgotten.
    void schreiben();
    // A start that was given up changes nothing.
    void nicht_schreiben() noexcept { werden_geschrieben_ = false; }

private:
    void deinstallieren();

    Haus& haus_;
    Registry& registry_;
    Tonkartei& fenster_;
    bool werden_geschrieben_ = true;
};

}  // namespace tonkartei
