// What the disk's part does with names: renaming, deleting, folders, copying.
#include <algorithm>

#include "plattform/windows/breit.hpp"
#include "plattform/windows/dateisystem_windows.hpp"
#include "plattform/windows/ordnersuche.hpp"
#include "plattform/windows/pfadform.hpp"
#include "plattform/windows/systemfehler.hpp"
#include "plattform/windows/winapi.hpp"

namespace tonkartei {
namespace {

constexpr DWORD Handvoll = 256U << 10U;

// Some file systems take another spelling of the same name for nothing to do.
void über_Umweg(const std::wstring& ziel, const Text& nach) {
    const std::wstring jetzt = in_seiner_Schreibweise(ziel), umweg = ziel + L".neu";
    if (::MoveFileExW(jetzt.c_str(), umweg.c_str(), 0) == 0) werfen_letzten(nach);
    if (::MoveFileExW(umweg.c_str(), ziel.c_str(), MOVEFILE_WRITE_THROUGH) != 0) return;
    const auto fehler = ::GetLastError();
    ::MoveFileExW(umweg.c_str(), jetzt.c_str(), MOVEFILE_WRITE_THROUGH);
    werfen(fehler, nach);
}

// Bytes of one open file into another; false with the system's error set.
bool Inhalt_kopieren(void* aus, void* in, std::uint64_t länge) {
    std::vector<char> puffer(static_cast<std::size_t>(std::clamp<std::uint64_t>(länge, 1, Handvoll)));
    for (std::uint64_t stelle = 0; stelle < länge;) {
        DWORD gelesen = 0, geschrieben = 0;
        if (::ReadFile(aus, puffer.data(), static_cast<DWORD>(puffer.size()), &gelesen, nullptr) == 0) return false;
        if (gelesen == 0) ::SetLastError(ERROR_READ_FAULT);
        if (gelesen == 0 || ::WriteFile(in, puffer.data(), gelesen, &geschrieben, nullptr) == 0) return false;
        if (geschrieben < gelesen) ::SetLastError(ERROR_DISK_FULL);
        if (geschrieben < gelesen) return false;
        stelle += gelesen;
    }
    return true;
}

}  // namespace

void Dateisystem_Windows::umbenennen(const Text& von, const Text& nach) {
    const std::wstring quelle = weit(von), ziel = weit(nach);
    const Dateiangaben datei = genau(quelle, von);
    Dateiangaben dort;
    if (const auto fehler = genau_ansehen(ziel, dort, true); fehler == 0) {
        const bool nur_Schreibweise = dort.Kennung == datei.Kennung && groß(schmal(quelle)) == groß(schmal(ziel));
        if (!nur_Schreibweise) throw Dateifehler(58, nach);
    } else if (fehler != ERROR_FILE_NOT_FOUND) {
        werfen(fehler, nach);
    }
    if (offen_hier(datei.Kennung) != nullptr) throw Dateifehler(75, von);
    if (::MoveFileExW(quelle.c_str(), ziel.c_str(), MOVEFILE_WRITE_THROUGH) != 0) {
        if (in_seiner_Schreibweise(ziel) != ziel) über_Umweg(ziel, nach);
        return;
    }
    const auto fehler = ::GetLastError();
    // Somebody else has it open, or something of the folder.
    if (fehler == ERROR_SHARING_VIOLATION) throw Dateifehler(75, von);
    werfen(fehler, fehler == ERROR_ALREADY_EXISTS ? nach : von);
}

void Dateisystem_Windows::ersetzen(const Text& von, const Text& nach) {
    const std::wstring quelle = weit(von), ziel = weit(nach);
    const Dateiangaben datei = genau(quelle, von), dort = genau(ziel, nach);
    // Renaming a file onto its own second name would do nothing and call that success.
    if (datei.Ordner || dort.Ordner || datei.Kennung == dort.Kennung) throw Dateifehler(75, nach);
    if (offen_hier(datei.Kennung) != nullptr) throw Dateifehler(75, von);
    if (offen_hier(dort.Kennung) != nullptr) throw Dateifehler(75, nach);
    if (::MoveFileExW(quelle.c_str(), in_seiner_Schreibweise(ziel).c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
        return;
    const auto fehler = ::GetLastError();
    werfen(fehler == ERROR_SHARING_VIOLATION ? ERROR_ACCESS_DENIED : fehler, von);
}

void Dateisystem_Windows::löschen(const Text& pfad) {
    const std::wstring ganzer = weit(pfad);
    Dateiangaben datei;
    if (const auto fehler = ansehen(ganzer, datei, true); fehler != 0) werfen(fehler, pfad, 70);
    if (datei.Ordner && !datei.Verweis) throw Dateifehler(53, pfad);
    // Open here it would be gone for everybody, and come to an end only with the closing.
    if (!datei.Verweis && offen_hier(ganzer) != nullptr) throw Dateifehler(70, pfad);
    const bool weg = datei.Ordner ? ::RemoveDirectoryW(ganzer.c_str()) != 0 : ::DeleteFileW(ganzer.c_str()) != 0;
    if (!weg) werfen_letzten(pfad, 70);
}

void Dateisystem_Windows::Ordner_anlegen(const Text& pfad) {
    if (::CreateDirectoryW(weit(pfad).c_str(), nullptr) != 0) return;
    const int nummer = Fehlernummer(::GetLastError());
    throw Dateifehler(nummer == 76 || nummer == 61 ? nummer : 75, pfad);
}

void Dateisystem_Windows::Ordner_löschen(const Text& pfad) {
    const std::wstring ganzer = weit(pfad);
    Dateiangaben datei;
    if (ansehen(ganzer, datei, true) != 0) throw Dateifehler(76, pfad);
    if (::RemoveDirectoryW(ganzer.c_str()) == 0) werfen_letzten(pfad);
}

std::vector<Dateisystem::Eintrag> Dateisystem_Windows::auflisten(const Text& pfad) {
    if (!Ordner_da(pfad)) throw Dateifehler(76, pfad);
    const Text ordner = mit_Trenner(Pfadform_von(pfad, aktueller_Ordner_)->Name);
    Ordnersuche suche(Pfadform{ordner}.weit() + L"*");
    // The root of a drive may hold nothing at all.
    if (!suche && ::GetLastError() == ERROR_FILE_NOT_FOUND) return {};
    if (!suche) werfen_letzten(pfad, 70);
    std::vector<Eintrag> einträge;
    do {
        Eintrag eintrag;
        eintrag.Name = schmal(suche.Name());
        if (eintrag.Name == "." || eintrag.Name == "..") continue;
        eintrag.ist_Ordner = suche.ist_Ordner();
        eintrag.ist_Verweis = suche.ist_Verweis();
        einträge.push_back(std::move(eintrag));
    } while (suche.weiter());
    if (const auto fehler = ::GetLastError(); fehler != ERROR_NO_MORE_FILES) werfen(fehler, pfad, 70);
    std::sort(einträge.begin(), einträge.end(), [](const Eintrag& a, const Eintrag& b) { return a.Name < b.Name; });
    return einträge;
}

void Dateisystem_Windows::kopieren(const Text& von, const Text& nach) {
    const std::wstring quelle = weit(von), ziel = weit(nach);
    const Systemgriff aus(::CreateFileW(quelle.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!aus) werfen_beim_Öffnen(::GetLastError(), quelle, von);
    Dateiangaben datei, dort;
    if (const auto fehler = ansehen(aus.griff(), datei); fehler != 0) werfen(fehler, von);
    if (datei.Ordner) throw Dateifehler(75, von);
    if (const Offen* offen = offen_hier(datei.Kennung); offen != nullptr && offen->schreibend) throw Dateifehler(55, von);
    Systemgriff in(::CreateFileW(ziel.c_str(), GENERIC_WRITE | FILE_READ_ATTRIBUTES, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                 FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!in) werfen_beim_Öffnen(::GetLastError(), ziel, nach);
    if (const auto fehler = ansehen(in.griff(), dort); fehler != 0) werfen(fehler, nach);
    if (dort.Ordner || dort.schreibgeschützt || dort.Kennung == datei.Kennung) throw Dateifehler(75, nach);
    if (offen_hier(dort.Kennung) != nullptr) throw Dateifehler(55, nach);
    if (dort.Länge > 0 && ::SetEndOfFile(in.griff()) == 0) werfen_letzten(nach);
    const FILETIME zeit{static_cast<DWORD>(datei.geändert), static_cast<DWORD>(datei.geändert >> 32U)};
    if (Inhalt_kopieren(aus.griff(), in.griff(), datei.Länge) && ::SetFileTime(in.griff(), nullptr, nullptr, &zeit) != 0 &&
        in.schließen())
        return;
    const auto fehler = ::GetLastError();
    // Under a song's name a part of it would pass for the whole.
    in.schließen();
    ::DeleteFileW(ziel.c_str());
    werfen(fehler, nach);
}

}  // namespace tonkartei
