// A window: a plain object whose controls are members, whose handlers are member functions and whose layout is a tree.
// Windows are members of the program object and live as long as it; loading and unloading only changes their state.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/element.hpp"
#include "oberflaeche/geometrie.hpp"
#include "oberflaeche/menue.hpp"

namespace tonkartei {

class Ansicht;
class Rahmen;

enum class Fensterzustand { normal, minimiert };

enum class Schließgrund {
    Hand,      // close box
    Programm,  // the code
    außen,     // end of the user's session, task manager
};

class Fenster {
public:
    Fenster(Ansicht& ansicht, Text name, Text titel);
    virtual ~Fenster();
    Fenster(const Fenster&) = delete;
    Fenster& operator=(const Fenster&) = delete;

    const Text& Name() const noexcept { return name_; }
    Ansicht& ansicht() const noexcept { return ansicht_; }

    // Loading brings all controls to their start values, lays them out and calls beim_Laden; a loaded window stays as it is.
    void laden();
    bool geladen() const noexcept { return geladen_; }
    // Loads if needed, shows and brings to the front.
    void zeigen();
    // The same; the other windows are blocked, and it returns when this one is hidden or unloaded. The focus can be given
    // only to what can be seen, so the element that gets it is named here.
    void zeigen_modal(Element* zuerst = nullptr);
    void verstecken();
    // Closes it: asks beim_Schließen, then unloads. False when the closing was refused. An unloaded window says true.
    bool entladen(Schließgrund grund = Schließgrund::Programm);
    // The closing that is under way cannot be refused: the end came from outside, at once or while it was asking.
    bool Ende_von_außen() const noexcept { return schließt_ && außen_verlangt_; }
    // What the close box does.
    bool schließen(Schließgrund grund) { return entladen(grund); }
    void nach_vorn();

    bool sichtbar() const noexcept { return geladen_ && sichtbar_; }
    bool modal() const noexcept { return modal_; }
    bool aktiv() const noexcept { return aktiv_; }
    void aktiv(bool wert);
    Fensterzustand zustand() const noexcept { return zustand_; }
    void zustand(Fensterzustand neu);
    bool immer_oben() const noexcept { return immer_oben_; }
    void immer_oben(bool wert);
    const Text& titel() const noexcept { return titel_; }
    void titel(Text wert);

    // Place on the screen and inner size, twips. The size never goes below what the layout needs.
    const Bereich& lage() const noexcept { return lage_; }
    void bewegen(int links, int oben);
    void größe(int breite, int höhe);
    // The view's report of what the user did; no echo to the view.
    void von_Hand_bewegt(int links, int oben);
    void von_Hand_bemessen(int breite, int höhe);
    // The size is another than it was at the loading, by more than the layout's own doing.
    bool Größe_gewählt() const noexcept { return größe_gewählt_; }
    void von_Hand_Zustand(Fensterzustand neu);
    void zentrieren();
    Größe Mindestgröße();

    // All controls in the order of their making, which is the tab order; menu entries included.
    const std::vector<Element*>& elemente() const noexcept { return elemente_; }
    // By name and index; null when there is none. An index of -1 takes the first of the name.
    Element* element(const Text& name, int index) const;
    const Menü* menü() const noexcept { return menü_; }

    // Works the layout out anew.
    void neu_anordnen();
    // Repaints now, runs no input.
    void malen();

    // Makes it a part of another window, filling that frame, which lies free of other frames: no title bar, no place of its
    // own (`lage` is then within the other window), never without it. Before the first loading.
    void einbetten(Rahmen& platz);
    // The window that it is a part of; null: none.
    Fenster* Elternfenster() const noexcept;
    // The frame that it fills there; null: none.
    const Rahmen* Platz() const noexcept { return platz_; }

    // Default and cancel button: Return and Escape, where the control itself does not use them.
    Element* Vorgabeknopf = nullptr;
    Element* Abbruchknopf = nullptr;
    // Another default button, while the window is up.
    void Vorgabe_wechseln(Element& knopf);
    // The user may change its size.
    // Milliseconds that it may be wanted before it is worth being seen: one that a short job shows would only flash. Whoever
    // asks it is told that it is shown at once.
    int Anlauf = 0;
    bool größenveränderlich = true;
    // No title bar, always in front of the others (splash, progress).
    bool ohne_Rand = false;
    // Stands beside other windows; any other one is a dialog of the window in front of which it came up.
    bool eigenständig = false;
    // Keys that do something wherever the focus is, such as "Ctrl+F"; made with the window.
    std::vector<std::pair<Text, std::function<void()>>> Kürzel;
    // What the title bar says in front of the title: for the eye, the title stays what it is.
    const Text& titelzusatz() const noexcept { return titelzusatz_; }
    void titelzusatz(Text wert);
    // Colour of the ground; controls without colours of their own go along with it, light on dark.
    Farbe hintergrund = Farbe_Standard;
    Ereignis<> Mausbewegung;  // the mouse moves over free ground of the window
    Ereignis<const std::vector<Text>&> Dateien_abgelegt;

protected:
    // The layout, asked for once, at the first loading.
    virtual Knoten anordnung() { return {}; }
    // Size at loading, at least what the layout needs; twips.
    virtual Größe Startgröße() { return {}; }
    virtual void beim_Laden() {}
    // False refuses the closing. An end from outside is never refused.
    virtual bool beim_Schließen(Schließgrund) { return true; }
    virtual void beim_Entladen() {}
    virtual void bei_neuer_Größe() {}
    virtual void bei_neuer_Lage() {}  // moved by hand
    virtual void bei_neuem_Zustand() {}
    // The layout has given the controls their places, perhaps the same as before.
    virtual void bei_neuer_Anordnung() {}
    // Set in the constructor of a window with a menu bar.
    void Menü_setzen(const Menü& menü) { menü_ = &menü; }

private:
    friend class Element;
    friend class Ansicht;
    friend class Rahmen;
    void Eingebettete_anordnen();

    Ansicht& ansicht_;
    Text name_, titel_, start_titel_, titelzusatz_;
    std::vector<Element*> elemente_;
    const Menü* menü_ = nullptr;
    Rahmen* platz_ = nullptr;
    std::unique_ptr<Anordnung> anordnung_;
    Bereich lage_{};
    bool geladen_ = false, sichtbar_ = false, modal_ = false, aktiv_ = true, immer_oben_ = false, startwerte_da_ = false;
    bool ordnet_ = false, größe_gewählt_ = false, schließt_ = false, außen_verlangt_ = false;
    Fensterzustand zustand_ = Fensterzustand::normal;
};

}  // namespace tonkartei
