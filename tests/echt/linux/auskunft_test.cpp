// The real programs tell about themselves without a display, a home or anything else around them.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

TEST(Auskunft, BeideProgrammeAntwortenOhneUmgebung) {
    const struct {
        std::string Befehl, Anfang;
    } Fälle[] = {
        {"'" TONKARTEI_PROGRAMM "' --help", "Aufruf: tonkartei "},
        {"'" TONKARTEI_PROGRAMM "' RAM --version", "Tonkartei " TONKARTEI_VERSION "\n"},
        {"'" TONKARTEI_SPIELER "' --help", "Aufruf: WinAmp.Exe "},
        {"'" TONKARTEI_SPIELER "' /NEW --version", "WinAmp.Exe (Tonkartei) " TONKARTEI_VERSION "\n"},
    };
    for (const auto& fall : Fälle) {
        FILE* rohr = ::popen(("env -i " + fall.Befehl).c_str(), "r");
        ASSERT_NE(rohr, nullptr);
        std::string text(4096, '\0');
        text.resize(std::fread(text.data(), 1, text.size(), rohr));
        EXPECT_EQ(::pclose(rohr), 0) << fall.Befehl;
        EXPECT_TRUE(text.starts_with(fall.Anfang)) << text;
    }
}

}  // namespace
