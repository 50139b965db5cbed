#include "ausgabe/ausgaberaum.hpp"
#include "programm/anschluesse.hpp"

namespace tonkartei {

void Ausgabe_anschließen(Ausgaberaum& ausgabe, Tonkartei& fenster) {
    fenster.Menüleiste.Befehl("ASCII_Datei", [&ausgabe] { ausgabe.dialog.öffnen(); });
}

}  // namespace tonkartei
