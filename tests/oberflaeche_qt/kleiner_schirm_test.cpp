// A screen that is too small for the window.
#include "oberflaeche_qt/desktop.hpp"

namespace tonkartei {
namespace {

struct Kleiner_Schirm : Ansicht_Qt {
    Größe frei{4500, 3600};
    Größe freie_Fläche(const Fenster&) const override { return frei; }
};

struct Hohes_Fenster : Fenster {
    explicit Hohes_Fenster(Ansicht& ansicht) : Fenster(ansicht, "Hohes_Fenster", "") { Spalte_rechts.rollbar = true; }
    Knoten anordnung() override {
        return Spalte(
                   {Zeile({Knoten(Liste).zeilen(8).dehnen(1, 1), Gruppe(Spalte_rechts, Spalte({Hoch, Feder(0, 1), Unten}))}),
                    Breit})
            .rand(120);
    }
    Listenfeld Liste{*this, "Liste"};
    Rahmen Spalte_rechts{*this, "Spalte_rechts"};
    Bildfläche Hoch{*this, "Hoch", ""}, Breit{*this, "Breit", ""};
    Knopf Unten{*this, "Unten", "Unten"};
};

TEST(Kleiner_Schirm, ListsGiveWayThenTheColumnScrollsThenTheWindow) {
    Kleiner_Schirm ansicht;
    Hohes_Fenster fenster(ansicht);
    fenster.Hoch.Wunsch = {1500, 4500};
    fenster.Breit.Wunsch = {3000, 150};
    fenster.zeigen();
    ansicht.Ereignisse_laufen_lassen();
    QWidget& ganzes = *ansicht.maler().Widget(fenster);
    const auto in_Sicht = [&](const Element& element) {
        const QWidget& w = *ansicht.maler().Widget(element);
        const QRect platz(w.mapTo(&ganzes, QPoint()), w.size());
        return ganzes.rect().contains(platz) && !w.visibleRegion().isEmpty();
    };
    EXPECT_LE(fenster.lage().höhe, 3600) << "the column is cut, not the window";
    EXPECT_EQ(ganzes.height(), fenster.lage().höhe / 15);
    EXPECT_FALSE(in_Sicht(fenster.Unten));
    ansicht.fokus(fenster.Unten);
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_TRUE(in_Sicht(fenster.Unten));

    // What has no list and no column of that kind scrolls as a whole, in both directions.
    fenster.Breit.Wunsch = {9000, 150};
    fenster.neu_anordnen();
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_LE(ganzes.width(), 300);
    EXPECT_LE(ganzes.height(), 240);
    ansicht.fokus(fenster.Liste);
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_GE(ansicht.maler().Widget(fenster.Liste)->mapTo(&ganzes, QPoint()).x(), 0);

    ansicht.frei = {};
    fenster.größe(0, 0);
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_TRUE(in_Sicht(fenster.Unten)) << "without a limit it is as large as it wants to be";
}

}  // namespace
}  // namespace tonkartei
