#include "wiedergabe/winamp/fenstersuche.hpp"

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

// A class name is read into a buffer of 255, the ending zero included.
constexpr std::size_t Klasse_maximal = 254;

}  // namespace

Hwnd Fenstersuche::Fenster_suchen_global(const Text& Klassenteil) {
    return Fenster_suchen_unter(system_.GetDesktopWindow(), Klassenteil);
}

Hwnd Fenstersuche::Fenster_suchen_unter(Hwnd Fenster, const Text& Klassenteil) {
    Hwnd gefunden = 0;
    for (Hwnd kind = system_.GetWindow(Fenster, GW_CHILD); kind != 0; kind = system_.GetWindow(kind, GW_HWNDNEXT)) {
        ansicht_.Ereignisse_laufen_lassen();
        // Only for the events that it lets run: what it finds counts for nothing.
        Fenster_suchen_unter(kind, Klassenteil);
        if (system_.GetClassNameA(kind).substr(0, Klasse_maximal).find(Klassenteil) != Text::npos) gefunden = kind;
    }
    return gefunden;
}

}  // namespace tonkartei
