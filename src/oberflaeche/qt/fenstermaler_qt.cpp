#include "oberflaeche/qt/fenstermaler_qt.hpp"

#include <QCoreApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QMessageBox>
#include <QPixmap>
#include <QWindow>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/kaesten.hpp"
#include "oberflaeche/qt/masse.hpp"
#include "oberflaeche/qt/menueleiste.hpp"
#include "oberflaeche/qt/umfeld.hpp"

namespace tonkartei {
namespace {

// How long a new window may take to come up before it is painted for the first time.
constexpr int Geduld_ms = 250;

bool schreiben(const QPixmap& bild, const Text& datei) { return bild.save(QString::fromStdString(datei), "PNG"); }

}  // namespace

struct Fenstermaler_Qt::Innen {
    explicit Innen(Ansicht& ansicht) : umfeld(ansicht) {}
    Umfeld umfeld;
    Maße maße;
};

Fenstermaler_Qt::Fenstermaler_Qt(Ansicht& ansicht) : innen_(std::make_unique<Innen>(ansicht)) {}

Fenstermaler_Qt::~Fenstermaler_Qt() {
    innen_->umfeld.zu_Ende = true;
    innen_->umfeld.fenster.clear();
}

void Fenstermaler_Qt::Fenster_geändert(Fenster& fenster) {
    auto& widget = innen_->umfeld.fenster[&fenster];
    if (!widget) {
        if (!fenster.geladen()) {
            innen_->umfeld.fenster.erase(&fenster);
            return;
        }
        widget = std::make_unique<Fensterwidget>(innen_->umfeld, fenster);
    }
    widget->Fenster_merken();
}

void Fenstermaler_Qt::Element_geändert(Element& element, unsigned änderung) {
    // Before its window is first reported there is nothing that could show it; then all is taken over at once.
    if (Fensterwidget* widget = innen_->umfeld.widget(element.fenster())) widget->Element_merken(element, änderung);
}

void Fenstermaler_Qt::Fenster_malen(Fenster& fenster) {
    Fensterwidget* widget = innen_->umfeld.widget(fenster);
    if (widget == nullptr) return;
    widget->abgleichen();
    const QWidget* ganzes = widget->window();
    if (!widget->isVisible() || ganzes->isMinimized()) return;
    const QWindow* fläche = ganzes->windowHandle();
    if (fläche != nullptr && !fläche->isExposed()) {
        QElapsedTimer uhr;
        uhr.start();
        while (!fläche->isExposed() && uhr.elapsed() < Geduld_ms)
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers, 10);
    }
    // All that has changed is painted with it.
    widget->repaint(0, 0, 1, 1);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
}

void Fenstermaler_Qt::Fokus_zeigen(Element& element) {
    if (Fensterwidget* widget = innen_->umfeld.widget(element.fenster())) widget->Fokus_merken(element);
}

void Fenstermaler_Qt::Fenster_verschwindet(Fenster& fenster) {
    // Its controls are gone already: what the widgets report while they die is for nobody.
    const Stille stille(innen_->umfeld);
    if (innen_->umfeld.vorderstes == &fenster) innen_->umfeld.vorderstes = nullptr;
    innen_->umfeld.fenster.erase(&fenster);
}

int Fenstermaler_Qt::Textbreite(const Text& text, int punkte) const { return innen_->maße.Textbreite(text, punkte); }
int Fenstermaler_Qt::Texthöhe(int punkte) const { return innen_->maße.Texthöhe(punkte); }
Größe Fenstermaler_Qt::Wunschgröße(const Element& element) const { return innen_->maße.Wunschgröße(element); }
Größe Fenstermaler_Qt::Bildschirm() const { return innen_->maße.Bildschirm(); }
Größe Fenstermaler_Qt::freie_Fläche(const Fenster& fenster) const { return innen_->maße.freie_Fläche(fenster); }
Bereich Fenstermaler_Qt::Rahmenrand(const Element& rahmen) const { return innen_->maße.Rahmenrand(rahmen); }
int Fenstermaler_Qt::Zeilenhöhe(int punkte) const { return Zeilenhöhe_Pixel(punkte) * Twips_je_Pixel; }

void Fenstermaler_Qt::abgleichen() {
    // Back to front, so that what was shown last comes to lie on top.
    const auto reihe = innen_->umfeld.ansicht.fenster();
    for (auto i = reihe.rbegin(); i != reihe.rend(); ++i)
        if (Fensterwidget* widget = innen_->umfeld.widget(**i)) widget->abgleichen();
    for (const auto& [fenster, widget] : innen_->umfeld.fenster)
        if (!fenster->geladen()) widget->abgleichen();
}

void Fenstermaler_Qt::Sperren_zeigen() {
    for (const auto& [fenster, widget] : innen_->umfeld.fenster) widget->Sperre_zeigen();
}

bool Fenstermaler_Qt::Bild_speichern(Fenster& fenster, const Text& datei) {
    Fensterwidget* widget = innen_->umfeld.widget(fenster);
    if (widget == nullptr || !fenster.geladen()) return false;
    abgleichen();
    return schreiben(widget->grab(), datei);
}

bool Fenstermaler_Qt::Bild_speichern(const Menüpunkt& wurzel, const Text& datei) {
    return schreiben(Menübild(wurzel), datei);
}

bool Fenstermaler_Qt::Bild_speichern(const Meldungsfeld& feld, const Text& datei) {
    const auto kasten = Meldungskasten(feld, nullptr);
    kasten->show();
    return schreiben(kasten->grab(), datei);
}

bool Fenstermaler_Qt::Bild_speichern(const Eingabefeld& feld, const Text& datei) {
    const auto kasten = Eingabekasten(feld.text, feld.titel, feld.vorgabe, nullptr);
    kasten->show();
    return schreiben(kasten->grab(), datei);
}

QPoint Fenstermaler_Qt::Menüplatz() const { return innen_->umfeld.menüplatz.value_or(QCursor::pos()); }

QWidget* Fenstermaler_Qt::Widget(Fenster& fenster) const { return innen_->umfeld.widget(fenster); }

QWidget* Fenstermaler_Qt::Widget(const Element& element) const {
    const Fensterwidget* fenster = innen_->umfeld.widget(element.fenster());
    const Bauteil* teil = fenster == nullptr ? nullptr : fenster->bauteil(element);
    return teil == nullptr ? nullptr : teil->widget();
}

}  // namespace tonkartei
