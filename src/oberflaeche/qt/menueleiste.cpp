#include "oberflaeche/qt/menueleiste.hpp"

#include <QAction>
#include <QEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPointer>
#include <QVariant>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/menue.hpp"
#include "oberflaeche/qt/umfeld.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {
namespace {

using Einträge = std::vector<std::unique_ptr<Menüpunkt>>;

QVariant verweis(Menüpunkt* punkt) { return QVariant::fromValue(static_cast<void*>(punkt)); }
Menüpunkt* punkt_von(const QAction& aktion) { return static_cast<Menüpunkt*>(aktion.data().value<void*>()); }

bool gleiche_Gestalt(const QList<QAction*>& aktionen, const Einträge& einträge) {
    if (static_cast<std::size_t>(aktionen.size()) != einträge.size()) return false;
    for (std::size_t i = 0; i < einträge.size(); ++i) {
        const QAction& aktion = *aktionen.at(static_cast<qsizetype>(i));
        if (punkt_von(aktion) != einträge[i].get() || aktion.isSeparator() != einträge[i]->ist_Strich() ||
            (aktion.menu() != nullptr) == einträge[i]->einträge().empty())
            return false;
    }
    return true;
}

// `ziel` is a QMenu or a QMenuBar; both take actions alike.
template <class Ziel>
void füllen(Ziel& ziel, const Einträge& einträge);

template <class Ziel>
void anpassen(Ziel& ziel, const Einträge& einträge) {
    if (!gleiche_Gestalt(ziel.actions(), einträge)) {
        for (QAction* aktion : ziel.actions())
            if (QMenu* unter = aktion->menu()) unter->deleteLater();
        ziel.clear();
        füllen(ziel, einträge);
    }
    const auto aktionen = ziel.actions();
    for (std::size_t i = 0; i < einträge.size(); ++i) {
        QAction& aktion = *aktionen.at(static_cast<qsizetype>(i));
        const Menüpunkt& punkt = *einträge[i];
        if (!punkt.ist_Strich()) {
            aktion.setText(Beschriftungstext(punkt));
            aktion.setEnabled(punkt.aktiv());
            aktion.setCheckable(punkt.haken());
            aktion.setChecked(punkt.haken());
        }
        aktion.setVisible(punkt.sichtbar());
        if (QMenu* unter = aktion.menu()) anpassen(*unter, punkt.einträge());
    }
}

template <class Ziel>
void füllen(Ziel& ziel, const Einträge& einträge) {
    for (const auto& punkt : einträge) {
        QAction* aktion = nullptr;
        if (punkt->ist_Strich()) {
            aktion = new QAction(&ziel);
            aktion->setSeparator(true);
            ziel.addAction(aktion);
        } else if (!punkt->einträge().empty()) {
            auto* unter = new QMenu(&ziel);
            aktion = ziel.addMenu(unter);
        } else {
            aktion = new QAction(&ziel);
            ziel.addAction(aktion);
        }
        aktion->setData(verweis(punkt.get()));
        aktion->setMenuRole(QAction::NoRole);
    }
}

// Blocked windows keep their menus shut.
class Sperre : public QObject {
public:
    Sperre(Umfeld& umfeld, const Fenster& fenster, QObject* eltern) : QObject(eltern), umfeld_(umfeld), fenster_(fenster) {}
    bool eventFilter(QObject*, QEvent* was) override {
        if (umfeld_.zu_Ende) return false;
        switch (was->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::KeyPress:
            case QEvent::Shortcut: return !umfeld_.erreichbar(fenster_);
            default: return false;
        }
    }

private:
    Umfeld& umfeld_;
    const Fenster& fenster_;
};

}  // namespace

Menüleiste::Menüleiste(Umfeld& umfeld, const Menü& menü, QWidget* eltern)
    : umfeld_(umfeld), menü_(menü), leiste_(new QMenuBar(eltern)) {
    leiste_->setNativeMenuBar(false);
    if (!menü_.einträge().empty())
        leiste_->installEventFilter(new Sperre(umfeld_, menü_.einträge().front()->fenster(), leiste_));
    // One connection for the whole bar: it passes on what its menus trigger.
    QObject::connect(leiste_, &QMenuBar::triggered, leiste_, [this](QAction* aktion) {
        Menüpunkt* punkt = punkt_von(*aktion);
        if (punkt == nullptr) return;
        // Qt has moved the check mark; the model says where it stands.
        aktion->setChecked(punkt->haken());
        if (!punkt->bedienbar() || !umfeld_.erreichbar(punkt->fenster())) return;
        // The menu is hidden, but perhaps still on the screen: what the entry does may take its time without an event.
        QGuiApplication::sync();
        umfeld_.ansicht.Fenster_malen(punkt->fenster());
        umfeld_.von_Hand([punkt] { punkt->von_Hand_klicken(); });
    });
}

void Menüleiste::zeigen() { anpassen(*leiste_, menü_.einträge()); }

Menüpunkt* Kontextmenü_zeigen(const Menüpunkt& wurzel, QPoint wo, QWidget* eltern) {
    QPointer<QMenu> menü = new QMenu(eltern);
    anpassen(*menü, wurzel.einträge());
    const QAction* gewählt = menü->exec(wo);
    Menüpunkt* punkt = gewählt == nullptr ? nullptr : punkt_von(*gewählt);
    delete menü;
    return punkt;
}

QPixmap Menübild(const Menüpunkt& wurzel) {
    QMenu menü;
    anpassen(menü, wurzel.einträge());
    // Not adjustSize: that keeps within two thirds of the screen.
    menü.resize(menü.sizeHint());
    return menü.grab();
}

}  // namespace tonkartei
