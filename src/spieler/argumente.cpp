#include "spieler/argumente.hpp"

#include "spieler/liste_m3u.hpp"

namespace tonkartei::spieler {

namespace {

constexpr std::size_t Höchstlänge_Klasse = 255;  // what windows' classes may have anywhere

Text ohne_Anführungszeichen(const Text& wort) {
    return wort.size() >= 2 && wort.front() == '"' && wort.back() == '"' ? wort.substr(1, wort.size() - 2) : wort;
}

}  // namespace

Argumente lies_Argumente(const std::vector<Text>& worte, const Text& ordner) {
    static const Text Klassenwort = "/CLASS=";
    Argumente ergebnis;
    for (const Text& roh : worte) {
        const Text wort = ohne_Anführungszeichen(roh);
        if (wort == "/NEW") {
            ergebnis.neu = true;
        } else if (wort.starts_with(Klassenwort)) {
            const Text klasse = ohne_Anführungszeichen(wort.substr(Klassenwort.size()));
            if (!klasse.empty()) ergebnis.Klasse = klasse.substr(0, Höchstlänge_Klasse);
        } else if (!wort.empty()) {
            ergebnis.Dateien.push_back(ganzer_Pfad(wort, ordner));
        }
    }
    return ergebnis;
}

}  // namespace tonkartei::spieler
