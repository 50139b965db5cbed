// The tray symbol. Where the desktop has no tray nothing is shown.
#include <QGuiApplication>
#include <QSystemTrayIcon>
#include <QWidget>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/qt/bauteile.hpp"
#include "oberflaeche/qt/bilder.hpp"
#include "oberflaeche/qt/umfeld.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {
namespace {

class Symbol_Bauteil : public Bauteil {
public:
    Symbol_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Element& element) : Bauteil(umfeld, fenster, element) {
        symbol_.setIcon(Programmsymbol());
        // The context menu is one of the program's, so none is given to the symbol itself.
        QObject::connect(&symbol_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason grund) {
            if (!this->element().bedienbar()) return;
            if (grund == QSystemTrayIcon::Trigger) umfeld_.von_Hand([this] { this->element().von_Hand_klicken(); });
            if (grund == QSystemTrayIcon::Context) umfeld_.von_Hand([this] { this->element().Rechtsklick(-1); });
        });
    }

private:
    void Aussehen_zeigen() override { symbol_.setToolTip(Anzeigeabsätze(element().tooltip())); }
    // Under X also where there is no tray yet: at the start of a session the program may come up before the desktop's tray.
    // Elsewhere Qt would complain.
    void Lage_zeigen() override {
        const bool wartet_darauf = QGuiApplication::platformName() == QLatin1String("xcb");
        symbol_.setVisible(element().sichtbar() && (wartet_darauf || QSystemTrayIcon::isSystemTrayAvailable()));
    }

    QSystemTrayIcon symbol_;
};

}  // namespace

Bauteil_Zeiger Symbol_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Symbol_Bauteil>(umfeld, fenster, element);
}

}  // namespace tonkartei
