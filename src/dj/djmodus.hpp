// The DJ desk: four players of its own, mixed by nothing but their volumes, and the lists that feed them.
#pragma once

#include <functional>

#include "dj/fadetafel.hpp"
#include "dj/listen.hpp"
#include "dj/listen_dateien.hpp"
#include "dj/mischung.hpp"
#include "dj/ueberblendung.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/zeitgeber.hpp"

namespace tonkartei {

struct Albenraum;

class DJModus : public Fenster {
public:
    DJModus(Haus& haus, Wiedergabe& wiedergabe, Albenraum& alben);

    Spielerfelder Player{*this, "Player"};
    tonkartei::Mischung Mischung{*this};
    Fadetafel Tafel{*this};
    tonkartei::Listen Listen;
    Listen_Dateien Dateien;

    // Opens the desk at the main window's place, which makes way for it, or brings it to the front. Starting the players
    // takes seconds.
    void öffnen(const Bereich& Hauptfenster);
    // With the end of the program: the main window stays where it is.
    void mit_dem_Programm_schließen();
    // Twice a second while it is open.
    void DJ_Tick();
    // At an end by run-time error; sends what it can.
    void Spieler_beenden() { spieler_.beenden(); }

    // Connected by the composition: the main window hides, or comes back.
    std::function<void(bool offen)> offen;

protected:
    Knoten anordnung() override;
    Größe Startgröße() override { return {17400, 11100}; }
    void beim_Entladen() override;
    void bei_neuer_Größe() override;

private:
    Knoten Pult();

    DJ_Spieler spieler_;
    Überblendung überblendung_;
    Zeitgeber Timer_;
    bool öffnet_ = false, bleibt_zu_ = false;
};

}  // namespace tonkartei
