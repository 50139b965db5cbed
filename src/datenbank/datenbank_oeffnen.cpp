#include "datenbank/datenbank_oeffnen.hpp"

#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

Datenbank_öffnen::Datenbank_öffnen(Ansicht& a, const Einstellungen& einstellungen, Dateisystem& dateien)
    : Wartedialog(a, "Datenbank_öffnen", "Datenbank wählen"), einstellungen_(einstellungen), dateien_(dateien) {
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    Liste.Klick.verbinden([this] { Pfad.text(Liste.gewählter_Text()); });
    Liste.Doppelklick.verbinden([this] { bestätigen(); });
    Pfad_wählen.Klick.verbinden([this] {
        const Text pfad = ansicht().Verzeichnis_wählen("Verzeichnis der Tonkartei:");
        if (!pfad.empty()) Pfad.text(mit_Trenner(pfad));
    });
    Ok.Klick.verbinden([this] { bestätigen(); });
    Abbruch.Klick.verbinden([this] { entladen(); });
    Liste.tooltip("Die zuletzt geöffneten Datenbanken");
    Pfad.tooltip("Verzeichnis der Datenbank");
    Pfad_wählen.tooltip("sucht das Verzeichnis der Datenbank");
}

Knoten Datenbank_öffnen::anordnung() {
    return Spalte({Liste_Text, Knoten(Liste).zeilen(8).zeichen(50).dehnen(1, 1),
                   Zeile({Knoten(Pfad).dehnen(1), Pfad_wählen}), Zeile({Feder(), Ok, Abbruch})})
        .rand(180);
}

void Datenbank_öffnen::beim_Laden() {
    std::vector<Text> zeilen;
    for (int i = 1; i <= einstellungen_.Datenbank_Liste_Anzahl; ++i) zeilen.push_back(einstellungen_.Datenbank_Liste[i]);
    Liste.setzen(std::move(zeilen));
}

void Datenbank_öffnen::bestätigen() {
    const Text pfad = Pfad.text();
    if (!pfad.empty()) {
        if (dateien_.Ordner_da(pfad)) return antworten(mit_Trenner(pfad));
        ansicht().informieren("Datenbank wählen",
                              "Dieses Verzeichnis wurde nicht gefunden, oder es ist zur Zeit kein Zugriff darauf möglich!");
    }
    entladen();
}

Text Datenbank_öffnen::Dialog() {
    return fragen([] {}, Liste).value_or(Text{});
}

}  // namespace tonkartei
