#include "bediener/kindprozess.hpp"

#include <windows.h>

#include <array>
#include <cstdint>
#include <stdexcept>

namespace tonkartei {
namespace {

constexpr DWORD Geduld = 2000;  // milliseconds

std::wstring breit(const std::string& text) {
    std::wstring ergebnis(text.size(), L'\0');
    const int länge = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), ergebnis.data(),
                                            static_cast<int>(ergebnis.size()));
    ergebnis.resize(static_cast<std::size_t>(länge));
    return ergebnis;
}

// In quotes, as a program's start takes its command line apart: backslashes count double in front of a quote.
std::wstring Zeile(const std::vector<std::string>& aufruf) {
    std::wstring zeile;
    for (const std::string& wort : aufruf) {
        zeile += L'"';
        std::size_t schräge = 0;
        for (const wchar_t zeichen : breit(wort) + L'"') {
            const bool zitat = zeichen == L'"';
            if (zitat) zeile.append(schräge, L'\\') += L'\\';
            schräge = zeichen == L'\\' ? schräge + 1 : 0;
            zeile += zeichen;
        }
        // The last one was the end and not a quote of the word's.
        zeile.replace(zeile.size() - 2, 2, L"\" ");
    }
    return zeile;
}

}  // namespace

struct Kindprozess::Innen {
    HANDLE prozess = nullptr, hinein = nullptr, heraus = nullptr;
    int status = 0;
};

Kindprozess::Kindprozess(std::vector<std::string> aufruf, const std::vector<std::string>& umgebung)
    : innen_(std::make_unique<Innen>()) {
    SECURITY_ATTRIBUTES vererbt{sizeof vererbt, nullptr, TRUE};
    HANDLE sein_Eingang = nullptr, sein_Ausgang = nullptr;
    if (::CreatePipe(&sein_Eingang, &innen_->hinein, &vererbt, 0) == 0 ||
        ::CreatePipe(&innen_->heraus, &sein_Ausgang, &vererbt, 0) == 0)
        throw std::runtime_error("no pipe");
    for (const HANDLE unser : {innen_->hinein, innen_->heraus}) ::SetHandleInformation(unser, HANDLE_FLAG_INHERIT, 0);
    for (const std::string& zusatz : umgebung) {
        const auto gleich = zusatz.find('=');
        ::SetEnvironmentVariableW(breit(zusatz.substr(0, gleich)).c_str(), breit(zusatz.substr(gleich + 1)).c_str());
    }
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = sein_Eingang;
    start.hStdOutput = sein_Ausgang;
    start.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION neu{};
    std::wstring zeile = Zeile(aufruf);
    const bool da = ::CreateProcessW(breit(aufruf.front()).c_str(), zeile.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                     nullptr, &start, &neu) != 0;
    for (const std::string& zusatz : umgebung)
        ::SetEnvironmentVariableW(breit(zusatz.substr(0, zusatz.find('='))).c_str(), nullptr);
    ::CloseHandle(sein_Eingang);
    ::CloseHandle(sein_Ausgang);
    if (da) ::CloseHandle(neu.hThread);
    innen_->prozess = neu.hProcess;
    if (da) return;
    beenden();
    throw std::runtime_error("cannot start " + aufruf.front());
}

Kindprozess::~Kindprozess() { beenden(); }

void Kindprozess::beenden() noexcept {
    for (HANDLE* ende : {&innen_->hinein, &innen_->heraus}) {
        if (*ende != nullptr) ::CloseHandle(*ende);
        *ende = nullptr;
    }
    if (innen_->prozess == nullptr) return;
    if (::WaitForSingleObject(innen_->prozess, Geduld) != WAIT_OBJECT_0) ::TerminateProcess(innen_->prozess, 1);
    ::WaitForSingleObject(innen_->prozess, Geduld);
    ::CloseHandle(innen_->prozess);
    innen_->prozess = nullptr;
}

void Kindprozess::schreiben(const std::string& bytes) {
    for (std::size_t stelle = 0; stelle < bytes.size();) {
        DWORD n = 0;
        if (::WriteFile(innen_->hinein, bytes.data() + stelle, static_cast<DWORD>(bytes.size() - stelle), &n, nullptr) == 0)
            return;
        stelle += n;
    }
}

// A pipe like this can be looked at, but not waited for.
Kindprozess::Lage Kindprozess::lesen(std::string& ziel, int ms) {
    const std::uint64_t bis = ::GetTickCount64() + static_cast<std::uint64_t>(ms);
    for (DWORD da = 0; innen_->heraus != nullptr; ::Sleep(1)) {
        if (::PeekNamedPipe(innen_->heraus, nullptr, 0, nullptr, &da, nullptr) == 0) return Lage::Ende;
        if (da > 0) {
            std::array<char, 65536> stück;
            DWORD n = 0;
            if (::ReadFile(innen_->heraus, stück.data(), static_cast<DWORD>(stück.size()), &n, nullptr) == 0)
                return Lage::Ende;
            ziel.append(stück.data(), n);
            return Lage::gelesen;
        }
        if (::GetTickCount64() >= bis) return Lage::Zeit_um;
    }
    return Lage::Ende;
}

std::optional<int> Kindprozess::Status() {
    if (innen_->prozess == nullptr) return innen_->status;
    if (::WaitForSingleObject(innen_->prozess, 0) != WAIT_OBJECT_0) return std::nullopt;
    DWORD status = 0;
    ::GetExitCodeProcess(innen_->prozess, &status);
    innen_->status = static_cast<int>(status);
    ::CloseHandle(innen_->prozess);
    innen_->prozess = nullptr;
    return innen_->status;
}

}  // namespace tonkartei
