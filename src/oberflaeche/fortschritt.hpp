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
    // Until it is hidden the next time the job goes in so short steps that the first of them need not be seen.
    void kurze_Schritte() { Anlauf = 150; }
    // Shows the window with the bar at 0 to 100; the call with 100 hides it. The value shown already does nothing.
    void anzeigen(int Prozent);

protected:
    Knoten anordnung() override;
    bool beim_Schließen(Schließgrund grund) override;

private:
    Text aufgabe_;
    int gezeigt_ = 100;
};

// Sees to it that the window is closed, however the work that shows it ends.
class Fortschritts_Ende {
public:
    explicit Fortschritts_Ende(Fortschritts_Fenster& fenster) noexcept : fenster_(fenster) {}
    ~Fortschritts_Ende() {
        try {
            fenster_.anzeigen(100);
        } catch (...) {
            // The failure that brought us here counts more than a window that cannot be hidden.
        }
    }
    Fortschritts_Ende(const Fortschritts_Ende&) = delete;
    Fortschritts_Ende& operator=(const Fortschritts_Ende&) = delete;

private:
    Fortschritts_Fenster& fenster_;
};

}  // namespace tonkartei
