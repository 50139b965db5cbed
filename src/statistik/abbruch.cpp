#include "statistik/abbruch.hpp"

#include "datenbank/abr_datei.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr std::size_t Ganze_Stellen = 4, Mittel_Stellen = 6;  // "0060.5"

// Exact, the half upwards.
Text Mittel_Text(long long Summe, long long Anzahl) {
    const long long zehntel = (20 * Summe + Anzahl) / (2 * Anzahl);
    Text ganze = Zahltext(zehntel / 10);
    if (ganze.size() < Ganze_Stellen) ganze.insert(0, Ganze_Stellen - ganze.size(), '0');
    return ganze + "." + Zahltext(zehntel % 10);
}

bool passt(Abbruch_Sicht sicht, double Mittel, Long x) {
    switch (sicht) {
        case Abbruch_Sicht::alle: return true;
        case Abbruch_Sicht::unter: return Mittel <= x;
        case Abbruch_Sicht::über: return Mittel >= x;
        case Abbruch_Sicht::genau: return Mittel == x;
    }
    return false;
}

}  // namespace

void Abbruchstatistik::leeren() {
    Abbruch_Summe_.leeren();
    Abbruch_Anzahl_.leeren();
}

void Abbruchstatistik::lesen(Kanäle& kanäle, const Text& pfad) {
    int kanal = 0;
    try {
        kanal = kanäle.öffnen_zum_Lesen(pfad);
        while (const auto satz = lese_ABR_Satz(kanäle, kanal)) {
            const double sekunden = satz->Sekunden();
            // A full listen is no number either.
            if (sekunden > 0 || satz->Rest == "0") Satz_zählen(satz->Nr, sekunden);
        }
    } catch (const Dateifehler&) {
        // Nobody is told: the statistic shows what there is.
    }
    kanäle.aufgeben(kanal);
}

void Abbruchstatistik::Satz_zählen(Long Nr, double Sekunden) {
    Abbruch_Summe_[Nr] = gerundet(Abbruch_Summe_[Nr] + Sekunden);
    ++Abbruch_Anzahl_[Nr];
}

Abbruchstatistik::Liste Abbruchstatistik::auflisten(const Bestand& bestand, Abbruch_Sicht sicht, Long x) const {
    Liste liste;
    for (Long nr = 1; nr <= bestand.Anzahl_Lieder; ++nr) {
        const Long anzahl = Abbruch_Anzahl_[nr];
        if (anzahl < 1) continue;
        const Long summe = Abbruch_Summe_[nr];
        if (passt(sicht, static_cast<double>(summe) / anzahl, x)) liste.lieder.hinzufügen(Mittel_Text(summe, anzahl), nr);
    }
    liste.lieder.sortieren();
    constexpr double Tag_Sekunden = 86400;
    for (const auto& sortiert : liste.lieder.zeilen()) {
        const Lied& lied = bestand.Lieder[sortiert.Nr];
        const Long sekunden = gerundet(Zahlwert(links(sortiert.text, Mittel_Stellen)));
        liste.zeilen.push_back(Minuten_Sekunden(sekunden / Tag_Sekunden) + ": " + lied.Artist + " - " + lied.Titel);
    }
    return liste;
}

}  // namespace tonkartei
