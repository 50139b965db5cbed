// How large texts and controls are here. All sizes in twips unless the name says pixels.
#pragma once

#include <memory>

#include "oberflaeche/element.hpp"
#include "oberflaeche/geometrie.hpp"

class QRect;

namespace tonkartei {

class Fenster;

int Zeilenhöhe_Pixel(int punkte);

// Where windows may lie, pixels; empty on a platform whose screen is none (off-screen, unless it was told a screen).
QRect freier_Schirm();

class Maße {
public:
    Maße();
    ~Maße();
    Maße(const Maße&) = delete;
    Maße& operator=(const Maße&) = delete;

    int Textbreite(const Text& text, int punkte) const;
    int Texthöhe(int punkte) const;
    // Remembered as long as nothing changes that it depends on: layouts ask for all controls again and again.
    Größe Wunschgröße(const Element& element) const;
    Größe Bildschirm() const;
    Größe freie_Fläche(const Fenster& fenster) const;
    Bereich Rahmenrand(const Element& rahmen) const;

private:
    struct Innen;
    std::unique_ptr<Innen> innen_;
};

}  // namespace tonkartei
