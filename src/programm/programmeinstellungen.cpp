#include "programm/programmeinstellungen.hpp"

#include "datenbank/einstellungsspeicher.hpp"
#include "datenbank/haus.hpp"
#include "programm/playlist_anschluss.hpp"
#include "programm/tonkartei.hpp"

namespace tonkartei {

Programmeinstellungen::Programmeinstellungen(Haus& haus, Registry& registry, Tonkartei& fenster)
    : haus_(haus), registry_(registry), fenster_(fenster) {
    fenster_.Menüleiste.Befehl("Uninstall", [this] { deinstallieren(); });
}

void Programmeinstellungen::lesen() {
    const Größe schirm = haus_.ansicht.Bildschirm();
    const auto halbe_Differenz = [](int ganz, int teil) { return gerundet((ganz - teil) / 2.0); };
    const Bereich& lage = fenster_.lage();
    Einstellungs_Vorgaben vorgaben;
    vorgaben.PositionX = halbe_Differenz(schirm.breite, lage.breite);
    vorgaben.PositionY = halbe_Differenz(schirm.höhe, lage.höhe);
    const Bereich playlist_lage = zentrierte_Playlist(fenster_);
    vorgaben.Playlist_Breite = playlist_lage.breite;
    vorgaben.Playlist_Höhe = playlist_lage.höhe;
    vorgaben.Playlist_PositionX = playlist_lage.links;
    vorgaben.Playlist_PositionY = playlist_lage.oben;
    vorgaben.WinAmp_Verzeichnis = haus_.plattform.Rechner.WinAmp_Vorgabe();
    registry_.Registry_Wurzel(HKEY_CURRENT_USER, "Software\\Tonkartei");
    Einstellungen_lesen(registry_, haus_.einstellungen, vorgaben);
    fenster_.Wiedergabe.Autoplay_Random.wert(haus_.einstellungen.Random_Autoplay);
    fenster_.Wiedergabe.auto_Kat_Wechsel.wert(haus_.einstellungen.auto_Kat_Wechsel_Status);
    fenster_.Fernsteuerung.Einstellungen_setzen();
    fenster_.Menüleiste.nachführen();
}

void Programmeinstellungen::schreiben() {
    if (werden_geschrieben_) Einstellungen_schreiben(registry_, haus_.einstellungen);
}

void Programmeinstellungen::deinstallieren() {
    if (!haus_.ansicht.fragen("Uninstall",
                              "Mit dieser Funktion werden die gemerkten Einstellungen der Tonkartei "
                              "in der Registry gelöscht und beim beenden nicht neu gespeichert. "
                              "Zum kompletten Deinstallieren müssen Sie danach nur noch die Exe-Datei löschen." +
                                  Text(CRCR) + "Wollen sie fortfahren?"))
        return;
    registry_.alles_löschen();
    werden_geschrieben_ = false;
}

}  // namespace tonkartei
