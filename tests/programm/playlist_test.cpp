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

    void lege(int nr, const std::string& titel) {
        ordner.datei("a/0000000" + std::to_string(nr) + ".MP3",
                     std::string(2000, 'x') + Tag_Bytes{.Titel = titel, .Artist = "Q"}.Block());
    }
    Zeilen lieder() { return b->zeilen("Playlist.Liste"); }
    bool offen() { return !b->fenster("Playlist").is_null(); }
    // State, place and size.
    std::string stand() {
        const auto f = b->fenster("Playlist");
        std::string text = f["zustand"].get<std::string>() + (f["sichtbar"] ? "" : " weg");
        for (const char* maß : {"links", "oben", "breite", "höhe"}) text += " " + std::to_string(f[maß].get<int>());
        return text;
    }
};

TEST_F(Playlistfenster, Wege_hinein) {
    öffnen(a);
    geschehen();
    hand("klick Tonkartei.add_to_Playlist");  // no song is chosen
    EXPECT_FALSE(offen());
    hände({"wähle Tonkartei.Liste 2", "rechtsklick Tonkartei.add_to_Playlist"});
    EXPECT_EQ(lieder(), Zeilen{});
    hände({"klick Tonkartei.add_to_Playlist", "klick Tonkartei.DblClk(2)", "doppelklick Tonkartei.Liste", "antwort Nein",
           "wähle Tonkartei.Liste 0", "ziehe Tonkartei.Liste Playlist.Liste", "klick Tonkartei.Lieder_add_to_Playlist",
           "wähle Tonkartei.Liste 1", "klick Kontextmenüs.Menü_add_to_Playlist", "antwort Ja"});
    EXPECT_EQ(geschehen(), (Zeilen{Doppelt, Doppelt}));
    EXPECT_EQ(lieder(), (Zeilen{"Carla - Xylophon", "Anna - Zug", "Anna - Zug", "Berta - Yacht", "Carla - Xylophon",
                                "Berta - Yacht"}));
    hände({"klick Kontextmenüs.Playlist_alle_löschen", "antwort Ja", "klick Tonkartei.add_to_Playlist",
           "klick Playlist.erstelle_DB_Liste"});
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), Zeilen{"Berta - Yacht"});
    geschehen();
    hände({"rechtsklick Playlist.Liste 0", "klick Kontextmenüs.Playlist_löschen"});
    EXPECT_EQ(geschehen(), Zeilen{"kontextmenü"});
    EXPECT_EQ(lieder(), Zeilen{});
}

// Numbers outlive their songs: after a deletion, and in the next collection.
TEST_F(Playlistfenster, folgt_der_Sammlung) {
    for (const int nr : {1, 2, 3}) lege(nr, "Lied");
    const std::string kurz = sammlung("b", {.Lieder = {{"Dora", "Wal", 0, 1234567}}});
    öffnen(a);
    hände({"klick Tonkartei.Lieder_add_to_Playlist", "wähle Tonkartei.Liste 1", "klick Tonkartei.aktuellen_Namen_einlesen"});
    EXPECT_EQ(lieder(), (Zeilen{"Anna - Zug", "Q - Lied", "Carla - Xylophon"}));
    hände({"wähle Tonkartei.Liste 0", "klick Tonkartei.Menü_Lied_löschen", "antwort Ja"});
    EXPECT_EQ(lieder(), (Zeilen{"Carla - Xylophon", "Q - Lied", "---"}));
    hände({"klick Tonkartei.öffne_Datenbank", "setze Datenbank_öffnen.Pfad " + Bediener::zitiert(kurz),
           "klick Datenbank_öffnen.Ok"});
    EXPECT_EQ(lieder(), (Zeilen{"Dora - Wal", "---", "---"}));
    geschehen();
    ordner.datei("null.m3u", kurz + "x.mp3");
    hände({"klick Playlist.Dateigröße", "antwort OK", "klick Playlist.öffnen", "pfad " + ordner.pfad("null.m3u")});
    EXPECT_EQ(geschehen(), (Zeilen{"Dateigröße der Playlist|Die Lieder in der Liste benötigen 1.234.567 kB (1206 MB) "
                                   "Speicherplatz.|i",
                                   "datei", "Laufzeitfehler|9"}));
}

TEST_F(Playlistfenster, Leben_neben_dem_Hauptfenster) {
    // Setting, open at the last end, minimised start: opened, and what is stored in the end.
    const struct {
        const char *autoshow, *Status, *parameter;
        bool offen;
    } fälle[] = {{"1", "False", "M", true}, {"2", "True", "", false}, {"3", "False", "", false}, {"3", "True", "", true}};
    for (const auto& fall : fälle) {
        öffnen(a, fall.parameter,
               {std::string("Playlist\\autoshow=") + fall.autoshow, std::string("Playlist\\Status=") + fall.Status});
        ASSERT_EQ(offen(), fall.offen) << fall.autoshow << fall.Status;
        EXPECT_EQ(offen() && b->fenster("Playlist")["sichtbar"], fall.offen && *fall.parameter == 0);
        hand("klick Kontextmenüs.MP_Beenden");
        starten();
        EXPECT_EQ(wert("Playlist\\Status"), fall.offen ? "True" : "False");
        hand("klick Tonkartei.MP_Beenden");
    }
    // Changed, and closed by the end of the program without a question; place and size as the user left them.
    starten();
    hände({"größe Playlist 9000 6000", "lage Playlist 300 450", "klick Tonkartei.Lieder_add_to_Playlist"});
    geschehen();
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_EQ(geschehen(), (Zeilen{"Fortschritt|Datenbank speichern...", "ende"}));
    starten();
    EXPECT_EQ(lieder(), Zeilen{});
    EXPECT_EQ(stand(), "normal 300 450 9000 6000");
    hand("klick Tonkartei.zentriere_Playlist");
    EXPECT_EQ(stand(), "normal 6225 5355 6750 4650");  // half of 13500 x 9300, on 19200 x 15360
    // Without its place it opens in the middle.
    hände(
        {"lage Playlist 0 0", "klick Playlist.Position_merken", "klick Playlist.beenden", "klick Tonkartei.zeige_Playlist"});
    EXPECT_EQ(stand(), "normal 6225 5355 6750 4650");
    // To the tray and back; with the switch off it only hides.
    for (const auto& [vorher, klein] :
         {std::pair{"klick Playlist.AOT", "minimiert weg"}, {"klick Playlist.minimieren", "normal weg"}}) {
        hände({vorher, "zustand Tonkartei minimiert"});
        EXPECT_TRUE(stand().starts_with(klein)) << stand();
        hand("klick Tonkartei.SysTray");
        EXPECT_TRUE(stand().starts_with("normal 6")) << stand();
    }
    EXPECT_TRUE(b->fenster("Playlist")["immer_oben"]);
}

TEST_F(Playlistfenster, wird_zur_Datenbank) {
    for (const int nr : {1, 2, 3}) lege(nr, "Lied " + std::to_string(nr));
    öffnen(a);
    hände({"wähle Tonkartei.Liste 2", "klick Tonkartei.add_to_Playlist", "wähle Tonkartei.Liste 0",
           "klick Tonkartei.add_to_Playlist", "klick Playlist.erstelle_Datenbank", "antwort OK", "pfad " + ordner.pfad(),
           "eingabe neu"});
    EXPECT_FALSE(offen());
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
