#include "austausch/sicherung/portionsdatei.hpp"

#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr const char* Endzeile = "Datenbank Backup-Portions-Datei - Ende";
constexpr Nummerndatei::Art Art_der_Datei{"Datenbank Backup-Portions-Datei", "Diese Datei ist keine Backup-Portions-Datei!",
                                          "Backup-Portionsdatei lesen"};

}  // namespace

Portionsdatei::Portionsdatei(const Modell& modell, Kanäle& kanäle, Ansicht& ansicht)
    : kanäle_(kanäle), datei_(modell, kanäle, ansicht, Art_der_Datei) {}

void Portionsdatei::schreiben(const Text& Datei, const std::vector<Long>& Nummern) {
    datei_.schreiben(Datei, [&](int nummer) {
        for (const Long nr : Nummern) kanäle_.schreibe_reine_Zahl(nummer, nr);
        kanäle_.schreibe_Zeile(nummer, Endzeile);
    });
}

std::vector<Long> Portionsdatei::lesen(const Text& Datei) {
    return datei_.lesen(Datei, [&](int nummer, std::vector<Long>& nummern) {
        for (Text wert = kanäle_.lese_Wert(nummer); wert != Endzeile; wert = kanäle_.lese_Wert(nummer))
            if (const Long nr = Liednummer(wert); nr > 0) Nummer_aufnehmen(nummern, nr);
    });
}

}  // namespace tonkartei
