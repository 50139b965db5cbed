#include <QAbstractButton>
#include <QColorDialog>
#include <QElapsedTimer>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <cstdlib>
#include <memory>

#include "oberflaeche/fortschritt.hpp"
#include "oberflaeche/qt/kaesten.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"
#include "oberflaeche/zeitgeber.hpp"
#include "oberflaeche_qt/desktop.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

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

TEST_F(Desktop, ADialogBelongsToTheWindowInFront) {
    QWidget& w = *ansicht.maler().Widget(fenster);
    EXPECT_EQ(w.windowType(), Qt::Dialog) << "unless it stands beside others";
    fenster.titelzusatz("Sammlung");
    abgleichen();
    EXPECT_EQ(w.windowTitle(), QStringLiteral("Sammlung – ") + QString::fromStdString(fenster.titel()));
    Schaufenster dialog(ansicht), zweites(ansicht);
    zweites.eigenständig = true;
    int gedrückt = 0;
    dialog.Kürzel.emplace_back("Ctrl+F", [&] { ++gedrückt; });
    dialog.zeigen();
    abgleichen();
    EXPECT_EQ(ansicht.maler().Widget(dialog)->windowHandle()->transientParent(), w.windowHandle());
    zweites.zeigen();
    abgleichen();
    EXPECT_EQ(ansicht.maler().Widget(zweites)->windowType(), Qt::Window);
    EXPECT_EQ(ansicht.maler().Widget(zweites)->windowHandle()->transientParent(), nullptr);
    auto* kürzel = ansicht.maler().Widget(dialog)->findChild<QShortcut*>();
    ASSERT_NE(kürzel, nullptr);
    kürzel->activated();
    dialog.aktiv(false);
    kürzel->activated();
    EXPECT_EQ(gedrückt, 1) << "a locked window has none";
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
    const auto verschleiert = [&](Fenster& eines) {
        const auto* schleier = ansicht.maler().Widget(eines)->findChild<QWidget*>("Schleier");
        return schleier != nullptr && schleier->isVisible();
    };
    {
        Schaufenster zweites(ansicht);
        QTimer::singleShot(20, [&] {
            Klick(widget<QWidget>(fenster.Ok));
            EXPECT_EQ(fenster.ok, 0);
            EXPECT_TRUE(verschleiert(fenster) && !verschleiert(zweites));
            Klick(widget<QWidget>(zweites.Ok));
            zweites.verstecken();
        });
        zweites.zeigen_modal();
        EXPECT_EQ(zweites.ok, 1);
    }  // a window that dies takes its widgets along
    ansicht.Ereignisse_laufen_lassen();
    Klick(widget<QWidget>(fenster.Ok));
    EXPECT_EQ(fenster.ok, 1);
    ansicht.maler().Sperren_zeigen();
    EXPECT_FALSE(verschleiert(fenster));
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

// A box that is up when the user's session ends goes by itself with its default; so does each that follows.
TEST_F(Desktop, AnEndOfTheSessionAnswersTheBoxThatIsUp) {
    QTimer::singleShot(20, [&] { ansicht.Sitzung_beenden(); });
    EXPECT_TRUE(ansicht.fragen("Frage", "Ja?"));
    EXPECT_FALSE(ansicht.fragen("Frage", "Nein?", Antwort::Nein));
    EXPECT_FALSE(fenster.geladen()) << "the window with the menu is the main one";
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

TEST_F(Desktop, AProgressInShortStepsIsSeenOnlyWhenItLasts) {
    Fortschritts_Fenster fortschritt(ansicht);
    const auto zu_sehen_bei = [&](int prozent) {
        fortschritt.anzeigen(prozent);
        ansicht.Ereignisse_laufen_lassen();
        const QWidget* balken = ansicht.maler().Widget(fortschritt.Fortschritt);
        return balken != nullptr && balken->window()->isVisible();
    };
    fortschritt.kurze_Schritte();
    EXPECT_FALSE(zu_sehen_bei(10));
    EXPECT_TRUE(fortschritt.sichtbar());
    EXPECT_FALSE(zu_sehen_bei(100));
    fortschritt.kurze_Schritte();
    EXPECT_FALSE(zu_sehen_bei(10));
    QThread::msleep(200);
    EXPECT_TRUE(zu_sehen_bei(20));
    EXPECT_FALSE(zu_sehen_bei(100));
    EXPECT_TRUE(zu_sehen_bei(10)) << "the next job shows it at once";
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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const tonkartei::Qt_Umgebung umgebung(argc, argv);
    return RUN_ALL_TESTS();
}
