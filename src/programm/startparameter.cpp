#include "programm/startparameter.hpp"

#include "grundlagen/zahl.hpp"

namespace tonkartei {

int Startparameter::Parameter_KS() const {
    const auto stelle = zeile_.find("KS");
    if (stelle == Text::npos || stelle + 2 >= zeile_.size()) return 0;
    return static_cast<int>(Zahlwert(std::string_view(zeile_).substr(stelle + 2, 1)));
}

Text Parameter_Beschreibung() {
    const Text cr(CR);
    return "Das Programm Tonkartei kann mit folgenden Paramtern aufgerufen werden:" + cr + cr +
           "M: Das Programm startet minimiert." + cr + "Z: Das Programm startet zentriert." + cr +
           "I: Ignoriert beim laden der ersten Datenbank die Meldung, das sie bereits geöffnet ist." + cr +
           "RA: Das Programm startet im Random-Autoplay-Modus." + cr +
           "KSx: Nach dem laden der Datenbank wird das Kategorie-Schema mit der Nummer x ausgewählt." + cr + cr +
           "Die Parameter müssen ohne Leerzeichen anneinander gereiht werden. Zum Beispiel:" + cr + cr + "Tonkartei RAM";
}

}  // namespace tonkartei
