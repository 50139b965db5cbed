// The player as the program drives it, in real time.
#include "echt/abspielen.hpp"

namespace tonkartei {
namespace {

// Three songs one after the other, and players that die.
struct Autoplay : Abspielen {
    void TestBody() override {
        lege(3, 2.5);
        starte({"Random-Autoplay=False", "Anzahl-Zeit=1"});
        hand("klick Tonkartei.Autoplay");
        const auto gewählt = [&] { return b->zeige("Tonkartei.Liste")["gewählt"].get<int>(); };
        for (const int zeile : {0, 1, 2}) EXPECT_TRUE(bald([&] { return gewählt() == zeile && spielt(); })) << zeile;
        // A player that dies is none, not a stopped one: nothing follows, and after four ticks autoplay ends.
        töten();
        EXPECT_TRUE(bald([&] { return !b->zeige("Tonkartei.Autoplay")["wert"].get<bool>(); }));
        EXPECT_EQ(gewählt(), 2);
        EXPECT_TRUE(spieler().is_null());
        EXPECT_EQ(Anzahlen(), "1 1 1 ");
        // A start brings a new one up.
        hände({"wähle Tonkartei.Liste 0", "klick Tonkartei.Lied_starten"});
        EXPECT_TRUE(bald([&] { return spielt(); }));
    }
};

// A list of its own: the player goes through it, the program sees it play, and none of it counts.
struct Listendatei : Abspielen {
    void TestBody() override {
        lege(3, 2.5);
        // In a folder of any name.
        const std::string winamp = ordner.ordner("mein Spieler");
        Spieler_hinlegen(winamp);
        starte({"Random-Einstellung=1", "WinAmp=" + winamp});
        hände({"klick Tonkartei.Zufalls_Playlist", "eingabe 3", "antwort Nein"});
        for (const char* lied : {"00000001.MP3", "00000002.MP3", "00000003.MP3"})
            EXPECT_TRUE(bald([&] {
                const auto s = spieler();
                return !s.is_null() && s["datei"].get<std::string>().ends_with(lied);
            })) << lied;
        EXPECT_TRUE(bald([&] { return !spielt(); })) << "the list is over";
        EXPECT_EQ(Anzahlen(), "0 0 0 ");
    }
};

// What the panel says and does, as the player takes it.
struct Fernsteuerung : Abspielen {
    void TestBody() override {
        lege(1, 60);
        starte({"WinAmp Fernsteuerung animiert=False"});
        hände({"maus Tonkartei.WinAmp_Show", "wähle Tonkartei.Liste 0", "klick Tonkartei.Lied_starten"});
        const auto zeit = [&] { return b->text("Tonkartei.WinAmp_Zeit"); };
        const auto position = [&] {
            const auto s = spieler();
            return s.is_null() ? -1 : s["position"].get<int>();
        };
        EXPECT_TRUE(bald([&] { return zeit() > "00:00" && zeit() < "00:09"; })) << zeit();
        EXPECT_EQ(b->zeige("Tonkartei.WinAmp_Position")["max"], 60);
        hand("uhr +500");
        EXPECT_NE(b->fehler(), "") << "real time cannot be set";
        hand("klick Tonkartei.Winamp_Pause");
        EXPECT_TRUE(bald([&] { return zeit().starts_with("|| 00:"); })) << zeit();
        hand("klick Tonkartei.Winamp_Pause");
        EXPECT_TRUE(bald([&] { return zeit().starts_with("00:"); })) << zeit();
        hand("setze Tonkartei.WinAmp_Position 20");
        EXPECT_TRUE(bald([&] { return position() >= 20000 && zeit() >= "00:20"; })) << position();
        // Each tick winds by five seconds.
        hand("drücke Tonkartei.WinAmp_vor");
        EXPECT_TRUE(bald([&] { return position() >= 30000; })) << position();
        hände({"loslasse Tonkartei.WinAmp_vor", "drücke Tonkartei.WinAmp_zurück"});
        EXPECT_TRUE(bald([&] { return position() < 25000; })) << position();
        hände({"loslasse Tonkartei.WinAmp_zurück", "setze Tonkartei.WinAmp_Vol 50"});
        EXPECT_EQ(spieler()["lautstärke"], 127);
        hand("klick Tonkartei.WinAmp_Stop");
        EXPECT_TRUE(bald([&] { return zeit() == "STOP"; })) << zeit();
        hand("klick Tonkartei.WinAmp_Play");
        EXPECT_TRUE(bald([&] { return zeit() < "00:09"; })) << zeit();
    }
};

TEST(Echt, alles_zugleich) { zugleich<Autoplay, Listendatei, Fernsteuerung>(); }

}  // namespace
}  // namespace tonkartei
