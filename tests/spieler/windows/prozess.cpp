#include "prozess.hpp"

#include "plattform/windows/breit.hpp"
#include "plattform/windows/winapi.hpp"
#include "spieler/zustandsordner.hpp"

namespace tonkartei::spieler {

Prozess::Prozess(const std::vector<std::string>& aufruf) {
    std::wstring zeile;
    for (const auto& wort : aufruf) zeile += (zeile.empty() ? L"\"" : L" \"") + breit(wort) + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION neu{};
    if (::CreateProcessW(nullptr, zeile.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &neu) == 0)
        throw std::runtime_error("no player");
    ::CloseHandle(neu.hThread);
    griff_ = Systemgriff(neu.hProcess);
}

Prozess::~Prozess() {
    ::TerminateProcess(griff_.griff(), 1);
    ::WaitForSingleObject(griff_.griff(), 5000);
}

std::optional<int> Prozess::Status() const {
    DWORD status = 0;
    if (::WaitForSingleObject(griff_.griff(), 0) != WAIT_OBJECT_0) return std::nullopt;
    ::GetExitCodeProcess(griff_.griff(), &status);
    return static_cast<int>(status);
}

void Umgebung_bereiten(const Testordner&) {
    std::filesystem::remove_all(Testordner::weg_zu(Zustandsordner()));
    ::SetEnvironmentVariableW(L"TONKARTEI_TON", L"null");
}

}  // namespace tonkartei::spieler
