#include "plattform/linux/registrierung_linux.hpp"

#include <gtest/gtest.h>
#include "testordner.hpp"

namespace tonkartei {
namespace {

using Schlüssel = Registrierung::Schlüssel;

class RegistrierungTest : public testing::Test {
protected:
    Testordner ordner;
    const Text pfad = ordner.pfad("conf/tonkartei/einstellungen.reg");

    static long setze(Registrierung& reg, const Text& name, const std::string& bytes, std::uint32_t art = REG_SZ) {
        Schlüssel schlüssel = 0;
        if (const long fehler = reg.RegCreateKeyExA(HKEY_CURRENT_USER, name, schlüssel); fehler != 0) return fehler;
        std::vector<char> daten(bytes.begin(), bytes.end());
        if (art == REG_SZ) daten.push_back('\0');
        const long ergebnis = reg.RegSetValueExA(schlüssel, "", art, daten);
        reg.RegCloseKey(schlüssel);
        return ergebnis;
    }
    // The bytes of a key's default value; "(keiner)" without.
    static std::string lies(Registrierung& reg, const Text& name, std::uint32_t erwartete_Art = REG_SZ) {
        Schlüssel schlüssel = 0;
        if (reg.RegOpenKeyExA(HKEY_CURRENT_USER, name, KEY_READ, schlüssel) != 0) return "(keiner)";
        std::uint32_t art = 0, größe = 0;
        std::vector<char> daten;
        if (reg.RegQueryValueExA(schlüssel, "", art, größe, nullptr) != 0) return "(keiner)";
        EXPECT_EQ(reg.RegQueryValueExA(schlüssel, "", art, größe, &daten), 0);
        EXPECT_EQ(daten.size(), größe);
        EXPECT_EQ(art, erwartete_Art);
        reg.RegCloseKey(schlüssel);
        return {daten.begin(), daten.end()};
    }
    static std::string mit_Null(std::string text) { return text + '\0'; }
};

TEST_F(RegistrierungTest, WasHineingehtKommtWieder) {
    const struct {
        Text name;
        std::string bytes;
        std::uint32_t art;
    } werte[] = {
        {"Software\\Tonkartei\\geöffnete Datenbanken\\Nr. 1", "/musik/\"a\\b\"/\xFF\xE4]=/", REG_SZ},
        {"Software\\Tonkartei\\leer", "", REG_SZ},
        {"Software\\Tonkartei\\umbrochen", std::string("a\r\nb\n[x]\r\n@=\"y\"\0c", 18), REG_SZ},
        {"Software\\Tonkartei\\Zahl", std::string("\x0A\0\0\xFF", 4), REG_DWORD},
        {"Software\\Tonkartei\\krumme Zahl", "abc", REG_DWORD},
        {"Software\\Tonkartei\\keine Bytes", "", REG_BINARY},
        {"Software\\Tonkartei\\Art 7", "x\\", 7},
        {"Software\\a]b=\"c\" ;[d", "e", REG_SZ},
    };
    {
        Registrierung_Linux reg(pfad);
        for (const auto& wert : werte) EXPECT_EQ(setze(reg, wert.name, wert.bytes, wert.art), 0);
        EXPECT_EQ(reg.RegFlushKey(HKEY_CURRENT_USER), 0);
    }
    Registrierung_Linux wieder(pfad);
    for (const auto& wert : werte)
        EXPECT_EQ(lies(wieder, wert.name, wert.art), wert.art == REG_SZ ? mit_Null(wert.bytes) : wert.bytes) << wert.name;
    Schlüssel schlüssel = 0;
    EXPECT_EQ(wieder.RegOpenKeyExA(HKEY_CURRENT_USER, "SOFTWARE\\tonkartei", KEY_READ, schlüssel), 0)
        << "a key without a value is one, too";
    EXPECT_EQ(std::filesystem::status(ordner.pfad("conf/tonkartei")).permissions(), std::filesystem::perms::owner_all);
    EXPECT_FALSE(ordner.da("conf/tonkartei/einstellungen.reg.neu"));
}

TEST_F(RegistrierungTest, Dateiform) {
    Registrierung_Linux reg(pfad);
    setze(reg, "Software\\Tonkartei\\Größe", "a\\\"b");
    setze(reg, "SOFTWARE\\TONKARTEI\\GRÖßE", "c");
    setze(reg, "Software\\Tonkartei\\Zahl", std::string("\x78\x03\0\0", 4), REG_DWORD);
    setze(reg, "Software\\Tonkartei\\Z", "a\nb");
    Schlüssel schlüssel = 0;
    reg.RegOpenKeyExA(HKEY_CURRENT_USER, "Software", KEY_ALL_ACCESS, schlüssel);
    reg.RegSetValueExA(schlüssel, "mit \"Namen\"", REG_BINARY, {'\x01', '\xFF'});
    EXPECT_EQ(reg.RegFlushKey(schlüssel), 0);
    EXPECT_EQ(Testordner::inhalt_von(pfad),
              "Windows Registry Editor Version 5.00\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software]\r\n\"mit \\\"Namen\\\"\"=hex:01,ff\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei]\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei\\Größe]\r\n@=\"c\"\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei\\Z]\r\n@=hex(1):61,0a,62,00\r\n"
              "\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei\\Zahl]\r\n@=dword:00000378\r\n");
    EXPECT_EQ(reg.alle().back(), (std::pair<Text, Text>{"Software\\Tonkartei\\Zahl", "888"}));
}

// Keys whose names only begin alike are no relatives, whatever character follows.
TEST_F(RegistrierungTest, LöschenNimmtMitWasDarunterLiegt) {
    Registrierung_Linux reg(pfad);
    for (const char* name : {"S\\T", "S\\T\\a", "S\\T\\a\\b", "S\\T x", "S\\T!\\c", "S\\Tä", "S\\U"}) setze(reg, name, name);
    Schlüssel offen = 0;
    ASSERT_EQ(reg.RegOpenKeyExA(HKEY_CURRENT_USER, "S\\T\\a", KEY_ALL_ACCESS, offen), 0);
    EXPECT_EQ(reg.RegDeleteKeyA(HKEY_CURRENT_USER, "s\\t"), 0);
    EXPECT_EQ(reg.RegDeleteKeyA(HKEY_CURRENT_USER, "s\\t"), ERROR_FILE_NOT_FOUND);
    EXPECT_NE(reg.RegDeleteKeyA(HKEY_CURRENT_USER, ""), 0);
    EXPECT_NE(reg.RegSetValueExA(offen, "", REG_SZ, {'x', '\0'}), 0) << "its key is gone";
    EXPECT_NE(reg.RegOpenKeyExA(77, "x", KEY_READ, offen), 0);
    EXPECT_NE(reg.RegCreateKeyExA(HKEY_CURRENT_USER, "a\nb", offen), 0);
    EXPECT_EQ(reg.RegFlushKey(HKEY_CURRENT_USER), 0);
    Registrierung_Linux wieder(pfad);
    for (const char* name : {"S\\T", "S\\T\\a", "S\\T\\a\\b"}) EXPECT_EQ(lies(wieder, name), "(keiner)") << name;
    for (const char* name : {"S\\T x", "S\\T!\\c", "S\\Tä", "S\\U"}) EXPECT_EQ(lies(wieder, name), mit_Null(name)) << name;
}

TEST_F(RegistrierungTest, BeschädigteDatei) {
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

TEST_F(RegistrierungTest, SchreibtNurWasSichGeändertHatUndNieÜberUnlesbares) {
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
