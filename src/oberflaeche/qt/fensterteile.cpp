// Windows as parts of others, and the grounds that they lie on.
#include <algorithm>

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/fensterwidget.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {

void Teile_lösen(const QWidget& widget) {
    for (QWidget* kind : widget.findChildren<QWidget*>())
        if (auto* teil = dynamic_cast<Fensterwidget*>(kind)) teil->lösen();
}

void Fensterwidget::lösen() {
    hide();
    setParent(nullptr);
}

// Into its frame; false while that has no widget.
bool Fensterwidget::einsetzen() {
    const Rahmen* platz = fenster_.Platz();
    const Fensterwidget* eltern = platz == nullptr ? nullptr : umfeld_.widget(platz->fenster());
    const Bauteil* rahmen = eltern == nullptr ? nullptr : eltern->bauteil(*platz);
    QWidget* inneres = rahmen == nullptr ? nullptr : rahmen->Inneres();
    if (parentWidget() != inneres) setParent(inneres);
    return inneres != nullptr;
}

Fensterwidget& Fensterwidget::ganzes() {
    Fenster* eltern = fenster_.Elternfenster();
    Fensterwidget* widget = eltern == nullptr ? nullptr : umfeld_.widget(*eltern);
    return widget == nullptr ? *this : widget->ganzes();
}

void Fensterwidget::jedes_Teil(const std::function<void(Fensterwidget&, const Element&)>& tat) const {
    for (const Element* element : fenster_.elemente()) {
        if (element->art() != Elementart::Rahmen) continue;
        const Fenster* inhalt = static_cast<const Rahmen*>(element)->Inhalt;
        if (Fensterwidget* teil = inhalt == nullptr ? nullptr : umfeld_.widget(*inhalt)) tat(*teil, *element);
    }
}

void Fensterwidget::Vorgemerktes_zeigen() {
    if (vorgemerkt_) abgleichen();
    jedes_Teil([](Fensterwidget& teil, const Element&) { teil.Vorgemerktes_zeigen(); });
}

// In the order of their making; a part comes where its frame does.
void Fensterwidget::Tabfolge(QWidget*& vorheriges) const {
    for (const Element* element : fenster_.elemente()) {
        const Bauteil* teil = bauteil(*element);
        if (teil == nullptr || teil->widget() == nullptr) continue;
        if (teil->widget()->focusPolicy() != Qt::NoFocus && teil->widget()->window() == window()) {
            if (vorheriges != nullptr) setTabOrder(vorheriges, teil->widget());
            vorheriges = teil->widget();
        }
        if (element->art() != Elementart::Rahmen) continue;
        const Fenster* inhalt = static_cast<const Rahmen*>(element)->Inhalt;
        if (const Fensterwidget* innen = inhalt == nullptr ? nullptr : umfeld_.widget(*inhalt)) innen->Tabfolge(vorheriges);
    }
}

void Fensterwidget::Teil_zeigen() {
    const bool drin = einsetzen();
    if (drin) {
        // Within the frame, which moves in one with it.
        const Bereich& lage = fenster_.lage();
        const QRect platz = Pixel(fenster_.Platz()->lage());
        setGeometry(Pixel(lage).translated(-platz.topLeft()));
        Boden_legen();
    }
    gezeigt_ = drin && fenster_.sichtbar();
    setVisible(gezeigt_);
}

std::vector<QWidget*> Fensterwidget::Ziele(const Element& quelle) {
    std::vector<QWidget*> ziele;
    ganzes().Ziele_sammeln(quelle, ziele);
    return ziele;
}

void Fensterwidget::Ziele_sammeln(const Element& quelle, std::vector<QWidget*>& ziele) const {
    for (const auto& [element, teil] : bauteile_)
        if (element != &quelle && teil->widget() != nullptr && teil->ist_Ziel()) ziele.push_back(teil->widget());
    jedes_Teil([&](const Fensterwidget& innen, const Element&) { innen.Ziele_sammeln(quelle, ziele); });
}

Bauteil* Fensterwidget::bauteil_von(const QWidget& widget) const {
    // While they go one by one, Qt still asks for one or the other.
    if (umfeld_.zu_Ende || vergeht_) return nullptr;
    const auto fund = std::find_if(bauteile_.begin(), bauteile_.end(),
                                   [&](const auto& eintrag) { return eintrag.second->widget() == &widget; });
    // A widget may outlive its control for a while.
    const auto& da = fenster_.elemente();
    const bool lebt = fund != bauteile_.end() && std::find(da.begin(), da.end(), fund->first) != da.end();
    return lebt ? fund->second.get() : nullptr;
}

bool Fensterwidget::eigener_Grund() const {
    for (const Fenster* f = &fenster_; f != nullptr; f = f->Elternfenster())
        if (f->hintergrund != Farbe_Standard) return true;
    return false;
}

QColor Fensterwidget::Grund_unter(const Element* rahmen) const {
    for (; rahmen != nullptr; rahmen = rahmen->rahmen()) {
        if (rahmen->hintergrund() != Farbe_Standard) return Qt_Farbe(rahmen->hintergrund());
        const Töne ton = Töne::von(Boden_für(*rahmen)->palette());
        if (!rahmen->beschriftung().empty()) return ton.Wert;
        if (static_cast<const Rahmen*>(rahmen)->deckend) return ton.Grund;
    }
    const Rahmen* platz = fenster_.hintergrund == Farbe_Standard ? fenster_.Platz() : nullptr;
    if (const Fensterwidget* eltern = platz == nullptr ? nullptr : umfeld_.widget(platz->fenster()))
        return eltern->Grund_unter(platz);
    return palette().color(QPalette::Window);
}

void Fensterwidget::neu_färben() {
    alles_ = true;
    vormerken();
    jedes_Teil([](Fensterwidget& teil, const Element&) { teil.neu_färben(); });
}

void Fensterwidget::Inhalt_neu_färben(const Element& rahmen) {
    jedes_Teil([&rahmen](Fensterwidget& teil, const Element& platz) {
        if (&platz == &rahmen) teil.neu_färben();
    });
    for (Element* element : fenster_.elemente())
        for (const Element* r = element->rahmen(); r != nullptr; r = r->rahmen())
            if (r == &rahmen) Element_merken(*element, Änderung_Aussehen);
}

void Fensterwidget::Grund_zeigen() {
    if (grund_ == fenster_.hintergrund) return;
    grund_ = fenster_.hintergrund;
    setPalette(grund_ == Farbe_Standard ? QPalette() : Farbtafel_für(grund_));
    setAutoFillBackground(teil_ && grund_ != Farbe_Standard);
    neu_färben();
}

}  // namespace tonkartei
