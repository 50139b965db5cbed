#include "austausch/vergleich/vergleich.hpp"

#include "datenbank/haus.hpp"

namespace tonkartei {

Vergleich::Vergleich(Haus& haus, Auszugsdatenbank& auszug)
    : datei(haus.modell, haus.kanäle, haus.plattform.Dateisystem, haus.fortschritt),
      anforderungsdatei(haus.modell, haus.kanäle, haus.ansicht),
      ergebnis(haus.ansicht, haus.plattform.Dateisystem, anforderungsdatei),
      befehl(haus, datei, ergebnis),
      anforderung(haus.modell, haus.ansicht, anforderungsdatei, auszug) {}

}  // namespace tonkartei
