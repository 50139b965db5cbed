// Draws nothing and measures by rule: a character of P points is 12 x P twips wide and 20 x P high.
#pragma once

#include "oberflaeche/fenstermaler.hpp"

namespace tonkartei {

class Fenstermaler_ohne : public Fenstermaler {
public:
    void Fenster_geändert(Fenster&) override {}
    void Element_geändert(Element&, unsigned) override {}
    void Fenster_malen(Fenster&) override {}
    void Fenster_verschwindet(Fenster&) override {}
    void Fokus_zeigen(Element&) override {}

    int Textbreite(const Text& text, int punkte) const override;
    int Texthöhe(int punkte) const override;
    Größe Wunschgröße(const Element& element) const override;
    Größe Bildschirm() const override;
    Bereich Rahmenrand(const Element& rahmen) const override;
    int Zeilenhöhe(int punkte) const override;
};

}  // namespace tonkartei
