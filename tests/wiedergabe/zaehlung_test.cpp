// The counting of heard songs.
#include "wiedergabe/buehne.hpp"

namespace tonkartei {
namespace {

TEST(Spielzählung, nächster_Start_nimmt_zurück) {
    const struct {
        const char* was;
        int stunde, minute, sekunde, später;  // the first start, and seconds until the second
        Long Anzahl_Zeit;
        bool bleibt;  // the first song keeps its count
    } fälle[] = {
        {"one second short", 12, 0, 0, 9, 10, false},
        {"exactly on the limit", 12, 0, 0, 10, 10, true},
        {"long enough over the hour", 11, 59, 55, 10, 10, true},
        {"no time asked", 12, 0, 0, 0, 0, true},
        {"more than 16 bits of seconds", 0, 0, 0, 82800, 70000, true},
        {"an hour, but over midnight", 23, 30, 0, 3600, 10, false},
        {"just after midnight the limit is below zero", 0, 0, 1, 4, 10, false},
        {"the limit at zero", 0, 0, 0, 10, 10, true},
    };
    for (const auto& fall : fälle) {
        Bühne b(2, {2026, 1, 15, fall.stunde, fall.minute, fall.sekunde});
        b.einstellungen.Anzahl_Zeit = fall.Anzahl_Zeit;
        b.modell.Lieder[1].Anzahl = 4;
        b.Spiel.Zählung.zählen(1);
        EXPECT_EQ(b.modell.Lieder[1].Anzahl, 5) << fall.was << ": counts at once";
        b.rechner.Uhr_vor(fall.später * 1000);
        b.Spiel.Zählung.zählen(2);
        EXPECT_EQ(b.modell.Lieder[1].Anzahl, fall.bleibt ? 5 : 4) << fall.was;
        EXPECT_EQ(b.modell.Lieder[2].Anzahl, 1) << fall.was;
    }
    Bühne b;
    for (int i = 0; i < 2; ++i) b.Spiel.Abspieler.starte_Lied(3);
    EXPECT_EQ(b.modell.Lieder[3].Anzahl, 1) << "the same song: taken back once, counted twice";
    b.dateien.löschen(b.modell.Lied_Pfad(2));
    b.Spiel.Abspieler.starte_Lied(2);
    b.modell.Datenbank_offen = false;
    b.Spiel.Abspieler.starte_Lied(1);
    EXPECT_EQ(b.modell.Lieder[1].Anzahl, 0) << "no collection is open";
    EXPECT_EQ(b.modell.Lieder[3].Anzahl, 1) << "a start that fails takes nothing back";
    EXPECT_EQ(b.modell.Lieder[2].Anzahl, 0);
    EXPECT_EQ(b.Spiel.Zählung.Letztes_Lied, 3);
}

TEST(Spielzählung, Liste_der_letzten_hundert) {
    Bühne b;
    auto& zählung = b.Spiel.Zählung;
    for (int i = 1; i <= Gespielt_maximal; ++i) zählung.zählen(i == 1 ? 5 : i == 2 ? 4 : 1);
    EXPECT_EQ(zählung.Gespielt_Anzahl, 100);
    EXPECT_EQ(zählung.Gespielt_Liste[1], 5);
    zählung.zählen(2);
    EXPECT_EQ(zählung.Gespielt_Anzahl, 100);
    EXPECT_EQ(zählung.Gespielt_Liste[1], 4);
    EXPECT_EQ(zählung.Gespielt_Liste[100], 2);
}

}  // namespace
}  // namespace tonkartei
