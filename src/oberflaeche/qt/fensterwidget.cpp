#include "oberflaeche/qt/fensterwidget.hpp"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QPainter>
#include <QShortcut>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <set>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/hand.hpp"
#include "oberflaeche/qt/ablage.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/menueleiste.hpp"
#include "oberflaeche/qt/rollflaeche.hpp"
#include "oberflaeche/qt/schleier.hpp"
#include "oberflaeche/qt/umrechnung.hpp"
#include "oberflaeche/qt/zugang.hpp"

namespace tonkartei {
namespace {

constexpr unsigned alles = Änderung_Aussehen | Änderung_Lage | Änderung_Wert | Änderung_Zeilen;

// The posted call to show what was noted.
QEvent::Type Abgleich() {
    static const int art = QEvent::registerEventType();
    return static_cast<QEvent::Type>(art);
}

Qt::WindowFlags Flaggen(const Fenster& fenster) {
    if (fenster.Elternfenster() != nullptr) return Qt::Widget;
    Qt::WindowFlags f = fenster.eigenständig ? Qt::Window : Qt::Dialog;
    if (fenster.ohne_Rand) return f | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    f |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if (fenster.eigenständig) f |= Qt::WindowMinimizeButtonHint;
    if (fenster.größenveränderlich) f |= Qt::WindowMaximizeButtonHint;
    if (fenster.immer_oben()) f |= Qt::WindowStaysOnTopHint;
    return f;
}

}  // namespace

Fensterwidget::Fensterwidget(Umfeld& umfeld, Fenster& fenster)
    : umfeld_(umfeld),
      fenster_(fenster),
      teil_(fenster.Elternfenster() != nullptr),
      rolle_(teil_ ? nullptr : new Rollfläche(Rollfläche::Art::ganz, this)),
      boden_(teil_ ? new QWidget(this) : rolle_->Boden()),
      flaggen_(Flaggen(fenster)) {
    setWindowFlags(flaggen_);
    setObjectName(Anzeigetext(fenster.Name()));
    setAcceptDrops(true);
    setMouseTracking(true);
    boden_->setMouseTracking(true);
    if (const Menü* menü = fenster.menü()) {
        menü_ = std::make_unique<Menüleiste>(umfeld, *menü, this);
        menü_geändert_ = true;
    }
    Kürzel_machen();
}

Fensterwidget::~Fensterwidget() {
    vergeht_ = true;
    Teile_lösen(*this);
}

void Fensterwidget::Kürzel_machen() {
    for (const auto& [taste, tat] : fenster_.Kürzel) {
        auto* kürzel = new QShortcut(QKeySequence(Anzeigetext(taste)), this);
        QObject::connect(kürzel, &QShortcut::activated, this, [this, tat = tat] {
            if (darf()) umfeld_.von_Hand(tat);
        });
    }
}

void Fensterwidget::vormerken() {
    if (vorgemerkt_) return;
    vorgemerkt_ = true;
    QCoreApplication::postEvent(this, new QEvent(Abgleich()), Qt::HighEventPriority);
}

void Fensterwidget::Fenster_merken() {
    fenster_geändert_ = true;
    // It may be loaded again, with its start values, before anything is shown.
    if (!fenster_.geladen()) alles_ = true;
    vormerken();
}

void Fensterwidget::Element_merken(Element& element, unsigned änderung) {
    if (element.art() == Elementart::Menü)
        menü_geändert_ = true;
    else
        geänderte_[&element] |= änderung;
    vormerken();
}

void Fensterwidget::Fokus_merken(Element& element) {
    fokus_ = &element;
    vormerken();
}

QWidget* Fensterwidget::Boden_für(const Element& element) const {
    const Bauteil* rahmen = element.rahmen() == nullptr ? nullptr : bauteil(*element.rahmen());
    return rahmen == nullptr ? boden_ : rahmen->Inneres();
}

Bauteil* Fensterwidget::bauteil(const Element& element) const {
    const auto eintrag = bauteile_.find(&element);
    return eintrag == bauteile_.end() ? nullptr : eintrag->second.get();
}

void Fensterwidget::Bauteile_machen() {
    const auto& elemente = fenster_.elemente();
    if (gesehene_ == elemente.size()) return;
    gesehene_ = elemente.size();
    const std::set<const Element*> da(elemente.begin(), elemente.end());
    std::erase_if(bauteile_, [&](const auto& eintrag) { return da.count(eintrag.first) == 0; });
    std::erase_if(geänderte_, [&](const auto& eintrag) { return da.count(eintrag.first) == 0; });
    for (Element* element : elemente) {
        if (bauteile_.count(element) != 0) continue;
        if (auto teil = Bauteil::machen(umfeld_, *this, *element)) {
            bauteile_.emplace(element, std::move(teil));
            geänderte_[element] = alles;
        }
    }
}

// A window that is not worth being seen yet, or was not while it was wanted: what changes on it is only noted.
bool Fensterwidget::läuft_noch_an() {
    if (gezeigt_ || !fenster_.geladen() || !fenster_.sichtbar() || fenster_.Anlauf == 0) {
        const bool blieb_aus = anlauf_.isValid() && !gezeigt_ && fenster_.geladen() && !fenster_.sichtbar();
        anlauf_.invalidate();
        return blieb_aus;
    }
    if (!anlauf_.isValid()) anlauf_.start();
    return !anlauf_.hasExpired(fenster_.Anlauf);
}

bool Fensterwidget::abgleichen() {
    if (gleicht_ab_ || umfeld_.zu_Ende) return false;
    vorgemerkt_ = false;
    if (läuft_noch_an()) return false;
    const Stille stille(umfeld_);
    if (!fenster_.geladen()) {
        geänderte_.clear();
        fokus_ = nullptr;
        alles_ = true;
        Sichtbarkeit_zeigen();
        return false;
    }
    gleicht_ab_ = true;
    Grund_zeigen();
    bool etwas = fenster_geändert_ || menü_geändert_ || alles_ || !geänderte_.empty();
    Bauteile_machen();
    if (menü_ && (menü_geändert_ || alles_)) menü_->zeigen();
    menü_geändert_ = false;
    bool neu_gereiht = false;
    if (alles_) {
        // In the order of their making, which is the order of stacking and of the tab key.
        for (Element* element : fenster_.elemente())
            if (Bauteil* teil = bauteil(*element)) teil->zeigen(alles);
        geänderte_.clear();
        neu_gereiht = fenster_geändert_ = true;
        alles_ = false;
    }
    // A list may answer with where it really scrolled to: a second round finds that unchanged.
    for (int runde = 0; runde < 3 && !geänderte_.empty(); ++runde) {
        const auto jetzt = std::move(geänderte_);
        geänderte_.clear();
        for (const auto& [element, änderung] : jetzt)
            if (Bauteil* teil = bauteil(*element)) teil->zeigen(änderung);
    }
    if (fenster_geändert_) {
        fenster_geändert_ = false;
        Fenster_zeigen();
    }
    jedes_Teil([&etwas](Fensterwidget& teil, const Element& platz) {
        // The frame may have come only now.
        if (teil.parentWidget() == nullptr) teil.fenster_geändert_ = true;
        if (!platz.fenster().geladen()) return;
        etwas = teil.abgleichen() || etwas;
    });
    if (neu_gereiht) {
        QWidget* vorheriges = nullptr;
        ganzes().Tabfolge(vorheriges);
    }
    if (fokus_ != nullptr && isVisible()) {
        const Bauteil* teil = bauteil(*fokus_);
        fokus_ = nullptr;
        if (teil != nullptr && teil->widget() != nullptr) {
            teil->widget()->setFocus(Qt::OtherFocusReason);
            if (!isActiveWindow() && QGuiApplication::applicationState() == Qt::ApplicationActive) activateWindow();
        }
    }
    if (etwas && QAccessible::isActive())
        for (const auto& [element, teil] : bauteile_) Zugangsnamen_setzen(*teil);
    gleicht_ab_ = false;
    return etwas;
}

void Fensterwidget::Fenster_zeigen() {
    if (teil_) {
        Teil_zeigen();
        return;
    }
    QString titel = Anzeigetext(fenster_.titel());
    if (!fenster_.titelzusatz().empty()) titel = Anzeigetext(fenster_.titelzusatz()) + QStringLiteral(" – ") + titel;
    if (windowTitle() != titel) setWindowTitle(titel);
    if (const Qt::WindowFlags flaggen = Flaggen(fenster_); flaggen != flaggen_) {
        flaggen_ = flaggen;
        setWindowFlags(flaggen);  // hides it; shown again below
    }
    Maße_zeigen();
    Sichtbarkeit_zeigen();
}

void Fensterwidget::Sichtbarkeit_zeigen() {
    const bool minimiert = fenster_.zustand() == Fensterzustand::minimiert;
    if (teil_ || !fenster_.sichtbar()) {
        gezeigt_ = false;
        if (umfeld_.vorderstes == &fenster_) umfeld_.vorderstes = nullptr;
        hide();
        return;
    }
    const Qt::WindowModality art = fenster_.modal() ? Qt::ApplicationModal : Qt::NonModal;
    if (windowModality() != art) {
        hide();
        setWindowModality(art);
    }
    if (minimiert != isMinimized()) setWindowState(windowState() ^ Qt::WindowMinimized);
    const bool neu = !isVisible();
    if (neu) {
        // A dialog lies above the window that is in front; nothing is blocked by the modal one that it belongs to.
        const Fenster* modal = umfeld_.ansicht.modales_Fenster();
        const Fenster* vorn = fenster_.eigenständig ? nullptr : umfeld_.vorderstes;
        const Fenster* unter = modal != nullptr && modal != &fenster_ ? modal : vorn;
        Fensterwidget* eltern = unter == nullptr || unter == &fenster_ ? nullptr : umfeld_.widget(*unter);
        winId();
        windowHandle()->setTransientParent(eltern == nullptr || !eltern->isVisible() ? nullptr : eltern->windowHandle());
        show();
    }
    gezeigt_ = true;
    const bool vorn = umfeld_.vorderes() == &fenster_;
    if (vorn && (neu || umfeld_.vorderstes != &fenster_) && !minimiert) {
        umfeld_.vorderstes = &fenster_;
        if (umfeld_.stapelt) raise();
        activateWindow();
    }
}

// The dialog that a locked window waits for: the one in front of those that came up above it.
void Fensterwidget::Wartenden_heben() {
    for (const Fenster* fenster : umfeld_.ansicht.fenster()) {
        Fensterwidget* dialog = umfeld_.widget(*fenster);
        if (dialog == nullptr || dialog == this || !dialog->isVisible() || !umfeld_.erreichbar(*fenster)) continue;
        if (fenster->Elternfenster() != nullptr) continue;
        dialog->raise();
        dialog->activateWindow();
        return;
    }
}

void Fensterwidget::Sperre_zeigen() {
    const bool wartet = !teil_ && gezeigt_ && !umfeld_.erreichbar(fenster_);
    if (wartet == (schleier_ != nullptr && !schleier_->isHidden())) return;
    if (schleier_ == nullptr) schleier_ = new Schleier(this, [this] { Wartenden_heben(); });
    schleier_->setVisible(wartet);
    schleier_->raise();
}

bool Fensterwidget::event(QEvent* was) {
    if (umfeld_.zu_Ende) return QWidget::event(was);
    if (was->type() == QEvent::WindowActivate && !teil_ && umfeld_.stapelt && umfeld_.hört() && isVisible() &&
        !umfeld_.erreichbar(fenster_))
        Wartenden_heben();
    if (was->type() == Abgleich()) {
        abgleichen();
        return true;
    }
    // What the model has changed meanwhile is on the widgets before they are painted or worked.
    if (was->type() == QEvent::UpdateRequest) Vorgemerktes_zeigen();
    if (was->type() == QEvent::WindowActivate && umfeld_.hört() && !teil_) {
        umfeld_.vorderstes = &fenster_;
        if (fenster_.sichtbar() && umfeld_.vorderes() != &fenster_) umfeld_.ansicht.Fenster_nach_vorn(fenster_);
    }
    return QWidget::event(was);
}

void Fensterwidget::closeEvent(QCloseEvent* was) {
    was->ignore();
    if (darf()) umfeld_.von_Hand([this] { fenster_.schließen(Schließgrund::Hand); });
}

void Fensterwidget::moveEvent(QMoveEvent* was) {
    QWidget::moveEvent(was);
    // A place that the model has set meanwhile wins; so does the one it keeps while minimised.
    if (teil_ || !umfeld_.hört() || fenster_geändert_ || !isVisible() || isMinimized()) return;
    const QPoint bisher(Pixel(fenster_.lage().links), Pixel(fenster_.lage().oben));
    if (pos() != bisher) umfeld_.von_Hand([this] { fenster_.von_Hand_bewegt(Twips(pos().x()), Twips(pos().y())); });
}

void Fensterwidget::changeEvent(QEvent* was) {
    QWidget::changeEvent(was);
    // What lies in it gets the palette after it.
    if (was->type() == QEvent::PaletteChange) QTimer::singleShot(0, this, [this] { neu_färben(); });
    if (was->type() != QEvent::WindowStateChange || teil_ || !umfeld_.hört() || fenster_geändert_ || !gezeigt_) return;
    const auto zustand = isMinimized() ? Fensterzustand::minimiert : Fensterzustand::normal;
    if (zustand == fenster_.zustand()) return;
    umfeld_.von_Hand([this, zustand] { fenster_.von_Hand_Zustand(zustand); });
}

void Fensterwidget::keyPressEvent(QKeyEvent* was) {
    Taste taste;
    Element* knopf = nullptr;
    if (was->key() == Qt::Key_F1 && umfeld_.hört() && umfeld_.ansicht.Hilfe) {
        umfeld_.von_Hand(umfeld_.ansicht.Hilfe);
        return;
    }
    if (darf() && Taste_aus(*was, taste)) {
        if (taste.art == Taste::Art::Return) knopf = fenster_.Vorgabeknopf;
        if (taste.art == Taste::Art::Escape) knopf = fenster_.Abbruchknopf;
    }
    if (knopf != nullptr && knopf->bedienbar())
        umfeld_.von_Hand([knopf] { Hand::klicken(*knopf); });
    else
        QWidget::keyPressEvent(was);
}

void Fensterwidget::mouseMoveEvent(QMouseEvent*) {
    if (darf()) umfeld_.von_Hand([this] { fenster_.Mausbewegung(); });
}

// Out of the window is like on its free ground: what was marked under the mouse is so no longer. A menu over it is no
// leaving.
void Fensterwidget::leaveEvent(QEvent* was) {
    QWidget::leaveEvent(was);
    if (!teil_ && darf() && QApplication::activePopupWidget() == nullptr)
        umfeld_.von_Hand([this] { fenster_.Mausbewegung(); });
}

void Fensterwidget::dragEnterEvent(QDragEnterEvent* was) {
    if (darf() && umfeld_.gezogen == nullptr && fenster_.Dateien_abgelegt.hat_Hörer() && hat_Pfade(*was->mimeData())) {
        was->acceptProposedAction();
        umfeld_.marken.zeigen(*boden_);
    }
}

void Fensterwidget::dragLeaveEvent(QDragLeaveEvent*) { umfeld_.marken.verlassen(); }

void Fensterwidget::dropEvent(QDropEvent* was) {
    umfeld_.marken.verlassen();
    if (!darf() || umfeld_.gezogen != nullptr || !fenster_.Dateien_abgelegt.hat_Hörer()) return;
    was->acceptProposedAction();
    QTimer::singleShot(0, this, [this, pfade = Pfade_aus(*was->mimeData())] {
        umfeld_.von_Hand([&] { fenster_.Dateien_abgelegt(pfade); });
    });
}

void Fensterwidget::paintEvent(QPaintEvent*) {
    if (teil_ || !fenster_.ohne_Rand) return;
    QPainter maler(this);
    maler.setPen(Töne::von(palette()).Linie);
    maler.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tonkartei
