// The user's part of the registry.
#pragma once

#include <string>
#include <unordered_map>
#include <utility>

#include "plattform/registrierung.hpp"

namespace tonkartei {

// Names and texts are converted, all other values are the bytes that they are. Names with control characters are refused.
class Registrierung_Windows : public Registrierung {
public:
    // With a name, a tree of its own takes the place of the user's, empty at the beginning of his session: for machines that
    // are tried out.
    explicit Registrierung_Windows(const Text& name = {});
    ~Registrierung_Windows() override;
    Registrierung_Windows(const Registrierung_Windows&) = delete;
    Registrierung_Windows& operator=(const Registrierung_Windows&) = delete;

    long RegOpenKeyExA(Schlüssel oberer, const Text& pfad, std::uint32_t zugriff, Schlüssel& ergebnis) override;
    long RegCreateKeyExA(Schlüssel oberer, const Text& pfad, Schlüssel& ergebnis) override;
    long RegQueryValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t& art, std::uint32_t& größe,
                          std::vector<char>* daten) override;
    long RegSetValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t art, const std::vector<char>& daten) override;
    long RegFlushKey(Schlüssel schlüssel) override;
    long RegCloseKey(Schlüssel schlüssel) override;
    long RegDeleteKeyA(Schlüssel oberer, const Text& pfad) override;

    // Every key of the program (of the whole tree, when it is one of its own) that has a default value, with its path below
    // HKEY_CURRENT_USER, and the value: numbers in decimal, texts without the ending zero.
    std::vector<std::pair<Text, Text>> alle() const;

private:
    // The system's handle of an open key; null for a number that is none.
    void* Griff_von(Schlüssel schlüssel) const;
    Schlüssel merken(void* griff);

    const bool eigener_Baum_;
    void* wurzel_ = nullptr;
    Schlüssel nächster_ = 1;
    std::unordered_map<Schlüssel, void*> offene_;
};

}  // namespace tonkartei
