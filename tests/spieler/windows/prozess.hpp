// A player's process, and what players of earlier tests have left.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "plattform/windows/systemgriff.hpp"
#include "testordner.hpp"

namespace tonkartei::spieler {

class Prozess {
public:
    explicit Prozess(const std::vector<std::string>& aufruf);
    ~Prozess();
    Prozess(const Prozess&) = delete;
    Prozess& operator=(const Prozess&) = delete;

    // Exit status; none while it runs.
    std::optional<int> Status() const;

private:
    Systemgriff griff_;
};

void Umgebung_bereiten(const Testordner& ordner);

}  // namespace tonkartei::spieler
