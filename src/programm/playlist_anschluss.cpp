#include "programm/playlist_anschluss.hpp"

#include "programm/teile.hpp"

namespace tonkartei {

Bereich zentrierte_Playlist(const Fenster& haupt) {
    const Größe schirm = haupt.ansicht().Bildschirm();
    const Long breite = gerundet(haupt.lage().breite / 2.0), höhe = gerundet(haupt.lage().höhe / 2.0);
    return {gerundet((schirm.breite - breite) / 2.0), gerundet((schirm.höhe - höhe) / 2.0), breite, höhe};
}

void Playlist_Anschluss::verbinden() {
    auto& fenster = t_.fenster;
    auto& playlist = t_.playlist;
    auto& knopf = fenster.Wiedergabe.add_to_Playlist;
    knopf.Klick.verbinden([this] { add_to_Playlist(t_.fenster.Lieder.gewähltes_Lied()); });
    knopf.Rechtsklick.verbinden([this](int) { t_.playlist.zeigen_falls_nötig(); });
    fenster.Lieder.zur_Playlist.verbinden([this](Long nr) { add_to_Playlist(nr); });
    fenster.Lieder.Liste.Ziehen_beginnt.verbinden([this] {
        auto& bereich = t_.fenster.Lieder;
        bereich.Liste.Ziehmarke = bereich.Datenbank_Modus.wert() == 0 && t_.playlist.geladen() ? "Lied" : "";
    });
    fenster.Größe_oder_Zustand_geändert.verbinden([this] { folgen(); });
    t_.sitzung.geladen.verbinden([this](bool) { aktualisieren(); });

    auto& zufallsliste = t_.automatik.Zufallsliste;
    zufallsliste.Liste_starten = [this](const std::vector<Long>& lieder) { t_.album_start.starte_Lieder(lieder); };
    zufallsliste.Playlist_leeren = [this] {
        t_.playlist.zeigen_falls_nötig();
        t_.playlist.Neu();
    };
    zufallsliste.in_Playlist = [this](const std::vector<Long>& lieder) {
        t_.playlist.add_Lieder(lieder);
        t_.playlist.malen();
    };

    playlist.gezogenes_Lied = [this](Element& quelle) { return gezogenes_Lied(quelle); };
    playlist.starte_WinAmp_Liste = [this](const Text& datei) { t_.wiedergabe.Starter.starte_WinAmp_Liste(datei); };
    playlist.in_Datenbank_Liste = [this](const std::vector<Long>& nummern) {
        auto& bereich = t_.fenster.Lieder;
        // Song numbers must not stand where albums are chosen.
        if (bereich.Datenbank_Modus.wert() != 0) bereich.Datenbank_Modus.wert(0);
        bereich.Nr_Liste_setzen({nummern.begin(), nummern.end()});
        bereich.erstelle_Liste_von_Nr_Liste();
    };
    // The songs come from the collection that is open now, as if it were another one: its categories are the source's.
    playlist.Datenbank_vorbereiten = [this](const std::vector<Playlist::Auszug>& lieder) {
        const auto& modell = t_.modell;
        t_.dbadd_kategorien.Quell_Kategorien.clear();
        for (int k = 1; k <= modell.Anzahl_Kategorien; ++k)
            t_.dbadd_kategorien.Quell_Kategorien.push_back(modell.Kategorien[k]);
        t_.neue_Lieder.Reset();
        for (const auto& lied : lieder) {
            t_.neue_Lieder.add_MP3_Tag(lied.Name);
            t_.neue_Lieder.add_Lied(lied.Pfad, lied.Kategorie);
            t_.neue_Lieder.add_MP3_Größe(lied.Größe);
        }
    };
    playlist.Hauptfenster_frei = [this] { return t_.fenster.aktiv(); };
    playlist.Datenbank_anlegen = [this] { Datenbank_anlegen(); };
}

void Playlist_Anschluss::Datenbank_anlegen() {
    if (t_.sitzung.Datenbank_erstellen(false, true))
        t_.neue_Lieder.activate(Quelle_Datenbank, false);
    else
        t_.neue_Lieder.entladen();
}

void Playlist_Anschluss::beim_Start() {
    auto& e = t_.einstellungen;
    if (e.Playlist_autoshow == 2) e.Playlist_Status = false;
    if (e.Playlist_autoshow != 1 && !(e.Playlist_autoshow == 3 && e.Playlist_Status)) return;
    t_.playlist.zeigen_falls_nötig();
    folgen();
}

// On every change of the main window's size or state.
void Playlist_Anschluss::folgen() {
    const auto& haupt = t_.fenster;
    const bool im_Tray =
        haupt.zustand() == Fensterzustand::minimiert && t_.einstellungen.Fenster_minimieren == 2 && t_.ansicht.Tray_da();
    t_.playlist.Hauptfenster_folgen(haupt.zustand(), im_Tray);
}

void Playlist_Anschluss::add_to_Playlist(Long Nr) {
    // A special list may hold numbers of a collection that is no longer open.
    if (!t_.modell.Datenbank_offen || Nr < 1 || Nr > t_.modell.Anzahl_Lieder) return;
    t_.playlist.zeigen_falls_nötig();
    t_.playlist.add_Lied(Nr, true);
}

void Playlist_Anschluss::Menü_add_to_Playlist() { add_to_Playlist(t_.lied_befehle.Lied()); }

// Without a question: nothing is lost, and a song that stands there already would ask for each of them.
void Playlist_Anschluss::Lieder_add_to_Playlist() {
    const std::vector<Long> nummern = t_.fenster.Lieder.Lieder_in_Liste();
    if (nummern.empty()) return;
    t_.playlist.zeigen_falls_nötig();
    t_.playlist.add_Lieder(nummern);
}

// A line of the albums carries no song.
Long Playlist_Anschluss::gezogenes_Lied(const Element& quelle) const {
    const auto& bereich = t_.fenster.Lieder;
    if (&quelle != &bereich.Liste || bereich.Datenbank_Modus.wert() != 0 || !t_.modell.Datenbank_offen) return 0;
    const Long nr = bereich.gewähltes_Lied();
    return nr <= t_.modell.Anzahl_Lieder ? nr : 0;
}

void Playlist_Anschluss::zeige_Playlist() {
    if (t_.playlist.geladen()) t_.playlist.zustand(Fensterzustand::normal);
    t_.playlist.zeigen();
}

void Playlist_Anschluss::zentriere_Playlist() { t_.playlist.Lage_setzen(zentrierte_Playlist(t_.fenster)); }

void Playlist_Anschluss::aktualisieren() { t_.playlist.aktualisieren(); }

}  // namespace tonkartei
