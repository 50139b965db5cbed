#include "oberflaeche/qt/stil.hpp"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

#include "oberflaeche/qt/bilder.hpp"
#include "oberflaeche/qt/toene.hpp"
#include "oberflaeche/qt/widgets.hpp"

namespace tonkartei {
namespace {

bool hat(const QStyleOption& option, QStyle::StateFlag flagge) { return option.state.testFlag(flagge); }

struct Sicherung {
    QPainter& maler;
    explicit Sicherung(QPainter& m) : maler(m) {
        maler.save();
        maler.setRenderHint(QPainter::Antialiasing);
    }
    ~Sicherung() { maler.restore(); }
    Sicherung(const Sicherung&) = delete;
    Sicherung& operator=(const Sicherung&) = delete;
};

void Knopf_malen(const QStyleOption& option, QPainter& maler, bool vorgabe) {
    const bool aktiv = hat(option, QStyle::State_Enabled);
    const bool gedrückt = hat(option, QStyle::State_Sunken) || hat(option, QStyle::State_On);
    const bool darüber = aktiv && hat(option, QStyle::State_MouseOver);
    const bool fokus = aktiv && hat(option, QStyle::State_HasFocus);
    const Töne t = Töne::von(option.palette);
    const QColor üblich = Farbtafel(t).color(QPalette::Button);
    QColor füllung = option.palette.color(QPalette::Button);
    if (!aktiv)
        füllung = t.Grund;
    else if (gedrückt)
        füllung = füllung == üblich ? t.gedrückt : füllung.darker(115);
    else if (darüber)
        füllung = füllung == üblich ? t.Akzent_hell : füllung;
    const QColor linie = !aktiv ? t.Linie_zart : fokus || darüber || vorgabe ? t.Akzent : t.Linie;
    Tafel_malen(maler, QRectF(option.rect), füllung, linie);
    if (fokus) Tafel_malen(maler, QRectF(option.rect).adjusted(1, 1, -1, -1), Qt::transparent, linie, 3);
}

void Kästchen_malen(const QStyleOption& option, QPainter& maler, bool rund) {
    const bool aktiv = hat(option, QStyle::State_Enabled);
    const bool an = hat(option, QStyle::State_On);
    const bool darüber = aktiv && (hat(option, QStyle::State_MouseOver) || hat(option, QStyle::State_HasFocus));
    const double kante = std::min(option.rect.width(), option.rect.height());
    const QRectF platz(QRectF(option.rect).center() - QPointF(kante / 2, kante / 2), QSizeF(kante, kante));
    const Töne t = Töne::von(option.palette);
    const QColor füllung = !aktiv                              ? (an ? t.blass : t.Grund)
                           : hat(option, QStyle::State_Sunken) ? (an ? t.Akzent_dunkel : t.gedrückt)
                           : an                                ? t.Akzent
                                                               : t.Feld;
    const QColor linie = !aktiv ? (an ? t.blass : t.Linie_zart) : an || darüber ? t.Akzent : t.Kante;
    Tafel_malen(maler, platz, füllung, linie, rund ? kante / 2 : 3);
    if (!an) return;
    const Sicherung sicherung(maler);
    maler.translate(platz.topLeft());
    maler.scale(kante / 14, kante / 14);
    if (rund) {
        maler.setPen(Qt::NoPen);
        maler.setBrush(t.Haken);
        maler.drawEllipse(QPointF(7, 7), 2.7, 2.7);
    } else {
        maler.setPen(QPen(t.Haken, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        maler.drawPolyline(QPolygonF({{3.6, 7.2}, {6, 9.7}, {10.5, 4.4}}));
    }
}

// An angle in the middle of the area: 0 points down, 1 left, 2 up, 3 right.
void Winkel_malen(QPainter& maler, const QRectF& platz, int richtung, const QColor& farbe) {
    const Sicherung sicherung(maler);
    maler.setPen(QPen(farbe, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    maler.setBrush(Qt::NoBrush);
    maler.translate(platz.center());
    maler.rotate(90 * richtung);
    maler.drawPolyline(QPolygonF({{-3.2, -1.6}, {0, 1.8}, {3.2, -1.6}}));
}

QColor Zeichenfarbe(const QStyleOption& option) {
    const Töne t = Töne::von(option.palette);
    return hat(option, QStyle::State_Enabled) ? t.Zeichen : t.Linie;
}

// The grip of a mixing desk, and a groove with marks; a groove or a way of the slider's own colours says something of its
// own.
void Pultregler_malen(QPainter& maler, const QStyleOptionSlider& option, const QRectF& bahn, const QRectF& griff,
                      const Schieberfarben& farben, bool betont) {
    const Töne t = Töne::von(option.palette);
    const bool liegend = option.orientation == Qt::Horizontal;
    const bool aktiv = hat(option, QStyle::State_Enabled);
    maler.setPen(QPen(t.Linie_zart, 1));
    for (int strich = 0; strich <= 10; ++strich) {
        const double lang = strich % 5 == 0 ? 9 : 5;
        const QPointF ort = liegend ? QPointF(bahn.left() + bahn.width() * strich / 10, bahn.center().y())
                                    : QPointF(bahn.center().x(), bahn.top() + bahn.height() * strich / 10);
        const QPointF weg = liegend ? QPointF(0, lang) : QPointF(lang, 0);
        maler.drawLine(ort - weg, ort + weg);
    }
    Tafel_malen(maler, liegend ? bahn.adjusted(0, -1, 0, 1) : bahn.adjusted(-1, 0, 1, 0),
                farben.Rinne.isValid() ? farben.Rinne : t.Feld, t.Linie_zart, 3);
    Tafel_malen(maler, griff.adjusted(1, 1, -1, -1), hat(option, QStyle::State_Sunken) && aktiv ? t.Griff_unten : t.Griff,
                betont ? t.Akzent : t.Grund, 4);
    maler.setPen(QPen(aktiv ? t.Schrift : t.blass, 2));
    if (liegend)
        maler.drawLine(QPointF(griff.center().x(), griff.top() + 5), QPointF(griff.center().x(), griff.bottom() - 5));
    else
        maler.drawLine(QPointF(griff.left() + 5, griff.center().y()), QPointF(griff.right() - 5, griff.center().y()));
}

void Schieber_malen(const QProxyStyle& stil, const QStyleOptionSlider& option, QPainter& maler, const QWidget* widget) {
    const bool aktiv = hat(option, QStyle::State_Enabled);
    const QRectF rinne(stil.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, widget));
    const QRectF griff(stil.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, widget));
    const auto* eigener = dynamic_cast<const Schieberbild*>(widget);
    const Schieberfarben farben = eigener == nullptr ? Schieberfarben{} : eigener->farben;
    const bool griffig = eigener != nullptr && eigener->griffig;
    const Töne t = Töne::von(option.palette);
    const Sicherung sicherung(maler);
    maler.setPen(Qt::NoPen);
    const double halbe_Bahn = griffig ? 3 : farben.Rinne.isValid() ? 4 : 2;
    QRectF bahn, gefüllt;
    if (option.orientation == Qt::Horizontal) {
        bahn = QRectF(rinne.left() + 1, rinne.center().y() - halbe_Bahn, rinne.width() - 2, 2 * halbe_Bahn);
        gefüllt = bahn;
        if (option.upsideDown)
            gefüllt.setLeft(griff.center().x());
        else
            gefüllt.setRight(griff.center().x());
    } else {
        bahn = QRectF(rinne.center().x() - halbe_Bahn, rinne.top() + 1, 2 * halbe_Bahn, rinne.height() - 2);
        gefüllt = bahn;
        if (option.upsideDown)
            gefüllt.setTop(griff.center().y());
        else
            gefüllt.setBottom(griff.center().y());
    }
    const bool betont = aktiv && (hat(option, QStyle::State_HasFocus) || hat(option, QStyle::State_MouseOver) ||
                                  option.activeSubControls.testFlag(QStyle::SC_SliderHandle));
    if (griffig) return Pultregler_malen(maler, option, bahn, griff, farben, betont);
    if (farben.Rinne.isValid()) {
        Tafel_malen(maler, bahn, farben.Rinne, t.Linie, halbe_Bahn);
    } else {
        maler.setBrush(t.Linie);
        maler.drawRoundedRect(bahn, 2, 2);
    }
    maler.setPen(Qt::NoPen);
    maler.setBrush(farben.Weg.isValid() ? farben.Weg : aktiv ? t.Akzent : t.blass);
    maler.drawRoundedRect(farben.Rinne.isValid() ? gefüllt.adjusted(1, 1, -1, -1) : gefüllt, 2, 2);
    const double halb = std::min(griff.width(), griff.height()) / 2 - 1;
    maler.setPen(QPen(!aktiv ? t.Linie : t.Akzent, betont ? 2 : 1.3));
    maler.setBrush(hat(option, QStyle::State_Sunken) && aktiv ? t.gedrückt : t.Feld);
    maler.drawEllipse(griff.center(), halb, halb);
}

void Bildlauf_malen(const QProxyStyle& stil, const QStyleOptionSlider& option, QPainter& maler, const QWidget* widget) {
    const bool liegend = option.orientation == Qt::Horizontal;
    const bool beweglich = option.maximum > option.minimum && hat(option, QStyle::State_Enabled);
    const bool eigener_Grund = widget != nullptr && widget->autoFillBackground();
    const Töne t = Töne::von(option.palette);
    maler.fillRect(option.rect, eigener_Grund ? option.palette.color(QPalette::Window) : t.Rinne);
    const auto teil = [&](QStyle::SubControl was) {
        return QRectF(stil.subControlRect(QStyle::CC_ScrollBar, &option, was, widget));
    };
    const QColor zeichen = beweglich ? t.Zeichen : t.Linie;
    Winkel_malen(maler, teil(QStyle::SC_ScrollBarSubLine), liegend ? 1 : 2, zeichen);
    Winkel_malen(maler, teil(QStyle::SC_ScrollBarAddLine), liegend ? 3 : 0, zeichen);
    if (!beweglich) return;
    const bool griff = option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    const QColor farbe = !griff ? t.Griff : hat(option, QStyle::State_Sunken) ? t.Griff_unten : t.Griff_betont;
    const QRectF schieber =
        teil(QStyle::SC_ScrollBarSlider).adjusted(liegend ? 0 : 3, liegend ? 3 : 0, liegend ? 0 : -3, liegend ? -3 : 0);
    const double rundung = std::min(schieber.width(), schieber.height()) / 2;
    const Sicherung sicherung(maler);
    maler.setPen(Qt::NoPen);
    maler.setBrush(farbe);
    maler.drawRoundedRect(schieber, rundung, rundung);
}

void Reiter_malen(const QStyleOptionTab& option, QPainter& maler) {
    const bool gewählt = hat(option, QStyle::State_Selected);
    const bool darüber = hat(option, QStyle::State_Enabled) && hat(option, QStyle::State_MouseOver);
    const QRectF platz(option.rect);
    const Töne t = Töne::von(option.palette);
    const Sicherung sicherung(maler);
    if (darüber && !gewählt) {
        QPainterPath pfad;
        pfad.addRoundedRect(platz.adjusted(2, 2, -2, 6), 4, 4);
        maler.setClipRect(platz);
        maler.fillPath(pfad, t.Akzent_hell);
    }
    maler.setRenderHint(QPainter::Antialiasing, false);
    maler.fillRect(QRectF(platz.left(), platz.bottom() - 1, platz.width(), 1), t.Linie);
    if (gewählt) maler.fillRect(QRectF(platz.left() + 2, platz.bottom() - 3, platz.width() - 4, 3), t.Akzent);
    if (hat(option, QStyle::State_HasFocus)) Tafel_malen(maler, platz.adjusted(3, 3, -3, -5), Qt::transparent, t.Linie, 3);
}

void Balken_malen(const QStyleOptionProgressBar& option, QPainter& maler) {
    const double spanne = option.maximum - option.minimum;
    if (spanne <= 0 || option.progress <= option.minimum) return;
    const Sicherung sicherung(maler);
    QRectF gefüllt = QRectF(option.rect).adjusted(1, 1, -1, -1);
    QPainterPath form;
    form.addRoundedRect(gefüllt, 3, 3);
    gefüllt.setWidth(gefüllt.width() * (option.progress - option.minimum) / spanne);
    maler.setClipRect(gefüllt);
    maler.fillPath(form, Töne::von(option.palette).Akzent);
}

}  // namespace

Stil::Stil() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void Tafel_malen(QPainter& maler, const QRectF& platz, const QColor& füllung, const QColor& linie, double rundung) {
    const Sicherung sicherung(maler);
    maler.setPen(QPen(linie, 1));
    maler.setBrush(füllung);
    maler.drawRoundedRect(platz.adjusted(0.5, 0.5, -0.5, -0.5), rundung, rundung);
}

void Stil::drawPrimitive(PrimitiveElement was, const QStyleOption* option, QPainter* maler, const QWidget* widget) const {
    const Töne t = Töne::von(option->palette);
    switch (was) {
        case PE_PanelButtonCommand: {
            const auto* knopf = qstyleoption_cast<const QStyleOptionButton*>(option);
            Knopf_malen(*option, *maler, knopf != nullptr && knopf->features.testFlag(QStyleOptionButton::DefaultButton));
            return;
        }
        case PE_PanelButtonTool:
            if (hat(*option, State_Enabled) &&
                (hat(*option, State_MouseOver) || hat(*option, State_Sunken) || hat(*option, State_On)))
                Knopf_malen(*option, *maler, false);
            else
                Tafel_malen(*maler, QRectF(option->rect), option->palette.color(QPalette::Button), t.Linie_zart);
            return;
        case PE_FrameDefaultButton:
        case PE_FrameFocusRect: return;  // the frames themselves show the focus
        case PE_PanelLineEdit: {
            // Within a spin box, which has a frame of its own.
            if (widget != nullptr && qobject_cast<const QAbstractSpinBox*>(widget->parentWidget()) != nullptr) return;
            const bool aktiv = hat(*option, State_Enabled);
            const bool fokus = aktiv && hat(*option, State_HasFocus);
            const QColor füllung = aktiv && !hat(*option, State_ReadOnly) ? option->palette.color(QPalette::Base) : t.Wert;
            Tafel_malen(*maler, QRectF(option->rect), füllung, fokus ? t.Akzent : aktiv ? t.Linie : t.Linie_zart, 3);
            return;
        }
        case PE_FrameLineEdit: return;  // drawn with the panel
        case PE_Frame:
        case PE_FrameTabWidget: {
            const bool fokus = hat(*option, State_HasFocus);
            Tafel_malen(*maler, QRectF(option->rect), Qt::transparent, fokus ? t.Akzent : t.Linie, 2);
            return;
        }
        case PE_IndicatorCheckBox: Kästchen_malen(*option, *maler, false); return;
        case PE_IndicatorRadioButton: Kästchen_malen(*option, *maler, true); return;
        default: QProxyStyle::drawPrimitive(was, option, maler, widget);
    }
}

void Stil::drawControl(ControlElement was, const QStyleOption* option, QPainter* maler, const QWidget* widget) const {
    switch (was) {
        case CE_TabBarTabShape:
            if (const auto* reiter = qstyleoption_cast<const QStyleOptionTab*>(option)) return Reiter_malen(*reiter, *maler);
            break;
        case CE_ProgressBarGroove:
            Tafel_malen(*maler, QRectF(option->rect), Töne::von(option->palette).Feld, Töne::von(option->palette).Linie);
            return;
        case CE_ProgressBarContents:
            if (const auto* balken = qstyleoption_cast<const QStyleOptionProgressBar*>(option))
                return Balken_malen(*balken, *maler);
            break;
        default: break;
    }
    QProxyStyle::drawControl(was, option, maler, widget);
}

void Stil::drawComplexControl(ComplexControl was, const QStyleOptionComplex* option, QPainter* maler,
                              const QWidget* widget) const {
    if (const auto* regler = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
        if (was == CC_Slider) return Schieber_malen(*this, *regler, *maler, widget);
        if (was == CC_ScrollBar) return Bildlauf_malen(*this, *regler, *maler, widget);
    }
    if (const auto* auswahl = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        auswahl && was == CC_ComboBox && !auswahl->editable) {
        QStyleOption rahmen(*auswahl);
        Knopf_malen(rahmen, *maler, false);
        Winkel_malen(*maler, QRectF(subControlRect(CC_ComboBox, auswahl, SC_ComboBoxArrow, widget)), 0,
                     Zeichenfarbe(*option));
        return;
    }
    QProxyStyle::drawComplexControl(was, option, maler, widget);
}

// A slider with a large grip, which the style below does not know how to place.
QRect Stil::subControlRect(ComplexControl was, const QStyleOptionComplex* option, SubControl teil,
                           const QWidget* widget) const {
    const auto* regler = dynamic_cast<const Schieberbild*>(widget);
    const auto* schieber = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (was != CC_Slider || regler == nullptr || !regler->griffig || schieber == nullptr)
        return QProxyStyle::subControlRect(was, option, teil, widget);
    const bool liegend = schieber->orientation == Qt::Horizontal;
    const QRect ganz = option->rect;
    const int lang = Schieberbild::Griffbreite(*regler), quer = Schieberbild::Griffhöhe(*regler);
    if (teil == SC_SliderGroove)
        return liegend ? ganz.adjusted(lang / 2, 0, -lang / 2, 0) : ganz.adjusted(0, lang / 2, 0, -lang / 2);
    const int weg = (liegend ? ganz.width() : ganz.height()) - lang;
    const int ort =
        sliderPositionFromValue(schieber->minimum, schieber->maximum, schieber->sliderPosition, weg, schieber->upsideDown);
    return liegend ? QRect(ganz.left() + ort, ganz.center().y() - quer / 2, lang, quer)
                   : QRect(ganz.center().x() - quer / 2, ganz.top() + ort, quer, lang);
}

int Stil::pixelMetric(PixelMetric was, const QStyleOption* option, const QWidget* widget) const {
    if (const auto* regler = dynamic_cast<const Schieberbild*>(widget); regler != nullptr && regler->griffig) {
        if (was == PM_SliderLength) return Schieberbild::Griffbreite(*regler);
        if (was == PM_SliderThickness || was == PM_SliderControlThickness) return Schieberbild::Griffhöhe(*regler);
    }
    switch (was) {
        case PM_ScrollBarExtent: return 15;
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight: return 14;
        case PM_FocusFrameHMargin: return 5;
        case PM_MenuHMargin:
        case PM_MenuVMargin: return 4;
        case PM_TabBarTabHSpace: return 26;
        case PM_TabBarTabVSpace: return 10;
        case PM_TabBarTabShiftVertical:
        case PM_TabBarBaseOverlap: return 0;
        default: return QProxyStyle::pixelMetric(was, option, widget);
    }
}

QRect Stil::subElementRect(SubElement was, const QStyleOption* option, const QWidget* widget) const {
    const QRect platz = QProxyStyle::subElementRect(was, option, widget);
    // Texts of fields begin where those of lists and values do.
    return was == SE_LineEditContents ? platz.adjusted(2, 0, -2, 0) : platz;
}

int Stil::styleHint(StyleHint was, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* zurück) const {
    switch (was) {
        case SH_UnderlineShortcut: return 1;
        case SH_EtchDisabledText:
        case SH_DitherDisabledText: return 0;
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_ComboBox_Popup: return 0;
        case SH_ItemView_ShowDecorationSelected: return 1;
        // The selection looks the same when another control has the focus: the chosen line stays the chosen one.
        case SH_ItemView_ChangeHighlightOnFocus: return 0;
        // A hand on a mixing desk goes to a place at once.
        case SH_Slider_AbsoluteSetButtons:
            if (const auto* regler = dynamic_cast<const Schieberbild*>(widget); regler != nullptr && regler->griffig)
                return Qt::LeftButton;
            return QProxyStyle::styleHint(was, option, widget, zurück);
        default: return QProxyStyle::styleHint(was, option, widget, zurück);
    }
}

QIcon Stil::standardIcon(StandardPixmap was, const QStyleOption* option, const QWidget* widget) const {
    switch (was) {
        case SP_MessageBoxInformation: return Bildsymbol("auskunft", Töne::hell().Akzent, {});
        case SP_MessageBoxQuestion: return Bildsymbol("frage", Töne::hell().Akzent, {});
        default: return QProxyStyle::standardIcon(was, option, widget);
    }
}

QFont Schrift(int punkte, bool fett) {
    QFont schrift = QApplication::font();
    if (schrift.pixelSize() > 0)
        schrift.setPixelSize(std::max(1, static_cast<int>(std::lround(schrift.pixelSize() * punkte / 10.0))));
    else
        schrift.setPointSizeF(std::max(1.0, schrift.pointSizeF() * punkte / 10.0));
    schrift.setBold(fett);
    return schrift;
}

}  // namespace tonkartei
