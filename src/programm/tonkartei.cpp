#include "programm/tonkartei.hpp"

#include "datenbank/version.hpp"
#include "kategorien/kategorienraum.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"
#include "programm/startparameter.hpp"

namespace tonkartei {

Tonkartei::Tonkartei(Haus& haus, Albenraum& alben, Kategorienraum& kategorien, WinAmp& spieler)
    : Fenster(haus.ansicht, "Tonkartei", Programmtitel),
      Lieder(*this, haus, alben, Kategorien),
      Kategorien(*this, haus.modell, haus.einstellungen, kategorien.bearbeiten),
      Wiedergabe(*this),
      Fernsteuerung(*this, haus.einstellungen, spieler, haus.plattform.Rechner, Wiedergabe.Lied_starten),
      Menüleiste(*this, haus.einstellungen),
      modell_(haus.modell),
      einstellungen_(haus.einstellungen) {
    Menü_setzen(Menüleiste.Leiste());
    eigenständig = true;
    rechte_Spalte.rollbar = true;
    Kürzel.emplace_back("Ctrl+F", [this] { Lieder.Schnellsuche_fokussieren(); });
    Kürzel.emplace_back("Ctrl+Q", [this] { Menüleiste.ausführen("MP_Beenden"); });
    Kürzel.emplace_back("Alt+F", [this] { Fernsteuerung.mit_Taste_öffnen(); });
    Datenbank.tooltip("Die zuletzt geöffneten Datenbanken, die erste ist die geöffnete");
    Datenbank.Klick.verbinden([this] {
        if (füllt_Liste_ || Datenbank.gewählt() < 0) return;
        const Text pfad = Datenbank.gewählter_Text();
        Datenbank_gewählt(pfad);
        Datenbank_Liste_zeigen();
    });
    SysTray.Klick.verbinden([this] { hervorholen(); });

    Kategorien.angezeigtes_Lied = [this] { return Lieder.angezeigtes_Lied(); };
    Kategorien.Auswahl_geändert.verbinden([this] { Lieder.aktualisiere_Liste(); });
    Kategorien.Suche_fokussieren.verbinden([this] { Lieder.Schnellsuche_fokussieren(); });
    Fernsteuerung.Fokus_frei.verbinden([this] { Lieder.Schnellsuche_fokussieren(); });
}

Knoten Tonkartei::anordnung() {
    return Spalte({Zeile({Datenbank_Text, Knoten(Datenbank).dehnen(1)}),
                   Zeile({Lieder.Listenknoten(),
                          Gruppe(rechte_Spalte,
                                 Spalte({Lieder.Liedknoten(Kategorien.Lied_Kategorie), Kategorien.anordnung(), Feder(0, 1),
                                         Gruppe(Wiedergabe_Rahmen, Wiedergabe.anordnung(Fernsteuerung))}))})
                       .dehnen(1, 1)})
        .rand(120);
}

void Tonkartei::beim_Laden() {
    SysTray.tooltip(Programmtitel);
    Lieder.freie_Lage();
    if (wurde_geladen) wurde_geladen();
}

void Tonkartei::platzieren(const Startparameter& parameter) {
    if (const auto& tisch = einstellungen_.Schreibtisch; einstellungen_.Position_merken && tisch.Breite > 0)
        größe(tisch.Breite, tisch.Höhe);
    const Größe schirm = ansicht().Bildschirm();
    const bool minimiert_starten = parameter.hat("M");
    const bool zentriert_starten = parameter.hat("Z");
    const int x = einstellungen_.PositionX, y = einstellungen_.PositionY;
    if (minimiert_starten && einstellungen_.Position_merken) bewegen(x, y);
    if (zentriert_starten) zentrieren();
    if (!minimiert_starten && !zentriert_starten) {
        const bool auf_dem_Schirm = x >= 0 && y >= 0 && static_cast<long long>(x) + lage().breite <= schirm.breite &&
                                    static_cast<long long>(y) + lage().höhe <= schirm.höhe;
        if (einstellungen_.Position_merken && auf_dem_Schirm)
            bewegen(x, y);
        else
            zentrieren();
    }
    if (minimiert_starten) zustand(Fensterzustand::minimiert);
}

void Tonkartei::Datenbank_Liste_zeigen() {
    füllt_Liste_ = true;
    std::vector<Text> zeilen;
    for (int i = 1; i <= einstellungen_.Datenbank_Liste_Anzahl; ++i) zeilen.push_back(einstellungen_.Datenbank_Liste[i]);
    Datenbank.setzen(std::move(zeilen));
    if (Datenbank.Anzahl() > 0) Datenbank.wähle(0);
    füllt_Liste_ = false;
}

void Tonkartei::Datenbank_geladen(bool Startkategorien_setzen) {
    vor_dem_Zeigen();
    Tray_nachführen();
    titelzusatz(Dateiname_von(ohne_Trenner(modell_.Datenbank_Verzeichnis)));
    Kategorien.Anz_Kat_Schemas_setzen(modell_.Anz_Kat_Schemas);
    Menüleiste.nachführen();
    Datenbank_Liste_zeigen();
    Kategorien.aktualisiere_Kategorie_List(Startkategorien_setzen);
    Lieder.Sicht_zurücksetzen();
    zeigen();
    Tray_nachführen();
    if (Lieder.Schnellsuche.bedienbar()) ansicht().fokus(Lieder.Schnellsuche);
}

void Tonkartei::Tray_nachführen() {
    const bool klein = zustand() == Fensterzustand::minimiert;
    if (einstellungen_.Systray_immer_sichtbar)
        SysTray.sichtbar(true);
    else
        SysTray.sichtbar(einstellungen_.Fenster_minimieren > 1 && klein);
    // Without a tray on the desktop a hidden window could not be brought back.
    if (klein && einstellungen_.Fenster_minimieren == 2 && ansicht().Tray_da()) verstecken();
}

void Tonkartei::hervorholen() {
    if (Vertreter != nullptr && Vertreter->sichtbar()) return Vertreter->nach_vorn();
    zustand(Fensterzustand::normal);
    zeigen();
}

void Tonkartei::bei_neuer_Größe() {
    Größe_oder_Zustand_geändert();
    Lieder.freie_Lage();
    Tray_nachführen();
}

void Tonkartei::bei_neuer_Anordnung() { Fernsteuerung.Lage_nachführen(); }

void Tonkartei::bei_neuem_Zustand() {
    Größe_oder_Zustand_geändert();
    Tray_nachführen();
    minimiert(zustand() == Fensterzustand::minimiert);
}

bool Tonkartei::beim_Schließen(Schließgrund grund) { return !darf_schließen || darf_schließen(grund); }

void Tonkartei::beim_Entladen() {
    if (wird_geschlossen) wird_geschlossen();
}

}  // namespace tonkartei
