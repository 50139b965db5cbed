// Comparison by file and the requests that come of it, put together.
#pragma once

#include "austausch/vergleich/anforderungs_datenbank.hpp"
#include "austausch/vergleich/anforderungsdatei.hpp"
#include "austausch/vergleich/datenbankvergleich.hpp"
#include "austausch/vergleich/vergleichsdatei.hpp"
#include "austausch/vergleich/vergleichsergebnis.hpp"

namespace tonkartei {

class Auszugsdatenbank;
struct Haus;

struct Vergleich {
    Vergleich(Haus& haus, Auszugsdatenbank& auszug);
    Vergleich(const Vergleich&) = delete;
    Vergleich& operator=(const Vergleich&) = delete;

    Vergleichsdatei datei;
    Anforderungsdatei anforderungsdatei;
    Vergleichsergebnis ergebnis;
    Datenbankvergleich befehl;
    Anforderungs_Datenbank anforderung;
};

}  // namespace tonkartei
