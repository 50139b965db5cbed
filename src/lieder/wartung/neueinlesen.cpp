#include "lieder/wartung/neueinlesen.hpp"

#include <numeric>

#include "lieder/lied_einlesen.hpp"
#include "oberflaeche/fortschritt.hpp"

namespace tonkartei {

void Neueinlesen::einlesen(Long Nr) {
    try {
        Lied_einlesen(modell_, mp3_, Nr);
    } catch (const Laufzeitfehler&) {
        // Only the time fails, and counts as unknown; one odd file must not keep the others from being read.
    }
}

void Neueinlesen::einlesen(const std::vector<Long>& Nummern, const Text& Aufgabe) {
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen(Aufgabe);
    std::size_t erledigt = 0;
    for (const Long nr : Nummern) {
        einlesen(nr);
        fortschritt_.anzeigen(Prozent(static_cast<double>(++erledigt), static_cast<double>(Nummern.size())));
    }
}

void Neueinlesen::alle_Lieder_einlesen() {
    std::vector<Long> nummern(static_cast<std::size_t>(modell_.Anzahl_Lieder));
    std::iota(nummern.begin(), nummern.end(), 1);
    einlesen(nummern, "Lieder-Namen/-Größe/-Zeit neu einlesen...");
}

}  // namespace tonkartei
