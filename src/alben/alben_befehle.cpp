#include "alben/alben_befehle.hpp"

#include "alben/alben_datei.hpp"
#include "alben/album_start.hpp"
#include "alben/album_waehlen.hpp"
#include "datenbank/modell.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Alben_Befehle::Alben_Befehle(Modell& modell, Alben_Datei& datei, Album_wählen& auswahl, Album_Start& start, Ansicht& ansicht)
    : modell_(modell), datei_(datei), auswahl_(auswahl), start_(start), ansicht_(ansicht) {}

bool Alben_Befehle::Ansicht_öffnen() { return !Alben_offen() && Alben_bereit(); }

bool Alben_Befehle::Alben_bereit() {
    if (modell_.Alben_geladen) return true;
    Text text;
    if (datei_.Album_Datei_vorhanden()) {
        if (datei_.Alben_lesen()) return true;
        text = "Es ist ein Fehler beim lesen der Alben-Verwaltung aufgetreten." + Text(CRCR) +
               "Bitte kontaktieren sie den Autor.";
    } else {
        text = "Für diese Datenbank existiert noch keine Alben-Verwaltung." + Text(CRCR) +
               "Gehen sie zum Menüpunkt Bearbeiten/Alben-Verwaltung um eine anzulegen.";
    }
    ansicht_.informieren("Alben", text);
    return false;
}

void Alben_Befehle::Menü_starte_Album() {
    if (!modell_.Datenbank_offen) return;
    if (!datei_.Album_Datei_vorhanden()) {
        ansicht_.informieren("Album spielen", "Für diese Datenbank existiert noch keine Alben-Verwaltung!");
        return;
    }
    if (datei_.geladen_oder_gelesen()) start_.starte_Album(auswahl_.wählen());
}

}  // namespace tonkartei
