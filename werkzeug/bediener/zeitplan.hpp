// The program's timers in the order in which they fall due.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace tonkartei {

class Zeitgeber;

class Zeitplan {
public:
    // Starts its period anew, or takes it off.
    void stellen(Zeitgeber& zeitgeber, std::int64_t jetzt);
    void entfernen(const Zeitgeber& zeitgeber);
    // When the next one is due; none without timers.
    std::optional<std::int64_t> nächste_Fälligkeit() const;
    // Takes the next one that is due by then, and arms it anew: one period after `jetzt`, or after its due time where that
    // is later. Null when there is none.
    Zeitgeber* nehmen(std::int64_t fällig_bis, std::int64_t jetzt);

private:
    struct Eintrag {
        Zeitgeber* Wer;
        std::int64_t fällig;
    };
    std::vector<Eintrag> einträge_;  // by due time; equal ones by their arming
};

}  // namespace tonkartei
