#include "datenbank/registry.hpp"

#include <cstring>
#include <vector>

#include "grundlagen/fehler.hpp"

namespace tonkartei {
namespace {

// An open key that is closed with its block; `gut` when it could be opened.
struct Offener_Schlüssel {
    Registrierung& registrierung;
    Registrierung::Schlüssel schlüssel = 0;
    bool gut;

    Offener_Schlüssel(Registrierung& r, Registrierung::Schlüssel haupt, const Text& pfad, std::uint32_t zugriff)
        : registrierung(r), gut(r.RegOpenKeyExA(haupt, pfad, zugriff, schlüssel) == ERROR_SUCCESS) {}
    ~Offener_Schlüssel() {
        if (gut) registrierung.RegCloseKey(schlüssel);
    }
    Offener_Schlüssel(const Offener_Schlüssel&) = delete;
    Offener_Schlüssel& operator=(const Offener_Schlüssel&) = delete;
};

}  // namespace

void Registry::Registry_Wurzel(Registrierung::Schlüssel Hauptschlüssel, const Text& Pfad) {
    haupt_ = Hauptschlüssel;
    pfad_ = Pfad;
}

bool Registry::vorhanden(const Text& pfad) const { return Offener_Schlüssel(registrierung_, haupt_, pfad, KEY_READ).gut; }

void Registry::anlegen(const Text& pfad) {
    Registrierung::Schlüssel schlüssel = 0;
    if (registrierung_.RegCreateKeyExA(haupt_, pfad, schlüssel) == ERROR_SUCCESS) registrierung_.RegCloseKey(schlüssel);
}

void Registry::Wert_schreiben(const Text& Name, const Text& Wert) {
    if (!vorhanden(pfad_)) anlegen(pfad_);
    const Text pfad = Schlüsselpfad(Name);
    if (!vorhanden(pfad)) anlegen(pfad);
    const Offener_Schlüssel offen(registrierung_, haupt_, pfad, KEY_ALL_ACCESS);
    if (!offen.gut) return;
    const Text wert = Wert.empty() ? Text(" ") : Wert;
    std::vector<char> daten(wert.begin(), wert.end());
    daten.push_back('\0');
    registrierung_.RegSetValueExA(offen.schlüssel, "", REG_SZ, daten);
}

void Registry::Byte_schreiben(const Text& Name, Byte Wert) { Wert_schreiben(Name, Zahltext(Wert)); }
void Registry::Long_schreiben(const Text& Name, Long Wert) { Wert_schreiben(Name, Zahltext(Wert)); }
void Registry::Bool_schreiben(const Text& Name, bool Wert) { Wert_schreiben(Name, Wert ? "True" : "False"); }

void Registry::Wert_lesen(const Text& Name, Text& Wert) const {
    const Offener_Schlüssel wurzel(registrierung_, haupt_, pfad_, KEY_READ);
    if (!wurzel.gut) return;
    const Offener_Schlüssel offen(registrierung_, haupt_, Schlüsselpfad(Name), KEY_READ);
    if (!offen.gut) return;
    std::uint32_t art = 0, größe = 0;
    if (registrierung_.RegQueryValueExA(offen.schlüssel, "", art, größe, nullptr) != ERROR_SUCCESS) return;
    if (art != REG_SZ && art != REG_DWORD) return;
    std::vector<char> daten;
    if (registrierung_.RegQueryValueExA(offen.schlüssel, "", art, größe, &daten) != ERROR_SUCCESS) return;
    if (art == REG_DWORD) {
        std::int32_t zahl = 0;
        if (daten.size() < sizeof zahl) return;
        std::memcpy(&zahl, daten.data(), sizeof zahl);
        Wert = Zahltext(zahl);
        return;
    }
    Wert = getrimmt(Zeichen_entfernen({daten.data(), daten.size()}, std::string_view("\0", 1)));
}

void Registry::Byte_lesen(const Text& Name, Byte& Wert) const {
    Text text;
    Wert_lesen(Name, text);
    if (text.empty()) return;
    try {
        Wert = gerundet_Byte(Zahlwert(text));
    } catch (const Laufzeitfehler&) {
        // Does not fit the kind: the default stays.
    }
}

void Registry::Long_lesen(const Text& Name, Long& Wert) const {
    Text text;
    Wert_lesen(Name, text);
    if (text.empty()) return;
    try {
        Wert = gerundet(Zahlwert(text));
    } catch (const Laufzeitfehler&) {
        // Does not fit the kind: the default stays.
    }
}

void Registry::Bool_lesen(const Text& Name, bool& Wert) const {
    Text text;
    Wert_lesen(Name, text);
    if (!text.empty()) Wert = text == "True";
}

void Registry::sichern() {
    const Offener_Schlüssel wurzel(registrierung_, haupt_, pfad_, KEY_ALL_ACCESS);
    registrierung_.RegFlushKey(wurzel.gut ? wurzel.schlüssel : haupt_);
}

void Registry::alles_löschen() {
    registrierung_.RegDeleteKeyA(haupt_, pfad_);
    registrierung_.RegFlushKey(haupt_);
}

}  // namespace tonkartei
