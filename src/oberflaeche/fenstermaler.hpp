// The drawing half of a view: shows windows and controls, measures them. A view that answers boxes and waits in its own way
// (the desktop's, a test tool's) can share one.
#pragma once

#include "oberflaeche/element.hpp"
#include "oberflaeche/geometrie.hpp"

namespace tonkartei {

class Fenster;
class Menüpunkt;

class Fenstermaler {
public:
    virtual ~Fenstermaler() = default;

    virtual void Fenster_geändert(Fenster& fenster) = 0;
    virtual void Element_geändert(Element& element, unsigned änderung) = 0;
    virtual void Fenster_malen(Fenster& fenster) = 0;
    virtual void Fokus_zeigen(Element& element) = 0;
    virtual void Fenster_verschwindet(Fenster& fenster) = 0;

    virtual int Textbreite(const Text& text, int punkte) const = 0;
    virtual int Texthöhe(int punkte) const = 0;
    virtual Größe Wunschgröße(const Element& element) const = 0;
    virtual Größe Bildschirm() const = 0;
    virtual Größe freie_Fläche(const Fenster&) const { return {}; }
    virtual Bereich Rahmenrand(const Element& rahmen) const = 0;
    virtual int Zeilenhöhe(int punkte) const = 0;
};

}  // namespace tonkartei
