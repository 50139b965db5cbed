// Where windows are drawn: by a toolkit, or not at all.
#pragma once

#include <functional>
#include <memory>

#include "bediener/befehle.hpp"

namespace tonkartei {

class Ansicht;
class Fenstermaler;

struct Malstube {
    virtual ~Malstube() = default;
    virtual Fenstermaler& maler() = 0;
    // Lets the toolkit catch up; empty without one.
    virtual std::function<void()> pumpen() { return {}; }
    virtual Bildspeicher bild() { return {}; }
};

std::unique_ptr<Malstube> Malstube_ohne();
// Needs the view before any window; takes Qt's own arguments out of the command line.
std::unique_ptr<Malstube> Malstube_Qt(Ansicht& ansicht, const char* programmname);

}  // namespace tonkartei
