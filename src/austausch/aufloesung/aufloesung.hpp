// Dissolving a collection, and the comparison of categories, put together.
#pragma once

#include "austausch/aufloesung/aufloesen.hpp"
#include "austausch/aufloesung/datenbank_aufloesung.hpp"
#include "austausch/aufloesung/kategorie_abgleich.hpp"
#include "austausch/aufloesung/kategorie_vergleich.hpp"

namespace tonkartei {

struct Datenbankraum;

struct Auflösung {
    Auflösung(Datenbankraum& datenbank, Quell_Datenbank& quelle, WinAmp_Starter& starter);
    Auflösung(const Auflösung&) = delete;
    Auflösung& operator=(const Auflösung&) = delete;

    Datenbank_Auflösung arbeit;
    auflösen fenster;
    Kategorie_vergleich vergleich;
    Kategorieabgleich abgleich;
};

}  // namespace tonkartei
