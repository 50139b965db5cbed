#include "lieder/lied_einlesen.hpp"

#include "mp3/mp3_taghead.hpp"

namespace tonkartei {

void Lied_einlesen(Modell& modell, MP3_TagHead& mp3, Long Nr) {
    const Text datei = modell.Lied_Pfad(Nr);
    Lied& lied = modell.Lieder[Nr];
    mp3.Lied_Tag_lesen(datei, lied.Titel, lied.Artist);
    lied.Größe = mp3.Lied_Größe_lesen(datei);
    lied.Zeit = 0;
    lied.Zeit = mp3.Lied_Zeit_lesen(datei);
}

}  // namespace tonkartei
