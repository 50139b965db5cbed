// The window of the statistics: four tabs, the first filled at the opening, each of the others when it is first looked at.
#pragma once

#include <array>

#include "oberflaeche/fenster.hpp"
#include "statistik/abbruch_bereich.hpp"
#include "statistik/einsortiert_bereich.hpp"
#include "statistik/gehoert_bereich.hpp"
#include "statistik/kategorien_bereich.hpp"

namespace tonkartei {

struct Haus;

class Statistik : public Fenster {
public:
    Statistik(Haus& haus, Liedziel ziel);

    Reiter Tabs{*this, "Ansicht", {"&Anzahl gehört", "&Einsortiert", "&Kategorien", "Abbgebrochene"}};
    Elementreihe<Rahmen, 4> Tabrahmen{*this, "Ansicht_Rahmen"};  // one for each tab
    Gehört_Bereich Gehört;
    Einsortiert_Bereich Einsortiert;
    Kategorien_Bereich Kategorien;
    Abbruch_Bereich Abbruch;
    // The lines of keys and numbers of the list on show, one for each of its lines.
    Listenfeld Sortier_Liste{*this, "Sortier_Liste"};
    Knopf Ok{*this, "Ok", "&OK"};

    void öffnen();
    // It is open (true), and nothing else may change the collection, or not any more.
    Ereignis<bool> offen;

protected:
    Knoten anordnung() override;
    void beim_Entladen() override;
    void bei_neuer_Anordnung() override;

private:
    enum Tab { Tab_Gehört, Tab_Einsortiert, Tab_Kategorien, Tab_Abbruch };

    void Tab_gewählt();
    void Rahmen_zeigen();
    void füllen(int tab);
    void Sortierung_nachführen(int tab);

    const Modell& modell_;
    std::array<bool, 4> gefüllt_{};
};

}  // namespace tonkartei
