// The album store on a real disk, with a user who answers every question the same way.
#pragma once

#include <gtest/gtest.h>

#include "alben/alben_befehle.hpp"
#include "alben/alben_datei.hpp"
#include "alben/album_start.hpp"
#include "alben/album_waehlen.hpp"
#include "datenbank/einstellungen.hpp"
#include "datenbank/m3u.hpp"
#include "datenbank/modell.hpp"
#include "oberflaeche/hand.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "probe/rechner_probe.hpp"
#include "probe/stumme_ansicht.hpp"
#include "testordner.hpp"

namespace tonkartei {

struct Ansicht_Antwortend : Stumme_Ansicht {
    Antwort antwort = Antwort::OK;             // to questions; OK: their default
    std::vector<Antwort> Vorgaben;             // of the questions
    std::function<void(Fenster&)> Handgriffe;  // in a modal window
    Antwort melden(const Meldungsfeld& feld) override {
        const Antwort vorgabe = Stumme_Ansicht::melden(feld);
        if (feld.art != Meldungsfeld::Art::Frage) return vorgabe;
        Vorgaben.push_back(vorgabe);
        return antwort == Antwort::OK ? vorgabe : antwort;
    }
    void modal_laufen(Fenster& fenster) override {
        if (Handgriffe) Handgriffe(fenster);
        EXPECT_FALSE(fenster.sichtbar());
    }
};

// A disk that can be full.
struct Dateisystem_Voll : Dateisystem_Linux {
    bool voll = false;
    void schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) override {
        if (voll) throw Dateifehler(61);
        Dateisystem_Linux::schreiben(griff, stelle, bytes);
    }
};

struct Albenbühne : testing::Test {
    Testordner ordner;
    Dateisystem_Voll dateien;
    Kanäle kanäle{dateien};
    Ansicht_Antwortend ansicht;
    Rechner_Probe rechner{{2026, 1, 15, 12, 0, 0}, ordner.pfad(), false};
    Modell modell;
    Einstellungen einstellungen;
    Alben alben{rechner, ansicht};
    Alben_Datei datei{modell, alben, kanäle, dateien, ansicht};
    Album_wählen auswahl{ansicht, alben};
    M3U m3u{modell, kanäle};
    Album_Start start{modell, einstellungen, alben, m3u, ansicht};
    Alben_Befehle befehle{modell, datei, auswahl, start, ansicht};

    Albenbühne() {
        modell.Programmversion = "V 1.02 16";
        modell.Datenbank_Verzeichnis = ordner.pfad();
        modell.Anzahl_Lieder = 20;
        einstellungen.WinAmp_Verzeichnis = ordner.ordner("winamp");
        dateien.aktuellen_Ordner_setzen(ordner.pfad());
    }
    std::string albdatei() const { return ordner.inhalt(Alben_Datei_Name); }
    void neue_Boxen() {
        ansicht.Meldungen.clear();
        ansicht.Vorgaben.clear();
    }
};

inline const std::string Kopf = "Tonkartei\r\nV 1.02 16\r\nDatenbank Alben-Verwaltung\r\n";
// An album of two titles, the first linked, with what readers like to lose; and one without any.
inline const std::string Zwei_Alben =
    " 2 \r\n"
    " 2 \r\n Can, \"live\" \r\n 1972 \r\nF\r\nEge Bamyasi\r\n"
    "Can\r\n0\r\n3\r\n34\r\nT\r\n 12 \r\nVitamin C\r\n"
    "\r\n1\r\n4\r\n3\r\nF\r\n-1 \r\n, \r\n"
    " 0 \r\nAmon D\xFC\xFCl\r\n-5 \r\nT\r\n\r\n";

}  // namespace tonkartei
