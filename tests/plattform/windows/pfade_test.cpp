// Paths as this system has them, and what no file can bear.
#include "plattform/hilfen.hpp"
#include "plattform/plattenbuehne.hpp"
#include "plattform/windows/breit.hpp"
#include "plattform/windows/pfadform.hpp"

namespace tonkartei {
namespace {

TEST(Pfadform, Formen) {
    const struct {
        const char* pfad;
        const char* name;  // null: none
    } fälle[] = {
        {"C:\\a\\b", "C:\\a\\b"},
        {"c:/a//b/./c/../d/", "c:\\a\\b\\d"},
        {"C:\\..\\..\\a", "C:\\a"},
        {"C:/", "C:\\"},
        {"lied.mp3", "D:\\m\\lied.mp3"},
        {"..\\lied", "D:\\lied"},
        {"\\a", "D:\\a"},
        {"\\\\server\\share", "\\\\server\\share\\"},
        {"//server/share/a/../..", "\\\\server\\share\\"},
        {"\\\\?\\C:\\a", "C:\\a"},
        {"\\\\?\\unc\\server\\share\\a", "\\\\server\\share\\a"},
        {"C:\\con cert\\nulla.mp3", "C:\\con cert\\nulla.mp3"},
        {"C:\\.x\\com10", "C:\\.x\\com10"},
        {"Z:relative", nullptr},
        {"Z:", nullptr},
        {"\\\\server", nullptr},
        {"\\\\\\share\\a", nullptr},
        {"\\\\.\\PhysicalDrive0", nullptr},
        {"\\\\?\\GLOBALROOT\\x", nullptr},
        {"C:\\NUL", nullptr},
        {"NUL.mp3", nullptr},
        {"C:\\aux \\x", nullptr},
        {"lpt³.a.b", nullptr},
        {"conin$", nullptr},
        {"a.", nullptr},
        {"a \\b", nullptr},
        {"...", nullptr},
        {"a:b", nullptr},
        {"a?", nullptr},
        {"a\tb", nullptr},
    };
    for (const auto& fall : fälle) {
        const auto form = Pfadform_von(fall.pfad, "D:\\m\\");
        EXPECT_EQ(form ? form->Name : "(keine)", fall.name != nullptr ? fall.name : "(keine)") << fall.pfad;
    }
    EXPECT_EQ(Pfadform_von("\\\\s\\f\\a", "C:\\")->weit(), L"\\\\?\\UNC\\s\\f\\a");
    EXPECT_EQ(ohne_Trenner("C:\\"), "C:\\");
    EXPECT_EQ(Dateiname_von("C:/a\\b/c"), "c");
    for (const char* bedingt : {"\\a", "C:a", "C:", "", "\\"}) EXPECT_FALSE(ist_absolut(bedingt)) << bedingt;
    for (const char* ganz : {"C:\\", "z:/a", "\\\\s\\f"}) EXPECT_TRUE(ist_absolut(ganz)) << ganz;
}

TEST(Breit, HinUndZurück) {
    for (const wchar_t* wort : {L"", L"aß漢😀", L"\xD800", L"\xDC00x\xD83D", L"\xDC00\xD800", L"\xFFFF"})
        EXPECT_EQ(breit(schmal(wort)), wort);
    EXPECT_EQ(schmal(L"\xD83D\xDE00"), "😀");
    // From a list file in the code page, and overlong, cut or beyond the last character: byte by byte.
    EXPECT_EQ(breit("K\xF6ln \x80 \xC0\x80 \xE2\x82"), L"Köln € À€ â‚");
    EXPECT_EQ(breit("\xF4\x90\x80\x80").size(), 4U);
}

TEST_F(DateisystemTest, OhneSchaden) {
    schreib(ordner.pfad("a"), "bleibt");
    for (const char* name : {"NUL.mp3", "a.", "a ", "a::$DATA", "com1", "a*", "b\\NUL", "a?"}) {
        const Text pfad = ordner.pfad(name);
        EXPECT_EQ(Fehler_von([&] { schreib(pfad, "weg"); }), 75) << name;
        EXPECT_EQ(Fehler_von([&] { lies(pfad); }), 75) << name;
        EXPECT_EQ(Fehler_von([&] { dateien.löschen(pfad); }), 75) << name;
        EXPECT_EQ(Fehler_von([&] { dateien.umbenennen(ordner.pfad("a"), pfad); }), 75) << name;
        EXPECT_EQ(Fehler_von([&] { dateien.kopieren(ordner.pfad("a"), pfad); }), 75) << name;
        EXPECT_EQ(Fehler_von([&] { dateien.Ordner_anlegen(pfad); }), 75) << name;
        EXPECT_EQ(dateien.Art_von(pfad), Pfadart::nichts) << name;
    }
    EXPECT_EQ(Fehler_von([&] { schreib("Z:relativ", "x"); }), 75);
    EXPECT_EQ(Fehler_von([&] { lies("Q:\\fehlt\\x"); }), 76);
    EXPECT_EQ(Fehler_von([&] { lies("\\\\gibtesnicht.invalid\\f\\x"); }), 76);
    EXPECT_FALSE(dateien.Ordner_da("\\\\.\\C:\\"));
    EXPECT_EQ(dateien.auflisten(ordner.pfad()).size(), 1U);
    EXPECT_EQ(ordner.inhalt("a"), "bleibt");
}

TEST_F(DateisystemTest, LangeUndKrummePfade) {
    Text tief = ordner.pfad();
    for (int i = 0; i < 6; ++i) dateien.Ordner_anlegen(tief += Text(100, 'x') + "\\");
    // Half a pair is kept where the disk takes one; those that stand in for this system's need not.
    const Text halb = "\xED\xA0\x80.mp3";
    const bool nimmt_halbe = Fehler_von([&] { schreib(tief + halb, ""); }) == 0;
    std::vector<Text> erwartet{"lang", Text(100, 'x'), "😀 漢.mp3"};
    if (nimmt_halbe) erwartet.insert(erwartet.end() - 1, halb);
    for (const Text& name : erwartet) {
        if (name.size() == 100) continue;
        schreib(tief + name, name);
        dateien.kopieren(tief + name, tief + "kopie");
        dateien.ersetzen(tief + "kopie", tief + name);
        dateien.umbenennen(tief + name, ordner.pfad(name));
        EXPECT_EQ(lies(ordner.pfad(name)), name);
        EXPECT_TRUE(dateien.Änderungszeit(ordner.pfad(name)));
    }
    // In the byte order of their names.
    std::vector<Text> namen;
    for (const auto& eintrag : dateien.auflisten(ordner.pfad())) namen.push_back(eintrag.Name);
    EXPECT_EQ(namen, erwartet);
    dateien.aktuellen_Ordner_setzen(tief);
    schreib("..\\oben", "1");
    EXPECT_TRUE(dateien.gleiches_Laufwerk("noch\\nicht", ordner.pfad()));
    EXPECT_TRUE(dateien.freie_Bytes(tief).value_or(0) > 0);
    // The standard library, which clears up behind us, does not get so far down.
    dateien.aktuellen_Ordner_setzen("C:\\");
    dateien.löschen(ohne_Trenner(Ordner_von(ohne_Trenner(tief))) + "\\oben");
    for (; tief.size() > ordner.pfad().size(); tief = Ordner_von(ohne_Trenner(tief))) dateien.Ordner_löschen(tief);
    if (nimmt_halbe) dateien.löschen(ordner.pfad(halb));
}

// A file that somebody else keeps to himself is refused, not waited for; one that is write-protected stays.
TEST_F(DateisystemTest, FremdOffenUndGeschützt) {
    const Text pfad = ordner.datei("lied", "1");
    Dateisystem_Windows anderer;
    const auto griff = anderer.öffnen(pfad, Dateimodus::ändern);
    EXPECT_EQ(lies(pfad), "1") << "who writes lets others read";
    EXPECT_EQ(Fehler_von([&] { dateien.öffnen(pfad, Dateimodus::schreiben); }), 70);
    EXPECT_EQ(Fehler_von([&] { dateien.löschen(pfad); }), 70);
    EXPECT_EQ(Fehler_von([&] { dateien.umbenennen(pfad, ordner.pfad("neu")); }), 75);
    EXPECT_EQ(Fehler_von([&] { dateien.ersetzen(ordner.datei("quelle"), pfad); }), 75);
    anderer.schließen(griff);
    std::filesystem::permissions(ordner.weg("lied"), std::filesystem::perms::owner_read);
    EXPECT_EQ(Fehler_von([&] { schreib(pfad, "weg"); }), 75);
    EXPECT_EQ(Fehler_von([&] { dateien.kopieren(ordner.pfad("quelle"), pfad); }), 75);
    dateien.kopieren(pfad, ordner.pfad("kopie"));
    EXPECT_NO_THROW(schreib(ordner.pfad("kopie"), "2")) << "a copy belongs to the user";
    EXPECT_EQ(ordner.inhalt("lied"), "1");
}

}  // namespace
}  // namespace tonkartei
