// The main window's commands on the chosen song and on all songs in the list: which song, and what the window does after it.
#pragma once

#include "grundlagen/zahl.hpp"
#include "programm/programm.hpp"

namespace tonkartei {

class Lied_Befehle {
public:
    explicit Lied_Befehle(Programm::Teile& teile) : t_(teile) {}

    // Buttons and fields of the main window; once, when all parts are there.
    void verbinden();

    void Lied_kopieren();
    void Lied_löschen();
    void Lied_tauschen();
    void aktuellen_Namen_einlesen();
    void Menü_Lied_Kategorie();
    void Menü_Lied_Anzahl();
    void Menü_Lied_Info();
    void Artist_Titel_Clipboard();

    void Lieder_kopieren();
    void alle_Lieder_löschen();
    void Lieder_Kategorie_ändern();
    void Lieder_Anzahl();
    void alle_Anzahl_ändern();
    void Lücken_füllen();

    // The song that is chosen in the present tab, else the one whose details are shown; 0 none.
    Long Lied() const;

private:
    // The list anew, and on with the search.
    void neu_aufbauen();
    // The same; the details of the song stand there again.
    void zeigen(Long Nr);
    void Anzahl_ändern(Long Nr);

    Programm::Teile& t_;
};

}  // namespace tonkartei
