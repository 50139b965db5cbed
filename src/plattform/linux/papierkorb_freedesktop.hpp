// The recycle bin as the desktops of freedesktop.org keep it.
#pragma once

#include "plattform/dateisystem.hpp"
#include "plattform/linux/papierkorb.hpp"

namespace tonkartei {

// Files of the home bin's volume go there; those of another volume into the bin at its top, if that is safe to use and can
// be written to, else a file is carried over into the home bin.
class Papierkorb_Freedesktop : public Papierkorb {
public:
    // `heimkorb`: the home bin, by default Trash below the user's data folder. Created when first needed.
    explicit Papierkorb_Freedesktop(Dateisystem& dateien, const Text& heimkorb = {});

    void wegwerfen(const Text& pfad) override;

private:
    enum class Weg { umbenennen, hinübertragen };
    // False when the bin lies on another volume than the file, which nothing has happened to then.
    bool ablegen(const Text& korb, const Text& pfad, const Text& Herkunft, Weg weg);

    Dateisystem& dateien_;
    Text heimkorb_;
};

}  // namespace tonkartei
