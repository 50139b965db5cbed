#include "bediener/kindprozess.hpp"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <stdexcept>

namespace tonkartei {
namespace {

std::vector<char*> Zeiger(std::vector<std::string>& texte) {
    std::vector<char*> ergebnis;
    for (std::string& text : texte) ergebnis.push_back(text.data());
    ergebnis.push_back(nullptr);
    return ergebnis;
}

// The environment of the test, with the names of `zusätze` replaced.
std::vector<std::string> Umgebung(const std::vector<std::string>& zusätze) {
    std::vector<std::string> ergebnis = zusätze;
    for (char** e = environ; *e != nullptr; ++e) {
        const std::string eintrag = *e;
        const std::string name = eintrag.substr(0, eintrag.find('=') + 1);
        bool ersetzt = false;
        for (const std::string& zusatz : zusätze) ersetzt = ersetzt || zusatz.starts_with(name);
        if (!ersetzt) ergebnis.push_back(eintrag);
    }
    return ergebnis;
}

}  // namespace

struct Kindprozess::Innen {
    pid_t prozess = -1;
    int hinein = -1, heraus = -1;
    int status = 0;
};

Kindprozess::Kindprozess(std::vector<std::string> aufruf, const std::vector<std::string>& umgebung)
    : innen_(std::make_unique<Innen>()) {
    std::array<int, 2> hin{}, her{};
    if (pipe2(hin.data(), O_CLOEXEC) != 0 || pipe2(her.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t griffe;
    posix_spawn_file_actions_init(&griffe);
    posix_spawn_file_actions_adddup2(&griffe, hin[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&griffe, her[1], STDOUT_FILENO);
    auto ganze_Umgebung = Umgebung(umgebung);
    const int fehler = posix_spawn(&innen_->prozess, aufruf.front().c_str(), &griffe, nullptr, Zeiger(aufruf).data(),
                                   Zeiger(ganze_Umgebung).data());
    posix_spawn_file_actions_destroy(&griffe);
    close(hin[0]);
    close(her[1]);
    innen_->hinein = hin[1];
    innen_->heraus = her[0];
    if (fehler != 0) {
        innen_->prozess = -1;
        beenden();
        throw std::runtime_error("cannot start " + aufruf.front());
    }
}

Kindprozess::~Kindprozess() { beenden(); }

void Kindprozess::beenden() noexcept {
    for (int* ende : {&innen_->hinein, &innen_->heraus}) {
        if (*ende >= 0) close(*ende);
        *ende = -1;
    }
    for (int versuch = 0; versuch < 400; ++versuch) {
        if (Status()) return;
        poll(nullptr, 0, 5);
    }
    kill(innen_->prozess, SIGKILL);
    waitpid(innen_->prozess, nullptr, 0);
    innen_->prozess = -1;
}

void Kindprozess::schreiben(const std::string& bytes) {
    // A process that has died must not take the test along.
    struct sigaction ruhig {};
    struct sigaction alt {};
    ruhig.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &ruhig, &alt);
    for (std::size_t stelle = 0; stelle < bytes.size();) {
        const ssize_t n = write(innen_->hinein, bytes.data() + stelle, bytes.size() - stelle);
        if (n < 0 && errno != EINTR) break;
        if (n > 0) stelle += static_cast<std::size_t>(n);
    }
    sigaction(SIGPIPE, &alt, nullptr);
}

Kindprozess::Lage Kindprozess::lesen(std::string& ziel, int ms) {
    if (innen_->heraus < 0) return Lage::Ende;
    pollfd auge{innen_->heraus, POLLIN, 0};
    const int bereit = poll(&auge, 1, ms);
    if (bereit < 0 && errno == EINTR) return Lage::gelesen;
    if (bereit <= 0) return Lage::Zeit_um;
    std::array<char, 65536> stück;
    const ssize_t n = read(innen_->heraus, stück.data(), stück.size());
    if (n <= 0) return Lage::Ende;
    ziel.append(stück.data(), static_cast<std::size_t>(n));
    return Lage::gelesen;
}

std::optional<int> Kindprozess::Status() {
    if (innen_->prozess <= 0) return innen_->status;
    int status = 0;
    if (waitpid(innen_->prozess, &status, WNOHANG) == 0) return std::nullopt;
    innen_->prozess = -1;
    innen_->status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return innen_->status;
}

}  // namespace tonkartei
