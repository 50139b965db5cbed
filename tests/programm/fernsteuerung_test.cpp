// The mouse over the main window, and the remote control with a player.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

constexpr int Markiert = 16763030, Liste_markiert = 16773340;

class Mausweg : public Bühne {
protected:
    bool offen() { return b->zeige("Tonkartei.WinAmp_Frame")["sichtbar"]; }
    int grund(const std::string& name) { return b->zeige("Tonkartei." + name)["hintergrund"]; }
    void maus(const std::string& name) { hand("maus Tonkartei" + (name.empty() ? "" : "." + name)); }
    // What has gone to the player since the last look: messages with both parameters, and starts.
    Zeilen gesendet() {
        Zeilen z;
        for (const auto& eintrag : b->protokoll())
            if (eintrag["art"] == "prozess")
                z.emplace_back("start");
            else if (eintrag["art"] == "nachricht")
                z.push_back(std::to_string(eintrag["w"].get<int>()) + "/" + std::to_string(eintrag["l"].get<int>()));
        return z;
    }
};

TEST_F(Mausweg, Farbe_wandert_und_die_Fernsteuerung_folgt) {
    öffnen(sammlung("a"));
    const int knopf = grund("Lied_kopieren"), liste = grund("Liste");
    maus("Lied_kopieren");
    EXPECT_EQ(grund("Lied_kopieren"), Markiert);
    maus("Liste");
    EXPECT_EQ(grund("Lied_kopieren"), knopf);
    EXPECT_EQ(grund("Liste"), Liste_markiert);
    maus("Liste_Anzahl");
    EXPECT_EQ(grund("Liste"), liste);
    EXPECT_EQ(grund("Liste_Anzahl"), knopf);

    maus("WinAmp_Show");
    EXPECT_TRUE(offen());
    const auto tafel = b->zeige("Tonkartei.WinAmp_Frame"), marke = b->zeige("Tonkartei.WinAmp_Show");
    const auto ecke = b->zeige("Tonkartei.Lied_starten");
    EXPECT_EQ(tafel["links"], ecke["links"]);
    EXPECT_EQ(tafel["oben"], ecke["oben"]);
    for (const auto& [ort, maß] : {std::pair{"links", "breite"}, std::pair{"oben", "höhe"}}) {
        const auto ende = [&, o = ort, m = maß](const nlohmann::json& e) { return e[o].get<int>() + e[m].get<int>(); };
        EXPECT_EQ(ende(tafel), ende(marke));
        for (const char* name : {"Play", "Stop", "vor", "zurück", "Position", "Vol", "Zeit"})
            EXPECT_LE(ende(b->zeige("Tonkartei.WinAmp_" + std::string(name))), tafel[maß].get<int>()) << name;
    }
    maus("WinAmp_Play");
    EXPECT_EQ(grund("WinAmp_Show"), knopf);
    maus("");
    EXPECT_TRUE(offen()) << "the place has no number";
    maus("Autoplay");
    EXPECT_TRUE(offen()) << "disabled, so it is like the ground";
    maus("Liste");
    EXPECT_FALSE(offen());

    // The mouse goes on while the panel opens: the last place counts.
    hände({"vormerken maus Tonkartei.WinAmp_Play", "vormerken maus Tonkartei.Schnellsuche"});
    maus("WinAmp_Show");
    EXPECT_FALSE(offen());
    EXPECT_EQ(grund("Schnellsuche"), Markiert);
    EXPECT_EQ(grund("WinAmp_Show"), knopf);

    hand("klick Tonkartei.Mousemove_markierung");
    maus("WinAmp_Show");
    EXPECT_FALSE(offen());
    EXPECT_EQ(grund("Schnellsuche"), liste);
    EXPECT_EQ(geschehen(), Zeilen{"Fortschritt|Datenbank laden..."});
}

TEST_F(Mausweg, Spielen_mit_der_Fernsteuerung) {
    const std::string pfad = sammlung("a");
    for (const char* nr : {"1", "2", "3"}) ordner.datei("a/0000000" + std::string(nr) + ".MP3");
    ordner.datei("WinAmp.Exe");
    öffnen(pfad, {}, {"WinAmp=" + ordner.pfad(), "WinAmp Lautstärke=33"});
    EXPECT_EQ(b->zeige("Tonkartei.WinAmp_Vol")["wert"], 33);
    hände({"wähle Tonkartei.Liste 0", "klick Tonkartei.Lied_starten", "maus Tonkartei.WinAmp_Show",
           "spieler Tonkartei position=150000 länge=200", "klick Tonkartei.WinAmp_Zeit", "uhr +500"});
    EXPECT_EQ(b->text("Tonkartei.WinAmp_Zeit"), "-00:50");
    EXPECT_EQ(gesendet(), Zeilen{"start"}) << "neither start nor tick moves the player";
    hände({"drücke Tonkartei.WinAmp_vor", "uhr +1000", "loslasse Tonkartei.WinAmp_vor"});
    EXPECT_EQ(gesendet(), (Zeilen{"40148/0", "40148/0"}));
    hand("klick Tonkartei.WinAmp_vor");
    const bool zufällig = b->zeige("Tonkartei.Zufallslied_starten")["aktiv"];
    EXPECT_EQ(gesendet(), zufällig ? Zeilen{"start"} : Zeilen{});
    hand("setze Tonkartei.WinAmp_Vol 50");
    EXPECT_EQ(gesendet(), (Zeilen{"127/122", "127/122"})) << "change and scroll";
    hand("setze Tonkartei.WinAmp_Position 20");
    EXPECT_EQ(gesendet(), Zeilen{"20000/106"});
    hände({"klick Tonkartei.Winamp_Pause", "uhr +500"});
    EXPECT_EQ(b->text("Tonkartei.WinAmp_Zeit").substr(0, 4), "|| -");
    hände({"spieler weg Tonkartei", "uhr +500", "klick Tonkartei.WinAmp_Stop"});
    EXPECT_EQ(b->text("Tonkartei.WinAmp_Zeit").substr(0, 4), "|| -") << "stands still";

    hände({"klick Tonkartei.Menü_WinAmp_Fernsteuerung", "klick Tonkartei.Menü_WinAmp_Fernsteuerung_animiert"});
    EXPECT_FALSE(b->zeige("Tonkartei.WinAmp_Show")["sichtbar"]);
    EXPECT_EQ(b->zeige("Tonkartei.Menü_WinAmp_Fernsteuerung")["haken"], false);
    hände({"klick Tonkartei.MP_Beenden"});
    starten({.setze = {}});
    EXPECT_EQ(wert("WinAmp Lautstärke"), "50");
    EXPECT_FALSE(b->zeige("Tonkartei.WinAmp_Show")["sichtbar"]) << "from the start";
}

}  // namespace
}  // namespace tonkartei
