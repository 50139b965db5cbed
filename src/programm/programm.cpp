#include "programm/programm.hpp"

#include "datenbank/version.hpp"
#include "programm/anschluesse.hpp"
#include "programm/teile.hpp"

namespace tonkartei {

Programm::Programm(const Plattform& plattform, Ansicht& ansicht, const Text& Kommandozeile)
    : teile_(std::make_unique<Teile>(plattform, ansicht, Kommandozeile)) {}

Programm::~Programm() = default;

void Programm::starten() { teile_->starten(); }

void Programm::gerufen() { teile_->gerufen(); }

Programm::Teile::Teile(const Plattform& plattform, Ansicht& ansicht, const Text& Kommandozeile)
    : parameter_(Kommandozeile), haus_(plattform, ansicht) {
    anschließen();
    fenster_.vor_dem_Zeigen.verbinden([this] { splash_.entladen(); });
    fenster_.darf_schließen = [this](Schließgrund grund) { return darf_schließen(grund); };
    fenster_.wird_geschlossen = [this] { wird_geschlossen(); };
    fenster_.Menüleiste.Befehl("zeige_Info", [this] { infofenster_.zeigen_modal(); });
    fenster_.Menüleiste.Befehl("zeige_Parameter",
                               [this] { haus_.ansicht.informieren("Kommandozeilen-Parameter", Parameter_Beschreibung()); });
    haus_.ansicht.Hilfe = [this] {
        if (!haus_.ansicht.Handbuch_zeigen())
            haus_.ansicht.informieren("Handbuch", "Das Handbuch ist hier nicht installiert.");
    };
    fenster_.Menüleiste.Befehl("zeige_Handbuch", haus_.ansicht.Hilfe);
    wiedergabe_.Optionen.geändert.verbinden([this] { kontextmenüs_.nachführen(); });
    // Last: it numbers the controls, and looks which of them do anything.
    markierung_.anschließen();
}

void Programm::Teile::anschließen() {
    Fenster_anschließen(haus_, fenster_);
    Datenbank_anschließen(datenbank_, fenster_);
    Alben_anschließen(alben_, wiedergabe_, fenster_);
    Kategorien_anschließen(kategorien_.wahl, haus_.modell, wiedergabe_, fenster_);
    Wiedergabe_anschließen(wiedergabe_, automatik_, haus_, fenster_);
    Medien_anschließen(wiedergabe_, automatik_, haus_, fenster_);
    Playlist_anschließen(playlist_, automatik_, datenbank_.sitzung, lieder_.hinzufügen);
    Lieder_anschließen(lieder_, lied_befehle_, haus_, playlist_, fenster_);
    Albenverwaltung_anschließen(albenverwaltung_, lieder_, fenster_);
    Austausch_anschließen(austausch_, playlist_, fenster_);
    Statistik_anschließen(statistik_, fenster_);
    Ausgabe_anschließen(ausgabe_, fenster_);
    Display_anschließen(display_, fenster_);
    DJ_anschließen(dj_, haus_, kontextmenüs_, fenster_);
    DJ_alt_anschließen(dj_alt_, datenbank_, wiedergabe_, fenster_);
}

void Programm::Teile::starten() {
    if (haus_.plattform.Rechner.andere_Instanz_läuft()) {
        haus_.ansicht.informieren(Programmtitel, "Dieses Programm läuft bereits!");
        haus_.plattform.Rechner.andere_Instanz_rufen();
        haus_.ansicht.beenden();
        return;
    }
    haus_.modell.Programmversion = Programmversion_bilden(Version_Haupt, Version_Neben, Version_Revision);
    splash_.zeigen();
    haus_.plattform.Rechner.Zufall_säen();
    haus_.modell.Datenbank_offen = true;
    fenster_.laden();
    einstellungen_.lesen();
    kontextmenüs_.nachführen();
    fenster_.platzieren(parameter_);
    wiedergabe_.Zählung.Startwerte_setzen();
    fenster_.zeigen();
    fenster_.Tray_nachführen();
    playlist_anschluss_.beim_Start();
    datenbank_.sitzung.Zugriffsdatei_ignorieren = parameter_.hat("I");
    if (!splash_.lade_erste_Datenbank()) {
        haus_.modell.Datenbank_offen = false;
        einstellungen_.nicht_schreiben();
        fenster_.entladen();
        return;
    }
    datenbank_.sitzung.geladen(true);
    if (parameter_.hat("RA")) fenster_.Wiedergabe.Autoplay.wert(true);
    const int schema = parameter_.Parameter_KS();
    if (schema >= 1 && schema <= haus_.modell.Anz_Kat_Schemas) fenster_.Kategorien.Schema_klicken(schema);
}

void Programm::Teile::gerufen() {
    // While the splash is up, it is what there is to see.
    if (fenster_.geladen() && !splash_.sichtbar()) fenster_.hervorholen();
}

bool Programm::Teile::darf_schließen(Schließgrund grund) {
    const bool von_außen = grund == Schließgrund::außen;
    if (splash_.wählt()) {
        // Nothing is open and nothing of the run is to be kept: the start is given up.
        einstellungen_.nicht_schreiben();
        splash_.aufgeben();
        return von_außen;
    }
    if (datenbank_.sitzung.wechselt()) {
        if (splash_.geladen()) einstellungen_.nicht_schreiben();
        return true;
    }
    lieder_.hinzufügen.übernahme.abschließen();
    if (!haus_.modell.Datenbank_offen || datenbank_.sitzung.schreibe_Datenbank(!von_außen)) return true;
    const bool beenden = haus_.ansicht.fragen(
        "Programm beenden",
        "Wollen sie das Prorgamm wirklich beenden, ohne das die alten Informationen gespeichert wurden?");
    if (beenden || fenster_.Ende_von_außen()) datenbank_.sitzung.ungespeichert_verlassen();
    return beenden;
}

void Programm::Teile::wird_geschlossen() {
    wiedergabe_.Takt.anhalten();
    dj_.fenster.mit_dem_Programm_schließen();
    dj_alt_.fenster.mit_dem_Programm_schließen();
    fenster_.SysTray.sichtbar(false);
    haus_.ansicht.Ereignisse_laufen_lassen();
    wiedergabe_.Spieler.am_Programmende();
    if (fenster_.zustand() == Fensterzustand::normal) {
        haus_.einstellungen.PositionX = fenster_.lage().links;
        haus_.einstellungen.PositionY = fenster_.lage().oben;
        if (fenster_.Größe_gewählt()) {
            haus_.einstellungen.Schreibtisch.Breite = fenster_.lage().breite;
            haus_.einstellungen.Schreibtisch.Höhe = fenster_.lage().höhe;
        }
    }
    albenverwaltung_.fenster.entladen();
    austausch_.entladen();
    haus_.einstellungen.Kategorien = fenster_.Kategorien.Kategorien_Maske();
    playlist_.Hauptfenster_schließt();
    einstellungen_.schreiben();
    statistik_.fenster.entladen();
    ausgabe_.dialog.entladen();
    display_.setup.entladen();
    splash_.entladen();
    infofenster_.entladen();
    kategorien_.wahl.entladen();
    alben_.wählen.entladen();
    haus_.fortschritt.entladen();
    haus_.ansicht.beenden();
}

}  // namespace tonkartei
