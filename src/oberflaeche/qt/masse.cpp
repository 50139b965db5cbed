#include "oberflaeche/qt/masse.hpp"

#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>
#include <algorithm>
#include <map>
#include <unordered_map>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/qt/schieberbild.hpp"
#include "oberflaeche/qt/stil.hpp"
#include "oberflaeche/qt/umrechnung.hpp"
#include "oberflaeche/qt/widgets.hpp"

namespace tonkartei {
namespace {

// What the wished size of a control depends on.
struct Merkmal {
    Elementart art{};
    Text text;
    int schrift = 0;
    int zahl = 0;
    bool fett = false;
    bool operator==(const Merkmal&) const = default;
};

// Pixels; so that "Ok" alone is no harder to hit than its neighbours.
constexpr int Knopf_mindestens = 76;

// Title bar and borders that a window manager puts around a window, pixels: known only once it has.
constexpr QSize Fensterrand(8, 38);

struct Eintrag {
    Merkmal merkmal;
    Größe größe;
};

int längste_Zeile(const Zeilenelement& element, const QFontMetrics& maße) {
    // Drop-down lists are short; the first lines of a long one tell enough.
    int breite = 0;
    const int anzahl = std::min(element.Anzahl(), 100);
    for (int i = 0; i < anzahl; ++i) breite = std::max(breite, maße.horizontalAdvance(Anzeigetext(element.zeile(i))));
    return breite;
}

}  // namespace

int Zeilenhöhe_Pixel(int punkte) { return QFontMetrics(Schrift(punkte)).height() + 4; }

// Never shown: one widget a kind, asked for its size.
struct Maße::Innen {
    QPushButton knopf;
    QToolButton kleiner_Knopf;
    Kastenbild kasten;
    Optionsbild option;
    Schriftbild schrift;
    QLineEdit eingabe;
    QComboBox auswahl;
    QSlider schieber{Qt::Horizontal};
    QScrollBar bildlauf{Qt::Horizontal};
    QProgressBar balken;
    QMenuBar menü;
    Innen() { menü.addAction(QStringLiteral("?")); }
    mutable std::unordered_map<const Element*, Eintrag> bekannte;

    // Of the application's font in so many points: rows of dashes are measured by the dozen.
    const QFontMetrics& Schriftmaße(int punkte) {
        if (const QFont jetzige = QApplication::font(); jetzige != anwendung_) {
            anwendung_ = jetzige;
            schriftmaße_.clear();
        }
        const auto eintrag = schriftmaße_.find(punkte);
        return eintrag != schriftmaße_.end() ? eintrag->second
                                             : schriftmaße_.emplace(punkte, QFontMetrics(Schrift(punkte))).first->second;
    }

    QSize Knopfgröße(const Knopf& k, const QFont& font) {
        QAbstractButton& vorlage = k.klein ? static_cast<QAbstractButton&>(kleiner_Knopf) : knopf;
        vorlage.setFont(font);
        if (!k.Bild.empty()) return k.klein ? QSize(28, 26) : QSize(34, 28);
        vorlage.setText(Beschriftungstext(k));
        const QFontMetrics maße(font);
        const int text = maße.size(Qt::TextShowMnemonic, vorlage.text()).width();
        return k.klein ? QSize(std::max(text + 12, maße.height() + 8), maße.height() + 8)
                       : QSize(std::max(text + 26, Knopf_mindestens), maße.height() + 13);
    }

    QSize messen(const Element& e) {
        const QFont font = Schrift(e.schrift(), e.fett());
        const QFontMetrics maße(font);
        switch (e.art()) {
            case Elementart::Knopf: return Knopfgröße(static_cast<const Knopf&>(e), font);
            case Elementart::Kasten:
                kasten.setFont(font);
                kasten.setText(Beschriftungstext(e));
                return kasten.sizeHint();
            case Elementart::Option:
                option.setFont(font);
                option.setText(Beschriftungstext(e));
                return option.sizeHint();
            case Elementart::Schrift: {
                const auto& feld = static_cast<const Schriftfeld&>(e);
                schrift.setFont(font);
                schrift.eingerahmt = feld.eingerahmt;
                schrift.ziffern = feld.Ziffern;
                schrift.setWordWrap(feld.umbrechen);
                QString text = Anzeigeabsätze(feld.beschriftung());
                if (feld.wie_Daten) text.replace(QLatin1String("&&"), QLatin1String("&"));
                schrift.zeigen(text, !feld.wie_Daten && text.contains(QLatin1Char('&')));
                return schrift.sizeHint();
            }
            case Elementart::Eingabe: eingabe.setFont(font); return QSize(eingabe.sizeHint().width(), maße.height() + 11);
            case Elementart::Auswahl:
                auswahl.setFont(font);
                return QSize(std::clamp(längste_Zeile(static_cast<const Zeilenelement&>(e), maße), 60, 400) + 36,
                             maße.height() + 11);
            case Elementart::Liste:
                return QSize(maße.horizontalAdvance(QLatin1Char('n')) * 24, 5 * Zeilenhöhe_Pixel(e.schrift()) + 4);
            case Elementart::Regler: {
                const auto& regler = static_cast<const Regler&>(e);
                if (regler.griffig && regler.form() == Regler::Form::Schieber)
                    return Schieberbild::Mindestmaß(regler.senkrecht ? Qt::Vertical : Qt::Horizontal, maße);
                const int dicke =
                    regler.form() == Regler::Form::Schieber ? schieber.sizeHint().height() : bildlauf.sizeHint().height();
                return regler.senkrecht ? QSize(dicke, 100) : QSize(100, dicke);
            }
            case Elementart::Reiter: {
                Reiterbild leiste;
                leiste.setFont(font);
                for (const Text& tab : static_cast<const Reiter&>(e).tabs()) leiste.addTab(Anzeigetext(tab));
                return leiste.sizeHint();
            }
            case Elementart::Balken: return QSize(240, 18);
            case Elementart::Dreistufer: return QSize(64, maße.height() + 13);
            case Elementart::Fläche:
            case Elementart::Rahmen:
            case Elementart::Menü:
            case Elementart::Symbol: break;
        }
        return {0, 0};
    }

private:
    QFont anwendung_;
    std::map<int, QFontMetrics> schriftmaße_;
};

Maße::Maße() : innen_(std::make_unique<Innen>()) {}

Maße::~Maße() = default;

int Maße::Textbreite(const Text& text, int punkte) const {
    return Twips(innen_->Schriftmaße(punkte).horizontalAdvance(Anzeigetext(text)));
}

int Maße::Texthöhe(int punkte) const { return Twips(QFontMetrics(Schrift(punkte)).height()); }

Größe Maße::Wunschgröße(const Element& e) const {
    if (e.art() == Elementart::Fläche) return static_cast<const Bildfläche&>(e).Wunsch;
    Merkmal merkmal{e.art(), e.beschriftung(), e.schrift(), 0, e.fett()};
    if (e.Beschriftung_wörtlich) merkmal.text = und_verdoppelt(merkmal.text);
    if (e.art() == Elementart::Knopf) {
        const auto& knopf = static_cast<const Knopf&>(e);
        merkmal.text += knopf.Bild;
        merkmal.zahl = knopf.klein;
    } else if (e.art() == Elementart::Schrift) {
        const auto& feld = static_cast<const Schriftfeld&>(e);
        merkmal.zahl = feld.eingerahmt + 2 * feld.umbrechen + 4 * feld.wie_Daten + 8 * feld.Ziffern;
    } else if (e.art() == Elementart::Regler) {
        const auto& regler = static_cast<const Regler&>(e);
        merkmal.zahl = regler.senkrecht + 2 * static_cast<int>(regler.form()) + 4 * regler.griffig;
    } else if (e.art() == Elementart::Reiter) {
        for (const Text& tab : static_cast<const Reiter&>(e).tabs()) merkmal.text += tab + "\n";
    } else if (e.art() == Elementart::Auswahl) {
        const auto& auswahl = static_cast<const Zeilenelement&>(e);
        merkmal.zahl = auswahl.Anzahl();
        if (merkmal.zahl > 0) merkmal.text = auswahl.zeile(merkmal.zahl - 1);
    }
    Eintrag& eintrag = innen_->bekannte[&e];
    if (eintrag.merkmal == merkmal) return eintrag.größe;
    const QSize größe = innen_->messen(e);
    eintrag = {std::move(merkmal), {Twips(größe.width()), Twips(größe.height())}};
    return eintrag.größe;
}

Größe Maße::Bildschirm() const {
    const QScreen* schirm = QGuiApplication::primaryScreen();
    if (schirm == nullptr) return {};
    return {Twips(schirm->geometry().width()), Twips(schirm->geometry().height())};
}

QRect freier_Schirm() {
    constexpr QSize keiner(800, 800);  // what the off-screen platform says of itself
    const QScreen* schirm = QGuiApplication::primaryScreen();
    if (schirm == nullptr || (schirm->name().isEmpty() && schirm->size() * schirm->devicePixelRatio() == keiner)) return {};
    return schirm->availableGeometry();
}

Größe Maße::freie_Fläche(const Fenster& fenster) const {
    const QRect frei = freier_Schirm();
    if (frei.isEmpty() || fenster.Elternfenster() != nullptr) return {};
    const int menü = fenster.menü() == nullptr ? 0 : innen_->menü.sizeHint().height();
    const QSize rand = fenster.ohne_Rand ? QSize(0, 0) : Fensterrand;
    return {Twips(frei.width() - rand.width()), Twips(frei.height() - rand.height() - menü)};
}

Bereich Maße::Rahmenrand(const Element& e) const {
    const auto& rahmen = static_cast<const Rahmen&>(e);
    const QMargins m = Rahmenbild::ränder(!rahmen.beschriftung().empty(), rahmen.deckend,
                                          QFontMetrics(Schrift(rahmen.schrift(), rahmen.fett())).height());
    return {Twips(m.left()), Twips(m.top()), Twips(m.left() + m.right()), Twips(m.top() + m.bottom())};
}

}  // namespace tonkartei
