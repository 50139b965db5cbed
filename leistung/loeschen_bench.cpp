// Deleting songs through the program's own commands: four times the songs may take somewhat more than four times as long,
// and not sixteen times.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <stdexcept>
#include <string>
#include <vector>

#include "alben/albenraum.hpp"
#include "datenbank/abr_datei.hpp"
#include "datenbank/datenbankraum.hpp"
#include "echt.hpp"
#include "leistung/verhaeltnis.hpp"
#include "lieder/lied_nachruecken.hpp"
#include "lieder/lieder_entfernen.hpp"
#include "probe/stumme_ansicht.hpp"
#include "testordner.hpp"
#include "wiedergabe/wiedergabe.hpp"

using namespace tonkartei;

namespace {

// A collection of so many small songs, all of which go but the one that moves up each time.
struct Abgang {
    Abgang(Long anzahl, bool papierkorb) : anzahl_(anzahl) { haus.einstellungen.Papierkorb = papierkorb; }

    void bereiten() {
        if (modell.Anzahl_Lieder == anzahl_) return;
        modell.Datenbank_Verzeichnis = ordner.ordner("db" + Zahltext(++runde_));
        modell.Datenbank_offen = true;
        modell.Anzahl_Lieder = anzahl_;
        for (Long n = 1; n <= anzahl_; ++n) {
            modell.Lieder[n].Artist = "Some Band";
            modell.Lieder[n].Titel = "Song no. " + Zahltext(runde_) + "-" + Zahltext(n);
            std::ofstream(modell.Lied_Pfad(n)) << n;
        }
    }
    Long löschen() {
        std::vector<Long> nummern(static_cast<std::size_t>(anzahl_ - 1));
        std::iota(nummern.begin(), nummern.end(), 1);
        entfernen.alle_Lieder_löschen(nummern);
        if (modell.Anzahl_Lieder != 1) throw std::runtime_error("songs have stayed");
        return modell.Anzahl_Lieder;
    }

    // In memory where there is such a place: a disk writes out its journal when it likes, and it is the number of steps that
    // is looked at here.
    Testordner ordner{std::filesystem::is_directory("/dev/shm") ? "/dev/shm"
                                                                : std::filesystem::temp_directory_path().string()};
    Dateisystem_echt dateien;
    Papierkorb_echt korb{dateien, ordner.pfad("korb")};
    Shell_echt shell{dateien, korb};
    Registrierung_echt registrierung{ordner.pfad("einstellungen.reg")};
    Fenstersystem_echt fenster;
    Rechner_echt rechner{ordner.pfad()};
    Ja_Ansicht ansicht;
    Haus haus{{dateien, registrierung, fenster, shell, rechner}, ansicht};
    Modell& modell = haus.modell;
    Datenbankraum datenbank{haus};
    Albenraum alben{datenbank};
    Wiedergabe wiedergabe{haus};
    ABR_Datei abr{modell, dateien, haus.kanäle};
    Lied_nachrücken nachrücken{modell, alben.datei, abr};
    Lieder_entfernen entfernen{haus, nachrücken, wiedergabe.Spieler};

private:
    Long anzahl_;
    Long runde_ = 0;
};

}  // namespace

int main() {
    Verhältnisse v(3);
    for (const bool papierkorb : {true, false}) {
        Abgang ganz(2500, papierkorb), viertel(625, papierkorb);
        v.davor = [&] {
            ganz.bereiten();
            viertel.bereiten();
        };
        v.höchstens(
            papierkorb ? "2500 Lieder in den Papierkorb" : "2500 Lieder löschen", 5, "625 Lieder",
            [&] { return ganz.löschen(); }, [&] { return viertel.löschen(); });
    }
    return v.Ergebnis();
}
