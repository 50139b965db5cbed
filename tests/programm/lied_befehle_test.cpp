// The commands on one song and on all songs in the list: what they ask, and what is on the disk afterwards.
#include <functional>

#include "programm/lied_buehne.hpp"

namespace tonkartei {
namespace {

class Lied_Befehle : public Lied_Bühne {};

const std::string Umbenennen = "Fehler|Beim Umbennen ist ein Fehler aufgetreten!|i";

TEST_F(Lied_Befehle, löschen) {
    struct Fall {
        int anzahl, nr;
        const char* danach;
    };
    for (const bool papierkorb : {false, true})
        for (const Fall& fall : {Fall{10, 7, "1 2 3 4 5 6 10 8 9"},
                                 {10, 10, "1 2 3 4 5 6 7 8 9 10-"},
                                 {1, 1, "1-"},
                                 {2, 1, "2"},
                                 {3, 2, "1 3"}}) {
            SCOPED_TRACE(fall.danach);
            lege(fall.anzahl);
            starte(papierkorb);
            wähle(fall.nr);
            hand("klick Tonkartei.Lied_löschen");
            const std::string n = std::to_string(fall.nr);
            EXPECT_EQ(geschehen(), Zeilen{"Lied löschen|Wollen sie das Lied \"T" + n + "\" von \"A" + n +
                                          "\" wirklich löschen?|?*Ja/Nein"});
            hand("antwort Nein");
            EXPECT_TRUE(ordner.da(datei(fall.nr)));
            hände({"klick Tonkartei.Menü_Lied_löschen", "antwort Ja"});
            EXPECT_EQ(b->bereit(), "schleife");
            EXPECT_EQ(stand(), fall.danach);
            EXPECT_EQ(vorhanden(fall.nr), 0);
            const std::string korb = "wurzel/papierkorb/files/A" + n + " - T" + n + ".MP3";
            EXPECT_EQ(ordner.da(korb), papierkorb) << korb;
            std::filesystem::remove_all(ordner.pfad("wurzel"));
        }
}

TEST_F(Lied_Befehle, Alben_und_Statistik_folgen) {
    lege(10);
    const auto album = [](const std::string& von_7, const std::string& von_10) {
        return "Tonkartei\r\nV 1.02 16\r\nDatenbank Alben-Verwaltung\r\n 1 \r\n 2 \r\nA\r\n 2000 "
               "\r\nF\r\nB\r\nA7\r\n0\r\n0\r\n"
               "0\r\n" +
               von_7 + "\r\nT7\r\nA10\r\n0\r\n0\r\n0\r\n" + von_10 + "\r\nT10\r\n";
    };
    ordner.datei("a/MP3_Info.ALB", album("T\r\n 7 ", "T\r\n 10 "));
    ordner.datei("a/MP3_Info.ABR", "0007: voll\r\n0008: voll\r\n0009: voll\r\n0008: 12\r\n");
    starte(false);
    wähle(7);
    hände({"klick Tonkartei.Lied_löschen", "antwort Ja", "klick Tonkartei.Menü_schreibe_Datenbank", "antwort OK"});
    EXPECT_EQ(ordner.inhalt("a/MP3_Info.ALB"), album("F\r\n 0 ", "T\r\n 7 "));
    // The number of the statistic that moves is the one below the last song's.
    EXPECT_EQ(ordner.inhalt("a/MP3_Info.ABR"), "   8: voll\r\n   7: voll\r\n");
}

TEST_F(Lied_Befehle, alle_in_der_Liste_löschen) {
    lege(10);
    for (const int n : {3, 4, 10}) std::filesystem::remove(ordner.pfad(datei(n)));
    Sammlung s;
    s.Lieder.clear();
    for (int n = 1; n <= 10; ++n)
        s.Lieder.push_back({"A" + std::to_string(n), n == 3 || n == 4 || n == 10 ? "weg" : "T", n});
    ordner.datei("a/MP3_Info.MDB", s.bytes());
    for (const int n : {3, 4, 10}) ordner.datei(datei(n), bytes(n));
    starte(false);
    hände({"setze Tonkartei.Schnellsuche weg", "klick Tonkartei.alle_Lieder_löschen"});
    EXPECT_EQ(geschehen(), Zeilen{"Lieder löschen|Wollen sie wirklich die 3 Lieder in der Liste löschen?|?*Ja/Nein"});
    hand("antwort Ja");
    // Nobody is left at the end to take the places of 4 and 3.
    EXPECT_EQ(geschehen(), Zeilen{Umbenennen});
    hand("antwort OK");
    EXPECT_EQ(geschehen(), Zeilen{Umbenennen});
    hände({"antwort OK", "setze Tonkartei.Schnellsuche \"\""});
    EXPECT_EQ(stand(), "1 2 3- 4- 5 6 7 8 9 10-");
    hände({"klick Tonkartei.Lücken_füllen", "antwort Ja"});
    EXPECT_EQ(geschehen().back(), "Lücken suchen/auffüllen|Es wurden 3 Lücken gefunden und wieder aufgefüllt.|i");
    hand("antwort OK");
    EXPECT_EQ(stand(), "1 2 9 8 5 6 7");

    // One alone goes without a question; the number of an album is not that of a song.
    geschehen();
    hände({"setze Tonkartei.Schnellsuche A5", "klick Tonkartei.alle_Lieder_löschen", "setze Tonkartei.Schnellsuche \"\""});
    EXPECT_EQ(geschehen(), Zeilen{});
    EXPECT_EQ(stand(), "1 2 9 8 7 6");
    ordner.datei("a/MP3_Info.ALB",
                 "Tonkartei\r\nV 1.02 16\r\nDatenbank Alben-Verwaltung\r\n 1 \r\n 0 \r\nA\r\n 2000 \r\nF\r\nB\r\n");
    hände({"wähle Tonkartei.Datenbank_Modus 1", "klick Tonkartei.alle_Lieder_löschen", "klick Tonkartei.Lieder_Anzahl"});
    EXPECT_EQ(geschehen(), Zeilen{});
}

TEST_F(Lied_Befehle, Lücken) {
    struct Fall {
        int anzahl;
        std::vector<int> ohne;
        const char *meldung, *danach;
    };
    const std::string kopf = "Lücken suchen/auffüllen|";
    for (const Fall& fall : std::vector<Fall>{{5, {2, 5}, "Es wurden 2 Lücken gefunden und wieder aufgefüllt.", "1 4 3"},
                                              {3, {}, "Es wurden keine Lücken in der Datenbank gefunden.", "1 2 3"},
                                              {6, {1, 2, 4}, "Es wurden 3 Lücken gefunden und wieder aufgefüllt.", "6 5 3"},
                                              {3, {1, 2, 3}, "Es wurden 3 Lücken gefunden und wieder aufgefüllt.", ""}}) {
        lege(fall.anzahl, fall.ohne);
        starte(false);
        hand("klick Tonkartei.Lücken_füllen");
        EXPECT_EQ(
            geschehen(),
            Zeilen{kopf +
                   "Achtung: Eine Lücke in der Datenbank ist ein schwerer Fehler!\n\nEs existiert zwar noch der Eintag "
                   "in der Datenbank, aber die MP3-Datei fehlt. Wenn sie jetzt die Lücken füllen gehen die "
                   "Informationen über die fehlenden Lieder verloren. Wenn sie wissen möchten, ob es Lücken gibt, und "
                   "wenn ja bei welchen Liedern wählen sie den Menüpunkt Namen/Größe mit MP3's vergleichen aus dem "
                   "Untermenü Wartung/Fehlersuche.\n\nWollen sie jetzt nach Lücken suchen und diese "
                   "füllen?|?*Ja/Nein"});
        hand("antwort Ja");
        EXPECT_EQ(geschehen().back(), kopf + fall.meldung + "|i");
        hand("antwort OK");
        EXPECT_EQ(stand(), fall.danach);
    }
    hand("klick Tonkartei.Lücken_füllen");
    EXPECT_EQ(geschehen(), Zeilen{kopf + "Es sind noch keine Lieder in der Datenbank!|i"});
}

// Whichever file operation fails: the songs that were to stay are all there, and the gap repair brings records and files
// together again.
TEST_F(Lied_Befehle, nichts_geht_verloren) {
    struct Befehl {
        const char* name;
        std::vector<int> ohne_Datei;
        std::vector<int> gemeint;  // may be gone afterwards
        std::function<void()> tun;
    };
    const std::string ersatz = ordner.datei("ersatz.mp3", bytes(77));
    const std::vector<Befehl> befehle{
        {"löschen", {}, {2}, [&] { wähle(2), hand("klick Tonkartei.Lied_löschen"); }},
        {"alle",
         {},
         {1, 3},
         [&] {
             hände({"setze Tonkartei.Schnellsuche weg", "klick Tonkartei.alle_Lieder_löschen"});
         }},
        {"Lücken", {1, 3}, {}, [&] { hand("klick Tonkartei.Lücken_füllen"); }},
        {"tauschen", {}, {2}, [&] {
             wähle(2);
             hände({"klick Tonkartei.Menü_Lied_tauschen", "antwort Ja", "antwort OK", "pfad " + Bediener::zitiert(ersatz),
                    "antwort Nein"});
         }}};
    for (const Befehl& befehl : befehle)
        for (const bool papierkorb : {false, true})
            for (const char* vorgang : {"umbenennen", "löschen", "kopieren", "öffnen", "anlegen"})
                for (int n = 1; n <= 3; ++n) {
                    SCOPED_TRACE(std::string(befehl.name) + " " + vorgang + " " + std::to_string(n) +
                                 (papierkorb ? " Papierkorb" : ""));
                    std::filesystem::remove_all(ordner.pfad("wurzel"));
                    lege(5, befehl.ohne_Datei);
                    if (befehl.name == std::string("alle")) {
                        Sammlung s;
                        s.Lieder.clear();
                        for (int k = 1; k <= 5; ++k)
                            s.Lieder.push_back({"A" + std::to_string(k), k == 1 || k == 3 ? "weg" : "T"});
                        ordner.datei("a/MP3_Info.MDB", s.bytes());
                    }
                    starte(papierkorb);
                    hand(std::string("störung ") + vorgang + " " + std::to_string(n));
                    befehl.tun();
                    bis_zur_Ruhe();
                    const auto darf_fehlen = [&](int k) {
                        return std::count(befehl.gemeint.begin(), befehl.gemeint.end(), k) +
                                   std::count(befehl.ohne_Datei.begin(), befehl.ohne_Datei.end(), k) >
                               0;
                    };
                    for (int k = 1; k <= 5; ++k) EXPECT_GE(vorhanden(k), darf_fehlen(k) ? 0 : 1) << k;
                    EXPECT_EQ(ordner.inhalt("ersatz.mp3"), bytes(77));
                    hände({"setze Tonkartei.Schnellsuche \"\"", "klick Tonkartei.Lücken_füllen"});
                    bis_zur_Ruhe();
                    const std::string danach = " " + stand() + " ";
                    EXPECT_EQ(danach.find('-'), std::string::npos) << danach;
                    for (int k = 1; k <= 5; ++k) {
                        if (!darf_fehlen(k)) {
                            EXPECT_NE(danach.find(" " + std::to_string(k) + " "), std::string::npos) << danach;
                        }
                    }
                }
}

}  // namespace
}  // namespace tonkartei
