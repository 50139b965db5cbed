// Another file takes the place of a song's file; the song keeps its number, count and category.
#pragma once

#include "datenbank/haus.hpp"
#include "mp3/mp3_taghead.hpp"

namespace tonkartei {

class Lied_kopieren;
class Lieder_entfernen;

class Lied_austauschen {
public:
    Lied_austauschen(Haus& haus, MP3_TagHead& mp3, Lieder_entfernen& entfernen, Lied_kopieren& kopieren)
        : modell_(haus.modell),
          dateien_(haus.plattform.Dateisystem),
          shell_(haus.plattform.Shell),
          ansicht_(haus.ansicht),
          mp3_(mp3),
          entfernen_(entfernen),
          kopieren_(kopieren) {}

    // The command: asks, has a file chosen, replaces. True when the song has changed.
    bool Lied_tauschen(Long Nr);
    // Asks about the old file and shows both versions first. False when the user declined or it failed, which is told.
    bool ausführen(Long Nr, const Text& Datei);

private:
    Text Beschreibung(Long Nr) const;
    Text Beschreibung(const Text& Datei) const;
    Text Größe_bis_Datum(long long KByte, Zeit dauer, const Text& datei) const;
    bool taugt_als_Ersatz(Long Nr, const Text& Datei) const;
    bool ersetzen(Long Nr, const Text& Datei);
    void Rest_entfernen(Long Nr, const Text& Datei);

    Modell& modell_;
    Dateisystem& dateien_;
    Shell& shell_;
    Ansicht& ansicht_;
    MP3_TagHead& mp3_;
    Lieder_entfernen& entfernen_;
    Lied_kopieren& kopieren_;
};

}  // namespace tonkartei
