#include "grundlagen/zahl.hpp"

#include <cmath>
#include <limits>

#include "grundlagen/fehler.hpp"

namespace tonkartei {
namespace {

// std::nearbyint would follow the thread's rounding mode; this does not.
double zum_Nächsten(double wert) {
    const double unten = std::floor(wert);
    const double rest = wert - unten;
    if (rest < 0.5) return unten;
    if (rest > 0.5) return unten + 1;
    return std::fmod(unten, 2) == 0 ? unten : unten + 1;
}

template <class Ziel>
Ziel begrenzt(double wert) {
    const double ganz = zum_Nächsten(wert);
    if (!(ganz >= std::numeric_limits<Ziel>::min() && ganz <= std::numeric_limits<Ziel>::max()))
        throw Laufzeitfehler(Fehler_Überlauf);
    return static_cast<Ziel>(ganz);
}

template <class Ziel>
Ziel begrenzt_ganz(long long wert) {
    if (wert < std::numeric_limits<Ziel>::min() || wert > std::numeric_limits<Ziel>::max())
        throw Laufzeitfehler(Fehler_Überlauf);
    return static_cast<Ziel>(wert);
}

}  // namespace

Long gerundet(double wert) { return begrenzt<Long>(wert); }
Byte gerundet_Byte(double wert) { return begrenzt<Byte>(wert); }
int gerundet_Integer(double wert) { return begrenzt<std::int16_t>(wert); }

Long als_Long(long long wert) { return begrenzt_ganz<Long>(wert); }
Byte als_Byte(long long wert) { return begrenzt_ganz<Byte>(wert); }

double Zahlwert(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
    bool negativ = false;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) negativ = text[i++] == '-';
    double wert = 0;
    const auto Ziffer = [&] { return i < text.size() && text[i] >= '0' && text[i] <= '9'; };
    for (; Ziffer(); ++i) wert = wert * 10 + (text[i] - '0');
    if (i < text.size() && text[i] == '.') {
        ++i;
        double nenner = 1;
        double zähler = 0;
        // Digits beyond the precision of a double would overflow the denominator.
        for (; Ziffer(); ++i)
            if (nenner < 1e17) zähler = zähler * 10 + (text[i] - '0'), nenner *= 10;
        wert += zähler / nenner;
    }
    return negativ ? -wert : wert;
}

Text Zahltext(long long wert) { return std::to_string(wert); }

Text Zahl_mit_Punkten(long long wert) {
    Text text = Zahltext(wert);
    const std::size_t erste_Ziffer = wert < 0 ? 1 : 0;
    for (std::size_t i = text.size(); i > erste_Ziffer + 3;) text.insert(i -= 3, 1, '.');
    return text;
}

Text Zahl_mit_Nullen(long long Wert, int Stellen) {
    const Text ziffern = Zahltext(Wert);
    if (ziffern.size() > static_cast<std::size_t>(Stellen)) return {};
    return Text(static_cast<std::size_t>(Stellen) - ziffern.size(), '0') + ziffern;
}

int Prozent(double Anteil, double Gesamt) {
    if (Gesamt == 0) return 0;
    const double wert = Anteil / Gesamt * 100;
    if (!(wert > 0)) return 0;
    return wert >= 100 ? 100 : gerundet(wert);
}

}  // namespace tonkartei
