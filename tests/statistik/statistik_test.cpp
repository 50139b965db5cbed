#include <chrono>
#include <cmath>

#include "programm/buehne.hpp"
#include "statistik/jahresverlauf.hpp"

using namespace tonkartei;
using namespace std::chrono_literals;

namespace {

constexpr int Dunkelblau = 128 * 65536, Grün = 128 * 256;

class Statistikbühne : public Bühne {
protected:
    // Song n has the n-th date as its file's; the file of a day that is none is missing.
    void statistik(const Sammlung& s, const std::vector<std::chrono::year_month_day>& daten = {}) {
        const std::string pfad = sammlung("a", s);
        b.reset();
        std::filesystem::remove(pfad + "MP3_Info.DBG");
        for (std::size_t i = 0; i < daten.size(); ++i)
            if (daten[i].ok())
                std::filesystem::last_write_time(
                    ordner.datei("a/0000000" + std::to_string(i + 1) + ".MP3"),
                    std::chrono::file_clock::from_sys(std::chrono::sys_days{daten[i]} + 43200s));
        ordner.datei("WinAmp.Exe");
        Zeilen setze = zuletzt({pfad});
        setze.push_back("WinAmp=" + ordner.pfad());
        starten({.setze = setze, .uhr = "2026-03-03 12:00:00"});
        hand("klick Tonkartei.Statistik_anzeigen");
        geschehen();
    }
    // Hands on controls of the window, named without it.
    void tu(const Zeilen& taten) {
        for (std::string tat : taten) hand(tat.insert(tat.find(' ') + 1, "Statistik."));
    }
    Zeilen zeilen(const std::string& name) { return b->zeilen("Statistik." + name); }
    // The texts of several controls, with a blank between.
    std::string texte(const Zeilen& namen) {
        std::string alle;
        for (const auto& name : namen) alle += (alle.empty() ? "" : " ") + b->text("Statistik." + name);
        return alle;
    }
    int maß(const std::string& name, const char* was) { return b->zeige("Statistik." + name)[was].get<int>(); }
    int maß(const std::string& name, int n, const char* was) { return maß(name + "(" + std::to_string(n) + ")", was); }
};

}  // namespace

TEST_F(Statistikbühne, GehörteInDreiSichten) {
    const Sammlung s{.Lieder = {{"A", "Drei", 3}, {"B", "Viel", 10000}, {"C", "Nie"}, {"D", "Zwei", 12}, {"E", "Auch", 3}}};
    statistik(s, {5, 2025y / 1 / 1});
    const std::string a = "   3x A - Drei", v = "10000x B - Viel", n = "   0x C - Nie", z = "  12x D - Zwei",
                      e = "   3x E - Auch";
    const std::tuple<const char*, Zeilen, Zeilen, const char*> fälle[] = {
        {"klick Option(1)", {v, z, a, e, n}, {"00-10002", "99870004", "99960001", "99960005", "99990003"}, "5 2003 10018"},
        // Five digits are too many for the key: the number alone is left of it.
        {"klick Option(2)", {n, v, a, e, z}, {"00000003", "0002", "00030001", "00030005", "00120004"}, "5 2003 10018"},
        {"klick Option(3)", {"C - Nie"}, {"0003"}, "1 0 0"},
        {"setze Anzahl_gespielt 3,7 mal", {"A - Drei", "E - Auch"}, {"0001", "0005"}, "2 3 6"},
        {"setze Anzahl_gespielt 2.5", {}, {}, "0 0 0"},
        {"setze Anzahl_gespielt oft", {"C - Nie"}, {"0003"}, "1 0 0"}};
    for (const auto& [tat, liste, schlüssel, werte] : fälle) {
        if (&tat != &std::get<0>(fälle[0])) tu({tat});  // the first view is there at the opening
        EXPECT_EQ(zeilen("Liste"), liste);
        EXPECT_EQ(zeilen("Sortier_Liste"), schlüssel);
        EXPECT_EQ(texte({"Liste_Anzahl", "Liste_Durchschnitt", "Insgesamt_gehört"}), werte);
    }
    tu({"klick Lied_starten", "klick Lied_in_Playlist", "klick Option(1)", "wähle Liste 1", "klick Lied_starten",
        "klick Lied_in_Playlist"});
    EXPECT_EQ(b->zeilen("Playlist.Nr_Liste"), Zeilen{"4"});
    EXPECT_EQ(zeilen("Liste"), std::get<1>(fälle[0])) << "the count on show stays";
    EXPECT_FALSE(b->fenster("Tonkartei")["aktiv"].get<bool>());
    hand("uhr +11000");
    tu({"wähle Liste 3", "doppelklick Liste", "klick Ok"});
    EXPECT_TRUE(b->fenster("Tonkartei")["aktiv"].get<bool>());
    EXPECT_EQ(geschehen(), Zeilen{});
    beenden();
    for (const char* lied : {" 13 \r\nD\r\n", " 4 \r\nE\r\n"}) EXPECT_NE(mdb().find(lied), std::string::npos);
}

TEST(Jahresverlauf, DieSeltsameRegelDesLaufendenJahres) {
    // The year, the present day, how many months from January on are drawn.
    const std::tuple<int, Zeitpunkt, int> fälle[] = {
        {2026, {2026, 1, 1}, 1},    {2026, {2026, 2, 1}, 1},    {2026, {2026, 3, 2}, 2},  {2026, {2026, 3, 3}, 3},
        {2026, {2026, 12, 11}, 11}, {2026, {2026, 12, 31}, 12}, {2025, {2026, 1, 1}, 12}, {2027, {2026, 12, 31}, 0}};
    for (const auto& [jahr, heute, monate] : fälle)
        for (int m = 1; m <= Monate; ++m) EXPECT_EQ(Monat_gezeichnet(jahr, m, heute), m <= monate) << heute.Monat;
}

TEST_F(Statistikbühne, EinJahrAlsLinie) {
    statistik({.Lieder = std::vector<Probelied>(7)},
              {2026y / 3 / 31, 2025y / 2 / 28, {}, 2024y / 12 / 31, 2026y / 1 / 1, 2026y / 3 / 3, 2025y / 12 / 31});
    tu({"wähle Ansicht 1"});
    EXPECT_EQ(b->ereignis("fortschritt")["text"], "Datum der MP3-Dateien lesen...");
    EXPECT_EQ(b->ereignis("meldung")["titel"], "Fehler beim einlesen der Daten");
    EXPECT_EQ(b->meldung(),
              "Achtung: Es fehlt ein Lied in der Datenbank!\n\nBenutzen sie die Funktion Lücken "
              "suchen/auffüllen unter Lieder/Wartung/Fehlersuche!");
    hand("antwort OK");
    EXPECT_EQ(zeilen("Einsortiert_Jahr"), (Zeilen{"2024", "2025", "2026"}));
    EXPECT_EQ(texte({"Einsortiert_Jahr", "Einsortiert_Anzahl", "Monat_Anzahl(1)", "Monat_Anzahl(2)", "Monat_Anzahl(3)",
                     "Einsortiert_Y(10)"}),
              "2026 3 1 0 2 10");
    const int höhe = maß("Einsortiert_Grafik", "höhe"), spalte = maß("Einsortiert_X", 1, "breite"), reihe = höhe / 10;
    // Day by day, from the labels' places and the songs that are there on the evening of the day.
    const auto linien = [&](int stand, const std::vector<std::pair<int, int>>& zugänge, int bis_Monat) {
        auto liste = nlohmann::json::array();
        const auto gerundete = [](double wert) { return static_cast<int>(std::nearbyint(wert)); };
        int x = 0, y = höhe - gerundete(stand / 7.0 * höhe);
        for (int m = 1, tag = 1; m <= bis_Monat; tag == 31 ? ++m, tag = 1 : ++tag) {
            for (const auto& zugang : zugänge) stand += zugang == std::pair(m, tag);
            const int links = maß("Einsortiert_X", m, "links") - maß("Einsortiert_X", 1, "links");
            const int x2 = gerundete(links + tag / 31.0 * spalte), y2 = höhe - gerundete(stand / 7.0 * höhe);
            liste.push_back({x, y, x2, y2, Dunkelblau});
            x = x2, y = y2;
        }
        return liste;
    };
    // The missing file counts as old.
    EXPECT_EQ(b->zeige("Statistik.Einsortiert_Grafik")["linien"], linien(4, {{1, 1}, {3, 3}, {3, 31}}, 3));
    tu({"setze Einsortiert_Jahr 2025"});
    EXPECT_EQ(b->zeige("Statistik.Einsortiert_Grafik")["linien"], linien(2, {{2, 28}, {12, 31}}, 12));

    EXPECT_EQ(maß("Einsortiert_Y", 1, "oben") - maß("Einsortiert_Y", 10, "oben"), 9 * reihe);
    const auto grüne_bei = [&](const std::string& wo) {
        tu({"maus " + wo});
        std::string namen;
        for (const char achse : {'X', 'Y'})
            for (int i = 1; i <= (achse == 'X' ? 12 : 10); ++i)
                if (maß(std::string("Einsortiert_") + achse, i, "hintergrund") == Grün) namen += achse + std::to_string(i);
        return namen;
    };
    const auto maus = [&](int x, int y) {
        return grüne_bei("Einsortiert_Grafik " + std::to_string(x) + " " + std::to_string(y));
    };
    EXPECT_EQ(maus(0, 0) + maus(12 * spalte - 1, 10 * reihe - 1) + maus(4 * spalte, 3 * reihe), "X1Y10X12Y1X5Y7");
    EXPECT_EQ(grüne_bei("Ansicht") + maus(12 * spalte, 10 * reihe), "");
}

TEST_F(Statistikbühne, KategorienAlsBalken) {
    for (const int anzahl : {1, 2, 20}) {
        Sammlung s{.Lieder = {{"A", "a"}, {"B", "b"}, {"C", "c"}, {"D", "d"}}, .Kategorien = {"Alle"}};
        while (static_cast<int>(s.Kategorien.size()) < anzahl) s.Kategorien.push_back("K");
        // Three songs of the second one, one of the last.
        for (int i = 0; i < 4; ++i) s.Lieder[static_cast<std::size_t>(i)].Kategorie = i < 3 ? std::min(2, anzahl) : anzahl;
        statistik(s);
        tu({"wähle Ansicht 2"});
        EXPECT_EQ(texte({"Kategorie_Name(1)", "Kategorie_Anzahl(1)"}), "Alle 4");
        const int voll = maß("Kategorie_Balken", 0, "breite");
        EXPECT_EQ(maß("Kategorie_Balken", 1, "breite"), 0);
        if (anzahl == 20) {
            EXPECT_EQ(texte({"Kategorie_Anzahl(2)", "Kategorie_Anzahl(19)", "Kategorie_Anzahl(20)"}), "3 0 1");
            EXPECT_EQ(maß("Kategorie_Balken", 2, "breite"), voll);
            EXPECT_EQ(maß("Kategorie_Balken", 20, "breite"), std::lround(voll / 3.0));
            EXPECT_EQ(maß("Kategorie_Balken", 20, "farbe"), Dunkelblau);
            EXPECT_LE(maß("Kategorie_Name", 20, "oben") + 200, maß("Kategorien_Rahmen", "höhe"));
        }
        hände({"schließe Statistik", "klick Tonkartei.Statistik_anzeigen", "klick Statistik.Kategorie_Name(1)"});
        EXPECT_EQ(b->fehler(), "kein solches Element: Statistik.Kategorie_Name(1)");
    }
}

TEST_F(Statistikbühne, AbgebrocheneMitSeltsamenSätzen) {
    statistik({.Lieder = {{"A", "a"}, {"B", "b"}, {"C", "c"}, {"D", "d"}}});
    tu({"wähle Ansicht 3"});
    EXPECT_EQ(b->ereignis("meldung")["titel"], "Statistik abbgebrochen gehörte Lieder");
    EXPECT_EQ(b->meldung(), "In dieser Datenbank existiert keine Statistik über abbgebrochen angehörte Lieder.");
    hand("antwort OK");
    EXPECT_EQ(maß("Ansicht", "wert"), 0);
    // Song 1: 30 and 90. Song 2: 61 in 21 listens. Song 3: 0, 1, 9, 8, and what does not count. 4999 is nobody's.
    std::string sätze =
        "   1: 30\r\n   1:  90 s\r\n   0: 5\r\n  -1: 5\r\n   3: VoLL\r\n   3: -5\r\n   3: leer\r\n   3: 0.0\r\n"
        "   3:\r\n4999: 7\r\n   3:70\r\n   3: 1,   3: 9,\r\n\r\n0003: 8\r\n";
    for (int i = 0; i < 20; ++i) sätze += "   2: 3\r\n";
    ordner.datei("a/MP3_Info.ABR", sätze + "   2: 1");
    tu({"wähle Ansicht 3"});
    const std::string m = "01:00: A - a", k = "00:03: B - b", c = "00:04: C - c";
    const std::pair<const char*, Zeilen> fälle[] = {
        {"klick AOption(1)", {k, c, m}}, {"klick AOption(2)", {k, c, m}}, {"setze ASekunden 3.5", {k}},
        {"setze ASekunden 4.5 s", {k}},  {"klick AOption(3)", {c, m}},    {"setze ASekunden 60", {m}},
        {"klick AOption(4)", {m}},       {"setze ASekunden bald", {}},    {"setze ASekunden 60.5", {m}}};
    for (const auto& [tat, liste] : fälle) {
        tu({tat});
        EXPECT_EQ(zeilen("AListe"), liste) << tat;
    }
    EXPECT_EQ(zeilen("Sortier_Liste"), Zeilen{"0060.00001"});
    tu({"wähle AListe 0", "klick ALied_in_Playlist", "wähle Ansicht 0"});
    EXPECT_EQ(b->zeilen("Playlist.Nr_Liste"), Zeilen{"1"});
    EXPECT_EQ(zeilen("Sortier_Liste").size(), 4U);
    ordner.datei("a/MP3_Info.ABR", "   1: 5\r\n5001: 1\r\n");
    hände({"klick Statistik.Ok", "klick Tonkartei.Statistik_anzeigen", "wähle Statistik.Ansicht 3"});
    EXPECT_EQ(b->ereignis("laufzeitfehler")["nummer"], 9);
    EXPECT_EQ(b->Ende_abwarten(), 1);
}

TEST_F(Statistikbühne, OhneLiederWirdNichtGeteilt) {
    statistik({.Lieder = {}});
    hände({"wähle Statistik.Ansicht 1", "wähle Statistik.Ansicht 2", "größe Statistik 20000 12000"});
    EXPECT_EQ(texte({"Liste_Anzahl", "Liste_Durchschnitt", "Insgesamt_gehört", "Einsortiert_Y(10)"}), "0 0 0 0");
    EXPECT_EQ(geschehen(), Zeilen{});
}
