// A player's process, and where players live during a test.
#pragma once

#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <optional>

#include "testordner.hpp"

extern char** environ;

namespace tonkartei::spieler {

class Prozess {
public:
    explicit Prozess(std::vector<std::string> aufruf) {
        std::vector<char*> argv;
        for (auto& wort : aufruf) argv.push_back(wort.data());
        argv.push_back(nullptr);
        if (::posix_spawn(&pid_, argv[0], nullptr, nullptr, argv.data(), environ) != 0)
            throw std::runtime_error("no player");
    }
    ~Prozess() {
        if (status_) return;
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
    }
    Prozess(const Prozess&) = delete;
    Prozess& operator=(const Prozess&) = delete;

    void Signal(int nummer) const { ::kill(pid_, nummer); }
    // Exit status, -2 when a signal ended it; none while it runs.
    std::optional<int> Status() {
        int status = 0;
        if (!status_ && ::waitpid(pid_, &status, WNOHANG) == pid_) status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -2;
        return status_;
    }

private:
    pid_t pid_ = 0;
    std::optional<int> status_;
};

inline void Umgebung_bereiten(const Testordner& ordner) {
    ::mkdir(ordner.pfad("lauf").c_str(), 0700);
    ::setenv("XDG_RUNTIME_DIR", ordner.pfad("lauf").c_str(), 1);
    ::setenv("XDG_STATE_HOME", ordner.pfad("zustand").c_str(), 1);
    ::setenv("TONKARTEI_TON", "null", 1);
}

}  // namespace tonkartei::spieler
