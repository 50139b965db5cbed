#include "plattform/windows/dateiangaben.hpp"

#include <algorithm>

#include "plattform/dateisystem.hpp"
#include "plattform/windows/ordnersuche.hpp"
#include "plattform/windows/pfadform.hpp"
#include "plattform/windows/systemgriff.hpp"
#include "plattform/windows/winapi.hpp"

namespace tonkartei {
namespace {

constexpr std::uint64_t zusammen(std::uint32_t hoch, std::uint32_t tief) {
    return (static_cast<std::uint64_t>(hoch) << 32U) | tief;
}

void eintragen(DWORD merkmale, std::uint64_t länge, const FILETIME& geändert, Dateiangaben& ziel) {
    ziel.Ordner = (merkmale & FILE_ATTRIBUTE_DIRECTORY) != 0;
    ziel.schreibgeschützt = (merkmale & FILE_ATTRIBUTE_READONLY) != 0;
    ziel.Länge = länge;
    ziel.geändert = zusammen(geändert.dwHighDateTime, geändert.dwLowDateTime);
}

}  // namespace

unsigned long ansehen(const std::wstring& pfad, Dateiangaben& ergebnis, bool Verweis_selbst) {
    WIN32_FILE_ATTRIBUTE_DATA daten;
    if (::GetFileAttributesExW(pfad.c_str(), GetFileExInfoStandard, &daten) == 0) return ::GetLastError();
    ergebnis.Verweis = (daten.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && Ordnersuche(pfad).ist_Verweis();
    if (ergebnis.Verweis && !Verweis_selbst) return genau_ansehen(pfad, ergebnis);
    eintragen(daten.dwFileAttributes, zusammen(daten.nFileSizeHigh, daten.nFileSizeLow), daten.ftLastWriteTime, ergebnis);
    return 0;
}

unsigned long genau_ansehen(const std::wstring& pfad, Dateiangaben& ergebnis, bool Verweis_selbst) {
    const DWORD art = FILE_FLAG_BACKUP_SEMANTICS | (Verweis_selbst ? FILE_FLAG_OPEN_REPARSE_POINT : 0);
    // To look at a file asks for no right that somebody could have kept to himself.
    const Systemgriff griff(::CreateFileW(pfad.c_str(), FILE_READ_ATTRIBUTES,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                          art, nullptr));
    return griff ? ansehen(griff.griff(), ergebnis) : ::GetLastError();
}

unsigned long ansehen(void* offene, Dateiangaben& ergebnis) {
    BY_HANDLE_FILE_INFORMATION daten;
    if (::GetFileInformationByHandle(offene, &daten) == 0) return ::GetLastError();
    eintragen(daten.dwFileAttributes, zusammen(daten.nFileSizeHigh, daten.nFileSizeLow), daten.ftLastWriteTime, ergebnis);
    ergebnis.Kennung = {daten.dwVolumeSerialNumber, zusammen(daten.nFileIndexHigh, daten.nFileIndexLow)};
    return 0;
}

Zeitpunkt örtlich(std::uint64_t zeit) {
    const FILETIME einheiten{static_cast<DWORD>(zeit), static_cast<DWORD>(zeit >> 32U)};
    SYSTEMTIME überall, hier;
    if (::FileTimeToSystemTime(&einheiten, &überall) == 0 ||
        ::SystemTimeToTzSpecificLocalTime(nullptr, &überall, &hier) == 0)
        return {};
    return {hier.wYear, hier.wMonth, hier.wDay, hier.wHour, hier.wMinute, std::min<int>(hier.wSecond, 59)};
}

bool Ordner_kette_anlegen(const Text& ordner) {
    const auto form = Pfadform_von(ordner, {});
    if (!form) return false;
    Dateiangaben da;
    if (ansehen(form->weit(), da) == 0) return da.Ordner;
    const Text oben = ohne_Trenner(Ordner_von(form->Name));
    if (oben.size() >= form->Name.size() || !Ordner_kette_anlegen(oben)) return false;
    return ::CreateDirectoryW(form->weit().c_str(), nullptr) != 0 || ::GetLastError() == ERROR_ALREADY_EXISTS;
}

}  // namespace tonkartei
