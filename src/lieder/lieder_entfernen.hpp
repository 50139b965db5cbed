// A song leaves the collection: its file, and its record, whose place the last song takes.
#pragma once

#include <vector>

#include "datenbank/haus.hpp"

namespace tonkartei {

class Lied_nachrücken;
class WinAmp;

class Lieder_entfernen {
public:
    // The player has to let go of its file first.
    Lieder_entfernen(Haus& haus, Lied_nachrücken& nachrücken, WinAmp& spieler)
        : modell_(haus.modell),
          einstellungen_(haus.einstellungen),
          dateien_(haus.plattform.Dateisystem),
          shell_(haus.plattform.Shell),
          rechner_(haus.plattform.Rechner),
          ansicht_(haus.ansicht),
          nachrücken_(nachrücken),
          spieler_(spieler) {}

    // Takes the file of a song out of the folder, to the recycle bin under its readable name if the settings say so.
    bool Datei_entfernen(Long Nr);
    // File, record and album links. A failure on the way leaves a gap: the record without its file. So does the removal of
    // the last song, on purpose.
    void Lied_entfernen(Long Nr);

    // The commands: ask, remove. True when something may have changed.
    bool Lied_löschen(Long Nr);
    bool alle_Lieder_löschen(std::vector<Long> Nummern);

private:
    void Fehler_melden(const char* text);
    bool aufrücken(const Text& von, const Text& nach);

    Modell& modell_;
    const Einstellungen& einstellungen_;
    Dateisystem& dateien_;
    Shell& shell_;
    Rechner& rechner_;
    Ansicht& ansicht_;
    Lied_nachrücken& nachrücken_;
    WinAmp& spieler_;
};

}  // namespace tonkartei
