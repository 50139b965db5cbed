// The colours of a control.
#include "oberflaeche/qt/bauteil.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {

// Under a dark scheme a light ground, such as the one under the mouse, is a tint of the dark one: it would dazzle.
QColor Bauteil::Grundfarbe() const {
    if (element_.hintergrund() == Farbe_Standard) return {};
    const QColor farbe = Qt_Farbe(element_.hintergrund());
    if (fenster_.eigener_Grund()) return farbe;
    const Töne ton = Töne::von(fenster_.Boden_für(element_)->palette());
    return ist_dunkel(ton.Grund) && !ist_dunkel(farbe) ? getönt(ton.Feld, farbe, 0.3, ton.Schrift) : farbe;
}

void Bauteil::Farben_zeigen() {
    const bool eigener_Grund = element_.hintergrund() != Farbe_Standard;
    if (malt_Grund_nicht()) widget_->setAutoFillBackground(eigener_Grund);
    // What is not set here comes from what the control lies on.
    QPalette farben;
    // A frame paints its ground by itself: as a palette it would pass to everything inside. Of a drop-down list the field
    // alone has the colour.
    const Elementart art = element_.art();
    if (eigener_Grund && art != Elementart::Rahmen)
        for (const auto rolle : {QPalette::Window, QPalette::Button, QPalette::Base})
            if (art != Elementart::Auswahl || rolle == QPalette::Button) farben.setColor(rolle, Grundfarbe());
    if (art == Elementart::Kasten && element_.farbe() != Farbe_Standard && !eigener_Grund)
        farben.setColor(QPalette::WindowText, Qt_Farbe(element_.farbe()));  // a plate of its own keeps it readable
    else if (fenster_.eigener_Grund() || eigener_Grund || element_.farbe() != Farbe_Standard)
        lesbare_Schrift(farben);
    if (farben.resolveMask() != 0 || widget_->testAttribute(Qt::WA_SetPalette)) widget_->setPalette(farben);
}

// Texts keep the colour that they are given as far as it can be read on what is below them.
void Bauteil::lesbare_Schrift(QPalette& farben) const {
    const Töne ton = Töne::von(fenster_.Boden_für(element_)->palette());
    const QColor außen = fenster_.Grund_unter(element_.rahmen());
    const auto grund = [&](QPalette::ColorRole rolle) {
        const bool im_Feld = rolle == QPalette::Text && element_.art() == Elementart::Auswahl;
        if (element_.hintergrund() != Farbe_Standard && !im_Feld) return Grundfarbe();
        switch (element_.art()) {
            case Elementart::Knopf:
            case Elementart::Auswahl:
            case Elementart::Eingabe:
            case Elementart::Liste: return ton.Feld;
            default: return außen;
        }
    };
    for (const auto rolle : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        const QColor darunter = grund(rolle);
        const QColor gewünscht = element_.farbe() != Farbe_Standard              ? Qt_Farbe(element_.farbe())
                                 : ist_dunkel(darunter) == ist_dunkel(ton.Grund) ? ton.Schrift
                                                                                 : Töne::zu(darunter).Schrift;
        const QColor lesbar = abgesetzt(gewünscht, darunter);
        if (lesbar == ton.Schrift) continue;
        const bool ruht_auf_Eigenem = element_.art() != Elementart::Knopf && element_.art() != Elementart::Auswahl;
        farben.setColor(rolle, lesbar);
        farben.setColor(QPalette::Disabled, rolle, abgesetzt(ton.blass, ruht_auf_Eigenem ? darunter : ton.Grund));
    }
}

}  // namespace tonkartei
