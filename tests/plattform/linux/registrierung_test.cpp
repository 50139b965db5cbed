#include "plattform/linux/registrierung_linux.hpp"

#include <gtest/gtest.h>

#include "plattform/registerwerte.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

using Schlüssel = Registrierung::Schlüssel;

class RegisterdateiTest : public testing::Test {
protected:
    Testordner ordner;
    const Text pfad = ordner.pfad("conf/tonkartei/einstellungen.reg");
};

TEST_F(RegisterdateiTest, Dateiform) {
    Registrierung_Linux reg(pfad);
    setze(reg, "Software\\Tonkartei\\Größe", "a\\\"b");
    setze(reg, "SOFTWARE\\TONKARTEI\\GRÖßE", "c");
    setze(reg, "Software\\Tonkartei\\Zahl", std::string("\x78\x03\0\0", 4), REG_DWORD);
    setze(reg, "Software\\Tonkartei\\Z", "a\nb\xFF");
    Schlüssel schlüssel = 0;
    reg.RegOpenKeyExA(HKEY_CURRENT_USER, "Software", KEY_ALL_ACCESS, schlüssel);
    reg.RegSetValueExA(schlüssel, "mit \"Namen\"", REG_BINARY, {'\x01', '\xFF'});
    EXPECT_EQ(reg.RegFlushKey(schlüssel), 0);
    EXPECT_EQ(std::filesystem::status(ordner.pfad("conf/tonkartei")).permissions(), std::filesystem::perms::owner_all);
    EXPECT_FALSE(ordner.da("conf/tonkartei/einstellungen.reg.neu"));
    EXPECT_EQ(Testordner::inhalt_von(pfad),
              "Windows Registry Editor Version 5.00\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software]\r\n\"mit \\\"Namen\\\"\"=hex:01,ff\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei]\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei\\Größe]\r\n@=\"c\"\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei\\Z]\r\n@=hex(1):61,0a,62,ff,00\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei\\Zahl]\r\n@=dword:00000378\r\n");
    EXPECT_EQ(reg.alle().back(), (std::pair<Text, Text>{"Software\\Tonkartei\\Zahl", "888"}));
}

TEST_F(RegisterdateiTest, BeschädigteDatei) {
    ordner.ordner("conf/tonkartei");
    const std::string guter = "[HKEY_CURRENT_USER\\S\\gut]\r\n@=\"ja\"\r\n";
    const std::string schlecht[] = {
        "\xEF\xBB\xBFREGEDIT4\n",
        "[HKEY_CURRENT_USER\\S\\offen\n@=\"verloren\"\n",
        "[HKEY_LOCAL_MACHINE\\S\\gut]\n@=\"fremd\"\n",
        "[HKEY_CURRENT_USERx]\n@=\"fremd\"\n[]\n[\n]\n",
        "\"ohne Schlüssel\"=\"x\"\n=\n\"\n\"a\n@\n@=\n",
        "[HKEY_CURRENT_USER\\S\\z]\n@=\"offen\n@=\"zu\"viel\n@=\"\\\n@=dword:xyz\n@=dword:123456789\n@=hex:1,,2\n@=hex:100\n"
        "@=hex(:01\n@=hex(zz):01\n@=hex01\n@=-\n\"n\"=quatsch\n",
        std::string("\0\0\xFF\xFE[\0]\n", 8),
    };
    for (const auto& müll : schlecht) {
        for (const auto& inhalt : {müll + guter, guter + müll}) {
            ordner.datei("conf/tonkartei/einstellungen.reg", inhalt);
            Registrierung_Linux reg(pfad);
            EXPECT_EQ(lies(reg, "S\\gut"), mit_Null("ja")) << inhalt;
            EXPECT_EQ(lies(reg, "S\\z"), "(keiner)");
        }
    }
    ordner.datei("conf/tonkartei/einstellungen.reg",
                 "; note\n  [hkey_current_user\\S\\x]  \n @ = hex:01,\\\r\n  02,\\\n  03\n\"n\"=dword:A\n");
    Registrierung_Linux reg(pfad);
    EXPECT_EQ(lies(reg, "S\\x", REG_BINARY), "\x01\x02\x03");
}

TEST_F(RegisterdateiTest, SchreibtNurWasSichGeändertHatUndNieÜberUnlesbares) {
    Registrierung_Linux reg(pfad);
    EXPECT_EQ(reg.RegFlushKey(HKEY_CURRENT_USER), 0);
    EXPECT_FALSE(ordner.da("conf"));
    for (const auto& [neu, geschrieben] : {std::pair{"1", true}, {"1", false}, {"2", true}}) {
        setze(reg, "S", neu);
        std::filesystem::remove(pfad);
        EXPECT_EQ(reg.RegFlushKey(HKEY_CURRENT_USER), 0);
        EXPECT_EQ(std::filesystem::exists(pfad), geschrieben) << "the same value is no change";
    }

    Registrierung_Linux unlesbar((ordner.ordner("folder"), ordner.pfad("folder")));
    setze(unlesbar, "S", "1");
    EXPECT_NE(unlesbar.RegFlushKey(HKEY_CURRENT_USER), 0);
    // A link, as people keep their settings elsewhere, stays one.
    ordner.datei("anderswo.reg");
    std::filesystem::create_symlink("anderswo.reg", ordner.pfad("link.reg"));
    Registrierung_Linux verlinkt(ordner.pfad("link.reg"));
    setze(verlinkt, "S", "3");
    EXPECT_EQ(verlinkt.RegFlushKey(HKEY_CURRENT_USER), 0);
    EXPECT_TRUE(std::filesystem::is_symlink(ordner.pfad("link.reg")));
    Registrierung_Linux wieder(ordner.pfad("anderswo.reg"));
    EXPECT_EQ(lies(wieder, "S"), mit_Null("3"));
}

}  // namespace
}  // namespace tonkartei
