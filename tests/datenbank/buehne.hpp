// The collection's room on a real disk with trouble on order, and a user who answers by the title of the question.
#pragma once

#include <map>

#include "datenbank/datenbankraum.hpp"
#include "echt.hpp"
#include "probe/fenstersystem_probe.hpp"
#include "probe/rechner_probe.hpp"
#include "probe/stumme_ansicht.hpp"
#include "stoerfall.hpp"
#include "testordner.hpp"

namespace tonkartei {

struct Antwortende_Ansicht : Stumme_Ansicht {
    std::map<Text, Antwort> Antworten;  // by a piece of the text; else the default
    Text Ordner, Name;                  // chosen and entered
    std::vector<Text> Fehler;           // run-time error boxes

    Antwort melden(const Meldungsfeld& feld) override {
        Stumme_Ansicht::melden(feld);
        for (const auto& [stück, antwort] : Antworten)
            if (feld.text.find(stück) != Text::npos) return antwort;
        return feld.vorgabe;
    }
    Text Verzeichnis_wählen(const Text&) override { return Ordner; }
    Text eingeben(const Text&, const Text&, const Text&) override { return Name; }
    [[noreturn]] void an_Laufzeitfehler_enden(const Laufzeitfehler& fehler) override {
        Fehler.push_back(Fehlertext(fehler));
        throw Programmende{};
    }
};

struct Keine_Shell : Shell {
    Shell_Ergebnis SHFileOperationA(const Shell_Vorgang&) override { return {}; }
    void starten(const Text&, int) override {}
};

// One run of the program: what it holds open goes with it.
struct Lauf {
    Registrierung_echt registrierung;
    Fenstersystem_Probe fenster;
    Keine_Shell shell;
    Rechner_Probe rechner;
    Antwortende_Ansicht ansicht;
    Haus haus;
    Datenbankraum raum{haus};
    Modell& modell = haus.modell;

    Lauf(const Testordner& ordner, Störfall& störfall)
        : registrierung(ordner.pfad("e.reg")),
          rechner({2026, 1, 15, 12, 0, 0}, ordner.ordner("temp"), false),
          haus({störfall.Dateien, registrierung, fenster, shell, rechner}, ansicht) {
        modell.Programmversion = "V 1.02 16";
    }
    bool öffnen(const Text& verzeichnis) {
        raum.sitzung.Verzeichnis_setzen(verzeichnis);
        return raum.sitzung.lade_Datenbank();
    }
    Text letzte() const { return ansicht.Meldungen.empty() ? "" : ansicht.Meldungen.back(); }
    // What the box of the run-time error says that ends the work; empty when it ends well.
    template <class Arbeit>
    Text Laufzeitfehler_bei(Arbeit&& arbeit) {
        try {
            ansicht.ausführen(arbeit);
        } catch (const Programmende&) {
            return ansicht.Fehler.back();
        }
        return {};
    }
};

struct Datenbankbühne : testing::Test {
    Testordner ordner;
    Störfall störfall;
    const std::string a = ordner.ordner("a"), b = ordner.ordner("b");
};

// Two categories, nine schemes, and two songs, the first by `artist`.
inline std::string Info_Bytes(const std::string& artist = "Artist", const std::string& version = "V 1.02 16") {
    std::string bytes = "Tonkartei\r\n" + version + "\r\n 2 \r\nAlle\r\n Hip-Hop, Rap\r\n 1 \r\n";
    for (int s = 1; s <= 9; ++s)
        bytes += s == 3 ? " 0 \r\nSchema 3\r\n" : " 2 \r\nSchema " + std::to_string(s) + "\r\n 2 \r\n 1 \r\n";
    bytes += " 650 \r\n 2 \r\n";
    bytes += " 7 \r\n" + artist + "\r\n 3072 \r\n 2 \r\nTitel\r\n0\r\n3\r\n59\r\n";
    bytes += "-1 \r\n\r\n 0 \r\n 1 \r\n\r\n0\r\n0\r\n0\r\n";
    return bytes;
}

}  // namespace tonkartei
