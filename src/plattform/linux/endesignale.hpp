// The signals that ask a process to end, or to show itself, as something to read: what they cause runs in the main loop and
// not in a handler.
#pragma once

namespace tonkartei {

// SIGTERM, SIGHUP and SIGINT end; SIGURG is the call of a second start. For as long as it lives; one a process.
class Endesignale {
public:
    Endesignale();
    ~Endesignale();
    Endesignale(const Endesignale&) = delete;
    Endesignale& operator=(const Endesignale&) = delete;

    // Readable once a signal has come; -1 when there is none, and signals do what they always do.
    int Deskriptor() const noexcept { return deskriptor_; }
    struct Zeichen {
        bool Ende = false, Ruf = false;
    };
    // Takes what has come.
    Zeichen abholen() const;

private:
    int deskriptor_ = -1;
};

}  // namespace tonkartei
