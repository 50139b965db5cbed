// The dialog that asks for a date.
#pragma once

#include <optional>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/wartedialog.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {

// "5.3.2026", "05.03.26", "5.3." (of `Jahr`): midnight of that day. Two digits of a year below 30 are of this century, the
// others of the last. None for what is no date of the calendar.
std::optional<Zeitpunkt> Datum_aus_Text(const Text& text, int Jahr);

class Datum_eingeben : public Wartedialog<Zeitpunkt> {
public:
    Datum_eingeben(Ansicht& ansicht, Rechner& rechner);

    Schriftfeld Datum_Text{*this, "Datum_Text", "&Datum (Tag.Monat.Jahr):"};
    Textfeld Datum{*this, "Datum"};
    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "&Abbruch"};

    // Waits for the user; today is offered. None when no date was given.
    std::optional<Zeitpunkt> eingeben();

protected:
    Knoten anordnung() override;
    void beim_Laden() override;

private:
    void bestätigen();

    Rechner& rechner_;
};

}  // namespace tonkartei
