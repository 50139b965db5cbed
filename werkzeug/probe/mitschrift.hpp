// What the program asks of the machine's other side, written down call by call: messages and window calls to other
// processes, started processes, shell operations, pauses.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <variant>
#include <vector>

#include "plattform/fenstersystem.hpp"
#include "plattform/rechner.hpp"
#include "plattform/shell.hpp"

namespace tonkartei {

struct Mitschrift_Nachricht {
    Text Fenster;  // class
    std::uint32_t Msg = 0;
    std::int32_t w = 0;
    std::int64_t l = 0;
    // Asks without changing anything.
    bool reine_Frage() const noexcept { return Msg == WM_USER && (l == 104 || l == 105); }
};

struct Mitschrift_Prozess {
    Text Befehl;
};

struct Mitschrift_Fensterbefehl {
    Text Fenster;  // class
    Text Ruf;
    std::vector<std::int64_t> Werte;  // the call's arguments behind the window
};

struct Mitschrift_Pause {
    int ms = 0;
};

struct Mitschrift_Eintrag {
    std::int64_t Nr = 0;
    std::int64_t Zeit = 0;  // milliseconds since the start
    std::variant<Mitschrift_Nachricht, Mitschrift_Prozess, Mitschrift_Fensterbefehl, Mitschrift_Pause, Shell_Vorgang> Was;
};

class Mitschrift {
public:
    explicit Mitschrift(std::function<std::int64_t()> uhr) : uhr_(std::move(uhr)) {}

    void eintragen(decltype(Mitschrift_Eintrag::Was) was);
    // What came since the last taking, oldest first, at most the newest 10,000. Pure questions only with `alles`; they never
    // push out anything else.
    std::vector<Mitschrift_Eintrag> nehmen(bool alles);

private:
    std::function<std::int64_t()> uhr_;
    std::deque<Mitschrift_Eintrag> einträge_, fragen_;
    std::int64_t nr_ = 0;
};

class Fenstersystem_Mitschrift : public Fenstersystem {
public:
    Fenstersystem_Mitschrift(Fenstersystem& innen, Mitschrift& mitschrift) : innen_(innen), mitschrift_(mitschrift) {}

    std::optional<std::int32_t> SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w, std::int64_t l) override;
    Hwnd FindWindowA(const Text& klasse) override { return innen_.FindWindowA(klasse); }
    Hwnd GetWindow(Hwnd fenster, std::uint32_t art) override { return innen_.GetWindow(fenster, art); }
    Text GetClassNameA(Hwnd fenster) override { return innen_.GetClassNameA(fenster); }
    Hwnd GetDesktopWindow() override { return innen_.GetDesktopWindow(); }
    bool SetWindowPos(Hwnd fenster, Hwnd davor, int x, int y, int breite, int höhe, std::uint32_t flags) override;
    bool GetWindowRect(Hwnd fenster, Rechteck& ergebnis) override { return innen_.GetWindowRect(fenster, ergebnis); }
    Hwnd SetParent(Hwnd fenster, Hwnd neuer_Elter) override;
    std::int32_t SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) override;

private:
    Fenstersystem& innen_;
    Mitschrift& mitschrift_;
};

class Shell_Mitschrift : public Shell {
public:
    Shell_Mitschrift(Shell& innen, Mitschrift& mitschrift) : innen_(innen), mitschrift_(mitschrift) {}

    Shell_Ergebnis SHFileOperationA(const Shell_Vorgang& vorgang) override;
    void starten(const Text& befehl, int fensterstil) override;

private:
    Shell& innen_;
    Mitschrift& mitschrift_;
};

class Rechner_Mitschrift : public Rechner {
public:
    Rechner_Mitschrift(Rechner& innen, Mitschrift& mitschrift) : innen_(innen), mitschrift_(mitschrift) {}

    Text GetComputerNameA() override { return innen_.GetComputerNameA(); }
    Text GetUserNameA() override { return innen_.GetUserNameA(); }
    Text Temp_Verzeichnis() override { return innen_.Temp_Verzeichnis(); }
    Zeitpunkt jetzt() override { return innen_.jetzt(); }
    void Sleep(int ms) override;
    bool andere_Instanz_läuft() override { return innen_.andere_Instanz_läuft(); }
    float Zufallszahl() override { return innen_.Zufallszahl(); }
    void Zufall_säen() override { innen_.Zufall_säen(); }
    Text WinAmp_Vorgabe() override { return innen_.WinAmp_Vorgabe(); }

private:
    Rechner& innen_;
    Mitschrift& mitschrift_;
};

}  // namespace tonkartei
