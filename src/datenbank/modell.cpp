#include "datenbank/modell.hpp"

#include <array>

namespace tonkartei {

Text Modell::Lied_Pfad(long long Nr) const { return Datenbank_Verzeichnis + Lied_Dateiname(Nr); }

Text Lied_Dateiname(long long Nr) {
    if (Nr < 1 || Nr > Lieder_maximal) throw Laufzeitfehler(Fehler_Index);
    return Zahl_mit_Nullen(Nr, 8) + ".MP3";
}

Text Lied_Exportname(const Lied& lied) {
    Text name = lied.Artist + " - " + lied.Titel + ".MP3";
    for (char& zeichen : name)
        if (zeichen == ':' || zeichen == '\\' || zeichen == '?' || zeichen == '/') zeichen = '_';
    return name;
}

int Lieder_vergleichen(const Lied& a, const Lied& b, const Zeitpunkt& Datum_a, const Zeitpunkt& Datum_b) {
    int punkte = 0;
    if (a.Titel == b.Titel && a.Artist == b.Artist) ++punkte;
    if (a.Größe == b.Größe && Datum_a == Datum_b) ++punkte;
    return punkte;
}

void Standard_Datenbank(Modell& modell, bool Kategorien_neu) {
    modell.Anzahl_Lieder = 0;
    modell.Anz_Kat_Schemas = 0;
    for (int s = 1; s <= Schemas_maximal; ++s) {
        Schema& schema = modell.Schemas[s];
        schema.Name = "Schema " + Zahltext(s);
        schema.Anzahl = 1;
        schema.Kategorien[1] = 1;
    }
    if (!Kategorien_neu) return;
    constexpr std::array<const char*, 6> erste = {"Alle", "Freestyle", "Hip-Hop/Rap", "Metal/Punk", "Sonstiges", "Techno"};
    modell.Anzahl_Kategorien = static_cast<Byte>(erste.size());
    for (std::size_t k = 0; k < erste.size(); ++k) modell.Kategorien[static_cast<long long>(k) + 1] = erste[k];
}

}  // namespace tonkartei
