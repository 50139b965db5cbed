#include "lieder/lied_einlesen.hpp"

#include "mp3/mp3_taghead.hpp"

namespace tonkartei {

void Lied_einlesen(Modell& modell, MP3_TagHead& mp3, Long Nr) {
    const Text datei = modell.Lied_Pfad(Nr);
    Lied& lied = modell.Lieder[Nr];
    lied.Zeit = 0;
    try {
        Lied_Daten daten = mp3.Lied_Daten_lesen(datei);
        lied.Titel = std::move(daten.Titel);
        lied.Artist = std::move(daten.Artist);
        lied.Größe = daten.Größe;
        lied.Zeit = daten.Zeit;
    } catch (const Laufzeitfehler&) {
        // Only the time fails; names and size are there and the song keeps them.
        mp3.Lied_Tag_lesen(datei, lied.Titel, lied.Artist);
        lied.Größe = mp3.Lied_Größe_lesen(datei);
        throw;
    }
}

}  // namespace tonkartei
