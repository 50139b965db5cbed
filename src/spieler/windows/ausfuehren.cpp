#include "spieler/ausfuehren.hpp"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <thread>

#include "plattform/windows/dateisystem_windows.hpp"
#include "plattform/windows/fenstersystem_windows.hpp"
#include "plattform/windows/winapi.hpp"
#include "spieler/mpg123/klang_mpg123.hpp"
#include "spieler/spieler.hpp"
#include "spieler/windows/dateiuebergabe.hpp"
#include "spieler/windows/fenster.hpp"
#include "spieler/windows/klassensperre.hpp"
#include "spieler/zustandsordner.hpp"

namespace tonkartei::spieler {
namespace {

using Uhr = std::chrono::steady_clock;

constexpr auto Frist_Übergabe = std::chrono::seconds(2);  // generous: a second player would be worse than a wait
constexpr auto Frist_Ende = std::chrono::seconds(3);      // for disk and device to let go

DWORD Wartezeit(Uhr::time_point bis) {
    if (bis == Uhr::time_point::max()) return INFINITE;
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(bis - Uhr::now()).count();
    return static_cast<DWORD>(std::clamp<std::int64_t>(rest, 0, 60'000));
}

void Schleife(Fenster& fenster, Spieler& spieler, Klang& klang, const Systemgriff& wecker) {
    void* const griff = wecker.griff();
    while (fenster.offen() && !spieler.Ende_verlangt()) {
        const DWORD grund =
            ::MsgWaitForMultipleObjectsEx(1, &griff, Wartezeit(spieler.spätestens()), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        if (grund == WAIT_OBJECT_0) {
            klang.abholen();
            fenster.anzeigen();
        }
        fenster.bedienen();
        spieler.Fälliges_erledigen();
    }
}

bool übergeben(const Argumente& argumente) {
    Fenstersystem_Windows fenster{Frist_Übergabe};
    const Hwnd anderer = fenster.FindWindowA(argumente.Klasse);
    if (anderer == 0 || argumente.Dateien.empty()) return anderer != 0;
    Text bytes;
    for (const Text& datei : argumente.Dateien) (bytes += datei) += '\0';
    COPYDATASTRUCT daten{Marke_Dateien, static_cast<DWORD>(bytes.size()), bytes.data()};
    return fenster.SendMessageA(anderer, WM_COPYDATA, 0, reinterpret_cast<std::intptr_t>(&daten)) == TRUE;
}

}  // namespace

void ausführen(const Argumente& argumente) {
    // No box of the system's that asks for the disk of a drive.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    // From the look for a player of the class until there is one, nobody else of the class may look: so that of several
    // that start at once one stays.
    std::optional<Klassensperre> sperre;
    if (!argumente.neu) {
        sperre.emplace(argumente.Klasse);
        if (übergeben(argumente)) return;
    }

    const Systemgriff wecker(::CreateEventW(nullptr, FALSE, FALSE, nullptr));
    if (!wecker) throw std::runtime_error("no event");
    const char* ton = std::getenv("TONKARTEI_TON");
    Dateisystem_Windows platte, platte_des_Klangs;
    const Lautstärkegedächtnis gedächtnis(platte, Zustandsordner(), argumente.Klasse);
    Klang_mpg123 klang(ton ? ton : "", platte_des_Klangs, [&wecker] { ::SetEvent(wecker.griff()); });
    Spieler spieler(klang, platte, gedächtnis);
    if (!argumente.Dateien.empty()) spieler.Dateien(argumente.Dateien, true);
    Fenster fenster(argumente.Klasse, spieler);
    sperre.reset();
    // The folder that it was started in can be removed.
    wchar_t system[MAX_PATH];
    if (::GetSystemDirectoryW(system, MAX_PATH) != 0) ::SetCurrentDirectoryW(system);

    Schleife(fenster, spieler, klang, wecker);
    // What hangs must not keep the process.
    std::thread([] {
        std::this_thread::sleep_for(Frist_Ende);
        ::TerminateProcess(::GetCurrentProcess(), 0);
    }).detach();
}

}  // namespace tonkartei::spieler
