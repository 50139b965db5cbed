#include "lieder/neue_playlist.hpp"

#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

void Neue_Playlist::erstellen(Begleitung& begleitung) {
    ansicht_.informieren("Playlist erstellen", "Bitte geben sie an, wohin die Playlist gespeichert werden soll.");
    Dateiwahl wahl;
    wahl.speichern = true;
    wahl.filter = Playlist_Filter;
    const Text datei = ansicht_.Datei_wählen(wahl);
    if (datei.empty()) return;
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Schreiben(datei);
    } catch (const Dateifehler& fehler) {
        ansicht_.informieren(Programmtitel, fehler.Beschreibung() + Text(CRCR) + anzeigbar(datei));
        return;
    }
    begleitung.Playlist_Zeile = [this, nummer](Long Nr) { kanäle_.schreibe_Rohzeile(nummer, modell_.Lied_Pfad(Nr)); };
    begleitung.Abschluss = [this, nummer] {
        try {
            kanäle_.schließen(nummer);
        } catch (const Dateifehler&) {
            // Lines wait in the buffer, so a full disk may show only here.
            kanäle_.aufgeben(nummer);
            ansicht_.informieren("Playlist erstellen", "Es ist ein Fehler beim erstellen der Playlist aufgetreten!");
        }
    };
}

}  // namespace tonkartei
