// The table of an album's titles: thirteen rows of labels under a scroll bar.
#pragma once

#include <array>
#include <memory>

#include "alben/album.hpp"
#include "grundlagen/ereignis.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elemente.hpp"

namespace tonkartei {

inline constexpr int Titelzeilen_sichtbar = 13;

class Titeltabelle {
public:
    explicit Titeltabelle(Fenster& fenster);

    // One row, by number from 1.
    struct Zeile {
        Zeile(Fenster& fenster, int nummer);
        Schriftfeld Lied_Nr, Lied_Artist, Lied_Titel, Lied_Zeit;
        std::array<Schriftfeld*, 4> Felder() { return {&Lied_Nr, &Lied_Artist, &Lied_Titel, &Lied_Zeit}; }
    };
    std::array<std::unique_ptr<Zeile>, Titelzeilen_sichtbar> Zeilen;
    // Its value is the number of the first title shown, which is the current one; 0 while there is none.
    Regler Lieder_Scroll;

    // The album whose titles are shown; null: none. Keeps the current title, or takes the last one when that is gone.
    void zeigen(const Album* album);
    // The texts of the rows, after the current title was edited.
    void Zeilen_nachführen() { Zeilen_füllen(); }
    // Number of the current title; 0 none.
    int Titel_Nr() const noexcept { return Lieder_Scroll.wert(); }
    void Titel_wählen(int nummer) { Lieder_Scroll.wert(nummer); }

    Knoten Tabellenknoten();

    Ereignis<> gewählt;           // another title is the current one
    Ereignis<> starten;           // a double click on a row, whose title is the current one by then
    Ereignis<Element&> abgelegt;  // something dragged from that control was dropped on a row

private:
    bool Zeile_angeklickt(int zeile);
    void Zeilen_füllen();

    static constexpr int keine = -1;
    int angeklickt_ = keine;  // row of the last click that met a title, until a double click
    const Album* album_ = nullptr;
};

}  // namespace tonkartei
