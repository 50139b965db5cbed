#include "dj/alt/spielerpaar.hpp"

#include "datenbank/haus.hpp"

namespace tonkartei {

Spielerpaar::Spielerpaar(Haus& haus, Wiedergabe& wiedergabe)
    : system_(haus.plattform.Fenstersystem),
      eins_("TonkarteiWA1", wiedergabe, haus),
      zwei_("TonkarteiWA2", wiedergabe, haus) {}

bool Spielerpaar::starte_WinAmp(int Player, const Text& Datei) {
    const bool läuft = Prozess(Player).starten(Datei);
    if (!offen_) Prozess(Player).beenden();
    return läuft && offen_;
}

bool Spielerpaar::starte(int Player, const Text& Datei) {
    if (!offen_) return false;
    const bool geladen = Prozess(Player).wechseln(Datei);
    if (!offen_) Prozess(Player).beenden();
    if (!offen_ || !geladen) return false;
    int x = 0;
    if (Rechteck platz; Player == 2 && system_.GetWindowRect(Fenster(1).Fenster, platz)) x = platz.rechts - platz.links;
    system_.SetWindowPos(Fenster(Player).Fenster, HWND_NOTOPMOST, x, 0, 0, 0, SWP_NOSIZE);
    return true;
}

void Spielerpaar::beenden() {
    offen_ = false;
    eins_.beenden();
    zwei_.beenden();
}

}  // namespace tonkartei
