// The room of adding songs on a real disk, with a user who follows a script and writes everything down.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <functional>
#include <vector>

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "echt.hpp"
#include "kategorien/kategorienraum.hpp"
#include "lieder/hinzufuegen/hinzufuegen.hpp"
#include "mp3/bausteine.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/hand.hpp"
#include "probe/fenstersystem_probe.hpp"
#include "probe/rechner_probe.hpp"
#include "probe/stumme_ansicht.hpp"
#include "testordner.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

class Drehbuch : public Stumme_Ansicht {
public:
    std::deque<Antwort> Antworten;     // to questions, in order
    std::deque<int> Kategorien;        // clicks on Kategorie_Wahl
    std::function<void()> Handgriffe;  // what the hand does in a window that waits or is modal
    Text Verzeichnis;                  // chosen in the folder browser
    Text Datei;                        // chosen in the file dialog
    std::vector<Text> Ablauf;          // boxes as "title: text", what was asked, what was called
    std::vector<Text> Fortschritte;

    Antwort melden(const Meldungsfeld& feld) override {
        Ablauf.push_back(feld.titel + ": " + feld.text);
        if (feld.knöpfe == Meldungsfeld::Knöpfe::OK) return Antwort::OK;
        EXPECT_FALSE(Antworten.empty()) << feld.text;
        if (Antworten.empty()) return Antwort::Nein;
        const Antwort antwort = Antworten.front();
        Antworten.pop_front();
        return antwort;
    }
    void warten_bis(Fenster& fenster, const std::function<bool()>& bedingung) override {
        if (auto* wahl = dynamic_cast<Kategorie_Wahl*>(&fenster)) {
            Ablauf.push_back("Kategorie: " + wahl->Artist.beschriftung() + " - " + wahl->Titel.beschriftung());
            ASSERT_FALSE(Kategorien.empty());
            Hand::wählen(wahl->Liste, Kategorien.front() - 1);
            Kategorien.pop_front();
        } else if (Handgriffe) {
            Handgriffe();
        }
        ASSERT_TRUE(bedingung());
    }
    void modal_laufen(Fenster& fenster) override {
        if (Handgriffe) Handgriffe();
        EXPECT_FALSE(fenster.sichtbar());
    }
    void Fortschritt_beendet(const Text& text, int) override { Fortschritte.push_back(text); }
    Text Datei_wählen(const Dateiwahl&) override { return Datei; }
    Text Verzeichnis_wählen(const Text& titel) override {
        Ablauf.push_back(titel);
        return Verzeichnis;
    }
};

struct Dateisystem_Knapp : Dateisystem_echt {
    std::optional<std::uint64_t> frei = std::uint64_t{1} << 40;
    Text unlesbare_Länge;  // asking this file's length fails

    std::optional<std::uint64_t> freie_Bytes(const Text&) override { return frei; }
    bool Datei_da(const Text& pfad) override { return Dateisystem_echt::Dateilänge(pfad) >= 0; }
    std::int64_t Dateilänge(const Text& pfad) override {
        if (pfad == unlesbare_Länge) throw Dateifehler(57, pfad);
        return Dateisystem_echt::Dateilänge(pfad);
    }
};

struct Eimer : Papierkorb {
    void wegwerfen(const Text& pfad) override { std::filesystem::remove(pfad); }
};

// The real one, which may be told to do something of its own instead of its work or after it; processes are only noted.
struct Shell_mit_Tücken : Shell {
    explicit Shell_mit_Tücken(Shell& echt) : echt_(echt) {}
    std::vector<Shell_Vorgang> Vorgänge;
    std::vector<Text> gestartet;
    std::function<std::optional<Shell_Ergebnis>(const Shell_Vorgang&)> statt;
    std::function<Shell_Ergebnis(const Shell_Vorgang&, Shell_Ergebnis)> danach;

    Shell_Ergebnis SHFileOperationA(const Shell_Vorgang& vorgang) override {
        Vorgänge.push_back(vorgang);
        if (statt)
            if (const auto ergebnis = statt(vorgang)) return *ergebnis;
        const Shell_Ergebnis ergebnis = echt_.SHFileOperationA(vorgang);
        return danach ? danach(vorgang, ergebnis) : ergebnis;
    }
    void starten(const Text& befehl, int) override { gestartet.push_back(befehl); }

private:
    Shell& echt_;
};

struct Bühne {
    Bühne() {
        modell.Datenbank_Verzeichnis = ordner.ordner("db");
        modell.Datenbank_offen = true;
        Standard_Datenbank(modell, true);
        quelle = ordner.ordner("quelle");
        einstellungen.WinAmp_Verzeichnis = ordner.ordner("winamp");
        ordner.datei("winamp/WinAmp.Exe");
        eintragen.Liste_neu_aufbauen = [this] { ansicht.Ablauf.push_back("aufgebaut"); };
        fenster.Hauptfenster_sperren = [this](bool gesperrt) { Haupt_gesperrt = gesperrt; };
    }

    // A file of the source folder; `zeit` in seconds since 1970, 0 leaves it at now.
    Text lege(const Text& name, const std::string& bytes, long zeit = 0) {
        const Text pfad = ordner.datei("quelle/" + name, bytes);
        stellen(pfad, zeit);
        return pfad;
    }
    // The file and the record of the next song.
    void lege_Lied(std::size_t länge, long zeit) {
        const Long nr = ++modell.Anzahl_Lieder;
        stellen(ordner.datei("db/" + Lied_Dateiname(nr), std::string(länge, 'x')), zeit);
        modell.Lieder[nr].Titel = "Lied " + Zahltext(nr);
        modell.Lieder[nr].Größe = gerundet(static_cast<double>(länge) / 1024.0);
    }
    static void stellen(const Text& pfad, long zeit) {
        const auto seit_1970 = std::chrono::sys_time<std::chrono::seconds>(std::chrono::seconds(zeit));
        if (zeit != 0)
            std::filesystem::last_write_time(Testordner::weg_zu(pfad), std::chrono::file_clock::from_sys(seit_1970));
    }
    Long übernimm(std::vector<Text> pfade, Übernahmeart art = Übernahmeart::kopieren) {
        Übernahme_Auftrag auftrag;
        auftrag.Modus = art;
        for (Text& pfad : pfade) auftrag.Lieder.push_back({std::move(pfad), 0});
        const Long A = übernehmen.ausführen(auftrag);
        EXPECT_FALSE(fortschritt.sichtbar());
        return A;
    }
    std::string inhalt(Long nr) const { return ordner.inhalt("db/" + Lied_Dateiname(nr)); }

    Testordner ordner;
    Text quelle;
    Drehbuch ansicht;
    Dateisystem_Knapp dateien;
    Eimer korb;
    Shell_echt echte_Shell{dateien, korb};
    Shell_mit_Tücken shell{echte_Shell};
    Registrierung_echt registrierung{ordner.pfad("reg")};
    Fenstersystem_Probe spieler;
    Rechner_Probe rechner{{2026, 1, 15, 12, 0, 0}, ordner.pfad(), false};
    Haus haus{{dateien, registrierung, spieler, shell, rechner}, ansicht};
    Modell& modell = haus.modell;
    Einstellungen& einstellungen = haus.einstellungen;
    Fortschritts_Fenster& fortschritt = haus.fortschritt;
    Datenbankraum datenbank{haus};
    Albenraum alben{datenbank};
    Kategorienraum kategorien{haus};
    Wiedergabe wiedergabe{haus};
    MP3_TagHead mp3{dateien};
    Hinzufügen hinzufügen{datenbank, mp3, alben, kategorien, wiedergabe};
    Dateien_übernehmen& übernehmen = hinzufügen.übernehmen;
    Lieder_eintragen& eintragen = hinzufügen.eintragen;
    Lieder_Übernahme& übernahme = hinzufügen.übernahme;
    neue_Lieder_Liste& fenster = hinzufügen.liste;
    Verzeichnis_add& verzeichnis = hinzufügen.verzeichnis;
    tonkartei::Lieder_hinzufügen& befehle = hinzufügen.dateien;
    bool Haupt_gesperrt = false;
};

}  // namespace tonkartei
