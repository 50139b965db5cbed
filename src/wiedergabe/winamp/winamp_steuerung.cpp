#include "wiedergabe/winamp/winamp_steuerung.hpp"

#include <algorithm>
#include <cstdint>

namespace tonkartei {
namespace {

// What WM_USER asks for or sets, in its last parameter.
constexpr std::int64_t Status_Frage = 104;
constexpr std::int64_t Zeit_Frage = 105;  // first parameter 0: position, 1: length
constexpr std::int64_t Sprung = 106;
constexpr std::int64_t Lautstärke = 122;

constexpr const char* Standard_Klasse = "Winamp v1.x";

}  // namespace

void WinAmp_Steuerung::WinAmp_Befehl(std::int32_t Code, Hwnd Fenster) { system_.SendMessageA(Fenster, WM_COMMAND, Code, 0); }

void WinAmp_Steuerung::WinAmp_Lautstärke_setzen(Hwnd Fenster, Long& Wert) {
    Wert = std::clamp<Long>(Wert, 0, 255);
    system_.SendMessageA(Fenster, WM_USER, Wert, Lautstärke);
}

std::optional<Long> WinAmp_Steuerung::WinAmp_Status_lesen(Hwnd Fenster) {
    const auto antwort = system_.SendMessageA(Fenster, WM_USER, 0, Status_Frage);
    if (!antwort) return std::nullopt;
    switch (*antwort) {
        case 1: return Status_spielt;
        case 3: return Status_Pause;
        default: return Status_gestoppt;
    }
}

std::optional<Long> WinAmp_Steuerung::WinAmp_Position_lesen(Hwnd Fenster) {
    return system_.SendMessageA(Fenster, WM_USER, 0, Zeit_Frage);
}

std::optional<Long> WinAmp_Steuerung::WinAmp_Länge_lesen(Hwnd Fenster) {
    return system_.SendMessageA(Fenster, WM_USER, 1, Zeit_Frage);
}

void WinAmp_Steuerung::WinAmp_springen(Hwnd Fenster, Long Millisekunden) {
    system_.SendMessageA(Fenster, WM_USER, Millisekunden, Sprung);
}

void WinAmp_Steuerung::Fenster_schließen(Hwnd Fenster) {
    // The message has carried the address of a zero ever since; the receiver takes no notice of it.
    const std::int32_t null = 0;
    system_.SendMessageA(Fenster, WM_CLOSE, 0, static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(&null)));
}

Hwnd WinAmp_Steuerung::WinAmp_Standard_Fenster() { return system_.FindWindowA(Standard_Klasse); }

void WinAmp_Steuerung::WinAmp_Befehl_Standard(std::int32_t Code) { WinAmp_Befehl(Code, WinAmp_Standard_Fenster()); }

void WinAmp_Steuerung::Fenster_Position_setzen(Hwnd Fenster, std::uint32_t Flags) {
    system_.SetWindowPos(Fenster, HWND_NOTOPMOST, 0, 0, 0, 0, Flags);
}

}  // namespace tonkartei
