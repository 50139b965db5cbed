// The two ends of the operator's pipe: lines in, lines out.
#pragma once

#include <optional>

#include "grundlagen/text.hpp"

namespace tonkartei {

class Leitung {
public:
    enum class Lage { Zeile, Zeit_um, Ende };

    // Waits for a line at most so long; -1: for ever. A last line without a line end counts.
    Lage abwarten(int ms);
    // The line that `abwarten` told of, without its end.
    Text Zeile();
    void schreiben(const Text& zeile);

private:
    bool Zeile_da() const { return puffer_.find('\n') != Text::npos || (zu_Ende_ && !puffer_.empty()); }

    Text puffer_;
    bool zu_Ende_ = false;
};

}  // namespace tonkartei
