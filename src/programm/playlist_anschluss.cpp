#include "programm/playlist_anschluss.hpp"

#include "datenbank/sitzung.hpp"
#include "lieder/hinzufuegen/hinzufuegen.hpp"
#include "playlist/playlist.hpp"
#include "programm/anschluesse.hpp"
#include "wiedergabe/zufall/liedautomatik.hpp"

namespace tonkartei {

Bereich zentrierte_Playlist(const Fenster& haupt) {
    const Größe schirm = haupt.ansicht().Bildschirm();
    const Long breite = gerundet(haupt.lage().breite / 2.0), höhe = gerundet(haupt.lage().höhe / 2.0);
    return {gerundet((schirm.breite - breite) / 2.0), gerundet((schirm.höhe - höhe) / 2.0), breite, höhe};
}

Playlist_Anschluss::Playlist_Anschluss(Haus& haus, Playlist& playlist, Tonkartei& fenster)
    : haus_(haus), playlist_(playlist), fenster_(fenster) {
    Knöpfe_anschließen();
    Menü_anschließen();
    fenster_.Größe_oder_Zustand_geändert.verbinden([this] { folgen(); });
}

void Playlist_Anschluss::Knöpfe_anschließen() {
    auto& bereich = fenster_.Lieder;
    auto& knopf = fenster_.Wiedergabe.add_to_Playlist;
    knopf.Klick.verbinden([this, &bereich] { add_to_Playlist(bereich.gewähltes_Lied()); });
    knopf.Rechtsklick.verbinden([this](int) { playlist_.zeigen_falls_nötig(); });
    bereich.zur_Playlist.verbinden([this](Long nr) { add_to_Playlist(nr); });
    bereich.Liste.Ziehen_beginnt.verbinden([this, &bereich] {
        bereich.Liste.Ziehmarke = bereich.Datenbank_Modus.wert() == 0 && playlist_.geladen() ? "Lied" : "";
    });
}

void Playlist_Anschluss::Menü_anschließen() {
    Hauptmenü& menü = fenster_.Menüleiste;
    menü.Befehl("zeige_Playlist", [this] { zeige_Playlist(); });
    menü.Befehl("zentriere_Playlist", [this] { playlist_.Lage_setzen(zentrierte_Playlist(fenster_)); });
    menü.Befehl("Menü_add_to_Playlist", [this] { add_to_Playlist(fenster_.Lieder.gemeintes_Lied()); });
    menü.Befehl("Lieder_add_to_Playlist", [this] { Lieder_add_to_Playlist(); });
}

void Playlist_Anschluss::beim_Start() {
    auto& e = haus_.einstellungen;
    if (e.Playlist_autoshow == 2) e.Playlist_Status = false;
    if (e.Playlist_autoshow != 1 && !(e.Playlist_autoshow == 3 && e.Playlist_Status)) return;
    playlist_.zeigen_falls_nötig();
    folgen();
}

// On every change of the main window's size or state.
void Playlist_Anschluss::folgen() {
    const bool im_Tray = fenster_.zustand() == Fensterzustand::minimiert && haus_.einstellungen.Fenster_minimieren == 2 &&
                         haus_.ansicht.Tray_da();
    playlist_.Hauptfenster_folgen(fenster_.zustand(), im_Tray);
}

void Playlist_Anschluss::add_to_Playlist(Long Nr) {
    if (Nr < 1) return;
    playlist_.zeigen_falls_nötig();
    playlist_.add_Lied(Nr, true);
}

// Without a question: nothing is lost, and a song that stands there already would ask for each of them.
void Playlist_Anschluss::Lieder_add_to_Playlist() {
    const std::vector<Long> nummern = fenster_.Lieder.Lieder_in_Liste();
    if (nummern.empty()) return;
    playlist_.zeigen_falls_nötig();
    playlist_.add_Lieder(nummern);
}

void Playlist_Anschluss::zeige_Playlist() {
    if (playlist_.geladen()) playlist_.zustand(Fensterzustand::normal);
    playlist_.zeigen();
}

void Playlist_anschließen(Playlist& playlist, Liedautomatik& automatik, Sitzung& sitzung, Hinzufügen& hinzufügen) {
    sitzung.geladen.verbinden([&playlist](bool) { playlist.aktualisieren(); });
    automatik.Zufalls_Playlist.Playlist_leeren.verbinden([&playlist] {
        playlist.zeigen_falls_nötig();
        playlist.Neu();
    });
    automatik.Zufalls_Playlist.in_Playlist.verbinden([&playlist](const std::vector<Long>& lieder) {
        playlist.add_Lieder(lieder);
        playlist.malen();
    });
    playlist.Datenbank_vorbereiten = [&hinzufügen](const std::vector<Playlist::Auszug>& lieder) {
        hinzufügen.auszug.beginnen();
        for (const auto& lied : lieder) hinzufügen.auszug.aufnehmen(lied.Name, lied.Pfad, lied.Kategorie, lied.Größe);
    };
    playlist.Datenbank_anlegen = [&hinzufügen] { hinzufügen.auszug.anlegen(); };
}

}  // namespace tonkartei
