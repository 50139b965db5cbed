#include "plattform/linux/endesignale.hpp"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>
#include <initializer_list>

namespace tonkartei {
namespace {

sigset_t Signale() {
    sigset_t menge;
    sigemptyset(&menge);
    for (const int signal : {SIGTERM, SIGHUP, SIGINT, SIGURG}) sigaddset(&menge, signal);
    return menge;
}

}  // namespace

Endesignale::Endesignale() {
    const sigset_t menge = Signale();
    deskriptor_ = ::signalfd(-1, &menge, SFD_CLOEXEC | SFD_NONBLOCK);
    if (deskriptor_ >= 0) ::sigprocmask(SIG_BLOCK, &menge, nullptr);
}

Endesignale::~Endesignale() {
    if (deskriptor_ < 0) return;
    const sigset_t menge = Signale();
    ::sigprocmask(SIG_UNBLOCK, &menge, nullptr);
    ::close(deskriptor_);
}

Endesignale::Zeichen Endesignale::abholen() const {
    Zeichen zeichen;
    signalfd_siginfo signal;
    while (::read(deskriptor_, &signal, sizeof signal) > 0) (signal.ssi_signo == SIGURG ? zeichen.Ruf : zeichen.Ende) = true;
    return zeichen;
}

}  // namespace tonkartei
