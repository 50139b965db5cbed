// The panel with the category boxes and the schemes of the older desk.
#pragma once

#include "dj/kategorienwahl.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class DJ_Kategorien : public Fenster {
public:
    DJ_Kategorien(Ansicht& ansicht, const Modell& modell);

    Kategorienwahl::Kästen Kat{*this, "Kat"};
    Schriftfeld KatSchema_Text{*this, "KatSchema_Text", "Sc&hemas:"};
    Listenfeld KatSchema{*this, "KatSchema"};
    Kategorienwahl Wahl;

protected:
    Knoten anordnung() override;
    void beim_Laden() override;
    bool beim_Schließen(Schließgrund grund) override { return grund != Schließgrund::Hand; }

private:
    const Modell& modell_;
};

}  // namespace tonkartei
