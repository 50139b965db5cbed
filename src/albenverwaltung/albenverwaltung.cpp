#include "albenverwaltung/albenverwaltung.hpp"

#include "datenbank/datenbankraum.hpp"
#include "liste/listenbereich.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

constexpr const char* Titel_Import = "Alben importieren";

}  // namespace

Albenverwaltung::Albenverwaltung(Datenbankraum& d, Albenraum& alben, const Albenarbeit::Nachbarn& nachbarn)
    : arbeit(d.haus.modell, alben.alben, d.haus.fortschritt, nachbarn),
      fenster(d.haus.ansicht, d.haus.modell, d.haus.einstellungen, alben.alben, arbeit),
      titel_liste(d.haus.ansicht),
      import(d.haus.ansicht, d.haus.modell, alben.alben, arbeit, titel_liste),
      datenbank_(d),
      alben_(alben),
      hauptliste_(nachbarn.Hauptliste) {
    verbinden();
}

void Albenverwaltung::verbinden() {
    alben_.befehle.Alben_offen = [this] { return Alben_offen(); };
    fenster.Import_gewünscht.verbinden([this] { importieren(); });
    fenster.geschlossen.verbinden([this] { beim_Schließen(); });
    import.übernommen.verbinden([this] { fenster.zeige_Alben_Liste();
});
    import.geschlossen.verbinden([this] {
        fenster.aktiv(true);
    if (fenster.geladen()) fenster.nach_vorn();
    }  // namespace tonkartei
);
// Its albums are those of the collection that is left; they are written before the folder changes.
datenbank_.sitzung.vor_Wechsel.verbinden([this] { fenster.entladen(); });
datenbank_.sitzung.geladen.verbinden([this](bool) { fenster.entladen(); });
}

void Albenverwaltung::zeige_Alben_Verwaltung() {
    if (fenster.geladen()) {
        fenster.zustand(Fensterzustand::normal);
        fenster.zeigen();
        return;
    }
    if (!datenbank_.haus.modell.Datenbank_offen || !Alben_bereit()) return;
    if (hauptliste_.Datenbank_Modus.wert() != 0) hauptliste_.Datenbank_Modus.wert(0);
    // An opening counts as a change, so the file is always written when the window closes.
    datenbank_.haus.modell.Alben_geändert = true;
    fenster.laden();
    fenster.Init();
    fenster.zeigen();
    datenbank_.haus.ansicht.fokus(fenster.Liste);
}

// The albums are in memory, or become an empty store. False: declined, or they cannot be read.
bool Albenverwaltung::Alben_bereit() {
    Modell& modell = datenbank_.haus.modell;
    if (alben_.datei.Album_Datei_vorhanden()) return alben_.datei.geladen_oder_gelesen();
    if (!datenbank_.haus.ansicht.fragen("Alben-Verwaltung", "Für diese Datenbank existiert noch keine Alben-Verwaltung." +
                                                                Text(CRCR) + "Soll jetzt eine angelegt werden?"))
        return false;
    // Albums that adding made in this session are not on the disk yet: they stay.
    if (!modell.Alben_geladen) alben_.alben.eigene = {};
    modell.Alben_geladen = true;
    return true;
}

void Albenverwaltung::Alben_Verwaltung_zentrieren() {
    zeige_Alben_Verwaltung();
    if (fenster.geladen()) fenster.zentrieren();
}

void Albenverwaltung::beim_Schließen() {
    titel_liste.entladen();
    import.entladen();
    if (datenbank_.haus.modell.Alben_geändert) alben_.datei.Alben_schreiben();
    // The main window's list of albums, where it is on show.
    if (hauptliste_.Datenbank_Modus.wert() == 1) hauptliste_.aktualisiere_Liste();
}

void Albenverwaltung::importieren() {
    Ansicht& ansicht = datenbank_.haus.ansicht;
    const auto sagen = [&](const char* text) { ansicht.informieren(Titel_Import, text); };
    sagen("Bitte wählen sie die Datenbank, von der das oder die Alben importiert werden sollen.");
    const Text ordner = mit_Trenner(datenbank_.öffnen.Dialog());
    if (ordner.empty() || !fenster.geladen()) return;
    if (groß(ordner) == groß(datenbank_.haus.modell.Datenbank_Verzeichnis))
        return sagen("Sie können nicht von der aktuellen Datenbank Alben importieren!");
    const Text datei = ordner + Alben_Datei_Name;
    if (!datenbank_.haus.plattform.Dateisystem.Datei_da(datei))
        return sagen("In der gewählten Datenbank existiert keine Alben-Verwaltung!");
    if (!alben_.datei.Alben_lesen(datei)) return;
    if (alben_.alben.fremde.Anzahl < 1) return sagen("Es sind keine Alben in der anderen Datenbank vorhanden!");
    fenster.aktiv(false);
    import.Init();
}

}  // namespace tonkartei
