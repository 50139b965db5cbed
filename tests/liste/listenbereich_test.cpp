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

TEST_F(Listenansicht, Schnellsuche_ab_drei_Buchstaben) {
    öffnen(a, {}, {"Listensuche_Anzahl_Buchstaben=3"});
    hand("klick Tonkartei.Liste_aktualisieren(3)");
    // Characters, not bytes; and below three the list stays as it is.
    for (const auto& [suche, anzahl] : {std::pair{"zz", 4U}, {"zzz", 0U}, {"zz", 0U}, {"", 4U}, {"är", 4U}, {"ärz", 1U}}) {
        hand(std::string("setze Tonkartei.Schnellsuche ") + suche);
        EXPECT_EQ(liste().size(), anzahl) << suche;
    }
    hand("taste Tonkartei.Schnellsuche Escape");
    EXPECT_EQ(text("Schnellsuche"), "");
    EXPECT_EQ(liste().size(), 4U);
}

TEST_F(Listenansicht, Tasten_in_der_Schnellsuche) {
    öffnen(a);
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

TEST_F(Listenansicht, Kontextmenü_des_Liedes_unter_der_Maus) {
    öffnen(a);
    geschehen();
    hand("rechtsklick Tonkartei.Liste 1");
    EXPECT_EQ(geschehen(), Zeilen{"Menü | Lied_Menü"});
    EXPECT_EQ(text("Titel"), "Westerland");
    const auto texte = [this](const std::string& menü) {
        Zeilen zeilen;
        for (const auto& e : (*b)("menü " + menü).front()["menü"]) zeilen.push_back(e["text"].get<std::string>());
        return zeilen;
    };
    EXPECT_EQ(texte("Kontextmenüs.Lied_Menü"), texte("Tonkartei.UMP_aktuelles"));
}

}  // namespace
}  // namespace tonkartei
