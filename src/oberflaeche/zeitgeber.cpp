#include "oberflaeche/zeitgeber.hpp"

#include <utility>

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Zeitgeber::Zeitgeber(Ansicht& ansicht, std::function<void()> handler) : ansicht_(ansicht), handler_(std::move(handler)) {}

Zeitgeber::~Zeitgeber() { ansicht_.Zeitgeber_entfernt(*this); }

void Zeitgeber::stellen(int ms, bool aktiv) {
    intervall_ = ms;
    aktiv_ = aktiv && ms > 0;
    ansicht_.Zeitgeber_gestellt(*this);
}

}  // namespace tonkartei
