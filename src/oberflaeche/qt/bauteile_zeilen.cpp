// Lists, drop-down lists, tab strips.
#include <QComboBox>
#include <QListView>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTabBar>

#include "oberflaeche/hand.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/qt/bauteile.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/masse.hpp"
#include "oberflaeche/qt/umrechnung.hpp"
#include "oberflaeche/qt/widgets.hpp"
#include "oberflaeche/qt/zeilenmodell.hpp"

namespace tonkartei {
namespace {

// Of a line that begins with a row of dashes the end is what matters: the dashes give way to it.
class Zeilenmaler : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& zeile) const override {
        QStyledItemDelegate::initStyleOption(option, zeile);
        if (option->text.startsWith(QLatin1String("----------"))) option->textElideMode = Qt::ElideLeft;
    }
};

class Listen_Bauteil : public Bauteil {
public:
    Listen_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Listenfeld& liste)
        : Bauteil(umfeld, fenster, liste), liste_(liste), modell_(liste), ansicht_(new Listenbild) {
        ansicht_->setModel(&modell_);
        ansicht_->setItemDelegate(new Zeilenmaler(ansicht_));
        ansicht_->setUniformItemSizes(true);
        ansicht_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        ansicht_->setSelectionMode(QAbstractItemView::SingleSelection);
        ansicht_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        ansicht_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        ansicht_->setAutoScroll(false);  // the model moves its first line as far as a choice needs
        ansicht_->setTabKeyNavigation(false);
        ansicht_->setContextMenuPolicy(Qt::NoContextMenu);
        ansicht_->setFrameShape(QFrame::StyledPanel);
        aufnehmen(ansicht_, ansicht_->viewport());
        QObject::connect(ansicht_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                         [this](const QModelIndex& neu) {
                             if (!neu.isValid()) return;
                             umfeld_.von_Hand([&] {
                                 // By a page or a letter: the mouse and the other keys do not come this way.
                                 if (liste_.wählt_erst_auf_Return)
                                     liste_.markieren(neu.row());
                                 else
                                     Hand::wählen(liste_, neu.row());
                             });
                         });
        QObject::connect(ansicht_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int neu) {
            if (umfeld_.hört()) liste_.erste(neu);
        });
    }
    ~Listen_Bauteil() override { delete ansicht_.data(); }

private:
    int Zeile_an(QPoint stelle) const override { return ansicht_->indexAt(stelle).row(); }
    QRect Platz_von(int zeile) const override {
        const QRect platz = zeile < 0 ? QRect() : ansicht_->visualRect(modell_.index(zeile));
        return platz.intersects(ansicht_->viewport()->rect()) ? platz : QRect(0, 0, 1, 1);
    }

    void gedrückt(QPoint stelle) override {
        const int zeile = Zeile_an(stelle);
        if (zeile >= 0) umfeld_.von_Hand([&] { Hand::wählen(liste_, zeile); });
    }

    void Aussehen_zeigen() override {
        Bauteil::Aussehen_zeigen();
        ansicht_->leertext = Anzeigeabsätze(liste_.leertext());
        ansicht_->viewport()->update();
        const int höhe = Zeilenhöhe_Pixel(liste_.schrift());
        if (höhe == zeilenhöhe_) return;
        zeilenhöhe_ = höhe;
        modell_.Zeilenhöhe(höhe);
        ansicht_->doItemsLayout();
    }

    void Zeilen_zeigen() override {
        modell_.erneuern();
        ansicht_->doItemsLayout();
    }

    void Lage_zeigen() override {
        Bauteil::Lage_zeigen();
        Wert_zeigen();
    }

    void Wert_zeigen() override {
        const int gewählt = liste_.gewählt();
        auto* wahl = ansicht_->selectionModel();
        if (gewählt < 0 || gewählt >= modell_.rowCount()) {
            wahl->clear();
        } else if (wahl->currentIndex().row() != gewählt || !wahl->isRowSelected(gewählt)) {
            wahl->setCurrentIndex(modell_.index(gewählt), QItemSelectionModel::ClearAndSelect);
        }
        QScrollBar& leiste = *ansicht_->verticalScrollBar();
        leiste.setValue(liste_.erste());
        if (!ansicht_->isVisible()) return;
        // The model counts the lines by the height alone; a last one that is cut by the frame is brought in here.
        if (gewählt >= 0 && gewählt != gezeigte_Wahl_ && leiste.value() <= gewählt)
            ansicht_->scrollTo(modell_.index(gewählt), QAbstractItemView::EnsureVisible);
        gezeigte_Wahl_ = gewählt;
        liste_.erste(leiste.value());
    }

    Listenfeld& liste_;
    Zeilenmodell modell_;
    QPointer<Listenbild> ansicht_;
    int zeilenhöhe_ = 0;
    int gezeigte_Wahl_ = -1;
};

class Auswahl_Bauteil : public Bauteil {
public:
    Auswahl_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Auswahlfeld& auswahl)
        : Bauteil(umfeld, fenster, auswahl), auswahl_(auswahl), modell_(auswahl), feld_(new QComboBox) {
        feld_->setModel(&modell_);
        feld_->setMaxVisibleItems(20);
        feld_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        aufnehmen(feld_);
        QObject::connect(feld_, &QComboBox::activated, this,
                         [this](int zeile) { umfeld_.von_Hand([&] { Hand::wählen(auswahl_, zeile); }); });
    }
    ~Auswahl_Bauteil() override { delete feld_.data(); }

private:
    void Zeilen_zeigen() override { modell_.erneuern(); }
    void Wert_zeigen() override { feld_->setCurrentIndex(auswahl_.gewählt()); }
    bool klickt_selbst() const override { return true; }

    Auswahlfeld& auswahl_;
    Zeilenmodell modell_;
    QPointer<QComboBox> feld_;
};

class Reiter_Bauteil : public Bauteil {
public:
    Reiter_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Reiter& reiter)
        : Bauteil(umfeld, fenster, reiter), reiter_(reiter), leiste_(new Reiterbild) {
        for (const Text& tab : reiter.tabs()) leiste_->addTab(Anzeigetext(tab));
        aufnehmen(leiste_);
        QObject::connect(leiste_, &QTabBar::currentChanged, this, [this](int tab) {
            if (tab >= 0) umfeld_.von_Hand([&] { Hand::wählen(reiter_, tab); });
        });
    }

private:
    void Wert_zeigen() override { leiste_->setCurrentIndex(reiter_.wert()); }
    bool malt_Grund_nicht() const override { return true; }
    bool klickt_selbst() const override { return true; }

    Reiter& reiter_;
    QTabBar* leiste_;
};

}  // namespace

Bauteil_Zeiger Liste_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Listen_Bauteil>(umfeld, fenster, static_cast<Listenfeld&>(element));
}

Bauteil_Zeiger Auswahl_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Auswahl_Bauteil>(umfeld, fenster, static_cast<Auswahlfeld&>(element));
}

Bauteil_Zeiger Reiter_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Reiter_Bauteil>(umfeld, fenster, static_cast<Reiter&>(element));
}

}  // namespace tonkartei
