// Menus as tables: control name, caption, handler, check mark.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "oberflaeche/elemente.hpp"

namespace tonkartei {

class Menü;

// One line of the table from which a menu is made. A line with lines of its own is a submenu; the caption "-" a separator.
// A line without a handler and without lines below it is disabled.
struct Menüzeile {
    Text Name;
    Text Beschriftung;
    int Index = ohne_Index;
    std::function<void()> Handler;
    std::vector<Menüzeile> Einträge;
};

class Menüpunkt : public Element {
public:
    Menüpunkt(Fenster& f, const Menüzeile& zeile);
    bool haken() const noexcept { return haken_; }
    void haken(bool wert);
    bool ist_Strich() const noexcept { return beschriftung() == "-"; }
    const std::vector<std::unique_ptr<Menüpunkt>>& einträge() const noexcept { return einträge_; }
    // For entries whose number changes at run time (categories, schemes).
    Menüpunkt& anfügen(const Menüzeile& zeile);
    void kürzen(std::size_t anzahl);

private:
    std::vector<std::unique_ptr<Menüpunkt>> einträge_;
    bool haken_ = false;
};

// A menu bar, or the body of a pop-up menu. Its entries are elements of the window, found by name.
class Menü {
public:
    Menü(Fenster& f, const std::vector<Menüzeile>& tabelle);
    const std::vector<std::unique_ptr<Menüpunkt>>& einträge() const noexcept { return einträge_; }
    // Run-time error 9 when there is no such entry.
    Menüpunkt& operator()(const Text& name, int index = ohne_Index) const;
    // The check mark of entry `n` of an array alone, of those from `von` to `bis`.
    void nur_Haken(const Text& name, int n, int von, int bis) const;

private:
    std::vector<std::unique_ptr<Menüpunkt>> einträge_;
};

}  // namespace tonkartei
