#include "lieder/hinzufuegen/neue_playlist.hpp"

#include <memory>

#include "datenbank/m3u.hpp"
#include "datenbank/version.hpp"
#include "grundlagen/versuchen.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

void Neue_Playlist::erstellen(Begleitung& begleitung) {
    ansicht_.informieren("Playlist erstellen", "Bitte geben sie an, wohin die Playlist gespeichert werden soll.");
    Dateiwahl wahl;
    wahl.speichern = true;
    wahl.filter = Playlist_Filter;
    const Text datei = ansicht_.Datei_wählen(wahl);
    if (datei.empty()) return;
    std::shared_ptr<M3U_Datei> liste;
    try {
        liste = std::make_shared<M3U_Datei>(modell_, kanäle_, datei);
    } catch (const Dateifehler& fehler) {
        ansicht_.informieren(Programmtitel, fehler.mit_Pfad(datei));
        return;
    }
    begleitung.Playlist_Zeile = [liste](Long Nr) { liste->Lied(Nr); };
    begleitung.Abschluss = [this, liste] {
        if (!versuchen([&] { liste->fertig(); }))
            ansicht_.informieren("Playlist erstellen", "Es ist ein Fehler beim erstellen der Playlist aufgetreten!");
    };
}

}  // namespace tonkartei
