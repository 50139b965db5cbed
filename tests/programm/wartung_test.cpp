// Re-reading, the comparison report, twins, songs from a date on: by hand through the menu.
#include <fcntl.h>
#include <sys/stat.h>

#include <ctime>

#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Wartungsbefehle : public Bühne {
protected:
    void lege(const std::string& name, const std::string& bytes, std::time_t zeit = 1000036000) const {
        const timespec zeiten[2]{{zeit, 0}, {zeit, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, ordner.datei("a/" + name, bytes).c_str(), zeiten, 0), 0);
    }
    static std::string Lied(const std::string& artist, const std::string& titel, std::size_t KByte) {
        return std::string(KByte * 1024 - 128, 'x') + Tag_Bytes{.Titel = titel, .Artist = artist}.Block();
    }
    static std::string Bericht(const std::string& pfad, const std::string& rest) {
        std::string crlf;
        for (const char c : "Tonkartei\nVergleichs-Ergebnis:\n\nDatenbank: " + pfad + "\n\n" + rest)
            crlf += c == '\n' ? "\r\n" : std::string(1, c);
        return crlf;
    }
    void prüfen(const std::string& datei) { hände({"klick Tonkartei.Check_DB", "pfad " + ordner.pfad(datei)}); }
};

constexpr const char* Fertig = "Vergleichs-Ergebnis schreiben|Das Vergleichs-Ergebnis wurde erfolgreich geschrieben.\n\n";
constexpr const char* Aufgabe = "Fortschritt|Lieder-Namen/-Größe einlesen und vergleichen...";

TEST_F(Wartungsbefehle, Bericht_Byte_für_Byte) {
    const std::string a = sammlung("a", {.Lieder = {{"Anna", "Zug", 0, 2},
                                                    {"Berta", "Yacht", 0, 2},
                                                    {"Carla", "Xylophon", 0, 2, 2, "1", "2", "59"},
                                                    {"Dora", "Wal", 5, 3}}});
    lege("00000001.MP3", Lied("Anna", "Zug", 2));  // only its time is another one
    lege("00000002.MP3", Lied("Berta", "yacht", 2));
    lege("00000004.MP3", Lied("Dora", "Wal", 2));
    öffnen(a);
    geschehen();
    prüfen("b.mve");
    EXPECT_EQ(geschehen(), (Zeilen{"datei", Aufgabe, Fertig + std::string("3 Einträge in der Datenbank haben Fehler!|i")}));
    hand("antwort OK");
    const std::string strich(40, '-');
    EXPECT_EQ(ordner.inhalt("b.mve"),
              Bericht(a, strich +
                             "\nFehler bei Lied: 00000002.MP3\nEintrag in der Datenbank: Berta - Yacht\n"
                             "Wirklicher Artist/Titel:  Berta - yacht\nGr\xf6\xdf"
                             "e in der Datenbank:   2\nWirkliche Gr\xf6\xdf"
                             "e:          2\nZeit in der Datenbank:    00:03\nWirkliche Zeit:           00:00\n" +
                             strich +
                             "\nFehler bei Lied: 00000003.MP3\nEintrag in der Datenbank: Carla -Xylophon\nGr\xf6\xdf"
                             "e in der Datenbank:   2\nZeit in der Datenbank:    01:02\n"
                             "Schwerer Fehler: Dieses Lied fehlt!\n" +
                             strich +
                             "\nFehler bei Lied: 00000004.MP3\nEintrag in der Datenbank: Dora - Wal\n"
                             "Wirklicher Artist/Titel:  Dora - Wal\nGr\xf6\xdf"
                             "e in der Datenbank:   3\nWirkliche Gr\xf6\xdf"
                             "e:          2\nZeit in der Datenbank:    00:03\nWirkliche Zeit:           00:00\n" +
                             strich + "\n\n3 Eintr\xe4ge in der Datenbank haben Fehler!\n"));
    // It is there now; No leaves it as it is, Yes writes it anew.
    ordner.datei("b.mve", "alt");
    prüfen("b.mve");
    EXPECT_EQ(geschehen().back(),
              "Vergleichs-Ergebnis schreiben|Soll die vorhandene Datei wirklich überschrieben werden?|?*Ja/Nein");
    hand("antwort Nein");
    EXPECT_EQ(ordner.inhalt("b.mve"), "alt");
    // What is re-read agrees with its file, apart from the one that is gone.
    hände({"klick Tonkartei.Lieder_Namen_einlesen", "antwort Ja", "klick Tonkartei.LN_lesen(1)"});
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"),
              (Zeilen{"--- - kein Tag/Datei nicht gefunden", "Anna - Zug", "Berta - yacht", "Dora - Wal"}));
    geschehen();
    prüfen("b.mve");
    hand("antwort Ja");
    EXPECT_EQ(geschehen().back(), Fertig + std::string("1 Eintrag in der Datenbank haben Fehler!|i"));
    hand("antwort OK");
    EXPECT_EQ(ordner.inhalt("b.mve").substr(ordner.inhalt("b.mve").rfind("\r\n\r\n")),
              "\r\n\r\n1 Eintr\xe4ge in der Datenbank haben Fehler!\r\n");
    // The setting re-reads at every start.
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    lege("00000003.MP3", Lied("Carla", "Xylophon", 2));
    öffnen(a);
    EXPECT_EQ(wert("Lieder-Namen lesen"), "True");
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), (Zeilen{"Anna - Zug", "Berta - yacht", "Carla - Xylophon", "Dora - Wal"}));
}

TEST_F(Wartungsbefehle, Bericht_einer_leeren_und_auf_einer_vollen_Platte) {
    const std::string a = sammlung("a", {.Lieder = {}});
    öffnen(a);
    prüfen("b.mve");
    EXPECT_EQ(geschehen().back(), Fertig + std::string("Es sind keine Fehler festgestellt worden.|i"));
    EXPECT_EQ(ordner.inhalt("b.mve"), Bericht(a, "\nAlle Eintr\xe4ge in der Datenbank scheinen zu stimmen.\n"));
    hände({"antwort OK", "störung schreiben 1"});
    geschehen();
    prüfen("c.mve");
    EXPECT_EQ(geschehen().back().substr(0, 10), "Tonkartei|");
    hand("antwort OK");
    // The file is free again.
    prüfen("c.mve");
    hände({"antwort Ja", "antwort OK"});
    EXPECT_EQ(ordner.inhalt("c.mve"), ordner.inhalt("b.mve"));
}

TEST_F(Wartungsbefehle, Zwillinge_in_der_Liste) {
    const std::string a =
        sammlung("a", {.Lieder = {{"AB", "C"}, {"X", "D"}, {"A", "BC"}, {"AB", "D"}, {"ab", "c"}, {"X", "E"}}});
    for (const int nr : {2, 5}) lege("0000000" + std::to_string(nr) + ".MP3", "x");
    lege("00000006.MP3", "x", 1000036001);
    öffnen(a);
    const struct {
        const char* befehl;
        Zeilen nummern, fortschritte;
    } fälle[] = {
        {"doppelte_Namen_anzeigen", {"1", "3"}, {"Fortschritt|doppelte suchen..."}},
        {"doppelte_Artisten", {"1", "4", "2", "6"}, {"Fortschritt|doppelte Artisten suchen..."}},
        {"doppelte_Titel", {"2", "4"}, {"Fortschritt|doppelte Titel suchen..."}},
        {"doppelte_anzeigen",
         {"2", "5"},
         {"Fortschritt|Erstellungsdatum der MP3-Dateien einlesen...", "Fortschritt|doppelte suchen..."}},
    };
    for (const auto& fall : fälle) {
        geschehen();
        hand(std::string("klick Tonkartei.") + fall.befehl);
        EXPECT_EQ(b->zeilen("Tonkartei.Nr_Liste"), fall.nummern) << fall.befehl;
        EXPECT_EQ(b->zeilen("Tonkartei.Liste").size(), fall.nummern.size());
        EXPECT_EQ(geschehen(), fall.fortschritte);
    }
    hand("klick Tonkartei.Liste_einlesen");
    EXPECT_EQ(geschehen().back(),
              "Name/Größe einlesen|Wollen sie wirklich bei allen 2 Liedern in der Liste die Daten neu einlesen?|?*Ja/Nein");
    hände({"antwort Ja", "setze Tonkartei.Schnellsuche \"AE\""});
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), Zeilen{});
    hand("setze Tonkartei.Schnellsuche \"XE\"");
    geschehen();
    hand("klick Tonkartei.Liste_einlesen");  // one song: no question
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), Zeilen{});  // it has lost its name
}

TEST_F(Wartungsbefehle, Durchschnitt_und_ab_Datum) {
    const std::string a =
        sammlung("a", {.Lieder = {{"A", "a", 1, 1, 2}, {"B", "b", 4, 1, 3}, {"C", "c", 0, 1, 3}, {"D", "d", 4, 1, 2}}});
    lege("00000001.MP3", "x", 1000036000);  // 9 September 2001
    lege("00000002.MP3", "x", 1000036000 + 3 * 86400);
    lege("00000003.MP3", "x", 1000036000 - 3 * 86400);
    öffnen(a);
    geschehen();
    hände({"klick Tonkartei.Durchschnitts_Anzahl", "antwort OK"});
    EXPECT_EQ(geschehen(), Zeilen{"Durchschnitts-Anzahl|Die 4 Lieder wurden im Durchschnitt 2,3 mal gehört.|i"});
    hände({"klick Tonkartei.Lieder_ab_Datum", "setze Datum_eingeben.Datum \"9.13.2001\"", "klick Datum_eingeben.Ok"});
    EXPECT_EQ(geschehen().back(), "Datum eingeben|Das ist kein gültiges Datum!|i");
    hände({"antwort OK", "setze Datum_eingeben.Datum \"9.9.2001\"", "klick Datum_eingeben.Ok"});
    EXPECT_EQ(geschehen().back(), "Lieder ab Datum|Nur in den aktuell gewählten Kategorien suchen?|?*Ja/Nein");
    hand("antwort Nein");
    EXPECT_EQ(geschehen(), Zeilen{"Fortschritt|Lieder ab Datum 09. Sep 2001 suchen..."});
    EXPECT_EQ(b->zeilen("Tonkartei.Nr_Liste"), (Zeilen{"1", "2"}));
    hände({"klick Tonkartei.zeige_Kategorie(3)", "klick Tonkartei.Lieder_ab_Datum",
           "setze Datum_eingeben.Datum \"1.1.2001\"", "klick Datum_eingeben.Ok", "antwort Ja"});
    EXPECT_EQ(b->zeilen("Tonkartei.Nr_Liste"), (Zeilen{"2", "3"}));
    geschehen();
    hände({"klick Tonkartei.Lieder_ab_Datum", "klick Datum_eingeben.Abbruch"});
    EXPECT_EQ(geschehen(), Zeilen{});
    EXPECT_EQ(b->bereit(), "schleife");
}

}  // namespace
}  // namespace tonkartei
