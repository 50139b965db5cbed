// What a piece of work fails with, and whether there is a second volume.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <functional>

#include "grundlagen/fehler.hpp"
#include "testordner.hpp"

namespace tonkartei {

// The number of its run-time error; 0 without one.
inline int Fehler_von(const std::function<void()>& arbeit) {
    try {
        arbeit();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.Nummer();
    }
    return 0;
}

// Whether /dev/shm is one and lets us write.
inline bool anderes_Laufwerk_da(const Testordner& ordner) {
    struct stat hier {
    }, dort{};
    return ::stat("/dev/shm", &dort) == 0 && ::access("/dev/shm", W_OK) == 0 && ::stat(ordner.pfad().c_str(), &hier) == 0 &&
           hier.st_dev != dort.st_dev;
}

}  // namespace tonkartei
