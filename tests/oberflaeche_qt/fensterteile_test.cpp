// Windows as parts of others.
#include <QAbstractButton>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListView>
#include <QMimeData>
#include <QUrl>
#include <optional>

#include "oberflaeche_qt/desktop.hpp"

namespace tonkartei {
namespace {

struct Teil : Fenster {
    explicit Teil(Ansicht& ansicht) : Fenster(ansicht, "Teil", "") {
        Vorgabeknopf = &Ja;
        Liste.Dateien_abgelegt.verbinden([this](const std::vector<Text>& pfade) { abgelegt = pfade; });
        Ja.Klick.verbinden([this] { ++geklickt; });
    }
    Knoten anordnung() override { return Spalte({Liste, Suche, Ja}); }
    Listenfeld Liste{*this, "Liste"};
    Textfeld Suche{*this, "Suche"};
    Knopf Ja{*this, "Ja", "Ja"};
    std::vector<Text> abgelegt;
    int geklickt = 0;
};

struct Pult : Fenster {
    explicit Pult(Ansicht& ansicht) : Fenster(ansicht, "Pult", "Pult") { hintergrund = RGB(40, 40, 75); }
    Knoten anordnung() override { return Spalte({Kopf, Platz_für_Teil, Fuß}).rand(150); }
    Größe Startgröße() override { return {9000, 7500}; }
    Knopf Kopf{*this, "Kopf", "Kopf"};
    Rahmen Platz_für_Teil{*this, "Platz", "Platz"};
    Knopf Fuß{*this, "Fuß", "Fuß"};
};

struct Eingebettet : testing::TestWithParam<bool> {
    Ansicht_Qt ansicht;
    std::optional<Pult> pult{std::in_place, ansicht};
    std::optional<Teil> teil{std::in_place, ansicht};

    QWidget* widget(Fenster& f) { return ansicht.maler().Widget(f); }
    QWidget& widget(Element& e) { return *ansicht.maler().Widget(e); }
    void SetUp() override {
        teil->einbetten(pult->Platz_für_Teil);
        Fenster* zuerst = &*teil;
        if (GetParam()) zuerst = &*pult;
        zuerst->zeigen();
        ansicht.Ereignisse_laufen_lassen();
        if (!GetParam()) {
            EXPECT_FALSE(widget(*teil)->isVisible()) << "never without the other";
        }
        pult->zeigen();
        teil->zeigen();
        ansicht.Ereignisse_laufen_lassen();
    }
};

TEST_P(Eingebettet, LiesWithinTheOtherAndGoesWithIt) {
    QWidget &ganzes = *widget(*pult), &innen = *widget(*teil);
    ASSERT_EQ(innen.window(), &ganzes);
    EXPECT_TRUE(innen.isVisible());
    EXPECT_EQ(innen.mapTo(&ganzes, QPoint()) * 15, QPoint(teil->lage().links, teil->lage().oben));
    EXPECT_EQ(innen.width() * 15, teil->lage().breite);
    EXPECT_EQ(innen.palette().color(QPalette::Window), QColor(40, 40, 75));
    pult->größe(pult->lage().breite + 1500, pult->lage().höhe + 1500);
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_EQ(innen.width() * 15, teil->lage().breite);
    for (int runde = 0; runde < 2; ++runde) {
        pult->verstecken();
        ansicht.Ereignisse_laufen_lassen();
        EXPECT_FALSE(innen.isVisible());
        pult->zeigen();
        ansicht.Ereignisse_laufen_lassen();
        EXPECT_TRUE(innen.isVisible());
    }
    teil->verstecken();
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_FALSE(innen.isVisible());
    EXPECT_TRUE(ganzes.isVisible());
}

TEST_P(Eingebettet, IsWorkedLikeAnyWindow) {
    Klick(widget(teil->Ja));
    EXPECT_EQ(teil->geklickt, 1);
    EXPECT_EQ(ansicht.fokus(), &teil->Ja);
    ansicht.fokus(teil->Suche);
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_TRUE(widget(teil->Suche).hasFocus());
    Taste_auf(widget(teil->Suche), Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(teil->geklickt, 2);
    std::vector<QWidget*> folge;
    for (QWidget* w = &widget(pult->Kopf); folge.size() < 5; w = w->nextInFocusChain())
        if ((w->focusPolicy() & Qt::TabFocus) != 0 && w->isVisible()) folge.push_back(w);
    EXPECT_EQ(folge, (std::vector{&widget(pult->Kopf), &widget(teil->Liste), &widget(teil->Suche), &widget(teil->Ja),
                                  &widget(pult->Fuß)}));
    QMimeData daten;
    daten.setUrls({QUrl::fromEncoded("file:///m/a.mp3")});
    QWidget* ziel = dynamic_cast<QListView&>(widget(teil->Liste)).viewport();
    QDragEnterEvent kommt(QPoint(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(ziel, &kommt);
    QDropEvent fall(QPointF(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(ziel, &fall);
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_EQ(teil->abgelegt, std::vector<Text>{"/m/a.mp3"});
    pult->aktiv(false);
    Klick(widget(teil->Ja));
    EXPECT_EQ(teil->geklickt, 2);
}

TEST_P(Eingebettet, IsInThePictureOfTheOther) {
    const auto bild = [&] {
        ansicht.maler().abgleichen();
        return widget(*pult)->grab().toImage();
    };
    const QImage vorher = bild();
    teil->Ja.beschriftung("anders");
    EXPECT_NE(bild(), vorher);
}

TEST_P(Eingebettet, OutlivesTheOtherOrIsOutlived) {
    if (GetParam())
        pult.reset();
    else
        teil.reset();
    ansicht.Ereignisse_laufen_lassen();
    if (teil) {
        EXPECT_FALSE(widget(*teil)->isVisible());
    } else {
        pult->neu_anordnen();
    }
    ansicht.Ereignisse_laufen_lassen();
}

INSTANTIATE_TEST_SUITE_P(OhneUndMitPult, Eingebettet, testing::Bool());

}  // namespace
}  // namespace tonkartei
