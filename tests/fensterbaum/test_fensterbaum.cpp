// What assistive technology finds in the whole program: all its windows on an off-screen desktop, walked as a screen reader
// walks them.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QInputDialog>
#include <QMessageBox>
#include <QWidget>
#include <cstdlib>
#include <set>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/fenstermaler_qt.hpp"
#include "oberflaeche/qt/kaesten.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"
#include "probe/probehaus.hpp"
#include "programm/programm.hpp"

namespace tonkartei {
namespace {

// Nobody is there to press a button.
struct Blick : Ansicht_Qt {
    Antwort melden(const Meldungsfeld& feld) override { return feld.vorgabe; }
    Text eingeben(const Text&, const Text&, const Text&) override { return {}; }
    Text Verzeichnis_wählen(const Text&) override { return {}; }
};

struct Fensterbaum : testing::Test {
    Probehaus probe;
    Blick ansicht;
    std::unique_ptr<Programm> programm;
    std::set<Text> fehler;

    void merken(const Text& name, const Text& wert) const {
        Registrierung& r = probe.haus.plattform.Registrierung;
        Registrierung::Schlüssel s = 0;
        r.RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Tonkartei\\" + name, s);
        std::vector<char> daten(wert.begin(), wert.end());
        daten.push_back('\0');
        r.RegSetValueExA(s, "", REG_SZ, daten);
        r.RegCloseKey(s);
    }
    void SetUp() override {
        Text bytes = "Tonkartei\r\nV 1.02 16\r\n 3 \r\nAlle\r\nJazz\r\nPop\r\n 0 \r\n";
        for (int s = 1; s <= 9; ++s) bytes += " 1 \r\nSchema " + std::to_string(s) + "\r\n 1 \r\n";
        bytes += " 0 \r\n 1 \r\n 3 \r\nAnna\r\n 4000 \r\n 2 \r\nZug\r\n0\r\n3\r\n30\r\n";
        probe.ordner.datei("MP3_Info.MDB", bytes);
        merken("geöffnete Datenbanken\\Anzahl", "1");
        merken("geöffnete Datenbanken\\Nr. 1", probe.ordner.pfad());
        merken("WinAmp", probe.ordner.pfad());
        programm = std::make_unique<Programm>(probe.haus.plattform, ansicht, "");
        ansicht.ausführen([this] { programm->starten(); });
    }
    static bool braucht_Namen(const QAccessibleInterface& was) {
        static const std::set<QAccessible::Role> rollen{
            QAccessible::Button,   QAccessible::CheckBox,    QAccessible::RadioButton, QAccessible::EditableText,
            QAccessible::ComboBox, QAccessible::List,        QAccessible::Slider,      QAccessible::ScrollBar,
            QAccessible::SpinBox,  QAccessible::ButtonMenu,  QAccessible::PageTab,     QAccessible::PageTabList,
            QAccessible::MenuItem, QAccessible::ProgressBar, QAccessible::Dialog,      QAccessible::Window};
        return was.state().focusable || rollen.count(was.role()) != 0;
    }
    void prüfen(QAccessibleInterface& was, const Text& weg) {
        const Text hier = weg + "/" + (was.object() == nullptr ? Text("-") : was.object()->objectName().toStdString());
        const auto rolle = was.role();
        if (braucht_Namen(was) && was.text(QAccessible::Name).trimmed().isEmpty())
            fehler.insert(hier + ": no name, role " + std::to_string(rolle));
        if (was.state().focusable && (rolle == QAccessible::Client || rolle == QAccessible::Pane))
            fehler.insert(hier + ": can be worked, but as what?");
        // Rows and drop-down lists are Qt's own.
        if (rolle == QAccessible::List || rolle == QAccessible::ComboBox || rolle == QAccessible::MenuItem) return;
        for (int i = 0; i < was.childCount(); ++i) {
            QAccessibleInterface* kind = was.child(i);
            ASSERT_TRUE(kind != nullptr && was.indexOfChild(kind) == i) << hier;
            prüfen(*kind, hier);
            if (kind->state().invisible || kind->rect().isEmpty()) continue;
            for (int k = 0; k < i; ++k) Reihenfolge(*was.child(k), *kind, hier);
        }
    }
    // Of two that share a column the upper one comes first, of two in a row the left one.
    void Reihenfolge(const QAccessibleInterface& erstes, const QAccessibleInterface& zweites, const Text& wo) {
        const QRect a = erstes.rect(), b = zweites.rect();
        if (erstes.state().invisible || a.isEmpty() || a.intersects(b)) return;
        const bool spalte = a.left() <= b.right() && b.left() <= a.right();
        const bool zeile = a.top() <= b.bottom() && b.top() <= a.bottom();
        if ((spalte && a.top() > b.top()) || (zeile && a.left() > b.left()))
            fehler.insert(wo + ": " + erstes.object()->objectName().toStdString() + " before " +
                          zweites.object()->objectName().toStdString());
    }
    Text Fehlerliste() const {
        Text text;
        for (const Text& einer : fehler) text += einer + "\n";
        return text;
    }
};

TEST_F(Fensterbaum, EveryControlHasANameARoleAndItsPlace) {
    for (Fenster* fenster : std::vector(ansicht.alle_Fenster())) ansicht.ausführen([&] { fenster->zeigen(); });
    ansicht.maler().abgleichen();
    int gesehene = 0;
    for (Fenster* fenster : ansicht.alle_Fenster()) {
        QWidget* widget = ansicht.maler().Widget(*fenster);
        if (!fenster->geladen() || widget == nullptr || !widget->isWindow()) continue;
        ++gesehene;
        prüfen(*QAccessible::queryAccessibleInterface(widget), "");
    }
    EXPECT_GT(gesehene, 20);
    const auto frage = Meldungskasten({.titel = "Frage", .text = "Ja?", .art = Meldungsfeld::Art::Frage}, nullptr);
    const auto eingabe = Eingabekasten("Wie heißt es?", "Titel", "bisher", nullptr);
    for (QWidget* kasten : {static_cast<QWidget*>(frage.get()), static_cast<QWidget*>(eingabe.get())}) {
        kasten->show();
        prüfen(*QAccessible::queryAccessibleInterface(kasten), "");
    }
    EXPECT_EQ(Fehlerliste(), "");
}

}  // namespace
}  // namespace tonkartei

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const tonkartei::Qt_Umgebung umgebung(argc, argv);
    return RUN_ALL_TESTS();
}
