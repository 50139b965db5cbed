#include "plattform/linux/registrierung_linux.hpp"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "plattform/dateisystem.hpp"
#include "plattform/linux/systemruf.hpp"

namespace tonkartei {
namespace {

constexpr long ERROR_ACCESS_DENIED = 5;
constexpr long ERROR_INVALID_HANDLE = 6;
constexpr long ERROR_WRITE_FAULT = 29;
constexpr long ERROR_BAD_PATHNAME = 161;
constexpr long ERROR_KEY_DELETED = 1018;

const Text Wurzelpfad;

// Names with control characters could not be told apart in the file.
bool gültiger_Name(const Text& name) {
    for (const char zeichen : name)
        if (static_cast<unsigned char>(zeichen) < ' ') return false;
    return true;
}

// None with errno set.
std::optional<std::string> ganze_Datei(const Text& pfad) {
    const Deskriptor fd = öffne(pfad, O_RDONLY);
    if (!fd) return std::nullopt;
    std::string inhalt;
    char puffer[16 * 1024];
    for (;;) {
        const auto gelesen = ungestört([&] { return ::read(fd.fd(), puffer, sizeof puffer); });
        if (gelesen < 0) return std::nullopt;
        if (gelesen == 0) return inhalt;
        inhalt.append(puffer, static_cast<std::size_t>(gelesen));
    }
}

// The file itself where the path is a link to it, so that writing does not replace the link.
Text ohne_Verweis(const Text& pfad) {
    char ziel[PATH_MAX];
    return ::realpath(pfad.c_str(), ziel) != nullptr ? Text(ziel) : pfad;
}

bool ersetzen(const Text& pfad, const std::string& inhalt) {
    const Text ziel = ohne_Verweis(pfad);
    const Text neu = ziel + ".neu";
    const Text ordner = Ordner_von(ziel);
    if (!ordner.empty() && !Ordner_kette_anlegen(ordner)) return false;
    ::unlink(neu.c_str());
    const Deskriptor fd = öffne(neu, O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (!fd) return false;
    if (alles_schreiben(fd.fd(), inhalt.data(), inhalt.size(), 0) && ungestört([&] { return ::fsync(fd.fd()); }) == 0 &&
        ::rename(neu.c_str(), ziel.c_str()) == 0)
        return Ordner_sichern(ordner.empty() ? "." : ordner);
    ::unlink(neu.c_str());
    return false;
}

}  // namespace

Registrierung_Linux::Registrierung_Linux(Text pfad_der_Datei) : pfad_(std::move(pfad_der_Datei)) {}

void Registrierung_Linux::laden() const {
    if (geladen_) return;
    geladen_ = true;
    if (const auto inhalt = ganze_Datei(pfad_))
        baum_ = Regbaum::aus_Text(*inhalt);
    else
        unlesbar_ = errno != ENOENT && errno != ENOTDIR;
}

bool Registrierung_Linux::speichern() const { return !unlesbar_ && ersetzen(pfad_, baum_.als_Text()); }

const Text* Registrierung_Linux::Pfad_von(Schlüssel schlüssel) const {
    if (schlüssel == HKEY_CURRENT_USER) return &Wurzelpfad;
    const auto treffer = offene_.find(schlüssel);
    return treffer == offene_.end() ? nullptr : &treffer->second;
}

Registrierung::Schlüssel Registrierung_Linux::öffnen(Text gefaltet) {
    while (nächster_ == 0 || nächster_ >= HKEY_CURRENT_USER || offene_.count(nächster_) != 0)
        nächster_ = nächster_ >= HKEY_CURRENT_USER ? 1 : nächster_ + 1;
    offene_.emplace(nächster_, std::move(gefaltet));
    return nächster_++;
}

long Registrierung_Linux::RegOpenKeyExA(Schlüssel oberer, const Text& pfad, std::uint32_t, Schlüssel& ergebnis) {
    const Text* oben = Pfad_von(oberer);
    if (oben == nullptr) return ERROR_INVALID_HANDLE;
    laden();
    Text gefaltet = Regbaum::gefaltet(*oben, pfad);
    if (!gültiger_Name(pfad) || (!gefaltet.empty() && baum_.suche(gefaltet) == nullptr)) return ERROR_FILE_NOT_FOUND;
    ergebnis = öffnen(std::move(gefaltet));
    return ERROR_SUCCESS;
}

long Registrierung_Linux::RegCreateKeyExA(Schlüssel oberer, const Text& pfad, Schlüssel& ergebnis) {
    const Text* oben = Pfad_von(oberer);
    if (oben == nullptr) return ERROR_INVALID_HANDLE;
    if (!gültiger_Name(pfad)) return ERROR_BAD_PATHNAME;
    laden();
    if (!oben->empty() && baum_.suche(*oben) == nullptr) return ERROR_KEY_DELETED;
    Text gefaltet;
    bool neu = false;
    baum_.anlegen(*oben, pfad, gefaltet, neu);
    geändert_ = geändert_ || neu;
    ergebnis = öffnen(std::move(gefaltet));
    return ERROR_SUCCESS;
}

long Registrierung_Linux::RegQueryValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t& art, std::uint32_t& größe,
                                           std::vector<char>* daten) {
    const Text* pfad = Pfad_von(schlüssel);
    if (pfad == nullptr) return ERROR_INVALID_HANDLE;
    laden();
    const auto* knoten = baum_.suche(*pfad);
    if (knoten == nullptr) return pfad->empty() ? ERROR_FILE_NOT_FOUND : ERROR_KEY_DELETED;
    const auto wert = knoten->Werte.find(groß(name));
    if (wert == knoten->Werte.end()) return ERROR_FILE_NOT_FOUND;
    art = wert->second.Art;
    größe = static_cast<std::uint32_t>(wert->second.Bytes.size());
    if (daten != nullptr) *daten = wert->second.Bytes;
    return ERROR_SUCCESS;
}

long Registrierung_Linux::RegSetValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t art,
                                         const std::vector<char>& daten) {
    const Text* pfad = Pfad_von(schlüssel);
    if (pfad == nullptr) return ERROR_INVALID_HANDLE;
    if (!gültiger_Name(name)) return ERROR_BAD_PATHNAME;
    laden();
    Text gefaltet;
    bool neu = false;
    Regbaum::Knoten* knoten = pfad->empty() ? &baum_.anlegen({}, {}, gefaltet, neu) : baum_.suche(*pfad);
    if (knoten == nullptr) return ERROR_KEY_DELETED;
    const auto [platz, frisch] = knoten->Werte.try_emplace(groß(name));
    auto& wert = platz->second;
    if (frisch) wert.Name = name;
    if (!frisch && wert.Art == art && wert.Bytes == daten) return ERROR_SUCCESS;
    wert.Art = art;
    wert.Bytes = daten;
    geändert_ = true;
    return ERROR_SUCCESS;
}

long Registrierung_Linux::RegFlushKey(Schlüssel schlüssel) {
    if (Pfad_von(schlüssel) == nullptr) return ERROR_INVALID_HANDLE;
    if (!geändert_) return ERROR_SUCCESS;
    if (!speichern()) return ERROR_WRITE_FAULT;
    geändert_ = false;
    return ERROR_SUCCESS;
}

long Registrierung_Linux::RegCloseKey(Schlüssel schlüssel) {
    if (schlüssel == HKEY_CURRENT_USER) return ERROR_SUCCESS;
    return offene_.erase(schlüssel) == 1 ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

long Registrierung_Linux::RegDeleteKeyA(Schlüssel oberer, const Text& pfad) {
    const Text* oben = Pfad_von(oberer);
    if (oben == nullptr) return ERROR_INVALID_HANDLE;
    laden();
    const Text gefaltet = Regbaum::gefaltet(*oben, pfad);
    if (gefaltet.empty()) return ERROR_ACCESS_DENIED;
    if (!gültiger_Name(pfad) || !baum_.löschen(gefaltet)) return ERROR_FILE_NOT_FOUND;
    geändert_ = true;
    return ERROR_SUCCESS;
}

std::vector<std::pair<Text, Text>> Registrierung_Linux::alle() const {
    laden();
    std::vector<std::pair<Text, Text>> liste;
    for (const auto& [gefaltet, knoten] : baum_.alle()) {
        const auto vorgabe = knoten.Werte.find(Text());
        if (vorgabe == knoten.Werte.end()) continue;
        const auto& [name, art, bytes] = vorgabe->second;
        Text wert(bytes.begin(), bytes.end());
        if (art == REG_SZ && !wert.empty() && wert.back() == '\0') wert.pop_back();
        if (art == REG_DWORD && bytes.size() == 4) {
            std::uint32_t zahl = 0;
            for (std::size_t i = 4; i-- > 0;) zahl = (zahl << 8U) | static_cast<unsigned char>(bytes[i]);
            wert = std::to_string(zahl);
        }
        liste.emplace_back(knoten.Pfad, std::move(wert));
    }
    return liste;
}

}  // namespace tonkartei
