#include "programm/programm.hpp"

#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "programm/teile.hpp"

namespace tonkartei {

Programm::Programm(const Plattform& plattform, Ansicht& ansicht, const Text& Kommandozeile)
    : teile_(std::make_unique<Teile>(plattform, ansicht, Kommandozeile)) {}

Programm::~Programm() = default;

void Programm::starten() { teile_->starten(); }

Programm::Teile::Teile(const Plattform& p, Ansicht& a, const Text& Kommandozeile)
    : plattform(p), ansicht(a), parameter(Kommandozeile) {
    fenster.Menü_anlegen(Hauptmenü_Tabelle(*this));
    kontextmenüs = std::make_unique<Kontextmenüs>(ansicht, modell, fenster, playlist);
    verbinden();
    markierung.anschließen();
}

// What travels upward between the floors.
void Programm::Teile::verbinden() {
    info.konvertiere_1_00 = [this](Text& datei, int& nummer) { return konvertierung.konvertiere_1_00(datei, nummer); };
    info.konvertiere_1_01 = [this](Text& datei, int& nummer) { return konvertierung.konvertiere_1_01(datei, nummer); };
    info.Alben_schreiben = [this] { return alben_datei.Alben_schreiben(); };
    sitzung.geladen.verbinden([this](bool Startkategorien_setzen) {
        // The albums of the collection before need no memory any more.
        if (!modell.Alben_geladen) alben.eigene = {};
        sitzung.Datenbank_Liste_nachführen();
        fenster.Datenbank_geladen(Startkategorien_setzen);
    });
    splash.erste_Datenbank_da = [this] {
        sitzung.geladen(true);
        if (parameter.hat("RA")) fenster.Wiedergabe.Autoplay.wert(true);
    };
    fenster.vor_dem_Zeigen.verbinden([this] { splash.entladen(); });
    fenster.Datenbank_gewählt.verbinden([this](const Text& pfad) { sitzung.zuletzt_geöffnete_wählen(pfad); });
    fenster.wurde_geladen = [this] { wiedergabe.Takt.starten(); };
    fenster.darf_schließen = [this](Schließgrund grund) { return darf_schließen(grund); };
    fenster.wird_geschlossen = [this] { wird_geschlossen(); };
    fenster.minimiert.verbinden([this](bool klein) {
        if (klein)
            wiedergabe.Spieler.Hauptfenster_minimiert();
        else
            wiedergabe.Spieler.Hauptfenster_normal();
    });

    fenster.Lieder.Lied_starten.verbinden([this](Long nr) { wiedergabe.Zählung.starte_Lied(nr); });
    wiedergabe.Zählung.gezählt.verbinden([this](Long nr) { fenster.Lieder.Anzahl_auffrischen(nr); });
    wiedergabe.Starter.Liste_gestartet.verbinden([this] {
        if (fenster.aktiv() && !fenster.Wiedergabe.Autoplay.wert()) fenster.Lieder.Schnellsuche_fokussieren();
    });
    fenster.Lieder.Liste2.Sleep = [this](int ms) { plattform.Rechner.Sleep(ms); };
    fenster.Lieder.Alben_öffnen = [this] { return alben_befehle.Ansicht_öffnen(); };
    album_start.starte_WinAmp_Liste = [this](const Text& datei) { wiedergabe.Starter.starte_WinAmp_Liste(datei); };
    wiedergabe.Takt.Anzeige_Schritt.verbinden([this] { fenster.Fernsteuerung.anzeigen(); });
    // Whatever box comes up while a player is being started counts as that start's failure.
    ansicht.Kasten.verbinden([this](const Text& text) { modell.Meldung = text; });
    wiedergabe.Optionen.geändert.verbinden([this] { Menüs_nachführen(); });

    const auto Hauptfenster_sperren = [this](bool gesperrt) { fenster.aktiv(!gesperrt); };
    statistik.fenster.offen.verbinden(Hauptfenster_sperren);
    display.setup.offen.verbinden(Hauptfenster_sperren);

    kontextmenüs->Winamp_Pause = [this] { wiedergabe.Spieler.Befehl(WinAmp_Code_Pause); };

    fenster.Kategorien.Kategorien_bearbeiten.verbinden([this] {
        if (!modell.Datenbank_offen) return;
        fenster.aktiv(false);
        kategorie_bearbeiten.öffnen(Kategorie_bearbeiten::vom_Hauptfenster);
    });
    kategorie_bearbeiten.geschlossen.verbinden([this] { fenster.Kategorien.aktualisiere_Kategorie_List(false); });
    kategorie_bearbeiten.zurück[Kategorie_bearbeiten::vom_Hauptfenster] = [this] {
        fenster.aktiv(true);
        fenster.Lieder.Schnellsuche_fokussieren();
        return true;
    };

    lieder_entfernen.Winamp_anhalten = [this] { wiedergabe.Spieler.für_Dateiarbeit_anhalten(); };
    lied_austauschen.Lied_kopieren = [this](Long nr) { lied_kopieren.ausführen(nr); };
    lied_befehle.verbinden();
    playlist_anschluss.verbinden();
    neue_Lieder.Tag_ändern_Dialog = [this](const Text& datei, Text& artist, Text& titel) {
        return tag_ändern.Tag_ändern(datei, artist, titel);
    };

    const auto anhören = [this](const Text& datei) { wiedergabe.Starter.starte_WinAmp_Datei(datei); };
    kategorie_wahl.Datei_abspielen = anhören;
    neue_Lieder.Datei_abspielen = anhören;
    neue_Lieder.Hauptfenster_sperren = [this](bool gesperrt) { fenster.aktiv(!gesperrt); };
    neue_Lieder.Liste_fokussieren = [this] { ansicht.fokus(fenster.Lieder.Liste); };
    // A foreign player may hold a file that is about to be taken.
    übernahme.Winamp_anhalten = [this] { wiedergabe.Steuerung.WinAmp_Befehl_Standard(WinAmp_Code_Stop); };
    übernahme.Album_erstellen = [this](Long A, Begleitung& b) { neues_album.erstellen(A, b); };
    übernahme.Playlist_erstellen = [this](Long, Begleitung& b) { neue_playlist.erstellen(b); };
    übernahme.Kategorien_zuordnen = [this](Long A, const std::vector<Lied_Fund>& lieder) {
        return dbadd_kategorien.Init(A, lieder);
    };
    übernahme.Kategorien_ohne_Rückfrage = [this](Long A, const std::vector<Lied_Fund>& lieder) {
        return dbadd_kategorien.ohne_Rückfrage(A, lieder);
    };
    kategorie_bearbeiten.umnummeriert.verbinden([this](const std::function<Byte(Byte)>& neue) {
        dbadd_kategorien.umnummerieren(neue);
        lieder_eintragen.umnummerieren(neue);
    });
    dbadd_kategorien.Kategorien_bearbeiten = [this] {
        kategorie_bearbeiten.öffnen(Kategorie_bearbeiten::von_DBadd_Kategorien);
    };
    kategorie_bearbeiten.zurück[Kategorie_bearbeiten::von_DBadd_Kategorien] = [this] {
        dbadd_kategorien.nach_dem_Bearbeiten();
        return true;
    };
    sitzung.Lieder_einlesen = [this] { einlesen.alle_Lieder_einlesen(); };
    wartung.zeigt_Kategorie = [this](int k) { return fenster.Kategorien.zeige_Kategorie(k).wert(); };
    lieder_eintragen.Liste_neu_aufbauen = [this] {
        fenster.Lieder.aktualisiere_Liste();
        playlist_anschluss.aktualisieren();
    };
}

void Programm::Teile::starten() {
    if (plattform.Rechner.andere_Instanz_läuft()) {
        ansicht.informieren(Programmtitel, "Dieses Programm läuft bereits!");
        ansicht.beenden();
        return;
    }
    modell.Programmversion = Programmversion_bilden(Version_Haupt, Version_Neben, Version_Revision);
    splash.zeigen();
    plattform.Rechner.Zufall_säen();
    registry.Registry_Wurzel(HKEY_CURRENT_USER, "Software\\Tonkartei");
    modell.Datenbank_offen = true;
    fenster.laden();
    Einstellungen_setzen();
    fenster.platzieren(parameter);
    wiedergabe.Zählung.Startwerte_setzen();
    fenster.zeigen();
    fenster.Tray_nachführen();
    playlist_anschluss.beim_Start();
    sitzung.Zugriffsdatei_ignorieren = parameter.hat("I");
    if (!splash.lade_erste_Datenbank()) {
        modell.Datenbank_offen = false;
        Einstellungen_werden_geschrieben = false;
        fenster.entladen();
        return;
    }
    const int schema = parameter.Parameter_KS();
    if (schema >= 1 && schema <= modell.Anz_Kat_Schemas) fenster.Kategorien.Schema_klicken(schema);
}

void Programm::Teile::Einstellungen_setzen() {
    const Größe schirm = ansicht.Bildschirm();
    const auto halbe_Differenz = [](int ganz, int teil) { return gerundet((ganz - teil) / 2.0); };
    const Bereich& lage = fenster.lage();
    Einstellungs_Vorgaben vorgaben;
    vorgaben.PositionX = halbe_Differenz(schirm.breite, lage.breite);
    vorgaben.PositionY = halbe_Differenz(schirm.höhe, lage.höhe);
    const Bereich playlist_lage = zentrierte_Playlist(fenster);
    vorgaben.Playlist_Breite = playlist_lage.breite;
    vorgaben.Playlist_Höhe = playlist_lage.höhe;
    vorgaben.Playlist_PositionX = playlist_lage.links;
    vorgaben.Playlist_PositionY = playlist_lage.oben;
    vorgaben.WinAmp_Verzeichnis = plattform.Rechner.WinAmp_Vorgabe();
    Einstellungen_lesen(registry, einstellungen, vorgaben);
    fenster.Wiedergabe.Autoplay_Random.wert(einstellungen.Random_Autoplay);
    fenster.Wiedergabe.auto_Kat_Wechsel.wert(einstellungen.auto_Kat_Wechsel_Status);
    fenster.Fernsteuerung.Einstellungen_setzen();
    Menüs_nachführen();
}

void Programm::Teile::Menüs_nachführen() {
    const Menü& menü = fenster.Hauptmenü();
    const Einstellungen& e = einstellungen;
    menü.nur_Haken("DblClk", e.Liste_Doppelklick, 1, 3);
    menü.nur_Haken("Liste_aktualisieren", e.Listensuche_Anzahl_Buchstaben, 1, 4);
    menü("Listensuche_unvisible").haken(!e.bei_Listensuche_sichtbar);
    menü("Menü_Liste2_animiert").haken(e.Alben_Liste_animiert);
    menü.nur_Haken("Katrechts", e.Kategorie_Rechtsklick, 1, 2);
    menü("Kategorien_merken").haken(e.Kategorien_merken);
    menü("Kat_wechsel_bestätigen").haken(e.Kategorie_wechsel_bestätigen);
    menü.nur_Haken("LN_lesen", e.Lieder_Namen_lesen ? 1 : 2, 1, 2);
    menü.nur_Haken("Fenster_minimieren", e.Fenster_minimieren, 1, 3);
    menü("Winamp_Mini_verstecken").haken(e.WinAmp_verstecken_minimiert);
    menü("Systray_always").haken(e.Systray_immer_sichtbar);
    menü("Mousemove_markierung").haken(e.Objekt_Markierung_aktiv);
    menü("Position_merken").haken(e.Position_merken);
    menü("Papierkorb_löschen").haken(e.Papierkorb);
    menü("Menü_WinAmp_Fernsteuerung").haken(e.WinAmp_Fernsteuerung);
    menü("Menü_WinAmp_Fernsteuerung_animiert").haken(e.WinAmp_Fernsteuerung_animiert);
    menü("WinAmp_FS_Lautstärke").haken(e.WinAmp_FS_Lautstärke);
    menü("Menü_WinAmp_verstecken").haken(e.WinAmp_verstecken);
    menü.nur_Haken("Menü_WinAmp_Beenden", e.WinAmp_beenden, 1, 4);
    menü.nur_Haken("Anz_Kat_Schemas", modell.Anz_Kat_Schemas, 0, Schemas_maximal);
    kontextmenüs->nachführen();
}

bool Programm::Teile::darf_schließen(Schließgrund grund) {
    const bool von_außen = grund == Schließgrund::außen;
    if (splash.wählt()) {
        // Nothing is open and nothing of the run is to be kept: the start is given up.
        Einstellungen_werden_geschrieben = false;
        splash.aufgeben();
        return von_außen;
    }
    if (sitzung.wechselt()) {
        if (splash.geladen()) Einstellungen_werden_geschrieben = false;
        return true;
    }
    übernahme.abschließen();
    if (!modell.Datenbank_offen || sitzung.schreibe_Datenbank(!von_außen)) return true;
    modell.Meldung = "Wollen sie das Prorgamm wirklich beenden, ohne das die alten Informationen gespeichert wurden?";
    return ansicht.fragen("Programm beenden", modell.Meldung);
}

void Programm::Teile::wird_geschlossen() {
    wiedergabe.Takt.anhalten();
    fenster.SysTray.sichtbar(false);
    ansicht.Ereignisse_laufen_lassen();
    wiedergabe.Spieler.am_Programmende();
    if (fenster.zustand() == Fensterzustand::normal) {
        einstellungen.PositionX = fenster.lage().links;
        einstellungen.PositionY = fenster.lage().oben;
    }
    einstellungen.Kategorien = fenster.Kategorien.Kategorien_Maske();
    playlist.Hauptfenster_schließt();
    if (Einstellungen_werden_geschrieben) Einstellungen_schreiben(registry, einstellungen);
    splash.entladen();
    infofenster.entladen();
    kategorie_wahl.entladen();
    album_wählen.entladen();
    fortschritt.entladen();
    ansicht.beenden();
}

}  // namespace tonkartei
