// The shell's file operation and the starting of processes.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "grundlagen/text.hpp"

namespace tonkartei {

// Codes and flags as on Windows.
inline constexpr std::uint32_t FO_MOVE = 1;
inline constexpr std::uint32_t FO_COPY = 2;
inline constexpr std::uint32_t FO_DELETE = 3;
inline constexpr std::uint32_t FO_RENAME = 4;
inline constexpr std::uint16_t FOF_MULTIDESTFILES = 1;
inline constexpr std::uint16_t FOF_SILENT = 4;
inline constexpr std::uint16_t FOF_RENAMEONCOLLISION = 8;
inline constexpr std::uint16_t FOF_NOCONFIRMATION = 16;
inline constexpr std::uint16_t FOF_ALLOWUNDO = 64;
inline constexpr std::uint16_t FOF_FILESONLY = 128;
inline constexpr std::uint16_t FOF_SIMPLEPROGRESS = 256;
inline constexpr std::uint16_t FOF_NOCONFIRMMKDIR = 512;

struct Shell_Vorgang {
    std::uint32_t Code = 0;
    std::uint16_t Flags = 0;
    std::vector<Text> von;
    std::vector<Text> nach;
    Text Titel;
};

struct Shell_Ergebnis {
    int Rückgabe = 0;          // 0 success
    bool abgebrochen = false;  // by the user
};

enum class Shell_Antwort { Ja, Nein, Abbrechen };
// Asks the user, with the three answers as buttons.
using Shell_Frage = std::function<Shell_Antwort(const Text& Titel, const Text& Frage)>;

class Shell {
public:
    virtual ~Shell() = default;

    // A collision of names asks the user unless the flags forbid it; deleting with FOF_ALLOWUNDO goes to the recycle bin
    // and never asks. Copies keep the modification time.
    virtual Shell_Ergebnis SHFileOperationA(const Shell_Vorgang& vorgang) = 0;
    // Starts a process from a command text (program and arguments as one text, the program not quoted). 2 is the window
    // style "minimised with focus". Throws Dateifehler 53 when no program can be found in the text.
    virtual void starten(const Text& befehl, int fensterstil) = 0;
};

}  // namespace tonkartei
