// The panel "gewünschte Lieder" of the older desk: songs that somebody wished, in an order of the user's. It stays loaded
// when the desk is closed, and keeps its wishes for the next time.
#pragma once

#include "datenbank/modell.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class DJ_Liste;

class Wunschliste : public Fenster {
public:
    Wunschliste(Ansicht& ansicht, const Modell& modell, const DJ_Liste& lieder);

    Listenfeld Liste{*this, "Liste"};
    // The wishes in their order, four digits each: the only true data.
    Listenfeld Nr_Liste{*this, "Nr_Liste"};
    // What the lines of Liste are: a song's number, or "KL" for a category line.
    Listenfeld Nr_Liste2{*this, "Nr_Liste2"};
    Kasten Kategorie_Linie{*this, "Kategorie_Linie", "&Kategorie-Linien zeigen"};
    Schriftfeld Position_Text{*this, "Position_Text", "Position:"};
    Dreistufer Position{*this, "Position"};
    Knopf löschen{*this, "löschen", "&löschen"};
    Knopf alle_löschen{*this, "alle_löschen", "&alle löschen"};
    Knopf sortieren{*this, "sortieren", "nach &Katgorien sortieren"};

    // The desk opens: the lines as categories and songs are now. Numbers that are no song's any more go.
    void auffrischen();
    // Rebuilds Liste and Nr_Liste2 from Nr_Liste.
    void anzeigen();
    // The first wish with that number goes; the list is shown anew in any case.
    void Position_löschen(Long Nr);
    // The wishes are those of another collection: their numbers mean other songs there.
    void andere_Datenbank();
    // Of the chosen line; 0 for a category line, or without one.
    Long gewähltes_Lied() const;

protected:
    Knoten anordnung() override;
    void beim_Laden() override { Kategorie_Linie.wert(true); }
    bool beim_Schließen(Schließgrund grund) override { return grund != Schließgrund::Hand; }

private:
    void verschieben(int stufe);
    void nach_Kategorien_sortieren();
    void Linien_machen();

    const Modell& modell_;
    const DJ_Liste& lieder_;
    Feld<Text, Kategorien_maximal> Kategorie_Linien_;
};

}  // namespace tonkartei
