// The machine and the user as the playing side's tests want them: windows, processes and pauses write into one record, so
// that the order across them shows; files are real, in a scratch folder; the clock moves by pauses and by hand only.
#pragma once

#include <deque>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "datenbank/haus.hpp"
#include "datenbank/modell.hpp"
#include "grundlagen/fehler.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "plattform/linux/rechner_linux.hpp"
#include "plattform/linux/registrierung_linux.hpp"
#include "plattform/plattform.hpp"
#include "probe/stumme_ansicht.hpp"
#include "testordner.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

using Aufzeichnung = std::vector<Text>;

class Ansicht_Bühne : public Stumme_Ansicht {
public:
    std::deque<Text> Antworten;   // to input boxes and folder choices; cancelled when there is none
    Text gefragt;                 // "title|text|preset" of the last input box or folder choice
    int Ereignisrunden = 0;       // how often events were let run
    std::function<void()> Runde;  // what happens meanwhile

    Text eingeben(const Text& text, const Text& titel, const Text& vorgabe) override {
        gefragt = titel + "|" + text + "|" + vorgabe;
        return nächste();
    }
    Text Verzeichnis_wählen(const Text& titel) override {
        gefragt = titel;
        return nächste();
    }
    void Ereignisse_laufen_lassen() override {
        ++Ereignisrunden;
        if (Runde) Runde();
    }

private:
    Text nächste() {
        if (Antworten.empty()) return {};
        Text antwort = Antworten.front();
        Antworten.pop_front();
        return antwort;
    }
};

class Fenster_Bühne : public Fenstersystem {
public:
    struct Eintrag {
        Hwnd Griff = 0, Elter = Schreibtisch;
        Text Klasse;
        std::int32_t Status = 1;  // as answered
    };
    static constexpr Hwnd Schreibtisch = 1;
    std::int32_t Position = 61500, Länge = 200;  // as answered: milliseconds, seconds

    explicit Fenster_Bühne(Aufzeichnung& aufzeichnung) : aufzeichnung_(aufzeichnung) {}
    std::vector<Eintrag> Fenster;  // in window order

    std::optional<std::int32_t> SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w,
                                             std::int64_t l) override {
        if (nachricht == WM_CLOSE) {
            aufzeichnung_.push_back("schließen " + Zahltext(fenster));
            std::erase_if(Fenster, [&](const Eintrag& e) { return e.Griff == fenster; });
            return 0;
        }
        const bool frage = nachricht == WM_USER && (l == 104 || l == 105);
        if (!frage)
            aufzeichnung_.push_back("senden " + Zahltext(fenster) + " " + Zahltext(nachricht) + " " + Zahltext(w) + " " +
                                    Zahltext(l));
        const Eintrag* eintrag = suchen(fenster);
        if (eintrag == nullptr || !frage) return 0;
        if (l == 104) return eintrag->Status;
        return w == 0 ? Position : Länge;
    }
    Hwnd FindWindowA(const Text& klasse) override {
        for (const Eintrag& e : Fenster)
            if (e.Elter == Schreibtisch && e.Klasse == klasse) return e.Griff;
        return 0;
    }
    Hwnd GetWindow(Hwnd fenster, std::uint32_t art) override {
        const Eintrag* selbst = suchen(fenster);
        const Hwnd elter = art == GW_CHILD ? fenster : selbst == nullptr ? -1 : selbst->Elter;
        bool vorbei = art == GW_CHILD;
        for (const Eintrag& e : Fenster) {
            if (vorbei && e.Elter == elter) return e.Griff;
            if (e.Griff == fenster) vorbei = true;
        }
        return 0;
    }
    Text GetClassNameA(Hwnd fenster) override {
        const Eintrag* eintrag = suchen(fenster);
        return eintrag == nullptr ? Text{} : eintrag->Klasse;
    }
    Hwnd GetDesktopWindow() override { return Schreibtisch; }
    bool SetWindowPos(Hwnd fenster, Hwnd davor, int x, int y, int breite, int höhe, std::uint32_t flags) override {
        aufzeichnung_.push_back("lage " + Zahltext(fenster) + " " + Zahltext(davor) + " " + Zahltext(x | y | breite | höhe) +
                                " " + Zahltext(flags));
        return true;
    }
    bool GetWindowRect(Hwnd, Rechteck&) override { return false; }
    Hwnd SetParent(Hwnd, Hwnd) override { return 0; }
    std::int32_t SetWindowLongA(Hwnd, int, std::int32_t) override { return 0; }

    Eintrag* suchen(Hwnd fenster) {
        for (Eintrag& e : Fenster)
            if (e.Griff == fenster) return &e;
        return nullptr;
    }

private:
    Aufzeichnung& aufzeichnung_;
};

class Shell_Bühne : public Shell {
public:
    explicit Shell_Bühne(Aufzeichnung& aufzeichnung) : aufzeichnung_(aufzeichnung) {}
    bool scheitert = false;
    std::function<void()> nach_dem_Start;

    Shell_Ergebnis SHFileOperationA(const Shell_Vorgang&) override { return {}; }
    void starten(const Text& befehl, int fensterstil) override {
        if (scheitert) throw Dateifehler(70, befehl);
        aufzeichnung_.push_back("starten " + Zahltext(fensterstil) + " " + befehl);
        if (nach_dem_Start) nach_dem_Start();
    }

private:
    Aufzeichnung& aufzeichnung_;
};

class Rechner_Bühne : public Rechner_Linux {
public:
    explicit Rechner_Bühne(Aufzeichnung& aufzeichnung) : aufzeichnung_(aufzeichnung) {}
    long long Uhr_ms = 12LL * 3600 * 1000;  // since midnight of the first day

    void stellen(int stunde, int minute, int sekunde) { Uhr_ms = ((stunde * 60LL + minute) * 60 + sekunde) * 1000; }

    Zeitpunkt jetzt() override {
        const auto sekunde = static_cast<int>(Uhr_ms / 1000 % 86400);
        return {2026, 1, 15, sekunde / 3600, sekunde / 60 % 60, sekunde % 60};
    }
    void Sleep(int ms) override {
        aufzeichnung_.push_back("warten " + Zahltext(ms));
        Uhr_ms += ms;
    }
    std::deque<float> Zufall;  // the next values of the generator; then it runs freely
    float Zufallszahl() override {
        if (Zufall.empty()) return static_cast<float>(generator_() >> 8U) / 16777216.0F;
        const float zahl = Zufall.front();
        Zufall.pop_front();
        return zahl;
    }
    void Zufall_säen() override {}

private:
    Aufzeichnung& aufzeichnung_;
    std::mt19937 generator_{4711};
};

// A disk on which one kind of work can be made to fail.
class Dateisystem_Bühne : public Dateisystem_Linux {
public:
    bool schreiben_scheitert = false, umbenennen_scheitert = false;

    void schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) override {
        if (schreiben_scheitert) throw Dateifehler(61);
        Dateisystem_Linux::schreiben(griff, stelle, bytes);
    }
    void umbenennen(const Text& von, const Text& nach) override {
        if (umbenennen_scheitert) throw Dateifehler(75, von);
        Dateisystem_Linux::umbenennen(von, nach);
    }
};

// All of it, with a player's program in the folder and a collection of a few songs.
struct Bühne {
    static constexpr Hwnd Spielerfenster = 7;

    Aufzeichnung Protokoll;
    Testordner Ordner;
    Ansicht_Bühne Ansicht;
    Fenster_Bühne Fenster{Protokoll};
    Shell_Bühne Shell{Protokoll};
    Rechner_Bühne Rechner{Protokoll};
    Registrierung_Linux Registrierung{Ordner.pfad("einstellungen.reg")};
    Dateisystem_Bühne Dateien;
    tonkartei::Haus Haus{{Dateien, Registrierung, Fenster, Shell, Rechner}, Ansicht};
    Kanäle& Kanäle_ = Haus.kanäle;
    tonkartei::Modell& Modell = Haus.modell;
    tonkartei::Einstellungen& Einstellungen = Haus.einstellungen;
    Wiedergabe Spiel{Haus};

    Bühne() {
        Ordner.datei("WinAmp.Exe");
        Einstellungen.WinAmp_Verzeichnis = Ordner.pfad();
        Modell.Datenbank_Verzeichnis = Ordner.pfad();
        Dateien.aktuellen_Ordner_setzen(Ordner.pfad());
        Modell.Anzahl_Lieder = 5;
        for (int nr = 1; nr <= Modell.Anzahl_Lieder; ++nr) Ordner.datei(Lied_Dateiname(nr), "x");
    }
    // A player of the program's class appears; the program sees it at its next look.
    void Spieler_erscheint(std::int32_t status = 1) {
        Fenster.Fenster.push_back({Spielerfenster, Fenster_Bühne::Schreibtisch, WinAmp_Klasse, status});
    }
    // A player that the program has seen.
    void Spieler_läuft(std::int32_t status = 1) {
        Spieler_erscheint(status);
        Spiel.Spieler.nachsehen();
    }
    Aufzeichnung nehmen() { return std::exchange(Protokoll, {}); }
};

inline const Text versteckt_7 = "lage 7 -2 0 131";
inline const Text gezeigt_7 = "lage 7 -2 0 67";

}  // namespace tonkartei
