// The list of the main window, worked by a hand.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

// "Ä" is a byte of the files' code page.
class Listenansicht : public Bühne {
protected:
    std::string a = sammlung("a", {.Lieder = {{"Zappa", "Bobby", 4, 1023, 2, "0", "59", "59"},
                                              {"\xC4rzte", "Westerland", 3, 2048, 3, "0", "0", "0"},
                                              {"Abba", "Waterloo", 2, 1024, 2, "0", "0", "31"},
                                              {"Beck", "R & B", 1, 512, 1, "1", "2", "3"}}});

    Zeilen liste() { return b->zeilen("Tonkartei.Liste"); }
    int gewählt() { return b->zeige("Tonkartei.Liste")["gewählt"]; }
    std::string text(const std::string& name) { return b->text("Tonkartei." + name); }
    std::string Summen() { return text("Liste_Anzahl") + "|" + text("Liste_Größe") + "|" + text("Liste_Dauer"); }
    std::string Einzelheiten() {
        return text("Titel") + "|" + text("Artist") + "|" + text("Anzahl") + "|" + text("Lied_Größe") + "|" +
               text("Lied_Zeit");
    }
    bool aktiv(const std::string& name) { return b->zeige("Tonkartei." + name)["aktiv"]; }
};

TEST_F(Listenansicht, Sortieren_Summen_Einzelheiten) {
    öffnen(a);
    EXPECT_EQ(liste(), (Zeilen{"Abba - Waterloo", "Ärzte - Westerland", "Beck - R & B", "Zappa - Bobby"}));
    EXPECT_EQ(Summen(), "4|4|02:03");
    EXPECT_EQ(Einzelheiten(), "||||");
    EXPECT_FALSE(aktiv("Lied_Kategorie"));
    hand("wähle Tonkartei.Liste 2");
    EXPECT_EQ(Einzelheiten(), "R && B|Beck|1|512|02:03");
    EXPECT_TRUE(aktiv("Reset_Anzahl"));
    // The choice comes back, the details do not; only the time stays.
    hand("klick Tonkartei.sortieren(1)");
    EXPECT_EQ(liste(), (Zeilen{"Bobby (Zappa)", "R & B (Beck)", "Waterloo (Abba)", "Westerland (Ärzte)"}));
    EXPECT_EQ(gewählt(), 1);
    EXPECT_EQ(Einzelheiten(), "||||02:03");
    EXPECT_FALSE(aktiv("Lied_Kategorie"));
    EXPECT_FALSE(aktiv("Reset_Anzahl"));
    // A song that no longer shows is no longer chosen.
    hand("setze Tonkartei.Schnellsuche terl");
    EXPECT_EQ(liste(), (Zeilen{"Waterloo (Abba)", "Westerland (Ärzte)"}));
    EXPECT_EQ(gewählt(), -1);
    EXPECT_EQ(Summen(), "2|3|00:01");
    // Nothing found: zeros, and the duration stays.
    hand("setze Tonkartei.Schnellsuche terlo!");
    EXPECT_EQ(Summen(), "0|0|00:01");
    EXPECT_EQ(geschehen(), Zeilen{"Fortschritt | Datenbank laden..."});
}

TEST_F(Listenansicht, Schnellsuche) {
    öffnen(a);
    hand("klick Tonkartei.Liste_aktualisieren(3)");
    // Characters, not bytes; and below three the list stays as it is.
    for (const auto& [suche, anzahl] : {std::pair{"zz", 4U}, {"zzz", 0U}, {"zz", 0U}, {"", 4U}, {"är", 4U}, {"ärz", 1U}}) {
        hand(std::string("setze Tonkartei.Schnellsuche ") + suche);
        EXPECT_EQ(liste().size(), anzahl) << suche;
    }
    hand("taste Tonkartei.Schnellsuche Escape");
    EXPECT_EQ(text("Schnellsuche"), "");
    EXPECT_EQ(liste().size(), 4U);
    const auto nach = [&](const std::string& taste) {
        hand("taste Tonkartei.Schnellsuche " + taste);
        return gewählt();
    };
    EXPECT_EQ(nach("Ab"), 0);
    EXPECT_EQ(text("Artist"), "Abba");
    EXPECT_EQ(nach("Auf"), -1);
    EXPECT_EQ(nach("Auf"), 3);
    EXPECT_EQ(nach("Ab"), 0);
    EXPECT_EQ(nach("Ab"), 1);
    EXPECT_EQ((*b)("fokus").front()["fokus"], "Tonkartei.Schnellsuche");
    hand("setze Tonkartei.Schnellsuche keines");
    EXPECT_EQ(nach("Auf"), -1);
    EXPECT_EQ(nach("Ab"), -1);
    hand("taste Tonkartei.Schnellsuche Return");
    EXPECT_EQ(geschehen(), Zeilen{"Fortschritt | Datenbank laden..."});
}

TEST_F(Listenansicht, besondere_Listen) {
    öffnen(a);
    hände({"setze Tonkartei.Schnellsuche zappa", "klick Tonkartei.zeige_Zeit_null"});
    EXPECT_EQ(liste(), (Zeilen{"Ärzte - Westerland"}));
    EXPECT_EQ(Summen(), "1|2|00:00");
    hand("klick Tonkartei.zeige_Kategorie_Alle");
    EXPECT_EQ(liste(), (Zeilen{"Beck - R & B"}));
    hand("klick Tonkartei.zeige_Random_Liste");
    EXPECT_EQ(liste(), Zeilen{});
    EXPECT_EQ(Summen(), "0|0|00:00");
    // Until the next rebuild, which goes by search and boxes again.
    hand("klick Tonkartei.zeige_Kategorie(2)");
    EXPECT_EQ(liste(), (Zeilen{"Zappa - Bobby"}));
    EXPECT_EQ(b->zeilen("Tonkartei.Nr_Liste"), Zeilen{"1"});
}

// The last line is chosen first, so the song comes to the top of what is visible.
TEST_F(Listenansicht, das_gewählte_Lied_steht_nach_dem_Aufbau_oben) {
    Sammlung s{.Lieder = {}};
    for (int n = 10; n < 90; ++n) s.Lieder.push_back({"A" + std::to_string(n), "T"});
    öffnen(sammlung("lang", s));
    hände({"wähle Tonkartei.Liste 40", "klick Tonkartei.sortieren(1)"});
    EXPECT_EQ(gewählt(), 40);
    EXPECT_EQ(b->zeige("Tonkartei.Liste")["erste"], 40);
}

// An opening that was refused leaves the list of the collection before on show.
TEST_F(Listenansicht, ohne_offene_Datenbank_wirkt_kein_Befehl) {
    ordner.datei("WinAmp.Exe");
    for (const char* nr : {"1", "2", "3", "4"}) ordner.datei("a/0000000" + std::string(nr) + ".MP3", "Ton");
    öffnen(a, {}, {"WinAmp=" + ordner.pfad(), "Random-Autoplay=False", "Listen-Doppelklick=3"});
    hände({"wähle Tonkartei.Liste 0", "klick Tonkartei.Anz_Kat_Schemas(1)", "klick Tonkartei.öffne_Datenbank",
           "setze Datenbank_öffnen.Pfad " + ordner.ordner("leer"), "klick Datenbank_öffnen.Ok", "antwort Nein"});
    ASSERT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(liste().size(), 4U);
    geschehen();
    b->protokoll();
    const std::string vorher = mdb() + ordner.inhalt("a/00000003.MP3");
    for (const char* befehl :
         {"klick Tonkartei.Titel", "klick Tonkartei.Artist", "klick Tonkartei.Anzahl", "klick Tonkartei.Reset_Anzahl",
          "setze Tonkartei.Lied_Kategorie #3", "klick Tonkartei.Lied_starten", "doppelklick Tonkartei.Liste",
          "taste Tonkartei.Schnellsuche Return", "klick Tonkartei.Zufallslied_starten", "klick Tonkartei.Zufalls_Playlist",
          "klick Tonkartei.add_to_Playlist", "klick Tonkartei.Menü_Lied_Anzahl", "klick Tonkartei.Menü_starte_Album",
          "klick Tonkartei.Lieder_Anzahl", "klick Tonkartei.Kategorie_Edit", "rechtsklick Tonkartei.Kategorie_Schema(1)",
          "klick Tonkartei.Kat_Schema_zuweisen", "klick Tonkartei.Autoplay", "uhr +500"}) {
        hand(befehl);
        EXPECT_EQ(geschehen(), Zeilen{}) << befehl;
        EXPECT_TRUE(b->protokoll().empty()) << befehl;
        if (b->text("Tonkartei.Artist") == "Abba") {
            EXPECT_EQ(b->text("Tonkartei.Lied_Kategorie"), "Freestyle") << befehl;
        }
    }
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_EQ(mdb() + ordner.inhalt("a/00000003.MP3"), vorher);
}

TEST_F(Listenansicht, Kontextmenü_des_Liedes_unter_der_Maus) {
    öffnen(a);
    geschehen();
    hand("rechtsklick Tonkartei.Liste 1");
    EXPECT_EQ(geschehen(), Zeilen{"Menü | Lied_Menü"});
    EXPECT_EQ(text("Titel"), "Westerland");
}

}  // namespace
}  // namespace tonkartei
