// The window Playlist beside the main window: its ways of getting songs, its life, a new collection of it.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

const std::string Doppelt =
    "Lied hinzufügen|Dieses Lied befindet sich bereits in der Playlist.\n\nWollen sie es trotzdem nochmal "
    "hinzufügen?|?*Ja/Nein";

class Playlistfenster : public Bühne {
protected:
    std::string a = sammlung("a");

    Zeilen lieder() { return b->zeilen("Playlist.Liste"); }
    Zeilen nummern() { return b->zeilen("Playlist.Nr_Liste"); }
    bool offen() { return !b->fenster("Playlist").is_null(); }
    std::string zustand() {
        const auto f = b->fenster("Playlist");
        return f["zustand"].get<std::string>() + (f["sichtbar"] ? "" : " weg");
    }
    std::string lage() {
        const auto f = b->fenster("Playlist");
        std::string text;
        for (const char* maß : {"links", "oben", "breite", "höhe"}) text += std::to_string(f[maß].get<int>()) + " ";
        return text;
    }
};

TEST_F(Playlistfenster, Wege_hinein) {
    ordner.datei("a/MP3_Info.ALB",
                 "Tonkartei\r\nV 1.02 16\r\nDatenbank Alben-Verwaltung\r\n 1 \r\n 2 \r\nX\r\n 2001 \r\nF\r\nY\r\n"
                 "Berta\r\n0\r\n4\r\n0\r\nF\r\n 0 \r\nFremd\r\nBerta\r\n0\r\n4\r\n0\r\nT\r\n 2 \r\nYacht\r\n");
    öffnen(a);
    geschehen();
    hand("klick Tonkartei.add_to_Playlist");  // no song is chosen
    EXPECT_FALSE(offen());
    hände({"wähle Tonkartei.Liste 2", "rechtsklick Tonkartei.add_to_Playlist"});
    EXPECT_EQ(lieder(), Zeilen{});
    hände({"klick Tonkartei.add_to_Playlist", "klick Tonkartei.DblClk(2)", "doppelklick Tonkartei.Liste"});
    EXPECT_EQ(geschehen(), Zeilen{Doppelt});
    hände({"antwort Nein", "wähle Tonkartei.Liste 0", "ziehe Tonkartei.Liste Playlist.Liste",
           "klick Tonkartei.Lieder_add_to_Playlist", "wähle Tonkartei.Liste 1", "klick Kontextmenüs.Menü_add_to_Playlist",
           "antwort Ja"});
    EXPECT_EQ(geschehen(), Zeilen{Doppelt});
    EXPECT_EQ(lieder(), (Zeilen{"Carla - Xylophon", "Anna - Zug", "Anna - Zug", "Berta - Yacht", "Carla - Xylophon",
                                "Berta - Yacht"}));
    // In the other tab it is the title that counts, and a line of the albums is no song.
    hände({"klick Kontextmenüs.Playlist_alle_löschen", "antwort Ja", "wähle Tonkartei.Datenbank_Modus 1",
           "wähle Tonkartei.Liste 0", "ziehe Tonkartei.Liste Playlist.Liste", "wähle Tonkartei.Liste2 0",
           "klick Tonkartei.add_to_Playlist", "wähle Tonkartei.Liste2 1", "klick Tonkartei.add_to_Playlist"});
    EXPECT_EQ(nummern(), Zeilen{"2"});
    geschehen();
    hände({"klick Playlist.erstelle_DB_Liste", "rechtsklick Playlist.Liste 0"});
    EXPECT_EQ(geschehen(), Zeilen{"kontextmenü"});
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), Zeilen{"Berta - Yacht"});
    hand("klick Kontextmenüs.Playlist_löschen");
    EXPECT_EQ(nummern(), Zeilen{});
}

// Numbers outlive their songs: after a deletion, and in the next collection.
TEST_F(Playlistfenster, folgt_der_Sammlung) {
    ordner.datei("a/00000002.MP3", std::string(2000, 'x') + Tag_Bytes{.Titel = "Yoga", .Artist = "Berta"}.Block());
    const std::string kurz = sammlung("b", {.Lieder = {{"Dora", "Wal"}}});
    öffnen(a);
    hände({"klick Tonkartei.Lieder_add_to_Playlist", "wähle Tonkartei.Liste 1", "klick Tonkartei.aktuellen_Namen_einlesen"});
    EXPECT_EQ(lieder(), (Zeilen{"Anna - Zug", "Berta - Yoga", "Carla - Xylophon"}));
    hände({"wähle Tonkartei.Liste 0", "klick Tonkartei.Menü_Lied_löschen", "antwort Ja"});
    EXPECT_EQ(lieder().back(), "---");
    hände({"klick Tonkartei.öffne_Datenbank", "setze Datenbank_öffnen.Pfad " + Bediener::zitiert(kurz),
           "klick Datenbank_öffnen.Ok"});
    EXPECT_EQ(lieder(), (Zeilen{"Dora - Wal", "---", "---"}));
    EXPECT_EQ(nummern(), (Zeilen{"1", "2", "3"}));
    geschehen();
    ordner.datei("null.m3u", kurz + "x.mp3");
    hände({"klick Playlist.öffnen", "pfad " + ordner.pfad("null.m3u")});
    EXPECT_EQ(geschehen(), (Zeilen{"datei", "Laufzeitfehler|9", "ende"}));
}

TEST_F(Playlistfenster, Leben_neben_dem_Hauptfenster) {
    // Setting, open at the last end: opened, what is stored in the end.
    const struct {
        const char *autoshow, *Status;
        bool offen;
    } fälle[] = {{"1", "False", true}, {"2", "True", false}, {"3", "True", true}, {"3", "False", false}};
    for (const auto& fall : fälle) {
        öffnen(a, "", {std::string("Playlist\\autoshow=") + fall.autoshow, std::string("Playlist\\Status=") + fall.Status});
        EXPECT_EQ(offen(), fall.offen) << fall.autoshow << fall.Status;
        hand("klick Tonkartei.MP_Beenden");
        EXPECT_EQ(wert("Playlist\\Status"), fall.offen ? "True" : "False");
    }
    // Changed, and closed by the end of the program without a question; place and size as the user left them.
    starten();
    EXPECT_FALSE(offen());
    hände({"klick Tonkartei.zeige_Playlist", "größe Playlist 9000 6000", "lage Playlist 300 450",
           "klick Tonkartei.Lieder_add_to_Playlist", "klick Playlist.AOT"});
    EXPECT_TRUE(b->fenster("Playlist")["immer_oben"]);
    geschehen();
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_EQ(geschehen(), (Zeilen{"Fortschritt|Datenbank speichern...", "ende"}));
    starten();
    EXPECT_EQ(lieder(), Zeilen{});
    EXPECT_EQ(lage(), "300 450 9000 6000 ");
    EXPECT_TRUE(b->fenster("Playlist")["immer_oben"]);
    const auto haupt = b->fenster("Tonkartei");
    const int breite = haupt["breite"].get<int>() / 2, höhe = haupt["höhe"].get<int>() / 2;
    hand("klick Tonkartei.zentriere_Playlist");
    EXPECT_EQ(lage(), std::to_string((19200 - breite) / 2) + " " + std::to_string((15360 - höhe) / 2) + " " +
                          std::to_string(breite) + " " + std::to_string(höhe) + " ");
    // Without its place it opens in the middle.
    hände({"lage Playlist 0 0", "klick Playlist.Position_merken", "klick Playlist.beenden"});
    hand("klick Tonkartei.zeige_Playlist");
    EXPECT_EQ(b->fenster("Playlist")["links"], (19200 - breite) / 2);

    // To the tray and back; with the switch off it only hides.
    for (const auto& [vorher, klein] : {std::pair{"", "minimiert weg"}, {"klick Playlist.minimieren", "normal weg"}}) {
        if (*vorher != 0) hand(vorher);
        hand("zustand Tonkartei minimiert");
        EXPECT_EQ(zustand(), klein);
        hand("klick Tonkartei.SysTray");
        EXPECT_EQ(zustand(), "normal");
    }
    hände({"klick Playlist.minimieren", "klick Tonkartei.Fenster_minimieren(1)", "zustand Tonkartei minimiert"});
    EXPECT_EQ(zustand(), "minimiert");
    hand("zustand Tonkartei normal");
    EXPECT_EQ(zustand(), "normal");
}

TEST_F(Playlistfenster, wird_zur_Datenbank) {
    for (int nr = 1; nr <= 3; ++nr)
        ordner.datei("a/0000000" + std::to_string(nr) + ".MP3",
                     std::string(2000, 'x') + Tag_Bytes{.Titel = "Lied " + std::to_string(nr), .Artist = "Q"}.Block());
    öffnen(a);
    hände({"wähle Tonkartei.Liste 2", "klick Tonkartei.add_to_Playlist", "wähle Tonkartei.Liste 0",
           "klick Tonkartei.add_to_Playlist", "klick Playlist.erstelle_Datenbank"});
    EXPECT_FALSE(offen());
    hände({"antwort OK", "pfad " + ordner.pfad(), "eingabe neu"});
    EXPECT_EQ(b->bereit_name(), "neue_Lieder_Liste");
    EXPECT_EQ(b->zeilen("neue_Lieder_Liste.Lieder_hinzufügen"), (Zeilen{"Carla - Xylophon", "Anna - Zug"}));
    EXPECT_FALSE(b->zeige("neue_Lieder_Liste.add_Option(2)")["aktiv"]);
    hand("klick neue_Lieder_Liste.Ok");
    EXPECT_EQ(b->zeilen("DBadd_Kategorien.Liste").at(1), "Freestyle --->Freestyle");
    hand("klick DBadd_Kategorien.Ok");
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), (Zeilen{"Q - Lied 1", "Q - Lied 3"}));
    EXPECT_EQ(ordner.inhalt("neu/00000001.MP3"), ordner.inhalt("a/00000003.MP3"));
    // Given up: nothing of the dialog stays.
    hände({"klick Tonkartei.Lieder_add_to_Playlist", "klick Playlist.erstelle_Datenbank", "antwort OK", "abbrechen"});
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_TRUE(b->fenster("neue_Lieder_Liste").is_null());
    EXPECT_FALSE(offen());
}

}  // namespace
}  // namespace tonkartei
