#include "plattform/windows/registrierung_windows.hpp"

#include <algorithm>
#include <functional>
#include <optional>

#include "plattform/windows/breit.hpp"
#include "plattform/windows/winapi.hpp"

namespace tonkartei {
namespace {

constexpr std::size_t längster_Name = 256;  // of a key, the ending zero included

bool gültiger_Name(const Text& name) {
    return std::none_of(name.begin(), name.end(), [](char zeichen) { return static_cast<unsigned char>(zeichen) < ' '; });
}

// Without the levels that have no name.
std::wstring Schlüsselpfad(const Text& pfad) {
    std::wstring ergebnis;
    for (const wchar_t zeichen : breit(pfad))
        if (zeichen != L'\\' || (!ergebnis.empty() && ergebnis.back() != L'\\')) ergebnis.push_back(zeichen);
    if (!ergebnis.empty() && ergebnis.back() == L'\\') ergebnis.pop_back();
    return ergebnis;
}

void* anlegen(void* oberer, const std::wstring& pfad, DWORD dauer, long& fehler) {
    HKEY neu = nullptr;
    fehler = ::RegCreateKeyExW(static_cast<HKEY>(oberer), pfad.c_str(), 0, nullptr, dauer, KEY_ALL_ACCESS, nullptr, &neu,
                               nullptr);
    return neu;
}

long lesen(void* schlüssel, const std::wstring& name, DWORD& art, std::vector<char>& daten) {
    for (DWORD größe = 256;;) {
        daten.resize(größe);
        const long fehler = ::RegQueryValueExW(static_cast<HKEY>(schlüssel), name.c_str(), nullptr, &art,
                                               reinterpret_cast<BYTE*>(daten.data()), &größe);
        // It may have grown since its size was told.
        if (fehler == ERROR_MORE_DATA) continue;
        daten.resize(fehler == ERROR_SUCCESS ? größe : 0);
        if (fehler == ERROR_SUCCESS && art == REG_SZ) {
            const std::wstring text(reinterpret_cast<const wchar_t*>(daten.data()), daten.size() / sizeof(wchar_t));
            const Text bytes = schmal(text);
            daten.assign(bytes.begin(), bytes.end());
        }
        return fehler;
    }
}

Text als_Text(DWORD art, const std::vector<char>& daten) {
    Text wert(daten.begin(), daten.end());
    if (art == REG_SZ && !wert.empty() && wert.back() == '\0') wert.pop_back();
    if (art != REG_DWORD || daten.size() != 4) return wert;
    std::uint32_t zahl = 0;
    for (std::size_t i = 4; i-- > 0;) zahl = (zahl << 8U) | static_cast<unsigned char>(daten[i]);
    return std::to_string(zahl);
}

// Names of the keys right below one.
std::vector<std::wstring> Unterschlüssel(HKEY schlüssel) {
    std::vector<std::wstring> namen;
    for (DWORD i = 0;; ++i) {
        wchar_t name[längster_Name];
        DWORD länge = längster_Name;
        if (::RegEnumKeyExW(schlüssel, i, name, &länge, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
        namen.emplace_back(name, länge);
    }
    return namen;
}

}  // namespace

Registrierung_Windows::Registrierung_Windows(const Text& name) : eigener_Baum_(!name.empty()), wurzel_(HKEY_CURRENT_USER) {
    if (!eigener_Baum_) return;
    std::wstring pfad = breit(name);
    std::replace(pfad.begin(), pfad.end(), L'\\', L'/');
    if (pfad.size() >= längster_Name) pfad.erase(0, pfad.size() - längster_Name + 1);
    long fehler = 0;
    wurzel_ = anlegen(HKEY_CURRENT_USER, L"Software\\Tonkartei-Probe\\" + pfad, REG_OPTION_VOLATILE, fehler);
}

Registrierung_Windows::~Registrierung_Windows() {
    for (const auto& [schlüssel, griff] : offene_) ::RegCloseKey(static_cast<HKEY>(griff));
    if (eigener_Baum_ && wurzel_ != nullptr) ::RegCloseKey(static_cast<HKEY>(wurzel_));
}

void* Registrierung_Windows::Griff_von(Schlüssel schlüssel) const {
    if (schlüssel == Wurzelschlüssel) return wurzel_;
    const auto treffer = offene_.find(schlüssel);
    return treffer == offene_.end() ? nullptr : treffer->second;
}

Registrierung::Schlüssel Registrierung_Windows::merken(void* griff) {
    while (nächster_ == 0 || nächster_ >= Wurzelschlüssel || offene_.count(nächster_) != 0)
        nächster_ = nächster_ >= Wurzelschlüssel ? 1 : nächster_ + 1;
    offene_.emplace(nächster_, griff);
    return nächster_++;
}

long Registrierung_Windows::RegOpenKeyExA(Schlüssel oberer, const Text& pfad, std::uint32_t zugriff, Schlüssel& ergebnis) {
    void* oben = Griff_von(oberer);
    if (oben == nullptr) return ERROR_INVALID_HANDLE;
    if (!gültiger_Name(pfad)) return ERROR_FILE_NOT_FOUND;
    HKEY offen = nullptr;
    const long fehler = ::RegOpenKeyExW(static_cast<HKEY>(oben), Schlüsselpfad(pfad).c_str(), 0, zugriff, &offen);
    if (fehler == ERROR_SUCCESS) ergebnis = merken(offen);
    return fehler;
}

long Registrierung_Windows::RegCreateKeyExA(Schlüssel oberer, const Text& pfad, Schlüssel& ergebnis) {
    void* oben = Griff_von(oberer);
    if (oben == nullptr) return ERROR_INVALID_HANDLE;
    if (!gültiger_Name(pfad)) return ERROR_BAD_PATHNAME;
    long fehler = 0;
    void* neu = anlegen(oben, Schlüsselpfad(pfad), eigener_Baum_ ? REG_OPTION_VOLATILE : REG_OPTION_NON_VOLATILE, fehler);
    if (fehler == ERROR_SUCCESS) ergebnis = merken(neu);
    return fehler;
}

long Registrierung_Windows::RegQueryValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t& art, std::uint32_t& größe,
                                             std::vector<char>* daten) {
    void* griff = Griff_von(schlüssel);
    if (griff == nullptr) return ERROR_INVALID_HANDLE;
    DWORD seine_Art = 0;
    std::vector<char> bytes;
    if (const long fehler = lesen(griff, breit(name), seine_Art, bytes); fehler != ERROR_SUCCESS) return fehler;
    art = seine_Art;
    größe = static_cast<std::uint32_t>(bytes.size());
    if (daten != nullptr) *daten = std::move(bytes);
    return ERROR_SUCCESS;
}

long Registrierung_Windows::RegSetValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t art,
                                           const std::vector<char>& daten) {
    void* griff = Griff_von(schlüssel);
    if (griff == nullptr) return ERROR_INVALID_HANDLE;
    if (!gültiger_Name(name)) return ERROR_BAD_PATHNAME;
    const std::wstring text = art == REG_SZ ? breit({daten.data(), daten.size()}) : std::wstring();
    const void* bytes = art == REG_SZ ? static_cast<const void*>(text.data()) : daten.data();
    const std::size_t größe = art == REG_SZ ? text.size() * sizeof(wchar_t) : daten.size();
    return ::RegSetValueExW(static_cast<HKEY>(griff), breit(name).c_str(), 0, art, static_cast<const BYTE*>(bytes),
                            static_cast<DWORD>(größe));
}

long Registrierung_Windows::RegFlushKey(Schlüssel schlüssel) {
    void* griff = Griff_von(schlüssel);
    return griff == nullptr ? ERROR_INVALID_HANDLE : ::RegFlushKey(static_cast<HKEY>(griff));
}

long Registrierung_Windows::RegCloseKey(Schlüssel schlüssel) {
    if (schlüssel == Wurzelschlüssel) return ERROR_SUCCESS;
    const auto treffer = offene_.find(schlüssel);
    if (treffer == offene_.end()) return ERROR_INVALID_HANDLE;
    const long fehler = ::RegCloseKey(static_cast<HKEY>(treffer->second));
    offene_.erase(treffer);
    return fehler;
}

long Registrierung_Windows::RegDeleteKeyA(Schlüssel oberer, const Text& pfad) {
    void* oben = Griff_von(oberer);
    if (oben == nullptr) return ERROR_INVALID_HANDLE;
    const std::wstring name = Schlüsselpfad(pfad);
    // The call takes an empty name for "all that lies in here".
    if (name.empty()) return ERROR_ACCESS_DENIED;
    return gültiger_Name(pfad) ? ::RegDeleteTreeW(static_cast<HKEY>(oben), name.c_str()) : ERROR_FILE_NOT_FOUND;
}

std::vector<std::pair<Text, Text>> Registrierung_Windows::alle() const {
    std::vector<std::pair<Text, Text>> liste;
    const std::function<void(const std::wstring&)> besuche = [&](const std::wstring& pfad) {
        HKEY hier = nullptr;
        if (::RegOpenKeyExW(static_cast<HKEY>(wurzel_), pfad.c_str(), 0, KEY_READ, &hier) != ERROR_SUCCESS) return;
        DWORD art = 0;
        std::vector<char> daten;
        if (lesen(hier, {}, art, daten) == ERROR_SUCCESS) liste.emplace_back(schmal(pfad), als_Text(art, daten));
        const auto untere = Unterschlüssel(hier);
        ::RegCloseKey(hier);
        for (const auto& name : untere) besuche(pfad.empty() ? name : pfad + L'\\' + name);
    };
    besuche(eigener_Baum_ ? L"" : L"Software\\Tonkartei");
    // What lies below a key follows it, whatever its neighbours are called.
    const auto rang = [](const auto& eintrag) { return ersetzt(groß(eintrag.first), "\\", "\x01"); };
    std::sort(liste.begin(), liste.end(), [&](const auto& a, const auto& b) { return rang(a) < rang(b); });
    return liste;
}

}  // namespace tonkartei
