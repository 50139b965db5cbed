// Simulated windows of other processes, each a player. They answer the messages, but their positions stand still until set.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "plattform/fenstersystem.hpp"

namespace tonkartei {

class Fenstersystem_Probe : public Fenstersystem {
public:
    struct Spieler {
        Hwnd Griff = 0;
        Hwnd Elter = 0;
        Text Klasse;
        Text Datei;
        int Status = 0;     // as answered: 1 playing, 3 paused, 0 stopped
        int Position = -1;  // milliseconds; negative while there is nothing to play
        int Länge = 0;      // seconds
        int Lautstärke = 255;
        bool sichtbar = true;
        bool hängt = false;  // is there, but answers no message and heeds none
        Rechteck Platz{60, 60, 335, 176};
        std::map<int, std::int32_t> Fensterwerte;
    };

    // What a process does whose command text names the player's program: a new window, or the file goes to one of its class.
    void Prozess_gestartet(const Text& befehl);
    // A window appears, last in window order.
    Spieler& neues_Fenster(const Text& klasse);
    // The newest window of that class dies; false when there is none.
    bool Fenster_stirbt(const Text& klasse);
    // All windows of that class.
    std::vector<Spieler*> von_Klasse(const Text& klasse);
    const std::vector<std::unique_ptr<Spieler>>& Spielerliste() const noexcept { return spieler_; }

    std::optional<std::int32_t> SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w, std::int64_t l) override;
    Hwnd FindWindowA(const Text& klasse) override;
    Hwnd GetWindow(Hwnd fenster, std::uint32_t art) override;
    Text GetClassNameA(Hwnd fenster) override;
    Hwnd GetDesktopWindow() override;
    bool SetWindowPos(Hwnd fenster, Hwnd davor, int x, int y, int breite, int höhe, std::uint32_t flags) override;
    bool GetWindowRect(Hwnd fenster, Rechteck& ergebnis) override;
    Hwnd SetParent(Hwnd fenster, Hwnd neuer_Elter) override;
    std::int32_t SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) override;

private:
    Spieler* suchen(Hwnd fenster);
    void schließen(const Spieler& spieler);
    static std::int32_t antworten(Spieler& spieler, std::int32_t w, std::int64_t l);
    static void befehlen(Spieler& spieler, std::int32_t code);

    std::vector<std::unique_ptr<Spieler>> spieler_;  // in window order
    std::map<Text, int> lautstärken_;                // last one of each class
    Hwnd nächster_Griff_ = 0x10010;
};

}  // namespace tonkartei
