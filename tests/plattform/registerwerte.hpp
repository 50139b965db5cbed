// Default values of keys, put and read as texts.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plattform/registrierung.hpp"

namespace tonkartei {

inline long setze(Registrierung& reg, const Text& name, const std::string& bytes, std::uint32_t art = REG_SZ) {
    Registrierung::Schlüssel schlüssel = 0;
    if (const long fehler = reg.RegCreateKeyExA(HKEY_CURRENT_USER, name, schlüssel); fehler != 0) return fehler;
    std::vector<char> daten(bytes.begin(), bytes.end());
    if (art == REG_SZ) daten.push_back('\0');
    const long ergebnis = reg.RegSetValueExA(schlüssel, "", art, daten);
    reg.RegCloseKey(schlüssel);
    return ergebnis;
}
// The bytes of a key's default value; "(keiner)" without.
inline std::string lies(Registrierung& reg, const Text& name, std::uint32_t erwartete_Art = REG_SZ) {
    Registrierung::Schlüssel schlüssel = 0;
    if (reg.RegOpenKeyExA(HKEY_CURRENT_USER, name, KEY_READ, schlüssel) != 0) return "(keiner)";
    std::uint32_t art = 0, größe = 0;
    std::vector<char> daten;
    if (reg.RegQueryValueExA(schlüssel, "", art, größe, nullptr) != 0) return "(keiner)";
    EXPECT_EQ(reg.RegQueryValueExA(schlüssel, "", art, größe, &daten), 0);
    EXPECT_EQ(daten.size(), größe);
    EXPECT_EQ(art, erwartete_Art);
    reg.RegCloseKey(schlüssel);
    return {daten.begin(), daten.end()};
}
inline std::string mit_Null(std::string text) { return text + '\0'; }

}  // namespace tonkartei
