// Which songs the list means.
#include "alben/alben.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "liste/listenbereich.hpp"

namespace tonkartei {

Long Listenbereich::Lied_Nr(int Index) const { return Nummer_von(Nr_Liste.zeile(Index)); }

Long Listenbereich::brauchbar(Long Nr) const {
    return modell_.Datenbank_offen && Nr >= 1 && Nr <= modell_.Anzahl_Lieder ? Nr : 0;
}

Long Listenbereich::gewähltes_Lied() const {
    if (Datenbank_Modus.wert() == 1) return Album_Lied_Nr();
    return Liste.gewählt() >= 0 ? brauchbar(Lied_Nr(Liste.gewählt())) : 0;
}

Long Listenbereich::gemeintes_Lied() const {
    const Long gewählt = gewähltes_Lied();
    return gewählt > 0 ? gewählt : brauchbar(angezeigtes_Lied_);
}

std::vector<Long> Listenbereich::Lieder_in_Liste() const {
    std::vector<Long> nummern;
    // The numbers of the other tab are those of albums.
    if (Datenbank_Modus.wert() != 0) return nummern;
    std::vector<bool> dabei(static_cast<std::size_t>(modell_.Anzahl_Lieder) + 1);
    for (const Text& zeile : Nr_Liste.zeilen()) {
        const Long nr = brauchbar(Nummer_von(zeile));
        if (nr < 1 || dabei[static_cast<std::size_t>(nr)]) continue;
        dabei[static_cast<std::size_t>(nr)] = true;
        nummern.push_back(nr);
    }
    return nummern;
}

std::vector<Listenlied> Listenbereich::Lieder_im_Blick() const {
    std::vector<Listenlied> lieder;
    const auto aufnehmen = [&](int zeile, Long nummer) {
        if (const Long nr = brauchbar(nummer); nr > 0) lieder.push_back({zeile, nr});
    };
    if (Datenbank_Modus.wert() == 0) {
        lieder.reserve(Nr_Liste.zeilen().size());
        int i = 0;
        for (const Text& zeile : Nr_Liste.zeilen()) aufnehmen(i++, Nummer_von(zeile));
    } else if (const Long album = Album_Nr(); album > 0) {
        const Album& a = alben_.Alben[album];
        for (int t = 1; t <= a.Titel_Anzahl; ++t) aufnehmen(t - 1, Lied_von(modell_, a.Lieder[t]));
    }
    return lieder;
}

Long Listenbereich::Album_Nr() const {
    if (Datenbank_Modus.wert() != 1 || !modell_.Alben_geladen || Liste.gewählt() < 0) return 0;
    const Long nr = Lied_Nr(Liste.gewählt());
    // A special list of songs may stand in this tab.
    return nr <= alben_.Anzahl ? nr : 0;
}

Long Listenbereich::Album_Lied_Nr() const {
    const Long nr = Album_Nr();
    if (nr < 1 || Liste2.gewählt() < 0) return 0;
    return brauchbar(Lied_von(modell_, alben_.Alben[nr].Lieder[Liste2.gewählt() + 1]));
}

bool Listenbereich::zeigt_Kategorie(int k) const { return kategorien_.zeige_Kategorie(k).wert(); }

void Listenbereich::wähle_Lied(Long Nr) {
    const auto& zeilen = Nr_Liste.zeilen();
    int zeile = static_cast<int>(zeilen.size()) - 1;
    while (zeile > 0 && Nummer_von(zeilen[static_cast<std::size_t>(zeile)]) != Nr) --zeile;
    if (zeile >= 0) Liste.wähle(zeile);
}

}  // namespace tonkartei
