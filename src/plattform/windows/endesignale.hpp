// What asks the process to end from outside, brought to the main loop.
#pragma once

#include <functional>

namespace tonkartei {

// The keys and the closing of a console that the program was started from, for as long as it lives; one a process. (The end
// of the session, and whoever closes the windows, come by the windows.)
class Endesignale {
public:
    Endesignale();
    ~Endesignale();
    Endesignale(const Endesignale&) = delete;
    Endesignale& operator=(const Endesignale&) = delete;

    // Any main loop delivers what comes here, so none needs to be told of it.
    template <class Sicht>
    void anschließen(Sicht&, std::function<void()> ende, const std::function<void()>& /*ruf*/) {
        handler_ = std::move(ende);
    }
    void gekommen() const {
        if (handler_) handler_();
    }

private:
    std::function<void()> handler_;
    void* fenster_ = nullptr;
};

}  // namespace tonkartei
