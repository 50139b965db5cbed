// The dialog "Album wählen": one of the own albums.
#pragma once

#include <vector>

#include "alben/alben.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Album_wählen : public Fenster {
public:
    Album_wählen(Ansicht& ansicht, const Alben& alben);

    Schriftfeld Liste_Text{*this, "Liste_Text", "A&lben:"};
    Listenfeld Liste{*this, "Liste"};
    Knopf Ok{*this, "Ok", "&Ok"};
    Knopf Abbruch{*this, "Abbruch", "&Abbruch"};

    // Waits for the choice: the album's number, 0 without one.
    Long wählen();

protected:
    Knoten anordnung() override;
    Größe Startgröße() override { return {6600, 5400}; }

private:
    void Liste_füllen();
    void bestätigen();

    const Alben& alben_;
    std::vector<Long> nummern_;  // of the lines
    Long ergebnis_ = 0;
};

}  // namespace tonkartei
