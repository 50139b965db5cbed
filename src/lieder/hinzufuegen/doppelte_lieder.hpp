// Which songs of the collection a new file may be: those of the same size in KByte and the same modification time.
#pragma once

#include <functional>
#include <span>
#include <unordered_map>
#include <vector>

#include "datenbank/modell.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

// The state of the songs 1 to Anzahl_Lieder at the time of making; what changes afterwards is not seen.
class Doppelte_Lieder {
public:
    // `fortschritt` hears each song's number once its file was looked at.
    Doppelte_Lieder(const Modell& modell, Dateisystem& dateien, const std::function<void(Long Nr)>& fortschritt);

    // Numbers in rising order.
    std::span<const Long> suchen(Long KByte, const Zeitpunkt& zeit) const;

private:
    struct Merkmal {
        Long KByte;
        Zeitpunkt Zeit;
        bool operator==(const Merkmal&) const = default;
    };
    struct Streuung {
        std::size_t operator()(const Merkmal& merkmal) const noexcept;
    };

    // By both, since a collection may well hold thousands of songs of one size. Songs without a file are no one's double.
    std::unordered_map<Merkmal, std::vector<Long>, Streuung> nummern_;
};

}  // namespace tonkartei
