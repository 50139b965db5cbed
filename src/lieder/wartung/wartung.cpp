#include "lieder/wartung/wartung.hpp"

#include <cmath>
#include <tuple>

#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"

namespace tonkartei {

Text Mittelwert_Text(double wert) {
    // Halves of the last digit go away from zero here, as everywhere in shown decimals.
    const auto zehntel = static_cast<long long>(std::round(std::fabs(wert) * 10));
    const Text ganze = zehntel >= 10 ? Zahltext(zehntel / 10) : "";
    const Text rest = zehntel % 10 != 0 ? Zahltext(zehntel % 10) : "";
    return (wert < 0 && zehntel != 0 ? "-" : "") + ganze + "," + rest;
}

void Wartung::Lieder_Namen_einlesen() {
    if (!modell_.Datenbank_offen) return;
    if (!ansicht().fragen("Lieder-Daten einlesen", "Wollen sie wirklich bei allen Liedern die Daten neu einlesen?")) return;
    einlesen_.alle_Lieder_einlesen();
    liste_.aktualisiere_Liste();
}

void Wartung::Liste_einlesen() {
    if (!modell_.Datenbank_offen) return;
    const std::vector<Long> nummern = liste_.Lieder_in_Liste();
    if (nummern.empty()) return;
    if (nummern.size() > 1) {
        if (!ansicht().fragen("Name/Größe einlesen", "Wollen sie wirklich bei allen " +
                                                         Zahltext(static_cast<long long>(nummern.size())) +
                                                         " Liedern in der Liste die Daten neu einlesen?"))
            return;
    }
    einlesen_.einlesen(nummern, "Lieder-Namen, -Größen und -Zeiten neu einlesen...");
    liste_.aktualisiere_Liste();
}

void Wartung::doppelte_anzeigen(Zwillingsart Art) {
    if (!modell_.Datenbank_offen) return;
    std::vector<std::optional<Zeitpunkt>> zeiten;
    std::vector<long long> nummern;
    {
        const Fortschritts_Ende ende(fortschritt_);
        const auto weiter = [this](Long nr) { fortschritt_.anzeigen(Prozent(nr, modell_.Anzahl_Lieder)); };
        if (Art == Zwillingsart::Datum_Größe) {
            fortschritt_.Text_setzen("Erstellungsdatum der MP3-Dateien einlesen...");
            for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) {
                zeiten.push_back(dateien_.Änderungszeit(modell_.Lied_Pfad(nr)));
                weiter(nr);
            }
        }
        const Text wort = Art == Zwillingsart::Artisten ? "Artisten " : Art == Zwillingsart::Titel ? "Titel " : "";
        fortschritt_.Text_setzen("doppelte " + wort + "suchen...");
        nummern = doppelte_suchen(modell_, Art, zeiten, weiter);
    }
    zeigen(nummern);
}

void Wartung::Durchschnitts_Anzahl() {
    if (!modell_.Datenbank_offen) return;
    const std::vector<Long> nummern = liste_.Lieder_in_Liste();
    if (nummern.empty()) return;
    double summe = 0;
    for (const Long nr : nummern) summe += modell_.Lieder[nr].Anzahl;
    const auto anzahl = static_cast<long long>(nummern.size());
    ansicht().informieren("Durchschnitts-Anzahl", "Die " + Zahltext(anzahl) + " Lieder wurden im Durchschnitt " +
                                                      Mittelwert_Text(summe / static_cast<double>(anzahl)) + " mal gehört.");
}

void Wartung::Lieder_ab_Datum() {
    if (!modell_.Datenbank_offen) return;
    const auto datum = datum_.eingeben();
    if (!datum) return;
    const bool nur_gewählte = ansicht().fragen("Lieder ab Datum", "Nur in den aktuell gewählten Kategorien suchen?");
    const auto tag = [](const Zeitpunkt& zeit) { return std::tuple(zeit.Jahr, zeit.Monat, zeit.Tag); };
    std::vector<long long> nummern;
    {
        const Fortschritts_Ende ende(fortschritt_);
        fortschritt_.Text_setzen("Lieder ab Datum " + mittleres_Datum(*datum) + " suchen...");
        for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) {
            fortschritt_.anzeigen(Prozent(nr, modell_.Anzahl_Lieder));
            if (nur_gewählte && !liste_.zeigt_Kategorie(1) && !liste_.zeigt_Kategorie(modell_.Lieder[nr].Kategorie))
                continue;
            const auto zeit = dateien_.Änderungszeit(modell_.Lied_Pfad(nr));
            if (zeit && tag(*zeit) >= tag(*datum)) nummern.push_back(nr);
        }
    }
    zeigen(nummern);
}

void Wartung::zeigen(const std::vector<long long>& nummern) {
    // Song numbers must not stand where albums are chosen.
    if (liste_.Datenbank_Modus.wert() != 0) liste_.Datenbank_Modus.wert(0);
    liste_.Nr_Liste_setzen(nummern);
    liste_.erstelle_Liste_von_Nr_Liste();
}

}  // namespace tonkartei
