// A song leaves the collection: its file, and its record, whose place the last song takes.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "plattform/plattform.hpp"

namespace tonkartei {

class Ansicht;
class Lied_nachrücken;

class Lieder_entfernen {
public:
    Lieder_entfernen(Modell& modell, const Einstellungen& einstellungen, const Plattform& plattform, Ansicht& ansicht,
                     Lied_nachrücken& nachrücken)
        : modell_(modell),
          einstellungen_(einstellungen),
          dateien_(plattform.Dateisystem),
          shell_(plattform.Shell),
          rechner_(plattform.Rechner),
          ansicht_(ansicht),
          nachrücken_(nachrücken) {}

    // Makes the own player let go of its file, and waits until that is done.
    std::function<void()> Winamp_anhalten = [] {};

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
};

}  // namespace tonkartei
