#include "lieder/hinzufuegen/verzeichnis_add.hpp"

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Verzeichnis_add::Verzeichnis_add(Ansicht& ansicht, Dateisystem& dateien, const Einstellungen& einstellungen)
    : Wartedialog(ansicht, "Verzeichnis_add", "Verzeichnis hinzufügen"), dateien_(dateien), einstellungen_(einstellungen) {
    Pfad.tooltip("Das Verzeichnis, dessen MP3-Dateien hinzugefügt werden sollen.");
    Pfad_wählen.tooltip("Ein Verzeichnis aussuchen und hinzufügen.");
    Liste.tooltip("Ein Klick übernimmt den Pfad, ein Doppelklick fügt das Verzeichnis hinzu.");
    Ok.tooltip("Das angegebene Verzeichnis hinzufügen.");
    Abbruch.tooltip("Nichts hinzufügen.");
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;

    // The lines are for the eye; the path itself, byte for byte, stands in the settings.
    Liste.Klick.verbinden([this] { Pfad.text(einstellungen_.Zuletzt_hinzugefügte_Verzeichnisse[Liste.gewählt() + 1]); });
    Liste.Doppelklick.verbinden([this] {
        if (Liste.gewählt() >= 0) bestätigen();
    });
    Pfad_wählen.Klick.verbinden([this] {
        const Text gewählt = this->ansicht().Verzeichnis_wählen("Verzeichnis hinzufügen:");
        if (gewählt.empty()) return;
        Pfad.text(gewählt);
        bestätigen();
    });
    Ok.Klick.verbinden([this] { bestätigen(); });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

Text Verzeichnis_add::Dialog() {
    return fragen([] {}, Pfad).value_or(Text{});
}

Knoten Verzeichnis_add::anordnung() {
    return Spalte({Pfad_Text, Zeile({Knoten(Pfad).zeichen(48).dehnen(1), Pfad_wählen}), Liste_Text,
                   Knoten(Liste).zeichen(48).zeilen(10).dehnen(1, 1),
                   Zeile({Feder(), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void Verzeichnis_add::beim_Laden() {
    std::vector<Text> zeilen;
    for (int i = 1; i <= einstellungen_.Verzeichnis_Anzahl; ++i)
        zeilen.push_back(anzeigbar(einstellungen_.Zuletzt_hinzugefügte_Verzeichnisse[i]));
    Liste.setzen(std::move(zeilen));
}

void Verzeichnis_add::bestätigen() {
    const Text pfad = Pfad.text();
    if (!pfad.empty()) {
        if (dateien_.Ordner_da(pfad)) return antworten(mit_Trenner(pfad));
        ansicht().informieren("Verzeichnis hinzufügen",
                              "Dieses Verzeichnis wurde nicht gefunden, oder es ist zur Zeit kein Zugriff darauf möglich!");
    }
    entladen();
}

}  // namespace tonkartei
