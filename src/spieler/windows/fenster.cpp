#include "spieler/windows/fenster.hpp"

#include <stdexcept>
#include <string>
#include <utility>

#include "plattform/dateisystem.hpp"
#include "plattform/windows/breit.hpp"
#include "plattform/windows/spieleranzeige.hpp"
#include "plattform/windows/winapi.hpp"
#include "spieler/windows/dateiuebergabe.hpp"

namespace tonkartei::spieler {

namespace {

// Under a name instead of the window's own value, which others may set by mistake.
constexpr const wchar_t* Fensterwert_Objekt = L"Tonkartei.Fenster";
constexpr int Breite = 275, Höhe = 116;  // pixels, as who places it among others expects

}  // namespace

Fenster::Fenster(const Text& klasse, Fensterprozedur& prozedur) : prozedur_(prozedur) {
    const std::wstring name = breit(klasse);
    WNDCLASSEXW angaben{};
    angaben.cbSize = sizeof angaben;
    angaben.lpfnWndProc = &Fenster::Empfang;
    angaben.hInstance = ::GetModuleHandleW(nullptr);
    angaben.lpszClassName = name.c_str();
    // A class that the system itself has can be used as little as one twice.
    if (::RegisterClassExW(&angaben) == 0) throw std::runtime_error("no class for the window");
    fenster_ = ::CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, name.c_str(), L"", WS_POPUP, 0, 0, Breite, Höhe,
                                 nullptr, nullptr, angaben.hInstance, nullptr);
    if (!fenster_) throw std::runtime_error("no window");
    // An empty shape: nothing is drawn and nothing clicked, wherever it is put and by whomever it is shown.
    ::SetWindowRgn(fenster_, ::CreateRectRgn(0, 0, 0, 0), FALSE);
    ::SetPropW(fenster_, Fensterwert_Objekt, this);
    // Not by the call for showing, whose first use is the starter's to decide (minimised, with the focus).
    ::SetWindowPos(fenster_, nullptr, 0, 0, 0, 0, SWP_SHOWWINDOW | SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
    anzeigen();
}

void Fenster::verschwinden() {
    if (fenster_) ::DestroyWindow(fenster_);
}

void Fenster::bedienen() {
    MSG nachricht;
    while (offen() && ::PeekMessageW(&nachricht, nullptr, 0, 0, PM_REMOVE) != 0) ::DispatchMessageW(&nachricht);
}

void Fenster::anzeigen() {
    if (!offen()) return;
    const auto auskunft = prozedur_.Auskunft_geben();
    if (std::exchange(lautstärke_, auskunft.Lautstärke) != auskunft.Lautstärke)
        ::SetPropW(fenster_, Fensterwert_Lautstärke, reinterpret_cast<HANDLE>(std::intptr_t{auskunft.Lautstärke} + 1));
    if (std::exchange(titel_, auskunft.Datei) != auskunft.Datei) ::SetWindowTextW(fenster_, breit(auskunft.Datei).c_str());
}

std::intptr_t __stdcall Fenster::Empfang(HWND__* fenster, unsigned nachricht, std::uintptr_t w, std::intptr_t l) {
    auto* selbst = static_cast<Fenster*>(::GetPropW(fenster, Fensterwert_Objekt));
    if (selbst && selbst->fenster_ == fenster)
        if (const auto antwort = selbst->beantworten(nachricht, w, l)) return *antwort;
    return ::DefWindowProcW(fenster, nachricht, w, l);
}

std::optional<std::intptr_t> Fenster::beantworten(unsigned nachricht, std::uintptr_t w, std::intptr_t l) {
    switch (nachricht) {
        case WM_COMMAND:
        case WM_USER: {
            const auto antwort = prozedur_.Nachricht(nachricht, static_cast<std::int32_t>(w), l);
            anzeigen();
            return antwort;
        }
        case WM_COPYDATA: return Dateien_empfangen(l) ? TRUE : FALSE;
        case WM_CLOSE: verschwinden(); return 0;
        case WM_WINDOWPOSCHANGING:
            // Whoever shows it must not lose the keyboard to something that cannot be seen.
            reinterpret_cast<WINDOWPOS*>(l)->flags |= SWP_NOACTIVATE;
            return std::nullopt;
        case WM_ENDSESSION:
            if (w != 0) verschwinden();
            return 0;
        case WM_DESTROY:
            // By a message, or with the window of another process that it was put into.
            ::RemovePropW(fenster_, Fensterwert_Objekt);
            ::RemovePropW(fenster_, Fensterwert_Lautstärke);
            fenster_ = nullptr;
            prozedur_.geschlossen();
            return 0;
        default: return std::nullopt;
    }
}

bool Fenster::Dateien_empfangen(std::intptr_t l) {
    const auto* daten = reinterpret_cast<const COPYDATASTRUCT*>(l);
    if (!daten || daten->dwData != Marke_Dateien || !daten->lpData) return false;
    std::string_view bytes(static_cast<const char*>(daten->lpData), daten->cbData);
    std::vector<Text> dateien;
    for (std::size_t ende; (ende = bytes.find('\0')) != std::string_view::npos; bytes.remove_prefix(ende + 1))
        if (Text datei(bytes.substr(0, ende)); ist_absolut(datei)) dateien.push_back(std::move(datei));
    prozedur_.Dateien(dateien, true);
    anzeigen();
    return true;
}

}  // namespace tonkartei::spieler
