// The file of aborted listens, MP3_Info.ABR. Something outside adds its lines; here it is read, and adapted when songs
// change their numbers.
#pragma once

#include <optional>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Dateisystem;
class Kanäle;
struct Modell;

// A listen: "  12: 183", "1204: voll".
struct ABR_Satz {
    Long Nr = 0;  // from 1
    Text Rest;    // "voll" in any case, or seconds

    // Heard to the end.
    bool voll() const;
    // After how many seconds it was aborted; 0 also for what is no number.
    double Sekunden() const;
};

// The next record that counts, from a channel open for reading; none at the end of the file. Columns 1 to 4 hold the number,
// filled up with blanks, 5 and 6 a colon and a blank, the rest begins at column 7; a comma ends a record as the line does. A
// record that is shorter, or whose number is below 1, does not count. The number may be above 5000.
std::optional<ABR_Satz> lese_ABR_Satz(Kanäle& kanäle, int kanal);

class ABR_Datei {
public:
    ABR_Datei(const Modell& modell, Dateisystem& dateien, Kanäle& kanäle);

    // Song `Neu` was removed and song `Alt`, the last one, takes its number. Only full listens and those of 0 seconds
    // survive. Failures stay silent; as long as the new file is not whole, the copy MP3_Bak.ABR stays.
    void ABR_umnummerieren(Long Alt, Long Neu);

private:
    bool umschreiben(const Text& datei, Long Alt, Long Neu);

    const Modell& modell_;
    Dateisystem& dateien_;
    Kanäle& kanäle_;
};

}  // namespace tonkartei
