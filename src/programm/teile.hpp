// All of the program: each room's object after those that it stands on, then what joins them.
#pragma once

#include "alben/albenraum.hpp"
#include "albenverwaltung/albenverwaltung.hpp"
#include "ausgabe/ausgaberaum.hpp"
#include "austausch/austausch.hpp"
#include "datenbank/datenbankraum.hpp"
#include "display/displayraum.hpp"
#include "dj/alt/djraum_alt.hpp"
#include "dj/djraum.hpp"
#include "kategorien/kategorienraum.hpp"
#include "lieder/liederraum.hpp"
#include "playlist/playlist.hpp"
#include "programm/infofenster.hpp"
#include "programm/kontextmenues.hpp"
#include "programm/lied_befehle.hpp"
#include "programm/mausmarkierung.hpp"
#include "programm/playlist_anschluss.hpp"
#include "programm/programm.hpp"
#include "programm/programmeinstellungen.hpp"
#include "programm/splash.hpp"
#include "programm/startparameter.hpp"
#include "programm/tonkartei.hpp"
#include "statistik/statistikraum.hpp"
#include "wiedergabe/wiedergabe.hpp"
#include "wiedergabe/zufall/liedautomatik.hpp"

namespace tonkartei {

struct Programm::Teile {
    Teile(const Plattform& plattform, Ansicht& ansicht, const Text& Kommandozeile);

    // The start sequence's steps.
    void starten();
    void gerufen();

private:
    void anschließen();
    bool darf_schließen(Schließgrund grund);
    void wird_geschlossen();

    const Startparameter parameter_;
    Haus haus_;

    Datenbankraum datenbank_{haus_};
    Albenraum alben_{datenbank_};
    Kategorienraum kategorien_{haus_};
    Wiedergabe wiedergabe_{haus_};
    Tonkartei fenster_{haus_, alben_, kategorien_, wiedergabe_.Spieler};
    Liedautomatik automatik_{haus_, alben_.start, wiedergabe_, fenster_.bereiche()};
    Playlist playlist_{haus_, datenbank_.m3u, fenster_.Lieder, wiedergabe_.Starter};
    Liederraum lieder_{datenbank_, alben_, kategorien_, wiedergabe_, fenster_.Lieder};
    Albenverwaltung albenverwaltung_{datenbank_, alben_, {fenster_.Lieder, alben_.start, playlist_, wiedergabe_.Abspieler}};
    Austausch austausch_{datenbank_, kategorien_, lieder_, wiedergabe_, fenster_.Lieder};
    Statistikraum statistik_{haus_, wiedergabe_, playlist_};
    Ausgaberaum ausgabe_{haus_, fenster_.Lieder};
    Displayraum display_{haus_};
    DJ_Raum dj_{haus_, wiedergabe_, alben_};
    DJ_alt_Raum dj_alt_{haus_, wiedergabe_};

    Splash splash_{datenbank_};
    Infofenster infofenster_{haus_.ansicht, haus_.modell};
    Programmeinstellungen einstellungen_{haus_, datenbank_.registry, fenster_};
    Lied_Befehle lied_befehle_{haus_, lieder_, kategorien_.wahl, fenster_};
    Playlist_Anschluss playlist_anschluss_{haus_, playlist_, fenster_};
    Kontextmenüs kontextmenüs_{haus_.modell, fenster_, playlist_, wiedergabe_.Spieler, automatik_.Start};
    Mausmarkierung markierung_{fenster_, haus_.einstellungen, fenster_.Fernsteuerung};
};

}  // namespace tonkartei
