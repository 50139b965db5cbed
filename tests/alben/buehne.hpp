// The album store on a real disk, with a user who answers every question the same way.
#pragma once

#include <gtest/gtest.h>

#include "alben/alben_datei.hpp"
#include "alben/album_start.hpp"
#include "datenbank/einstellungen.hpp"
#include "datenbank/m3u.hpp"
#include "datenbank/modell.hpp"
#include "plattform/kanaele.hpp"
#include "probe/rechner_probe.hpp"
#include "probe/stumme_ansicht.hpp"
#include "stoerfall.hpp"
#include "testordner.hpp"

namespace tonkartei {

struct Ansicht_Antwortend : Stumme_Ansicht {
    Antwort antwort = Antwort::OK;  // to questions; OK: their default
    std::vector<Antwort> Vorgaben;  // of the questions
    Antwort melden(const Meldungsfeld& feld) override {
        const Antwort vorgabe = Stumme_Ansicht::melden(feld);
        if (feld.art != Meldungsfeld::Art::Frage) return vorgabe;
        Vorgaben.push_back(vorgabe);
        return antwort == Antwort::OK ? vorgabe : antwort;
    }
};

struct Albenbühne : testing::Test {
    Testordner ordner;
    Störfall störfall;
    Störungen& störungen = störfall.Störungen_;
    Dateisystem& dateien = störfall.Dateien;
    Kanäle kanäle{dateien};
    Ansicht_Antwortend ansicht;
    Rechner_Probe rechner{{2026, 1, 15, 12, 0, 0}, ordner.pfad(), false};
    Modell modell;
    Einstellungen einstellungen;
    Alben alben{rechner, ansicht};
    Alben_Datei datei{modell, alben, kanäle, dateien, ansicht};
    M3U m3u{modell, kanäle};
    Album_Start start{modell, einstellungen, alben, m3u, ansicht};

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
