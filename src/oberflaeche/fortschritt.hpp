// The progress window of long jobs. It repaints and nothing else: no input and no timers in the middle of a save.
#pragma once

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {

class Fortschritts_Fenster : public Fenster {
public:
    explicit Fortschritts_Fenster(Ansicht& ansicht);

    Schriftfeld Text_{*this, "Text"};
    Balken Fortschritt{*this, "Fortschritt"};

    // What the job is called, "Datenbank laden...".
    void Text_setzen(const Text& text);
    // Shows the window with the bar at 0 to 100; the call with 100 hides it. The value shown already does nothing.
    void anzeigen(int Prozent);

protected:
    Knoten anordnung() override;
    bool beim_Schließen(Schließgrund grund) override;

private:
    Text aufgabe_;
    int gezeigt_ = 100;
};

}  // namespace tonkartei
