// Windows as parts of others.
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
    Knoten anordnung() override { return Spalte({Liste, Ja}); }
    Listenfeld Liste{*this, "Liste"};
    Knopf Ja{*this, "Ja", "Ja"};
    std::vector<Text> abgelegt;
    int geklickt = 0;
};

struct Pult : Fenster {
    explicit Pult(Ansicht& ansicht) : Fenster(ansicht, "Pult", "Pult") {}
    Knoten anordnung() override { return Spalte({Kopf, Platz_für_Teil, Fuß}).rand(150); }
    Knopf Kopf{*this, "Kopf", "Kopf"};
    Rahmen Platz_für_Teil{*this, "Platz", "Platz"};
    Knopf Fuß{*this, "Fuß", "Fuß"};
};

struct Eingebettet : testing::Test {
    Ansicht_Qt ansicht;
    std::optional<Pult> pult{std::in_place, ansicht};
    std::optional<Teil> teil{std::in_place, ansicht};

    template <class T>
    QWidget& widget(T& was) {
        return *ansicht.maler().Widget(was);
    }
    void SetUp() override {
        teil->einbetten(pult->Platz_für_Teil);
        teil->zeigen();
        ansicht.Ereignisse_laufen_lassen();
        EXPECT_FALSE(widget(*teil).isVisible()) << "never without the other";
        pult->zeigen();
        ansicht.Ereignisse_laufen_lassen();
    }
};

TEST_F(Eingebettet, LiesWithinTheOtherAndGoesWithIt) {
    QWidget &ganzes = widget(*pult), &innen = widget(*teil);
    ASSERT_EQ(innen.window(), &ganzes);
    pult->größe(pult->lage().breite + 1500, pult->lage().höhe + 1500);
    for (Fenster* fenster : {static_cast<Fenster*>(&*pult), static_cast<Fenster*>(&*teil)}) {
        for (const bool da : {true, false, true}) {
            da ? fenster->zeigen() : fenster->verstecken();
            ansicht.Ereignisse_laufen_lassen();
            EXPECT_EQ(innen.isVisible(), da);
        }
    }
    EXPECT_EQ(innen.mapTo(&ganzes, QPoint()) * 15, QPoint(teil->lage().links, teil->lage().oben));
    EXPECT_EQ(innen.width() * 15, teil->lage().breite);
    const QImage vorher = ganzes.grab().toImage();
    teil->Ja.beschriftung("anders");
    ansicht.maler().abgleichen();
    EXPECT_NE(ganzes.grab().toImage(), vorher);
}

TEST_F(Eingebettet, IsWorkedLikeAnyWindow) {
    Klick(widget(teil->Ja));
    ansicht.fokus(teil->Liste);
    ansicht.Ereignisse_laufen_lassen();
    Taste_auf(widget(teil->Liste), Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(teil->geklickt, 2);
    std::vector<QWidget*> folge;
    for (QWidget* w = &widget(pult->Kopf); folge.size() < 4; w = w->nextInFocusChain())
        if ((w->focusPolicy() & Qt::TabFocus) != 0 && w->isVisible()) folge.push_back(w);
    EXPECT_EQ(folge, (std::vector{&widget(pult->Kopf), &widget(teil->Liste), &widget(teil->Ja), &widget(pult->Fuß)}));
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

TEST_F(Eingebettet, OutlivesTheOther) {
    pult.reset();
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_FALSE(widget(*teil).isVisible());
}

TEST_F(Eingebettet, IsOutlived) {
    teil.reset();
    pult->neu_anordnen();
    ansicht.Ereignisse_laufen_lassen();
}

}  // namespace
}  // namespace tonkartei
