// Every window of the program as a screen reader finds it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QWidget>
#include <cstdlib>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/fenstermaler_qt.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"
#include "probe/probehaus.hpp"
#include "programm/programm.hpp"

namespace tonkartei {
namespace {

// What can be worked or tells a value must say what it is.
bool braucht_Namen(const QAccessibleInterface& ding) {
    switch (ding.role()) {
        case QAccessible::LayeredPane:
        case QAccessible::Client:
        case QAccessible::Grouping:
        case QAccessible::StaticText:
        case QAccessible::ScrollBar:
        case QAccessible::Separator: return ding.state().focusable;
        default: return true;
    }
}

struct Leser {
    Text fenster;
    int dinge = 0;

    static Text Beschreibung(const QAccessibleInterface& ding) {
        return (ding.object() == nullptr ? Text("?") : ding.object()->objectName().toStdString()) + " (role " +
               std::to_string(ding.role()) + ")";
    }
    void lesen(const QAccessibleInterface& ding) {
        if (!ding.isValid() || ding.state().invisible) return;
        ++dinge;
        if (braucht_Namen(ding)) {
            EXPECT_FALSE(ding.text(QAccessible::Name).isEmpty()) << fenster << ": no name: " << Beschreibung(ding);
        }
        if (ding.state().focusable) {
            EXPECT_NE(ding.role(), QAccessible::Client) << fenster << ": " << Beschreibung(ding);
            EXPECT_NE(ding.role(), QAccessible::LayeredPane) << fenster << ": " << Beschreibung(ding);
        }
        // Lists and tabs tell their lines by themselves.
        if (ding.role() == QAccessible::List || ding.role() == QAccessible::ComboBox) return;
        QRect davor;
        for (int i = 0; i < ding.childCount(); ++i) {
            const QAccessibleInterface* kind = ding.child(i);
            if (kind == nullptr) continue;
            EXPECT_EQ(ding.indexOfChild(kind), i) << fenster << ": " << Beschreibung(ding);
            lesen(*kind);
            // A place that is kept for something else is nothing to read.
            const bool leer = kind->role() == QAccessible::Grouping && kind->childCount() == 0;
            const bool zählt = ding.role() == QAccessible::LayeredPane && !kind->state().invisible && !leer;
            if (!zählt) continue;
            // Nothing is read before what stands above it, or left of it on the same line.
            const QRect hier = kind->rect();
            const bool darüber = hier.bottom() < davor.top() && hier.right() > davor.left() && hier.left() < davor.right();
            EXPECT_FALSE(darüber) << fenster << ": " << Beschreibung(*kind) << " is read too late";
            davor = hier;
        }
    }
};

TEST(Fensterbaum, EveryControlOfEveryWindowSaysWhatItIs) {
    Probehaus probe;
    Ansicht_Qt ansicht;
    const Programm programm(probe.haus.plattform, ansicht, "");
    int fenster = 0;
    for (Fenster* eines : ansicht.alle_Fenster()) {
        if (Fenster* eltern = eines->Elternfenster()) eltern->zeigen();
        eines->zeigen();
        ansicht.maler().abgleichen();
        QWidget* widget = ansicht.maler().Widget(*eines);
        ASSERT_NE(widget, nullptr) << eines->Name();
        Leser leser{eines->Name()};
        QAccessibleInterface* ganzes = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(ganzes, nullptr);
        if (eines->Elternfenster() == nullptr) {
            EXPECT_EQ(ganzes->role(), eines->eigenständig ? QAccessible::Window : QAccessible::Dialog) << eines->Name();
        }
        leser.lesen(*ganzes);
        EXPECT_GE(leser.dinge, 2) << eines->Name();
        ++fenster;
        eines->verstecken();
    }
    EXPECT_GE(fenster, 30);
}

}  // namespace
}  // namespace tonkartei

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const tonkartei::Qt_Umgebung umgebung(argc, argv);
    return RUN_ALL_TESTS();
}
