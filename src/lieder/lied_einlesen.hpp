// What a song's record takes from its file.
#pragma once

#include "datenbank/modell.hpp"

namespace tonkartei {

class MP3_TagHead;

// Refills title, artist, size and time of a song; count and category stay. Names and size are there even where the time
// fails, which it does as Lied_Zeit_lesen says.
void Lied_einlesen(Modell& modell, MP3_TagHead& mp3, Long Nr);

}  // namespace tonkartei
