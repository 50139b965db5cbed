// How the shell asks: with the program's own boxes, on behalf of the shell.
#pragma once

#include "oberflaeche/ansicht.hpp"
#include "plattform/shell.hpp"

namespace tonkartei {

inline Shell_Frage Frage_über(Ansicht& ansicht) {
    return [&ansicht](const Text& titel, const Text& text) {
        switch (ansicht.fragen_oder_abbrechen(titel, text, "shell")) {
            case Antwort::Ja: return Shell_Antwort::Ja;
            case Antwort::Nein: return Shell_Antwort::Nein;
            default: return Shell_Antwort::Abbrechen;
        }
    };
}

}  // namespace tonkartei
