// What is looked at: labels, frames, pictures, progress bars.
#include <QProgressBar>
#include <algorithm>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/qt/bauteile.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/rollflaeche.hpp"
#include "oberflaeche/qt/umrechnung.hpp"
#include "oberflaeche/qt/widgets.hpp"

namespace tonkartei {
namespace {

class Schrift_Bauteil : public Bauteil {
public:
    Schrift_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Schriftfeld& feld)
        : Bauteil(umfeld, fenster, feld), bild_(new Schriftbild) {
        bild_->eingerahmt = feld.eingerahmt;
        bild_->ziffern = feld.Ziffern;
        bild_->setWordWrap(feld.umbrechen);
        aufnehmen(bild_);
    }

private:
    void Aussehen_zeigen() override {
        Bauteil::Aussehen_zeigen();
        const auto& feld = static_cast<const Schriftfeld&>(element());
        const auto waagrecht = feld.ausrichtung == Schriftfeld::Ausrichtung::links   ? Qt::AlignLeft
                               : feld.ausrichtung == Schriftfeld::Ausrichtung::Mitte ? Qt::AlignHCenter
                                                                                     : Qt::AlignRight;
        bild_->setAlignment(waagrecht | Qt::AlignVCenter);
        bild_->füllung = Grundfarbe();
        if (feld.Klick.hat_Hörer() || feld.Doppelklick.hat_Hörer()) bild_->setCursor(Qt::PointingHandCursor);
        bild_->setFocusPolicy(feld.Klick.hat_Hörer() ? Qt::TabFocus : Qt::NoFocus);
        QString text = Anzeigeabsätze(feld.beschriftung());
        const bool zugriff = !feld.wie_Daten && text.contains(QLatin1Char('&'));
        if (zugriff) bild_->setBuddy(Nachbar());
        if (feld.wie_Daten) text.replace(QLatin1String("&&"), QLatin1String("&"));
        bild_->zeigen(text, zugriff);
    }

    // The access key of a label leads to the next control that takes the focus.
    QWidget* Nachbar() const {
        const auto& alle = element().fenster().elemente();
        auto i = std::find(alle.begin(), alle.end(), &element());
        for (; i != alle.end(); ++i) {
            if ((*i)->art() == Elementart::Schrift) continue;
            const Bauteil* teil = fenster_.bauteil(**i);
            if (teil != nullptr && teil->widget() != nullptr && teil->widget()->focusPolicy() != Qt::NoFocus)
                return teil->widget();
        }
        return nullptr;
    }

    Schriftbild* bild_;
};

class Rahmen_Bauteil : public Bauteil {
public:
    Rahmen_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Rahmen& rahmen)
        : Bauteil(umfeld, fenster, rahmen), bild_(new Rahmenbild) {
        bild_->deckend = rahmen.deckend;
        if (rahmen.rollbar) rolle_ = new Rollfläche(Rollfläche::Art::schmal, bild_);
        aufnehmen(bild_);
    }
    ~Rahmen_Bauteil() override {
        if (widget() != nullptr) Teile_lösen(*bild_);
    }
    QWidget* Inneres() const noexcept override { return rolle_ == nullptr ? widget() : rolle_->Boden(); }

private:
    void Aussehen_zeigen() override {
        Bauteil::Aussehen_zeigen();
        bild_->füllung = Grundfarbe();
        bild_->setTitle(Anzeigetext(element().beschriftung()));
        bild_->update();
    }
    // In a window with a ground of its own, what lies in a coloured frame goes along with the frame.
    void Farben_zeigen() override {
        const bool innen_anders = fenster_.eigener_Grund() && element().hintergrund() != Farbe_Standard;
        if (!fenster_.eigener_Grund()) {
            Bauteil::Farben_zeigen();
        } else {
            const QColor außen = fenster_.Grund_unter(element().rahmen());
            const QColor schrift = element().farbe() == Farbe_Standard
                                       ? Töne::von(fenster_.Boden_für(element())->palette()).Schrift
                                       : Qt_Farbe(element().farbe());
            bild_->titelfarbe = abgesetzt(schrift, außen);
            bild_->umgebung = außen;
            bild_->setPalette(innen_anders ? Farbtafel_für(element().hintergrund()) : QPalette());
        }
        if (const Farbe grund = innen_anders ? element().hintergrund() : Farbe_Standard; grund != innen_) {
            innen_ = grund;
            fenster_.Inhalt_neu_färben(element());
        }
    }
    void Lage_zeigen() override {
        Bauteil::Lage_zeigen();
        if (bild_->deckend) {
            bild_->raise();
            Verdeckte_nachführen();
        }
        if (rolle_ == nullptr) return;
        rolle_->setGeometry(bild_->rect());
        rolle_->Bedarf({0, Pixel(static_cast<const Rahmen&>(element()).Inhaltshöhe())});
    }

    // What lies under it can't be reached by the tab key.
    void Verdeckte_nachführen() const {
        constexpr char sonst[] = "Fokus_sonst";
        for (QObject* objekt : bild_->parentWidget()->children()) {
            auto* nachbar = qobject_cast<QWidget*>(objekt);
            if (nachbar == nullptr || nachbar == bild_) continue;
            const bool verdeckt = element().sichtbar() && bild_->geometry().contains(nachbar->geometry());
            if (verdeckt && nachbar->focusPolicy() != Qt::NoFocus) {
                nachbar->setProperty(sonst, static_cast<int>(nachbar->focusPolicy()));
                nachbar->setFocusPolicy(Qt::NoFocus);
            } else if (!verdeckt && nachbar->property(sonst).isValid()) {
                nachbar->setFocusPolicy(static_cast<Qt::FocusPolicy>(nachbar->property(sonst).toInt()));
                nachbar->setProperty(sonst, QVariant());
            }
        }
    }

    Rahmenbild* bild_;
    Rollfläche* rolle_ = nullptr;
    Farbe innen_ = Farbe_Standard;
};

class Flächen_Bauteil : public Bauteil {
public:
    Flächen_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Bildfläche& fläche)
        : Bauteil(umfeld, fenster, fläche), bild_(new Bildwidget(fläche.Bild)) {
        aufnehmen(bild_);
    }

private:
    void Aussehen_zeigen() override {
        Bauteil::Aussehen_zeigen();
        const auto& fläche = static_cast<const Bildfläche&>(element());
        if (fläche.Klick.hat_Hörer() && bild_->focusPolicy() == Qt::NoFocus && !bild_->property("Fokus_sonst").isValid())
            bild_->setFocusPolicy(Qt::TabFocus);
        bild_->Name(fläche.Bild);
        bild_->eingerahmt = fläche.eingerahmt;
        bild_->füllung = Grundfarbe();
        bild_->spalten = fläche.Rasterspalten;
        bild_->zeilen = fläche.Rasterzeilen;
        bild_->update();
    }
    void Wert_zeigen() override { bild_->Linien(static_cast<const Bildfläche&>(element()).linien()); }

    Bildwidget* bild_;
};

class Balken_Bauteil : public Bauteil {
public:
    Balken_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Balken& balken)
        : Bauteil(umfeld, fenster, balken), bild_(new QProgressBar) {
        bild_->setRange(0, 100);
        bild_->setTextVisible(false);
        aufnehmen(bild_);
    }

private:
    void Wert_zeigen() override { bild_->setValue(static_cast<const Balken&>(element()).wert()); }

    QProgressBar* bild_;
};

class Diagramm_Bauteil : public Bauteil {
public:
    Diagramm_Bauteil(Umfeld& umfeld, Fensterwidget& fenster, Balken& balken)
        : Bauteil(umfeld, fenster, balken), bild_(new Diagrammbalken) {
        aufnehmen(bild_);
    }

private:
    void Aussehen_zeigen() override {
        Bauteil::Aussehen_zeigen();
        bild_->füllung = Qt_Farbe(element().farbe());
        bild_->update();
    }

    Diagrammbalken* bild_;
};

}  // namespace

Bauteil_Zeiger Schrift_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Schrift_Bauteil>(umfeld, fenster, static_cast<Schriftfeld&>(element));
}

Bauteil_Zeiger Rahmen_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Rahmen_Bauteil>(umfeld, fenster, static_cast<Rahmen&>(element));
}

Bauteil_Zeiger Fläche_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    return std::make_unique<Flächen_Bauteil>(umfeld, fenster, static_cast<Bildfläche&>(element));
}

Bauteil_Zeiger Balken_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element) {
    auto& balken = static_cast<Balken&>(element);
    if (balken.Diagramm) return std::make_unique<Diagramm_Bauteil>(umfeld, fenster, balken);
    return std::make_unique<Balken_Bauteil>(umfeld, fenster, balken);
}

}  // namespace tonkartei
