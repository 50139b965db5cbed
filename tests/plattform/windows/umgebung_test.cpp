// The user's own registry, his bin and his machine.
#include <gtest/gtest.h>

#include <filesystem>

#include "echt.hpp"
#include "plattform/hilfen.hpp"
#include "plattform/offene_datei.hpp"
#include "plattform/registerwerte.hpp"
#include "plattform/windows/breit.hpp"
#include "plattform/windows/winapi.hpp"
#include "testordner.hpp"

#include <shellapi.h>

namespace tonkartei {
namespace {

// As any other program sees it.
TEST(Umgebung, RegistrierungDesBenutzers) {
    Registrierung_Windows reg;
    setze(reg, "Software\\Tonkartei-Test\\Größe\\Nr. 1", "C:\\ä 漢\\");
    setze(reg, "Software\\Tonkartei-Test\\Zahl", std::string("\x78\x03\0\0", 4), REG_DWORD);
    EXPECT_EQ(reg.RegFlushKey(Wurzelschlüssel), 0);
    wchar_t text[100];
    DWORD größe = sizeof text, zahl = 0;
    EXPECT_EQ(::RegGetValueW(HKEY_CURRENT_USER, L"Software\\Tonkartei-Test\\Größe\\Nr. 1", nullptr, RRF_RT_REG_SZ, nullptr,
                             text, &größe),
              0);
    EXPECT_EQ(std::wstring(text), L"C:\\ä 漢\\");
    größe = sizeof zahl;
    EXPECT_EQ(
        ::RegGetValueW(HKEY_CURRENT_USER, L"Software\\Tonkartei-Test", nullptr, RRF_RT_DWORD, nullptr, &zahl, &größe) == 0,
        false);
    EXPECT_EQ(
        ::RegGetValueW(HKEY_CURRENT_USER, L"Software\\Tonkartei-Test\\Zahl", nullptr, RRF_RT_DWORD, nullptr, &zahl, &größe),
        0);
    EXPECT_EQ(zahl, 888U);
    EXPECT_EQ(reg.RegDeleteKeyA(Wurzelschlüssel, "SOFTWARE\\tonkartei-test"), 0);
    HKEY rest = nullptr;
    EXPECT_EQ(::RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Tonkartei-Test", 0, KEY_READ, &rest), 2) << "nothing is left";
}

// A variable of the environment, back to what it was afterwards.
class Variable {
public:
    Variable(const wchar_t* name, const wchar_t* wert) : name_(name) {
        ::GetEnvironmentVariableW(name, alt_, MAX_PATH);
        ::SetEnvironmentVariableW(name, wert);
    }
    ~Variable() { ::SetEnvironmentVariableW(name_, alt_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const wchar_t* name_;
    wchar_t alt_[MAX_PATH] = {};
};

class KorbTest : public testing::Test {
protected:
    Testordner ordner;
    Dateisystem_Windows dateien;
    Papierkorb_Windows korb{dateien};

    static std::int64_t im_Korb() {
        SHQUERYRBINFO info{sizeof info, 0, 0};
        return ::SHQueryRecycleBinW(L"C:\\", &info) == S_OK ? info.i64NumItems : -1;
    }
};

TEST_F(KorbTest, BehältWasWeggeworfenWird) {
    const auto vorher = im_Korb();
    korb.wegwerfen(ordner.datei("Für 漢.mp3", "1"));
    korb.wegwerfen(ordner.ordner("leer"));
    EXPECT_FALSE(ordner.da("Für 漢.mp3") || ordner.da("leer"));
    EXPECT_EQ(Fehler_von([&] { korb.wegwerfen(ordner.pfad("fehlt")); }), 53);
    {
        const Offene_Datei offen(dateien, ordner.datei("offen", "o"), Dateimodus::lesen);
        EXPECT_NE(Fehler_von([&] { korb.wegwerfen(ordner.pfad("offen")); }), 0);
    }
    EXPECT_EQ(ordner.inhalt("offen"), "o");
    // Too long for the shell: carried over.
    Text tief = ordner.pfad();
    for (int i = 0; i < 3; ++i) dateien.Ordner_anlegen(tief += Text(90, 't') + "\\");
    { Offene_Datei(dateien, tief + "lied", Dateimodus::schreiben).schreiben(0, std::string_view("l")); }
    korb.wegwerfen(tief + "lied");
    EXPECT_TRUE(dateien.auflisten(tief).empty());
    EXPECT_EQ(Fehler_von([&] { korb.wegwerfen(tief); }), 75) << "a folder is not";
    EXPECT_EQ(im_Korb() - vorher, 3);
}

TEST(Umgebung, ZweiteInstanzUndOrdner) {
    const Testordner ordner;
    {
        Rechner_Windows erste(ordner.pfad()), zweite(ordner.pfad()), fremde(ordner.pfad("x"));
        EXPECT_FALSE(erste.andere_Instanz_läuft());
        EXPECT_TRUE(zweite.andere_Instanz_läuft());
        EXPECT_FALSE(fremde.andere_Instanz_läuft());
    }
    Rechner_Windows rechner(ordner.pfad());
    EXPECT_FALSE(rechner.andere_Instanz_läuft());
    const Variable temp(L"TEMP", L"C:\\gibt es nicht"), tmp(L"TMP", breit(ordner.ordner("tmp ä")).c_str());
    EXPECT_EQ(rechner.Temp_Verzeichnis(), ordner.pfad("tmp ä/"));
    const Variable keines(L"TMP", nullptr);
    EXPECT_EQ(rechner.Temp_Verzeichnis(), Ordner_von(Programmpfad()));
    EXPECT_FALSE(rechner.GetUserNameA().empty() || rechner.GetComputerNameA().empty());
    // The player of this build lies beside the tests once it is built.
    const Text eigener = Ordner_von(Programmpfad());
    const bool da = std::filesystem::exists(std::filesystem::path(breit(eigener + "WinAmp.Exe")));
    EXPECT_EQ(rechner.WinAmp_Vorgabe(), da ? eigener : "C:\\Programme\\WinAmp\\");
}

}  // namespace
}  // namespace tonkartei
