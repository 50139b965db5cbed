// Windows and controls of the model as Qt widgets: one widget a control, by its kind, no code per window. What the model
// reports is shown lazily, but before the next paint; what the hand does goes back through oberflaeche/hand.hpp under the
// guard of the view. Needs a living Qt_Umgebung.
#pragma once

#include <QPoint>
#include <memory>

#include "oberflaeche/fenstermaler.hpp"

class QWidget;

namespace tonkartei {

class Ansicht;
class Menüpunkt;
struct Eingabefeld;
struct Meldungsfeld;

class Fenstermaler_Qt : public Fenstermaler {
public:
    explicit Fenstermaler_Qt(Ansicht& ansicht);
    ~Fenstermaler_Qt() override;

    void Fenster_geändert(Fenster& fenster) override;
    void Element_geändert(Element& element, unsigned änderung) override;
    void Fenster_malen(Fenster& fenster) override;
    void Fokus_zeigen(Element& element) override;
    void Fenster_verschwindet(Fenster& fenster) override;

    int Textbreite(const Text& text, int punkte) const override;
    int Texthöhe(int punkte) const override;
    Größe Wunschgröße(const Element& element) const override;
    Größe Bildschirm() const override;
    Größe freie_Fläche(const Fenster& fenster) const override;
    Bereich Rahmenrand(const Element& rahmen) const override;
    int Zeilenhöhe(int punkte) const override;

    // Brings all windows up to date with the model now.
    void abgleichen();
    // Shows which of them wait for a dialog.
    void Sperren_zeigen();
    // The inside of a loaded window as PNG, in the pixels of the screen; false when the file cannot be written.
    bool Bild_speichern(Fenster& fenster, const Text& datei);
    // The menu below that entry.
    bool Bild_speichern(const Menüpunkt& wurzel, const Text& datei);
    // Boxes as they would come up.
    bool Bild_speichern(const Meldungsfeld& feld, const Text& datei);
    bool Bild_speichern(const Eingabefeld& feld, const Text& datei);
    // Where a pop-up menu belongs: at the mouse, or at what a key has called it for.
    QPoint Menüplatz() const;
    // The window's widget, null before its first loading; parent of boxes.
    QWidget* Widget(Fenster& fenster) const;
    // The control's widget, null when it has none.
    QWidget* Widget(const Element& element) const;

private:
    struct Innen;
    std::unique_ptr<Innen> innen_;
};

}  // namespace tonkartei
