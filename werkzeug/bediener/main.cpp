// The operator: works the whole program by the names of its windows and controls.
#include "bediener/bedienung.hpp"
#include "programm/programm.hpp"

namespace {

using namespace tonkartei;

class Ganzes : public Bedientes {
public:
    Ganzes(const Plattform& plattform, Ansicht& ansicht, const Text& kommandozeile)
        : programm_(plattform, ansicht, kommandozeile) {}
    void starten() override { programm_.starten(); }

private:
    Programm programm_;
};

}  // namespace

int main(int argc, char** argv) {
    return bedienen(argc, argv, [](const Plattform& plattform, Ansicht& ansicht, const Text& kommandozeile) {
        return std::make_unique<Ganzes>(plattform, ansicht, kommandozeile);
    });
}
