// The recycle bin as the desktops of freedesktop.org keep it.
#pragma once

#include <optional>
#include <vector>

#include "plattform/dateisystem.hpp"
#include "plattform/linux/schreibweise.hpp"
#include "plattform/papierkorb.hpp"

namespace tonkartei {

// The user's bin at the top of a volume (`wurzel`, with separator), made if missing; none when there is no safe one. An
// administrator's common .Trash counts only if its sticky bit keeps users from each other's files and it is no link.
std::optional<Text> Korb_auf(const Text& wurzel);

// Files of the home bin's volume go there; those of another volume into the bin at its top, if that is safe to use and can
// be written to, else a file is carried over into the home bin.
class Papierkorb_Freedesktop : public Papierkorb {
public:
    // `heimkorb`: the home bin, by default Trash below the user's data folder. Created when first needed.
    explicit Papierkorb_Freedesktop(Dateisystem& dateien, const Text& heimkorb = {});

    void wegwerfen(const Text& pfad) override;

private:
    struct Ziel {
        Text Korb;      // with separator
        Text Herkunft;  // what the bin's notes call the folder that things come from
        bool hinübertragen = false;
    };

    std::vector<Ziel> Ziele_für(const Text& ordner);
    // Dateifehler 74 when the bin lies on another volume than the file, 76 when it is gone; nothing has happened then.
    void ablegen(const Ziel& ziel, const Text& pfad);

    Dateisystem& dateien_;
    Text heimkorb_;
    Schreibweise namen_;
    // The bin that the last thing went to: what comes from the same folder goes there without looking at it all again.
    Text letzter_Ordner_;
    Ziel letztes_Ziel_;
};

}  // namespace tonkartei
