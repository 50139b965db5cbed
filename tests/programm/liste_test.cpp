// What the list shows: search, sort, categories and schemes; and the song that is chosen.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Liste : public Bühne {
protected:
    // Sizes make 4 MB and a rest.
    std::string a = sammlung("a", {.Lieder = {{"Bx", "Xa", 1, 1024, 2, "0", "3", "20"},
                                              {"berta",
                                               "\xDC"
                                               "ber & \xFC"
                                               "ber",
                                               2, 1024, 3, "1", "2", "3"},
                                              {"\xC4rzte", "Zug", 3, 1024, 4, "0", "0", "0"},
                                              {"Arzt", "Zug", 4, 1100, 1, "22", "0", "0"},
                                              {"Bx", "Xa", 5, 10, 6, "0", "0", "9"}},
                                   .Schemas = 9});

    Zeilen nummern() { return b->zeilen("Tonkartei.Nr_Liste"); }
    std::string kästen() {
        std::string ergebnis;
        for (int k = 1; k <= 6; ++k)
            ergebnis += b->zeige("Tonkartei.zeige_Kategorie(" + std::to_string(k) + ")")["wert"] == true ? 'x' : '.';
        return ergebnis;
    }
    std::string summen() {
        return b->text("Tonkartei.Liste_Anzahl") + " " + b->text("Tonkartei.Liste_Größe") + " " +
               b->text("Tonkartei.Liste_Dauer");
    }
};

TEST_F(Liste, Suche_und_Sortierung) {
    öffnen(a);
    struct Fall {
        int sortierung;
        const char* suche;
        Zeilen nummern;
        const char* summen;
    };
    for (const Fall& f :
         {Fall{2, "", {"3", "4", "2", "1", "5"}, "5 4 23:06"}, Fall{1, "", {"2", "1", "5", "4", "3"}, "5 4 23:06"},
          Fall{1, "AB", {"1", "5"}, "2 1 00:03"}, Fall{2, "ab", {}, "0 0 00:03"}, Fall{2, "zug", {"3", "4"}, "2 2 22:00"},
          Fall{2, "xx", {"1", "5"}, "2 1 00:03"}, Fall{2, "&", {"2"}, "1 1 01:02"}}) {
        SCOPED_TRACE(std::to_string(f.sortierung) + " " + f.suche);
        hände({"setze Tonkartei.Schnellsuche " + Bediener::zitiert(f.suche),
               "klick Tonkartei.sortieren(" + std::to_string(f.sortierung) + ")"});
        EXPECT_EQ(nummern(), f.nummern);
        EXPECT_EQ(summen(), f.summen);
    }
}

TEST_F(Liste, Kästen) {
    öffnen(a);
    EXPECT_EQ(kästen(), "x.....");
    struct Fall {
        const char *hand, *kästen;
        Zeilen nummern;
    };
    for (const Fall& f : {
             Fall{"klick Tonkartei.zeige_Kategorie(3)", "..x...", {"2"}},
             Fall{"klick Tonkartei.zeige_Kategorie(6)", "..x..x", {"2", "5"}},
             Fall{"klick Tonkartei.zeige_Kategorie(3)", ".....x", {"5"}},
             Fall{"klick Tonkartei.zeige_Kategorie(6)", "......", {}},
             Fall{"rechtsklick Tonkartei.zeige_Kategorie(3)", "..x...", {"2"}},
             Fall{"rechtsklick Tonkartei.zeige_Kategorie(3)", ".x.xxx", {"3", "1", "5"}},
             Fall{"klick Tonkartei.zeige_Kategorie(1)", "x.....", {"3", "4", "2", "1", "5"}},
             Fall{"rechtsklick Tonkartei.zeige_Kategorie(1)", ".xxxxx", {"3", "2", "1", "5"}},
             Fall{"rechtsklick Tonkartei.zeige_Kategorie(1)", "x.....", {"3", "4", "2", "1", "5"}},
             Fall{"klick Tonkartei.Kategorie_Schema(2)", "..x...", {"2"}},
             // Stored in the file, the number of a category: scheme 6 holds number 1.
             Fall{"klick Tonkartei.Kategorie_Schema(6)", "x.....", {"3", "4", "2", "1", "5"}},
         }) {
        hand(f.hand);
        EXPECT_EQ(kästen(), f.kästen) << f.hand;
        EXPECT_EQ(nummern(), f.nummern) << f.hand;
    }
}

TEST_F(Liste, Schemas) {
    öffnen(a);
    geschehen();
    hände(
        {"klick Tonkartei.zeige_Kategorie(5)", "klick Tonkartei.zeige_Kategorie(3)", "klick Tonkartei.Kat_Schema_zuweisen"});
    EXPECT_EQ(geschehen(),
              Zeilen{"Kategorie-Schema zuweisen|Klicken sie auf eine Kategorie-Schema Schaltfläche, um die aktuell "
                     "ausgewählten Kategorien dort zu speichern.|i"});
    hände({"antwort OK", "klick Tonkartei.Kategorie_Schema(9)", "klick Tonkartei.Kategorie_Schema(1)",
           "klick Tonkartei.Kategorie_Schema(9)"});
    EXPECT_EQ(kästen(), "..x.x.");
    hände({"klick Tonkartei.Kat_Schema_Kurzbeschreibung", "antwort OK", "klick Tonkartei.Kategorie_Schema(9)"});
    EXPECT_EQ(geschehen(),
              (Zeilen{"Kategorie-Kurzbeschreibung ändern|Klicken sie auf eine Kategorie-Schema Schaltfläche, um "
                      "deren Kurzbeschreibung zu ändern.|i",
                      "Eingabe|Geben sie eine neue Kurzbeschreibung für dieses Schema ein:|Schema 9"}));
    hände({"eingabe  Hell, \"leise\"", "klick Tonkartei.Kategorie_Schema(1)", "rechtsklick Tonkartei.Kategorie_Schema(3)"});
    hand("abbrechen");
    EXPECT_EQ(b->zeige("Tonkartei.Kategorie_Schema(3)")["tooltip"], "Schema 3");
    hände({"klick Tonkartei.Anz_Kat_Schemas(8)"});
    EXPECT_EQ(b->zeige("Tonkartei.Kategorie_Schema(8)")["sichtbar"], true);
    EXPECT_EQ(b->zeige("Tonkartei.Kategorie_Schema(9)")["sichtbar"], false);
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    EXPECT_NE(mdb().find("\r\n 8 \r\n 1 \r\nSchema 1\r\n 2 \r\n"), std::string::npos);
    EXPECT_NE(mdb().find("Schema 3\r\n 2 \r\n 1 \r\nSchema 4"), std::string::npos);
    EXPECT_NE(mdb().find(" 2 \r\n Hell, \"leise\"\r\n 3 \r\n 5 \r\n 0 \r\n 5 \r\n"), std::string::npos) << mdb();
}

TEST_F(Liste, Einzelheiten_und_Wahl) {
    öffnen(a);
    hand("wähle Tonkartei.Liste 2");
    EXPECT_EQ(b->text("Tonkartei.Titel"), "Über && über");
    EXPECT_EQ(b->text("Tonkartei.Anzahl") + " " + b->text("Tonkartei.Lied_Größe") + " " + b->text("Tonkartei.Lied_Zeit"),
              "2 1024 02:03");
    EXPECT_EQ(b->zeige("Tonkartei.Lied_Kategorie")["gewählt"], 2);
    EXPECT_EQ(b->zeige("Tonkartei.zeige_Kategorie(3)")["farbe"], 65535);
    // A rebuild keeps the choice and brings it to the top of what is visible, but shows no details.
    hand("klick Tonkartei.sortieren(1)");
    EXPECT_EQ(b->zeige("Tonkartei.Liste")["gewählt"], 0);
    EXPECT_EQ(b->text("Tonkartei.Titel") + b->text("Tonkartei.Artist") + b->text("Tonkartei.Anzahl") +
                  b->text("Tonkartei.Lied_Größe"),
              "");
    EXPECT_EQ(b->zeige("Tonkartei.Reset_Anzahl")["aktiv"], false);
    EXPECT_EQ(b->zeige("Tonkartei.Lied_Kategorie")["aktiv"], false);
    EXPECT_NE(b->zeige("Tonkartei.zeige_Kategorie(3)")["farbe"], 65535);
    hand("setze Tonkartei.Lied_Kategorie #1");
    EXPECT_NE(b->fehler(), "");
    // The song is out of the list: nothing is chosen.
    hand("klick Tonkartei.zeige_Kategorie(4)");
    EXPECT_EQ(b->zeige("Tonkartei.Liste")["gewählt"], -1);
}

TEST_F(Liste, Kategorie_des_Liedes) {
    öffnen(a);
    geschehen();
    hände({"wähle Tonkartei.Liste 2", "setze Tonkartei.Lied_Kategorie #2"});
    EXPECT_EQ(geschehen(), Zeilen{});
    hand("setze Tonkartei.Lied_Kategorie #5");
    EXPECT_EQ(geschehen(),
              Zeilen{"Kategorie wechseln|Wollen sie die Kategorie des Liedes \"Über & über\" von \"berta\" wirklich "
                     "von \"Hip-Hop/Rap\" auf \"Techno\" ändern?|?*Ja/Nein"});
    hand("antwort Nein");
    EXPECT_EQ(b->zeige("Tonkartei.Lied_Kategorie")["gewählt"], 2);
    hände({"setze Tonkartei.Lied_Kategorie #5", "antwort Ja"});
    EXPECT_EQ(b->zeige("Tonkartei.zeige_Kategorie(6)")["farbe"], 65535);
    // By the right button on a box, and without a question.
    hände({"klick Tonkartei.Katrechts(2)", "klick Tonkartei.Kat_wechsel_bestätigen", "wähle Tonkartei.Liste 0",
           "rechtsklick Tonkartei.zeige_Kategorie(2)"});
    EXPECT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(kästen(), "x.....");
    hand("klick Tonkartei.zeige_Kategorie(2)");
    EXPECT_EQ(nummern(), (Zeilen{"3", "1"}));
    hand("klick Tonkartei.zeige_Kategorie(6)");
    EXPECT_EQ(nummern(), (Zeilen{"3", "2", "1", "5"}));
}

}  // namespace
}  // namespace tonkartei
