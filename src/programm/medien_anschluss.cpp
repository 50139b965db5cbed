// What plays, as the desktop sees it, and what its media keys do: the same as the hand at the buttons.
#include <algorithm>

#include "oberflaeche/ansicht.hpp"
#include "programm/anschluesse.hpp"
#include "wiedergabe/wiedergabe.hpp"
#include "wiedergabe/zufall/liedautomatik.hpp"

namespace tonkartei {
namespace {

Medienstand Stand(WinAmp& spieler, const Spielzählung& zählung, const Modell& modell, const Tonkartei& fenster) {
    Medienstand stand;
    if (spieler.WinAmp_da && spieler.WinAmp_Status == Status_spielt) stand.zustand = Medienstand::Zustand::spielt;
    if (spieler.WinAmp_da && spieler.WinAmp_Status == Status_Pause) stand.zustand = Medienstand::Zustand::angehalten;
    if (const Long nr = zählung.Letztes_Lied; nr >= 1 && nr <= modell.Anzahl_Lieder) {
        stand.Lied = nr;
        stand.Titel = modell.Lieder[nr].Titel;
        stand.Artist = modell.Lieder[nr].Artist;
    }
    if (stand.zustand != Medienstand::Zustand::gestoppt) {
        stand.Länge = std::max<std::int64_t>(0, spieler.Länge()) * 1000;
        stand.Position = std::max<std::int64_t>(0, spieler.Position());
    }
    stand.Lautstärke = fenster.Fernsteuerung.WinAmp_Vol.wert();
    stand.kann_weiter = fenster.Wiedergabe.Zufallslied_starten.aktiv();
    return stand;
}

}  // namespace

void Medien_anschließen(Wiedergabe& wiedergabe, Liedautomatik& automatik, Haus& haus, Tonkartei& fenster) {
    WinAmp& spieler = wiedergabe.Spieler;
    Ansicht& ansicht = haus.ansicht;
    wiedergabe.Takt.Anzeige_Schritt.verbinden([&] {
        if (ansicht.fragt_nach_Medien()) ansicht.Medien_zeigen(Stand(spieler, wiedergabe.Zählung, haus.modell, fenster));
    });
    wiedergabe.Zählung.gezählt.verbinden([&](Long nr) {
        if (haus.einstellungen.Schreibtisch.Liedwechsel_melden)
            ansicht.mitteilen(haus.modell.Lieder[nr].Titel, haus.modell.Lieder[nr].Artist);
    });
    Hauptmenü& menü = fenster.Menüleiste;
    menü.Befehl("Liedwechsel_melden", [&e = haus.einstellungen, &menü] {
        e.Schreibtisch.Liedwechsel_melden = !e.Schreibtisch.Liedwechsel_melden;
        menü.nachführen();
    });
    menü.Haken("Liedwechsel_melden", [&e = haus.einstellungen] { return e.Schreibtisch.Liedwechsel_melden; });

    // What the hand could not do now, with a dialog or a desk in front, is not done from afar either.
    const auto darf = [&] { return haus.modell.Datenbank_offen && fenster.aktiv() && ansicht.erreichbar(fenster); };
    Medienbefehle& befehle = ansicht.Medien;
    // Without a player the chosen song is what there is to be played.
    befehle.spielen = [&, darf] {
        if (!spieler.WinAmp_da && darf())
            automatik.Start.Lied_starten();
        else if (spieler.WinAmp_Status != Status_spielt)
            spieler.Befehl(WinAmp_Code_Play);
    };
    befehle.anhalten = [&] {
        if (spieler.WinAmp_Status == Status_spielt) spieler.Befehl(WinAmp_Code_Pause);
    };
    befehle.umschalten = [&] {
        if (spieler.WinAmp_da && spieler.WinAmp_Status != Status_gestoppt)
            spieler.Befehl(WinAmp_Code_Pause);
        else
            ansicht.Medien.spielen();
    };
    befehle.stoppen = [&] { spieler.Befehl(WinAmp_Code_Stop); };
    befehle.nächstes = [&, darf] {
        if (darf() && fenster.Wiedergabe.Zufallslied_starten.aktiv()) automatik.Start.Zufallslied_starten();
    };
    befehle.Anfang = [&] { spieler.springen(0); };
    befehle.springen = [&](std::int64_t ms) { spieler.springen(static_cast<double>(ms) / 1000); };
    befehle.Lautstärke = [&](int wert) { fenster.Fernsteuerung.WinAmp_Vol.wert(wert); };
    befehle.zeigen = [&] { fenster.hervorholen(); };
    befehle.Ende = [&, darf] {
        if (darf()) fenster.schließen(Schließgrund::Hand);
    };
}

}  // namespace tonkartei
