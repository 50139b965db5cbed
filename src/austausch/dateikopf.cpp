#include "austausch/dateikopf.hpp"

#include "datenbank/version.hpp"
#include "grundlagen/fehler.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

Kopffehler Kopf_prüfen(Kanäle& kanäle, int nummer, const Text& version, const Text& kennung) {
    const auto nächste_ist = [&](const Text& soll) {
        try {
            return kanäle.lese_Zeile(nummer) == soll;
        } catch (const Dateifehler& fehler) {
            constexpr int Dateiende = 62;
            if (fehler.Nummer() != Dateiende) throw;
            return false;
        }
    };
    if (!nächste_ist(Programmtitel)) return Kopffehler::Titel;
    if (!nächste_ist(version)) return Kopffehler::Version;
    return nächste_ist(kennung) ? Kopffehler::keiner : Kopffehler::Kennung;
}

}  // namespace tonkartei
