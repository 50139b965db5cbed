// The road of a song: added, listed, started, counted, saved, there again.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>

#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Lieder : public Bühne {
protected:
    std::string a = sammlung("a");
    std::string quelle = ordner.ordner("quelle");
    static constexpr std::time_t Damals = 1000000000;  // 9 September 2001

    void lege(const std::string& name, const std::string& bytes, std::time_t zeit = Damals) const {
        setze_Zeit(ordner.datei("quelle/" + name, bytes), zeit);
    }
    static void setze_Zeit(const std::string& pfad, std::time_t zeit) {
        const timespec zeiten[2]{{zeit, 0}, {zeit, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, pfad.c_str(), zeiten, 0), 0);
    }
    static std::time_t Zeit_von(const std::string& pfad) {
        struct stat s {};
        return stat(pfad.c_str(), &s) == 0 ? s.st_mtime : 0;
    }
    void Verzeichnis(const std::string& pfad) {
        hände({"klick Tonkartei.Lieder_hinzufügen_Verzeichnis", "setze Verzeichnis_add.Pfad " + Bediener::zitiert(pfad),
               "klick Verzeichnis_add.Ok"});
    }
    static std::string Datumszeile(std::time_t zeit) {
        static constexpr const char* Tage[]{"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};
        std::tm t{};
        localtime_r(&zeit, &t);
        char uhr[20];
        std::strftime(uhr, sizeof uhr, "%H:%M:%S", &t);
        return "Datum/Zeit: " + std::string(Tage[t.tm_wday]) + ", " + std::to_string(t.tm_mday) + ". September 2001 " + uhr;
    }
    std::string anzahl(int zeile) {
        hand("wähle Tonkartei.Liste " + std::to_string(zeile));
        return b->text("Tonkartei.Anzahl");
    }
};

const std::string Tail = " in die Datenbank kopiert.";
const std::string keine = "Fehler|Es wurden keine Lieder zum hinzufügen gefunden!|i";

TEST_F(Lieder, drei_ohne_Tag) {
    lege("drei.mp3", std::string(3000, 'c'), Damals + 2);
    lege("eins.mp3", std::string(1000, 'a'));
    lege("zwei.MP3", std::string(511, 'b'), Damals + 1);
    lege("leer.mp3", "");
    lege("vier.mp3.txt", "x");
    ordner.datei("quelle/ordner.mp3/tief.mp3", (ordner.ordner("quelle/ordner.mp3"), "x"));
    std::filesystem::create_symlink("nirgends", ordner.pfad("quelle/verweis.mp3"));
    öffnen(a);
    geschehen();
    Verzeichnis(ordner.pfad("quelle"));
    ASSERT_EQ(b->bereit_name(), "neue_Lieder_Liste");
    EXPECT_EQ(b->zeilen("neue_Lieder_Liste.Lieder_hinzufügen"), (Zeilen{"drei.mp3", "eins.mp3", "zwei.MP3"}));
    EXPECT_EQ(b->fenster("Tonkartei")["aktiv"], false);
    hand("klick neue_Lieder_Liste.Ok");
    auto ablauf = geschehen();
    EXPECT_EQ(ablauf.back(), "Lieder hinzufügen|Es wurden 3 neue Lieder" + Tail +
                                 "\n\nHaben alle diese Lieder die gleiche Kategorie?|?*Ja/Nein");
    hand("antwort Ja");
    EXPECT_EQ(b->text("Kategorie_Wahl.Titel"), "Alle neuen Lieder");
    hand("wähle Kategorie_Wahl.Liste 4");
    EXPECT_EQ(geschehen(), Zeilen{});
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(b->fenster("Tonkartei")["aktiv"], true);
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"),
              (Zeilen{"--- - kein Tag/Datei nicht gefunden", "--- - kein Tag/Datei nicht gefunden",
                      "--- - kein Tag/Datei nicht gefunden", "Anna - Zug", "Berta - Yacht", "Carla - Xylophon"}));
    EXPECT_EQ(ordner.inhalt("a/00000004.MP3"), std::string(3000, 'c'));
    EXPECT_EQ(Zeit_von(ordner.pfad("a/00000004.MP3")), Damals + 2);
    EXPECT_EQ(Zeit_von(ordner.pfad("a/00000005.MP3")), Damals);
    EXPECT_FALSE(ordner.da("a/00000007.MP3"));
    EXPECT_EQ(mdb(), Sammlung{}.bytes());
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    Sammlung erwartet;
    for (const int kbyte : {3, 1, 0})
        erwartet.Lieder.push_back({"---", "kein Tag/Datei nicht gefunden", 0, kbyte, 5, "0", "0", "0"});
    EXPECT_EQ(mdb(), erwartet.bytes());

    // Again: each of them is there already, and asked for as long as the answer is Yes.
    öffnen(a);
    EXPECT_EQ(wert("Verzeichnis hinzufügen\\Nr. 1"), quelle);
    geschehen();
    Verzeichnis(quelle);
    hand("klick neue_Lieder_Liste.Ok");
    EXPECT_EQ(geschehen().back(),
              "Lied hinzufügen|Die folgende Datei ist eventuell schon einmal in der Datenbank vorhanden:\n\nDateiname: " +
                  quelle + "drei.mp3\n" + Datumszeile(Damals + 2) +
                  "\nTitel: kein Tag/Datei nicht gefunden\nArtist: ---\n\nBereits vorhandenes Lied in der Datenbank:\n\n" +
                  Datumszeile(Damals + 2) +
                  "\nTitel: kein Tag/Datei nicht gefunden\nArtist: ---\n\nSoll dieses Lied trotzdem hinzugefügt "
                  "werden?|?*Ja/Nein");
    hände({"antwort Nein", "antwort Ja", "antwort Nein", "antwort OK", "wähle Kategorie_Wahl.Liste 0"});
    EXPECT_EQ(b->text("Tonkartei.Liste_Anzahl"), "7");
    geschehen();
    // The one that stands there twice now asks twice.
    std::filesystem::remove(ordner.pfad("quelle/drei.mp3"));
    std::filesystem::remove(ordner.pfad("quelle/zwei.MP3"));
    Verzeichnis(quelle);
    hände({"klick neue_Lieder_Liste.Ok", "antwort Ja", "antwort Ja"});
    EXPECT_EQ(geschehen().back(), "Lied hinzufügen|Es wurde 1 neues Lied" + Tail + "|i");
}

TEST_F(Lieder, fremde_Namen) {
    lege("\xff\xfe.mp3", std::string(2000, 'x') + Tag_Bytes{.Titel = "Stra\xdf"
                                                                     "e",
                                                            .Artist = "\x80uro"}
                                                      .Block());
    lege("Ж日.mp3", std::string(2000, 'y') + Tag_Bytes{.Titel = "a,\"b", .Artist = " &c"}.Block());
    öffnen(a);
    Verzeichnis(quelle);
    EXPECT_EQ(b->zeilen("neue_Lieder_Liste.gefundene_Lieder"), (Zeilen{"??.mp3", "??.mp3"}));
    hand("klick neue_Lieder_Liste.MP3_Tags_lesen");
    EXPECT_EQ(b->zeilen("neue_Lieder_Liste.Lieder_hinzufügen"), (Zeilen{"&c - a,\"b", "€uro - Straße"}));
    hände({"spieler neu \"Winamp v1.x\"", "klick neue_Lieder_Liste.add_Option(2)", "klick neue_Lieder_Liste.Ok"});
    // Somebody's player may hold a file of the source; only that one is told to stop.
    const auto protokoll = b->protokoll();
    ASSERT_FALSE(protokoll.empty());
    EXPECT_EQ(protokoll[0]["fenster"], "Winamp v1.x");
    EXPECT_EQ(protokoll[0]["msg"], 273);
    EXPECT_EQ(protokoll[0]["w"], 40047);
    hände({"antwort Nein", "wähle Kategorie_Wahl.Liste 1", "wähle Kategorie_Wahl.Liste 2"});
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_TRUE(std::filesystem::is_empty(quelle));
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    EXPECT_NE(mdb().find("\x80uro\r\n 2 \r\n 3 \r\nStra\xdf"
                         "e\r\n"),
              std::string::npos);
    EXPECT_NE(mdb().find("&c\r\n 2 \r\n 2 \r\na,\"b\r\n"), std::string::npos);
}

TEST_F(Lieder, Misslungenes) {
    lege("a.mp3", std::string(100, 'a'));
    lege("b.mp3", std::string(200, 'b'));
    const std::string leer = ordner.ordner("leer/x.mp3");
    öffnen(a);
    geschehen();
    // A folder without songs, in which a folder bears a song's name.
    Verzeichnis(ordner.pfad("leer"));
    EXPECT_EQ(geschehen(), Zeilen{keine});
    hand("antwort OK");
    EXPECT_EQ(b->bereit(), "schleife");
    Verzeichnis(ordner.pfad("nirgends"));
    EXPECT_EQ(geschehen(),
              Zeilen{"Verzeichnis hinzufügen|Dieses Verzeichnis wurde nicht gefunden, oder es ist zur Zeit kein "
                     "Zugriff darauf möglich!|i"});
    hand("antwort OK");
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(wert("Verzeichnis hinzufügen\\Nr. 2"), "-");
    // One copy fails: it leaves nothing, and the numbers close up.
    Verzeichnis(quelle);
    hände({"störung kopieren 1", "klick neue_Lieder_Liste.Ok"});
    for (int n = 0; n < 3 && b->meldung().find("aufgetreten!") == std::string::npos; ++n) hand("antwort OK");
    EXPECT_EQ(geschehen().back(),
              "Lied hinzufügen|Es ist ein Fehler beim kopieren der Datei\n\n" + quelle + "a.mp3\n\naufgetreten!|i");
    hände({"antwort OK", "antwort OK", "wähle Kategorie_Wahl.Liste 0"});
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(ordner.inhalt("a/00000004.MP3"), std::string(200, 'b'));
    EXPECT_FALSE(ordner.da("a/00000005.MP3"));
    EXPECT_EQ(b->text("Tonkartei.Liste_Anzahl"), "4");
    // A folder that may not be read; nothing stops root.
    if (geteuid() == 0) return;
    chmod(quelle.c_str(), 0);
    geschehen();
    Verzeichnis(quelle);
    EXPECT_EQ(b->bereit(), "meldung");
    hand("antwort OK");
    EXPECT_EQ(b->bereit(), "schleife");
    chmod(quelle.c_str(), 0700);
}

// The program ends from outside while a category is asked for: what is counted holds together.
TEST_F(Lieder, Ende_von_außen_mitten_im_Eintragen) {
    lege("a.mp3", std::string(100, 'a'));
    öffnen(a);
    Verzeichnis(quelle);
    hände({"klick neue_Lieder_Liste.Ok", "antwort OK"});
    EXPECT_EQ(b->bereit_name(), "Kategorie_Wahl");
    // Its own close box does nothing.
    hand("schließe Kategorie_Wahl");
    EXPECT_EQ(b->bereit_name(), "Kategorie_Wahl");
    hand("schließe Tonkartei extern");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    öffnen(a);
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(b->text("Tonkartei.Liste_Anzahl"), "4");
}

TEST_F(Lieder, zählen) {
    for (int n = 1; n <= 3; ++n) ordner.datei("a/0000000" + std::to_string(n) + ".MP3", "x");
    const std::string winamp = ordner.ordner("winamp");
    ordner.datei("winamp/WinAmp.Exe");
    öffnen(a, "", {"WinAmp=" + winamp, "WinAmp beenden=2"});
    // Without a chosen line nothing is started.
    hand("klick Tonkartei.Lied_starten");
    EXPECT_EQ(b->protokoll(), nlohmann::json::array());
    hände({"wähle Tonkartei.Liste 0", "klick Tonkartei.Lied_starten"});
    ASSERT_EQ(b->spieler().size(), 1U);
    EXPECT_EQ(b->spieler()[0]["klasse"], "Tonkartei");
    EXPECT_EQ(b->spieler()[0]["datei"], a + "00000001.MP3");
    EXPECT_EQ(b->text("Tonkartei.Anzahl"), "1");
    // Heard long enough: the second of the start's pause counts for the song before, so 9 seconds make 10.
    hände({"uhr +9000", "wähle Tonkartei.Liste 1", "klick Tonkartei.Lied_starten"});
    EXPECT_EQ(b->spieler()[0]["datei"], a + "00000002.MP3");
    // Not long enough: its count is taken back.
    hände({"uhr +8000", "wähle Tonkartei.Liste 2", "doppelklick Tonkartei.Liste"});
    EXPECT_EQ(anzahl(0) + anzahl(1) + anzahl(2), "101");
    hände({"klick Tonkartei.zeige_Random_Liste"});
    EXPECT_EQ(b->zeilen("Tonkartei.Nr_Liste"), (Zeilen{"1", "2", "3"}));
    // A missing file starts nothing and says nothing.
    std::filesystem::remove(ordner.pfad("a/00000002.MP3"));
    geschehen();
    hände({"uhr +60000", "wähle Tonkartei.Liste 1", "klick Tonkartei.Lied_starten"});
    EXPECT_EQ(geschehen(), Zeilen{});
    EXPECT_EQ(b->spieler()[0]["datei"], a + "00000003.MP3");
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    EXPECT_EQ(mdb(), (Sammlung{.Lieder = {{"Anna", "Zug", 1}, {"Berta", "Yacht", 0}, {"Carla", "Xylophon", 1}}}.bytes()));
}

TEST_F(Lieder, ohne_Spieler) {
    ordner.datei("a/00000001.MP3", "x");
    öffnen(a, "", {"WinAmp=" + ordner.ordner("winamp")});
    geschehen();
    hände({"wähle Tonkartei.Liste 0", "klick Tonkartei.Lied_starten"});
    EXPECT_EQ(geschehen(), Zeilen{"Fehler|WinAmp wurde nicht gefunden!\n\nDas Verzeichnis muß unter "
                                  "Optionen/WinAmp-Verzeichnis eingestellt werden!|i"});
    hand("antwort OK");
    EXPECT_EQ(b->text("Tonkartei.Anzahl"), "0");
}

}  // namespace
}  // namespace tonkartei
