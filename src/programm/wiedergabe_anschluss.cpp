#include "programm/anschluesse.hpp"
#include "wiedergabe/wiedergabe.hpp"
#include "wiedergabe/zufall/liedautomatik.hpp"

namespace tonkartei {
namespace {

// The starts of this run, in their order; a song started twice stands twice.
void gespielte_zeigen(const Spielzählung& zählung, Listenbereich& liste) {
    std::vector<long long> nummern;
    for (Long i = 1; i <= zählung.Gespielt_Anzahl; ++i) nummern.push_back(zählung.Gespielt_Liste[i]);
    liste.Nr_Liste_setzen(nummern);
    liste.erstelle_Liste_von_Nr_Liste();
}

void Menü_anschließen(WinAmp_Optionen& optionen, Zufallsoptionen& zufall, const Einstellungen& e, Tonkartei& fenster) {
    Hauptmenü& menü = fenster.Menüleiste;
    menü.Befehl("Random_Prozent", [&zufall] { zufall.Random_Prozent(); });
    menü.Befehl("Zeit_Anzahl", [&optionen] { optionen.Zeit_Anzahl(); });
    menü.Befehl("WinAmp_Verzeichnis_wählen", [&optionen] { optionen.WinAmp_Verzeichnis_wählen(); });
    menü.Schalter("Menü_WinAmp_Fernsteuerung", &Einstellungen::WinAmp_Fernsteuerung,
                  [&fenster] { fenster.Fernsteuerung.Fernsteuerung_umgeschaltet(); });
    menü.Schalter("Menü_WinAmp_Fernsteuerung_animiert", &Einstellungen::WinAmp_Fernsteuerung_animiert,
                  [&fenster] { fenster.Fernsteuerung.Animation_umgeschaltet(); });
    menü.Befehl("WinAmp_FS_Lautstärke", [&optionen] { optionen.WinAmp_FS_Lautstärke(); });
    menü.Haken("WinAmp_FS_Lautstärke", [&e] { return e.WinAmp_FS_Lautstärke; });
    menü.Befehl("Menü_WinAmp_verstecken", [&optionen] { optionen.Menü_WinAmp_verstecken(); });
    menü.Haken("Menü_WinAmp_verstecken", [&e] { return e.WinAmp_verstecken; });
    menü.Befehl("Winamp_Mini_verstecken", [&optionen] { optionen.Winamp_Mini_verstecken(); });
    menü.Haken("Winamp_Mini_verstecken", [&e] { return e.WinAmp_verstecken_minimiert; });
    for (int n = 1; n <= 4; ++n)
        menü.Befehl(
            "Menü_WinAmp_Beenden", [&optionen, n] { optionen.Menü_WinAmp_Beenden(n); }, n);
    menü.nur_Haken("Menü_WinAmp_Beenden", 1, 4, [&e] { return e.WinAmp_beenden; });
    optionen.geändert.verbinden([&menü] { menü.nachführen(); });
}

}  // namespace

void Wiedergabe_anschließen(Wiedergabe& wiedergabe, Liedautomatik& automatik, Haus& haus, Tonkartei& fenster) {
    fenster.wurde_geladen = [&takt = wiedergabe.Takt] { takt.starten(); };
    fenster.minimiert.verbinden([&spieler = wiedergabe.Spieler](bool klein) {
        if (klein)
            spieler.Hauptfenster_minimiert();
        else
            spieler.Hauptfenster_normal();
    });
    fenster.Lieder.Lied_starten.verbinden([&spieler = wiedergabe.Abspieler](Long nr) { spieler.starte_Lied(nr); });
    wiedergabe.Zählung.gezählt.verbinden([&fenster](Long nr) { fenster.Lieder.Anzahl_auffrischen(nr); });
    wiedergabe.Starter.Liste_gestartet.verbinden([&fenster] {
        if (fenster.aktiv() && !fenster.Wiedergabe.Autoplay.wert()) fenster.Lieder.Schnellsuche_fokussieren();
    });
    wiedergabe.Takt.Anzeige_Schritt.verbinden([&fenster] { fenster.Fernsteuerung.anzeigen(); });
    fenster.Lieder.Start_gewünscht.verbinden([&start = automatik.Start] { start.Lied_starten(); });
    fenster.Fernsteuerung.Zufallslied_gewünscht.verbinden([&fenster, &start = automatik.Start] {
        if (fenster.Wiedergabe.Zufallslied_starten.aktiv()) start.Zufallslied_starten();
    });

    Menü_anschließen(wiedergabe.Optionen, automatik.Optionen, haus.einstellungen, fenster);
    fenster.Menüleiste.Befehl("zeige_Random_Liste",
                              [&zählung = wiedergabe.Zählung, &fenster] { gespielte_zeigen(zählung, fenster.Lieder); });
}

}  // namespace tonkartei
