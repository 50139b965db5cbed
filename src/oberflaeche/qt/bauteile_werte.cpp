// Text fields, sliders and scroll bars.
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <algorithm>
#include <functional>
#include <utility>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/hand.hpp"
#include "oberflaeche/qt/bauteile.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/schieberbild.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {
namespace {

class Eingabe_Bauteil : public Bauteil {
public:
    Eingabe_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Textfeld& feld)
        : Bauteil(umfeld, fenster, feld), zeile_(new QLineEdit) {
        aufnehmen(zeile_);
        if (feld.Rechtsklick.hat_Hörer()) zeile_->setContextMenuPolicy(Qt::NoContextMenu);
        // The button in it empties the field without a word of its own.
        QObject::connect(zeile_, &QLineEdit::textChanged, this, [this](const QString& neu) {
            if (neu.isEmpty()) umfeld_.von_Hand([&] { static_cast<Textfeld&>(element()).text({}); });
        });
        QObject::connect(zeile_, &QLineEdit::textEdited, this, [this](const QString& neu) {
            umfeld_.von_Hand([&] { static_cast<Textfeld&>(element()).text(aus_Qt(neu)); });
        });
    }

private:
    void Aussehen_zeigen() override {
        Bauteil::Aussehen_zeigen();
        zeile_->setClearButtonEnabled(static_cast<const Textfeld&>(element()).leerbar);
        zeile_->setReadOnly(static_cast<const Textfeld&>(element()).nur_lesen);
    }
    void Wert_zeigen() override {
        // The caret stays where it is while the user types.
        const auto& feld = static_cast<const Textfeld&>(element());
        const QString text = Anzeigetext(feld.text());
        if (zeile_->text() != text) zeile_->setText(text);
        if (std::exchange(markierungen_, feld.Markierungen()) != feld.Markierungen()) zeile_->selectAll();
    }

    QLineEdit* zeile_;
    int markierungen_ = 0;
};

// A scroll bar whose repeating rests while a handler works: a box that the handler opens takes the release of the button
// away, and the bar would go on stepping behind it.
class Bildlaufleiste : public QScrollBar {
public:
    using QScrollBar::QScrollBar;
    // `handler` tells whether the value was left as it is.
    void in_Ruhe(const std::function<bool()>& handler) {
        const SliderAction aktion = repeatAction();
        setRepeatAction(SliderNoAction);
        const QPointer<Bildlaufleiste> selbst(this);
        if (handler() && selbst != nullptr) selbst->setRepeatAction(aktion, Wiederholung_nach);
    }

private:
    static constexpr int Wiederholung_nach = 250;  // milliseconds
};

class Regler_Bauteil : public Bauteil {
public:
    Regler_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Regler& regler)
        : Bauteil(umfeld, fenster, regler), schieber_(Widget(regler)) {
        aufnehmen(schieber_);
        schieber_->setContextMenuPolicy(Qt::NoContextMenu);
        QObject::connect(schieber_, &QAbstractSlider::valueChanged, this, [this](int neu) { geschoben(neu); });
    }

private:
    void geschoben(int neu) {
        const auto schieben = [&umfeld = umfeld_, &regler = static_cast<Regler&>(element()), neu] {
            umfeld.von_Hand([&] { Hand::schieben(regler, neu); });
            return regler.wert() == neu;
        };
        if (auto* leiste = dynamic_cast<Bildlaufleiste*>(schieber_))
            leiste->in_Ruhe(schieben);
        else
            schieben();
    }
    static QAbstractSlider* Widget(const Regler& regler) {
        const auto richtung = regler.senkrecht ? Qt::Vertical : Qt::Horizontal;
        if (regler.form() == Regler::Form::Schieber) {
            auto* w = new Schieberbild(richtung);
            w->griffig = regler.griffig;
            Richtung_setzen(*w, regler);
            return w;
        }
        auto* w = new Bildlaufleiste(richtung);
        w->setFocusPolicy(Qt::StrongFocus);
        Richtung_setzen(*w, regler);
        return w;
    }
    // Keys and wheel move it where they point.
    static void Richtung_setzen(QAbstractSlider& w, const Regler& regler) {
        w.setInvertedAppearance(regler.umgekehrt);
        w.setInvertedControls(regler.umgekehrt);
    }
    void Farben_zeigen() override {
        Bauteil::Farben_zeigen();
        auto* bild = dynamic_cast<Schieberbild*>(schieber_);
        if (bild == nullptr) return;
        const auto farbe = [](Farbe eine) { return eine == Farbe_Standard ? QColor() : Qt_Farbe(eine); };
        bild->rinne = farbe(element().hintergrund());
        bild->füllung = farbe(element().farbe());
        bild->update();
    }
    void Wert_zeigen() override {
        const auto& regler = static_cast<const Regler&>(element());
        schieber_->setRange(regler.min(), regler.max());
        schieber_->setPageStep(std::max(1, (regler.max() - regler.min()) / 10));
        schieber_->setValue(regler.wert());
    }
    bool malt_Grund_nicht() const override { return static_cast<const Regler&>(element()).form() == Regler::Form::Bildlauf; }
    // Its value is its own doing; only press and release are watched.
    bool klickt_selbst() const override { return true; }

    QAbstractSlider* schieber_;
};

}  // namespace

Bauteil_Zeiger Eingabe_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Eingabe_Bauteil>(umfeld, fenster, static_cast<Textfeld&>(element));
}

Bauteil_Zeiger Regler_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Regler_Bauteil>(umfeld, fenster, static_cast<Regler&>(element));
}

}  // namespace tonkartei
