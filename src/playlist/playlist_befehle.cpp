// The window's commands: on its list, and on files and collections.
#include <algorithm>
#include <cmath>
#include <utility>

#include "datenbank/m3u.hpp"
#include "datenbank/version.hpp"
#include "liste/listenbereich.hpp"
#include "liste/sortierung.hpp"
#include "oberflaeche/fenster.hpp"
#include "playlist/playlist.hpp"
#include "wiedergabe/winamp/winamp_starter.hpp"

namespace tonkartei {
namespace {

// Digits of a number in the lines that are sorted.
constexpr int Stellen = 8;

}  // namespace

std::vector<Long> Playlist::Nummern() const {
    std::vector<Long> nummern;
    nummern.reserve(Nr_Liste.zeilen().size());
    for (const Text& zeile : Nr_Liste.zeilen()) nummern.push_back(Nummer_von(zeile));
    return nummern;
}

// A number may outlive its song: the collection was changed, or songs went.
Text Playlist::Zeile_von(Long Nr) const {
    const Lied& lied = std::as_const(modell_).Lieder[Nr];
    return vorhanden(Nr) ? Listenzeile(lied, Sortierung::Artist) : Text("---");
}

void Playlist::setzen(const std::vector<Long>& nummern) {
    std::vector<Text> zeilen, ziffern;
    zeilen.reserve(nummern.size());
    ziffern.reserve(nummern.size());
    for (const Long nr : nummern) {
        zeilen.push_back(Zeile_von(nr));
        ziffern.push_back(Zahltext(nr));
    }
    Liste.setzen(std::move(zeilen));
    Nr_Liste.setzen(std::move(ziffern));
    Anzahl_zeigen();
}

void Playlist::Anzahl_zeigen() { Liste_Anzahl.beschriftung(Zahltext(Liste.Anzahl())); }

void Playlist::add_Lied(Long Nr, bool Nachfragen) {
    bool aufnehmen = true;
    const Text nummer = Zahltext(Nr);
    if (Nachfragen) {
        const auto schon = std::count(Nr_Liste.zeilen().begin(), Nr_Liste.zeilen().end(), nummer);
        for (auto i = schon; i > 0; --i)
            aufnehmen = ansicht().fragen("Lied hinzufügen", "Dieses Lied befindet sich bereits in der Playlist." +
                                                                Text(CRCR) + "Wollen sie es trotzdem nochmal hinzufügen?");
    }
    if (!aufnehmen) return;
    Liste.hinzufügen(Zeile_von(Nr));
    Nr_Liste.hinzufügen(nummer);
    Anzahl_zeigen();
    Playlist_gespeichert_ = false;
}

void Playlist::add_Lieder(const std::vector<Long>& Nummern_dazu) {
    if (Nummern_dazu.empty()) return;
    const int gewählt = Liste.gewählt();
    std::vector<Long> alle = Nummern();
    alle.insert(alle.end(), Nummern_dazu.begin(), Nummern_dazu.end());
    setzen(alle);
    if (gewählt >= 0) Liste.wähle(gewählt);
    Playlist_gespeichert_ = false;
}

void Playlist::aktualisieren() {
    if (!geladen()) return;
    const int gewählt = Liste.gewählt();
    setzen(Nummern());
    if (gewählt >= 0) Liste.wähle(gewählt);
}

void Playlist::aktuelles_löschen() {
    const int zeile = Liste.gewählt();
    if (zeile < 0) return;
    Liste.entfernen(zeile);
    Nr_Liste.entfernen(zeile);
    Liste.wähle(std::min(zeile, Liste.Anzahl() - 1));
    Anzahl_zeigen();
    Playlist_gespeichert_ = false;
}

void Playlist::alles_löschen() {
    if (Liste.Anzahl() == 0) return;
    if (Liste.Anzahl() > 1) {
        if (!ansicht().fragen("Lieder löschen",
                              "Wollen sie wirklich alle " + Zahltext(Liste.Anzahl()) + " Lieder aus der Playliste löschen?"))
            return;
    }
    setzen({});
    Playlist_gespeichert_ = false;
}

void Playlist::Neu() {
    if (!Playlist_gespeichert_) {
        const Antwort antwort =
            ansicht().fragen_oder_abbrechen("neue Playlist", "Wollen sie die aktuelle Playlist noch speichern?");
        if (antwort == Antwort::Abbrechen) return;
        if (antwort == Antwort::Ja) speichern();
    }
    alles_löschen();
    // Even where the user has just refused to have it emptied.
    Playlist_gespeichert_ = true;
}

void Playlist::verschieben(int schritt) {
    const int von = Liste.gewählt(), nach = von + schritt;
    if (von < 0 || nach < 0 || nach >= Liste.Anzahl()) return;
    for (Listenfeld* liste : {&Liste, &Nr_Liste}) {
        const Text zeile = liste->zeile(von);
        liste->zeile(von, liste->zeile(nach));
        liste->zeile(nach, zeile);
    }
    Liste.wähle(nach);
    Playlist_gespeichert_ = false;
}

void Playlist::sortieren() {
    if (Liste.Anzahl() == 0) return;
    Sortier_Liste ordnung;
    for (int i = 0; i < Liste.Anzahl(); ++i) ordnung.hinzufügen(Liste.zeile(i), {}, Nummer_von(Nr_Liste.zeile(i)), Stellen);
    std::vector<Long> nummern;
    for (const long long nr : ordnung.sortierte_Nummern()) nummern.push_back(als_Long(nr));
    setzen(nummern);
    Playlist_gespeichert_ = false;
}

void Playlist::Dateigröße() {
    long long KByte = 0;
    for (const Long nr : Nummern())
        if (vorhanden(nr)) KByte += modell_.Lieder[nr].Größe;
    const auto MByte = static_cast<long long>(std::nearbyint(static_cast<double>(KByte) / 1024.0));
    // The box would lie behind a window that is always in front.
    const bool oben = immer_oben();
    immer_oben(false);
    ansicht().informieren("Dateigröße der Playlist", "Die Lieder in der Liste benötigen " + Zahl_mit_Punkten(KByte) +
                                                         " kB (" + Zahltext(MByte) + " MB) Speicherplatz.");
    immer_oben(oben);
}

void Playlist::starten() {
    if (Liste.Anzahl() == 0) return;
    const Text datei = einstellungen_.WinAmp_Verzeichnis + Playlist_Datei_Name;
    if (m3u_.Playlist_schreiben(datei, Nummern())) starter_.starte_WinAmp_Liste(datei);
}

// That the file must exist is asked of the dialog here, too, and means nothing when saving.
void Playlist::speichern() {
    if (Liste.Anzahl() == 0) return;
    Dateiwahl wahl;
    wahl.speichern = true;
    wahl.filter = Playlist_Filter;
    const Text datei = ansicht().Datei_wählen(wahl);
    if (!datei.empty() && m3u_.Playlist_schreiben(datei, Nummern())) Playlist_gespeichert_ = true;
}

void Playlist::öffnen() {
    if (!modell_.Datenbank_offen || modell_.Datenbank_Verzeichnis.empty()) return;
    Dateiwahl wahl;
    wahl.filter = Playlist_Filter;
    wahl.muss_existieren = true;
    const Text datei = ansicht().Datei_wählen(wahl);
    if (datei.empty() || !dateien_.Datei_da(datei)) return;
    M3U::Inhalt inhalt;
    try {
        inhalt = m3u_.lesen(datei);
    } catch (const Dateifehler& fehler) {
        ansicht().informieren(Programmtitel, fehler.mit_Pfad(datei));
        return;
    }
    if (!inhalt.Nummern.empty()) setzen(inhalt.Nummern);
    const int anzahl = Liste.Anzahl();
    // A list without a song of the collection leaves the lines as they were, and their number is told all the same.
    ansicht().informieren("Playlist öffnen",
                          (anzahl == 1 ? Text("Es wurde 1 Lied") : "Es wurden " + Zahltext(anzahl) + " Lieder") +
                              " aus dieser Datenbank in der Playlist gefunden.");
    Playlist_gespeichert_ = anzahl == inhalt.Zeilen;
}

void Playlist::erstelle_DB_Liste() {
    const std::vector<Long> nummern = Nummern();
    // Song numbers must not stand where albums are chosen.
    if (datenbankliste_.Datenbank_Modus.wert() != 0) datenbankliste_.Datenbank_Modus.wert(0);
    datenbankliste_.Nr_Liste_setzen({nummern.begin(), nummern.end()});
    datenbankliste_.erstelle_Liste_von_Nr_Liste();
}

// Numbers that are no songs any more have no file to take along. While the main window is locked its commands cannot take
// the collection away from under a dialog, and neither can this one.
void Playlist::erstelle_Datenbank() {
    if (Liste.Anzahl() == 0 || !modell_.Datenbank_offen || !datenbankliste_.Liste.fenster().aktiv()) return;
    if (!Datenbank_vorbereiten || !Datenbank_anlegen) return;
    std::vector<Auszug> auszug;
    for (const Long nr : Nummern()) {
        if (!vorhanden(nr)) continue;
        const Lied& lied = modell_.Lieder[nr];
        auszug.push_back({Listenzeile(lied, Sortierung::Artist), modell_.Lied_Pfad(nr), lied.Kategorie, lied.Größe});
    }
    Datenbank_vorbereiten(auszug);
    Playlist_gespeichert_ = true;
    entladen();
    Datenbank_anlegen();
}

}  // namespace tonkartei
