#include "ausgabe/liedausgabe.hpp"

#include <algorithm>

#include "grundlagen/versuchen.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

std::size_t Ausgabeform::Breite() const {
    const auto letzte = std::find_if(Spalten.rbegin(), Spalten.rend(), [](Spaltenart s) { return s != Spaltenart::keine; });
    return letzte == Spalten.rend() ? Spalten.size() : static_cast<std::size_t>(Spalten.rend() - letzte);
}

Liedausgabe::Liedausgabe(const Modell& modell, Dateisystem& dateien, Kanäle& kanäle, Fortschritts_Fenster& fortschritt)
    : modell_(modell), dateien_(dateien), kanäle_(kanäle), fortschritt_(fortschritt) {}

void Liedausgabe::schreiben(const Text& datei, const Ausgabeform& form, const std::vector<Long>& nummern) {
    int kanal = 0;
    if (!versuchen([&] { kanal = kanäle_.öffnen_zum_Schreiben(datei); })) return;
    versuchen([&] { Zeilen_schreiben(kanal, form, nummern); });
    versuchen([&] { kanäle_.schließen(kanal); });
    kanäle_.aufgeben(kanal);
}

void Liedausgabe::Zeilen_schreiben(int kanal, const Ausgabeform& form, const std::vector<Long>& nummern) {
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen("Liedernamen in Datei ausgeben...");
    const std::size_t breite = form.Breite();
    for (std::size_t i = 0; i < nummern.size(); ++i) {
        Text zeile;
        for (std::size_t s = 0; s < breite; ++s) {
            if (s > 0) zeile += form.Trenner;
            zeile += Feld_von(nummern[i], form.Spalten.at(s));
        }
        kanäle_.schreibe_Zeile(kanal, zeile);
        fortschritt_.anzeigen(Prozent(static_cast<double>(i + 1), static_cast<double>(nummern.size())));
    }
}

Text Liedausgabe::Feld_von(Long Nr, Spaltenart spalte) const {
    const Lied& lied = modell_.Lieder[Nr];
    switch (spalte) {
        case Spaltenart::Artist: return lied.Artist;
        case Spaltenart::Titel: return lied.Titel;
        case Spaltenart::Kategorie:
            // A special list may hold numbers that no song has any more.
            return lied.Kategorie >= 1 && lied.Kategorie <= Kategorien_maximal ? modell_.Kategorien[lied.Kategorie] : Text{};
        case Spaltenart::Anzahl: return Zahltext(lied.Anzahl);
        case Spaltenart::Dateigröße: return Zahltext(lied.Größe) + " kB";
        case Spaltenart::Datum: {
            const Text pfad = modell_.Lied_Pfad(Nr);
            const auto datum = dateien_.Änderungszeit(pfad);
            if (!datum) throw Dateifehler(53, pfad);
            return mittleres_Datum(*datum);
        }
        case Spaltenart::keine: break;
    }
    return {};
}

}  // namespace tonkartei
