// Push buttons, check boxes, option buttons.
#include <QAbstractButton>
#include <QEvent>
#include <QPushButton>
#include <QToolButton>
#include <utility>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/hand.hpp"
#include "oberflaeche/qt/bauteile.hpp"
#include "oberflaeche/qt/bilder.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/umrechnung.hpp"
#include "oberflaeche/qt/widgets.hpp"

namespace tonkartei {
namespace {

class Knopfartiges : public Bauteil {
public:
    Knopfartiges(Umfeld& umfeld, Fensterwidget& fenster, Element& element, QAbstractButton* knopf)
        : Bauteil(umfeld, fenster, element), knopf_(knopf) {
        aufnehmen(knopf);
        // Space and access keys hold a button like the mouse, whose own presses are heard elsewhere.
        QObject::connect(knopf, &QAbstractButton::pressed, this, [this] {
            if (!mit_Taste_ || !umfeld_.erreichbar(this->element().fenster())) return;
            gehalten_ = true;
            umfeld_.von_Hand([this] { Hand::drücken(this->element(), 0, 0); });
        });
        QObject::connect(knopf, &QAbstractButton::released, this, [this] {
            if (std::exchange(gehalten_, false)) umfeld_.von_Hand([this] { Hand::loslassen(this->element(), 0, 0); });
        });
        QObject::connect(knopf, &QAbstractButton::clicked, this, [this] {
            // Space and access keys come this way too; a blocked window does not hear them.
            if (!this->element().bedienbar() || !umfeld_.erreichbar(this->element().fenster())) return;
            umfeld_.von_Hand([this] { this->element().von_Hand_klicken(); });
        });
    }

protected:
    bool klickt_selbst() const override { return true; }
    void Aussehen_zeigen() override {
        Bauteil::Aussehen_zeigen();
        const QString text = Beschriftungstext(element());
        if (knopf_->text() != text) knopf_->setText(text);
    }
    QAbstractButton* knopf_;

    bool eventFilter(QObject* wer, QEvent* was) override {
        switch (was->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick: mit_Taste_ = false; break;
            case QEvent::KeyPress:
            case QEvent::Shortcut: mit_Taste_ = true; break;
            default: break;
        }
        return Bauteil::eventFilter(wer, was);
    }

private:
    bool mit_Taste_ = false;  // what was done to it last was done with a key
    bool gehalten_ = false;   // by a key
};

class Knopf_Bauteil : public Knopfartiges {
public:
    Knopf_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Knopf& knopf)
        : Knopfartiges(umfeld, fenster, knopf, Widget(knopf)) {}

private:
    static QAbstractButton* Widget(const Knopf& knopf) {
        if (!knopf.klein) return new QPushButton;
        auto* w = new QToolButton;
        w->setFocusPolicy(Qt::StrongFocus);
        return w;
    }
    void Aussehen_zeigen() override {
        Knopfartiges::Aussehen_zeigen();
        const auto& knopf = static_cast<const Knopf&>(element());
        if (auto* w = qobject_cast<QPushButton*>(knopf_)) w->setDefault(knopf.fenster().Vorgabeknopf == &knopf);
        const QColor farbe = knopf_->palette().color(QPalette::Active, QPalette::ButtonText);
        const QColor blass = Töne::von(knopf_->palette()).Linie;
        if (bild_ == knopf.Bild && bildfarbe_ == farbe && blass_ == blass) return;
        bild_ = knopf.Bild;
        bildfarbe_ = farbe;
        blass_ = blass;
        const QIcon bild = bild_.empty() ? QIcon() : Bildsymbol(bild_, farbe, blass);
        knopf_->setIcon(bild);
        knopf_->setIconSize(QSize(16, 16));
        if (!bild.isNull()) knopf_->setText(QString());
    }

    Text bild_;
    QColor bildfarbe_, blass_;
};

class Kasten_Bauteil : public Knopfartiges {
public:
    Kasten_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Kasten& kasten)
        : Knopfartiges(umfeld, fenster, kasten, new Kastenbild) {}

private:
    bool malt_Grund_nicht() const override { return true; }
    void Wert_zeigen() override { knopf_->setChecked(static_cast<const Kasten&>(element()).wert()); }
};

class Options_Bauteil : public Knopfartiges {
public:
    Options_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Optionsfeld& feld)
        : Knopfartiges(umfeld, fenster, feld, new Optionsbild) {
        knopf_->setAutoExclusive(false);
    }

private:
    bool malt_Grund_nicht() const override { return true; }
    void Wert_zeigen() override { knopf_->setChecked(static_cast<const Optionsfeld&>(element()).wert()); }
};

}  // namespace

Bauteil_Zeiger Knopf_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Knopf_Bauteil>(umfeld, fenster, static_cast<Knopf&>(element));
}

Bauteil_Zeiger Kasten_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Kasten_Bauteil>(umfeld, fenster, static_cast<Kasten&>(element));
}

Bauteil_Zeiger Option_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Options_Bauteil>(umfeld, fenster, static_cast<Optionsfeld&>(element));
}

}  // namespace tonkartei
