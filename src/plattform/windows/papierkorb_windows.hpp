// The shell's recycle bin.
#pragma once

#include "plattform/dateisystem.hpp"
#include "plattform/papierkorb.hpp"

namespace tonkartei {

class Papierkorb_Windows : public Papierkorb {
public:
    // `ordner`: takes the place of the user's bin, for machines that are tried out. Files are put into "files" below it, a
    // name that is taken gets a number.
    explicit Papierkorb_Windows(Dateisystem& dateien, const Text& ordner = {});

    // Never for good: the shell would delete without a word what has no bin (a share, a stick) or a path that its call is
    // too old for. Such a file is carried over to a disk that has one; such a folder is refused (75).
    // A bin that its user has switched off, or made too small for a file, is his own decision.
    void wegwerfen(const Text& pfad) override;

private:
    void hinübertragen(const Text& pfad);
    void in_den_Korb(const Text& pfad);
    void in_den_Ordner(const Text& pfad);

    Dateisystem& dateien_;
    Text ordner_;
};

}  // namespace tonkartei
