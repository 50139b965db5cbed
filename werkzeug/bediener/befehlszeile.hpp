// One line of input, taken apart from the left: words, JSON strings, or the rest as it stands.
#pragma once

#include <cstdint>
#include <stdexcept>

#include "grundlagen/text.hpp"

namespace tonkartei {

// A command that cannot be done; it has changed nothing.
class Befehlsfehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Befehlszeile {
public:
    explicit Befehlszeile(Text zeile) : zeile_(std::move(zeile)) {}

    bool mehr();
    // A bare word or a JSON string. Befehlsfehler when there is none.
    Text nächstes(const char* was);
    // A whole number. Befehlsfehler when it is none.
    long Zahl(const char* was);
    double Kommazahl(const char* was);
    // All that is left: a JSON string if it is just that, else the bytes as they stand behind one blank.
    Text rest();
    // All that is left, as it stands.
    Text rest_roh();
    // Befehlsfehler when something is left.
    void zu_Ende();

private:
    void Leerzeichen_übergehen();

    Text zeile_;
    std::size_t stelle_ = 0;
};

}  // namespace tonkartei
