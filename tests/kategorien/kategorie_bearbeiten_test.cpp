// The category editor, opened from the main window and from the dialog that asks for a category.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

const std::string Verwaist = " Lieder der gelöschten Kategorie! | i";

class Bearbeiten : public Bühne {
protected:
    Sammlung s{.Lieder = {{"A", "1", 0, 100, 1},
                          {"B", "2", 0, 100, 2},
                          {"C", "3", 0, 100, 3},
                          {"D", "4", 0, 100, 3},
                          {"E", "5", 0, 100, 4}},
               .Kategorien = {"Alle", "Zwei", "Drei", "Vier", "leer"}};

    void auf() {
        öffnen(sammlung("a", s));
        hand("klick Tonkartei.Kategorie_Edit");
        geschehen();
    }
    static std::string E(const std::string& name) { return "Kategorie_bearbeiten." + name; }
    Zeilen liste() { return b->zeilen(E("Liste")); }
    int gewählt() { return b->zeige(E("Liste"))["gewählt"]; }
    void verschieben(int zeile, int wert) {
        hände(
            {"wähle " + E("Liste") + " " + std::to_string(zeile), "setze " + E("Reihenfolge") + " " + std::to_string(wert)});
    }
    bool aktiv(const std::string& fenster) { return b->fenster(fenster)["aktiv"]; }
    // The categories of the songs in their order, once they are saved.
    std::string Liedkategorien() {
        hand("klick Tonkartei.MP_Beenden");
        std::string kategorien;
        const std::string bytes = mdb();
        for (std::size_t i = 0; (i = bytes.find(" 100 \r\n ", i)) != std::string::npos; ++i) kategorien += bytes[i + 8];
        return kategorien;
    }
};

TEST_F(Bearbeiten, umbenennen) {
    auf();
    const auto Farbe_von = [&](const std::string& name) {
        hand("setze " + E("Kategorie_Name") + " " + name);
        return b->zeige(E("Kategorie_Name"))["hintergrund"];
    };
    hand("wähle " + E("Liste") + " 1");
    const auto normal = Farbe_von("Österreichisches");  // 16 characters
    EXPECT_EQ(Farbe_von("Österreichisches!"), 65535);
    hand("wähle " + E("Liste") + " 2");
    EXPECT_EQ(b->zeige(E("Kategorie_Name"))["hintergrund"], normal);
    // Memory is what the disk can hold.
    EXPECT_EQ(Farbe_von("Łódź"), normal);
    hand("wähle " + E("Liste") + " 0");
    EXPECT_EQ(b->text(E("Anz_Lieder")), "5") << "all, though one song only has category 1";
    // Without a line there is nothing to name.
    hände({"wähle " + E("Liste") + " -1", "setze " + E("Kategorie_Name") + " x"});
    EXPECT_EQ(b->text(E("Kategorie_Name")), "");
    EXPECT_EQ(liste(), (Zeilen{"Alle", "Österreichisches!", "?ód?", "Vier", "leer"}));
    EXPECT_FALSE(aktiv("Tonkartei"));
    hände({"klick " + E("Ok"), "antwort OK"});
    EXPECT_EQ((*b)("fokus").front()["fokus"], "Tonkartei.Schnellsuche");
    EXPECT_EQ(b->zeilen("Tonkartei.Lied_Kategorie")[2], "?ód?");
}

TEST_F(Bearbeiten, die_zwanzigste) {
    auf();
    for (int k = 6; k <= 20; ++k) hand("klick " + E("add_Kategorie"));
    hände({"klick " + E("Ok"), "klick Tonkartei.zeige_Kategorie(20)", "klick Tonkartei.MP_Beenden"});
    öffnen(ordner.pfad("a/"));
    EXPECT_EQ(wert("Kategorien"), "524288");
}

TEST_F(Bearbeiten, löschen_und_verschieben) {
    s.Schemas = 3;
    auf();
    // No songs, no question for a new category; the last line goes, the new last one is chosen.
    hände({"wähle " + E("Liste") + " 4", "klick " + E("kill_Kategorie"), "antwort Ja"});
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(b->text(E("Kategorie_Name")), "Vier");
    geschehen();
    verschieben(3, 3);
    EXPECT_EQ(geschehen(), Zeilen{}) << "there is nothing behind it";
    verschieben(2, 3);
    EXPECT_EQ(liste(), (Zeilen{"Alle", "Zwei", "Vier", "Drei"}));
    verschieben(0, 3);
    hand("antwort OK");
    EXPECT_EQ(geschehen(), Zeilen{"Fehler | Die Kategorie 1 darf nicht verschoben werden! | i"});
    // Schemes keep their numbers, whatever those name afterwards.
    hände({"klick " + E("Ok"), "klick Tonkartei.Kategorie_Schema(2)"});
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), Zeilen{"E - 5"});
    EXPECT_EQ(Liedkategorien(), "12443");
}

// The dialog comes from the editor's own removal and opens the editor: closing it leads back to the dialog only.
TEST_F(Bearbeiten, aus_der_eigenen_Frage_heraus) {
    auf();
    hände({"wähle " + E("Liste") + " 2", "klick " + E("kill_Kategorie"), "antwort Ja", "antwort OK",
           "klick Kategorie_Wahl.Kategorie_Edit"});
    EXPECT_FALSE(aktiv("Kategorie_Wahl"));
    hände({"klick " + E("add_Kategorie"), "setze " + E("Kategorie_Name") + " Neu", "klick " + E("Ok")});
    EXPECT_TRUE(aktiv("Kategorie_Wahl"));
    EXPECT_EQ((*b)("fenster").front()["fenster"][0]["name"], "Kategorie_Wahl");
    EXPECT_TRUE(b->fenster("Kategorie_bearbeiten")["sichtbar"].get<bool>());
    EXPECT_FALSE(aktiv("Tonkartei"));
    EXPECT_EQ(b->zeilen("Kategorie_Wahl.Liste").back(), "Neu");
    hand("wähle Kategorie_Wahl.Liste 4");
    EXPECT_EQ(b->bereit(), "schleife");
    // Now it is the main window's again.
    hand("klick " + E("Ok"));
    EXPECT_TRUE(aktiv("Tonkartei"));
    EXPECT_EQ(Liedkategorien(), "12553");
}

// A category without songs goes while the dialog waits: none of its lines may name what is no longer there.
TEST_F(Bearbeiten, Tabelle_schrumpft_während_der_Frage) {
    auf();
    hände({"wähle " + E("Liste") + " 1", "klick " + E("kill_Kategorie"), "antwort Ja", "antwort OK",
           "wähle " + E("Liste") + " 3", "klick " + E("kill_Kategorie"), "antwort Ja"});
    // The songs from before still wait: the same question again, which goes first.
    EXPECT_EQ(geschehen().back(), "gelöschte Kategorie | Bitte wählen sie eine Kategorie für die 1" + Verwaist);
    hand("antwort OK");
    EXPECT_EQ(b->zeilen("Kategorie_Wahl.Liste"), (Zeilen{"Alle", "Drei", "Vier"}));
    hand("wähle Kategorie_Wahl.Liste 2");
    EXPECT_EQ(b->bereit_name(), "Kategorie_Wahl");
    hand("wähle Kategorie_Wahl.Liste 0");
    EXPECT_EQ(b->bereit(), "schleife");
    hand("klick " + E("Ok"));
    EXPECT_EQ(Liedkategorien(), "13223");
}

}  // namespace
}  // namespace tonkartei
