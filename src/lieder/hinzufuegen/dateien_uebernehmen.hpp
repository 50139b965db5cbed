// The files of new songs come into the folder of the collection, under the next free numbers.
#pragma once

#include "datenbank/haus.hpp"
#include "lieder/hinzufuegen/doppelte_lieder.hpp"
#include "lieder/hinzufuegen/uebernahme_auftrag.hpp"
#include "mp3/mp3_taghead.hpp"
#include "wiedergabe/winamp/winamp_steuerung.hpp"

namespace tonkartei {

class Dateien_übernehmen {
public:
    Dateien_übernehmen(Haus& haus, MP3_TagHead& mp3, WinAmp_Steuerung& spieler)
        : modell_(haus.modell),
          dateien_(haus.plattform.Dateisystem),
          shell_(haus.plattform.Shell),
          fortschritt_(haus.fortschritt),
          mp3_(mp3),
          spieler_(spieler) {}

    // Stops a foreign player, which may hold a file that is about to be taken. Copies or moves file by file; asks about what
    // may be there already, says what went wrong and goes on. The files stand on the numbers Anzahl_Lieder + 1 to
    // Anzahl_Lieder + result without a gap. No record but its category is touched.
    Long ausführen(const Übernahme_Auftrag& auftrag);
    // The result so far, while a box is up; afterwards the last one.
    Long Anzahl() const noexcept { return A_; }

private:
    bool übernehmen(const Lied_Fund& lied, Übernahmeart modus, const Doppelte_Lieder& vorhandene, Long Nr);
    bool trotz_Doppelter(const Text& pfad, Long KByte, const Doppelte_Lieder& vorhandene);
    bool bringen(Text von, Text nach, Übernahmeart modus);
    void Rest_entfernen(const Text& quelle, const Text& ziel);

    Modell& modell_;
    Dateisystem& dateien_;
    Shell& shell_;
    Fortschritts_Fenster& fortschritt_;
    MP3_TagHead& mp3_;
    WinAmp_Steuerung& spieler_;
    Long A_ = 0;
};

}  // namespace tonkartei
