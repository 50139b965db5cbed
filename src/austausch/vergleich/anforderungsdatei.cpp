#include "austausch/vergleich/anforderungsdatei.hpp"

#include "austausch/dateikopf.hpp"
#include "austausch/sicherung/portionsdatei.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/modell.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr const char* Kennung = "Datenbank Anforderungs-Datei";
constexpr const char* keine_Anforderung = "Diese Datei ist keine Anforderungs-Datei!";

}  // namespace

void Anforderungsdatei::schreiben(const Text& Datei, const std::vector<Text>& Nummern) {
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Schreiben(Datei);
        Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion, Kennung);
        kanäle_.schreibe_Zahl(nummer, static_cast<std::int64_t>(Nummern.size()));
        for (const Text& nr : Nummern) kanäle_.schreibe_Zeile(nummer, nr);
        kanäle_.schließen(nummer);
    } catch (const Dateifehler&) {
        kanäle_.aufgeben(nummer);
        throw;
    }
}

std::vector<Long> Anforderungsdatei::lesen(const Text& Datei) {
    int nummer = 0;
    Text meldung;
    std::vector<Long> nummern;
    try {
        nummer = kanäle_.öffnen_zum_Lesen(Datei);
        meldung = Kopfmeldung(Kopf_prüfen(kanäle_, nummer, modell_.Programmversion, Kennung), keine_Anforderung);
        if (meldung.empty()) {
            const Long anzahl = kanäle_.lese_Long(nummer);
            for (Long i = 1; i <= anzahl; ++i) Nummer_aufnehmen(nummern, Portionsnummer(kanäle_.lese_Wert(nummer)));
        }
    } catch (const Laufzeitfehler&) {
        // Cut off, or numbers that no song can have: as little a request as a file of another kind.
        meldung = keine_Anforderung;
    }
    kanäle_.aufgeben(nummer);
    if (meldung.empty()) return nummern;
    ansicht_.informieren("Anforderungsdatei lesen", meldung);
    return {};
}

}  // namespace tonkartei
