#include "plattform/windows/fenstersystem_windows.hpp"

#include <algorithm>

#include "plattform/windows/breit.hpp"
#include "plattform/windows/spieleranzeige.hpp"
#include "plattform/windows/winapi.hpp"

namespace tonkartei {
namespace {

constexpr std::chrono::milliseconds Frist_wenn_hängend{10};
constexpr int längste_Klasse = 257;
constexpr int längster_Titel = 4096;

// Handles of windows have 32 bits that count, on 64-bit systems, too.
HWND Fenster(Hwnd griff) { return static_cast<HWND>(::LongToHandle(griff)); }
Hwnd Griff(HWND fenster) { return static_cast<Hwnd>(::HandleToLong(fenster)); }

}  // namespace

std::optional<std::int32_t> Fenstersystem_Windows::SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w,
                                                                std::int64_t l) {
    if (::IsWindow(Fenster(fenster)) == 0) {
        hängende_.erase(fenster);
        return 0;
    }
    const bool hing = hängende_.contains(fenster);
    const auto frist = hing ? std::min(Frist_wenn_hängend, frist_) : frist_;
    DWORD_PTR antwort = 0;
    // Blocked: while we wait nobody's messages come in here, and what called us is not entered a second time. A window that
    // the system has given up is no reason not to try: it may be back, and the time is short.
    if (::SendMessageTimeoutA(Fenster(fenster), nachricht, static_cast<WPARAM>(std::int64_t{w}), static_cast<LPARAM>(l),
                              SMTO_BLOCK, static_cast<UINT>(frist.count()), &antwort) != 0) {
        hängende_.erase(fenster);
        return static_cast<std::int32_t>(antwort);
    }
    // It may have gone while it was asked.
    if (::IsWindow(Fenster(fenster)) == 0) return 0;
    hängende_.insert(fenster);
    return std::nullopt;
}

// A message that does nothing.
bool Fenstersystem_Windows::antwortet(Hwnd fenster) {
    return ::IsWindow(Fenster(fenster)) != 0 && SendMessageA(fenster, WM_NULL, 0, 0).has_value();
}

Hwnd Fenstersystem_Windows::FindWindowA(const Text& klasse) { return Griff(::FindWindowW(breit(klasse).c_str(), nullptr)); }

Hwnd Fenstersystem_Windows::GetWindow(Hwnd fenster, std::uint32_t art) {
    return fenster == 0 ? 0 : Griff(::GetWindow(Fenster(fenster), art));
}

Text Fenstersystem_Windows::GetClassNameA(Hwnd fenster) {
    wchar_t klasse[längste_Klasse];
    const int länge = ::GetClassNameW(Fenster(fenster), klasse, längste_Klasse);
    return schmal({klasse, static_cast<std::size_t>(std::max(länge, 0))});
}

Hwnd Fenstersystem_Windows::GetDesktopWindow() { return Griff(::GetDesktopWindow()); }

bool Fenstersystem_Windows::SetWindowPos(Hwnd fenster, Hwnd davor, int x, int y, int breite, int höhe, std::uint32_t flags) {
    return antwortet(fenster) && ::SetWindowPos(Fenster(fenster), Fenster(davor), x, y, breite, höhe, flags) != 0;
}

bool Fenstersystem_Windows::GetWindowRect(Hwnd fenster, Rechteck& ergebnis) {
    RECT platz;
    if (::GetWindowRect(Fenster(fenster), &platz) == 0) return false;
    ergebnis = {platz.left, platz.top, platz.right, platz.bottom};
    return true;
}

Hwnd Fenstersystem_Windows::SetParent(Hwnd fenster, Hwnd neuer_Elter) {
    return antwortet(fenster) ? Griff(::SetParent(Fenster(fenster), Fenster(neuer_Elter))) : 0;
}

std::int32_t Fenstersystem_Windows::SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) {
    if (!antwortet(fenster)) return 0;
    // A handle has the width of the machine there.
    if (stelle == GWLP_HWNDPARENT) return static_cast<std::int32_t>(::SetWindowLongPtrA(Fenster(fenster), stelle, wert));
    return ::SetWindowLongA(Fenster(fenster), stelle, wert);
}

std::optional<Fenstersystem_Windows::Spielerzustand> Fenstersystem_Windows::Zustand(Hwnd fenster) {
    constexpr std::int64_t Status = 104, Zeiten = 105;
    const Text klasse = GetClassNameA(fenster);
    if (!klasse.starts_with("Winamp") && !klasse.starts_with("Tonkartei")) return std::nullopt;
    const auto fragen = [&](std::int32_t w, std::int64_t l) { return SendMessageA(fenster, WM_USER, w, l).value_or(0); };
    Spielerzustand zustand{.sichtbar = ::IsWindowVisible(Fenster(fenster)) != 0,
                           .Lautstärke = 0,
                           .Status = fragen(0, Status),
                           .Position = fragen(0, Zeiten),
                           .Länge = fragen(1, Zeiten),
                           .Datei = {}};
    // After it has answered: a window can be found before its player has put these on it.
    wchar_t datei[längster_Titel];
    const int länge = ::GetWindowTextW(Fenster(fenster), datei, längster_Titel);
    zustand.Datei = schmal({datei, static_cast<std::size_t>(std::max(länge, 0))});
    const auto wert = ::HandleToLong(::GetPropW(Fenster(fenster), Fensterwert_Lautstärke));
    zustand.Lautstärke = std::max(static_cast<int>(wert) - 1, 0);
    return zustand;
}

}  // namespace tonkartei
