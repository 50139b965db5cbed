// The dialog "Album wählen": one of the own albums.
#pragma once

#include <vector>

#include "alben/alben.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/wartedialog.hpp"

namespace tonkartei {

class Album_wählen : public Wartedialog<Long> {
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
};

}  // namespace tonkartei
