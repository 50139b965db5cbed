#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "plattform/hilfen.hpp"
#include "plattform/linux/befehlstext.hpp"
#include "plattform/linux/platte.hpp"
#include "plattform/offene_datei.hpp"
#include "plattform/shellbuehne.hpp"

namespace tonkartei {
namespace {

// Replacing a file by itself under another name must not be the end of it, nor may two names that differ by case become one.
TEST_F(ShellTest, ErsetzenVerliertNichts) {
    ordner.datei("echt/lied", (ordner.ordner("echt"), "lied"));
    std::filesystem::create_symlink("echt", ordner.pfad("link"));
    EXPECT_NE(tu(FO_MOVE, {"link/lied"}, {"echt/lied"}, FOF_NOCONFIRMATION), "0");
    EXPECT_NE(tu(FO_COPY, {"link/lied"}, {"echt/lied"}, FOF_NOCONFIRMATION), "0");
    EXPECT_EQ(ordner.inhalt("echt/lied"), "lied");
    std::filesystem::remove(ordner.pfad("link"));
    EXPECT_EQ(stand(), "echt/lied=lied ");

    for (const char* name : {"ziel", "ZIEL", "zwei/a", "zwei/A"}) ordner.datei(name, (ordner.ordner("zwei"), name));
    EXPECT_EQ(tu(FO_MOVE, {"ziel"}, {"ZIEL"}, FOF_NOCONFIRMATION), "80");
    EXPECT_EQ(tu(FO_COPY, {"ziel"}, {"ZIEL"}, FOF_NOCONFIRMATION), "113");
    EXPECT_EQ(tu(FO_MOVE, {"echt/lied"}, {"ziel"}, FOF_NOCONFIRMATION), "0") << "the exact one is replaced";
    EXPECT_EQ(tu(FO_MOVE, {"zwei"}, {"fern"}, FOF_NOCONFIRMATION), "80");
    EXPECT_EQ(tu(FO_COPY, {"zwei"}, {"ZWEI/sub"}, 0), "125") << "not into itself";
    EXPECT_EQ(tu(FO_RENAME, {"zwei"}, {"Zwei"}), "0");
    EXPECT_EQ(stand(), "ZIEL=ZIEL Zwei/a=zwei/a echt/ fern/A=zwei/A ziel=lied ");
}

TEST_F(ShellTest, VerweisInDieFerne) {
    ordner.ordner("fern/tief");
    // A link to a folder elsewhere is not followed, neither in moving nor in deleting.
    ordner.datei("fremd/x", (ordner.ordner("fremd"), "x"));
    std::filesystem::create_symlink(ordner.pfad("fremd"), ordner.pfad("fern/tief/link"));
    EXPECT_NE(tu(FO_MOVE, {"fern/tief"}, {"hier"}), "0");
    EXPECT_EQ(tu(FO_DELETE, {"fern", "hier"}, {}, FOF_NOCONFIRMATION), "0");
    EXPECT_EQ(stand(), "fremd/x=x ");
}

TEST_F(ShellTest, Papierkorb) {
    for (const char* inhalt : {"1", "2"}) {
        ordner.datei("Für \"Elise\"% \xFF.mp3", inhalt);
        EXPECT_EQ(tu(FO_DELETE, {"Für \"Elise\"% \xFF.mp3"}, {}, FOF_ALLOWUNDO), "0");
    }
    EXPECT_EQ(stand("korb/files"), "Für \"Elise\"% \xFF.2.mp3=2 Für \"Elise\"% \xFF.mp3=1 ");
    const std::string info = ordner.inhalt("korb/info/Für \"Elise\"% \xFF.mp3.trashinfo");
    const std::string anfang = "[Trash Info]\nPath=" + ordner.pfad("F%C3%BCr%20%22Elise%22%25%20%FF.mp3\nDeletionDate=20");
    EXPECT_EQ(info.substr(0, anfang.size()), anfang);
    EXPECT_EQ(info.size(), anfang.size() + 18);

    // Names taken by a file without info, or by an info without file, are passed over.
    ordner.datei("korb/files/x", "fremd");
    ordner.datei("korb/info/x.2.trashinfo", "fremd");
    ordner.datei("x", "meins");
    EXPECT_EQ(tu(FO_DELETE, {"x"}, {}, FOF_ALLOWUNDO), "0");
    EXPECT_EQ(ordner.inhalt("korb/files/x") + ordner.inhalt("korb/files/x.3"), "fremdmeins");
    EXPECT_FALSE(ordner.da("korb/info/x.trashinfo"));
    // What cannot go leaves no trace in the bin.
    {
        const Offene_Datei offen(dateien, ordner.datei("offen", "o"), Dateimodus::lesen);
        EXPECT_NE(tu(FO_DELETE, {"offen"}, {}, FOF_ALLOWUNDO), "0");
    }
    EXPECT_FALSE(ordner.da("korb/info/offen.trashinfo"));
    // A bin that is removed in between is made anew.
    std::filesystem::remove_all(ordner.pfad("korb"));
    EXPECT_EQ(tu(FO_DELETE, {"offen"}, {}, FOF_ALLOWUNDO), "0");
    EXPECT_EQ(stand("korb/files"), "offen=o ");
    // From a volume without a bin of its own the file is carried over; if it cannot be taken away there, nothing is left
    // behind.
    ordner.datei("fern/lied", (ordner.ordner("fern"), "musik"));
    dateien.löscht_nicht = true;
    EXPECT_NE(tu(FO_DELETE, {"fern/lied"}, {}, FOF_ALLOWUNDO), "0");
    EXPECT_FALSE(ordner.da("korb/files/lied") || ordner.da("korb/info/lied.trashinfo"));
    dateien.löscht_nicht = false;
    EXPECT_EQ(tu(FO_DELETE, {"fern/lied"}, {}, FOF_ALLOWUNDO), "0");
    EXPECT_EQ(ordner.inhalt("korb/files/lied"), "musik");
    EXPECT_FALSE(ordner.da("fern/lied"));
    const std::string lang(250, 'l');
    ordner.datei(lang, "lang");
    EXPECT_EQ(tu(FO_DELETE, {lang}, {}, FOF_ALLOWUNDO), "0");
}

TEST_F(ShellTest, PapierkorbAmAnderenLaufwerk) {
    if (!anderes_Laufwerk_da(ordner)) GTEST_SKIP() << "only one volume";
    const Text oben = "/dev/shm/.Trash-" + std::to_string(::geteuid());
    if (std::filesystem::exists(oben) || std::filesystem::exists("/dev/shm/.Trash")) GTEST_SKIP() << "somebody's bin";
    const Testordner anderer("/dev/shm");
    Dateisystem_Linux echte;
    Papierkorb_Freedesktop(echte, ordner.pfad("korb")).wegwerfen(anderer.datei("lied x", "m"));
    EXPECT_EQ(Testordner::inhalt_von(oben + "/files/lied x"), "m");
    const Text Herkunft = "[Trash Info]\nPath=" + anderer.pfad().substr(std::string("/dev/shm/").size()) + "lied%20x\n";
    EXPECT_TRUE(Testordner::inhalt_von(oben + "/info/lied x.trashinfo").starts_with(Herkunft));
    std::filesystem::remove_all(oben);
}

// The bin at the top of a volume: the administrator's if its sticky bit is set, else our own; links and what belongs to
// others are traps.
TEST(Papierkorb, NurSichereOrdner) {
    const Text nummer = std::to_string(::geteuid());
    const struct {
        int gemeinsam;  // mode of .Trash; -1 a link, 0 none
        char eigener;   // .Trash-UID: ' ' none, '@' a link, '!' somebody else's
        const char* korb;
    } fälle[] = {{01777, ' ', ".Trash/"}, {0777, ' ', ".Trash-"},  {-1, ' ', ".Trash-"}, {0, ' ', ".Trash-"},
                 {0777, '@', ""},         {01777, '@', ".Trash/"}, {0, '!', ""}};
    for (const auto& fall : fälle) {
        const Testordner ordner;
        const Text gemeinsam = ordner.pfad(".Trash"), eigener = ordner.pfad(".Trash-" + nummer);
        if (fall.gemeinsam > 0) ::chmod(ordner.ordner(".Trash").c_str(), static_cast<mode_t>(fall.gemeinsam));
        if (fall.gemeinsam < 0) std::filesystem::create_directory_symlink(ordner.ordner("falle"), gemeinsam);
        if (fall.eigener == '@') std::filesystem::create_directory_symlink(ordner.ordner("falle"), eigener);
        if (fall.eigener == '!' && ::chown(ordner.ordner(".Trash-" + nummer).c_str(), 65534, 65534) != 0) continue;
        EXPECT_EQ(Korb_auf(ordner.pfad()).value_or(""), *fall.korb ? ordner.pfad(fall.korb + nummer + "/") : Text());
    }
}

TEST(Befehlstext, Zerlegen) {
    const Testordner ordner;
    ordner.ordner("mit blank");
    ordner.datei("kein Programm");
    for (const char* name : {"WinAmp.Exe", "mit blank/WinAmp.Exe", "mit"}) ::chmod(ordner.datei(name).c_str(), 0755);
    const Text p = ordner.pfad();
    const struct {
        Text befehl;
        std::vector<Text> teile;
    } fälle[] = {
        {p + "WinAmp.Exe /CLASS=\"Tonkartei\" \"/a b/c.mp3\"", {p + "WinAmp.Exe", "/CLASS=Tonkartei", "/a b/c.mp3"}},
        {p + "mit blank/WinAmp.Exe  /NEW\t\"\" a\"b c\"d", {p + "mit blank/WinAmp.Exe", "/NEW", "", "ab cd"}},
        {p + "mit blankem Wort", {p + "mit", "blankem", "Wort"}},
        {"\"" + p + "mit blank/WinAmp.Exe\"x y", {p + "mit blank/WinAmp.Exe", "x", "y"}},
        {"WinAmp.Exe \"/a\"\"b\"\"/c.mp3\" d", {p + "WinAmp.Exe", "/a\"b\"/c.mp3", "d"}},
        {"  WinAmp.Exe \"offen bis zum Ende", {p + "WinAmp.Exe", "offen bis zum Ende"}},
        {p + "kein Programm", {}},
        {p + "fehlt /NEW", {}},
        {"", {}},
        {p + Text("WinAmp.Exe\0 x", 13), {}},
    };
    for (const auto& fall : fälle)
        EXPECT_EQ(Befehl_zerlegt(fall.befehl, p).value_or(std::vector<Text>{}), fall.teile) << fall.befehl;
}

TEST_F(ShellTest, ProzessÜberlebtOhneZombieUndOhneUnsereDateien) {
    ordner.ordner("ein ordner");
    const Text skript =
        ordner.datei("ein ordner/programm",
                     "#!/bin/sh\nprintf '%s|' \"$@\" > \"$1.tmp\"\nls /proc/$$/fd | tr '\\n' ' ' >> \"$1.tmp\"\n"
                     "mv \"$1.tmp\" \"$1\"\n");
    ::chmod(skript.c_str(), 0755);
    // Open without O_CLOEXEC, as some libraries leave their files; with a number that the script itself does not use.
    const int undicht = 77;
    ASSERT_EQ(::dup2(STDERR_FILENO, undicht), undicht);
    shell.starten(skript + " \"" + ordner.pfad("ergebnis") + "\" \"a b\" c", 2);
    for (int i = 0; i < 500 && !ordner.da("ergebnis"); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    const std::string ergebnis = ordner.inhalt("ergebnis");
    const std::string erwartet = ordner.pfad("ergebnis") + "|a b|c|";
    EXPECT_EQ(ergebnis.substr(0, erwartet.size()), erwartet);
    EXPECT_EQ(ergebnis.substr(erwartet.size()).find(" " + std::to_string(undicht) + " "), std::string::npos) << ergebnis;
    ::close(undicht);
    int zustand = 0;
    EXPECT_EQ(::waitpid(-1, &zustand, WNOHANG), -1) << "no child is left to us";

    EXPECT_EQ(Fehler_von([&] { shell.starten(ordner.pfad("fehlt.exe /NEW"), 2); }), 53);
    ::chmod(ordner.datei("müll", "\x7F ELF-not").c_str(), 0755);
    EXPECT_NE(Fehler_von([&] { shell.starten(ordner.pfad("müll"), 2); }), 0);
}

}  // namespace
}  // namespace tonkartei
