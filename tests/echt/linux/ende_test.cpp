// The real program, off-screen, told to end by the system: an end from outside like any other.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

#include "testordner.hpp"

namespace tonkartei {
namespace {

class Ende : public testing::TestWithParam<int> {
protected:
    Testordner ordner;
    pid_t programm = 0;

    void starten() {
        ::mkdir(ordner.pfad("lauf").c_str(), 0700);
        ordner.ordner("a");
        ordner.ordner("einst/tonkartei");
        ordner.datei("a/MP3_Info.MDB", Sammlung());
        ordner.datei("einst/tonkartei/einstellungen.reg",
                     "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei\\ge\xC3\xB6"
                     "ffnete Datenbanken\\Anzahl]\r\n@=\"1\"\r\n\r\n[HKEY_CURRENT_USER\\Software\\Tonkartei\\ge\xC3\xB6"
                     "ffnete Datenbanken\\Nr. 1]\r\n@=\"" +
                         ordner.pfad("a/") + "\"\r\n\r\n");
        programm = ::fork();
        if (programm != 0) return;
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
        ::setenv("XDG_CONFIG_HOME", ordner.pfad("einst").c_str(), 1);
        ::setenv("XDG_DATA_HOME", ordner.pfad("daten").c_str(), 1);
        ::setenv("XDG_RUNTIME_DIR", ordner.pfad("lauf").c_str(), 1);
        ::execl(TONKARTEI_PROGRAMM, TONKARTEI_PROGRAMM, nullptr);
        ::_exit(127);
    }
    static std::string Sammlung() {
        std::string bytes = "Tonkartei\r\nV 1.02 16\r\n 1 \r\nAlle\r\n 0 \r\n";
        for (int s = 1; s <= 9; ++s) bytes += " 1 \r\nSchema " + std::to_string(s) + "\r\n 1 \r\n";
        return bytes + " 0 \r\n 0 \r\n";
    }
    // Within ten seconds.
    template <class Bedingung>
    bool bald(Bedingung bedingung) {
        for (int i = 0; i < 500; ++i) {
            if (bedingung()) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        return false;
    }
    void TearDown() override {
        if (programm > 0) ::kill(programm, SIGKILL);
    }
};

TEST_P(Ende, SignalSichertUndEndetMitNull) {
    starten();
    ASSERT_TRUE(bald([&] { return ordner.da("a/MP3_Info.DBG"); })) << "the collection is open";
    const auto vorher = std::filesystem::last_write_time(ordner.pfad("a/MP3_Info.MDB"));
    ASSERT_EQ(::kill(programm, GetParam()), 0);
    int zustand = -1;
    ASSERT_TRUE(bald([&] { return ::waitpid(programm, &zustand, WNOHANG) == programm; }));
    programm = 0;
    EXPECT_TRUE(WIFEXITED(zustand) && WEXITSTATUS(zustand) == 0) << zustand;
    EXPECT_FALSE(ordner.da("a/MP3_Info.DBG"));
    EXPECT_NE(std::filesystem::last_write_time(ordner.pfad("a/MP3_Info.MDB")), vorher) << "saved";
    EXPECT_EQ(ordner.inhalt("a/MP3_Info.MDB"), Sammlung());
}

INSTANTIATE_TEST_SUITE_P(Signale, Ende, testing::Values(SIGTERM, SIGHUP, SIGINT));

}  // namespace
}  // namespace tonkartei
