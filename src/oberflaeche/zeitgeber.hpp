// A timer: calls its handler every so many milliseconds while it is on.
#pragma once

#include <functional>

namespace tonkartei {

class Ansicht;

// Re-armed before its handler runs, so a handler that lets events run can be entered again. Timers rest while a message,
// input or choice box is up.
class Zeitgeber {
public:
    Zeitgeber(Ansicht& ansicht, std::function<void()> handler);
    ~Zeitgeber();
    Zeitgeber(const Zeitgeber&) = delete;
    Zeitgeber& operator=(const Zeitgeber&) = delete;

    int Intervall() const noexcept { return intervall_; }
    bool aktiv() const noexcept { return aktiv_; }
    void stellen(int ms, bool aktiv);
    void auslösen() const { handler_(); }

private:
    Ansicht& ansicht_;
    std::function<void()> handler_;
    int intervall_ = 0;
    bool aktiv_ = false;
};

}  // namespace tonkartei
