// What a screen reader is told of each kind of control, and what it can do.
#include <QAccessible>
#include <QProgressBar>

#include "oberflaeche_qt/desktop.hpp"

namespace tonkartei {
namespace {

struct Zugang : Desktop {
    QAccessibleInterface& von(const Element& element) {
        QWidget* widget = ansicht.maler().Widget(element);
        QAccessibleInterface* eltern = QAccessible::queryAccessibleInterface(widget->parentWidget());
        QAccessibleInterface* selbst = QAccessible::queryAccessibleInterface(widget);
        return *eltern->child(eltern->indexOfChild(selbst));
    }
};

TEST_F(Zugang, TellsRoleAndName) {
    fenster.Play.Vorlesename = "abspielen";
    fenster.Stufen.tooltip("Reihenfolge; mit den Pfeilen");
    fenster.Ok.beschriftung("&Lieder && mehr -->");
    fenster.Bildlauf.tooltip("Stelle.");
    abgleichen();
    const struct {
        Element& wer;
        QAccessible::Role rolle;
        const char* name;
    } fälle[] = {
        {fenster.Play, QAccessible::Button, "abspielen"},
        {fenster.Ok, QAccessible::Button, "Lieder & mehr"},
        {fenster.Pop, QAccessible::CheckBox, "Pop"},
        {fenster.nach_Titel, QAccessible::RadioButton, "Titel"},
        {fenster.Suche, QAccessible::EditableText, "Schnellsuche"},
        {fenster.Liste, QAccessible::List, "Schaufenster äöü ß"},
        {fenster.Genre, QAccessible::ComboBox, "Classic Rock"},
        {fenster.Bildlauf, QAccessible::ScrollBar, "Stelle"},
        {fenster.Stufen, QAccessible::SpinBox, "Reihenfolge"},
        {fenster.Kategorien, QAccessible::Grouping, "Kategorien"},
        {fenster.Panel, QAccessible::Pane, ""},
        {fenster.Symbol, QAccessible::Graphic, ""},
        {fenster.Lied_Titel, QAccessible::StaticText, "Simon & Garfunkel - The Sound of Silence (Live, 1966)"},
    };
    for (const auto& fall : fälle) {
        EXPECT_EQ(von(fall.wer).role(), fall.rolle) << fall.wer.Name();
        EXPECT_EQ(von(fall.wer).text(QAccessible::Name).toStdString(), fall.name) << fall.wer.Name();
    }
    EXPECT_EQ(QAccessible::queryAccessibleInterface(ansicht.maler().Widget(fenster))->role(), QAccessible::Dialog);
    Zeilen(3);
    fenster.Liste.wähle(1);
    fenster.Fortschritt.wert(40);
    abgleichen();
    EXPECT_EQ(von(fenster.Liste).childCount(), 3);
    EXPECT_TRUE(von(fenster.Liste).child(1)->state().selected);
    EXPECT_EQ(von(fenster.Fortschritt).valueInterface()->currentValue().toInt(), 40);
}

TEST_F(Zugang, IsMadeOnceSomebodyAsks) {
    const QWidget& suche = widget<QWidget>(fenster.Suche);
    EXPECT_EQ(suche.accessibleName(), QString());
    QAccessible::setActive(true);
    EXPECT_EQ(suche.accessibleName(), QStringLiteral("Schnellsuche"));
    QAccessible::setActive(false);
}

TEST_F(Zugang, WorksWhatCanBeWorkedJustNow) {
    int geklickt = 0;
    std::vector<int> stufen;
    Schaufenster zweites(ansicht);
    zweites.Hinweis.Klick.verbinden([&] { ++geklickt; });
    zweites.Stufen.Geändert.verbinden([&] { stufen.push_back(zweites.Stufen.wert()); });
    zweites.zeigen();
    abgleichen();
    QAccessibleInterface &schrift = von(zweites.Hinweis), &option = von(zweites.nach_Titel);
    EXPECT_EQ(schrift.role(), QAccessible::Button);
    QAccessibleValueInterface& wert = *von(zweites.Stufen).valueInterface();
    for (const bool aktiv : {true, false}) {
        zweites.aktiv(aktiv);
        zweites.nach_Artist.wählen();
        option.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        abgleichen();
        EXPECT_EQ(option.state().checked, aktiv);
        schrift.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        wert.setCurrentValue(-1);
        wert.setCurrentValue(1);
    }
    EXPECT_EQ(geklickt, 1);
    EXPECT_EQ(stufen, (std::vector{Dreistufer::unten_Stufe, Dreistufer::oben_Stufe}));
}

}  // namespace
}  // namespace tonkartei
