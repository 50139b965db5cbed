// Records take anew what their files say about themselves.
#pragma once

#include <vector>

#include "datenbank/modell.hpp"
#include "mp3/mp3_taghead.hpp"
#include "oberflaeche/fortschritt.hpp"

namespace tonkartei {

class Neueinlesen {
public:
    Neueinlesen(Modell& modell, MP3_TagHead& mp3, Fortschritts_Fenster& fortschritt)
        : modell_(modell), mp3_(mp3), fortschritt_(fortschritt) {}

    // Names, size and time of one song. A file that is not there or has no tag overwrites what the record said; a time that
    // cannot be worked out is 0.
    void einlesen(Long Nr);
    // The songs of these numbers, under a progress window with this text.
    void einlesen(const std::vector<Long>& Nummern, const Text& Aufgabe);
    void alle_Lieder_einlesen();

private:
    Modell& modell_;
    MP3_TagHead& mp3_;
    Fortschritts_Fenster& fortschritt_;
};

}  // namespace tonkartei
