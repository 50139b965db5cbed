// The windows of other processes on Linux: sockets in the desktop's folder (schreibtisch.hpp). A connection is kept open for
// every window, so that its death shows without asking it; a look at the desktop is one directory read and one poll.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "plattform/fenstersystem.hpp"
#include "plattform/linux/deskriptor.hpp"
#include "plattform/linux/fenster_protokoll.hpp"

namespace tonkartei {

class Fenstersystem_Linux final : public Fenstersystem {
public:
    // `frist`: how long an answer may take. A process that let it pass once is waited for only briefly until it answers
    // again; a socket that does not introduce itself in time is no window until it does.
    explicit Fenstersystem_Linux(std::chrono::milliseconds frist = std::chrono::milliseconds(250));
    ~Fenstersystem_Linux() override;
    Fenstersystem_Linux(const Fenstersystem_Linux&) = delete;
    Fenstersystem_Linux& operator=(const Fenstersystem_Linux&) = delete;

    std::optional<std::int32_t> SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w, std::int64_t l) override;
    Hwnd FindWindowA(const Text& klasse) override;
    Hwnd GetWindow(Hwnd fenster, std::uint32_t art) override;
    Text GetClassNameA(Hwnd fenster) override;
    Hwnd GetDesktopWindow() override;
    // Position, size and visibility are kept by the window's process; there is no picture that they would change.
    bool SetWindowPos(Hwnd fenster, Hwnd davor, int x, int y, int breite, int höhe, std::uint32_t flags) override;
    bool GetWindowRect(Hwnd fenster, Rechteck& ergebnis) override;
    // Answers the previous parent, the desktop at first. The window stays a child of the desktop all the same.
    Hwnd SetParent(Hwnd fenster, Hwnd neuer_Elter) override;
    // Answers the previous value.
    std::int32_t SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) override;

    // What a player shows of itself. Not a Windows call: for status lines and tests.
    struct Spielerzustand {
        bool sichtbar = false;
        int Lautstärke = 0;  // 0 to 255
        int Status = 0;      // as answered to message 104
        std::int32_t Position = 0, Länge = 0;
        Text Datei;
    };
    std::optional<Spielerzustand> Zustand(Hwnd fenster);

    // Gives files to a player, which plays them at once. False when it did not take them.
    bool Dateien_übergeben(Hwnd fenster, const std::vector<Text>& dateien);

private:
    using Uhr = std::chrono::steady_clock;

    struct Eintrag {
        Deskriptor Verbindung;
        std::uint64_t Inode = 0;
        Text Klasse;
        bool angemeldet = false;  // has told its handle and class: a window
        bool hängt = false;       // owes an answer
        Uhr::time_point Nächster_Versuch{};
    };
    struct Rückgabe {
        protokoll::Antwort Antwort;
        std::string Anhang;
    };

    void schauen();
    void Ordner_lesen(const Deskriptor& ordner);
    void Lebende_prüfen();
    void verbinden(const Deskriptor& ordner, Hwnd griff, Eintrag& eintrag);
    void Anmeldungen_abwarten();
    // Takes what has arrived. False when the other end is gone or talks rubbish; the connection is closed then.
    bool abholen(Hwnd griff, Eintrag& eintrag);
    static void trennen(Eintrag& eintrag, bool Unsinn);
    Eintrag* Fenster_zu(Hwnd fenster);
    std::optional<Rückgabe> fragen(Hwnd fenster, protokoll::Anfrage anfrage, std::string_view anhang = {});
    std::optional<Rückgabe> Antwort_abwarten(Eintrag& eintrag, std::uint32_t folge);

    const std::chrono::milliseconds frist_;
    std::map<Hwnd, Eintrag> einträge_;  // by handle, which is window order
    std::uint32_t folge_ = 0;
};

}  // namespace tonkartei
