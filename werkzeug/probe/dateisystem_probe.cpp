#include "probe/dateisystem_probe.hpp"

#include <algorithm>

#include "grundlagen/fehler.hpp"

namespace tonkartei {

Text Dateisystem_Probe::voller_Pfad(const Text& pfad) const {
    const Text ganz = ist_absolut(pfad) ? pfad : mit_Trenner(aktueller_Ordner()) + pfad;
    std::vector<Text> teile;
    std::size_t anfang = 0;
    while (anfang <= ganz.size()) {
        const std::size_t ende = std::min(ganz.find(Trenner, anfang), ganz.size());
        const Text teil = ganz.substr(anfang, ende - anfang);
        if (teil == "..") {
            if (!teile.empty()) teile.pop_back();
        } else if (!teil.empty() && teil != ".") {
            teile.push_back(teil);
        }
        anfang = ende + 1;
    }
    Text ergebnis(ganz.starts_with("\\\\") ? 2U : ganz.starts_with(Trenner) ? 1U : 0U, Trenner);  // as its system has it
    for (const Text& teil : teile) ergebnis += teil + Trenner;
    return ergebnis;
}

bool Dateisystem_Probe::geschützt(const Text& pfad) const {
    const Text voll = voller_Pfad(pfad);
    return std::any_of(geschützt_.begin(), geschützt_.end(),
                       [&](const Text& ordner) { return voll.size() > ordner.size() && voll.starts_with(ordner); });
}

std::size_t Dateisystem_Probe::Laufwerk_von(const Text& pfad) const {
    const Text voll = voller_Pfad(pfad);
    std::size_t ergebnis = 0, länge = 0;
    for (std::size_t i = 0; i < laufwerke_.size(); ++i) {
        if (!voll.starts_with(laufwerke_[i]) || laufwerke_[i].size() < länge) continue;
        ergebnis = i + 1;
        länge = laufwerke_[i].size();
    }
    return ergebnis;
}

void Dateisystem_Probe::Schreibschutz(const Text& ordner, bool an) {
    if (an)
        geschützt_.insert(voller_Pfad(ordner));
    else
        geschützt_.erase(voller_Pfad(ordner));
}

void Dateisystem_Probe::Laufwerk(const Text& ordner) { laufwerke_.push_back(voller_Pfad(ordner)); }

Dateisystem::Griff Dateisystem_Probe::öffnen(const Text& pfad, Dateimodus modus) {
    if (störungen_.trifft(Vorgang::öffnen)) throw Dateifehler(70, pfad);
    if (modus != Dateimodus::lesen && geschützt(pfad)) throw Dateifehler(75, pfad);
    const Griff griff = echt_.öffnen(pfad, modus);
    offene_[griff] = voller_Pfad(pfad);
    if (modus == Dateimodus::schreiben) ungesichert_.gesichert(offene_[griff]);
    return griff;
}

std::size_t Dateisystem_Probe::lesen(Griff griff, std::uint64_t stelle, std::span<char> ziel) {
    if (störungen_.trifft(Vorgang::lesen)) throw Dateifehler(57);
    return echt_.lesen(griff, stelle, ziel);
}

void Dateisystem_Probe::schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) {
    if (störungen_.trifft(Vorgang::schreiben)) throw Dateifehler(61);
    if (const auto i = offene_.find(griff); i != offene_.end())
        ungesichert_.schreiben(i->second, echt_, griff, stelle, bytes.size());
    echt_.schreiben(griff, stelle, bytes);
}

void Dateisystem_Probe::sichern(Griff griff) {
    echt_.sichern(griff);
    if (const auto i = offene_.find(griff); i != offene_.end()) ungesichert_.gesichert(i->second);
}

void Dateisystem_Probe::schließen(Griff griff) {
    offene_.erase(griff);
    echt_.schließen(griff);
}

void Dateisystem_Probe::Strom_weg() {
    for (const auto& [griff, pfad] : offene_) echt_.schließen(griff);
    offene_.clear();
    ungesichert_.verlieren(echt_);
}

void Dateisystem_Probe::Umbenennen_prüfen(const Text& von, const Text& nach) {
    if (störungen_.trifft(Vorgang::umbenennen) || geschützt(von) || geschützt(nach)) throw Dateifehler(75, von);
    if ((echt_.Datei_da(von) || echt_.Ordner_da(von)) && Laufwerk_von(von) != Laufwerk_von(nach)) throw Dateifehler(74, von);
}

void Dateisystem_Probe::umbenennen(const Text& von, const Text& nach) {
    Umbenennen_prüfen(von, nach);
    echt_.umbenennen(von, nach);
    ungesichert_.umbenannt(voller_Pfad(von), voller_Pfad(nach));
}

void Dateisystem_Probe::ersetzen(const Text& von, const Text& nach) {
    Umbenennen_prüfen(von, nach);
    echt_.ersetzen(von, nach);
    ungesichert_.gesichert(voller_Pfad(nach));
    ungesichert_.umbenannt(voller_Pfad(von), voller_Pfad(nach));
}

void Dateisystem_Probe::löschen(const Text& pfad) {
    if (störungen_.trifft(Vorgang::löschen) || geschützt(pfad)) throw Dateifehler(70, pfad);
    echt_.löschen(pfad);
    ungesichert_.gesichert(voller_Pfad(pfad));
}

void Dateisystem_Probe::Ordner_anlegen(const Text& pfad) {
    if (störungen_.trifft(Vorgang::anlegen) || geschützt(pfad)) throw Dateifehler(75, pfad);
    echt_.Ordner_anlegen(pfad);
}

void Dateisystem_Probe::Ordner_löschen(const Text& pfad) {
    if (störungen_.trifft(Vorgang::löschen) || geschützt(pfad)) throw Dateifehler(75, pfad);
    echt_.Ordner_löschen(pfad);
}

void Dateisystem_Probe::kopieren(const Text& von, const Text& nach) {
    if (störungen_.trifft(Vorgang::kopieren)) throw Dateifehler(61, nach);
    if (geschützt(nach)) throw Dateifehler(75, nach);
    echt_.kopieren(von, nach);
    ungesichert_.gesichert(voller_Pfad(nach));
}

bool Dateisystem_Probe::gleiches_Laufwerk(const Text& a, const Text& b) {
    return Laufwerk_von(a) == Laufwerk_von(b) && echt_.gleiches_Laufwerk(a, b);
}

bool Dateisystem_Probe::gleiche_Datei(const Text& a, const Text& b) { return echt_.gleiche_Datei(a, b); }

std::optional<std::uint64_t> Dateisystem_Probe::freie_Bytes(const Text& ordner) {
    return platz_ ? platz_ : echt_.freie_Bytes(ordner);
}

}  // namespace tonkartei
