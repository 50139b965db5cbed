// A list of callbacks: how news travels upward without the lower floor knowing who listens.
#pragma once

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace tonkartei {

// Raised by whoever owns it; listeners are called in the order of their arrival. Listeners are connected while the program
// is put together and stay; one that arrives during a raise is heard from the next one on.
template <class... Werte>
class Ereignis {
public:
    using Hörer = std::function<void(Werte...)>;

    void verbinden(Hörer hörer) { hörer_.push_back(std::move(hörer)); }
    void operator()(Werte... werte) const {
        const std::size_t anzahl = hörer_.size();
        for (std::size_t i = 0; i < anzahl; ++i) {
            const Hörer hörer = hörer_[i];  // a copy: the list may grow while this one runs
            hörer(werte...);
        }
    }
    bool hat_Hörer() const noexcept { return !hörer_.empty(); }

private:
    std::vector<Hörer> hörer_;
};

}  // namespace tonkartei
