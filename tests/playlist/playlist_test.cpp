// The window Playlist by itself: its list, its questions, its files.
#include <gtest/gtest.h>

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "kategorien/kategorienraum.hpp"
#include "liste/listenbereich.hpp"
#include "oberflaeche/hand.hpp"
#include "playlist/playlist.hpp"
#include "probe/probehaus.hpp"
#include "wiedergabe/wiedergabe.hpp"

namespace tonkartei {
namespace {

using Zeilen = std::vector<Text>;

const Text Doppelt =
    "Lied hinzufügen|Dieses Lied befindet sich bereits in der Playlist.\r\rWollen sie es trotzdem nochmal hinzufügen?";
const Text Beenden =
    "Playlist beenden|Die aktuelle Playlist ist noch nicht gespeichert!\r\rWollen sie diese noch vor dem beenden speichern?";
const Text Neue = "neue Playlist|Wollen sie die aktuelle Playlist noch speichern?";
const Text Leeren = "Lieder löschen|Wollen sie wirklich alle 2 Lieder aus der Playliste löschen?";

struct Playlistbühne : testing::Test, Probehaus {
    Datenbankraum datenbank{haus};
    Albenraum alben{datenbank};
    Kategorienraum kategorien{haus};
    Fenster haupt{ansicht, "Tonkartei", "Tonkartei"};
    Kategorienbereich kästen{haupt, modell, einstellungen, kategorien.bearbeiten};
    Listenbereich liste{haupt, haus, alben, kästen};
    Wiedergabe wiedergabe{haus};
    Playlist playlist{haus, datenbank.m3u, liste, wiedergabe.Starter};
    const Text o = ordner.pfad();

    Playlistbühne() {
        for (const auto& [artist, titel] :
             {std::pair{"beck", "Loser"}, {"Ärzte", "Zu spät"}, {"Beck", "Loser"}, {"Abba", "Waterloo"}})
            modell.Lieder[++modell.Anzahl_Lieder] = {.Artist = artist, .Größe = 1'000'000, .Titel = titel};
        playlist.zeigen();
    }
    Text folge() const {
        Text alle;
        for (const Text& nr : playlist.Nr_Liste.zeilen()) alle += nr;
        return alle;
    }
    Zeilen gesagt() { return ansicht.gefragt(); }
    void menü(const char* name) { Hand::klicken(*playlist.element(name, -1)); }
    // By the question of the closing, which is refused; the window stays or comes back empty.
    bool gespeichert() {
        gesagt();
        ansicht.Antworten = {Antwort::Abbrechen};
        const bool ja = playlist.schließen(Schließgrund::Hand);
        EXPECT_EQ(gesagt(), ja ? Zeilen{} : Zeilen{Beenden});
        ansicht.Antworten.clear();
        playlist.zeigen();
        return ja;
    }
};

TEST_F(Playlistbühne, aufnehmen_ordnen_löschen) {
    for (const Long nr : {3, 2, 1, 4}) playlist.add_Lied(nr, true);
    EXPECT_EQ(gesagt(), Zeilen{});
    playlist.add_Lied(4, true);
    ansicht.Antworten = {Antwort::Ja, Antwort::Nein};  // the last answer counts
    playlist.add_Lied(4, true);
    EXPECT_EQ(gesagt(), (Zeilen{Doppelt, Doppelt, Doppelt}));
    EXPECT_THROW(playlist.add_Lied(0, true), Laufzeitfehler);
    menü("sortieren");
    EXPECT_EQ(playlist.Liste.zeilen(),
              (Zeilen{"Abba - Waterloo", "Abba - Waterloo", "Ärzte - Zu spät", "beck - Loser", "Beck - Loser"}));
    // Line chosen, step, line chosen afterwards, numbers.
    const struct {
        int wahl, stufe, danach;
        Text folge;
    } schritte[] = {
        {-1, 1, -1, "44213"}, {0, 1, 0, "44213"}, {4, 3, 4, "44213"}, {4, 1, 3, "44231"}, {1, 3, 2, "42431"},
    };
    for (const auto& s : schritte) {
        playlist.Liste.wähle(s.wahl);
        Hand::schieben(playlist.Reihenfolge, s.stufe);
        EXPECT_EQ(playlist.Reihenfolge.wert(), 2);
        EXPECT_EQ(playlist.Liste.gewählt(), s.danach);
        EXPECT_EQ(folge(), s.folge);
    }
    for (const int danach : {3, 2, 1}) {
        if (danach == 3) playlist.Liste.wähle(3);
        Hand::klicken(playlist.löschen);
        EXPECT_EQ(playlist.Liste.gewählt(), danach);
    }
    ansicht.Antworten = {Antwort::Nein};
    for (int i = 0; i < 2; ++i) Hand::klicken(playlist.alle_löschen);
    EXPECT_EQ(gesagt(), (Zeilen{Leeren, Leeren}));
    EXPECT_EQ(playlist.Liste_Anzahl.beschriftung(), "0");
    EXPECT_FALSE(gespeichert());
}

TEST_F(Playlistbühne, was_nicht_geht_bleibt_still) {
    einstellungen.WinAmp_Verzeichnis = ordner.pfad("fehlt/");
    for (const char* befehl : {"starten", "speichern", "erstelle_Datenbank"}) menü(befehl);
    EXPECT_EQ(gesagt(), Zeilen{});
    playlist.add_Lieder({4, 1});
    menü("starten");
    EXPECT_TRUE(fenster.Spielerliste().empty());
    ansicht.Datei = ordner.pfad("fehlt/x.m3u");
    menü("speichern");
    EXPECT_FALSE(gespeichert());
    ansicht.Datei = ordner.datei("x.m3u", std::string(500, 'x'));
    menü("speichern");
    EXPECT_EQ(ordner.inhalt("x.m3u"), o + "00000004.MP3\r\n" + o + "00000001.MP3\r\n");
    EXPECT_TRUE(gespeichert());
    // A file with no song of the collection leaves the list, and the count is that of the list.
    playlist.add_Lied(3, false);
    ordner.datei("x.m3u", "00000002.MP3\r\n" + o + "00000005.MP3\r\n");
    menü("öffnen");
    EXPECT_EQ(gesagt(),
              (Zeilen{"öffnen", "Playlist öffnen|Es wurde 1 Lied aus dieser Datenbank in der Playlist gefunden."}));
    EXPECT_FALSE(gespeichert());
    ansicht.Datei = ordner.pfad("fehlt.m3u");
    menü("öffnen");
    EXPECT_EQ(gesagt(), Zeilen{"öffnen"});
    EXPECT_EQ(folge(), "3");
}

TEST_F(Playlistbühne, Neu_und_Schließen_fragen) {
    playlist.add_Lieder({1, 2});
    ansicht.Antworten = {Antwort::Abbrechen, Antwort::Ja, Antwort::Nein};  // Yes saves nothing without a name
    playlist.Neu();
    playlist.Neu();
    EXPECT_EQ(gesagt(), (Zeilen{Neue, Neue, "speichern", Leeren}));
    EXPECT_EQ(playlist.Liste.Anzahl(), 2);
    playlist.Neu();
    EXPECT_EQ(gesagt(), Zeilen{Leeren});
    EXPECT_EQ(playlist.Liste.Anzahl(), 0);
    // Reason, changed, answer: closed, what is asked, still counted as open.
    const struct {
        Schließgrund grund;
        bool geändert;
        Antwort antwort;
        bool zu;
        Zeilen gefragt;
        bool Status;
    } fälle[] = {
        {Schließgrund::Hand, false, Antwort::Abbrechen, true, {}, false},
        {Schließgrund::Hand, true, Antwort::Abbrechen, false, {Beenden}, true},
        {Schließgrund::Hand, true, Antwort::Nein, true, {Beenden}, false},
        {Schließgrund::Hand, true, Antwort::Ja, true, {Beenden, "speichern"}, false},
        {Schließgrund::Programm, true, Antwort::Abbrechen, true, {}, false},
        {Schließgrund::außen, true, Antwort::Abbrechen, true, {}, true},
    };
    for (const auto& fall : fälle) {
        playlist.entladen();
        playlist.zeigen();
        EXPECT_EQ(playlist.Liste.Anzahl(), 0);
        if (fall.geändert) playlist.add_Lied(3, false);
        ansicht.Antworten = {fall.antwort};
        EXPECT_EQ(playlist.schließen(fall.grund), fall.zu);
        EXPECT_EQ(gesagt(), fall.gefragt);
        EXPECT_EQ(einstellungen.Playlist_Status, fall.Status);
    }
}

}  // namespace
}  // namespace tonkartei
