#include "statistik/gehoert.hpp"

namespace tonkartei {
namespace {

constexpr int Stellen = 4;
constexpr Long größter_Schlüssel = 9999;

// A count of more than four digits leaves the order: its key is empty, or has a sign in the middle.
Text Schlüssel(Gehört_Sicht sicht, Long Anzahl) {
    switch (sicht) {
        case Gehört_Sicht::meiste: return Zahl_mit_Nullen(static_cast<long long>(größter_Schlüssel) - Anzahl, Stellen);
        case Gehört_Sicht::wenigste: return Zahl_mit_Nullen(Anzahl, Stellen);
        case Gehört_Sicht::genau: break;
    }
    return {};
}

Text rechtsbündig(Long zahl) {
    Text ziffern = Zahltext(zahl);
    if (ziffern.size() < Stellen) ziffern.insert(0, Stellen - ziffern.size(), ' ');
    return ziffern;
}

}  // namespace

Gehört_Liste Gehört_auflisten(const Bestand& bestand, Gehört_Sicht sicht, double x) {
    Gehört_Liste liste;
    if (sicht != Gehört_Sicht::genau) liste.lieder.vormerken(bestand.Anzahl_Lieder);
    for (Long nr = 1; nr <= bestand.Anzahl_Lieder; ++nr) {
        const Long anzahl = bestand.Lieder[nr].Anzahl;
        if (sicht != Gehört_Sicht::genau || anzahl == x) liste.lieder.hinzufügen(Schlüssel(sicht, anzahl), nr);
    }
    liste.lieder.sortieren();
    liste.zeilen.reserve(liste.lieder.zeilen().size());
    for (const auto& sortiert : liste.lieder.zeilen()) {
        const Lied& lied = bestand.Lieder[sortiert.Nr];
        liste.Insgesamt += lied.Anzahl;
        Text zeile;
        zeile.reserve(lied.Artist.size() + lied.Titel.size() + 9);
        if (sicht != Gehört_Sicht::genau) zeile.append(rechtsbündig(lied.Anzahl)).append("x ");
        liste.zeilen.push_back(std::move(zeile.append(lied.Artist).append(" - ").append(lied.Titel)));
    }
    return liste;
}

}  // namespace tonkartei
