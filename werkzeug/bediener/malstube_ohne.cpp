#include "bediener/fenstermaler_ohne.hpp"
#include "bediener/malstube.hpp"

namespace tonkartei {
namespace {

struct Stube : Malstube {
    Fenstermaler_ohne leer;
    Fenstermaler& maler() override { return leer; }
};

}  // namespace

std::unique_ptr<Malstube> Malstube_ohne() { return std::make_unique<Stube>(); }

}  // namespace tonkartei
