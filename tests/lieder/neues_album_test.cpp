#include "lieder/hinzufuegen/neues_album.hpp"

#include "buehne.hpp"
#include "probe/rechner_probe.hpp"

namespace tonkartei {
namespace {

struct Eingebender : Drehbuch {
    std::deque<Text> Eingaben;
    Text eingeben(const Text& text, const Text& titel, const Text& vorgabe) override {
        Ablauf.push_back(titel + ": " + text + " [" + vorgabe + "]");
        if (Eingaben.empty()) return {};
        Text eingabe = Eingaben.front();
        Eingaben.pop_front();
        return eingabe;
    }
};

struct Albenbühne {
    Albenbühne() { modell.Datenbank_Verzeichnis = ordner.ordner("db"); }
    Testordner ordner;
    Eingebender ansicht;
    Dateisystem_echt dateien;
    Kanäle kanäle{dateien};
    Modell modell;
    Rechner_Probe rechner{{2026, 1, 15, 12, 0, 0}, ordner.pfad(), false};
    Alben alben{rechner, ansicht};
    Alben_Datei datei{modell, alben, kanäle, dateien, ansicht};
    Neues_Album neues{modell, alben, datei, ansicht};
};

const Text Nachfrage =
    "Album erstellen: Achtung!\r\rEs sind nur 200 Lieder pro Album erlaubt.\r\rWollen Sie ein Album nur mit den ersten 200 "
    "Liedern, die hinzugefügt werden sollen erstellen?";
const Text Interpretenfrage = "Album hinzufügen: Wie lautet der Interpret des neuen Albums? [Album 1]";
const Text Titelfrage = "Album hinzufügen: Wie lautet der Titel des neuen Albums? [Album 1]";

TEST(Neues_Album, höchstens_zweihundert_Lieder_und_nie_ohne_Namen) {
    const struct {
        Long A;
        std::deque<Antwort> antworten;
        std::deque<Text> eingaben;
        std::vector<Text> ablauf;
        Long alben;
        Byte lieder;
    } fälle[] = {
        {200, {}, {"I", "T"}, {Interpretenfrage, Titelfrage}, 1, 200},
        {201, {Antwort::Ja}, {"I", "T"}, {Nachfrage, Interpretenfrage, Titelfrage}, 1, 200},
        {201, {Antwort::Nein}, {"I", "T"}, {Nachfrage}, 0, 0},
        {3, {}, {"I", ""}, {Interpretenfrage, Titelfrage}, 0, 0},
        {3, {}, {""}, {Interpretenfrage}, 0, 0},
    };
    for (const auto& fall : fälle) {
        Albenbühne b;
        b.ansicht.Antworten = fall.antworten;
        b.ansicht.Eingaben = fall.eingaben;
        Begleitung begleitung;
        b.neues.erstellen(fall.A, begleitung);
        EXPECT_EQ(b.ansicht.Ablauf, fall.ablauf);
        EXPECT_EQ(b.alben.eigene.Anzahl, fall.alben);
        EXPECT_EQ(b.modell.Alben_geändert, fall.alben == 1);
        ASSERT_EQ(static_cast<bool>(begleitung.Album_Eintrag), fall.alben == 1);
        if (fall.alben == 0) continue;
        const Album& album = b.alben.eigene.Alben[1];
        EXPECT_EQ(album.Titel_Anzahl, fall.lieder);
        EXPECT_EQ(album.Interpret + album.Titel, "IT");
        EXPECT_EQ(album.Jahr, 2026);
        b.modell.Lieder[17] = {0, "Artist", 1, 1, "Titel", 0.25};
        begleitung.Album_Eintrag(200, 17);
        begleitung.Album_Eintrag(201, 17);  // one too many is left out
        const Album_Lied& lied = album.Lieder[200];
        EXPECT_EQ(lied.Artist + lied.Titel, "ArtistTitel");
        EXPECT_EQ(lied.Zeit, 0.25);
        EXPECT_EQ(lied.Lied_Nr, 17);
        EXPECT_TRUE(lied.in_Datenbank);
    }
}

TEST(Neues_Album, zu_viele_für_acht_Bit) {
    Albenbühne b;
    b.ansicht.Antworten = {Antwort::Ja};
    b.ansicht.Eingaben = {"I", "T"};
    Begleitung begleitung;
    EXPECT_THROW(b.neues.erstellen(256, begleitung), Laufzeitfehler);
}

// A file that cannot be read is not taken for a store without albums, which would be written over it.
TEST(Neues_Album, unlesbare_Alben_bleiben_unberührt) {
    Albenbühne b;
    b.ordner.datei("db/MP3_Info.ALB", "Tonkartei\r\n");
    Begleitung begleitung;
    b.neues.erstellen(1, begleitung);
    EXPECT_EQ(b.ansicht.Ablauf.back(), "Album hinzufügen: Für diese Datenbank existiert noch keine Alben-Verwaltung.");
    EXPECT_FALSE(begleitung.Album_Eintrag);
    EXPECT_FALSE(b.modell.Alben_geladen);
    EXPECT_FALSE(b.modell.Alben_geändert);
}

}  // namespace
}  // namespace tonkartei
