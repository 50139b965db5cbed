#include "dj/djmodus.hpp"

#include "datenbank/haus.hpp"
#include "grundlagen/waehrend.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

DJModus::DJModus(Haus& haus, Wiedergabe& wiedergabe, Albenraum& alben)
    : Fenster(haus.ansicht, "DJModus", "Tonkartei - DJ-Modus"),
      Listen(*this, haus),
      Dateien(haus, alben, Listen),
      spieler_(haus, wiedergabe, Player, Mischung, Listen),
      überblendung_(Tafel, Mischung, spieler_, Player),
      Timer_(haus.ansicht, [this] { DJ_Tick(); }) {
    hintergrund = RGB(50, 50, 100);
    eigenständig = true;
    Kürzel.emplace_back("Ctrl+F", [this] {
        if (Listen.Schnellsuche.bedienbar()) this->ansicht().fokus(Listen.Schnellsuche);
    });
}

// The players in their pairs, each pair with its crossfader, and between the pairs the third one's buttons and the times.
Knoten DJModus::Pult() {
    const auto Paar = [this](int k) {
        return Zeile({Tafel.Start_Fade[2 * k], Knoten(Mischung.Crossfade[k]).dehnen(1), Tafel.Start_Fade[2 * k - 1],
                      Tafel.Start_Center[k]});
    };
    return Spalte({Zeile({Player[1].anordnung().dehnen(1, 1), Player[2].anordnung().dehnen(1, 1)}).dehnen(1, 1), Paar(1),
                   Zeile({Tafel.Zeiten_anordnung().dehnen(1), Tafel.Start_Automatik}), Paar(2),
                   Zeile({Player[3].anordnung().dehnen(1, 1), Player[4].anordnung().dehnen(1, 1)}).dehnen(1, 1)});
}

Knoten DJModus::anordnung() {
    const Knoten OU = Spalte(
        {Tafel.Start_Fade[6], Knoten(Mischung.Crossfade_OU).dehnen(0, 1), Tafel.Start_Center[3], Tafel.Start_Fade[5]});
    return Zeile({Pult().dehnen(3, 1), OU, Listen.anordnung().dehnen(1, 1)}).rand(120);
}

void DJModus::öffnen(const Bereich& Hauptfenster) {
    if (geladen()) {
        if (!öffnet_) zeigen();
        return;
    }
    const Während währenddessen(öffnet_);
    laden();
    bewegen(Hauptfenster.links, Hauptfenster.oben);
    if (!spieler_.starten()) return;
    Listen.beginnen();
    spieler_.beginnen();
    überblendung_.beginnen();
    Tafel.beginnen();
    Listen.eröffnen();
    if (offen) offen(true);
    Timer_.stellen(Überblendung::Takt_ms, true);
    zeigen();
    ansicht().fokus(Listen.Schnellsuche);
}

// Nothing guards a tick against another one while it loads a song: the load touches one player alone.
void DJModus::DJ_Tick() {
    for (int n = 1; n <= Spieler_Anzahl && geladen(); ++n) {
        const DJ_Spieler::Zeit zeit = spieler_.Zeit_zeigen(n);
        if (spieler_.Player_spielt(n)) überblendung_.Autozeit_prüfen(n, zeit);
        spieler_.Ende_prüfen(n);
    }
    if (geladen()) überblendung_.Schritte_ausführen();
}

void DJModus::bei_neuer_Größe() { Listen.neu_ausrichten(); }

void DJModus::beim_Entladen() {
    Timer_.stellen(Überblendung::Takt_ms, false);
    spieler_.beenden();
    if (offen && !bleibt_zu_) offen(false);
}

void DJModus::mit_dem_Programm_schließen() {
    const Während zu(bleibt_zu_);
    entladen();
}

}  // namespace tonkartei
