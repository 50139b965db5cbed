// The pop-up menus, in a window that is never shown. Their entries do nothing of their own: each runs the command of the
// same meaning, and is disabled where that command is.
#pragma once

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/menue.hpp"

namespace tonkartei {

class Liedstart;
class Playlist;
class Tonkartei;
class WinAmp;
struct Modell;

class Kontextmenüs : public Fenster {
public:
    Kontextmenüs(const Modell& modell, Tonkartei& haupt, Playlist& playlist, WinAmp& spieler, Liedstart& start);

    // Of the song under the mouse, which becomes the chosen one; -1 for none.
    void Lied_zeigen(int zeile);
    void Tray_zeigen();
    // A pop-up menu whose entries come from a room of its own: filled once, then shown at will.
    void füllen(const Text& menü, const std::vector<Menüzeile>& einträge);
    void zeigen(const Text& menü);
    // The same as Lied_zeigen, in the window Playlist.
    void Playlist_zeigen(int zeile);
    // Marks, names and numbers of the entries as the window's controls and the menu bar have them.
    void nachführen();

private:
    std::vector<Menüzeile> Tabelle();
    Menüzeile wie(const Text& name, const Text& text = {}) const;
    const Element* Vorbild(const Text& eintrag) const;

    const Modell& modell_;
    Tonkartei& haupt_;
    Playlist& playlist_;
    WinAmp& spieler_;
    Liedstart& start_;
    Menü menü_;
};

}  // namespace tonkartei
