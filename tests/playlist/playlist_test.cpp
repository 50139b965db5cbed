// The window Playlist by itself: its list, its questions, its files.
#include <gtest/gtest.h>

#include <deque>

#include "datenbank/einstellungen.hpp"
#include "datenbank/m3u.hpp"
#include "oberflaeche/hand.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "playlist/playlist.hpp"
#include "probe/stumme_ansicht.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

// Answers from a row; what is not told is OK or Yes.
struct Ansicht_mit_Antworten : Stumme_Ansicht {
    std::deque<Antwort> antworten;
    Text datei;  // what the user picks
    int dateifragen = 0;
    Antwort melden(const Meldungsfeld& feld) override {
        const Antwort vorgabe = Stumme_Ansicht::melden(feld);
        if (feld.art != Meldungsfeld::Art::Frage || antworten.empty()) return vorgabe;
        const Antwort antwort = antworten.front();
        antworten.pop_front();
        return antwort;
    }
    Text Datei_wählen(const Dateiwahl& wahl) override {
        ++dateifragen;
        EXPECT_EQ(wahl.filter, "WinAmp-Playlist (*.M3U)|*.M3U| Alle Dateien (*.*) |*.*");
        EXPECT_EQ(wahl.muss_existieren, !wahl.speichern);
        return datei;
    }
    std::vector<Text> neue_Meldungen() { return std::exchange(Meldungen, {}); }
};

using Zeilen = std::vector<Text>;

const Text Doppelt =
    "Lied hinzufügen|Dieses Lied befindet sich bereits in der Playlist.\r\rWollen sie es trotzdem nochmal hinzufügen?";
const Text Beenden =
    "Playlist beenden|Die aktuelle Playlist ist noch nicht gespeichert!\r\rWollen sie diese noch vor dem beenden speichern?";
const Text Neue = "neue Playlist|Wollen sie die aktuelle Playlist noch speichern?";
Text Alle_löschen(int n) {
    return "Lieder löschen|Wollen sie wirklich alle " + Zahltext(n) + " Lieder aus der Playliste löschen?";
}
Text Gefunden(const Text& anzahl) {
    return "Playlist öffnen|Es " + anzahl + " aus dieser Datenbank in der Playlist gefunden.";
}

struct Playlistbühne : testing::Test {
    Testordner ordner;
    Dateisystem_Linux dateien;
    Kanäle kanäle{dateien};
    Ansicht_mit_Antworten ansicht;
    Modell modell;
    Einstellungen einstellungen;
    M3U m3u{modell, kanäle};
    Playlist playlist{ansicht, modell, einstellungen, dateien, m3u};
    Text o = ordner.pfad();

    Playlistbühne() {
        modell.Datenbank_offen = true;
        modell.Datenbank_Verzeichnis = o;
        for (const auto& [artist, titel] :
             {std::pair{"beck", "Loser"}, {"Ärzte", "Zu spät"}, {"Beck", "Loser"}, {"Abba", "Waterloo"}}) {
            Lied& lied = modell.Lieder[++modell.Anzahl_Lieder];
            lied = {.Artist = artist, .Größe = 1'000'000, .Titel = titel};
        }
        playlist.zeigen();
    }
    void füllen(const std::vector<Long>& nummern) {
        for (const Long nr : nummern) playlist.add_Lied(nr, false);
    }
    const Zeilen& nummern() const { return playlist.Nr_Liste.zeilen(); }
    void menü(const char* name) { Hand::klicken(*playlist.element(name, -1)); }
    bool gespeichert() {  // by the question of the closing, which is refused
        ansicht.antworten = {Antwort::Abbrechen};
        const bool ja = playlist.schließen(Schließgrund::Hand);
        EXPECT_EQ(ansicht.neue_Meldungen(), ja ? Zeilen{} : Zeilen{Beenden});
        ansicht.antworten.clear();
        return ja;
    }
};

TEST_F(Playlistbühne, fragt_je_doppelter_Zeile_und_die_letzte_Antwort_zählt) {
    playlist.add_Lied(1, true);
    playlist.add_Lied(1, false);
    ansicht.antworten = {Antwort::Nein, Antwort::Ja};
    playlist.add_Lied(1, true);
    EXPECT_EQ(ansicht.neue_Meldungen(), (Zeilen{Doppelt, Doppelt}));
    EXPECT_EQ(nummern(), (Zeilen{"1", "1", "1"}));
    ansicht.antworten = {Antwort::Ja, Antwort::Ja, Antwort::Nein};
    playlist.add_Lied(1, true);
    EXPECT_EQ(playlist.Liste_Anzahl.beschriftung(), "3");
    EXPECT_EQ(playlist.Liste.zeilen(), (Zeilen{"beck - Loser", "beck - Loser", "beck - Loser"}));
    EXPECT_THROW(playlist.add_Lied(0, true), Laufzeitfehler);
    EXPECT_EQ(playlist.Liste.Anzahl(), 3);
}

TEST_F(Playlistbühne, ordnen_und_löschen) {
    füllen({3, 2, 1, 4, 4});
    menü("sortieren");
    EXPECT_EQ(nummern(), (Zeilen{"4", "4", "2", "1", "3"}));
    EXPECT_EQ(playlist.Liste.zeile(2), "Ärzte - Zu spät");
    EXPECT_EQ(playlist.Liste.gewählt(), -1);
    // Line chosen, step, line chosen afterwards, numbers.
    const struct {
        int wahl, stufe, danach;
        Zeilen nummern;
    } schritte[] = {
        {-1, 1, -1, {"4", "4", "2", "1", "3"}}, {0, 1, 0, {"4", "4", "2", "1", "3"}}, {4, 3, 4, {"4", "4", "2", "1", "3"}},
        {4, 1, 3, {"4", "4", "2", "3", "1"}},   {1, 3, 2, {"4", "2", "4", "3", "1"}},
    };
    for (const auto& s : schritte) {
        playlist.Liste.wähle(s.wahl);
        Hand::schieben(playlist.Reihenfolge, s.stufe);
        EXPECT_EQ(playlist.Reihenfolge.wert(), 2);
        EXPECT_EQ(playlist.Liste.gewählt(), s.danach);
        EXPECT_EQ(nummern(), s.nummern);
    }
    EXPECT_EQ(playlist.Liste.zeile(4), "beck - Loser");
    playlist.Liste.wähle(3);
    Hand::klicken(playlist.löschen);
    EXPECT_EQ(playlist.Liste.gewählt(), 3);
    Hand::Taste_drücken(playlist.Liste, {.art = Taste::Art::Löschen});
    EXPECT_EQ(playlist.Liste.gewählt(), 2);
    ansicht.antworten = {Antwort::Nein};
    Hand::klicken(playlist.alle_löschen);
    EXPECT_EQ(nummern(), (Zeilen{"4", "2", "4"}));
    Hand::klicken(playlist.alle_löschen);
    EXPECT_EQ(ansicht.neue_Meldungen(), (Zeilen{Alle_löschen(3), Alle_löschen(3)}));
    EXPECT_EQ(playlist.Liste_Anzahl.beschriftung(), "0");
    füllen({1});
    Hand::klicken(playlist.alle_löschen);
    Hand::klicken(playlist.alle_löschen);
    EXPECT_EQ(ansicht.neue_Meldungen(), Zeilen{});
    EXPECT_FALSE(gespeichert());
}

// The song that a number means may change or go.
TEST_F(Playlistbühne, Nummern_bleiben) {
    füllen({1, 4, 2});
    playlist.Liste.wähle(1);
    modell.Lieder[2] = modell.Lieder[3];
    modell.Anzahl_Lieder = 3;
    playlist.aktualisieren();
    EXPECT_EQ(playlist.Liste.zeilen(), (Zeilen{"beck - Loser", "---", "Beck - Loser"}));
    EXPECT_EQ(nummern(), (Zeilen{"1", "4", "2"}));
    EXPECT_EQ(playlist.Liste.gewählt(), 1);
    playlist.immer_oben(true);
    menü("Dateigröße");
    EXPECT_EQ(ansicht.neue_Meldungen(), Zeilen{"Dateigröße der Playlist|Die Lieder in der Liste benötigen 2.000.000 kB "
                                               "(1953 MB) Speicherplatz."});
    EXPECT_TRUE(playlist.immer_oben());
    // Without the one that is gone.
    Zeilen auszug;
    playlist.Datenbank_vorbereiten = [&](const std::vector<Playlist::Auszug>& lieder) {
        EXPECT_TRUE(playlist.geladen());
        for (const auto& lied : lieder) auszug.push_back(lied.Name + "|" + lied.Pfad);
    };
    playlist.Datenbank_anlegen = [&] {
        EXPECT_FALSE(playlist.geladen());
        auszug.push_back("anlegen");
    };
    menü("erstelle_Datenbank");
    EXPECT_EQ(auszug, (Zeilen{"beck - Loser|" + o + "00000001.MP3", "Beck - Loser|" + o + "00000002.MP3", "anlegen"}));
    EXPECT_EQ(ansicht.neue_Meldungen(), Zeilen{});
    EXPECT_FALSE(einstellungen.Playlist_Status);
}

TEST_F(Playlistbühne, speichern_und_öffnen) {
    Zeilen gestartet;
    playlist.starte_WinAmp_Liste = [&](const Text& datei) { gestartet.push_back(datei); };
    einstellungen.WinAmp_Verzeichnis = ordner.pfad("fehlt/");
    for (const char* befehl : {"starten", "speichern", "erstelle_Datenbank"}) menü(befehl);
    EXPECT_EQ(ansicht.dateifragen, 0);
    füllen({4, 1});
    menü("starten");
    EXPECT_EQ(gestartet, Zeilen{});
    einstellungen.WinAmp_Verzeichnis = ordner.ordner("wa");
    menü("starten");
    EXPECT_EQ(gestartet, Zeilen{ordner.pfad("wa/Tonkartei-Playlist.M3U")});
    EXPECT_EQ(ordner.inhalt("wa/Tonkartei-Playlist.M3U"), o + "00000004.MP3\r\n" + o + "00000001.MP3\r\n");

    ansicht.datei = ordner.pfad("fehlt/x.m3u");
    menü("speichern");
    EXPECT_FALSE(gespeichert());
    ansicht.datei = ordner.pfad("x.m3u");
    ordner.datei("x.m3u", std::string(500, 'x'));
    menü("speichern");
    EXPECT_EQ(ordner.inhalt("x.m3u"), ordner.inhalt("wa/Tonkartei-Playlist.M3U"));
    EXPECT_TRUE(gespeichert());

    playlist.zeigen();
    füllen({2, 2, 2});
    menü("öffnen");
    EXPECT_EQ(nummern(), (Zeilen{"4", "1"}));
    EXPECT_EQ(ansicht.neue_Meldungen(), Zeilen{Gefunden("wurden 2 Lieder")});
    EXPECT_TRUE(gespeichert());
    playlist.zeigen();
    // A file with no song of the collection leaves the list, and the count is that of the list.
    füllen({3});
    ordner.datei("x.m3u", "00000002.MP3\r\n" + o + "00000005.MP3\r\n");
    menü("öffnen");
    EXPECT_EQ(nummern(), Zeilen{"3"});
    EXPECT_EQ(ansicht.neue_Meldungen(), Zeilen{Gefunden("wurde 1 Lied")});
    EXPECT_FALSE(gespeichert());
    for (const Text& keine : {Text(), ordner.pfad("fehlt.m3u"), ordner.pfad("wa")}) {
        ansicht.datei = keine;
        menü("öffnen");
    }
    EXPECT_EQ(ansicht.neue_Meldungen(), Zeilen{});
    ansicht.datei = ordner.datei("x.m3u", o + ".MP3");
    EXPECT_THROW(menü("öffnen"), Laufzeitfehler);
    EXPECT_EQ(nummern(), Zeilen{"3"});
}

TEST_F(Playlistbühne, Neu_und_Schließen_fragen) {
    EXPECT_TRUE(playlist.Neu());
    füllen({1, 2});
    ansicht.antworten = {Antwort::Abbrechen};
    EXPECT_FALSE(playlist.Neu());
    ansicht.antworten = {Antwort::Ja, Antwort::Nein};  // saves nothing without a name, keeps the list
    EXPECT_FALSE(playlist.Neu());
    EXPECT_EQ(ansicht.dateifragen, 1);
    EXPECT_EQ(ansicht.neue_Meldungen(), (Zeilen{Neue, Neue, Alle_löschen(2)}));
    EXPECT_TRUE(playlist.Neu());
    EXPECT_EQ(ansicht.neue_Meldungen(), Zeilen{Alle_löschen(2)});
    EXPECT_EQ(playlist.Liste.Anzahl(), 0);

    // Reason, changed, answer: closed, asked, still counted as open.
    const struct {
        Schließgrund grund;
        bool geändert;
        Antwort antwort;
        bool zu, gefragt, Status;
    } fälle[] = {
        {Schließgrund::Hand, false, Antwort::Abbrechen, true, false, false},
        {Schließgrund::Hand, true, Antwort::Abbrechen, false, true, true},
        {Schließgrund::Hand, true, Antwort::Nein, true, true, false},
        {Schließgrund::Hand, true, Antwort::Ja, true, true, false},
        {Schließgrund::Programm, true, Antwort::Abbrechen, true, false, false},
        {Schließgrund::außen, true, Antwort::Abbrechen, true, false, true},
    };
    ansicht.datei = ordner.pfad("y.m3u");
    for (const auto& fall : fälle) {
        playlist.entladen();
        playlist.zeigen();
        EXPECT_EQ(playlist.Liste.Anzahl(), 0);
        if (fall.geändert) füllen({3});
        ansicht.antworten = {fall.antwort};
        EXPECT_EQ(playlist.schließen(fall.grund), fall.zu);
        EXPECT_EQ(!ansicht.neue_Meldungen().empty(), fall.gefragt);
        EXPECT_EQ(einstellungen.Playlist_Status, fall.Status);
        EXPECT_EQ(ordner.da("y.m3u"), fall.antwort == Antwort::Ja || fall.grund != Schließgrund::Hand);
    }
}

}  // namespace
}  // namespace tonkartei
