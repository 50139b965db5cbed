// Both desks in real time with real players, which play into nothing.
#include "echt/abspielen.hpp"

namespace tonkartei {
namespace {

// Two short tunes and a third: an automatic fade from player 1 to 2, under which one of the others is killed.
struct Pult : Abspielen {
    // What the players say, by their classes.
    nlohmann::json player(int n) { return spieler("TonkarteiWA" + std::to_string(n)); }
    int wert(const std::string& element) { return b->zeige("DJModus." + element)["wert"]; }
    // The law, from what is to be seen on the desk.
    int laut(int seite) {
        const int v = wert("Crossfade(1)"), anteil = seite == 1 ? std::min(100, 200 - 2 * v) : std::min(100, 2 * v);
        return static_cast<int>(std::nearbyint(anteil * 75 / 100.0 * 2.5));
    }
    void TestBody() override {
        lege(3, 13);
        starte({});
        hand("klick Tonkartei.starte_DJ_Modus");
        const auto bereit = [&] {
            for (int n = 1; n <= 4; ++n)
                if (const auto s = player(n); s.is_null() || s["datei"].get<std::string>().empty() || s["status"] != 3)
                    return false;
            return true;
        };
        EXPECT_TRUE(bald(bereit, 20)) << "all four filled and paused";
        hände({"setze DJModus.Autozeit_Scroll 54", "setze DJModus.Fadezeit_Scroll 31", "setze DJModus.Crossfade(1) 0",
               "klick DJModus.Player_Auto_1x(1)", "klick DJModus.Player_Taste_Pause(1)"});
        EXPECT_TRUE(bald([&] { return player(1)["status"] == 1; }));
        EXPECT_TRUE(bald([&] { return player(2)["status"] == 1; }, 12)) << "the fade has begun by itself";
        const auto vorher = player(4)["datei"];
        töten("TonkarteiWA4");
        const auto nach_Gesetz = [&] {
            const int stand = wert("Crossfade(1)");
            return stand > 0 && stand < 100 && player(1)["lautstärke"] == laut(1) && player(2)["lautstärke"] == laut(2);
        };
        EXPECT_TRUE(bald(nach_Gesetz)) << "in the middle of the fade";
        EXPECT_TRUE(bald([&] { return wert("Crossfade(1)") == 100 && player(1)["status"] == 3; })) << "over";
        EXPECT_EQ(player(1)["lautstärke"], 0);
        EXPECT_EQ(player(2)["lautstärke"], 188);
        EXPECT_TRUE(player(4).is_null()) << "a paused one is not missed";
        hand("klick DJModus.Player_Taste_Pause(4)");
        EXPECT_TRUE(bald([&] { return !player(4).is_null() && player(4)["status"] == 3; }, 12)) << "healed";
        hand("schließe DJModus");
        EXPECT_TRUE(b->spieler().empty());
    }
};

struct Altes_Pult : Abspielen {
    void TestBody() override {
        lege(2, 30);
        starte({});
        hände({"klick Tonkartei.starte_DJ_Modus_alt", "klick Mixer.WinAmp1_Random", "klick Mixer.WinAmp2_Random",
               "setze Mixer.Autofade_speed 2", "setze Mixer.Crossfade 0", "klick Mixer.WinAmp1_Play_Pause"});
        const auto player = [&](int n) { return spieler("TonkarteiWA" + std::to_string(n)); };
        EXPECT_TRUE(bald([&] { return player(1)["status"] == 1 && player(2)["status"] == 3; }));
        EXPECT_TRUE(bald([&] { return b->zeige("Mixer.Fade_anderes_Lied")["sichtbar"].get<bool>(); }));
        hand("klick Mixer.Fade_anderes_Lied");
        EXPECT_TRUE(bald([&] { return player(1)["status"] == 0 && player(2)["status"] == 1; }));
        EXPECT_EQ(player(1)["lautstärke"], 0);
        EXPECT_EQ(player(2)["lautstärke"], 191);
        hand("schließe DJ_Modus");
        EXPECT_TRUE(b->spieler().empty());
    }
};

TEST(Echt, beide_Pulte) { zugleich<Pult, Altes_Pult>(); }

}  // namespace
}  // namespace tonkartei
