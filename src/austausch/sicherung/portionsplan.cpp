#include "austausch/sicherung/portionsplan.hpp"

#include <algorithm>
#include <cmath>

#include "liste/sortierung.hpp"

namespace tonkartei {

Portionsplan::Portionsplan(const Bestand& bestand)
    : Backup_Lieder(bestand.Anzahl_Lieder),
      Im_Backup(static_cast<std::size_t>(bestand.Anzahl_Lieder) + 1, true),
      bestand_(bestand) {
    Long größte = 1;
    long long KByte = 0;
    for (Long nr = 1; nr <= bestand.Anzahl_Lieder; ++nr) {
        const Lied& lied = bestand.Lieder[nr];
        größte = std::max(größte, lied.Größe);
        KByte += lied.Größe;
        nach_Namen_[{lied.Artist, lied.Titel}].push_back(nr);
    }
    Backup_KByte = als_Long(KByte);
    Minimale_Portion = gerundet(größte / 1024.0 + 1);
}

Long Portionsplan::Gesamtgröße() const { return gerundet(Backup_KByte / 1024.0); }

Long Portionsplan::Anzahl_Portionen(double P) const { return gerundet(std::ceil(Gesamtgröße() / P)); }

const std::vector<Long>* Portionsplan::gleichnamige(const Text& Artist, const Text& Titel) const {
    const auto gefunden = nach_Namen_.find({Artist, Titel});
    return gefunden == nach_Namen_.end() ? nullptr : &gefunden->second;
}

void Portionsplan::auslassen(Long Nr) {
    Im_Backup[static_cast<std::size_t>(Nr)] = false;
    --Backup_Lieder;
    Backup_KByte = als_Long(static_cast<long long>(Backup_KByte) - bestand_.Lieder[Nr].Größe);
}

void Portionsplan::Eintrag_auslassen(const Text& Artist, const Text& Titel) {
    if (const auto* nummern = gleichnamige(Artist, Titel)) auslassen(nummern->front());
}

void Portionsplan::Lied_auslassen(const Text& Artist, const Text& Titel) {
    const auto* nummern = gleichnamige(Artist, Titel);
    if (nummern == nullptr) return;
    const auto im_Plan = [this](Long nr) { return Im_Backup[static_cast<std::size_t>(nr)]; };
    if (const auto nr = std::find_if(nummern->begin(), nummern->end(), im_Plan); nr != nummern->end()) auslassen(*nr);
}

std::vector<std::vector<Long>> Portionsplan::Portionen(double P) const {
    constexpr int Stellen = 8;
    Sortier_Liste liste;
    for (Long nr = 1; nr <= bestand_.Anzahl_Lieder; ++nr) {
        if (!Im_Backup[static_cast<std::size_t>(nr)]) continue;
        const Lied& lied = bestand_.Lieder[nr];
        liste.hinzufügen(Zahl_mit_Nullen(lied.Kategorie, 2) + lied.Artist, lied.Titel, nr, Stellen);
    }
    const double T = std::nearbyint(P * 1024);  // KByte; a whole number far beyond any collection's size
    double S = 0;
    std::vector<std::vector<Long>> portionen;
    for (const long long nr : liste.sortierte_Nummern()) {
        const Long größe = bestand_.Lieder[nr].Größe;
        // The first song opens a portion whatever its size: a damaged record may tell one below nothing.
        if (portionen.empty() || größe + S > T) {
            portionen.emplace_back();
            S = 0;
        }
        portionen.back().push_back(als_Long(nr));
        S += größe;
    }
    return portionen;
}

}  // namespace tonkartei
