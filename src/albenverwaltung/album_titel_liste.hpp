// The small window that shows the titles of an album which may be imported.
#pragma once

#include "alben/album.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Album_Titel_Liste : public Fenster {
public:
    explicit Album_Titel_Liste(Ansicht& ansicht);

    Schriftfeld Album_Text{*this, "Album_Text"};
    Listenfeld Liste{*this, "Liste"};
    Knopf Ok{*this, "Ok", "&OK"};

    // Modal.
    void anzeigen(const Album& album);

protected:
    Knoten anordnung() override;
};

}  // namespace tonkartei
