// The main window's commands on the chosen song and on all songs in the list: which song, and what the window does after it.
#pragma once

#include "grundlagen/ereignis.hpp"
#include "grundlagen/zahl.hpp"

namespace tonkartei {

class Kategorie_Wahl;
class Tonkartei;
struct Haus;
struct Liederraum;

class Lied_Befehle {
public:
    Lied_Befehle(Haus& haus, Liederraum& lieder, Kategorie_Wahl& wahl, Tonkartei& fenster)
        : haus_(haus), lieder_(lieder), wahl_(wahl), fenster_(fenster) {}

    void Lied_kopieren();
    void Lied_löschen();
    void Lied_tauschen();
    void aktuellen_Namen_einlesen();
    void Menü_Lied_Kategorie();
    void Menü_Lied_Anzahl();
    void Menü_Lied_Info();
    void Artist_Titel_Clipboard();
    void Titel_ändern(Long Nr);
    void Artist_ändern(Long Nr);
    void Anzahl_ändern(Long Nr);

    void Lieder_kopieren();
    void alle_Lieder_löschen();
    void Lieder_Kategorie_ändern();
    void Lieder_Anzahl();
    void alle_Anzahl_ändern();
    void Lücken_füllen();

    // Songs of the collection have changed; the list shows it already.
    Ereignis<> geändert;

private:
    // The list anew, and on with the search.
    void neu_aufbauen();
    // The same; the details of the song stand there again.
    void zeigen(Long Nr);
    Long Lied() const;

    Haus& haus_;
    Liederraum& lieder_;
    Kategorie_Wahl& wahl_;
    Tonkartei& fenster_;
};

}  // namespace tonkartei
