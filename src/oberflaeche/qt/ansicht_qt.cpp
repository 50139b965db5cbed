#include "oberflaeche/qt/ansicht_qt.hpp"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QSocketNotifier>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <utility>

#include "oberflaeche/fenster.hpp"
#include "oberflaeche/menue.hpp"
#include "oberflaeche/qt/fenstermaler_qt.hpp"
#include "oberflaeche/qt/kaesten.hpp"
#include "oberflaeche/qt/menueleiste.hpp"
#include "oberflaeche/qt/umrechnung.hpp"
#include "oberflaeche/zeitgeber.hpp"

namespace tonkartei {
namespace {

bool enthält(const Menüpunkt& wurzel, const Menüpunkt* gesucht) {
    return std::any_of(wurzel.einträge().begin(), wurzel.einträge().end(),
                       [&](const auto& eintrag) { return eintrag.get() == gesucht || enthält(*eintrag, gesucht); });
}

}  // namespace

struct Ansicht_Qt::Innen {
    Ansicht_Qt& ansicht;
    Fenstermaler_Qt maler;
    QObject verbindungen;
    std::map<Zeitgeber*, std::unique_ptr<QTimer>> zeitgeber;
    // Fell due while timers rested.
    std::set<Zeitgeber*> fällige;
    int ruhe = 0;
    // The user's session ends: nobody is there to answer.
    bool sitzung_endet = false;

    explicit Innen(Ansicht_Qt& a) : ansicht(a), maler(a) {
        QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &verbindungen, [this] { Sitzungsende(); });
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &verbindungen,
                         [this] {
                             offene_schließen();
                             maler.Sperren_zeigen();
                         });
    }

    // A box that came up when the end was decided already says something about it, and stays until it is answered.
    bool kasten_bleibt = false;

    // While it lives, timers rest; those that fell due run once afterwards.
    class Ruhe {
    public:
        explicit Ruhe(Innen& innen) : innen_(innen) { ++innen_.ruhe; }
        ~Ruhe() {
            if (--innen_.ruhe > 0) return;
            const auto fällige = std::move(innen_.fällige);
            innen_.fällige.clear();
            for (Zeitgeber* z : fällige)
                if (const auto i = innen_.zeitgeber.find(z); i != innen_.zeitgeber.end() && z->aktiv()) i->second->start(0);
        }
        Ruhe(const Ruhe&) = delete;
        Ruhe& operator=(const Ruhe&) = delete;

    private:
        Innen& innen_;
    };

    // Runs a box: the windows below it are up to date, timers rest.
    template <class Kasten>
    auto zeigen(Kasten kasten) {
        const Ruhe stille(*this);
        const bool vorher = std::exchange(kasten_bleibt, ansicht.endet());
        maler.abgleichen();
        auto antwort = kasten(Eltern());
        kasten_bleibt = vorher;
        return antwort;
    }

    void fällig(Zeitgeber& z, QTimer& uhr) {
        if (ansicht.endet()) return;
        if (ruhe > 0) {
            fällige.insert(&z);
            return;
        }
        uhr.start(z.Intervall());
        ansicht.ausführen([&] { z.auslösen(); });
    }

    // The window that a box belongs to: the foremost one on the screen.
    QWidget* Eltern() const {
        for (Fenster* fenster : ansicht.fenster()) {
            QWidget* widget = maler.Widget(*fenster);
            if (fenster->sichtbar() && fenster->zustand() == Fensterzustand::normal && widget != nullptr &&
                widget->isVisible())
                return widget->window();
        }
        return nullptr;
    }

    // Once the end is decided, or nobody is there to answer, boxes and menus still open go away, so that the loops below
    // them can be left.
    void offene_schließen() const {
        if (!ansicht.endet() && !sitzung_endet) return;
        if (QWidget* menü = QApplication::activePopupWidget())
            menü->close();
        else if (auto* kasten = qobject_cast<QDialog*>(QApplication::activeModalWidget()); kasten && !kasten_bleibt)
            kasten->reject();
    }

    void Sitzungsende() {
        sitzung_endet = true;
        // The main window is the one with the menu.
        const auto offene = ansicht.fenster();
        for (Fenster* fenster : offene) {
            if (fenster->menü() == nullptr || !fenster->geladen()) continue;
            ansicht.ausführen([fenster] { fenster->schließen(Schließgrund::außen); });
        }
    }
};

Ansicht_Qt::Ansicht_Qt() : innen_(std::make_unique<Innen>(*this)) {}

Ansicht_Qt::~Ansicht_Qt() = default;

Fenstermaler_Qt& Ansicht_Qt::maler() noexcept { return innen_->maler; }

void Ansicht_Qt::Sitzung_beenden() { innen_->Sitzungsende(); }

void Ansicht_Qt::bei_Lesbarkeit(int deskriptor, std::function<void()> handler) {
    if (deskriptor < 0) return;
    auto* melder = new QSocketNotifier(deskriptor, QSocketNotifier::Read, &innen_->verbindungen);
    QObject::connect(melder, &QSocketNotifier::activated, melder, std::move(handler));
}

Antwort Ansicht_Qt::melden(const Meldungsfeld& feld) {
    if (innen_->sitzung_endet) return feld.vorgabe;
    const Antwort antwort = innen_->zeigen([&](QWidget* eltern) { return Meldung_zeigen(feld, eltern); });
    // It went by itself: nobody has answered it.
    return innen_->sitzung_endet ? feld.vorgabe : antwort;
}

Text Ansicht_Qt::eingeben(const Text& text, const Text& titel, const Text& vorgabe) {
    if (innen_->sitzung_endet) return {};
    return innen_->zeigen([&](QWidget* eltern) { return Eingabe_zeigen(text, titel, vorgabe, eltern); });
}

Text Ansicht_Qt::Verzeichnis_wählen(const Text& titel) {
    if (innen_->sitzung_endet) return {};
    return innen_->zeigen([&](QWidget* eltern) { return Ordnerwahl_zeigen(titel, eltern); });
}

Text Ansicht_Qt::Datei_wählen(const Dateiwahl& wahl) {
    if (innen_->sitzung_endet) return {};
    return innen_->zeigen([&](QWidget* eltern) { return Dateiwahl_zeigen(wahl, eltern); });
}

std::optional<Farbe> Ansicht_Qt::Farbe_wählen(Farbe vorgabe) {
    if (innen_->sitzung_endet) return std::nullopt;
    return innen_->zeigen([&](QWidget* eltern) { return Farbwahl_zeigen(vorgabe, eltern); });
}

void Ansicht_Qt::Fenster_geändert(Fenster& fenster) { innen_->maler.Fenster_geändert(fenster); }

void Ansicht_Qt::Element_geändert(Element& element, unsigned änderung) { innen_->maler.Element_geändert(element, änderung); }

void Ansicht_Qt::Fenster_malen(Fenster& fenster) {
    const Innen::Ruhe ruhe(*innen_);
    innen_->maler.Fenster_malen(fenster);
}

void Ansicht_Qt::Fenster_verschwindet(Fenster& fenster) { innen_->maler.Fenster_verschwindet(fenster); }

void Ansicht_Qt::Fokus_zeigen(Element& element) { innen_->maler.Fokus_zeigen(element); }

void Ansicht_Qt::modal_laufen(Fenster& fenster) {
    warten_bis(fenster, [&fenster] { return !fenster.sichtbar(); });
}

void Ansicht_Qt::Menü_zeigen(Menüpunkt& wurzel) {
    innen_->maler.abgleichen();
    Menüpunkt* gewählt = Kontextmenü_zeigen(wurzel, innen_->maler.Menüplatz(), innen_->Eltern());
    QGuiApplication::sync();
    if (QWidget* fenster = innen_->Eltern()) {
        const Innen::Ruhe ruhe(*innen_);
        fenster->repaint();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    }
    // Entries may have gone while the menu was up.
    if (gewählt != nullptr && enthält(wurzel, gewählt) && gewählt->bedienbar() && !endet()) gewählt->von_Hand_klicken();
}

void Ansicht_Qt::Zwischenablage_setzen(const Text& text) { QGuiApplication::clipboard()->setText(Anzeigetext(text)); }

bool Ansicht_Qt::Tray_da() const { return QSystemTrayIcon::isSystemTrayAvailable(); }

bool Ansicht_Qt::Handbuch_zeigen() {
    const QDir ordner(QCoreApplication::applicationDirPath());
    // Installed; in the build tree, where it is made beside the presets' folders; beside the program.
    for (const char* ort : {"../share/doc/tonkartei/handbuch.html", "../../handbuch/handbuch.html", "handbuch.html"})
        if (const QString pfad = ordner.absoluteFilePath(QLatin1String(ort)); QFile::exists(pfad))
            return QDesktopServices::openUrl(QUrl::fromLocalFile(QDir::cleanPath(pfad)));
    return false;
}

void Ansicht_Qt::Medien_zeigen(const Medienstand& stand) {
    if (bei_Medien) bei_Medien(stand);
}

void Ansicht_Qt::mitteilen(const Text& titel, const Text& text) {
    if (bei_Mitteilung) bei_Mitteilung(titel, text);
}

int Ansicht_Qt::Textbreite(const Text& text, int punkte) const { return innen_->maler.Textbreite(text, punkte); }
int Ansicht_Qt::Texthöhe(int punkte) const { return innen_->maler.Texthöhe(punkte); }
Größe Ansicht_Qt::Wunschgröße(const Element& element) const { return innen_->maler.Wunschgröße(element); }
Größe Ansicht_Qt::Bildschirm() const { return innen_->maler.Bildschirm(); }
Größe Ansicht_Qt::freie_Fläche(const Fenster& fenster) const { return innen_->maler.freie_Fläche(fenster); }
Bereich Ansicht_Qt::Rahmenrand(const Element& rahmen) const { return innen_->maler.Rahmenrand(rahmen); }
int Ansicht_Qt::Zeilenhöhe(int punkte) const { return innen_->maler.Zeilenhöhe(punkte); }

void Ansicht_Qt::Ereignisse_laufen_lassen() {
    QCoreApplication::processEvents();
    if (endet()) throw Programmende{};
}

void Ansicht_Qt::warten_bis(Fenster&, const std::function<bool()>& bedingung) {
    while (!bedingung()) {
        if (endet()) throw Programmende{};
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void Ansicht_Qt::Zeitgeber_gestellt(Zeitgeber& zeitgeber) {
    auto& uhr = innen_->zeitgeber[&zeitgeber];
    if (!uhr) {
        uhr = std::make_unique<QTimer>();
        uhr->setSingleShot(true);
        uhr->setTimerType(Qt::PreciseTimer);
        QObject::connect(uhr.get(), &QTimer::timeout, uhr.get(),
                         [innen = innen_.get(), &zeitgeber, eine = uhr.get()] { innen->fällig(zeitgeber, *eine); });
    }
    innen_->fällige.erase(&zeitgeber);
    if (zeitgeber.aktiv())
        uhr->start(zeitgeber.Intervall());
    else
        uhr->stop();
}

void Ansicht_Qt::Zeitgeber_entfernt(Zeitgeber& zeitgeber) {
    innen_->fällige.erase(&zeitgeber);
    innen_->zeitgeber.erase(&zeitgeber);
}

void Ansicht_Qt::an_Laufzeitfehler_enden(const Laufzeitfehler& fehler) {
    const Text text = Fehlertext(fehler);
    if (!innen_->sitzung_endet) {
        Meldungsfeld feld;
        feld.titel = "Tonkartei";
        feld.text = "Laufzeitfehler '" + std::to_string(fehler.Nummer()) + "':" + Text(CRCR) + text;
        feld.quelle = "laufzeit";
        innen_->zeigen([&](QWidget* eltern) { return Meldung_zeigen(feld, eltern); });
    }
    // At once: nothing more is saved, no destructor runs, the access file stays.
    std::_Exit(1);
}

void Ansicht_Qt::Hauptschleife() {
    const auto fertig = [this] { return endet() || fenster().empty(); };
    if (fertig()) return;
    QEventLoop schleife;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &schleife, [&] {
        if (fertig()) schleife.exit();
    });
    schleife.exec();
}

}  // namespace tonkartei
