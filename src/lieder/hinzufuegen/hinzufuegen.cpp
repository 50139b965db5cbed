#include "lieder/hinzufuegen/hinzufuegen.hpp"

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienraum.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {

Hinzufügen::Hinzufügen(Datenbankraum& d, MP3_TagHead& mp3, Albenraum& alben, Kategorienraum& kategorien,
                       Wiedergabe& wiedergabe)
    : tag_ändern(d.haus.ansicht, mp3),
      neues_album(d.haus.modell, alben.alben, alben.datei, d.haus.ansicht),
      neue_playlist(d.haus.modell, d.haus.kanäle, d.haus.ansicht),
      zuordnung(d.haus.ansicht, d.haus.modell),
      übernehmen(d.haus.modell, d.haus.plattform.Dateisystem, d.haus.plattform.Shell, mp3, d.haus.fortschritt),
      eintragen(d.haus.modell, mp3, kategorien.wahl),
      übernahme(d.haus.ansicht, d.haus.modell, d.haus.plattform.Dateisystem, übernehmen, eintragen),
      liste(d.haus.ansicht, d.haus.plattform.Dateisystem, mp3, d.haus.fortschritt, übernahme),
      verzeichnis(d.haus.ansicht, d.haus.plattform.Dateisystem, d.haus.einstellungen),
      dateien(d.haus.modell, d.haus.plattform.Dateisystem, d.haus.kanäle, d.haus.einstellungen, verzeichnis, liste),
      start_kategorien(d.haus.ansicht),
      datenbank(d.haus.modell, d.haus.plattform.Dateisystem, d.haus.kanäle, d.haus.plattform.Rechner, d.haus.fortschritt,
                d.öffnen, start_kategorien, zuordnung, liste) {
    liste.Tag_ändern_Dialog = [this](const Text& datei, Text& artist, Text& titel) {
        return tag_ändern.Tag_ändern(datei, artist, titel);
    };
    liste.Datei_abspielen = [&wiedergabe](const Text& datei) { wiedergabe.Starter.starte_WinAmp_Datei(datei); };
    // A foreign player may hold a file that is about to be taken.
    übernahme.Winamp_anhalten = [&wiedergabe] { wiedergabe.Steuerung.WinAmp_Befehl_Standard(WinAmp_Code_Stop); };
    übernahme.Album_erstellen = [this](Long A, Begleitung& b) { neues_album.erstellen(A, b); };
    übernahme.Playlist_erstellen = [this](Long, Begleitung& b) { neue_playlist.erstellen(b); };
    übernahme.Kategorien_zuordnen = [this](Long A, const std::vector<Lied_Fund>& lieder) {
        return zuordnung.Init(A, lieder);
    };
    übernahme.Kategorien_ohne_Rückfrage = [this](Long A, const std::vector<Lied_Fund>& lieder) {
        return zuordnung.ohne_Rückfrage(A, lieder);
    };
    kategorien.bearbeiten.umnummeriert.verbinden([this](const std::function<Byte(Byte)>& neue) {
        zuordnung.umnummerieren(neue);
        eintragen.umnummerieren(neue);
    });
    zuordnung.Kategorien_bearbeiten = [&kategorien] {
        kategorien.bearbeiten.öffnen(Kategorie_bearbeiten::von_DBadd_Kategorien);
    };
    kategorien.bearbeiten.zurück[Kategorie_bearbeiten::von_DBadd_Kategorien] = [this] {
        zuordnung.nach_dem_Bearbeiten();
        return true;
    };
}

}  // namespace tonkartei
