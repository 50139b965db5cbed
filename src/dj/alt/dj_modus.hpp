// The older DJ desk: a parent window and, as parts of it, mixer, titles, songs, categories and wishes.
#pragma once

#include <functional>

#include "dj/alt/dj_kategorien.hpp"
#include "dj/alt/dj_liste.hpp"
#include "dj/alt/kidnap.hpp"
#include "dj/alt/mixer.hpp"
#include "dj/alt/titelpaar.hpp"
#include "dj/alt/wunschliste.hpp"

namespace tonkartei {

class DJ_Modus : public Fenster {
public:
    DJ_Modus(Haus& haus, Wiedergabe& wiedergabe);

    Rahmen Titel1_Platz{*this, "Titel1_Platz", "Player 1"}, Titel2_Platz{*this, "Titel2_Platz", "Player 2"};
    Rahmen Mixer_Platz{*this, "Mixer_Platz", "Mixer"}, Liste_Platz{*this, "Liste_Platz", "Lieder"};
    Rahmen Kategorien_Platz{*this, "Kategorien_Platz", "Kategorien"};
    Rahmen Wunsch_Platz{*this, "Wunsch_Platz", "gewünschte Lieder"};

    Spielerpaar Spieler;
    Titelpaar Titel;
    DJ_Kategorien Kategorien;
    DJ_Liste Lieder;
    tonkartei::Wunschliste Wünsche;
    tonkartei::Mixer Mixer;
    tonkartei::Kidnap Kidnap;

    // Opens the desk, or brings it to the front. Without a player it gets no further than the parent window. Takes seconds.
    void starten();
    // With the end of the program: the main window stays where it is.
    void mit_dem_Programm_schließen();
    // At an end by run-time error: what can still be sent.
    void Spieler_beenden() noexcept;

    // Connected by the composition: the main window hides with its player closed, or comes back.
    std::function<void(bool offen)> offen;

protected:
    Knoten anordnung() override;
    Größe Startgröße() override { return {17400, 11100}; }
    void beim_Entladen() override;

private:
    void Tasten_verbinden();

    Rechner& rechner_;
    bool bleibt_zu_ = false;
};

}  // namespace tonkartei
