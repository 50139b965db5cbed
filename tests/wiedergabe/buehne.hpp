// The playing side on the probe's machine, with a few songs; and on top of it the areas of the main window that chance
// works.
#pragma once

#include <gtest/gtest.h>

#include "probe/probehaus.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

using Aufzeichnung = std::vector<Text>;
using Spieler = Fenstersystem_Probe::Spieler;

inline const Text versteckt = "Tonkartei SetWindowPos -2 0 0 0 0 131";
inline const Text gezeigt = "Tonkartei SetWindowPos -2 0 0 0 0 67";

inline Text gesendet(int nachricht, Long w, int l) {
    return "Tonkartei " + Zahltext(nachricht) + " " + Zahltext(w) + " " + Zahltext(l);
}

struct Bühne : Probehaus {
    Wiedergabe Spiel{haus};

    explicit Bühne(int lieder = 5, const Zeitpunkt& uhr = {2026, 1, 15, 12, 0, 0}) : Probehaus(uhr) {
        for (modell.Anzahl_Lieder = 0; modell.Anzahl_Lieder < lieder;)
            ordner.datei(Lied_Dateiname(++modell.Anzahl_Lieder), "x");
    }
    // A player that the program has seen.
    Spieler& Spieler_läuft(int status = 1) {
        Spieler& spieler = fenster.neues_Fenster(WinAmp_Klasse);
        spieler.Status = status;
        Spiel.Spieler.nachsehen();
        return spieler;
    }
    Text Befehl(const Text& rest = {}) const { return ordner.pfad("WinAmp.Exe") + " /CLASS=\"Tonkartei\"" + rest; }
    // What was done to other processes since the last look.
    Aufzeichnung nehmen() {
        Aufzeichnung zeilen;
        for (const auto& eintrag : mitschrift.nehmen(false)) {
            if (const auto* n = std::get_if<Mitschrift_Nachricht>(&eintrag.Was))
                zeilen.push_back(n->Fenster + " " + Zahltext(n->Msg) + " " + Zahltext(n->w) + " " +
                                 (n->Msg == WM_CLOSE ? Text("-") : Zahltext(n->l)));
            if (const auto* p = std::get_if<Mitschrift_Prozess>(&eintrag.Was)) zeilen.push_back(p->Befehl);
            if (const auto* p = std::get_if<Mitschrift_Pause>(&eintrag.Was)) zeilen.push_back("Pause " + Zahltext(p->ms));
            if (const auto* f = std::get_if<Mitschrift_Fensterbefehl>(&eintrag.Was)) {
                zeilen.push_back(f->Fenster + " " + f->Ruf);
                for (const auto wert : f->Werte) zeilen.back() += " " + Zahltext(wert);
            }
        }
        return zeilen;
    }
};

}  // namespace tonkartei
