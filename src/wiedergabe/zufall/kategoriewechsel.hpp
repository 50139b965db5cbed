// The automatic change of category: after some songs of autoplay another category of the pool comes on show.
#pragma once

#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Ansicht;
class Kategorienbereich;
class Rechner;
struct Einstellungen;
struct Modell;

class Kategoriewechsel {
public:
    Kategoriewechsel(const Modell& modell, const Einstellungen& einstellungen, Kategorienbereich& kategorien,
                     Rechner& rechner, Ansicht& ansicht);

    // Songs since the last change.
    Long Lieder_seit_Wechsel = 0;

    // The categories on show become the pool, and the first of them is chosen.
    void beginnen();
    // A song of autoplay is over: counts it, and changes when it is time.
    void Lied_vorbei();
    // Does what a right click on a category of the pool that is not on show does. So with the setting to assign categories
    // by right click, it is the song's category that changes; that is meant.
    void Kategorie_wechseln();

private:
    // Number of the category to go to; 0 when the change was ended meanwhile.
    int ziehen() const;

    const Modell& modell_;
    const Einstellungen& einstellungen_;
    Kategorienbereich& kategorien_;
    Rechner& rechner_;
    Ansicht& ansicht_;
    bool zieht_ = false;
};

}  // namespace tonkartei
