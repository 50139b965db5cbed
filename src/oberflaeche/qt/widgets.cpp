#include "oberflaeche/qt/widgets.hpp"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

#include "oberflaeche/qt/bilder.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/stil.hpp"
#include "oberflaeche/qt/umrechnung.hpp"
#include "oberflaeche/qt/ziffern.hpp"

namespace tonkartei {
namespace {

constexpr int modeste_Breite = 360;  // of texts that wrap

}  // namespace

void Kastenbild::paintEvent(QPaintEvent* was) {
    const QColor schrift = palette().color(QPalette::WindowText);
    if (isEnabled() && Kontrast(schrift, palette().color(QPalette::Window)) < lesbarer_Text) {
        QStyleOptionButton option;
        initStyleOption(&option);
        QRect platz = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
        platz.setWidth(fontMetrics().size(Qt::TextShowMnemonic, text()).width());
        const QColor dunkel(0x2b, 0x35, 0x3f), hell(0xf3, 0xf5, 0xf8);
        const QColor platte = abgesetzt(Kontrast(schrift, dunkel) > Kontrast(schrift, hell) ? dunkel : hell, schrift);
        QPainter maler(this);
        Tafel_malen(maler, QRectF(platz).adjusted(-3, 0, 4, 0), platte, platte, 3);
    }
    QCheckBox::paintEvent(was);
}

void Listenbild::focusInEvent(QFocusEvent* was) {
    // Not QListView's: that one makes the first line current when none is.
    QAbstractScrollArea::focusInEvent(was);
    viewport()->update();
}

void Listenbild::paintEvent(QPaintEvent* was) {
    QListView::paintEvent(was);
    if (leertext.isEmpty() || model() == nullptr || model()->rowCount() > 0) return;
    QPainter maler(viewport());
    maler.setPen(Töne::von(palette()).Zeichen);
    maler.drawText(viewport()->rect().adjusted(12, 12, -12, -12), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                   leertext);
}

Schriftbild::Schriftbild(QWidget* eltern) : QLabel(eltern) { setTextFormat(Qt::PlainText); }

void Schriftbild::zeigen(const QString& text, bool zugriff) {
    zugriff_ = zugriff;
    if (this->text() != text) setText(text);
    update();
}

QMargins Schriftbild::ränder() const { return eingerahmt ? QMargins(6, 3, 6, 3) : QMargins(0, 1, 0, 1); }

QSize Schriftbild::sizeHint() const {
    if (ziffern) return Zifferngröße(text(), fontMetrics()).grownBy(ränder());
    int flaggen = Qt::AlignLeft | (zugriff_ ? Qt::TextShowMnemonic : 0);
    const QFontMetrics maße(font());
    QRect platz = maße.boundingRect(QRect(0, 0, 1 << 20, 1 << 20), flaggen, text());
    if (wordWrap() && platz.width() > modeste_Breite)
        platz = maße.boundingRect(QRect(0, 0, modeste_Breite, 1 << 20), flaggen | Qt::TextWordWrap, text());
    const int höhe = std::max(platz.height(), maße.height());
    return QSize(platz.width() + 1, höhe).grownBy(ränder());
}

void Schriftbild::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    const Töne ton = Töne::von(palette());
    if (eingerahmt)
        Tafel_malen(maler, QRectF(rect()), füllung.isValid() ? füllung : ton.Wert, ton.Linie_zart, 3);
    else if (füllung.isValid())
        maler.fillRect(rect(), füllung);
    if (hasFocus()) Tafel_malen(maler, QRectF(rect()), Qt::transparent, ton.Akzent, 3);
    const QRect platz = rect().marginsRemoved(ränder());
    int flaggen = static_cast<int>(alignment());
    if (zugriff_) flaggen |= Qt::TextShowMnemonic;
    QString zeile = text();
    if (wordWrap())
        flaggen |= Qt::TextWordWrap;
    else if (!zeile.contains(QLatin1Char('\n')))
        zeile = fontMetrics().elidedText(zeile, Qt::ElideRight, platz.width(), flaggen);
    QPalette farben = palette();
    // On a dark ground of its own it stays readable.
    if (füllung.isValid() && Kontrast(farben.color(foregroundRole()), füllung) < lesbarer_Text)
        farben.setColor(foregroundRole(), füllung.lightnessF() < 0.5F ? Qt::white : Qt::black);
    if (ziffern)
        Ziffern_malen(maler, QRectF(platz), text(), farben.color(foregroundRole()), alignment());
    else
        style()->drawItemText(&maler, platz, flaggen, farben, isEnabled(), zeile, foregroundRole());
}

Rahmenbild::Rahmenbild(QWidget* eltern) : QGroupBox(eltern) {}

QMargins Rahmenbild::ränder(bool mit_Titel, bool deckend, int titelhöhe) {
    if (mit_Titel) return QMargins(10, titelhöhe + 12, 10, 10);
    return deckend ? QMargins(6, 6, 6, 6) : QMargins(0, 0, 0, 0);
}

void Rahmenbild::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    const bool mit_Titel = !title().isEmpty();
    if (!mit_Titel && !deckend) {
        if (füllung.isValid()) maler.fillRect(rect(), füllung);
        return;
    }
    const Töne ton = Töne::von(palette());
    const QColor grund = füllung.isValid() ? füllung : mit_Titel ? ton.Wert : ton.Grund;
    QRect tafel = rect();
    QPalette farben = palette();
    if (titelfarbe.isValid()) farben.setColor(QPalette::WindowText, titelfarbe);
    if (mit_Titel) {
        const int höhe = fontMetrics().height();
        tafel.setTop(höhe + 4);
        style()->drawItemText(&maler, QRect(2, 0, width() - 4, höhe + 2),
                              Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, farben, isEnabled(), title(),
                              QPalette::WindowText);
    }
    if (deckend) maler.fillRect(rect(), umgebung.isValid() ? umgebung : farben.color(QPalette::Window));
    Tafel_malen(maler, QRectF(tafel), grund, mit_Titel ? ton.Linie_zart : ton.Linie, mit_Titel ? 5 : 3);
}

Reiterbild::Reiterbild(QWidget* eltern) : QTabBar(eltern) {
    setExpanding(false);
    setDrawBase(false);
    setUsesScrollButtons(false);
}

void Reiterbild::paintEvent(QPaintEvent* was) {
    QPainter(this).fillRect(0, height() - 1, width(), 1, Töne::von(palette()).Linie);
    QTabBar::paintEvent(was);
}

void Bildwidget::Name(const Text& name) {
    if (name_ == name) return;
    name_ = name;
    update();
}

void Bildwidget::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    const Töne ton = Töne::von(palette());
    if (eingerahmt)
        Tafel_malen(maler, QRectF(rect()), füllung.isValid() ? füllung : ton.Feld, ton.Linie, 3);
    else if (füllung.isValid())
        maler.fillRect(rect(), füllung);
    if (hasFocus()) Tafel_malen(maler, QRectF(rect()), Qt::transparent, ton.Akzent, 3);
    Raster_malen(maler);
    if (!name_.empty()) Bild_malen(maler, QRectF(rect()), name_, palette().color(QPalette::WindowText));
    Linien_malen(maler);
}

void Bildwidget::Linien(std::vector<Linie> linien) {
    linien_ = std::move(linien);
    update();
}

void Bildwidget::Raster_malen(QPainter& maler) const {
    QColor zart = Töne::von(palette()).Linie_zart;
    zart.setAlpha(90);  // it bounds nothing
    maler.setPen(zart);
    for (int i = 1; i < spalten; ++i) maler.drawLine(width() * i / spalten, 1, width() * i / spalten, height() - 2);
    for (int i = 1; i < zeilen; ++i) maler.drawLine(1, height() * i / zeilen, width() - 2, height() * i / zeilen);
}

// What joins in one colour is one stroke with round corners, above a tint of its colour that reaches down to the ground.
void Bildwidget::Linien_malen(QPainter& maler) const {
    // A stroke along an edge shows all of its width.
    const auto punkt = [this](int x, int y) {
        const double Twips = Twips_je_Pixel;
        return QPointF(x / Twips, std::clamp(y / Twips, 1.0, std::max(1.0, height() - 1.0)));
    };
    maler.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < linien_.size();) {
        const Linie& erste = linien_[i];
        QPainterPath zug(punkt(erste.x1, erste.y1));
        QPointF ende;
        const std::size_t anfang = i;
        do {
            ende = punkt(linien_[i].x2, linien_[i].y2);
            zug.lineTo(ende);
            ++i;
        } while (i < linien_.size() && linien_[i].farbe == erste.farbe && linien_[i].x1 == linien_[i - 1].x2 &&
                 linien_[i].y1 == linien_[i - 1].y2);
        const QColor grund = füllung.isValid() ? füllung : Töne::von(palette()).Feld;
        const QColor farbe = abgesetzt(Qt_Farbe(erste.farbe), grund, erkennbare_Linie);
        if (i - anfang > 1) {
            QPainterPath fläche = zug;
            fläche.lineTo(ende.x(), height());
            fläche.lineTo(zug.elementAt(0).x, height());
            fläche.closeSubpath();
            QColor hauch = farbe;
            hauch.setAlpha(24);
            maler.fillPath(fläche, hauch);
        }
        maler.strokePath(zug, QPen(farbe, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
}

void Diagrammbalken::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(abgesetzt(füllung, Töne::von(palette()).Feld, erkennbare_Linie));
    const double rundung = std::min(2.5, width() / 2.0);
    maler.drawRoundedRect(QRectF(rect()), rundung, rundung);
}

}  // namespace tonkartei
