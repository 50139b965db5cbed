// A lock among the processes of one class of players: held while the object lives, gone with the process in any case.
#pragma once

#include "grundlagen/text.hpp"
#include "plattform/windows/systemgriff.hpp"

namespace tonkartei::spieler {

class Klassensperre {
public:
    // Whoever holds it does so for moments only; one that is frozen meanwhile is not waited for longer than some seconds,
    // and the work goes on without the lock.
    explicit Klassensperre(const Text& klasse);
    ~Klassensperre();
    Klassensperre(const Klassensperre&) = delete;
    Klassensperre& operator=(const Klassensperre&) = delete;

private:
    Systemgriff objekt_;
    bool hält_ = false;
};

}  // namespace tonkartei::spieler
