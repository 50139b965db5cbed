// Another file takes the place of a song's file; the song keeps its number, count and category.
#pragma once

#include <functional>

#include "datenbank/modell.hpp"
#include "mp3/mp3_taghead.hpp"
#include "plattform/plattform.hpp"

namespace tonkartei {

class Ansicht;
class Lieder_entfernen;

class Lied_austauschen {
public:
    Lied_austauschen(Modell& modell, const Plattform& plattform, MP3_TagHead& mp3, Ansicht& ansicht,
                     Lieder_entfernen& entfernen)
        : modell_(modell),
          dateien_(plattform.Dateisystem),
          shell_(plattform.Shell),
          mp3_(mp3),
          ansicht_(ansicht),
          entfernen_(entfernen) {}

    // The copy command, offered before the old file goes.
    std::function<void(Long Nr)> Lied_kopieren = [](Long) {};

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
    MP3_TagHead& mp3_;
    Ansicht& ansicht_;
    Lieder_entfernen& entfernen_;
};

}  // namespace tonkartei
