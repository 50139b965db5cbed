#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>

#include "oberflaeche/hand.hpp"
#include "oberflaeche/zeitgeber.hpp"
#include "oberflaeche_qt/desktop.hpp"

namespace tonkartei {
namespace {

TEST_F(Desktop, ButtonsAndBoxesAreWorkedAsTheModelStands) {
    Text folge;
    fenster.Ok.Gedrückt.verbinden([&](int x, int) { folge += x > 0 && x % 15 == 0 ? "d" : "?"; });
    fenster.Ok.Losgelassen.verbinden([&](int, int) { folge += "l"; });
    fenster.Ok.Klick.verbinden([&] { folge += "k"; });
    Klick(widget<QWidget>(fenster.Ok));
    EXPECT_EQ(folge, "dlk");
    Taste_auf(widget<QWidget>(fenster.Ok), Qt::Key_Space, " ");
    EXPECT_EQ(folge, "dlk?lk") << "a key presses at no place";
    for (const bool Knopf_aktiv : {false, true}) {  // not yet on the screen: the model counts
        fenster.Ok.aktiv(Knopf_aktiv);
        fenster.aktiv(!Knopf_aktiv);
        Klick(widget<QWidget>(fenster.Ok));
        EXPECT_EQ(folge, "dlk?lk");
    }
    fenster.aktiv(true);
    // What a handler takes back is not shown; and the chosen option stays chosen.
    auto& kasten = widget<QAbstractButton>(fenster.Klassik);
    fenster.Klassik.Klick.verbinden([&] {
        if (fenster.Klassik.wert()) fenster.Klassik.wert(false);
    });
    Klick(kasten, QPoint(5, kasten.height() / 2));
    auto& option = widget<QAbstractButton>(fenster.nach_Artist);
    Klick(option, QPoint(5, option.height() / 2));
    // A caption that is data keeps its ampersand.
    fenster.Pop.Beschriftung_wörtlich = true;
    fenster.Pop.beschriftung("R &B");
    abgleichen();
    EXPECT_FALSE(kasten.isChecked());
    EXPECT_TRUE(option.isChecked());
    EXPECT_EQ(widget<QAbstractButton>(fenster.Pop).text(), QStringLiteral("R &&B"));
}

// A release that a box took away is made up for by the next that is heard of the mouse.
TEST_F(Desktop, TheMouseThatLeavesIsOnFreeGround) {
    int frei = 0;
    fenster.Mausbewegung.verbinden([&] { ++frei; });
    QEvent hinaus(QEvent::Leave);
    QApplication::sendEvent(ansicht.maler().Widget(fenster), &hinaus);
    EXPECT_EQ(frei, 1);
}

TEST_F(Desktop, APressDoesNotOutliveTheMouseButton) {
    int gehalten = 0;
    fenster.Vor.Gedrückt.verbinden([&](int, int) { ++gehalten; });
    fenster.Vor.Losgelassen.verbinden([&](int, int) { --gehalten; });
    auto& knopf = widget<QWidget>(fenster.Vor);
    Maus(knopf, QEvent::MouseButtonPress, {5, 5});
    Maus(knopf, QEvent::MouseMove, {6, 6}, Qt::NoButton);
    EXPECT_EQ(gehalten, 0);
    Maus(knopf, QEvent::MouseButtonPress, {5, 5});
    fenster.Vor.aktiv(false);
    Maus(knopf, QEvent::MouseButtonRelease, {5, 5});
    EXPECT_EQ(gehalten, 0);
}

TEST_F(Desktop, EveryKindShowsItsGroundAndHearsTheMouse) {
    constexpr QRgb Ton = 0xff96c8ff;
    for (Element* element : fenster.elemente()) {
        if (element->art() == Elementart::Menü || !element->aktiv()) continue;
        auto& w = widget<QWidget>(*element);
        const auto punkte = [&](Farbe grund) {
            element->hintergrund(grund);
            abgleichen();
            const QImage bild = w.grab().toImage().convertToFormat(QImage::Format_RGB32);
            int anzahl = 0;
            for (int stelle = 0; stelle < bild.width() * bild.height(); ++stelle)
                anzahl += bild.pixel(stelle % bild.width(), stelle / bild.width()) == Ton;
            return anzahl;
        };
        if (element->art() != Elementart::Balken) {
            EXPECT_GT(punkte(RGB(0x96, 0xc8, 0xff)), 20) << element->Name();
        }
        for (Element* kind : fenster.elemente()) {
            if (kind->rahmen() != element) continue;
            EXPECT_NE(widget<QWidget>(*kind).palette().color(QPalette::Base).rgb(), Ton) << kind->Name();
        }
        EXPECT_EQ(punkte(Farbe_Standard), 0) << element->Name();

        int bewegt = 0;
        element->Mausbewegung.verbinden([&bewegt](int, int) { ++bewegt; });
        auto* rollend = qobject_cast<QAbstractScrollArea*>(&w);
        QWidget& fläche = rollend == nullptr ? w : *rollend->viewport();
        Maus(fläche, QEvent::MouseMove, {2, 2}, Qt::NoButton);
        EXPECT_EQ(bewegt, 1) << element->Name();
        EXPECT_TRUE(fläche.hasMouseTracking()) << element->Name();
        element->Mausbewegung = {};
    }
}

TEST_F(Desktop, UpDownSwitchByMouseAndKeys) {
    Text folge;
    fenster.Stufen.Geändert.verbinden([&] {
        folge += std::to_string(fenster.Stufen.wert());
        fenster.Stufen.wert(Dreistufer::Ruhe);
    });
    auto& stufen = widget<QWidget>(fenster.Stufen);
    for (auto* pfeil : stufen.findChildren<QAbstractButton*>()) Klick(*pfeil);
    EXPECT_EQ(ansicht.fokus(), &fenster.Stufen);
    Taste_auf(stufen, Qt::Key_Down);
    fenster.Stufen.aktiv(false);
    Taste_auf(stufen, Qt::Key_Up);
    EXPECT_EQ(folge, "123232");
}

TEST_F(Desktop, ListOf5000LinesIsQuickAndFollowsTheModelBothWays) {
    Zeilen(5000);
    auto& liste = widget<QListView>(fenster.Liste);
    QElapsedTimer uhr;
    uhr.start();
    Zeilen(5000);
    fenster.Liste.wähle(4999);
    fenster.Liste.wähle(2500);
    abgleichen();
    EXPECT_LT(uhr.elapsed(), 200);
    EXPECT_EQ(liste.model()->rowCount(), 5000);
    EXPECT_EQ(liste.currentIndex().row(), 2500);
    EXPECT_EQ(fenster.listenklicks, 2);  // the two choices above and no echo
    EXPECT_EQ(liste.indexAt(QPoint(5, 3)).row(), 2500) << "a line chosen from below comes to the top";
    EXPECT_EQ(fenster.Liste.erste(), 2500);

    liste.verticalScrollBar()->setValue(100);
    EXPECT_EQ(fenster.Liste.erste(), 100);
    fenster.Liste.erste(300);
    abgleichen();
    EXPECT_EQ(liste.verticalScrollBar()->value(), 300);

    fenster.Liste.leeren();
    EXPECT_EQ(liste.model()->index(99, 0).data().toString(), QString()) << "between two paints the lines read empty";
}

TEST_F(Desktop, ListClicksCountAlsoOnTheChosenLineAndTheRightButtonChoosesNothing) {
    Zeilen(50);
    auto& liste = widget<QListView>(fenster.Liste);
    liste.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(fenster.Liste.gewählt(), -1) << "the focus alone chooses nothing";
    EXPECT_EQ(ansicht.fokus(), &fenster.Liste);
    const QPoint dritte = liste.visualRect(liste.model()->index(3, 0)).center();
    Klick(*liste.viewport(), dritte);
    Klick(*liste.viewport(), dritte);
    abgleichen();
    EXPECT_EQ(fenster.Liste.gewählt(), 3);
    EXPECT_EQ(fenster.listenklicks, 2);
    int zeile = -7;
    fenster.Liste.Rechtsklick.verbinden([&](int z) { zeile = z; });
    Klick(*liste.viewport(), liste.visualRect(liste.model()->index(5, 0)).center(), Qt::RightButton);
    EXPECT_EQ(zeile, 5);
    EXPECT_EQ(fenster.Liste.gewählt(), 3);

    Taste_auf(liste, Qt::Key_Down);
    EXPECT_EQ(fenster.Liste.gewählt(), 4);
    for (int i = 0; i < 30; ++i) {
        Taste_auf(liste, Qt::Key_Down);
        abgleichen();
    }
    const QRect gewählte = liste.visualRect(liste.model()->index(34, 0));
    EXPECT_TRUE(liste.viewport()->rect().contains(gewählte)) << "the chosen line stays wholly in sight";
}

TEST_F(Desktop, KeysGoToHandlersFirst) {
    auto& zeile = widget<QLineEdit>(fenster.Suche);
    std::vector<Taste::Art> gesehen;
    fenster.Suche.Tastendruck.verbinden([&](Taste& taste) {
        gesehen.push_back(taste.art);
        taste.erledigt = taste.art == Taste::Art::Zeichen && taste.zeichen == "x";
    });
    Taste_auf(zeile, Qt::Key_X, QStringLiteral("x"));
    Taste_auf(zeile, Qt::Key_Y, QStringLiteral("y"));
    EXPECT_EQ(fenster.Suche.text(), "y");
    EXPECT_EQ(fenster.geändert, 1);
    fenster.Suche.text("Programm");
    abgleichen();
    EXPECT_EQ(zeile.text(), QStringLiteral("Programm"));
    EXPECT_EQ(fenster.geändert, 2) << "it does not come back";
    Taste_auf(zeile, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(fenster.ok, 1) << "Return presses the default button";
    EXPECT_EQ(gesehen, (std::vector{Taste::Art::Zeichen, Taste::Art::Zeichen, Taste::Art::Return}));
    int abbruch = 0;
    fenster.Abbruch.Klick.verbinden([&] { ++abbruch; });
    Taste_auf(zeile, Qt::Key_Escape);
    EXPECT_EQ(abbruch, 1);
}

TEST_F(Desktop, ALabelThatCanBeClickedIsWorkedByKeys) {
    int klicks = 0;
    fenster.Lied_Titel.Klick.verbinden([&] { ++klicks; });
    fenster.Lied_Titel.beschriftung("klick mich");
    abgleichen();
    ansicht.fokus(fenster.Suche);
    abgleichen();
    auto& schrift = widget<QWidget>(fenster.Lied_Titel);
    const QImage vorher = schrift.grab().toImage();
    schrift.setFocus(Qt::TabFocusReason);
    EXPECT_NE(schrift.grab().toImage(), vorher);
    EXPECT_EQ(ansicht.fokus(), &fenster.Suche) << "to the model it is no control that takes the focus";
    Taste_auf(schrift, Qt::Key_Return, QStringLiteral("\r"));
    Taste_auf(schrift, Qt::Key_Space, QStringLiteral(" "));
    EXPECT_EQ(klicks, 2);
    EXPECT_EQ(fenster.ok, 0);
}

TEST_F(Desktop, SlidersAndCombosReportTheHandAlone) {
    int gescrollt = 0, geändert = 0, wahl = 0;
    fenster.Lautstärke.Gescrollt.verbinden([&] { ++gescrollt; });
    fenster.Lautstärke.Geändert.verbinden([&] { ++geändert; });
    fenster.Genre.Klick.verbinden([&] { ++wahl; });
    fenster.Lautstärke.wert(10);
    fenster.Genre.wähle(1);
    abgleichen();
    EXPECT_EQ(gescrollt, 0);
    widget<QAbstractSlider>(fenster.Lautstärke).setValue(20);
    EXPECT_EQ(fenster.Lautstärke.wert(), 20);
    EXPECT_EQ(gescrollt, 1);
    EXPECT_EQ(geändert, 2);
    auto& combo = widget<QComboBox>(fenster.Genre);
    EXPECT_EQ(combo.currentText(), QStringLiteral("Classic Rock"));
    Taste_auf(combo, Qt::Key_Down);
    EXPECT_EQ(fenster.Genre.gewählt(), 2);
    EXPECT_EQ(wahl, 2);
}

// The button of the mouse stays down, as it does for the bar when a box has taken the release.
TEST_F(Desktop, AScrollBarThatIsPutBackStepsOnce) {
    fenster.Bildlauf.wert(10);
    abgleichen();
    int schritte = 0;
    fenster.Bildlauf.Geändert.verbinden([&] {
        if (fenster.Bildlauf.wert() == 10) return;
        ++schritte;
        fenster.Bildlauf.wert(10);
    });
    auto& leiste = widget<QAbstractSlider>(fenster.Bildlauf);
    Maus(leiste, QEvent::MouseButtonPress, QPoint(2, leiste.height() / 2));
    QElapsedTimer uhr;
    for (uhr.start(); uhr.elapsed() < 700;) ansicht.Ereignisse_laufen_lassen();
    EXPECT_EQ(schritte, 1);
    EXPECT_EQ(leiste.value(), 10);
}

TEST_F(Desktop, FilesFromTheFileManagerKeepTheirBytes) {
    std::vector<Text> pfade;
    fenster.Liste.Dateien_abgelegt.verbinden([&](const std::vector<Text>& p) { pfade = p; });
    QMimeData daten;
    daten.setUrls({QUrl::fromEncoded("file:///m/a%20%C3%A4.mp3"), QUrl::fromEncoded("file:///m/%FF.mp3"),
                   QUrl::fromEncoded("http://x/y.mp3")});
    QWidget* ziel = widget<QListView>(fenster.Liste).viewport();
    QDragEnterEvent kommt(QPoint(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(ziel, &kommt);
    EXPECT_TRUE(kommt.isAccepted());
    const auto marken = [&] { return ansicht.maler().Widget(fenster)->findChildren<QWidget*>("Zielmarke"); };
    ASSERT_EQ(marken().size(), 1);
    EXPECT_EQ(marken().constFirst()->parentWidget(), ansicht.maler().Widget(fenster.Liste));
    QDragLeaveEvent geht;
    QApplication::sendEvent(ziel, &geht);
    EXPECT_TRUE(marken().empty());
    QApplication::sendEvent(ziel, &kommt);
    QDropEvent fall(QPointF(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(ziel, &fall);
    EXPECT_TRUE(marken().empty());
    EXPECT_TRUE(pfade.empty()) << "the other program is let go first";
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_EQ(pfade, (std::vector<Text>{"/m/a ä.mp3", "/m/\xff.mp3"}));
}

}  // namespace
}  // namespace tonkartei
