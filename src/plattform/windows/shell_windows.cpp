#include "plattform/windows/shell_windows.hpp"

#include "plattform/windows/befehlstext.hpp"
#include "plattform/windows/breit.hpp"
#include "plattform/windows/systemfehler.hpp"
#include "plattform/windows/systemgriff.hpp"
#include "plattform/windows/winapi.hpp"

namespace tonkartei {

Shell_Windows::Shell_Windows(Dateisystem& dateien, Papierkorb& papierkorb, Shell_Frage frage)
    : dateien_(dateien), papierkorb_(papierkorb), frage_(std::move(frage)) {}

Shell_Ergebnis Shell_Windows::SHFileOperationA(const Shell_Vorgang& vorgang) {
    return Shell_Dateivorgang(dateien_, papierkorb_, frage_, vorgang).ausführen();
}

void Shell_Windows::starten(const Text& befehl, int fensterstil) {
    const auto teile = Befehl_zerlegt(befehl, dateien_);
    if (!teile) throw Dateifehler(53, befehl);
    std::wstring zeile = breit(teile->Zeile);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = static_cast<WORD>(fensterstil);
    PROCESS_INFORMATION prozess{};
    // A console of this one is not handed on: closing it would end the new one.
    if (::CreateProcessW(breit(teile->Programm).c_str(), zeile.data(), nullptr, nullptr, FALSE,
                         DETACHED_PROCESS | CREATE_NEW_PROCESS_GROUP, nullptr, nullptr, &start, &prozess) == 0)
        werfen_letzten(teile->Programm);
    const Systemgriff faden(prozess.hThread), griff(prozess.hProcess);
    // Minimised with focus: it may come to the front when its user wants it.
    ::AllowSetForegroundWindow(prozess.dwProcessId);
}

}  // namespace tonkartei
