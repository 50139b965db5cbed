// A window that takes no input for the length of a block, since events run in it and another command must not come between.
#pragma once

#include "oberflaeche/fenster.hpp"

namespace tonkartei {

class Fenstersperre {
public:
    explicit Fenstersperre(Fenster& fenster) : fenster_(fenster), vorher_(fenster.aktiv()) { fenster_.aktiv(false); }
    ~Fenstersperre() { fenster_.aktiv(vorher_); }
    Fenstersperre(const Fenstersperre&) = delete;
    Fenstersperre& operator=(const Fenstersperre&) = delete;

private:
    Fenster& fenster_;
    bool vorher_;
};

}  // namespace tonkartei
