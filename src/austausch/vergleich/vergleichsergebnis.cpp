#include "austausch/vergleich/vergleichsergebnis.hpp"

#include <algorithm>
#include <map>

#include "austausch/vergleich/anforderungsdatei.hpp"
#include "austausch/zieldatei.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

constexpr const char* Titel_Anforderung = "Anforderungsdatei erstellen";

}  // namespace

Vergleichsergebnis::Vergleichsergebnis(tonkartei::Ansicht& ansicht, Dateisystem& dateien, Anforderungsdatei& datei)
    : Vergleichsfenster(ansicht, "Vergleichsergebnis", "Vergleichsergebnis"), dateien_(dateien), datei_(datei) {
    angeforderte.unsichtbarer_Helfer = true;
    angeforderte.sichtbar(false);
    anfordern.tooltip("Das gewählte Lied anfordern");
    alle_anfordern.tooltip("Alle Lieder der gezeigten Liste anfordern");
    nicht_anfordern.tooltip("Das gewählte Lied doch nicht anfordern");
    keine_Anfordern.tooltip("Alle Anforderungen zurücknehmen");
    Anfrderungsdatei.tooltip("Die Anforderungen als Datei für den Besitzer der anderen Datenbank");
    Ok.tooltip("Den Vergleich beenden");
    Abbruchknopf = &Ok;

    anfordern.Klick.verbinden([this] {
        if (Liste.gewählt() >= 0) aufnehmen({gewählte_Zeile()});
    });
    Liste.Doppelklick.verbinden([this] {
        if (Liste.gewählt() >= 0) aufnehmen({gewählte_Zeile()});
    });
    alle_anfordern.Klick.verbinden([this] { aufnehmen(gezeigte().zeilen()); });
    nicht_anfordern.Klick.verbinden([this] {
        const int zeile = AListe.gewählt();
        if (zeile < 0) return;
        angeforderte.entfernen(zeile);
        AListe.entfernen(zeile);
        if (AListe.Anzahl() > 0) AListe.wähle(std::min(zeile, AListe.Anzahl() - 1));
        Anzahl_zeigen();
    });
    keine_Anfordern.Klick.verbinden([this] {
        angeforderte.leeren();
        AListe.leeren();
        Anzahl_zeigen();
    });
    Anfrderungsdatei.Klick.verbinden([this] { Datei_erstellen(); });
    Ok.Klick.verbinden([this] { entladen(); });
}

Knoten Vergleichsergebnis::anordnung() {
    return Spalte({Zeile({Listenknoten(),
                          Spalte({Feder(0, 1), anfordern, alle_anfordern, nicht_anfordern, keine_Anfordern, Feder(0, 1)}),
                          Spalte({AListe_Text, Knoten(AListe).zeichen(46).zeilen(14).dehnen(1, 1),
                                  Zeile({AListe_Anzahl_Text, Knoten(AListe_Anzahl).zeichen(5), Feder()})})
                              .dehnen(1, 1)})
                       .dehnen(1, 1),
                   Zeile({Feder(), Anfrderungsdatei, Knoten(Ok).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void Vergleichsergebnis::aufnehmen(const std::vector<Text>& zeilen) {
    std::map<Long, Text> lieder;
    for (int i = 0; i < AListe.Anzahl(); ++i) lieder.emplace(gerundet(Zahlwert(angeforderte.zeile(i))), AListe.zeile(i));
    for (const Text& zeile : zeilen) lieder.emplace(Quell_Nr(zeile), Vergleichsname(zeile));
    std::vector<Text> nummern, namen;
    for (auto& [nr, name] : lieder) {
        nummern.push_back(Zahltext(nr));
        namen.push_back(std::move(name));
    }
    angeforderte.setzen(std::move(nummern));
    AListe.setzen(std::move(namen));
    Anzahl_zeigen();
}

void Vergleichsergebnis::Anzahl_zeigen() { AListe_Anzahl.beschriftung(Zahltext(AListe.Anzahl())); }

void Vergleichsergebnis::Datei_erstellen() {
    if (AListe.Anzahl() == 0) {
        ansicht().informieren(Titel_Anforderung, "Es sind keine Lieder angefordert!");
        return;
    }
    const Text datei = Zieldatei_wählen(ansicht(), dateien_, Anforderungsdatei_Filter, Titel_Anforderung);
    if (datei.empty()) return;
    try {
        datei_.schreiben(datei, angeforderte.zeilen());
    } catch (const Dateifehler& fehler) {
        ansicht().informieren(Programmtitel, fehler.mit_Pfad(datei));
    }
}

}  // namespace tonkartei
