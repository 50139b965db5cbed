// What the keyboard does where the toolkit alone would not do it.
#include <QAbstractButton>
#include <QLineEdit>
#include <QListView>

#include "oberflaeche_qt/desktop.hpp"

namespace tonkartei {
namespace {

TEST_F(Desktop, ArrowsMoveAmongTheOptionsOfAGroup) {
    const struct {
        int taste;
        bool danach_Titel;
    } schritte[] = {{Qt::Key_Up, true}, {Qt::Key_Right, false}, {Qt::Key_Down, true}, {Qt::Key_Left, false}};
    for (const auto& schritt : schritte) {
        Taste_auf(widget<QAbstractButton>(fenster.nach_Titel.wert() ? fenster.nach_Titel : fenster.nach_Artist),
                  schritt.taste);
        EXPECT_EQ(fenster.nach_Titel.wert(), schritt.danach_Titel);
        EXPECT_EQ(ansicht.fokus(), schritt.danach_Titel ? &fenster.nach_Titel : &fenster.nach_Artist);
    }
}

TEST_F(Desktop, AListThatActsAtOnceIsOnlyMovedInByArrowsAndLetters) {
    Zeilen(9);
    fenster.Liste.wählt_erst_auf_Return = true;
    auto& liste = widget<QListView>(fenster.Liste);
    for (const int taste : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home}) Taste_auf(liste, taste);
    Taste_auf(liste, Qt::Key_L, "L");
    EXPECT_EQ(fenster.listenklicks, 0);
    const int gewählt = fenster.Liste.gewählt();
    EXPECT_GE(gewählt, 0);
    Taste_auf(liste, Qt::Key_Space, " ");
    Taste_auf(liste, Qt::Key_Return, "\r");
    EXPECT_EQ(fenster.listenklicks, 2);
    EXPECT_EQ(fenster.ok, 0) << "not the default button";
    EXPECT_EQ(fenster.Liste.gewählt(), gewählt);
}

TEST_F(Desktop, TheMenuKeyIsARightClickOnTheChosenLine) {
    Zeilen(9);
    std::vector<int> zeilen;
    fenster.Liste.Rechtsklick.verbinden([&](int zeile) { zeilen.push_back(zeile); });
    std::optional<QPoint> wo;
    fenster.Liste.Rechtsklick.verbinden([&](int) { wo = ansicht.maler().Menüplatz(); });
    auto& liste = widget<QListView>(fenster.Liste);
    Menütaste(liste);
    fenster.Liste.wähle(4);
    abgleichen();
    Menütaste(liste);
    EXPECT_EQ(zeilen, (std::vector{-1, 4}));
    EXPECT_EQ(wo, liste.viewport()->mapToGlobal(liste.visualRect(liste.model()->index(4, 0)).bottomLeft()));
}

TEST_F(Desktop, WhatAPanelCoversIsLeftOutByTheTabKey) {
    struct Mit_Tafel : Fenster {
        explicit Mit_Tafel(Ansicht& a) : Fenster(a, "Mit_Tafel", "") {
            Tafel.deckend = true;
            Tafel.sichtbar(false);
        }
        Knoten anordnung() override { return Spalte({Oben, Überlagerung({Unten, Gruppe(Tafel, Play).Platz_halten()})}); }
        Knopf Oben{*this, "Oben", "Oben"}, Unten{*this, "Unten", "Unten"};
        Rahmen Tafel{*this, "Tafel"};
        Knopf Play{*this, "Play", "Play"};
    } mit(ansicht);
    mit.zeigen();
    ansicht.Ereignisse_laufen_lassen();
    for (const bool offen : {false, true, false}) {
        mit.Tafel.sichtbar(offen);
        abgleichen();
        auto& oben = widget<QWidget>(mit.Oben);
        oben.setFocus();
        Taste_auf(oben, Qt::Key_Tab);
        EXPECT_EQ(oben.window()->focusWidget(), ansicht.maler().Widget(offen ? mit.Play : mit.Unten));
    }
}

TEST_F(Desktop, ATextCanBeMarkedToBeTypedOver) {
    auto& zeile = widget<QLineEdit>(fenster.Suche);
    fenster.Suche.text("Kategorie 7");
    fenster.Suche.alles_markieren();
    abgleichen();
    EXPECT_EQ(zeile.selectedText(), "Kategorie 7");
    fenster.Suche.text("andere");
    abgleichen();
    EXPECT_EQ(zeile.selectedText(), "") << "once";
}

}  // namespace
}  // namespace tonkartei
