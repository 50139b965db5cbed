// The mouse over the main window, and the remote control with a player.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Mausweg : public Bühne {
protected:
    bool offen() { return b->zeige("Tonkartei.WinAmp_Frame")["sichtbar"]; }
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
    const struct {
        std::vector<std::string> hände;
        std::string markiert;
        bool offen;
    } weg[] = {
        {{"maus Tonkartei.Lied_kopieren"}, "Lied_kopieren", false},
        {{"maus Tonkartei.Liste"}, "Liste", false},
        {{"maus Tonkartei.Liste_Anzahl"}, "", false},
        {{"maus Tonkartei.WinAmp_Show"}, "WinAmp_Show", true},
        {{"maus Tonkartei.WinAmp_Play"}, "WinAmp_Play", true},
        {{"maus Tonkartei"}, "", true},
        {{"maus Tonkartei.Reset_Anzahl"}, "", true},  // disabled, so it is like the ground
        {{"maus Tonkartei.Liste"}, "Liste", false},
        // The mouse goes on while the panel opens: the last place counts.
        {{"vormerken maus Tonkartei.WinAmp_Play", "vormerken maus Tonkartei.Schnellsuche", "maus Tonkartei.WinAmp_Show"},
         "Schnellsuche",
         false},
        {{"klick Tonkartei.Mousemove_markierung", "maus Tonkartei.WinAmp_Show"}, "", false},
    };
    for (const auto& schritt : weg) {
        hände(schritt.hände);
        EXPECT_EQ(offen(), schritt.offen) << schritt.hände.back();
        for (const std::string name :
             {"Lied_kopieren", "Liste", "Liste_Anzahl", "WinAmp_Show", "WinAmp_Play", "Reset_Anzahl", "Schnellsuche"}) {
            const int grund = b->zeige("Tonkartei." + name)["hintergrund"];
            const int farbe = name == "Liste" ? 16773340 : 16763030;
            EXPECT_EQ(grund == farbe, name == schritt.markiert) << name << " after " << schritt.hände.back();
        }
    }
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
    EXPECT_EQ(gesendet(), Zeilen{"start"});
    const auto tafel = b->zeige("Tonkartei.WinAmp_Frame");
    for (const char* name : {"Play", "zurück", "Position", "Vol", "Zeit"}) {
        const auto e = b->zeige("Tonkartei.WinAmp_" + std::string(name));
        EXPECT_LE(e["links"].get<int>() + e["breite"].get<int>(), tafel["breite"].get<int>()) << name;
        EXPECT_LE(e["oben"].get<int>() + e["höhe"].get<int>(), tafel["höhe"].get<int>()) << name;
    }
    hände({"drücke Tonkartei.WinAmp_vor", "uhr +1000", "loslasse Tonkartei.WinAmp_vor", "setze Tonkartei.WinAmp_Vol 50",
           "setze Tonkartei.WinAmp_Position 20"});
    EXPECT_EQ(gesendet(), (Zeilen{"40148/0", "40148/0", "127/122", "127/122", "20000/106"})) << "the volume twice";
    hand("klick Tonkartei.WinAmp_vor");
    EXPECT_EQ(gesendet(), b->zeige("Tonkartei.Zufallslied_starten")["aktiv"] ? Zeilen{"start"} : Zeilen{});
    hände({"klick Tonkartei.Menü_WinAmp_Fernsteuerung", "klick Tonkartei.MP_Beenden"});
    starten();
    EXPECT_EQ(wert("WinAmp Lautstärke"), "50");
    EXPECT_FALSE(b->zeige("Tonkartei.WinAmp_Show")["sichtbar"]);
    EXPECT_FALSE(b->zeige("Tonkartei.Menü_WinAmp_Fernsteuerung")["haken"]);
}

}  // namespace
}  // namespace tonkartei
