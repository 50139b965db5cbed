#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "programm/teile.hpp"

namespace tonkartei {
namespace {

using Zeilen = std::vector<Menüzeile>;

Menüzeile Befehl(Text name, Text text, std::function<void()> handler = nullptr, int index = ohne_Index) {
    return {std::move(name), std::move(text), index, std::move(handler), {}};
}

Menüzeile Untermenü(Text name, Text text, Zeilen einträge) {
    return {std::move(name), std::move(text), ohne_Index, nullptr, std::move(einträge)};
}

Menüzeile Strich(Text name) { return {std::move(name), "-", ohne_Index, nullptr, {}}; }

// The table, menu by menu. An entry without a handler waits for its command and is disabled.
class Tabelle {
public:
    explicit Tabelle(Programm::Teile& teile) : t(teile) {}

    Menüzeile Datei() {
        return Untermenü(
            "OMP_Datei", "&Datei",
            {Befehl("Datenbank_neu", "Datenbank erstelle&n", [this] { t.sitzung.Datenbank_erstellen(true, true); }),
             Befehl("öffne_Datenbank", "Datenbank ö&ffnen...",
                    [this] { t.sitzung.öffne_Datenbank_Verzeichnis(t.datenbank_öffnen.Dialog()); }),
             Befehl("Menü_schreibe_Datenbank", "Datenbank &speichern", [this] { t.sitzung.speichern_von_Hand(); }),
             Befehl("Datenbank_auflösen", "Datenbank &auflösen"), Strich("Datei_Strich1"), Backup(), Vergleich(),
             Strich("Datei_Strich2"), Befehl("starte_DJ_Modus_alt", "DJ-Modus (Alt)"),
             Befehl("starte_DJ_Modus", "&DJ-Modus"), Strich("Datei_Strich3"),
             Befehl("MP_Beenden", "Be&enden", [this] { t.fenster.entladen(); })});
    }

    Menüzeile Bearbeiten() {
        return Untermenü(
            "OMP_Bearbeiten", "&Bearbeiten",
            {Befehl("Artist_Titel_Clipboard", "aktueller Artist und Titel in Zwischenablage",
                    [this] { t.lied_befehle.Artist_Titel_Clipboard(); }),
             Strich("Bearbeiten_Strich1"),
             Befehl("zeige_Playlist", "eigene WinAmp &Playlist...", [this] { t.playlist_anschluss.zeige_Playlist(); }),
             Befehl("zentriere_Playlist", "Playliste &zentrieren", [this] { t.playlist_anschluss.zentriere_Playlist(); }),
             Strich("Bearbeiten_Strich2"), Befehl("zeige_Alben_Verwaltung", "&Alben-Verwaltung..."),
             Befehl("Alben_Verwaltung_zentrieren", "Alben-&Verwaltung zentrieren"),
             Befehl("Menü_starte_Album", "Album &spielen...", [this] { t.alben_befehle.Menü_starte_Album(); }),
             Strich("Bearbeiten_Strich3"),
             Befehl("zentrieren", "Datenbank &zentrieren", [this] { t.fenster.zentrieren(); })});
    }

    Menüzeile Lieder() {
        return Untermenü(
            "OMP_Lieder", "&Lieder",
            {Untermenü("UMP_Lieder_hinzufügen", "&hinzufügen...",
                       {Befehl("add_Datenbank", "von &Datenbank", [this] { t.datenbank_quelle.add_Datenbank(); }),
                        Befehl("Lieder_hinzufügen_Playlist", "von &Playlist...",
                               [this] { t.hinzufügen.Lieder_hinzufügen_Playlist(); }),
                        Befehl("Lieder_hinzufügen_Verzeichnis", "von &Verzeichnis...",
                               [this] { t.hinzufügen.Lieder_hinzufügen_Verzeichnis(); })}),
             aktuelles(), Liste(), Strich("Lieder_Strich1"),
             Befehl("Lieder_Namen_einlesen", "alle Namen/Größen/Zeiten &neu einlesen",
                    [this] {
                        t.wartung.Lieder_Namen_einlesen();
                        t.playlist_anschluss.aktualisieren();
                    }),
             Befehl("Statistik_anzeigen", "&Statistik", [this] { t.statistik.fenster.öffnen(); }),
             Befehl("zeige_Random_Liste", "&Heute gespielten...", [this] { gespielte_zeigen(); }),
             Befehl("Lieder_ab_Datum", "ab &Datum...", [this] { t.wartung.Lieder_ab_Datum(); }), Strich("Lieder_Strich2"),
             Wartung()});
    }

    Menüzeile Optionen() {
        return Untermenü(
            "OMP_Optionen", "&Optionen",
            {Listeneinstellungen(), Kategorien(), Allgemeines(), WinAmp(), Strich("Optionen_Strich1"),
             Befehl("Backup_Warnung_ändern", "nächste &Backup-Warnung"),
             Befehl("Menü_Display_Setup", "&Display/Tasten-Einstellungen...", [this] { t.display.setup.öffnen(); }),
             Strich("Optionen_Strich2"), Befehl("Uninstall", "&Uninstall", [this] { deinstallieren(); })});
    }

    Menüzeile Hilfe() {
        return Untermenü("OMP_Hilfe", "&?",
                         {Befehl("zeige_Info", "&Info", [this] { t.infofenster.zeigen_modal(); }),
                          Befehl("zeige_Parameter", "Kommandozeilen-Parameter", [this] {
                              t.modell.Meldung = Parameter_Beschreibung();
                              t.ansicht.informieren("Kommandozeilen-Parameter", t.modell.Meldung);
                          })});
    }

private:
    static Menüzeile Backup() {
        return Untermenü("OMP_Backup", "&Backup...",
                         {Befehl("Menü_Backup_Portionen", "&Portionsdatei(en) erstellen"),
                          Befehl("Menü_Backup_anlegen", "&Backup-Datenbank erstellen"),
                          Befehl("Backup_Verzeichnis_erstellen", "Backup-&Verzeichnis erstellen"),
                          Befehl("Backup_Verzeichnis_erweitern", "Backup-Verzeichnis &erweitern")});
    }

    static Menüzeile Vergleich() {
        return Untermenü("OMP_Datenbank_vergleichen", "Datenbank &vergleichen/abgleichen...",
                         {Befehl("Vergleichsdatei_erstellen", "Datenbank-Vergleichsdatei &erstellen"),
                          Befehl("Datenbank_vergleichen", "Datenbank &vergleichen"),
                          Befehl("Anforderungs_Datenbank_erstellen", "&Anforderungs-Datenbank erstellen"),
                          Strich("Vergleich_Strich1"), Befehl("Menü_Live_abgleich", "&Live abgleich mit Datenbank"),
                          Befehl("zeige_Ignorieren_Liste", "Live abgleich &Ignorieren-Liste"), Strich("Vergleich_Strich2"),
                          Befehl("Kategorie_abgleich", "&Kategorien vergleichen")});
    }

    Menüzeile aktuelles() {
        return Untermenü(
            "UMP_aktuelles", "&aktuelles...",
            {Befehl("Menü_Lied_kopieren", "&kopieren", [this] { t.lied_befehle.Lied_kopieren(); }),
             Befehl("Menü_Lied_löschen", "&löschen", [this] { t.lied_befehle.Lied_löschen(); }),
             Befehl("aktuellen_Namen_einlesen", "Name/Größe/Zeit &neu einlesen",
                    [this] { t.lied_befehle.aktuellen_Namen_einlesen(); }),
             Befehl("Menü_Lied_Kategorie", "Kategorie &ändern", [this] { t.lied_befehle.Menü_Lied_Kategorie(); }),
             Befehl("Menü_Lied_Anzahl", "&Anzahl Reset", [this] { t.lied_befehle.Menü_Lied_Anzahl(); }),
             Befehl("Menü_Lied_Info", "&Info", [this] { t.lied_befehle.Menü_Lied_Info(); }),
             Befehl("Menü_Lied_tauschen", "aus&tauschen", [this] { t.lied_befehle.Lied_tauschen(); }),
             Strich("aktuelles_Strich1"), Befehl("Menü_add_to_Playlist", "zur &Playlist hinzufügen", [this] {
                 t.playlist_anschluss.Menü_add_to_Playlist();
             })});
    }

    Menüzeile Liste() {
        return Untermenü(
            "UMP_Liste", "alle in der &Liste...",
            {Befehl("Lieder_kopieren", "&kopieren", [this] { t.lied_befehle.Lieder_kopieren(); }),
             Befehl("alle_Lieder_löschen", "&löschen", [this] { t.lied_befehle.alle_Lieder_löschen(); }),
             Befehl("Lieder_Kategorie_ändern", "Kategorie &ändern", [this] { t.lied_befehle.Lieder_Kategorie_ändern(); }),
             Befehl("Lieder_Anzahl", "&Anzahl Reset", [this] { t.lied_befehle.Lieder_Anzahl(); }),
             Befehl("alle_Anzahl_ändern", "An&zahl ändern", [this] { t.lied_befehle.alle_Anzahl_ändern(); }),
             Befehl("Liste_einlesen", "Namen/Größen/Zeiten &neu einlesen",
                    [this] {
                        t.wartung.Liste_einlesen();
                        t.playlist_anschluss.aktualisieren();
                    }),
             Befehl("Durchschnitts_Anzahl", "&Durchschnitts-Anzahl", [this] { t.wartung.Durchschnitts_Anzahl(); }),
             Strich("Liste_Strich1"),
             Befehl("Lieder_add_to_Playlist", "zur &Playlist hinzufügen",
                    [this] { t.playlist_anschluss.Lieder_add_to_Playlist(); }),
             Befehl("Lieder_add_to_Album", "zum aktuellen &Album hinzufügen"),
             Befehl("ASCII_Datei", "Liedernamen in &Datei ausgeben", [this] { t.ausgabe.dialog.öffnen(); })});
    }

    Menüzeile Wartung() {
        const auto Doppelte = [this](const char* name, const char* text, Zwillingsart art) {
            return Befehl(name, text, [this, art] { t.wartung.doppelte_anzeigen(art); });
        };
        return Untermenü(
            "UMP_Wartung", "&Wartung/Fehlersuche",
            {Befehl("Check_DB", "Namen/Größen/Zeiten mit MP3's &vergleichen", [this] { t.vergleichsbericht.Check_DB(); }),
             Befehl("Lücken_füllen", "&Lücken suchen/auffüllen", [this] { t.lied_befehle.Lücken_füllen(); }),
             Strich("Wartung_Strich1"),
             Befehl("zeige_Kategorie_Alle", "zeige falsche &Kategorien (Alle)",
                    [this] { Lieder_zeigen([](const Lied& lied) { return lied.Kategorie == 1; }); }),
             Befehl("zeige_Zeit_null", "zeige mit &Zeit 00:00",
                    [this] { Lieder_zeigen([](const Lied& lied) { return Sekunden_von(lied.Zeit) == 0; }); }),
             Strich("Wartung_Strich2"),
             Doppelte("doppelte_Namen_anzeigen", "doppelte (Artist &und Titel) anzeigen", Zwillingsart::Namen),
             Doppelte("doppelte_Artisten", "doppelte &Artisten anzeigen", Zwillingsart::Artisten),
             Doppelte("doppelte_Titel", "doppelte &Titel anzeigen", Zwillingsart::Titel),
             Doppelte("doppelte_anzeigen", "&doppelte (Datum und Größe) anzeigen", Zwillingsart::Datum_Größe)});
    }

    Menüzeile Listeneinstellungen() {
        const auto Doppelklick = [this](int n, const char* text) {
            return Befehl("DblClk", text, Wahl("DblClk", &Einstellungen::Liste_Doppelklick, n, 3), n);
        };
        const auto Suche = [this](int n, const char* text) {
            return Befehl("Liste_aktualisieren", text,
                          Wahl("Liste_aktualisieren", &Einstellungen::Listensuche_Anzahl_Buchstaben, n, 4), n);
        };
        return Untermenü(
            "OMP_Listeneinstellungen", "&Listen-Einstellungen",
            {Untermenü("UMP_Doppelclick", "Listen-&Doppelklick...",
                       {Doppelklick(1, "Lied mit WinAmp &starten"), Doppelklick(2, "Lied in &Playliste aufnehemen"),
                        Doppelklick(3, "&beides")}),
             Untermenü("OMP_Listensuche", "&Listen-Suche",
                       {Suche(1, "immer &aktualisieren"), Suche(2, "ab &2 Buchstaben aktualisieren"),
                        Suche(3, "ab &3 Buchstaben aktualisieren"), Suche(4, "ab &4 Buchstaben aktualisieren"),
                        Strich("Listensuche_Strich1"),
                        Befehl("Listensuche_unvisible", "Beim suchen &ausblenden",
                               [this] {
                                   bool& sichtbar = t.einstellungen.bei_Listensuche_sichtbar;
                                   sichtbar = !sichtbar;
                                   menü()("Listensuche_unvisible").haken(!sichtbar);
                               })}),
             Schalter("Menü_Liste2_animiert", "&Alben-Titel-Liste animieren", &Einstellungen::Alben_Liste_animiert)});
    }

    Menüzeile Kategorien() {
        const auto Rechts = [this](int n, const char* text) {
            return Befehl("Katrechts", text, Wahl("Katrechts", &Einstellungen::Kategorie_Rechtsklick, n, 2), n);
        };
        Zeilen schemas;
        for (int n = 0; n <= Schemas_maximal; ++n) {
            const Text text = n == 0 ? Text("&keine Schemas") : "&" + Zahltext(n) + (n == 1 ? " Schema" : " Schemas");
            schemas.push_back(Befehl(
                "Anz_Kat_Schemas", text,
                [this, n] {
                    t.fenster.Kategorien.Anz_Kat_Schemas_setzen(n);
                    menü().nur_Haken("Anz_Kat_Schemas", n, 0, Schemas_maximal);
                },
                n));
        }
        return Untermenü(
            "UMP_Kategorien", "&Kategorien...",
            {Untermenü("UMP_Katrechts", "&Rechtsklick...",
                       {Rechts(1, "Nur diese Kategorie &wählen"), Rechts(2, "aktuellem &Lied zuweisen")}),
             Untermenü("UMP_Kategorie_Schemas", "Anzahl &Schemas...", std::move(schemas)),
             Befehl("Kat_Schema_zuweisen", "Kategorie-Schema &zuweisen",
                    [this] { t.fenster.Kategorien.Schema_zuweisen_beginnen(); }),
             Befehl("Kat_Schema_Kurzbeschreibung", "Kategorie-Schema-&Kurzbeschreibung",
                    [this] { t.fenster.Kategorien.Schema_beschreiben_beginnen(); }),
             Strich("Kategorien_Strich1"),
             Schalter("Kategorien_merken", "Kategorien beim beenden &merken", &Einstellungen::Kategorien_merken),
             Schalter("Kat_wechsel_bestätigen", "Kategorie w&echsel bestätigen",
                      &Einstellungen::Kategorie_wechsel_bestätigen)});
    }

    Menüzeile Allgemeines() {
        const auto Minimieren = [this](int n, const char* text) {
            return Befehl(
                "Fenster_minimieren", text,
                [this, n] {
                    t.einstellungen.Fenster_minimieren = als_Byte(n);
                    menü().nur_Haken("Fenster_minimieren", n, 1, 3);
                },
                n);
        };
        const auto Einlesen = [this](int n, const char* text) {
            return Befehl(
                "LN_lesen", text,
                [this, n] {
                    t.einstellungen.Lieder_Namen_lesen = n == 1;
                    menü().nur_Haken("LN_lesen", n, 1, 2);
                },
                n);
        };
        const auto Farbwahl = [this](const char* name, const char* text, Long Einstellungen::*farbe) {
            return Befehl(name, text, [this, farbe] { t.fenster.Kategorien.Farbe_ändern(farbe); });
        };
        const auto Markierungsfarbe = [this](const char* name, const char* text, Long Einstellungen::*farbe) {
            return Befehl(name, text, [this, farbe] {
                if (const auto neue = t.ansicht.Farbe_wählen(t.einstellungen.*farbe)) t.einstellungen.*farbe = *neue;
            });
        };
        return Untermenü(
            "UMP_Allgemeines", "&Allgemeines...",
            {Untermenü("UMP_Lieder_Namen", "Lieder &Namen/Größe...",
                       {Einlesen(1, "bei jedem &Start neu einlesen"), Einlesen(2, "beim Start von &Datei lesen")}),
             Untermenü("UMP_Fenster_minimieren", "Fenster &minimieren...",
                       {Minimieren(1, "nur in die &Taskleiste"), Minimieren(2, "nur in den &System-Tray"),
                        Minimieren(3, "in &beide"), Strich("Fenster_minimieren_Strich1"),
                        Befehl("Winamp_Mini_verstecken", "WinAmp &verstecken",
                               [this] { t.wiedergabe.Optionen.Winamp_Mini_verstecken(); })}),
             Untermenü("UMP_Farben", "&Farben...",
                       {Farbwahl("Kategorie_Farbe", "hervorgehobene &Kategorie...", &Einstellungen::Kategorie_Farbe),
                        Farbwahl("automatische_Kategorie_Farbe", "&automatische Kategorien...",
                                 &Einstellungen::automatische_Kategorien_Farbe),
                        Markierungsfarbe("markierte_Farbe", "&markierte Farbe...", &Einstellungen::Markierte_Farbe),
                        Markierungsfarbe("markierte_Listen_Farbe", "markierte &Listen-Farbe",
                                         &Einstellungen::Markierte_Listen_Farbe)}),
             Befehl("Systray_always", "System-&Tray Symbol immer sichtbar",
                    [this] {
                        bool& immer = t.einstellungen.Systray_immer_sichtbar;
                        immer = !immer;
                        menü()("Systray_always").haken(immer);
                        t.fenster.SysTray.sichtbar(immer);
                    }),
             Schalter("Mousemove_markierung", "&Objekt unter der Maus markieren", &Einstellungen::Objekt_Markierung_aktiv),
             Schalter("Position_merken", "&Position beim beenden merken", &Einstellungen::Position_merken),
             Befehl("Random_Prozent", "&Random-Einstellungen", [this] { t.automatik.Optionen.Random_Prozent(); }),
             Befehl("Zeit_Anzahl", "&Zeit zum erhöhen der Anzahl", [this] { t.wiedergabe.Optionen.Zeit_Anzahl(); }),
             Schalter("Papierkorb_löschen", "Lieder &löschen in den Papierkorb", &Einstellungen::Papierkorb)});
    }

    Menüzeile WinAmp() {
        Zeilen beenden;
        int n = 0;
        for (const char* text : {"&Nie", "&Immer", "Nur wenn ge&stoppt", "Nur wenn &Pause oder gestoppt"}) {
            ++n;
            beenden.push_back(Befehl(
                "Menü_WinAmp_Beenden", text, [this, n] { t.wiedergabe.Optionen.Menü_WinAmp_Beenden(n); }, n));
        }
        auto& optionen = t.wiedergabe.Optionen;
        return Untermenü(
            "UMP_WinAmp", "&Winamp...",
            {Befehl("WinAmp_Verzeichnis_wählen", "&Verzeichnis...", [&optionen] { optionen.WinAmp_Verzeichnis_wählen(); }),
             Strich("WinAmp_Strich1"),
             Schalter("Menü_WinAmp_Fernsteuerung", "&Fernsteuerung", &Einstellungen::WinAmp_Fernsteuerung,
                      [this] { t.fenster.Fernsteuerung.Fernsteuerung_umgeschaltet(); }),
             Schalter("Menü_WinAmp_Fernsteuerung_animiert", "Fernsteuerung &animiert auf und zu",
                      &Einstellungen::WinAmp_Fernsteuerung_animiert,
                      [this] { t.fenster.Fernsteuerung.Animation_umgeschaltet(); }),
             Befehl("WinAmp_FS_Lautstärke", "Fernsteuerung-&Lautstärke bei WinAmp-Start setzen",
                    [&optionen] { optionen.WinAmp_FS_Lautstärke(); }),
             Strich("WinAmp_Strich2"),
             Befehl("Menü_WinAmp_verstecken", "verstec&ken", [&optionen] { optionen.Menü_WinAmp_verstecken(); }),
             Untermenü("UMP_WinAmp_beenden", "Be&enden...", std::move(beenden))});
    }

    // A switch of a setting, with its check mark, and what follows it.
    Menüzeile Schalter(const char* name, const char* text, bool Einstellungen::*schalter,
                       const std::function<void()>& danach = nullptr) {
        return Befehl(name, text, [this, name, schalter, danach] {
            bool& wert = t.einstellungen.*schalter;
            wert = !wert;
            menü()(name).haken(wert);
            if (danach) danach();
        });
    }

    // One of several entries whose index is the setting.
    std::function<void()> Wahl(const char* name, Byte Einstellungen::*wahl, int n, int letzter) {
        return [this, name, wahl, n, letzter] {
            t.einstellungen.*wahl = als_Byte(n);
            menü().nur_Haken(name, n, 1, letzter);
        };
    }

    // The songs that fit, by number, whatever search and boxes say; until the next rebuild.
    void Lieder_zeigen(bool (*passt)(const Lied&)) {
        std::vector<long long> nummern;
        for (Long nr = 1; nr <= t.modell.Anzahl_Lieder; ++nr)
            if (passt(t.modell.Lieder[nr])) nummern.push_back(nr);
        t.fenster.Lieder.Nr_Liste_setzen(nummern);
        t.fenster.Lieder.erstelle_Liste_von_Nr_Liste();
    }

    // The starts of this run, in their order; a song started twice stands twice.
    void gespielte_zeigen() {
        const auto& zählung = t.wiedergabe.Zählung;
        std::vector<long long> nummern;
        for (Long i = 1; i <= zählung.Gespielt_Anzahl; ++i) nummern.push_back(zählung.Gespielt_Liste[i]);
        t.fenster.Lieder.Nr_Liste_setzen(nummern);
        t.fenster.Lieder.erstelle_Liste_von_Nr_Liste();
    }

    void deinstallieren() {
        t.modell.Meldung =
            "Mit dieser Funktion werden die gemerkten Einstellungen der Tonkartei "
            "in der Registry gelöscht und beim beenden nicht neu gespeichert. "
            "Zum kompletten Deinstallieren müssen Sie danach nur noch die Exe-Datei löschen." +
            Text(CRCR) + "Wollen sie fortfahren?";
        if (!t.ansicht.fragen("Uninstall", t.modell.Meldung)) return;
        t.registry.alles_löschen();
        t.Einstellungen_werden_geschrieben = false;
    }

    const Menü& menü() const { return t.fenster.Hauptmenü(); }

    Programm::Teile& t;
};

}  // namespace

std::vector<Menüzeile> Hauptmenü_Tabelle(Programm::Teile& teile) {
    const auto tabelle = std::make_shared<Tabelle>(teile);
    teile.menübefehle = tabelle;
    return {tabelle->Datei(), tabelle->Bearbeiten(), tabelle->Lieder(), tabelle->Optionen(), tabelle->Hilfe()};
}

}  // namespace tonkartei
