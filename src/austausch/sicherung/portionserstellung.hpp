// Writing the portion files of a plan.
#pragma once

#include "grundlagen/text.hpp"

namespace tonkartei {

class Ansicht;
class Backup_Datenbank;
class Portionsdatei;
class Portionsplan;
class Rechner;

class Portionserstellung {
public:
    Portionserstellung(Ansicht& ansicht, Rechner& rechner, Portionsdatei& datei, Backup_Datenbank& datenbank)
        : ansicht_(ansicht), rechner_(rechner), datei_(datei), datenbank_(datenbank) {}

    // Portions of at most P MByte, into files that the user names; on request the first one becomes a collection at once.
    // False: refused, given up, or a file could not be written, as the user was told; the plan may be tried again.
    bool erstellen(const Portionsplan& plan, double P);

private:
    Text Grundname();

    Ansicht& ansicht_;
    Rechner& rechner_;
    Portionsdatei& datei_;
    Backup_Datenbank& datenbank_;
};

}  // namespace tonkartei
