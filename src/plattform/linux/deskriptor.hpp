// Owner of one file descriptor. Errors of the closing are lost; who needs them takes the descriptor out and closes by hand.
#pragma once

#include <unistd.h>

#include <utility>

namespace tonkartei {

class Deskriptor {
public:
    Deskriptor() = default;
    explicit Deskriptor(int fd) noexcept : fd_(fd) {}
    Deskriptor(Deskriptor&& anderer) noexcept : fd_(std::exchange(anderer.fd_, -1)) {}
    Deskriptor& operator=(Deskriptor&& anderer) noexcept {
        if (this != &anderer) {
            schließen();
            fd_ = std::exchange(anderer.fd_, -1);
        }
        return *this;
    }
    ~Deskriptor() { schließen(); }

    int fd() const noexcept { return fd_; }
    explicit operator bool() const noexcept { return fd_ >= 0; }
    int hergeben() noexcept { return std::exchange(fd_, -1); }
    void schließen() noexcept {
        if (fd_ >= 0) ::close(std::exchange(fd_, -1));
    }

private:
    int fd_ = -1;
};

}  // namespace tonkartei
