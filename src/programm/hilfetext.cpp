#include "programm/hilfetext.hpp"

#include "datenbank/version.hpp"

namespace tonkartei {

Text Hilfetext() {
    return Text(
               "Aufruf: tonkartei [PARAMETER]\n"
               "\n"
               "Führt eine Sammlung von MP3-Dateien: suchen, ordnen, zählen, abspielen.\n"
               "\n"
               "Die Parameter sind Buchstaben, groß oder klein, ohne Leerzeichen aneinandergereiht:\n"
               "  M    startet minimiert\n"
               "  Z    startet in der Mitte des Bildschirms\n"
               "  I    fragt nicht nach, wenn die erste Datenbank schon geöffnet ist\n"
               "  RA   startet im Random-Autoplay-Modus\n"
               "  KSx  wählt nach dem Laden das Kategorie-Schema mit der Nummer x\n"
               "Beispiel: tonkartei RAM\n"
               "\n"
               "  --help     zeigt diese Hilfe\n"
               "  --version  zeigt die Version\n"
               "\n"
               "Fragen und Fehler an: ") +
           Kontaktadresse + "\n";
}

}  // namespace tonkartei
