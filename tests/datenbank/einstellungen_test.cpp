#include "datenbank/einstellungsspeicher.hpp"

#include <gtest/gtest.h>

#include "plattform/linux/registrierung_linux.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

struct Einstellungen_Test : testing::Test {
    Testordner ordner;
    Registrierung_Linux registrierung{ordner.pfad("e.reg")};
    Registry registry{registrierung};
    Einstellungen werte;
    Einstellungs_Vorgaben vorgaben{100, 200, 300, 400, 500, 600, "C:\\Programme\\WinAmp\\"};

    Einstellungen_Test() { registry.Registry_Wurzel(HKEY_CURRENT_USER, "Software\\Tonkartei"); }
    Text wert(const Text& name) {
        for (const auto& [schlüssel, text] : registrierung.alle())
            if (schlüssel == "Software\\Tonkartei\\" + name) return text;
        return "(fehlt)";
    }
    void rohwert(const Text& name, std::uint32_t art, const std::vector<char>& daten) {
        Registrierung::Schlüssel s = 0;
        registrierung.RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Tonkartei\\" + name, s);
        registrierung.RegSetValueExA(s, "", art, daten);
        registrierung.RegCloseKey(s);
    }
};

TEST_F(Einstellungen_Test, EndeSchreibtAllesUndStartLiestEs) {
    Einstellungen_lesen(registry, werte, vorgaben);
    EXPECT_EQ(werte.Anzahl_Zeit, 10);
    EXPECT_EQ(werte.WinAmp_Verzeichnis, "C:\\Programme\\WinAmp\\");
    EXPECT_EQ(werte.PositionX, 100);
    // Only the display's 31 keys stand there now.
    EXPECT_EQ(registrierung.alle().size(), 31U);
    EXPECT_EQ(wert("Display\\Init 3 Wert"), "12");
    werte.Datenbank_Liste_Anzahl = 2;
    werte.Datenbank_Liste[1] = "/a/\xFF/";
    werte.Datenbank_Liste[2] = "";
    werte.PositionX = -15;
    werte.Markierte_Farbe = 1;
    werte.Display.Enable = 77;
    Einstellungen_schreiben(registry, werte);
    EXPECT_EQ(wert("geöffnete Datenbanken\\Nr. 2"), " ");
    EXPECT_EQ(wert("PositionX"), "-15");
    EXPECT_EQ(wert("Kategorie wechsel bestätigen"), "True");
    EXPECT_EQ(wert("Display\\Enable"), "77");
    EXPECT_EQ(registrierung.alle().size(), 47U + 2 + 31);

    Registrierung_Linux neu(ordner.pfad("e.reg"));
    Registry zweite(neu);
    zweite.Registry_Wurzel(HKEY_CURRENT_USER, "Software\\Tonkartei");
    Einstellungen gelesen;
    Einstellungen_lesen(zweite, gelesen, vorgaben);
    EXPECT_EQ(gelesen.Datenbank_Liste[1], "/a/\xFF/");
    EXPECT_EQ(gelesen.Datenbank_Liste[2], "");
    EXPECT_EQ(gelesen.PositionX, -15);
    // The display falls back at every start, in the registry too.
    EXPECT_EQ(gelesen.Display.Enable, 2);

    zweite.alles_löschen();
    EXPECT_TRUE(neu.alle().empty());
}

TEST_F(Einstellungen_Test, WasNichtPasstBehaeltDieVorgabe) {
    for (const auto& [gespeichert, erwartet] :
         {std::pair{"300", 25}, {"-1", 25}, {"", 25}, {" 7.5 ", 8}, {"abc", 0}, {"6,9", 6}}) {
        registry.Wert_schreiben("Random-Einstellung", gespeichert);
        Einstellungen_lesen(registry, werte, vorgaben);
        EXPECT_EQ(werte.Random_Einstellung, erwartet) << gespeichert;
    }
    registry.Wert_schreiben("PositionX", "99999999999");
    registry.Wert_schreiben("Position merken", "true");
    registry.Wert_schreiben("Papierkorb", "");
    rohwert("PositionY", REG_DWORD, {1, 1, 0, 0});
    rohwert("WinAmp", REG_SZ, {' ', '/', 0, 'w', '/', ' ', 0});
    rohwert("Kategorien", REG_BINARY, {1, 2, 3, 4});
    Einstellungen_lesen(registry, werte, vorgaben);
    EXPECT_EQ(werte.PositionX, 100);
    EXPECT_FALSE(werte.Position_merken);
    EXPECT_EQ(werte.PositionY, 257);
    EXPECT_EQ(werte.WinAmp_Verzeichnis, "/w/");
    EXPECT_EQ(werte.Kategorien, 1);
}

}  // namespace
}  // namespace tonkartei
