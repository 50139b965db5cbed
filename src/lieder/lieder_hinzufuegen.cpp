#include "lieder/lieder_hinzufuegen.hpp"

#include "datenbank/version.hpp"
#include "grundlagen/codepage.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

bool ist_MP3_Name(const Text& name) { return groß(rechts(name, 4)) == ".MP3"; }

}  // namespace

void Lieder_hinzufügen::Lieder_hinzufügen_Verzeichnis() {
    if (!modell_.Datenbank_offen) return;
    if (liste_.Hauptfenster_sperren) liste_.Hauptfenster_sperren(true);
    liste_.Reset();
    const auto aufgeben = [this] {
        liste_.entladen();
        if (liste_.Liste_fokussieren) liste_.Liste_fokussieren();
    };
    const Text pfad = verzeichnis_.Dialog();
    if (pfad.empty()) return aufgeben();
    Verzeichnis_merken(pfad);

    std::vector<Dateisystem::Eintrag> einträge;
    try {
        einträge = dateien_.auflisten(pfad);
    } catch (const Dateifehler& fehler) {
        liste_.ansicht().informieren(Programmtitel, fehler.Beschreibung() + "\r\r" + anzeigbar(pfad));
        return aufgeben();
    }
    for (const Dateisystem::Eintrag& eintrag : einträge)
        if (!eintrag.ist_Ordner && ist_MP3_Name(eintrag.Name) && hat_Inhalt(pfad + eintrag.Name))
            liste_.add_Lied(pfad + eintrag.Name);
    liste_.activate(Quelle_Dateien, true);
}

// The newest goes first. One that is known already changes places with the first; the others stay where they are.
void Lieder_hinzufügen::Verzeichnis_merken(const Text& pfad) {
    auto& liste = einstellungen_.Zuletzt_hinzugefügte_Verzeichnisse;
    Byte& anzahl = einstellungen_.Verzeichnis_Anzahl;
    for (int i = 1; i <= anzahl; ++i) {
        if (liste[i] != pfad) continue;
        std::swap(liste[i], liste[1]);
        return;
    }
    if (anzahl < Verzeichnisse_maximal) ++anzahl;
    for (int i = anzahl; i > 1; --i) liste[i] = liste[i - 1];
    liste[1] = pfad;
}

// False also for what cannot be opened.
bool Lieder_hinzufügen::hat_Inhalt(const Text& pfad) const {
    try {
        const Dateisystem::Griff griff = dateien_.öffnen(pfad, Dateimodus::lesen);
        const std::uint64_t länge = dateien_.Länge(griff);
        dateien_.schließen(griff);
        return länge > 0;
    } catch (const Dateifehler&) {
        return false;
    }
}

}  // namespace tonkartei
