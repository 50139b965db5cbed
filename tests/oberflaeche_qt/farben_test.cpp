// Colours that can be read, sliders that grow the other way.
#include <QAbstractButton>
#include <QAbstractSlider>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche_qt/desktop.hpp"

namespace tonkartei {
namespace {

TEST(Farben, TextsMoveJustAsFarAsNeeded) {
    EXPECT_NEAR(Kontrast(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(Kontrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
    struct Fall {
        QColor schrift, grund;
        int richtung;  // 1 lighter, -1 darker
    };
    const Fall fälle[] = {{QColor(0, 0, 255), QColor(40, 40, 75), 1},
                          {QColor(255, 255, 0), QColor(40, 40, 75), 0},
                          {QColor(255, 255, 0), Qt::white, -1},
                          {QColor(10, 10, 10), QColor(110, 110, 110), 1}};
    for (const Fall& fall : fälle) {
        const QColor farbe = abgesetzt(fall.schrift, fall.grund);
        EXPECT_GE(Kontrast(farbe, fall.grund), lesbarer_Text);
        EXPECT_GE(fall.richtung * (farbe.lightness() - fall.schrift.lightness()), 0);
        EXPECT_EQ(farbe == fall.schrift, fall.richtung == 0);
        EXPECT_TRUE(fall.richtung == 0 || Kontrast(farbe, fall.grund) < 5) << "no farther";
    }
}

TEST(Farben, EveryPaletteCanBeReadThroughout) {
    std::vector<Töne> alle;
    for (const Farbschema schema :
         {Farbschema::hell, Farbschema::dunkel, Farbschema::kontrast_hell, Farbschema::kontrast_dunkel})
        alle.push_back(Töne::von(Farbtafel(schema)));
    EXPECT_EQ(Kontrast(alle[2].Schrift, alle[2].Linie) * Kontrast(alle[3].Schrift, alle[3].Linie), 1);
    for (const QColor& grund :
         {QColor(0, 0, 0), QColor(40, 40, 75), QColor(90, 20, 20), QColor(0, 100, 0), QColor(115, 115, 115)})
        alle.push_back(Töne::von(Töne::zu(grund).Palette()));
    for (const Töne& t : alle) {
        for (const QColor& fläche : {t.Grund, t.Feld, t.Wert}) {
            for (const QColor& text : {t.Schrift, t.blass, t.Zeichen, t.Akzent})
                EXPECT_GE(Kontrast(text, fläche), lesbarer_Text);
            for (const QColor& linie : {t.Linie, t.Linie_zart, t.Kante, t.Griff, t.Griff_betont, t.Griff_gehalten})
                EXPECT_GE(Kontrast(linie, fläche), erkennbare_Linie);
        }
        for (const QColor& fläche : {t.Akzent_hell, t.gedrückt}) EXPECT_GE(Kontrast(t.Schrift, fläche), lesbarer_Text);
        for (const QColor& fläche : {t.Akzent, t.Akzent_dunkel}) EXPECT_GE(Kontrast(t.auf_Akzent, fläche), lesbarer_Text);
    }
}

struct Reglerfenster : Fenster {
    explicit Reglerfenster(Ansicht& ansicht) : Fenster(ansicht, "Reglerfenster", "") {
        hintergrund = RGB(40, 40, 75);
        Pegel.senkrecht = Pegel.umgekehrt = Pegel.griffig = true;
        Blau.farbe(RGB(0, 0, 255));
        Blau_auf_hell.farbe(RGB(0, 0, 255));
        Hell.hintergrund(RGB(255, 255, 210));
    }
    Knoten anordnung() override { return Spalte({Pegel, Blau, Gruppe(Hell, Blau_auf_hell)}); }
    Regler Pegel{*this, "Pegel", 0, 100};
    // Made before its frame.
    Schriftfeld Blau{*this, "Blau", "blau"}, Blau_auf_hell{*this, "Blau_auf_hell", "blau"};
    Rahmen Hell{*this, "Hell"};
};

struct Regler_und_Farben : testing::Test {
    Ansicht_Qt ansicht;
    Reglerfenster fenster{ansicht};
    void SetUp() override {
        fenster.zeigen();
        ansicht.Ereignisse_laufen_lassen();
    }
    QWidget& widget(Element& element) { return *ansicht.maler().Widget(element); }
};

TEST_F(Regler_und_Farben, AReversedSliderFollowsWhatIsSeen) {
    QWidget& regler = widget(fenster.Pegel);
    EXPECT_GE(regler.height(), 120);
    Klick(regler, QPoint(regler.width() / 2, regler.height() - 3));
    EXPECT_EQ(fenster.Pegel.wert(), 100) << "the groove takes the grip along";
    Taste_auf(regler, Qt::Key_Up);
    EXPECT_EQ(fenster.Pegel.wert(), 99);
    Klick(regler, QPoint(regler.width() / 2, regler.height() / 2));
    EXPECT_NEAR(fenster.Pegel.wert(), 50, 2);
}

TEST_F(Regler_und_Farben, TextsFollowTheGroundThatTheyLieOn) {
    const auto kontrast = [&](Element& element, Farbe grund) {
        return Kontrast(widget(element).palette().color(QPalette::WindowText),
                        QColor(grund & 255, grund >> 8 & 255, grund >> 16));
    };
    EXPECT_GE(kontrast(fenster.Blau, fenster.hintergrund), lesbarer_Text);
    EXPECT_EQ(widget(fenster.Blau_auf_hell).palette().color(QPalette::WindowText), QColor(0, 0, 255));
    fenster.Hell.hintergrund(RGB(0, 0, 60));
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_GE(kontrast(fenster.Blau_auf_hell, RGB(0, 0, 60)), lesbarer_Text);
}

TEST_F(Desktop, AnotherSchemeReachesTheWindowsThatAreUp) {
    auto& knopf = widget<QAbstractButton>(fenster.Ok);
    fenster.Ok.farbe(RGB(0, 0, 60));
    abgleichen();
    for (const Farbschema schema : {Farbschema::dunkel, Farbschema::kontrast_hell, Farbschema::hell}) {
        QApplication::setPalette(Farbtafel(schema));
        ansicht.Ereignisse_laufen_lassen();
        ansicht.Ereignisse_laufen_lassen();
        abgleichen();
        const Töne ton = Töne::im(schema);
        EXPECT_EQ(ansicht.maler().Widget(fenster)->palette().color(QPalette::Window), ton.Grund);
        EXPECT_GE(Kontrast(knopf.palette().color(QPalette::ButtonText), ton.Feld), lesbarer_Text);
    }
}

}  // namespace
}  // namespace tonkartei
