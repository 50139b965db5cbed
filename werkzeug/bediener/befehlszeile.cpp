#include "bediener/befehlszeile.hpp"

#include <algorithm>
#include <cstdlib>

#include "bediener/json.hpp"

namespace tonkartei {

void Befehlszeile::Leerzeichen_übergehen() {
    while (stelle_ < zeile_.size() && (zeile_[stelle_] == ' ' || zeile_[stelle_] == '\t')) ++stelle_;
}

bool Befehlszeile::mehr() {
    Leerzeichen_übergehen();
    return stelle_ < zeile_.size();
}

Text Befehlszeile::nächstes(const char* was) {
    if (!mehr()) throw Befehlsfehler(Text("es fehlt: ") + was);
    if (zeile_[stelle_] == '"') {
        if (auto text = Json::Zeichenkette_lesen(zeile_, stelle_)) return *text;
        throw Befehlsfehler(Text("keine gültige Zeichenkette: ") + was);
    }
    const std::size_t ende = std::min(zeile_.find_first_of(" \t", stelle_), zeile_.size());
    Text wort = zeile_.substr(stelle_, ende - stelle_);
    stelle_ = ende;
    return wort;
}

long Befehlszeile::Zahl(const char* was) {
    const Text wort = nächstes(was);
    char* ende = nullptr;
    const long long zahl = std::strtoll(wort.c_str(), &ende, 10);
    if (wort.empty() || *ende != '\0' || zahl > 2147483647LL || zahl < -2147483648LL)
        throw Befehlsfehler(Text("keine Zahl: ") + was);
    return static_cast<long>(zahl);
}

double Befehlszeile::Kommazahl(const char* was) {
    const Text wort = nächstes(was);
    char* ende = nullptr;
    const double zahl = std::strtod(wort.c_str(), &ende);
    if (wort.empty() || *ende != '\0') throw Befehlsfehler(Text("keine Zahl: ") + was);
    return zahl;
}

Text Befehlszeile::rest() {
    if (stelle_ < zeile_.size()) ++stelle_;
    Text übrig = zeile_.substr(stelle_);
    stelle_ = zeile_.size();
    if (!übrig.empty() && übrig.front() == '"') {
        std::size_t ende = 0;
        auto text = Json::Zeichenkette_lesen(übrig, ende);
        if (text && ende == übrig.size()) return *text;
    }
    return übrig;
}

Text Befehlszeile::rest_roh() {
    Leerzeichen_übergehen();
    Text übrig = zeile_.substr(stelle_);
    stelle_ = zeile_.size();
    return übrig;
}

void Befehlszeile::zu_Ende() {
    if (mehr()) throw Befehlsfehler("zu viel: " + zeile_.substr(stelle_));
}

}  // namespace tonkartei
