#include "lieder/hinzufuegen/lieder_hinzufuegen.hpp"

#include <unordered_set>

#include "datenbank/m3u.hpp"
#include "datenbank/version.hpp"
#include "grundlagen/codepage.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

bool ist_MP3_Name(const Text& name) { return groß(rechts(name, 4)) == ".MP3"; }

// The names in a folder. A list may be millions of lines that are no files, and a look at the disk for each takes long.
class Namen_im_Ordner {
public:
    Namen_im_Ordner(Dateisystem& dateien, const Text& ordner) {
        try {
            for (const Dateisystem::Eintrag& eintrag : dateien.auflisten(ordner)) namen_.insert(groß(eintrag.Name));
        } catch (const Dateifehler&) {
            bekannt_ = false;  // one may know a file in it all the same
        }
    }
    bool vielleicht_da(const Text& name) const { return !bekannt_ || namen_.contains(groß(name)); }

private:
    std::unordered_set<Text> namen_;
    bool bekannt_ = true;
};

}  // namespace

void Lieder_hinzufügen::Lieder_hinzufügen_Verzeichnis() {
    if (!modell_.Datenbank_offen) return;
    beginnen();
    const Text pfad = verzeichnis_.Dialog();
    if (pfad.empty()) return aufgeben();
    Verzeichnis_merken(pfad);

    try {
        Ordner_aufnehmen(pfad);
    } catch (const Dateifehler& fehler) {
        liste_.ansicht().informieren(Programmtitel, fehler.mit_Pfad(pfad));
        return aufgeben();
    }
    liste_.activate(Quelle_Dateien, true);
}

void Lieder_hinzufügen::Lieder_hinzufügen_Ablage(const std::vector<Text>& pfade) {
    if (!modell_.Datenbank_offen) return;
    beginnen();
    int aufgenommen = 0;
    for (const Text& pfad : pfade) {
        try {
            const bool Ordner = dateien_.Art_von(pfad) == Pfadart::Ordner;
            aufgenommen += Ordner ? Ordner_aufnehmen(mit_Trenner(pfad)) : Datei_aufnehmen(pfad);
        } catch (const Dateifehler&) {
            // One folder that cannot be read must not keep the others away.
        }
    }
    if (aufgenommen == 0) return aufgeben();
    liste_.activate(Quelle_Dateien, true);
}

int Lieder_hinzufügen::Ordner_aufnehmen(const Text& ordner) {
    int aufgenommen = 0;
    for (const Dateisystem::Eintrag& eintrag : dateien_.auflisten(ordner))
        if (!eintrag.ist_Ordner) aufgenommen += Datei_aufnehmen(ordner + eintrag.Name);
    return aufgenommen;
}

int Lieder_hinzufügen::Datei_aufnehmen(const Text& pfad) {
    if (!ist_MP3_Name(Dateiname_von(pfad)) || Länge_wenn_lesbar(pfad) <= 0) return 0;
    liste_.add_Lied(pfad);
    return 1;
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
        liste_.ansicht().informieren(Programmtitel, fehler.mit_Pfad(datei));
        return aufgeben();
    }
    liste_.activate(Quelle_Dateien, true);
}

// Value by value, so that a path with a comma falls apart; what is no file (comments, pieces) drops out by itself.
void Lieder_hinzufügen::Playlist_lesen(const Text& datei, int nummer) {
    const Text ordner = Ordner_von(datei);
    const Namen_im_Ordner nebenan(dateien_, ordner);
    while (const auto wert = kanäle_.nächster_Rohwert(nummer, längster_Pfad)) {
        Text pfad(*wert);
        // Nothing, or a name that the system would take for a shorter one.
        if (pfad.empty() || pfad.find('\0') != Text::npos) continue;
        if (Ordner_von(pfad).empty() && !nebenan.vielleicht_da(pfad)) continue;
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
