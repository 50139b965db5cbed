// The registry calls that the settings use, by their Windows names and with their Windows results (0 success, 2 not found,
// others failure). One root, HKEY_CURRENT_USER. Texts are UTF-8.
#pragma once

#include <cstdint>
#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei {

inline constexpr std::uint32_t HKEY_CURRENT_USER = 0x80000001;
inline constexpr std::uint32_t REG_SZ = 1;
inline constexpr std::uint32_t REG_BINARY = 3;
inline constexpr std::uint32_t REG_DWORD = 4;
inline constexpr std::uint32_t KEY_READ = 0x20019;
inline constexpr std::uint32_t KEY_ALL_ACCESS = 0xF003F;
inline constexpr long ERROR_SUCCESS = 0;
inline constexpr long ERROR_FILE_NOT_FOUND = 2;

class Registrierung {
public:
    using Schlüssel = std::uint32_t;  // an open key

    virtual ~Registrierung() = default;

    // Key names use "\" between levels and are compared without regard to case. Deleting takes the keys below along.
    virtual long RegOpenKeyExA(Schlüssel oberer, const Text& pfad, std::uint32_t zugriff, Schlüssel& ergebnis) = 0;
    virtual long RegCreateKeyExA(Schlüssel oberer, const Text& pfad, Schlüssel& ergebnis) = 0;
    // With `daten` null only type and size (in bytes, the ending zero included) are told; else `daten` receives the bytes.
    // An empty name is the key's default value.
    virtual long RegQueryValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t& art, std::uint32_t& größe,
                                  std::vector<char>* daten) = 0;
    virtual long RegSetValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t art,
                                const std::vector<char>& daten) = 0;
    // Brings all changes to the disk.
    virtual long RegFlushKey(Schlüssel schlüssel) = 0;
    virtual long RegCloseKey(Schlüssel schlüssel) = 0;
    virtual long RegDeleteKeyA(Schlüssel oberer, const Text& pfad) = 0;
};

}  // namespace tonkartei
