#include "lieder/liederraum.hpp"
#include "playlist/playlist.hpp"
#include "programm/anschluesse.hpp"
#include "programm/lied_befehle.hpp"

namespace tonkartei {
namespace {

// The songs that fit, by number, whatever search and boxes say; until the next rebuild.
void Lieder_zeigen(const Modell& modell, Listenbereich& liste, bool (*passt)(const Lied&)) {
    std::vector<long long> nummern;
    for (Long nr = 1; nr <= modell.Anzahl_Lieder; ++nr)
        if (passt(modell.Lieder[nr])) nummern.push_back(nr);
    liste.Nr_Liste_setzen(nummern);
    liste.erstelle_Liste_von_Nr_Liste();
}

void Knöpfe_anschließen(Lied_Befehle& befehle, Tonkartei& fenster) {
    fenster.Wiedergabe.Lied_kopieren.Klick.verbinden([&befehle] { befehle.Lied_kopieren(); });
    fenster.Wiedergabe.Lied_löschen.Klick.verbinden([&befehle] { befehle.Lied_löschen(); });
    fenster.Lieder.Titel_ändern.verbinden([&befehle](Long nr) { befehle.Titel_ändern(nr); });
    fenster.Lieder.Artist_ändern.verbinden([&befehle](Long nr) { befehle.Artist_ändern(nr); });
    fenster.Lieder.Anzahl_ändern.verbinden([&befehle](Long nr) { befehle.Anzahl_ändern(nr); });
}

void Befehle_anschließen(Lied_Befehle& befehle, Hauptmenü& menü) {
    menü.Befehl("Artist_Titel_Clipboard", [&befehle] { befehle.Artist_Titel_Clipboard(); });
    menü.Befehl("Menü_Lied_kopieren", [&befehle] { befehle.Lied_kopieren(); });
    menü.Befehl("Menü_Lied_löschen", [&befehle] { befehle.Lied_löschen(); });
    menü.Befehl("aktuellen_Namen_einlesen", [&befehle] { befehle.aktuellen_Namen_einlesen(); });
    menü.Befehl("Menü_Lied_Kategorie", [&befehle] { befehle.Menü_Lied_Kategorie(); });
    menü.Befehl("Menü_Lied_Anzahl", [&befehle] { befehle.Menü_Lied_Anzahl(); });
    menü.Befehl("Menü_Lied_Info", [&befehle] { befehle.Menü_Lied_Info(); });
    menü.Befehl("Menü_Lied_tauschen", [&befehle] { befehle.Lied_tauschen(); });
    menü.Befehl("Lieder_kopieren", [&befehle] { befehle.Lieder_kopieren(); });
    menü.Befehl("alle_Lieder_löschen", [&befehle] { befehle.alle_Lieder_löschen(); });
    menü.Befehl("Lieder_Kategorie_ändern", [&befehle] { befehle.Lieder_Kategorie_ändern(); });
    menü.Befehl("Lieder_Anzahl", [&befehle] { befehle.Lieder_Anzahl(); });
    menü.Befehl("alle_Anzahl_ändern", [&befehle] { befehle.alle_Anzahl_ändern(); });
    menü.Befehl("Lücken_füllen", [&befehle] { befehle.Lücken_füllen(); });
}

void Hinzufügen_anschließen(Hinzufügen& hinzufügen, Playlist& playlist, Tonkartei& fenster) {
    hinzufügen.liste.Hauptfenster_sperren = [&fenster](bool gesperrt) { fenster.aktiv(!gesperrt); };
    hinzufügen.liste.Liste_fokussieren = [&fenster] { fenster.ansicht().fokus(fenster.Lieder.Liste); };
    hinzufügen.eintragen.Liste_neu_aufbauen = [&fenster, &playlist] {
        fenster.Lieder.aktualisiere_Liste();
        playlist.aktualisieren();
    };
    Hauptmenü& menü = fenster.Menüleiste;
    menü.Befehl("add_Datenbank", [&hinzufügen] { hinzufügen.datenbank.add_Datenbank(); });
    menü.Befehl("Lieder_hinzufügen_Playlist", [&hinzufügen] { hinzufügen.dateien.Lieder_hinzufügen_Playlist(); });
    fenster.Dateien_abgelegt.verbinden(
        [&hinzufügen](const std::vector<Text>& pfade) { hinzufügen.dateien.Lieder_hinzufügen_Ablage(pfade); });
    menü.Befehl("Lieder_hinzufügen_Verzeichnis", [&hinzufügen] { hinzufügen.dateien.Lieder_hinzufügen_Verzeichnis(); });
}

void Wartung_anschließen(Wartung& wartung, Playlist& playlist, Hauptmenü& menü) {
    menü.Befehl("Liste_einlesen", [&wartung, &playlist] {
        wartung.Liste_einlesen();
        playlist.aktualisieren();
    });
    menü.Befehl("Lieder_Namen_einlesen", [&wartung, &playlist] {
        wartung.Lieder_Namen_einlesen();
        playlist.aktualisieren();
    });
    menü.Befehl("Durchschnitts_Anzahl", [&wartung] { wartung.Durchschnitts_Anzahl(); });
    menü.Befehl("Lieder_ab_Datum", [&wartung] { wartung.Lieder_ab_Datum(); });
    const auto Doppelte = [&](const char* name, Zwillingsart art) {
        menü.Befehl(name, [&wartung, art] { wartung.doppelte_anzeigen(art); });
    };
    Doppelte("doppelte_Namen_anzeigen", Zwillingsart::Namen);
    Doppelte("doppelte_Artisten", Zwillingsart::Artisten);
    Doppelte("doppelte_Titel", Zwillingsart::Titel);
    Doppelte("doppelte_anzeigen", Zwillingsart::Datum_Größe);
}

}  // namespace

void Lieder_anschließen(Liederraum& lieder, Lied_Befehle& befehle, const Haus& haus, Playlist& playlist,
                        Tonkartei& fenster) {
    befehle.geändert.verbinden([&playlist] { playlist.aktualisieren(); });
    Knöpfe_anschließen(befehle, fenster);
    Hauptmenü& menü = fenster.Menüleiste;
    Befehle_anschließen(befehle, menü);
    Hinzufügen_anschließen(lieder.hinzufügen, playlist, fenster);
    Wartung_anschließen(lieder.wartung, playlist, menü);
    menü.Befehl("Check_DB", [&lieder] { lieder.vergleichsbericht.Check_DB(); });
    menü.Befehl("zeige_Kategorie_Alle", [&modell = haus.modell, &liste = fenster.Lieder] {
        Lieder_zeigen(modell, liste, [](const Lied& lied) { return lied.Kategorie == 1; });
    });
    menü.Befehl("zeige_Zeit_null", [&modell = haus.modell, &liste = fenster.Lieder] {
        Lieder_zeigen(modell, liste, [](const Lied& lied) { return Sekunden_von(lied.Zeit) == 0; });
    });
}

}  // namespace tonkartei
