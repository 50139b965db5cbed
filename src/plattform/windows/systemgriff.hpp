// Owner of one handle of the system's kernel.
#pragma once

#include <utility>

namespace tonkartei {

class Systemgriff {
public:
    Systemgriff() = default;
    // What the calls answer on failure, null or -1, is none.
    explicit Systemgriff(void* griff) noexcept;
    Systemgriff(Systemgriff&& anderer) noexcept : griff_(std::exchange(anderer.griff_, nullptr)) {}
    Systemgriff& operator=(Systemgriff&& anderer) noexcept {
        std::swap(griff_, anderer.griff_);
        return *this;
    }
    ~Systemgriff() { schließen(); }

    void* griff() const noexcept { return griff_; }
    explicit operator bool() const noexcept { return griff_ != nullptr; }
    // False when the system says that something went wrong, which it tells only here.
    bool schließen() noexcept;

private:
    void* griff_ = nullptr;
};

}  // namespace tonkartei
