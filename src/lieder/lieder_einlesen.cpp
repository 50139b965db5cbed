#include "lieder/lieder_einlesen.hpp"

#include <numeric>

#include "lieder/fortschritts_ende.hpp"

namespace tonkartei {

void Lieder_einlesen::einlesen(Long Nr) {
    Lied& lied = modell_.Lieder[Nr];
    const Text datei = modell_.Lied_Pfad(Nr);
    try {
        Lied_Daten daten = mp3_.Lied_Daten_lesen(datei);
        lied.Titel = std::move(daten.Titel);
        lied.Artist = std::move(daten.Artist);
        lied.Größe = daten.Größe;
        lied.Zeit = daten.Zeit;
    } catch (const Laufzeitfehler&) {
        // Only the time fails; one odd file must not keep the others from being read.
        mp3_.Lied_Tag_lesen(datei, lied.Titel, lied.Artist);
        lied.Größe = mp3_.Lied_Größe_lesen(datei);
        lied.Zeit = 0;
    }
}

void Lieder_einlesen::einlesen(const std::vector<Long>& Nummern, const Text& Aufgabe) {
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen(Aufgabe);
    std::size_t erledigt = 0;
    for (const Long nr : Nummern) {
        einlesen(nr);
        fortschritt_.anzeigen(Prozent(static_cast<double>(++erledigt), static_cast<double>(Nummern.size())));
    }
}

void Lieder_einlesen::alle_Lieder_einlesen() {
    std::vector<Long> nummern(static_cast<std::size_t>(modell_.Anzahl_Lieder));
    std::iota(nummern.begin(), nummern.end(), 1);
    einlesen(nummern, "Lieder-Namen/-Größe/-Zeit neu einlesen...");
}

}  // namespace tonkartei
