// Other processes' windows, by the Windows calls' names and meanings. A handle of 0 is no window; a call on a window that
// is gone answers 0.
#pragma once

#include <cstdint>
#include <optional>

#include "grundlagen/text.hpp"

namespace tonkartei {

using Hwnd = std::int32_t;

inline constexpr std::uint32_t WM_CLOSE = 16;
inline constexpr std::uint32_t WM_COMMAND = 273;
inline constexpr std::uint32_t WM_USER = 1024;
inline constexpr std::uint32_t GW_HWNDNEXT = 2;
inline constexpr std::uint32_t GW_CHILD = 5;
inline constexpr Hwnd HWND_NOTOPMOST = -2;
inline constexpr std::uint32_t SWP_NOSIZE = 1;
inline constexpr std::uint32_t SWP_NOMOVE = 2;
inline constexpr std::uint32_t SWP_SHOWWINDOW = 64;
inline constexpr std::uint32_t SWP_HIDEWINDOW = 128;

struct Rechteck {
    std::int32_t links = 0, oben = 0, rechts = 0, unten = 0;  // pixels
};

class Fenstersystem {
public:
    virtual ~Fenstersystem() = default;

    // Waits for the answer, but never longer than a short limit. None: the window is there and has not answered in time.
    virtual std::optional<std::int32_t> SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w,
                                                     std::int64_t l) = 0;
    // First top-level window of exactly that class.
    virtual Hwnd FindWindowA(const Text& klasse) = 0;
    // GW_CHILD: the first child; GW_HWNDNEXT: the next sibling. Window order is the order of appearance.
    virtual Hwnd GetWindow(Hwnd fenster, std::uint32_t art) = 0;
    virtual Text GetClassNameA(Hwnd fenster) = 0;
    virtual Hwnd GetDesktopWindow() = 0;
    virtual bool SetWindowPos(Hwnd fenster, Hwnd davor, int x, int y, int breite, int höhe, std::uint32_t flags) = 0;
    virtual bool GetWindowRect(Hwnd fenster, Rechteck& ergebnis) = 0;
    virtual Hwnd SetParent(Hwnd fenster, Hwnd neuer_Elter) = 0;
    virtual std::int32_t SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) = 0;
};

}  // namespace tonkartei
