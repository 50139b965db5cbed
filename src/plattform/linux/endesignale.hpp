// The signals that ask a process to end, as something to read: what they cause runs in the main loop and not in a handler.
#pragma once

#include <functional>
#include <utility>

namespace tonkartei {

// SIGTERM, SIGHUP and SIGINT, for as long as it lives; one a process.
class Endesignale {
public:
    Endesignale();
    ~Endesignale();
    Endesignale(const Endesignale&) = delete;
    Endesignale& operator=(const Endesignale&) = delete;

    // `sicht` calls back when the descriptor can be read. Without one, signals do what they always do.
    template <class Sicht>
    void anschließen(Sicht& sicht, std::function<void()> handler) const {
        sicht.bei_Lesbarkeit(deskriptor_, [this, handler = std::move(handler)] {
            abholen();
            handler();
        });
    }

private:
    // Takes what has come.
    void abholen() const;

    int deskriptor_ = -1;
};

}  // namespace tonkartei
