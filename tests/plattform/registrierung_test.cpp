#include "plattform/registrierung.hpp"

#include <gtest/gtest.h>

#include "echt.hpp"
#include "plattform/registerwerte.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

using Schlüssel = Registrierung::Schlüssel;

class RegistrierungTest : public testing::Test {
protected:
    Testordner ordner;
    const Text pfad = ordner.pfad("conf/einstellungen.reg");
};

TEST_F(RegistrierungTest, WasHineingehtKommtWieder) {
    const struct {
        Text name;
        std::string bytes;
        std::uint32_t art;
    } werte[] = {
        {"Software\\Tonkartei\\geöffnete Datenbanken\\Nr. 1", "/musik/\"a\\b\"/ÿ漢😀]=/", REG_SZ},
        {"Software\\Tonkartei\\leer", "", REG_SZ},
        {"Software\\Tonkartei\\umbrochen", std::string("a\r\nb\n[x]\r\n@=\"y\"\0c", 18), REG_SZ},
        {"Software\\Tonkartei\\Zahl", std::string("\x0A\0\0\xFF", 4), REG_DWORD},
        {"Software\\Tonkartei\\krumme Zahl", "abc", REG_DWORD},
        {"Software\\Tonkartei\\keine Bytes", "", REG_BINARY},
        {"Software\\Tonkartei\\Art 7", "x\\", 7},
        {"Software\\a]b=\"c\" ;[d", "e", REG_SZ},
    };
    {
        Registrierung_echt reg(pfad);
        for (const auto& wert : werte) EXPECT_EQ(setze(reg, wert.name, wert.bytes, wert.art), 0);
        EXPECT_EQ(reg.RegFlushKey(HKEY_CURRENT_USER), 0);
    }
    Registrierung_echt wieder(pfad);
    for (const auto& wert : werte)
        EXPECT_EQ(lies(wieder, wert.name, wert.art), wert.art == REG_SZ ? mit_Null(wert.bytes) : wert.bytes) << wert.name;
    Schlüssel schlüssel = 0;
    EXPECT_EQ(wieder.RegOpenKeyExA(HKEY_CURRENT_USER, "SOFTWARE\\tonkartei", KEY_READ, schlüssel), 0)
        << "a key without a value is one, too";
}

// Keys whose names only begin alike are no relatives, whatever character follows.
TEST_F(RegistrierungTest, LöschenNimmtMitWasDarunterLiegt) {
    Registrierung_echt reg(pfad);
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
    Registrierung_echt wieder(pfad);
    for (const char* name : {"S\\T", "S\\T\\a", "S\\T\\a\\b"}) EXPECT_EQ(lies(wieder, name), "(keiner)") << name;
    for (const char* name : {"S\\T x", "S\\T!\\c", "S\\Tä", "S\\U"}) EXPECT_EQ(lies(wieder, name), mit_Null(name)) << name;
}

}  // namespace
}  // namespace tonkartei
