#include "plattform/linux/rechner_linux.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>

#include "plattform/linux/endesignale.hpp"
#include "plattform/linux/xdg.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

// A variable of the environment, back to what it was afterwards.
class Umgebung {
public:
    Umgebung(const char* name, const std::string& wert) : name_(name) {
        if (const char* alt = std::getenv(name)) alt_ = alt;
        ::setenv(name, wert.c_str(), 1);
    }
    ~Umgebung() { alt_ ? ::setenv(name_, alt_->c_str(), 1) : ::unsetenv(name_); }
    Umgebung(const Umgebung&) = delete;
    Umgebung& operator=(const Umgebung&) = delete;

private:
    const char* name_;
    std::optional<std::string> alt_;
};

TEST(Rechner, ZweiteInstanz) {
    const Testordner ordner;
    {
        Rechner_Linux erste(ordner.pfad());
        EXPECT_FALSE(erste.andere_Instanz_läuft());
        Rechner_Linux zweite(ordner.pfad());
        EXPECT_TRUE(zweite.andere_Instanz_läuft());
        const Endesignale signale;
        zweite.andere_Instanz_rufen();
        const auto zeichen = signale.abholen();
        EXPECT_TRUE(zeichen.Ruf && !zeichen.Ende);
        // A started process does not hold the lock on: exec closes it.
        if (::fork() == 0) {
            ::execl("/bin/sleep", "sleep", "0.4", static_cast<char*>(nullptr));
            ::_exit(1);
        }
        ::usleep(100'000);
    }
    EXPECT_FALSE(Rechner_Linux(ordner.pfad()).andere_Instanz_läuft());
    EXPECT_FALSE(Rechner_Linux(ordner.pfad("fehlt")).andere_Instanz_läuft());
    ::wait(nullptr);
}

TEST(Rechner, TempVerzeichnis) {
    const Testordner ordner;
    const Umgebung temp("TEMP", ordner.pfad("fehlt")), tmp("TMP", ordner.ordner("tmp"));
    EXPECT_EQ(Rechner_Linux().Temp_Verzeichnis(), ordner.pfad("tmp/"));
    const Umgebung wieder("TEMP", ordner.pfad());
    EXPECT_EQ(Rechner_Linux().Temp_Verzeichnis(), ordner.pfad());
}

TEST(Rechner, VerknüpfungZumSpieler) {
    const Testordner ordner;
    const Text ziel = ordner.datei("spieler"), winamp = ordner.pfad("data/winamp/");
    EXPECT_TRUE(WinAmp_Verknüpfung_anlegen(winamp, "/alt/verschwunden"));
    EXPECT_TRUE(WinAmp_Verknüpfung_anlegen(winamp, ziel));
    EXPECT_EQ(std::filesystem::read_symlink(winamp + "WinAmp.Exe").string(), ziel);
    std::filesystem::remove(winamp + "WinAmp.Exe");
    ordner.datei("data/winamp/WinAmp.Exe", "echt");
    EXPECT_FALSE(WinAmp_Verknüpfung_anlegen(winamp, ziel));
    EXPECT_EQ(ordner.inhalt("data/winamp/WinAmp.Exe"), "echt");
}

TEST(Xdg, Laufzeitordner) {
    const Testordner ordner;
    const Umgebung temp("TMPDIR", ordner.ordner("temp"));
    const auto nur_für_uns = [&](const Text& name) {
        return std::filesystem::status(ordner.pfad(name)).permissions() == std::filesystem::perms::owner_all;
    };
    {
        const Umgebung laufzeit("XDG_RUNTIME_DIR", ordner.ordner("run"));
        ::chmod(ordner.ordner("run/tonkartei").c_str(), 0755);
        EXPECT_EQ(Laufzeitordner(), ordner.pfad("run/tonkartei/"));
        EXPECT_TRUE(nur_für_uns("run/tonkartei"));
    }
    const Umgebung keine("XDG_RUNTIME_DIR", "relativ/zählt/nicht");
    const Text name = "temp/tonkartei-" + std::to_string(::geteuid());
    std::filesystem::create_directory_symlink(ordner.ordner("falle"), ordner.pfad(name));
    EXPECT_NE(::mkdir((Laufzeitordner() + "x").c_str(), 0700), 0) << "a link is not taken for the private folder";
    std::filesystem::remove(ordner.pfad(name));
    EXPECT_EQ(Laufzeitordner(), ordner.pfad(name) + "/");
    EXPECT_TRUE(nur_für_uns(name));
}

}  // namespace
}  // namespace tonkartei
