// Taking one song of another collection over into the open one.
#pragma once

#include "datenbank/modell.hpp"

namespace tonkartei {

class Dateisystem;
class Kategorie_Wahl;
class MP3_TagHead;
class Shell;

class Abgleich_Übernahme {
public:
    Abgleich_Übernahme(Modell& modell, Dateisystem& dateien, Shell& shell, MP3_TagHead& mp3, Kategorie_Wahl& wahl)
        : modell_(modell), dateien_(dateien), shell_(shell), mp3_(mp3), wahl_(wahl) {}

    // Copies the file behind the last song and enters it; `Name` is how the song is called in the question about the room on
    // the disk. A category of 0 is asked for. The player goes on, and nobody looks for duplicates. False: declined, or the
    // user was told of the failure and nothing is left behind.
    bool hinzufügen(const Text& Datei, const Text& Name, Byte Kategorie);

private:
    bool genug_Platz(std::int64_t bytes, const Text& Name);
    bool kopieren(const Text& Datei, std::int64_t bytes);

    Modell& modell_;
    Dateisystem& dateien_;
    Shell& shell_;
    MP3_TagHead& mp3_;
    Kategorie_Wahl& wahl_;
};

}  // namespace tonkartei
