// The player's process. Exit status 0 when the files are with a player, 1 when there is none.
#include <cstdio>
#include <exception>

#include "echt.hpp"
#include "grundlagen/auskunft.hpp"
#include "spieler/ausfuehren.hpp"

namespace {

constexpr const char* Hilfe =
    "Aufruf: WinAmp.Exe [/CLASS=NAME] [/NEW] [DATEI...]\n"
    "\n"
    "Der Spieler der Tonkartei: spielt Musikdateien und M3U-Listen ohne eigenes Fenster.\n"
    "\n"
    "  /CLASS=NAME  der Name, unter dem er zu finden ist; läuft er schon, bekommt er die Dateien\n"
    "  /NEW         startet in jedem Fall einen weiteren\n"
    "  --help       zeigt diese Hilfe\n"
    "  --version    zeigt die Version\n"
    "\n"
    "TONKARTEI_TON wählt die Tonausgabe; \"null\" spielt ohne Ton.\n";

}  // namespace

int main(int anzahl, char** worte) {
    using namespace tonkartei;
    const Aufruf aufruf(anzahl, worte);
    if (const auto auskunft =
            Auskunft(aufruf.Anzahl, aufruf.Argumente, Hilfe, "WinAmp.Exe (Tonkartei) " TONKARTEI_VERSION "\n")) {
        std::fputs(auskunft->c_str(), stdout);
        return 0;
    }
    try {
        spieler::ausführen(spieler::lies_Argumente({aufruf.Argumente + 1, aufruf.Argumente + aufruf.Anzahl},
                                                   Dateisystem_echt().aktueller_Ordner()));
        return 0;
    } catch (const std::exception& fehler) {
        std::fprintf(stderr, "WinAmp.Exe: %s\n", fehler.what());
        return 1;
    }
}
