#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QColorDialog>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>
#include <cstdlib>
#include <memory>

#include "oberflaeche/hand.hpp"
#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/fenstermaler_qt.hpp"
#include "oberflaeche/qt/kaesten.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"
#include "oberflaeche/zeitgeber.hpp"
#include "oberflaeche_qt/hilfen.hpp"
#include "oberflaeche_qt/schaufenster.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

struct Desktop : testing::Test {
    Ansicht_Qt ansicht;
    Schaufenster fenster{ansicht};

    void SetUp() override {
        fenster.zeigen();
        ansicht.Ereignisse_laufen_lassen();
    }
    void abgleichen() { ansicht.maler().abgleichen(); }
    template <class W>
    W& widget(const Element& element) {
        auto* w = qobject_cast<W*>(ansicht.maler().Widget(element));
        if (w == nullptr) throw std::runtime_error("no such widget: " + element.Name());
        return *w;
    }
    void Zeilen(int anzahl) {
        std::vector<Text> zeilen;
        for (int i = 0; i < anzahl; ++i) zeilen.push_back("Lied " + std::to_string(i));
        fenster.Liste.setzen(std::move(zeilen));
        abgleichen();
    }
};

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
    QDropEvent fall(QPointF(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(ziel, &fall);
    EXPECT_TRUE(pfade.empty()) << "the other program is let go first";
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_EQ(pfade, (std::vector<Text>{"/m/a ä.mp3", "/m/\xff.mp3"}));
}

TEST_F(Desktop, APaintedWindowRunsNeitherInputNorTimers) {
    int ticks = 0;
    Zeitgeber uhr(ansicht, [&] { ++ticks; });
    uhr.stellen(1, true);
    QElapsedTimer zeit;
    zeit.start();
    for (int i = 0; i < 20 || zeit.elapsed() < 5; ++i) {
        fenster.Fortschritt.wert(i % 100);
        fenster.malen();
    }
    EXPECT_EQ(ticks, 0);
    ansicht.warten_bis(fenster, [&] { return ticks > 0; });
}

TEST_F(Desktop, CloseBoxOnlyAsks) {
    QWidget& w = *ansicht.maler().Widget(fenster);
    fenster.aktiv(false);
    EXPECT_FALSE(w.close());
    EXPECT_TRUE(fenster.geladen()) << "a blocked window does not even ask";
    fenster.aktiv(true);
    EXPECT_FALSE(w.close());
    EXPECT_FALSE(fenster.geladen()) << "the model unloads it";
    abgleichen();
    EXPECT_FALSE(w.isVisible());
}

TEST_F(Desktop, ReloadedWindowShowsItsStartValues) {
    fenster.Ok.beschriftung("verändert");
    fenster.Klassik.wert(true);
    abgleichen();
    EXPECT_EQ(widget<QAbstractButton>(fenster.Ok).text(), QStringLiteral("verändert"));
    fenster.entladen();
    fenster.zeigen();  // before anything was shown of the unloading
    abgleichen();
    EXPECT_EQ(widget<QAbstractButton>(fenster.Ok).text(), QStringLiteral("OK"));
    EXPECT_FALSE(widget<QAbstractButton>(fenster.Klassik).isChecked());
}

TEST_F(Desktop, SizeFollowsTheModelAndTheHand) {
    QWidget& w = *ansicht.maler().Widget(fenster);
    const int menü = w.findChild<QMenuBar*>()->height();
    EXPECT_EQ(w.height() - menü, fenster.lage().höhe / 15);
    w.resize(w.width() + 100, w.height() + 50);
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_EQ(fenster.lage().breite / 15, w.width());
    const int liste = widget<QWidget>(fenster.Liste).height();
    EXPECT_EQ(liste, fenster.Liste.höhe() / 15);
    w.resize(10, 10);
    ansicht.Ereignisse_laufen_lassen();
    EXPECT_GE(w.width() * 15, fenster.Mindestgröße().breite);
}

TEST_F(Desktop, MenusTriggerAndShowTheModelsMarks) {
    auto* leiste = ansicht.maler().Widget(fenster)->findChild<QMenuBar*>();
    const auto einträge = [&](int menü) {
        abgleichen();
        return leiste->actions().at(menü)->menu()->actions();
    };
    einträge(0).at(0)->trigger();
    EXPECT_EQ(fenster.menüklicks, 1);
    fenster.menü_tabelle("Fett").haken(true);
    EXPECT_TRUE(einträge(1).at(0)->isChecked());
    Menüpunkt& datei = fenster.menü_tabelle("Datei");
    datei.anfügen({"Neu", "Neu", 1, [] {}, {}});
    EXPECT_EQ(einträge(0).size(), 2);
    datei.kürzen(1);
    EXPECT_EQ(einträge(0).size(), 1);
}

TEST_F(Desktop, ModalWindowBlocksTheOthersUntilItIsHidden) {
    {
        Schaufenster zweites(ansicht);
        QTimer::singleShot(20, [&] {
            Klick(widget<QWidget>(fenster.Ok));
            EXPECT_EQ(fenster.ok, 0);
            Klick(widget<QWidget>(zweites.Ok));
            zweites.verstecken();
        });
        zweites.zeigen_modal();
        EXPECT_EQ(zweites.ok, 1);
    }  // a window that dies takes its widgets along
    ansicht.Ereignisse_laufen_lassen();
    Klick(widget<QWidget>(fenster.Ok));
    EXPECT_EQ(fenster.ok, 1);
}

TEST_F(Desktop, TheEndLeavesNestedWaits) {
    Text folge;
    QTimer::singleShot(0, [&] {
        ansicht.ausführen([&] {
            const std::shared_ptr<void> beim_Verlassen(nullptr, [&](void*) { folge += "verlassen"; });
            QTimer::singleShot(10, [&] { ansicht.beenden(); });
            ansicht.warten_bis(fenster, [] { return false; });
            folge += "danach ";
        });
    });
    ansicht.Hauptschleife();
    EXPECT_EQ(folge, "verlassen");
}

TEST_F(Desktop, TimersRestWhileABoxIsUpAndFireOnceAfterwards) {
    int ticks = 0, ticks_im_Kasten = -1;
    Zeitgeber uhr(ansicht, [&] { ++ticks; });
    uhr.stellen(5, true);
    QTimer::singleShot(60, [&] {
        ticks_im_Kasten = ticks;
        QApplication::activeModalWidget()->close();
    });
    EXPECT_TRUE(ansicht.fragen("Frage", "Erste Zeile\r\rZweite", Antwort::Nein) == false);
    EXPECT_EQ(ticks_im_Kasten, 0);
    uhr.stellen(100000, uhr.aktiv());
    EXPECT_EQ(ticks, 0);
    uhr.stellen(5, true);
    ansicht.warten_bis(fenster, [&] { return ticks >= 2; });
}

TEST_F(Desktop, AMenusPictureShowsItsMarksAndGrowsWithItsEntries) {
    const Testordner ordner;
    Menüpunkt& datei = fenster.menü_tabelle("Datei");
    const auto malen = [&] {
        EXPECT_TRUE(ansicht.maler().Bild_speichern(datei, ordner.pfad("menü.png")));
        return QImage(QString::fromStdString(ordner.pfad("menü.png")));
    };
    EXPECT_TRUE(ansicht.maler().Bild_speichern(fenster, ordner.pfad("fenster.png")));
    const QImage vorher = malen();
    Menüpunkt& neu = datei.anfügen({"Neu", "&Übermäßig langer Eintrag eines Menüs", 1, [] {}, {}});
    const QImage länger = malen();
    EXPECT_TRUE(länger.height() > vorher.height() && länger.width() > vorher.width());
    neu.haken(true);
    const QImage mit_Haken = malen();
    EXPECT_EQ(mit_Haken.height(), länger.height());
    EXPECT_NE(mit_Haken, länger);
}

TEST_F(Desktop, ColoursAreChosenInGermanAndBeginWithTheOldOne) {
    QStringList knöpfe;
    const auto bedienen = [&](bool annehmen) {
        QTimer::singleShot(20, [&, annehmen] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            EXPECT_EQ(dialog->currentColor(), QColor(200, 120, 10));
            EXPECT_EQ(dialog->windowTitle().toStdString(), "Farbauswahl");
            for (const QAbstractButton* knopf : dialog->findChildren<QAbstractButton*>())
                knöpfe << knopf->text().remove(QLatin1Char('&'));
            dialog->setCurrentColor(QColor(1, 2, 3));
            annehmen ? dialog->accept() : dialog->reject();
        });
        return ansicht.Farbe_wählen(RGB(200, 120, 10));
    };
    EXPECT_EQ(bedienen(false), std::nullopt);
    EXPECT_EQ(bedienen(true), RGB(1, 2, 3));
    EXPECT_TRUE(knöpfe.contains(QStringLiteral("Abbrechen"))) << knöpfe.join(QLatin1Char('|')).toStdString();
}

TEST(Kästen, FiltersMatchWhateverTheCase) {
    EXPECT_EQ(Namensfilter("WinAmp-Playlist (*.M3U)|*.M3U| Alle Dateien (*.*) |*.*").join(QLatin1Char('|')),
              QStringLiteral("WinAmp-Playlist (*.M3U *.m3u)|Alle Dateien (*)"));
}

TEST(LaufzeitfehlerDeathTest, RuntimeErrorInAHandlerEndsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            Ansicht_Qt ansicht;
            Schaufenster fenster(ansicht);
            fenster.zeigen();
            ansicht.Ereignisse_laufen_lassen();
            fenster.Ok.Klick.verbinden([&] { (void)fenster.Liste.zeile(0); });
            QTimer::singleShot(20, [] { QApplication::activeModalWidget()->close(); });
            Klick(*ansicht.maler().Widget(fenster.Ok));
        },
        testing::ExitedWithCode(1), "");
}

}  // namespace
}  // namespace tonkartei

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const tonkartei::Qt_Umgebung umgebung(argc, argv);
    return RUN_ALL_TESTS();
}
