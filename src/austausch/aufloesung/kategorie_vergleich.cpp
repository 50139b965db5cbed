#include "austausch/aufloesung/kategorie_vergleich.hpp"

#include <map>
#include <utility>

#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "wiedergabe/winamp/winamp_starter.hpp"

namespace tonkartei {

std::vector<Kategorie_Unterschied> Kategorien_vergleichen(const Bestand& eigene, const Bestand& quelle,
                                                          Fortschritts_Fenster& fortschritt) {
    std::map<std::pair<std::string_view, std::string_view>, Byte> erste;
    for (Long nr = 1; nr <= quelle.Anzahl_Lieder; ++nr) {
        const Lied& lied = quelle.Lieder[nr];
        // A number without a category is the first one, as it would be if that collection were opened.
        const bool da = lied.Kategorie >= 1 && lied.Kategorie <= quelle.Anzahl_Kategorien;
        erste.try_emplace({lied.Titel, lied.Artist}, da ? lied.Kategorie : Byte{1});
    }
    const Fortschritts_Ende ende(fortschritt);
    fortschritt.Text_setzen("Kategorien vergleichen...");
    std::vector<Kategorie_Unterschied> unterschiede;
    for (Long nr = 1; nr <= eigene.Anzahl_Lieder; ++nr) {
        const Lied& lied = eigene.Lieder[nr];
        const auto dort = erste.find({lied.Titel, lied.Artist});
        if (dort != erste.end() && dort->second != lied.Kategorie) unterschiede.push_back({nr, dort->second});
        fortschritt.anzeigen(Prozent(nr, eigene.Anzahl_Lieder));
    }
    return unterschiede;
}

Kategorie_vergleich::Kategorie_vergleich(Ansicht& ansicht, Modell& modell, WinAmp_Starter& starter)
    : Fenster(ansicht, "Kategorie_vergleich", "Kategorien vergleichen mit Datenbank"), modell_(modell), starter_(starter) {
    Nr_Liste.unsichtbarer_Helfer = true;
    Nr_Liste.sichtbar(false);
    Quelle.wie_Daten = Ziel.wie_Daten = true;
    Quelle.eingerahmt = Ziel.eingerahmt = true;
    Liste.tooltip("Die Lieder, die in der anderen Datenbank eine andere Kategorie haben");
    Kategorie_stimmt.tooltip("Das Lied bekommt die Kategorie der anderen Datenbank.");
    anhören.tooltip("Das gewählte Lied mit WinAmp abspielen");
    Ok.tooltip("Den Vergleich beenden");
    Vorgabeknopf = Abbruchknopf = &Ok;
    Liste.Klick.verbinden([this] { Zeile_zeigen(); });
    Kategorie_stimmt.Klick.verbinden([this] { Kategorie_übernehmen(); });
    anhören.Klick.verbinden([this] {
        if (const auto* unterschied = gewählter()) starter_.starte_WinAmp_Datei(modell_.Lied_Pfad(unterschied->Nr));
    });
    Ok.Klick.verbinden([this] { entladen(); });
}

void Kategorie_vergleich::anzeigen(std::vector<Kategorie_Unterschied> unterschiede) {
    unterschiede_ = std::move(unterschiede);
    zeigen_modal(&Liste);
}

Knoten Kategorie_vergleich::anordnung() {
    return Spalte({Liste_Text, Knoten(Liste).zeichen(60).zeilen(14).dehnen(1, 1),
                   Gitter(2, {Quelle_Text, Knoten(Quelle).zeichen(30).dehnen(1), Ziel_Text,
                              Knoten(Ziel).zeichen(30).dehnen(1)}),
                   Zeile({Kategorie_stimmt, anhören, Feder(), Knoten(Ok).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void Kategorie_vergleich::beim_Laden() {
    std::vector<Text> zeilen, nummern;
    for (const Kategorie_Unterschied& unterschied : unterschiede_) {
        const Lied& lied = modell_.Lieder[unterschied.Nr];
        zeilen.push_back(lied.Artist + " - " + lied.Titel);
        nummern.push_back(Zahl_mit_Nullen(unterschied.Nr, 8));
    }
    Liste.setzen(std::move(zeilen));
    Nr_Liste.setzen(std::move(nummern));
}

const Kategorie_Unterschied* Kategorie_vergleich::gewählter() const {
    return Liste.gewählt() < 0 ? nullptr : &unterschiede_[static_cast<std::size_t>(Liste.gewählt())];
}

void Kategorie_vergleich::Zeile_zeigen() {
    const auto* unterschied = gewählter();
    // The tables are equal, but a song may bear a number that no category has.
    const auto name = [this](Byte k) { return k >= 1 && k <= modell_.Anzahl_Kategorien ? modell_.Kategorien[k] : Text{}; };
    Quelle.beschriftung(unterschied ? name(unterschied->Quelle) : Text{});
    Ziel.beschriftung(unterschied ? name(modell_.Lieder[unterschied->Nr].Kategorie) : Text{});
}

void Kategorie_vergleich::Kategorie_übernehmen() {
    const auto* unterschied = gewählter();
    if (unterschied == nullptr) return;
    modell_.Lieder[unterschied->Nr].Kategorie = unterschied->Quelle;
    const int zeile = Liste.gewählt();
    unterschiede_.erase(unterschiede_.begin() + zeile);
    Nr_Liste.entfernen(zeile);
    Liste.entfernen(zeile);
    // The next one moves up under the hand.
    if (Liste.Anzahl() > 0)
        Liste.wähle(std::min(zeile, Liste.Anzahl() - 1));
    else
        Zeile_zeigen();
}

}  // namespace tonkartei
