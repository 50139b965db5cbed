// The menu bar. What stands in it is fixed by its table; what an entry does is told by whoever does it, one line an entry.
// An entry for which nothing was told is disabled.
#pragma once

#include <functional>
#include <map>
#include <vector>

#include "datenbank/einstellungen.hpp"
#include "oberflaeche/menue.hpp"

namespace tonkartei {

class Hauptmenü {
public:
    Hauptmenü(Fenster& fenster, Einstellungen& einstellungen);

    // All of these once for an entry, while the program is put together. Error 9 for a name that is not in the table.
    void Befehl(const Text& name, std::function<void()> befehl, int index = ohne_Index);
    // A switch of a setting, with its check mark, and what follows it.
    void Schalter(const Text& name, bool Einstellungen::*schalter, const std::function<void()>& danach = nullptr);
    // Entries 1 to `letzter`: the setting is the index of the one that is checked.
    void Wahl(const Text& name, Byte Einstellungen::*wahl, int letzter);
    // Check marks of what is switched elsewhere: whether the entry has one; which of the entries `von` to `bis` has it.
    void Haken(const Text& name, std::function<bool()> gesetzt);
    void nur_Haken(const Text& name, int von, int bis, std::function<int()> welcher);

    // All check marks as things stand now.
    void nachführen() const;
    // What the entry does, where it is not disabled.
    void ausführen(const Text& name, int index = ohne_Index) const;

    const Menü& Leiste() const noexcept { return menü_; }

private:
    Einstellungen& einstellungen_;
    Menü menü_;
    std::map<const Menüpunkt*, std::function<void()>> befehle_;
    std::vector<std::function<void()>> haken_;
};

}  // namespace tonkartei
