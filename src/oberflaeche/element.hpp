// What every control has in common. A control is a plain object: it holds its own state and raises events; a view
// (oberflaeche/qt, or none) only shows it and carries the hand's doings to it.
#pragma once

#include <vector>

#include "grundlagen/ereignis.hpp"
#include "grundlagen/text.hpp"
#include "oberflaeche/farbe.hpp"
#include "oberflaeche/geometrie.hpp"

namespace tonkartei {

class Fenster;

enum class Elementart {
    Knopf,       // push button
    Kasten,      // check box
    Option,      // option button
    Eingabe,     // text field
    Schrift,     // label
    Liste,       // list box
    Auswahl,     // drop-down list
    Regler,      // slider, scroll bar
    Reiter,      // tab strip
    Rahmen,      // frame with a title, or a bare panel
    Menü,        // menu entry
    Fläche,      // picture
    Balken,      // progress bar
    Dreistufer,  // three-way switch
    Symbol,      // tray symbol
};

// What changed, for the view; bits.
enum Änderung : unsigned {
    Änderung_Aussehen = 1,  // caption, colours, tool-tip, enabled, font
    Änderung_Lage = 2,      // place, size, visible
    Änderung_Wert = 4,      // the control's own value, the chosen line
    Änderung_Zeilen = 8,    // the lines of a list
};

// A key as handlers see it. A handler that sets `erledigt` keeps the key from its usual effect.
struct Taste {
    enum class Art { Zeichen, Return, Escape, Tab, Auf, Ab, Alt, Löschen, F2 } art = Art::Zeichen;
    Text zeichen;  // for Zeichen and Alt
    bool erledigt = false;
};

class Element {
public:
    Element(Fenster& fenster, Elementart art, Text name, Text beschriftung = {}, int index = 0);
    virtual ~Element();
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    Fenster& fenster() const noexcept { return fenster_; }
    Elementart art() const noexcept { return art_; }
    const Text& Name() const noexcept { return name_; }
    // Place in a control array, from 1 (or as the array counts); -1 when it stands alone.
    int Index() const noexcept { return index_; }
    // "Liste", "zeige_Kategorie(3)".
    Text voller_Name() const;

    // Caption; "&" marks the access key (not in labels whose text is data: those double it).
    const Text& beschriftung() const noexcept { return z_.beschriftung; }
    void beschriftung(Text wert);
    const Text& tooltip() const noexcept { return z_.tooltip; }
    void tooltip(Text wert);
    const Text& tag() const noexcept { return z_.tag; }
    void tag(Text wert) { z_.tag = std::move(wert); }
    // Its own wish; what the user sees depends on the frame it sits in as well (`zu_sehen`).
    bool sichtbar() const noexcept { return z_.sichtbar; }
    void sichtbar(bool wert);
    bool aktiv() const noexcept { return z_.aktiv; }
    void aktiv(bool wert);
    Farbe farbe() const noexcept { return z_.farbe; }
    void farbe(Farbe wert);
    Farbe hintergrund() const noexcept { return z_.hintergrund; }
    void hintergrund(Farbe wert);
    // Points.
    int schrift() const noexcept { return z_.schrift; }
    void schrift(int punkte);
    bool fett() const noexcept { return z_.fett; }
    void fett(bool wert);

    // Twips, relative to the frame that holds it, else to the window.
    const Bereich& lage() const noexcept { return z_.lage; }
    void lage(const Bereich& wert);
    int links() const noexcept { return z_.lage.links; }
    int oben() const noexcept { return z_.lage.oben; }
    int breite() const noexcept { return z_.lage.breite; }
    int höhe() const noexcept { return z_.lage.höhe; }

    // The frame that holds it, or null; set by the layout.
    Element* rahmen() const noexcept { return rahmen_; }
    void rahmen(Element* wert) noexcept { rahmen_ = wert; }
    // Visible and enabled including the frames around it; the window is not asked.
    bool zu_sehen() const noexcept;
    bool bedienbar() const noexcept;

    // Takes part in the tab order.
    bool nimmt_Fokus() const noexcept;

    // A control that code places by itself: the layout leaves it alone.
    bool frei = false;
    // The caption is data: "&" is a character like others, not the mark of an access key.
    bool Beschriftung_wörtlich = false;
    // A helper that the user never sees (hidden parallel lists): the view makes nothing for it.
    bool unsichtbarer_Helfer = false;
    // What a screen reader calls it, where neither caption nor label nor tool-tip does (oberflaeche/vorlesename).
    Text Vorlesename;
    // Number in the mouse-over effect of its window; 0 none.
    int Mausnummer = 0;

    // Raised by hand and code alike where a value changes (see each kind); else by the hand.
    Ereignis<> Klick;
    Ereignis<> Doppelklick;
    Ereignis<int, int> Gedrückt;      // left button goes down; twips in the control
    Ereignis<int, int> Losgelassen;   // left button comes up
    Ereignis<int> Rechtsklick;        // right button comes up; the line under the mouse, -1 none
    Ereignis<int, int> Mausbewegung;  // the mouse moves over it; twips in the control
    Ereignis<Taste&> Tastendruck;

    // Drag and drop: a drag that starts here carries this mark; empty: nothing can be dragged from here.
    Text Ziehmarke;
    Ereignis<> Ziehen_beginnt;
    Ereignis<Element&> Abgelegt;                          // something dragged from that control was dropped here
    Ereignis<const std::vector<Text>&> Dateien_abgelegt;  // files from the file manager
    bool nimmt_Ablage() const noexcept { return Abgelegt.hat_Hörer() || Dateien_abgelegt.hat_Hörer(); }

    // What a click by hand does to the control's own value, before and with raising Klick.
    virtual void von_Hand_klicken() { Klick(); }

    // Remembers / brings back the start values; the window calls them around its life.
    virtual void Startwerte_merken() { start_ = z_; }
    virtual void Startwerte_setzen() { z_ = start_; }

protected:
    // Tells the view, raises nothing.
    void melden(unsigned änderung);

private:
    struct Aussehen {
        Text beschriftung, tooltip, tag;
        bool sichtbar = true, aktiv = true, fett = false;
        Farbe farbe = Farbe_Standard, hintergrund = Farbe_Standard;
        int schrift = 10;
        Bereich lage;
    };

    Fenster& fenster_;
    Elementart art_;
    Text name_;
    int index_;
    Element* rahmen_ = nullptr;
    Aussehen z_, start_;
};

}  // namespace tonkartei
