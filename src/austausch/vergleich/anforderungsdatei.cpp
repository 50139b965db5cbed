#include "austausch/vergleich/anforderungsdatei.hpp"

#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr Nummerndatei::Art Art_der_Datei{"Datenbank Anforderungs-Datei", "Diese Datei ist keine Anforderungs-Datei!",
                                          "Anforderungsdatei lesen"};

}  // namespace

Anforderungsdatei::Anforderungsdatei(const Modell& modell, Kanäle& kanäle, Ansicht& ansicht)
    : kanäle_(kanäle), datei_(modell, kanäle, ansicht, Art_der_Datei) {}

void Anforderungsdatei::schreiben(const Text& Datei, const std::vector<Text>& Nummern) {
    datei_.schreiben(Datei, [&](int nummer) {
        kanäle_.schreibe_Zahl(nummer, static_cast<std::int64_t>(Nummern.size()));
        for (const Text& nr : Nummern) kanäle_.schreibe_Zeile(nummer, nr);
    });
}

std::vector<Long> Anforderungsdatei::lesen(const Text& Datei) {
    return datei_.lesen(Datei, [&](int nummer, std::vector<Long>& nummern) {
        const Long anzahl = kanäle_.lese_Long(nummer);
        for (Long i = 1; i <= anzahl; ++i) Nummer_aufnehmen(nummern, Liednummer(kanäle_.lese_Wert(nummer)));
    });
}

}  // namespace tonkartei
