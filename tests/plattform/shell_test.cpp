#include "plattform/linux/shell_linux.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <set>
#include <thread>

#include "plattform/hilfen.hpp"
#include "plattform/linux/befehlstext.hpp"
#include "plattform/linux/dateisystem_linux.hpp"
#include "plattform/linux/papierkorb_freedesktop.hpp"
#include "plattform/offene_datei.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

// Paths that contain "/fern/" count as another volume; writing to a copy can be made to stop.
class Zwei_Laufwerke : public Dateisystem_Linux {
public:
    bool kopiert_kurz = false;
    bool löscht_nicht = false;
    int gesichert = 0;

    bool gleiches_Laufwerk(const Text& a, const Text& b) override { return fern(a) == fern(b); }
    void umbenennen(const Text& von, const Text& nach) override {
        if (fern(von) != fern(nach)) throw Dateifehler(74, nach);
        Dateisystem_Linux::umbenennen(von, nach);
    }
    void ersetzen(const Text& von, const Text& nach) override {
        if (fern(von) != fern(nach)) throw Dateifehler(74, nach);
        Dateisystem_Linux::ersetzen(von, nach);
    }
    void kopieren(const Text& von, const Text& nach) override {
        if (kopiert_kurz) {
            std::ofstream(nach) << "kur";
            throw Dateifehler(61, nach);
        }
        Dateisystem_Linux::kopieren(von, nach);
    }
    void sichern(Griff griff) override {
        ++gesichert;
        Dateisystem_Linux::sichern(griff);
    }
    void löschen(const Text& pfad) override {
        if (löscht_nicht) throw Dateifehler(70, pfad);
        Dateisystem_Linux::löschen(pfad);
    }

private:
    static bool fern(const Text& pfad) { return (pfad + "/").find("/fern/") != Text::npos; }
};

class ShellTest : public testing::Test {
protected:
    Testordner ordner;
    Zwei_Laufwerke dateien;
    Papierkorb_Freedesktop papierkorb{dateien, ordner.pfad("korb")};
    Shell_Linux shell{dateien, papierkorb};
    std::vector<Text> fragen;
    std::vector<Shell_Antwort> antworten;

    ShellTest() {
        shell.Frage_setzen([this](const Text& titel, const Text& text) {
            fragen.push_back(titel + "|" + text);
            const Shell_Antwort antwort = antworten.empty() ? Shell_Antwort::Abbrechen : antworten.front();
            if (!antworten.empty()) antworten.erase(antworten.begin());
            return antwort;
        });
    }
    // Names below the scratch folder. "0", or the return value, with "!" behind it when aborted.
    std::string tu(std::uint32_t code, std::vector<Text> von, std::vector<Text> nach, int flags = 0) {
        Shell_Vorgang vorgang;
        vorgang.Code = code;
        vorgang.Flags = static_cast<std::uint16_t>(flags);
        for (const Text& name : von) vorgang.von.push_back(ordner.pfad(name));
        for (const Text& name : nach) vorgang.nach.push_back(ordner.pfad(name));
        const auto ergebnis = shell.SHFileOperationA(vorgang);
        return std::to_string(ergebnis.Rückgabe) + (ergebnis.abgebrochen ? "!" : "");
    }
    // "name=contents" of every file below a folder, in order.
    std::string stand(std::string_view name = "") const {
        std::set<std::string> zeilen;
        const std::filesystem::path oben = ordner.pfad(name);
        for (const auto& eintrag : std::filesystem::recursive_directory_iterator(oben))
            if (!eintrag.is_directory() || eintrag.is_symlink())
                zeilen.insert(eintrag.path().lexically_relative(oben).string() + "=" +
                              Testordner::inhalt_von(eintrag.path().string()));
            else if (std::filesystem::is_empty(eintrag.path()))
                zeilen.insert(eintrag.path().lexically_relative(oben).string() + "/");
        std::string alles;
        for (const auto& zeile : zeilen) alles += zeile + " ";
        return alles;
    }
};

TEST_F(ShellTest, Ziele) {
    ordner.datei("a", "1");
    ordner.datei("b", "2");
    ordner.ordner("ziel");
    EXPECT_EQ(tu(FO_COPY, {"a"}, {"c"}), "0");
    EXPECT_EQ(tu(FO_COPY, {"a"}, {"ziel"}), "0");
    EXPECT_EQ(tu(FO_COPY, {"a", "b"}, {"neu/tief"}, FOF_NOCONFIRMMKDIR), "0");
    EXPECT_EQ(tu(FO_MOVE, {"a", "b"}, {"ziel/x", "ziel/y"}, FOF_MULTIDESTFILES), "0");
    EXPECT_EQ(stand(), "c=1 neu/tief/a=1 neu/tief/b=2 ziel/a=1 ziel/x=1 ziel/y=2 ");
    EXPECT_EQ(tu(FO_RENAME, {"c"}, {"d"}), "0");
    EXPECT_EQ(tu(FO_RENAME, {"d"}, {"D"}), "0");
    EXPECT_EQ(tu(FO_MOVE, {"neu"}, {"ziel/sub"}), "0");
    EXPECT_EQ(tu(FO_MOVE, {"ziel/sub"}, {"fern"}), "0");
    EXPECT_EQ(stand(), "D=1 fern/tief/a=1 fern/tief/b=2 ziel/a=1 ziel/x=1 ziel/y=2 ");
    EXPECT_EQ(tu(FO_COPY, {"ziel"}, {"ziel/ziel2"}), "125") << "not into itself";
    EXPECT_EQ(tu(FO_COPY, {"fehlt"}, {"e"}), "2");
    EXPECT_EQ(tu(FO_DELETE, {"fehlt"}, {}, FOF_ALLOWUNDO), "2");
    EXPECT_EQ(tu(FO_MOVE, {"D", "fehlt"}, {"ziel/x"}, FOF_MULTIDESTFILES), "87");
    EXPECT_EQ(tu(99, {"D"}, {"x"}), "87");
    EXPECT_EQ(fragen, std::vector<Text>{});
    EXPECT_EQ(tu(FO_COPY, {"D"}, {"nirgends/D"}), "0!") << "a folder is not made without asking";
    EXPECT_EQ(fragen.size(), 1U);
    EXPECT_FALSE(ordner.da("nirgends"));
}

TEST_F(ShellTest, GleicheNamen) {
    const struct {
        std::uint32_t code;
        int flags;
        Shell_Antwort antwort;
        const char* ergebnis;
        const char* stand;
        std::size_t fragen;
    } fälle[] = {
        {FO_COPY, 0, Shell_Antwort::Ja, "0", "X=neu a=neu ", 1},
        {FO_COPY, 0, Shell_Antwort::Nein, "0!", "X=alt a=neu ", 1},
        {FO_COPY, FOF_NOCONFIRMATION, Shell_Antwort::Nein, "0", "X=neu a=neu ", 0},
        {FO_COPY, FOF_RENAMEONCOLLISION, Shell_Antwort::Nein, "0", "Kopie von x=neu X=alt a=neu ", 0},
        {FO_MOVE, 0, Shell_Antwort::Abbrechen, "0!", "X=alt a=neu ", 1},
        {FO_MOVE, FOF_RENAMEONCOLLISION, Shell_Antwort::Nein, "0", "Kopie von x=neu X=alt ", 0},
    };
    for (const auto& fall : fälle) {
        std::filesystem::remove_all(ordner.pfad("frisch"));
        ordner.datei("frisch/a", (ordner.ordner("frisch"), "neu"));
        ordner.datei("frisch/X", "alt");
        fragen.clear();
        antworten = {fall.antwort};
        EXPECT_EQ(tu(fall.code, {"frisch/a"}, {"frisch/x"}, fall.flags), fall.ergebnis);
        EXPECT_EQ(stand("frisch"), fall.stand) << fall.code << " " << fall.flags;
        EXPECT_EQ(fragen.size(), fall.fragen);
    }
    ordner.datei("q", "neu");
    ordner.datei("z", "alt");
    EXPECT_EQ(tu(FO_MOVE, {"q"}, {"z"}, FOF_NOCONFIRMATION), "0");
    EXPECT_EQ(tu(FO_COPY, {"z"}, {"z"}, FOF_RENAMEONCOLLISION), "0");
    EXPECT_EQ(tu(FO_COPY, {"z"}, {"z"}, FOF_RENAMEONCOLLISION), "0");
    std::filesystem::remove_all(ordner.pfad("frisch"));
    EXPECT_EQ(stand(), "Kopie (2) von z=neu Kopie von z=neu z=neu ");
    EXPECT_EQ(tu(FO_MOVE, {"z"}, {"z"}, FOF_NOCONFIRMATION), "113");
    ordner.ordner("sub");
    EXPECT_EQ(tu(FO_MOVE, {"z", "sub"}, {"sub", "z"}, FOF_MULTIDESTFILES | FOF_NOCONFIRMATION), "128");
    EXPECT_EQ(tu(FO_MOVE, {"sub"}, {"z"}, FOF_NOCONFIRMATION), "126");
    EXPECT_EQ(ordner.inhalt("z"), "neu");
}

// Replacing a file by itself under another name must not be the end of it, nor may two names that differ by case become one.
TEST_F(ShellTest, ErsetzenVerliertNichts) {
    ordner.datei("echt/lied", (ordner.ordner("echt"), "lied"));
    std::filesystem::create_symlink("echt", ordner.pfad("link"));
    EXPECT_NE(tu(FO_MOVE, {"link/lied"}, {"echt/lied"}, FOF_NOCONFIRMATION), "0");
    EXPECT_NE(tu(FO_COPY, {"link/lied"}, {"echt/lied"}, FOF_NOCONFIRMATION), "0");
    EXPECT_EQ(ordner.inhalt("echt/lied"), "lied");
    // The source is open, so it cannot be moved: the target stays.
    ordner.datei("ziel", "ziel");
    {
        const Offene_Datei offen(dateien, ordner.pfad("echt/lied"), Dateimodus::lesen);
        EXPECT_NE(tu(FO_MOVE, {"echt/lied"}, {"ziel"}, FOF_NOCONFIRMATION), "0");
    }
    std::filesystem::remove(ordner.pfad("link"));
    EXPECT_EQ(stand(), "echt/lied=lied ziel=ziel ");

    for (const char* name : {"ziel", "ZIEL", "zwei/a", "zwei/A"}) ordner.datei(name, (ordner.ordner("zwei"), name));
    EXPECT_EQ(tu(FO_MOVE, {"ziel"}, {"ZIEL"}, FOF_NOCONFIRMATION), "80");
    EXPECT_EQ(tu(FO_COPY, {"ziel"}, {"ZIEL"}, FOF_NOCONFIRMATION), "113");
    EXPECT_EQ(tu(FO_MOVE, {"echt/lied"}, {"ziel"}, FOF_NOCONFIRMATION), "0") << "the exact one is replaced";
    EXPECT_EQ(tu(FO_MOVE, {"zwei"}, {"fern"}, FOF_NOCONFIRMATION), "80");
    EXPECT_EQ(tu(FO_COPY, {"zwei"}, {"ZWEI/sub"}, 0), "125") << "not into itself";
    EXPECT_EQ(tu(FO_RENAME, {"zwei"}, {"Zwei"}), "0");
    EXPECT_EQ(stand(), "ZIEL=ZIEL Zwei/a=zwei/a echt/ fern/A=zwei/A ziel=lied ");
}

TEST_F(ShellTest, ÜberLaufwerkeHinweg) {
    ordner.datei("lied", "musik");
    ordner.ordner("fern/tief");
    const struct timespec zeiten[2] = {{1, 0}, {1'111'111'111, 222'222'222}};
    ::utimensat(AT_FDCWD, ordner.pfad("lied").c_str(), zeiten, 0);
    dateien.kopiert_kurz = true;
    EXPECT_EQ(tu(FO_MOVE, {"lied"}, {"fern/lied"}), "112");
    EXPECT_EQ(ordner.inhalt("lied"), "musik") << "the source stays until there is a whole copy";
    dateien.kopiert_kurz = false;
    EXPECT_EQ(tu(FO_MOVE, {"lied"}, {"fern/lied"}, FOF_NOCONFIRMATION), "0");
    EXPECT_FALSE(ordner.da("lied"));
    EXPECT_EQ(dateien.gesichert, 1) << "before the source went";
    EXPECT_EQ(dateien.Änderungszeit(ordner.pfad("fern/lied"))->Jahr, 2005);
    // A link to a folder elsewhere is not followed, neither in moving nor in deleting.
    ordner.datei("fremd/x", (ordner.ordner("fremd"), "x"));
    std::filesystem::create_symlink(ordner.pfad("fremd"), ordner.pfad("fern/tief/link"));
    EXPECT_NE(tu(FO_MOVE, {"fern/tief"}, {"hier"}), "0");
    EXPECT_EQ(tu(FO_DELETE, {"fern", "hier"}, {}, FOF_NOCONFIRMATION), "0");
    EXPECT_EQ(stand(), "fremd/x=x ");
}

TEST_F(ShellTest, Papierkorb) {
    // Only without the bin it asks.
    ordner.datei("a", "1");
    ordner.datei("b", "2");
    antworten = {Shell_Antwort::Nein, Shell_Antwort::Ja};
    EXPECT_EQ(tu(FO_DELETE, {"a"}, {}), "0!");
    EXPECT_EQ(tu(FO_DELETE, {"a", "b"}, {}), "0");
    EXPECT_EQ(std::exchange(fragen, {}),
              (std::vector<Text>{"Löschen von Dateien bestätigen|Möchten Sie \"a\" wirklich löschen?",
                                 "Löschen mehrerer Dateien bestätigen|Möchten Sie diese 2 Elemente wirklich löschen?"}));
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
