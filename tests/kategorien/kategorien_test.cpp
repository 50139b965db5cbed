// Boxes, schemes and the category of a song, on the main window.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

const std::string Geladen = "Fortschritt | Datenbank laden...";

class Kategorien : public Bühne {
protected:
    // Song n has category n.
    Sammlung s{.Lieder = {{"A", "1", 0, 100, 1}, {"B", "2", 0, 100, 2}, {"C", "3", 0, 100, 3}, {"D", "4", 0, 100, 4}},
               .Kategorien = {"Alle", "Zwei", "R & B", "Vier"},
               .Schemas = 3};

    // Checked boxes and the songs shown, by their numbers: "24:BD".
    std::string Stand() {
        std::string kästen, lieder;
        for (int k = 1; k <= 20; ++k)
            if (b->zeige("Tonkartei.zeige_Kategorie(" + std::to_string(k) + ")")["wert"]) kästen += std::to_string(k);
        for (const auto& zeile : b->zeilen("Tonkartei.Liste")) lieder += zeile.substr(0, 1);
        return kästen + ":" + lieder;
    }
    std::string nach(const std::string& zeile) {
        hand(zeile);
        return Stand();
    }
    static std::string Kasten(int k) { return "Tonkartei.zeige_Kategorie(" + std::to_string(k) + ")"; }
    static std::string Schema(int n) { return "Tonkartei.Kategorie_Schema(" + std::to_string(n) + ")"; }
    nlohmann::json Traymenü(const std::string& name) { return (*b)("menü Kontextmenüs." + name).front()["menü"]; }
};

TEST_F(Kategorien, Kästen) {
    öffnen(sammlung("a", s));
    EXPECT_EQ(Stand(), "1:ABCD");
    const struct {
        std::string hand, stand;
    } fälle[] = {
        {"klick " + Kasten(3), "3:C"},
        {"klick " + Kasten(4), "34:CD"},
        {"klick " + Kasten(3), "4:D"},
        {"klick " + Kasten(1), "1:ABCD"},
        {"klick " + Kasten(1), ":"},
        {"rechtsklick " + Kasten(3), "3:C"},
        {"rechtsklick " + Kasten(3), "24:BD"},
        {"klick " + Kasten(1), "1:ABCD"},
        {"rechtsklick " + Kasten(1), "234:BCD"},
        {"rechtsklick " + Kasten(3), "24:BD"},
        {"rechtsklick " + Kasten(1), "1:ABCD"},
    };
    for (const auto& fall : fälle) EXPECT_EQ(nach(fall.hand), fall.stand) << fall.hand;
    EXPECT_EQ((*b)("fokus").front()["fokus"], "Tonkartei.Schnellsuche");
    EXPECT_FALSE(b->zeige(Kasten(5))["sichtbar"].get<bool>());
    EXPECT_EQ(b->zeige(Kasten(3))["text"], "R & B");
}

// By the box of the song, and by the right button on one of the others.
TEST_F(Kategorien, Kategorie_des_Liedes) {
    öffnen(sammlung("a", s));
    hände({"klick Tonkartei.Katrechts(2)", "rechtsklick " + Kasten(2)});
    EXPECT_EQ(geschehen(), Zeilen{Geladen});  // no song is shown
    hände({"wähle Tonkartei.Liste 2", "setze Tonkartei.Lied_Kategorie #2", "rechtsklick " + Kasten(4)});
    const std::string frage =
        "Kategorie wechseln | Wollen sie die Kategorie des Liedes \"3\" von \"C\" wirklich von \"R & B\" auf "
        "\"Vier\" ändern? | ?*Ja/Nein";
    EXPECT_EQ(geschehen(), Zeilen{frage});
    hand("antwort Nein");
    EXPECT_EQ(b->text("Tonkartei.Lied_Kategorie"), "R & B");
    hände({"setze Tonkartei.Lied_Kategorie Vier", "antwort Ja"});
    EXPECT_EQ(geschehen(), Zeilen{frage});
    // The song stays in the list, its box has the colour now.
    EXPECT_EQ(Stand(), "1:ABCD");
    EXPECT_NE(b->zeige(Kasten(4))["farbe"], b->zeige(Kasten(3))["farbe"]);
    hände({"klick Tonkartei.Kat_wechsel_bestätigen", "setze Tonkartei.Lied_Kategorie Zwei"});
    EXPECT_EQ(geschehen(), Zeilen{});
    EXPECT_EQ(nach("klick " + Kasten(2)), "2:BC");
}

TEST_F(Kategorien, Farben) {
    öffnen(sammlung("a", s));
    const auto farbe_nach = [this](const Zeilen& zeilen) -> int {
        hände(zeilen);
        return b->zeige(Kasten(2))["farbe"];
    };
    const int normal = farbe_nach({});
    EXPECT_EQ(farbe_nach({"wähle Tonkartei.Liste 1"}), 65535);
    // A rebuild takes the colour away, the next song of the same category brings it back.
    EXPECT_EQ(farbe_nach({"setze Tonkartei.Schnellsuche b"}), normal);
    EXPECT_EQ(farbe_nach({"wähle Tonkartei.Liste 0", "klick Tonkartei.Kategorie_Farbe", "abbrechen"}), 65535);
}

TEST_F(Kategorien, Schemas) {
    öffnen(sammlung("a", s));
    hände({"klick " + Kasten(4), "klick " + Kasten(2), "klick Tonkartei.Kat_Schema_zuweisen", "antwort OK"});
    EXPECT_EQ(nach("klick " + Schema(2)), "24:BD");
    hand("klick " + Kasten(1));
    EXPECT_EQ(nach("klick " + Schema(2)), "24:BD") << "the next click chooses again";
    hände({"klick Tonkartei.Kat_Schema_Kurzbeschreibung", "antwort OK", "klick " + Schema(2), "eingabe Tanz & Ska"});
    EXPECT_EQ(Traymenü("Tray_Schemas")[1]["text"], "Tanz & Ska");
    EXPECT_EQ(Traymenü("Tray_Schemas")[3]["text"], "---");
    // The right button stores and asks; what is cancelled leaves the name, and an assignment that was begun is off.
    hände({"klick Tonkartei.Kat_Schema_zuweisen", "antwort OK", "klick " + Kasten(2), "rechtsklick " + Schema(3),
           "abbrechen"});
    EXPECT_EQ(nach("klick " + Schema(2)), "24:BD");
    EXPECT_EQ(nach("klick Kontextmenüs.Schema(3)"), "4:D");
    // Fewer schemes are offered, all are kept.
    hand("klick Tonkartei.Anz_Kat_Schemas(0)");
    EXPECT_FALSE(b->zeige(Schema(1))["sichtbar"].get<bool>());
    hand("klick Tonkartei.MP_Beenden");
    EXPECT_NE(
        mdb().find("\r\nVier\r\n 0 \r\n 1 \r\nSchema 1\r\n 2 \r\n 2 \r\nTanz & Ska\r\n 2 \r\n 4 \r\n 1 \r\nSchema 3\r\n 4 "),
        std::string::npos)
        << mdb();
}

TEST_F(Kategorien, Schema_mit_verschwundenen_Kategorien) {
    // Scheme 3 holds 4, scheme 2 holds 3: only 1 to 3 are left.
    s.Kategorien.pop_back();
    s.Lieder.pop_back();
    öffnen(sammlung("a", s));
    EXPECT_EQ(nach("klick " + Schema(2)), "3:C");
    EXPECT_EQ(nach("klick " + Schema(3)), ":");
}

TEST_F(Kategorien, Traymenü_folgt_den_Kästen) {
    öffnen(sammlung("a", s));
    EXPECT_EQ(nach("klick Kontextmenüs.Kategorie(3)"), "3:C");
    EXPECT_EQ(nach("klick Kontextmenüs.Kategorie(2)"), "23:BC");
    std::string haken;
    for (const auto& e : Traymenü("Tray_Kategorien")) haken += e["text"].get<std::string>() + (e["haken"] ? "+ " : "- ");
    EXPECT_EQ(haken, "Alle- Zwei+ R & B+ Vier- ");
    // A collection with fewer categories takes entries away.
    hände({"klick Tonkartei.öffne_Datenbank",
           "setze Datenbank_öffnen.Pfad " + Bediener::zitiert(sammlung("zweite", {.Kategorien = {"Alle", "Neu"}})),
           "klick Datenbank_öffnen.Ok"});
    EXPECT_EQ(Traymenü("Tray_Kategorien").size(), 2U);
    EXPECT_EQ(Traymenü("Tray_Kategorien")[0]["haken"], true);
}

}  // namespace
}  // namespace tonkartei
