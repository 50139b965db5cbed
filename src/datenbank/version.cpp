#include "datenbank/version.hpp"

#include "grundlagen/zahl.hpp"

namespace tonkartei {

Text Programmversion_bilden(int haupt, int neben, int revision) {
    return "V " + Zahltext(haupt) + "." + Zahl_mit_Nullen(neben, 2) + " " + Zahl_mit_Nullen(revision, 2);
}

}  // namespace tonkartei
