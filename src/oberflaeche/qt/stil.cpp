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
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/schieberbild.hpp"
#include "oberflaeche/qt/stil_teile.hpp"

namespace tonkartei {
namespace {

void Knopf_malen(const QStyleOption& option, QPainter& maler, bool vorgabe) {
    const bool aktiv = hat(option, QStyle::State_Enabled);
    const bool gedrückt = hat(option, QStyle::State_Sunken) || hat(option, QStyle::State_On);
    const bool darüber = aktiv && hat(option, QStyle::State_MouseOver);
    const bool fokus = aktiv && hat(option, QStyle::State_HasFocus);
    const Töne ton = Töne::von(option.palette);
    QColor füllung = option.palette.color(QPalette::Button);
    if (!aktiv)
        füllung = ton.Grund;
    else if (gedrückt)
        füllung = füllung == ton.Feld ? ton.gedrückt : füllung.darker(115);
    else if (darüber)
        füllung = füllung == ton.Feld ? ton.Akzent_hell : füllung;
    const QColor linie = !aktiv ? ton.Linie_zart : fokus || darüber || vorgabe ? ton.Akzent : ton.Linie;
    Tafel_malen(maler, QRectF(option.rect), füllung, linie);
    if (fokus) Tafel_malen(maler, QRectF(option.rect).adjusted(1, 1, -1, -1), Qt::transparent, linie, 3);
}

void Kästchen_malen(const QStyleOption& option, QPainter& maler, bool rund) {
    const bool aktiv = hat(option, QStyle::State_Enabled);
    const bool an = hat(option, QStyle::State_On);
    const bool darüber = aktiv && (hat(option, QStyle::State_MouseOver) || hat(option, QStyle::State_HasFocus));
    const double kante = std::min(option.rect.width(), option.rect.height());
    const QRectF platz(QRectF(option.rect).center() - QPointF(kante / 2, kante / 2), QSizeF(kante, kante));
    const Töne ton = Töne::von(option.palette);
    const QColor füllung = !aktiv                              ? (an ? ton.blass : ton.Grund)
                           : hat(option, QStyle::State_Sunken) ? (an ? ton.Akzent_dunkel : ton.gedrückt)
                           : an                                ? ton.Akzent
                                                               : ton.Feld;
    const QColor linie = !aktiv ? (an ? ton.blass : ton.Linie_zart) : an || darüber ? ton.Akzent : ton.Kante;
    Tafel_malen(maler, platz, füllung, linie, rund ? kante / 2 : 3);
    if (!an) return;
    const Sicherung sicherung(maler);
    maler.translate(platz.topLeft());
    maler.scale(kante / 14, kante / 14);
    if (rund) {
        maler.setPen(Qt::NoPen);
        maler.setBrush(ton.auf_Akzent);
        maler.drawEllipse(QPointF(7, 7), 2.7, 2.7);
    } else {
        maler.setPen(QPen(ton.auf_Akzent, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        maler.drawPolyline(QPolygonF({{3.6, 7.2}, {6, 9.7}, {10.5, 4.4}}));
    }
}

QColor Zeichenfarbe(const QStyleOption& option) {
    const Töne ton = Töne::von(option.palette);
    return hat(option, QStyle::State_Enabled) ? ton.Zeichen : ton.Linie;
}

void Reiter_malen(const QStyleOptionTab& option, QPainter& maler) {
    const bool gewählt = hat(option, QStyle::State_Selected);
    const bool darüber = hat(option, QStyle::State_Enabled) && hat(option, QStyle::State_MouseOver);
    const QRectF platz(option.rect);
    const Töne ton = Töne::von(option.palette);
    const Sicherung sicherung(maler);
    if (darüber && !gewählt) {
        QPainterPath pfad;
        pfad.addRoundedRect(platz.adjusted(2, 2, -2, 6), 4, 4);
        maler.setClipRect(platz);
        maler.fillPath(pfad, ton.Akzent_hell);
    }
    maler.setRenderHint(QPainter::Antialiasing, false);
    maler.fillRect(QRectF(platz.left(), platz.bottom() - 1, platz.width(), 1), ton.Linie);
    if (gewählt) maler.fillRect(QRectF(platz.left() + 2, platz.bottom() - 3, platz.width() - 4, 3), ton.Akzent);
    if (hat(option, QStyle::State_HasFocus)) Tafel_malen(maler, platz.adjusted(3, 3, -3, -5), Qt::transparent, ton.Linie, 3);
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
                Tafel_malen(*maler, QRectF(option->rect), option->palette.color(QPalette::Button),
                            Töne::von(option->palette).Linie_zart);
            return;
        case PE_FrameDefaultButton:
        case PE_FrameFocusRect: return;  // the frames themselves show the focus
        case PE_PanelLineEdit: {
            // Within a spin box, which has a frame of its own.
            if (widget != nullptr && qobject_cast<const QAbstractSpinBox*>(widget->parentWidget()) != nullptr) return;
            const bool aktiv = hat(*option, State_Enabled);
            const bool fokus = aktiv && hat(*option, State_HasFocus);
            const Töne ton = Töne::von(option->palette);
            const QColor füllung = aktiv && !hat(*option, State_ReadOnly) ? option->palette.color(QPalette::Base) : ton.Wert;
            Tafel_malen(*maler, QRectF(option->rect), füllung, fokus ? ton.Akzent : aktiv ? ton.Linie : ton.Linie_zart, 3);
            return;
        }
        case PE_FrameLineEdit: return;  // drawn with the panel
        case PE_Frame:
        case PE_FrameTabWidget: {
            const bool fokus = hat(*option, State_HasFocus);
            const Töne ton = Töne::von(option->palette);
            Tafel_malen(*maler, QRectF(option->rect), Qt::transparent, fokus ? ton.Akzent : ton.Linie, 2);
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
        case CE_ProgressBarGroove: {
            const Töne ton = Töne::von(option->palette);
            Tafel_malen(*maler, QRectF(option->rect), ton.Feld, ton.Linie);
            return;
        }
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

int Stil::pixelMetric(PixelMetric was, const QStyleOption* option, const QWidget* widget) const {
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

QRect Stil::subControlRect(ComplexControl was, const QStyleOptionComplex* option, SubControl teil,
                           const QWidget* widget) const {
    if (was == CC_Slider && (teil == SC_SliderHandle || teil == SC_SliderGroove)) {
        const auto* regler = qstyleoption_cast<const QStyleOptionSlider*>(option);
        const auto* bild = dynamic_cast<const Schieberbild*>(widget);
        if (regler != nullptr && bild != nullptr && bild->griffig)
            return teil == SC_SliderHandle ? bild->Griff(*regler) : option->rect;
    }
    return QProxyStyle::subControlRect(was, option, teil, widget);
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
        default: return QProxyStyle::styleHint(was, option, widget, zurück);
    }
}

QIcon Stil::standardIcon(StandardPixmap was, const QStyleOption* option, const QWidget* widget) const {
    const QColor akzent = Töne::von(option == nullptr ? QApplication::palette() : option->palette).Akzent;
    switch (was) {
        case SP_MessageBoxInformation: return Bildsymbol("auskunft", akzent, {});
        case SP_MessageBoxQuestion: return Bildsymbol("frage", akzent, {});
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
