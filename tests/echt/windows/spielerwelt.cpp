#include "spielerwelt.hpp"

#include "plattform/windows/breit.hpp"
#include "plattform/windows/systemgriff.hpp"
#include "plattform/windows/winapi.hpp"

namespace tonkartei {

int Spieler_töten(const Testordner&, const std::string& klasse) {
    int getötet = 0;
    for (HWND f = nullptr; (f = ::FindWindowExW(nullptr, f, breit(klasse).c_str(), nullptr)) != nullptr; ++getötet) {
        DWORD prozess = 0;
        ::GetWindowThreadProcessId(f, &prozess);
        const Systemgriff griff(::OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, prozess));
        ::TerminateProcess(griff.griff(), 1);
        ::WaitForSingleObject(griff.griff(), 5000);
        if (getötet > 9) break;
    }
    return getötet;
}

void Spieler_hinlegen(const std::string& ordner) {
    std::filesystem::copy_file(TONKARTEI_SPIELER, Testordner::weg_zu(ordner + "WinAmp.Exe"));
}

}  // namespace tonkartei
