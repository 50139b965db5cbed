// Works the whole program from a test: starts the operator as a process of its own, sends it lines and takes its replies.
//
//     Bediener b({.wurzel = ordner.pfad(), .setze = {"WinAmp=" + ordner.pfad()}});
//     b("antwort Ja");
//     EXPECT_EQ(b.zeige("Tonkartei.Liste_Anzahl")["text"], "0");
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "bediener/kindprozess.hpp"

namespace tonkartei {

class Bediener {
public:
    struct Optionen {
        std::string wurzel = {};     // empty: a fresh one that is deleted at the end
        std::string parameter = {};  // the program's own
        std::vector<std::string> setze = {};
        std::string ordner = {};
        std::string maschine = {};  // "probe" or "echt"
        std::string ansicht = {};   // "keine" or "qt"
        std::string uhr = {};
        bool zweite_Instanz = false;
        std::string programm = {};               // another executable than the operator
        std::vector<std::string> umgebung = {};  // "NAME=WERT", besides what the test has
        int Frist = 60;                          // seconds that a reply may take
    };
    using Antworten = std::vector<nlohmann::json>;

    // Starts it and takes the replies up to the first waiting.
    Bediener() : Bediener(Optionen{}) {}
    explicit Bediener(const Optionen& optionen);
    // Ends the process as it stands if it still runs.
    ~Bediener();
    Bediener(const Bediener&) = delete;
    Bediener& operator=(const Bediener&) = delete;

    // Sends a line; all objects of its reply, the one with "bereit" last. When the process dies without it, what came until
    // then; when the time limit passes, the process is ended and std::runtime_error thrown.
    const Antworten& operator()(const std::string& zeile);

    // Of the last reply:
    const Antworten& antworten() const noexcept { return antworten_; }
    // What the program waits for; "" when it died without a word.
    std::string bereit() const { return zuletzt("bereit"); }
    // The window that waits, for "fenster".
    std::string bereit_name() const { return zuletzt("name"); }
    // Why the command could not be done; "" when it was.
    std::string fehler() const { return zuletzt("fehler"); }
    // The last event of a kind ("meldung"); null without one.
    nlohmann::json ereignis(const std::string& art) const;
    // Text of the last message box; "" without one.
    std::string meldung() const;

    // Looks. Each of them throws std::runtime_error when that cannot be seen.
    nlohmann::json zeige(const std::string& name);
    // Of a control, the key "text".
    std::string text(const std::string& name);
    std::vector<std::string> zeilen(const std::string& name);
    nlohmann::json fenster(const std::string& name);  // null when it is not loaded
    nlohmann::json protokoll(bool alles = false);
    nlohmann::json registrierung();
    nlohmann::json spieler();

    // Waits for its end. The exit status, or minus the signal that ended it.
    int Ende_abwarten();

    // A path from a reply as the file system has it: bytes outside UTF-8 stand as U+F780 to U+F7FF in the replies' texts.
    static std::string Pfadbytes(const std::string& text);
    // A text as a JSON string, for command lines.
    static std::string zitiert(const std::string& text);

private:
    std::string zuletzt(const char* schlüssel) const;
    nlohmann::json schau(const std::string& zeile, const std::string& schlüssel);
    void Antworten_lesen();
    bool Zeile_lesen(std::string& zeile);

    int frist_;
    Kindprozess prozess_;
    std::string puffer_;
    Antworten antworten_;
};

}  // namespace tonkartei
