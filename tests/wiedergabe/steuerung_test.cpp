// The message layer and the search for windows.
#include <gtest/gtest.h>

#include "wiedergabe/buehne.hpp"

namespace tonkartei {
namespace {

TEST(WinAmp_Steuerung, Status_und_Ort) {
    Aufzeichnung protokoll;
    Fenster_Bühne fenster(protokoll);
    WinAmp_Steuerung steuerung(fenster);
    fenster.Fenster = {{9, Fenster_Bühne::Schreibtisch, "x"}};
    for (const auto& [antwort, status] : {std::pair<std::int32_t, Long>{1, 1}, {3, 2}, {0, 3}, {2, 3}, {-1, 3}}) {
        fenster.suchen(9)->Status = antwort;
        EXPECT_EQ(steuerung.WinAmp_Status_lesen(9), status) << antwort;
    }
    EXPECT_EQ(steuerung.WinAmp_Status_lesen(10), 3) << "a window that is gone";
    steuerung.WinAmp_springen(9, 63000);
    EXPECT_EQ(protokoll, Aufzeichnung{"senden 9 1024 63000 106"});
    EXPECT_EQ(steuerung.WinAmp_Position_lesen(9), fenster.Position);
    EXPECT_EQ(steuerung.WinAmp_Länge_lesen(9), fenster.Länge);
}

TEST(Fenstersuche, welches_Fenster_gilt) {
    constexpr Hwnd oben = Fenster_Bühne::Schreibtisch;
    const struct {
        const char* was;
        std::vector<Fenster_Bühne::Eintrag> fenster;
        Hwnd gefunden;
    } fälle[] = {
        {"no window at all", {}, 0},
        {"none of the class", {{2, oben, "Editor"}}, 0},
        {"the last one wins", {{2, oben, "Tonkartei"}, {3, oben, "Tonkartei"}, {4, oben, "Editor"}}, 3},
        {"a part is enough", {{2, oben, "TonkarteiWA1"}, {3, oben, "Editor"}}, 2},
        {"in the middle, too", {{2, oben, "die Tonkartei"}}, 2},
        {"another case is another class", {{2, oben, "tonkartei"}, {3, oben, "TONKARTEI"}}, 0},
        {"below another window it does not count", {{2, oben, "Editor"}, {3, 2, "Tonkartei"}}, 0},
        {"nor does it replace one found above", {{2, oben, "Tonkartei"}, {3, 2, "Tonkartei"}, {4, 3, "Tonkartei"}}, 2},
        {"only 254 characters are read", {{2, oben, Text(254, 'x') + "Tonkartei"}}, 0},
    };
    for (const auto& fall : fälle) {
        Aufzeichnung protokoll;
        Fenster_Bühne fenster(protokoll);
        Ansicht_Bühne ansicht;
        fenster.Fenster = fall.fenster;
        EXPECT_EQ(Fenstersuche(fenster, ansicht).Fenster_suchen_global("Tonkartei"), fall.gefunden) << fall.was;
        EXPECT_EQ(ansicht.Ereignisrunden, static_cast<int>(fall.fenster.size())) << fall.was << ": events at each window";
    }
}

TEST(Fenstersuche, Fenster_ändern_sich_während_der_Suche) {
    constexpr Hwnd oben = Fenster_Bühne::Schreibtisch;
    Aufzeichnung protokoll;
    Fenster_Bühne fenster(protokoll);
    Ansicht_Bühne ansicht;
    fenster.Fenster = {{2, oben, "Editor"}};
    ansicht.Runde = [&] {
        if (ansicht.Ereignisrunden == 1) fenster.Fenster.push_back({3, oben, "Tonkartei"});
    };
    EXPECT_EQ(Fenstersuche(fenster, ansicht).Fenster_suchen_global("Tonkartei"), 3) << "one that appears behind is met";
    ansicht.Runde = [&] { fenster.Fenster.clear(); };
    EXPECT_EQ(Fenstersuche(fenster, ansicht).Fenster_suchen_global("Tonkartei"), 0) << "the last one dies meanwhile";
}

}  // namespace
}  // namespace tonkartei
