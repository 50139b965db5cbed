// MP3_Rettung.MDB: a collection as it was in memory when it could not be saved, or a whole copy that another run left
// behind. The next opening offers it.
#pragma once

#include "datenbank/modell.hpp"

namespace tonkartei {

class Ansicht;
class Dateisystem;
class Kanäle;

inline constexpr const char* Rettung_Name = "MP3_Rettung.MDB";
inline constexpr const char* Rettung_abgelehnt_Name = "MP3_Rettung.Bak";

class Rettung {
public:
    Rettung(Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Ansicht& ansicht)
        : modell_(modell), kanäle_(kanäle), dateien_(dateien), ansicht_(ansicht) {}

    // Writes what is in memory beside the info file, in its form, synced, but never over a file of that name: only the one
    // that this session began with steps aside for it, as it would when declined. False when
    // there is nothing to be kept (no collection is open, or songs are being moved and memory does not say what is on the
    // disk) or it could not be written. Throws nothing, for it runs when all else has failed.
    bool schreiben() noexcept;
    // What `schreiben` just wrote goes again: the session goes on.
    void zurücknehmen();
    // A safety copy that the present save did not make becomes the rescued file, should there be none yet.
    void Kopie_übernehmen(const Text& Kopie);

    // Asks whether a rescued file is to be read in place of `Datei`, which then names it. Declined, it steps aside.
    void anbieten(Text& Datei);
    // The info file stands: a rescued file of this folder that was read is in it, and goes.
    void gespeichert();

private:
    void beiseite_legen(const Text& pfad);

    Modell& modell_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    Ansicht& ansicht_;
    Text gelesen_;            // path of the rescued file that the open collection was read from; empty: none
    bool verdrängt_ = false;  // it stepped aside for the one that `schreiben` wrote
};

}  // namespace tonkartei
