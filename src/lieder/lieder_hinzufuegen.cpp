#include "lieder/lieder_hinzufuegen.hpp"

#include "datenbank/m3u.hpp"
#include "datenbank/version.hpp"
#include "grundlagen/codepage.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

constexpr int Fehler_Dateiende = 62;

bool ist_MP3_Name(const Text& name) { return groß(rechts(name, 4)) == ".MP3"; }

}  // namespace

void Lieder_hinzufügen::Lieder_hinzufügen_Verzeichnis() {
    if (!modell_.Datenbank_offen) return;
    beginnen();
    const Text pfad = verzeichnis_.Dialog();
    if (pfad.empty()) return aufgeben();
    Verzeichnis_merken(pfad);

    std::vector<Dateisystem::Eintrag> einträge;
    try {
        einträge = dateien_.auflisten(pfad);
    } catch (const Dateifehler& fehler) {
        liste_.ansicht().informieren(Programmtitel, fehler.Beschreibung() + Text(CRCR) + anzeigbar(pfad));
        return aufgeben();
    }
    for (const Dateisystem::Eintrag& eintrag : einträge)
        if (!eintrag.ist_Ordner && ist_MP3_Name(eintrag.Name) && Länge_wenn_lesbar(pfad + eintrag.Name) > 0)
            liste_.add_Lied(pfad + eintrag.Name);
    liste_.activate(Quelle_Dateien, true);
}

void Lieder_hinzufügen::Lieder_hinzufügen_Playlist() {
    if (!modell_.Datenbank_offen) return;
    beginnen();
    Dateiwahl wahl;
    wahl.filter = Playlist_Filter;
    wahl.muss_existieren = true;
    const Text datei = liste_.ansicht().Datei_wählen(wahl);
    if (datei.empty()) return aufgeben();
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Lesen(datei);
        Playlist_lesen(datei, nummer);
        kanäle_.schließen(nummer);
    } catch (const Dateifehler& fehler) {
        kanäle_.aufgeben(nummer);
        liste_.ansicht().informieren(Programmtitel, fehler.Beschreibung() + Text(CRCR) + anzeigbar(datei));
        return aufgeben();
    }
    liste_.activate(Quelle_Dateien, true);
}

// Value by value, so that a path with a comma falls apart; what is no file (comments, pieces) drops out by itself.
void Lieder_hinzufügen::Playlist_lesen(const Text& datei, int nummer) {
    const Text ordner = Ordner_von(datei);
    while (!kanäle_.am_Ende(nummer)) {
        Text pfad;
        try {
            pfad = kanäle_.lese_Rohwert(nummer);
        } catch (const Dateifehler& fehler) {
            if (fehler.Nummer() != Fehler_Dateiende) throw;
            return;  // blanks alone before the end
        }
        if (pfad.find('\0') != Text::npos) continue;  // would name another file than it says
        if (!ist_absolut(pfad)) pfad.insert(0, ordner);
        // Asked first, since a failed opening costs far more, and a list may be nothing but lines that are no files.
        if (dateien_.Datei_da(pfad) && Länge_wenn_lesbar(pfad) >= 0) liste_.add_Lied(pfad);
    }
}

void Lieder_hinzufügen::beginnen() {
    if (liste_.Hauptfenster_sperren) liste_.Hauptfenster_sperren(true);
    liste_.Reset();
}

void Lieder_hinzufügen::aufgeben() {
    liste_.entladen();
    if (liste_.Liste_fokussieren) liste_.Liste_fokussieren();
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

std::int64_t Lieder_hinzufügen::Länge_wenn_lesbar(const Text& pfad) const {
    try {
        const Dateisystem::Griff griff = dateien_.öffnen(pfad, Dateimodus::lesen);
        const std::uint64_t länge = dateien_.Länge(griff);
        dateien_.schließen(griff);
        return static_cast<std::int64_t>(länge);
    } catch (const Dateifehler&) {
        return -1;
    }
}

}  // namespace tonkartei
