// The signals that ask a process to end, or to show itself, as something to read: what they cause runs in the main loop and
// not in a handler.
#pragma once

#include <functional>
#include <utility>

namespace tonkartei {

// SIGTERM, SIGHUP and SIGINT end; SIGURG is the call of a second start. For as long as it lives; one a process.
class Endesignale {
public:
    Endesignale();
    ~Endesignale();
    Endesignale(const Endesignale&) = delete;
    Endesignale& operator=(const Endesignale&) = delete;

    // `sicht` calls back when the descriptor can be read: to end, or since a second start calls. Without one, signals do
    // what they always do.
    template <class Sicht>
    void anschließen(Sicht& sicht, std::function<void()> ende, std::function<void()> ruf) const {
        sicht.bei_Lesbarkeit(deskriptor_, [this, ende = std::move(ende), ruf = std::move(ruf)] {
            const Zeichen zeichen = abholen();
            if (zeichen.Ende) ende();
            if (zeichen.Ruf) ruf();
        });
    }

    struct Zeichen {
        bool Ende = false, Ruf = false;
    };
    // Takes what has come.
    Zeichen abholen() const;

    int deskriptor_ = -1;
};

}  // namespace tonkartei
