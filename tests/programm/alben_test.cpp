// The album tab of the main window, and the albums of one collection beside those of the next.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

const std::string Kopf = "Tonkartei\r\nV 1.02 16\r\nDatenbank Alben-Verwaltung\r\n";
const std::string Fehlt =
    "Alben|Für diese Datenbank existiert noch keine Alben-Verwaltung.\n\nGehen sie zum Menüpunkt "
    "Bearbeiten/Alben-Verwaltung um eine anzulegen.|i";
const std::string Unlesbar =
    "Alben|Es ist ein Fehler beim lesen der Alben-Verwaltung aufgetreten.\n\nBitte kontaktieren sie den Autor.|i";
const std::string Album_lang =
    " 5 \r\nBerta\r\n 1969 \r\nF\r\nAller Anfang\r\n"
    "Berta\r\n0\r\n9\r\n59\r\nT\r\n 2 \r\nYacht\r\n"      // the song's length counts, not the title's
    "Gast\r\n0\r\n4\r\n0\r\nF\r\n 1 \r\nFremd & neu\r\n"  // not linked, whatever its number
    "Gast\r\n0\r\n4\r\n0\r\nT\r\n 3 \r\n\r\n"
    "\r\n0\r\n4\r\n0\r\nT\r\n 99 \r\nOhne\r\n"  // no such song
    "Berta\r\n0\r\n0\r\n0\r\nF\r\n 0 \r\n\r\n";
const std::string Album_leer = " 0 \r\nanna\r\n 2001 \r\nT\r\nZwei\r\n";
const std::string Drei_Alben = Kopf + " 3 \r\n" + Album_lang + Album_leer + " 0 \r\n\xC4nne\r\n 2001 \r\nT\r\nEins\r\n";

class Alben_Tab : public Bühne {
protected:
    std::string a = sammlung("a", {.Lieder = {{"Anna", "Zug", 0, 1000},
                                              {"Berta", "Yacht", 3, 1500, 2, "0", "50", "30"},
                                              {"Carla", "Xylophon", 0, 600, 2, "0", "9", "40"}}});
    Zeilen liste() { return b->zeilen("Tonkartei.Liste"); }
    Zeilen titel() { return b->zeilen("Tonkartei.Liste2"); }
    bool offen() { return b->zeige("Tonkartei.Liste2")["sichtbar"]; }
    void wechseln(const std::string& pfad) {
        hände({"klick Tonkartei.öffne_Datenbank", "setze Datenbank_öffnen.Pfad " + Bediener::zitiert(pfad),
               "klick Datenbank_öffnen.Ok"});
    }
    void tab(int n) { hand("wähle Tonkartei.Datenbank_Modus " + std::to_string(n)); }
    int gewählter_Tab() { return b->zeige("Tonkartei.Datenbank_Modus")["wert"]; }
    std::string summen() {
        return b->text("Tonkartei.Liste_Anzahl") + "|" + b->text("Tonkartei.Liste_Größe") + "|" +
               b->text("Tonkartei.Liste_Dauer");
    }
    std::string einzelheiten() {
        std::string text;
        for (const char* feld : {"Titel", "Artist", "Anzahl", "Lied_Größe", "Lied_Zeit"})
            text += b->text(std::string("Tonkartei.") + feld) + "|";
        text += b->zeige("Tonkartei.Reset_Anzahl")["aktiv"] ? "an" : "aus";
        return text + (b->zeige("Tonkartei.Lied_Kategorie")["aktiv"] ? " an" : " aus");
    }
    int pausen() {
        int ms = 0;
        for (const auto& eintrag : b->protokoll())
            if (eintrag["art"] == "pause") ms += eintrag["ms"].get<int>();
        return ms;
    }
};

TEST_F(Alben_Tab, zeigt_Alben_und_ihre_Titel) {
    ordner.datei("a/MP3_Info.ALB", Drei_Alben);
    öffnen(a);
    hand("setze Tonkartei.Schnellsuche Zug");
    tab(1);
    EXPECT_EQ(geschehen(), Zeilen{"Fortschritt|Datenbank laden..."});
    // All of them, whatever the search holds; umlauts as their letters.
    EXPECT_EQ(liste(), (Zeilen{"anna - Zwei", "Änne - Eins", "Berta - Aller Anfang"}));
    EXPECT_EQ(b->zeilen("Tonkartei.Nr_Liste"), (Zeilen{"2", "3", "1"}));
    EXPECT_EQ(summen(), "---||");
    EXPECT_FALSE(offen());

    hand("wähle Tonkartei.Liste 2");
    EXPECT_TRUE(offen());
    EXPECT_EQ(titel(), (Zeilen{"Yacht", "Gast - Fremd & neu", "Gast", "Ohne", ""}));
    EXPECT_EQ(summen(), "5|2|01:00");  // 2100 KByte, 60 minutes 10 seconds

    hand("wähle Tonkartei.Liste2 0");
    EXPECT_EQ(einzelheiten(), "Yacht|Berta|3|1500|50:30|an an");
    for (const int zeile : {1, 3, 4}) {
        hand("wähle Tonkartei.Liste2 " + std::to_string(zeile));
        EXPECT_EQ(einzelheiten(), ">>> nicht in Datenbank <<<|||||aus aus") << zeile;
    }
    hand("wähle Tonkartei.Liste2 2");
    EXPECT_EQ(einzelheiten(), "Xylophon|Carla|0|600|09:40|an an");

    hand("wähle Tonkartei.Liste 0");
    EXPECT_EQ(titel(), Zeilen{});
    EXPECT_EQ(summen(), "0|0|00:00");

    // Back: nothing of the albums stays, and no song is chosen by an album's number.
    hand("setze Tonkartei.Schnellsuche \"\"");
    hand("wähle Tonkartei.Liste 1");
    tab(0);
    EXPECT_EQ(liste(), (Zeilen{"Anna - Zug", "Berta - Yacht", "Carla - Xylophon"}));
    EXPECT_EQ(b->zeige("Tonkartei.Liste")["gewählt"], -1);
    EXPECT_FALSE(offen());
    EXPECT_EQ(summen(), "3|3|01:04");
    EXPECT_EQ(geschehen(), Zeilen{});
}

TEST_F(Alben_Tab, Lage_und_Bewegung) {
    ordner.datei("a/MP3_Info.ALB", Drei_Alben);
    const auto lage = [this](const char* name) { return b->zeige(std::string("Tonkartei.") + name); };
    for (const bool animiert : {true, false}) {
        öffnen(a, "", {std::string("Alben-Liste animiert=") + (animiert ? "True" : "False")});
        tab(1);
        pausen();
        hand("wähle Tonkartei.Liste 0");
        EXPECT_EQ(pausen(), animiert ? 150 : 0);
        hand("wähle Tonkartei.Liste 1");  // it is there already
        EXPECT_EQ(pausen(), 0);
        for (const char* größe : {"18000 12000", "13000 9000"}) {
            hand(std::string("größe Tonkartei ") + größe);
            const auto unten = lage("Liste2");
            const int oben = lage("Liste")["oben"], höhe = lage("Liste")["höhe"];
            EXPECT_EQ(unten["oben"].get<int>(), oben + höhe / 5);
            EXPECT_EQ(unten["oben"].get<int>() + unten["höhe"].get<int>(), oben + höhe);
            EXPECT_EQ(unten["breite"], lage("Liste")["breite"]);
        }
        tab(0);
        EXPECT_EQ(pausen(), animiert ? 150 : 0);
        EXPECT_FALSE(offen());
        beenden();
    }
}

TEST_F(Alben_Tab, startet_das_Lied_des_Titels) {
    ordner.datei("a/MP3_Info.ALB", Drei_Alben);
    for (int nr = 1; nr <= 3; ++nr) ordner.datei("a/0000000" + std::to_string(nr) + ".MP3", "x");
    const std::string wa = ordner.ordner("wa");
    ordner.datei("wa/WinAmp.Exe");
    öffnen(a, "", {"WinAmp=" + wa});
    tab(1);
    hand("wähle Tonkartei.Liste 2");
    const auto Befehl_nach = [this](const Zeilen& zeilen) {
        hände(zeilen);
        std::string befehl;
        for (const auto& eintrag : b->protokoll())
            if (eintrag["art"] == "prozess") befehl += eintrag["befehl"].get<std::string>();
        return befehl.substr(befehl.find(" \"") + 1);
    };
    EXPECT_EQ(Befehl_nach({"klick Tonkartei.Lied_starten"}), "") << "no title is chosen";
    EXPECT_EQ(Befehl_nach({"wähle Tonkartei.Liste2 1", "klick Tonkartei.Lied_starten"}), "") << "not in the collection";
    EXPECT_EQ(Befehl_nach({"wähle Tonkartei.Liste2 2", "klick Tonkartei.Lied_starten"}), "\"" + a + "00000003.MP3\"");
    // The whole album, chosen from the menu: only with a line and not when cancelled.
    const std::string liste = "\"" + wa + "Tonkartei-Playlist.M3U\"";
    const struct {
        Zeilen hände;
        std::string befehl;
    } fälle[] = {{{"klick Album_wählen.Ok"}, ""},
                 {{"wähle Album_wählen.Liste 0", "klick Album_wählen.Abbruch"}, ""},
                 {{"wähle Album_wählen.Liste 0", "doppelklick Album_wählen.Liste"}, liste},
                 {{"wähle Album_wählen.Liste 0", "klick Album_wählen.Ok"}, liste}};
    for (const auto& fall : fälle) {
        hand("klick Tonkartei.Menü_starte_Album");
        EXPECT_EQ(b->zeilen("Album_wählen.Liste"), (Zeilen{"Aller Anfang - Berta", "Eins - Änne", "Zwei - anna"}));
        EXPECT_EQ(Befehl_nach(fall.hände), fall.befehl);
    }
    EXPECT_EQ(ordner.inhalt("wa/Tonkartei-Playlist.M3U"), a + "00000002.MP3\r\n" + a + "00000003.MP3\r\n");
    EXPECT_EQ(geschehen(), Zeilen{"Fortschritt|Datenbank laden..."});
}

TEST_F(Alben_Tab, fällt_zurück_wo_nichts_zu_zeigen_ist) {
    öffnen(a);
    geschehen();
    const std::string kaputt = Kopf + " 2 \r\n" + Album_leer;
    hand("klick Tonkartei.Menü_starte_Album");
    EXPECT_EQ(geschehen(), Zeilen{"Album spielen|Für diese Datenbank existiert noch keine Alben-Verwaltung!|i"});
    hand("antwort OK");
    for (const std::string& box : {Fehlt, Unlesbar}) {
        if (box == Unlesbar) ordner.datei("a/MP3_Info.ALB", kaputt);
        tab(1);
        EXPECT_EQ(geschehen(), Zeilen{box});
        hand("antwort OK");
        EXPECT_EQ(gewählter_Tab(), 0);
        EXPECT_EQ(liste().size(), 3U);
    }
    hand("klick Tonkartei.Menü_starte_Album");
    EXPECT_EQ(geschehen(), Zeilen{}) << "it ends without a word";
    beenden();
    EXPECT_EQ(ordner.inhalt("a/MP3_Info.ALB"), kaputt);
}

// An answer Yes marks the albums as changed even where they could not be read, and an open collection's mark must not
// reach the next one.
TEST_F(Alben_Tab, Alben_bleiben_bei_ihrer_Sammlung) {
    const std::string zweite = sammlung("zweite");
    const std::string alt = "Tonkartei\r\nV 1.02 07\r\nDatenbank Alben-Verwaltung\r\n 1 \r\n" + Album_leer;
    const std::string kaputt = "Tonkartei\r\nV 1.02 07\r\nDatenbank Alben-Verwaltung\r\n 9 \r\n" + Album_leer;
    const std::string fremd = "Tonkartei\r\nV 1.03 00\r\nDatenbank Alben-Verwaltung\r\n 1 \r\n" + Album_leer;
    for (const auto& [vorher, nachher] : {std::pair{alt, Kopf + " 1 \r\n" + Album_leer}, {kaputt, kaputt}, {fremd, fremd}}) {
        ordner.datei("a/MP3_Info.ALB", vorher);
        öffnen(a);
        tab(1);
        hand("antwort Ja");
        if (b->bereit() == "meldung") hand("antwort OK");
        EXPECT_EQ(ordner.inhalt("a/MP3_Info.ALB"), vorher);
        wechseln(zweite);
        EXPECT_EQ(ordner.inhalt("a/MP3_Info.ALB"), nachher);
        EXPECT_NE(liste(), Zeilen{"anna - Zwei"});
        hand("klick Tonkartei.MP_Beenden");
        EXPECT_EQ(ordner.inhalt("a/MP3_Info.ALB"), nachher);
        EXPECT_FALSE(ordner.da("zweite/MP3_Info.ALB"));
        EXPECT_FALSE(ordner.da("a/MP3_Bak.ALB") || ordner.da("zweite/MP3_Bak.ALB"));
    }
}

// The save of the other collection failed, and the user went on without it.
TEST_F(Alben_Tab, ungespeicherte_Alben_wandern_nicht) {
    const std::string zweite = sammlung("zweite");
    const std::string alt = "Tonkartei\r\nV 1.02 07\r\nDatenbank Alben-Verwaltung\r\n 1 \r\n" + Album_leer;
    ordner.datei("a/MP3_Info.ALB", alt);
    öffnen(a);
    tab(1);
    hand("antwort Ja");
    // The first file written is the info file, the second one the albums.
    hand("störung umbenennen 2");
    wechseln(zweite);
    hand("antwort Ja");
    EXPECT_EQ(ordner.inhalt("a/MP3_Info.ALB"), alt);
    EXPECT_EQ(gewählter_Tab(), 1);
    EXPECT_EQ(liste(), Zeilen{});
    tab(0);
    EXPECT_EQ(liste().size(), 3U);
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_FALSE(ordner.da("zweite/MP3_Info.ALB"));
}

}  // namespace
}  // namespace tonkartei
