// An album to the player: the choice and the list file.
#include "alben/buehne.hpp"

namespace tonkartei {
namespace {

struct Album_starten : Albenbühne {
    std::vector<Text> gestartet;
    Album_starten() {
        start.starte_WinAmp_Liste = [this](const Text& liste) { gestartet.push_back(liste); };
    }
    std::string liste() const { return ordner.inhalt("winamp/Tonkartei-Playlist.M3U"); }
    // Titles linked to these songs; 0 is not linked.
    Long album(const Text& titel, const std::vector<Long>& lieder) {
        const Long nr = alben.Album_neu();
        alben.eigene.Alben[nr].Titel = titel;
        for (const Long lied : lieder) {
            Album_Lied& t = alben.eigene.Alben[nr].Lieder[alben.Titel_neu(nr)];
            t.in_Datenbank = lied != 0;
            t.Lied_Nr = lied == 0 ? 4 : lied;
        }
        return nr;
    }
};

TEST_F(Album_starten, Liste_der_vorhandenen_Lieder) {
    // Bytes of the folder's name stay as they are.
    modell.Datenbank_Verzeichnis = ordner.ordner(Testordner::krummer_Name + std::string(" ö"));
    const Long nr = album("x", {12, 0, 3, 12, 20});
    start.starte_Album(nr);
    const std::string o = modell.Datenbank_Verzeichnis;
    EXPECT_EQ(liste(), o + "00000012.MP3\r\n" + o + "00000003.MP3\r\n" + o + "00000012.MP3\r\n" + o + "00000020.MP3\r\n");
    EXPECT_EQ(gestartet, std::vector<Text>{ordner.pfad("winamp/Tonkartei-Playlist.M3U")});
    EXPECT_TRUE(ansicht.Meldungen.empty());
    EXPECT_FALSE(kanäle.offen(1));
}

TEST_F(Album_starten, nichts_davon_da) {
    // Links of a damaged file to songs that no collection can have are none.
    start.starte_Album(album("x", {0, 21, -1, 70000}));
    start.starte_Album(0);
    EXPECT_EQ(ansicht.Meldungen,
              std::vector<Text>{"Album starten|In der Datenbank sind keine Lieder dieses Albums vorhanden!"});
    EXPECT_TRUE(gestartet.empty());
    EXPECT_EQ(liste(), "");
}

TEST_F(Album_starten, Liste_kann_nicht_geschrieben_werden) {
    const Long nr = album("x", {1});
    störungen.Fehler_bestellen(Vorgang::schreiben, 1);
    start.starte_Album(nr);
    einstellungen.WinAmp_Verzeichnis = ordner.pfad("fehlt/");
    start.starte_Album(nr);
    EXPECT_TRUE(gestartet.empty());
    ASSERT_EQ(ansicht.Meldungen.size(), 2U);
    EXPECT_TRUE(ansicht.Meldungen[1].starts_with("Tonkartei|"));
    EXPECT_TRUE(ansicht.Meldungen[1].ends_with(ordner.pfad("fehlt/Tonkartei-Playlist.M3U")));
    EXPECT_FALSE(kanäle.offen(1));
}

}  // namespace
}  // namespace tonkartei
