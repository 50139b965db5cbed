// The songs of a list as a text file: a line for each, in columns of the user's choice.
#pragma once

#include <array>
#include <vector>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Dateisystem;
class Fortschritts_Fenster;
class Kanäle;

// In the order in which they are offered.
enum class Spaltenart { Artist, Titel, Kategorie, Anzahl, Dateigröße, Datum, keine };

inline constexpr int Spalten_maximal = 6;

struct Ausgabeform {
    std::array<Spaltenart, Spalten_maximal> Spalten{};
    Text Trenner;

    // How many columns a line has: up to the last one that holds something, all when none does.
    std::size_t Breite() const;
};

class Liedausgabe {
public:
    Liedausgabe(const Modell& modell, Dateisystem& dateien, Kanäle& kanäle, Fortschritts_Fenster& fortschritt);

    // A collection is open.
    bool möglich() const { return modell_.Datenbank_offen; }
    // Replaces the file. A failure ends the writing without a word, and what was written stays; so does a date that is
    // asked of a song whose file is missing.
    void schreiben(const Text& datei, const Ausgabeform& form, const std::vector<Long>& nummern);

private:
    void Zeilen_schreiben(int kanal, const Ausgabeform& form, const std::vector<Long>& nummern);
    Text Feld_von(Long Nr, Spaltenart spalte) const;

    const Modell& modell_;
    Dateisystem& dateien_;
    Kanäle& kanäle_;
    Fortschritts_Fenster& fortschritt_;
};

}  // namespace tonkartei
