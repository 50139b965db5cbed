// The registry as one file of the user.
#pragma once

#include <unordered_map>
#include <utility>

#include "plattform/linux/regdatei.hpp"
#include "plattform/registrierung.hpp"

namespace tonkartei {

// Read whole at the first call; written whole, and only if something changed, when RegFlushKey is called on any open key or
// on HKEY_CURRENT_USER. A file that is there and cannot be read is never written over: then flushing fails.
class Registrierung_Linux : public Registrierung {
public:
    explicit Registrierung_Linux(Text pfad_der_Datei);

    long RegOpenKeyExA(Schlüssel oberer, const Text& pfad, std::uint32_t zugriff, Schlüssel& ergebnis) override;
    long RegCreateKeyExA(Schlüssel oberer, const Text& pfad, Schlüssel& ergebnis) override;
    long RegQueryValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t& art, std::uint32_t& größe,
                          std::vector<char>* daten) override;
    long RegSetValueExA(Schlüssel schlüssel, const Text& name, std::uint32_t art, const std::vector<char>& daten) override;
    long RegFlushKey(Schlüssel schlüssel) override;
    long RegCloseKey(Schlüssel schlüssel) override;
    long RegDeleteKeyA(Schlüssel oberer, const Text& pfad) override;

    // Every key that has a default value, with its path below HKEY_CURRENT_USER, and the value: numbers in decimal, texts
    // without the ending zero.
    std::vector<std::pair<Text, Text>> alle() const;

private:
    // Folded path of an open key; null for a number that is none.
    const Text* Pfad_von(Schlüssel schlüssel) const;
    Schlüssel öffnen(Text gefaltet);
    void laden() const;
    bool speichern() const;

    Text pfad_;
    mutable Regbaum baum_;
    mutable bool geladen_ = false;
    mutable bool unlesbar_ = false;
    bool geändert_ = false;
    Schlüssel nächster_ = 1;
    std::unordered_map<Schlüssel, Text> offene_;
};

}  // namespace tonkartei
