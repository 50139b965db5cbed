#include "plattform/windows/rechner_windows.hpp"

#include <algorithm>

#include "plattform/dateisystem.hpp"
#include "plattform/windows/breit.hpp"
#include "plattform/windows/dateiangaben.hpp"
#include "plattform/windows/pfadform.hpp"
#include "plattform/windows/winapi.hpp"

#include <knownfolders.h>
#include <objbase.h>
#include <shlobj.h>

namespace tonkartei {
namespace {

constexpr std::size_t längster_Objektname = 240;

Text Umgebungswert(const wchar_t* name) {
    std::wstring wert(::GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    if (wert.empty()) return {};
    wert.resize(::GetEnvironmentVariableW(name, wert.data(), static_cast<DWORD>(wert.size())));
    return schmal(wert);
}

// With separator; empty when the system has none.
Text bekannter_Ordner(const KNOWNFOLDERID& kennung) {
    wchar_t* pfad = nullptr;
    const bool da = ::SHGetKnownFolderPath(kennung, 0, nullptr, &pfad) == S_OK;
    const Text ergebnis = da ? mit_Trenner(schmal(pfad)) : Text();
    ::CoTaskMemFree(pfad);
    return ergebnis;
}

std::optional<Dateiangaben> da(const Text& pfad) {
    const auto form = ist_absolut(pfad) ? Pfadform_von(pfad, {}) : std::nullopt;
    Dateiangaben angaben;
    if (!form || ansehen(form->weit(), angaben) != 0) return std::nullopt;
    return angaben;
}

}  // namespace

Text Programmpfad() {
    std::wstring pfad(MAX_PATH, L'\0');
    for (;;) {
        const DWORD länge = ::GetModuleFileNameW(nullptr, pfad.data(), static_cast<DWORD>(pfad.size()));
        if (länge < pfad.size()) return schmal(pfad.substr(0, länge));
        pfad.resize(2 * pfad.size());
    }
}

Rechner_Windows::Rechner_Windows(Text name) : name_(std::move(name)) {}

Text Rechner_Windows::GetComputerNameA() {
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD länge = MAX_COMPUTERNAME_LENGTH + 1;
    return ::GetComputerNameW(name, &länge) != 0 && länge > 0 ? schmal({name, länge}) : "localhost";
}

Text Rechner_Windows::GetUserNameA() {
    wchar_t name[257];
    DWORD länge = 257;  // with the ending zero
    return ::GetUserNameW(name, &länge) != 0 && länge > 1 ? schmal({name, länge - 1}) : Umgebungswert(L"USERNAME");
}

Text Rechner_Windows::Temp_Verzeichnis() {
    for (const wchar_t* name : {L"TEMP", L"TMP"})
        if (const Text wert = Umgebungswert(name); !wert.empty())
            if (const auto ordner = da(wert); ordner && ordner->Ordner) return mit_Trenner(wert);
    return Ordner_von(Programmpfad());
}

Zeitpunkt Rechner_Windows::jetzt() {
    SYSTEMTIME hier;
    ::GetLocalTime(&hier);
    return {hier.wYear, hier.wMonth, hier.wDay, hier.wHour, hier.wMinute, std::min<int>(hier.wSecond, 59)};
}

void Rechner_Windows::Sleep(int ms) {
    if (ms > 0) ::Sleep(static_cast<DWORD>(ms));
}

bool Rechner_Windows::andere_Instanz_läuft() {
    if (andere_läuft_) return *andere_läuft_;
    std::wstring name = breit(name_.empty() ? "Instanz" : name_);
    // Separators would ask for another name space.
    std::replace(name.begin(), name.end(), L'\\', L'/');
    if (name.size() > längster_Objektname) name.erase(0, name.size() - längster_Objektname);
    sperre_ = Systemgriff(::CreateMutexW(nullptr, FALSE, (L"Local\\Tonkartei " + name).c_str()));
    const DWORD fehler = ::GetLastError();
    // The other one may run with more rights than we have.
    andere_läuft_ = sperre_ ? fehler == ERROR_ALREADY_EXISTS : fehler == ERROR_ACCESS_DENIED;
    return *andere_läuft_;
}

// 24 bits: exact in single precision, so never rounded up to 1.
float Rechner_Windows::Zufallszahl() { return static_cast<float>(generator_() >> 8U) / 16777216.0F; }

void Rechner_Windows::Zufall_säen() {
    FILETIME uhr;
    LARGE_INTEGER zähler;
    ::GetSystemTimeAsFileTime(&uhr);
    ::QueryPerformanceCounter(&zähler);
    std::seed_seq saat{static_cast<std::uint32_t>(uhr.dwHighDateTime), static_cast<std::uint32_t>(uhr.dwLowDateTime),
                       static_cast<std::uint32_t>(zähler.LowPart)};
    generator_.seed(saat);
}

Text Rechner_Windows::WinAmp_Vorgabe() {
    const Text üblich = "C:\\Programme\\WinAmp\\";
    for (const Text& ordner : {üblich, bekannter_Ordner(FOLDERID_ProgramFilesX86) + "Winamp\\",
                               bekannter_Ordner(FOLDERID_ProgramFiles) + "Winamp\\", Ordner_von(Programmpfad())})
        if (da(ordner + "WinAmp.Exe")) return ordner;
    return üblich;
}

}  // namespace tonkartei
