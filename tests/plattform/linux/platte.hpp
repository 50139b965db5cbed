// A disk that is full, and whether there is a second volume.
#pragma once

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "testordner.hpp"

namespace tonkartei {

// No file of this process grows beyond a limit while this lives: the disk is full.
class Voller_Datenträger {
public:
    explicit Voller_Datenträger(rlim_t grenze) {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &alt_);
        const rlimit neu{grenze, alt_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &neu);
    }
    ~Voller_Datenträger() { ::setrlimit(RLIMIT_FSIZE, &alt_); }

private:
    rlimit alt_{};
};

// Whether /dev/shm is one and lets us write.
inline bool anderes_Laufwerk_da(const Testordner& ordner) {
    struct stat hier {
    }, dort{};
    return ::stat("/dev/shm", &dort) == 0 && ::access("/dev/shm", W_OK) == 0 && ::stat(ordner.pfad().c_str(), &hier) == 0 &&
           hier.st_dev != dort.st_dev;
}

}  // namespace tonkartei
