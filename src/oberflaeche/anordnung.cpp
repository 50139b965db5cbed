#include "oberflaeche/anordnung.hpp"

#include <algorithm>
#include <utility>

#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {
namespace {

constexpr int übliche_Lücke = 6 * Twips_je_Pixel;

int Lücke(int gewählt) { return gewählt < 0 ? übliche_Lücke : gewählt; }
int Rand(int gewählt) { return gewählt < 0 ? 0 : gewählt; }

// What a control's own border, arrow or scroll bar takes beside its characters.
int Zugabe(const Element& element) {
    switch (element.art()) {
        case Elementart::Schrift: return static_cast<const Schriftfeld&>(element).eingerahmt ? 14 * Twips_je_Pixel : 0;
        case Elementart::Eingabe: return 14 * Twips_je_Pixel;
        case Elementart::Auswahl: return 36 * Twips_je_Pixel;
        case Elementart::Liste: return 30 * Twips_je_Pixel;
        default: return 0;
    }
}

constexpr int niedrigste_Rolle = 120 * Twips_je_Pixel, schmalste_Liste = 180 * Twips_je_Pixel;

int weniger(int wunsch, int um, int mindestens) { return std::max(std::min(wunsch, mindestens), wunsch - um); }

bool rollt(const Element& element) {
    return element.art() == Elementart::Rahmen && static_cast<const Rahmen&>(element).rollbar;
}

// The window that fills a frame.
Fenster* Inhalt_von(const Element& element) {
    return element.art() == Elementart::Rahmen ? static_cast<const Rahmen&>(element).Inhalt : nullptr;
}

}  // namespace

Knoten::Knoten(Element& element) : sorte_(Sorte::Element), element_(&element) {}

Knoten Knoten::dehnen(int waagrecht, int senkrecht) && {
    dehnung_x_ = waagrecht;
    dehnung_y_ = senkrecht;
    return std::move(*this);
}

Knoten Knoten::zeichen(int anzahl) && {
    zeichen_ = anzahl;
    return std::move(*this);
}

Knoten Knoten::zeilen(int anzahl) && {
    zeilen_ = anzahl;
    return std::move(*this);
}

Knoten Knoten::mindestens(int breite, int höhe) && {
    mindest_ = {breite, höhe};
    return std::move(*this);
}

Knoten Knoten::Platz_halten() && {
    hält_Platz_ = true;
    return std::move(*this);
}

Knoten Knoten::lücke(int twips) && {
    lücke_ = twips;
    return std::move(*this);
}

Knoten Knoten::rand(int twips) && {
    rand_ = twips;
    return std::move(*this);
}

Knoten Knoten::oben_anliegend() && {
    oben_ = true;
    return std::move(*this);
}

Knoten Zeile(std::vector<Knoten> kinder) {
    Knoten k;
    k.sorte_ = Knoten::Sorte::Zeile;
    k.kinder_ = std::move(kinder);
    return k;
}

Knoten Spalte(std::vector<Knoten> kinder) {
    Knoten k;
    k.sorte_ = Knoten::Sorte::Spalte;
    k.kinder_ = std::move(kinder);
    return k;
}

Knoten Gitter(int spalten, std::vector<Knoten> kinder) {
    Knoten k;
    k.sorte_ = Knoten::Sorte::Gitter;
    k.spalten_ = spalten;
    k.kinder_ = std::move(kinder);
    return k;
}

Knoten Gruppe(Element& rahmen, Knoten kind) {
    Knoten k;
    k.sorte_ = Knoten::Sorte::Gruppe;
    k.element_ = &rahmen;
    k.dehnung_x_ = kind.dehnung_x_;
    k.dehnung_y_ = kind.dehnung_y_;
    k.kinder_.push_back(std::move(kind));
    return k;
}

Knoten Überlagerung(std::vector<Knoten> kinder) {
    Knoten k;
    k.sorte_ = Knoten::Sorte::Überlagerung;
    k.kinder_ = std::move(kinder);
    return k;
}

Knoten Feder(int waagrecht, int senkrecht) {
    Knoten k;
    k.dehnung_x_ = waagrecht;
    k.dehnung_y_ = senkrecht;
    return k;
}

Anordnung::Anordnung(Ansicht& ansicht, Knoten wurzel) : ansicht_(ansicht), wurzel_(std::move(wurzel)) {
    Rahmen_verteilen(wurzel_, nullptr);
}

void Anordnung::Rahmen_verteilen(const Knoten& knoten, Element* rahmen) const {
    if (knoten.element_ != nullptr) knoten.element_->rahmen(rahmen);
    Element* innen = knoten.sorte_ == Knoten::Sorte::Gruppe ? knoten.element_ : rahmen;
    for (const Knoten& kind : knoten.kinder_) Rahmen_verteilen(kind, innen);
}

Größe Anordnung::Mindestgröße(Größe frei) {
    if (leer()) return {};
    zu_viel_ = {};
    gemessene_.clear();
    const Größe maß = messen(wurzel_);
    const auto Überschuss = [](int eins, int grenze) { return grenze > 0 ? std::max(0, eins - grenze) : 0; };
    zu_viel_ = {Überschuss(maß.breite, frei.breite), Überschuss(maß.höhe, frei.höhe)};
    if (zu_viel_.breite == 0 && zu_viel_.höhe == 0) return maß;
    gemessene_.clear();
    return messen(wurzel_);
}

void Anordnung::anordnen(Größe größe) {
    gemessene_.clear();
    if (!leer()) setzen(wurzel_, {0, 0, größe.breite, größe.höhe});
}

// A hidden control, and a container all of whose children are hidden, take no room.
bool Anordnung::zählt(const Knoten& knoten) const {
    if (knoten.hält_Platz_) return true;
    if (knoten.element_ != nullptr) return knoten.element_->sichtbar();
    if (knoten.kinder_.empty()) return true;
    return std::any_of(knoten.kinder_.begin(), knoten.kinder_.end(), [&](const Knoten& kind) {
        return (kind.sorte_ != Knoten::Sorte::Abstand || !kind.kinder_.empty()) && zählt(kind);
    });
}

Größe Anordnung::messen(const Knoten& knoten) const {
    if (const auto bekannt = gemessene_.find(&knoten); bekannt != gemessene_.end()) return bekannt->second;
    const Größe maß = gemessen(knoten);
    gemessene_.emplace(&knoten, maß);
    return maß;
}

Größe Anordnung::gemessen(const Knoten& knoten) const {
    Größe maß;
    switch (knoten.sorte_) {
        case Knoten::Sorte::Abstand: break;
        case Knoten::Sorte::Element: {
            maß = ansicht_.Wunschgröße(*knoten.element_);
            if (Fenster* inhalt = Inhalt_von(*knoten.element_)) {
                const Bereich rand = ansicht_.Rahmenrand(*knoten.element_);
                maß = {inhalt->Mindestgröße().breite + rand.breite, inhalt->Mindestgröße().höhe + rand.höhe};
            }
            const int punkte = knoten.element_->schrift();
            if (knoten.zeichen_ > 0)
                maß.breite = std::max(knoten.dehnung_x_ > 0 ? 0 : maß.breite,
                                      ansicht_.Textbreite(Text(static_cast<std::size_t>(knoten.zeichen_), 'n'), punkte) +
                                          Zugabe(*knoten.element_));
            if (knoten.zeilen_ > 0) maß.höhe = knoten.zeilen_ * ansicht_.Zeilenhöhe(punkte) + 4 * Twips_je_Pixel;
            if (knoten.element_->art() == Elementart::Liste)
                maß = {weniger(maß.breite, zu_viel_.breite, schmalste_Liste),
                       weniger(maß.höhe, zu_viel_.höhe, niedrigste_Rolle)};
            break;
        }
        case Knoten::Sorte::Zeile: maß = messen_Reihe(knoten, true); break;
        case Knoten::Sorte::Spalte: maß = messen_Reihe(knoten, false); break;
        case Knoten::Sorte::Gitter: {
            std::vector<int> breiten, höhen;
            Gittermaße(knoten, breiten, höhen);
            for (const int b : breiten) maß.breite += b;
            for (const int h : höhen) maß.höhe += h;
            const int lücke = Lücke(knoten.lücke_);
            if (!breiten.empty()) maß.breite += lücke * static_cast<int>(breiten.size() - 1);
            if (!höhen.empty()) maß.höhe += lücke * static_cast<int>(höhen.size() - 1);
            break;
        }
        case Knoten::Sorte::Gruppe: {
            maß = messen(knoten.kinder_.front());
            const Bereich rand = ansicht_.Rahmenrand(*knoten.element_);
            maß.breite += rand.breite;
            maß.höhe += rand.höhe;
            if (rollt(*knoten.element_)) maß.höhe = weniger(maß.höhe, zu_viel_.höhe, niedrigste_Rolle);
            break;
        }
        case Knoten::Sorte::Überlagerung:
            for (const Knoten& kind : knoten.kinder_) {
                if (!zählt(kind)) continue;
                const Größe g = messen(kind);
                maß.breite = std::max(maß.breite, g.breite);
                maß.höhe = std::max(maß.höhe, g.höhe);
            }
            break;
    }
    maß.breite = std::max(maß.breite, knoten.mindest_.breite) + 2 * Rand(knoten.rand_);
    maß.höhe = std::max(maß.höhe, knoten.mindest_.höhe) + 2 * Rand(knoten.rand_);
    return maß;
}

Größe Anordnung::messen_Reihe(const Knoten& knoten, bool waagrecht) const {
    Größe maß;
    int anzahl = 0;
    for (const Knoten& kind : knoten.kinder_) {
        if (!zählt(kind)) continue;
        const Größe g = messen(kind);
        ++anzahl;
        if (waagrecht) {
            maß.breite += g.breite;
            maß.höhe = std::max(maß.höhe, g.höhe);
        } else {
            maß.höhe += g.höhe;
            maß.breite = std::max(maß.breite, g.breite);
        }
    }
    const int lücken = anzahl > 1 ? (anzahl - 1) * Lücke(knoten.lücke_) : 0;
    (waagrecht ? maß.breite : maß.höhe) += lücken;
    return maß;
}

void Anordnung::setzen(const Knoten& knoten, Bereich platz) const {
    const int rand = Rand(knoten.rand_);
    platz = {platz.links + rand, platz.oben + rand, platz.breite - 2 * rand, platz.höhe - 2 * rand};
    if (Element* element = knoten.element_; element != nullptr && !element->frei)
        element->lage({platz.links, platz.oben, platz.breite + (rollt(*element) ? Rollrand : 0), platz.höhe});
    switch (knoten.sorte_) {
        case Knoten::Sorte::Abstand:
        case Knoten::Sorte::Element: break;
        case Knoten::Sorte::Zeile: setzen_Reihe(knoten, platz, true); break;
        case Knoten::Sorte::Spalte: setzen_Reihe(knoten, platz, false); break;
        case Knoten::Sorte::Gitter: setzen_Gitter(knoten, platz); break;
        case Knoten::Sorte::Gruppe: {
            if (knoten.element_ == nullptr) break;
            const Bereich rahmen = ansicht_.Rahmenrand(*knoten.element_);
            if (rollt(*knoten.element_)) {
                platz.höhe = std::max(platz.höhe, messen(knoten.kinder_.front()).höhe + rahmen.höhe);
                static_cast<Rahmen*>(knoten.element_)->Inhaltshöhe(platz.höhe);
            }
            setzen(knoten.kinder_.front(),
                   {rahmen.links, rahmen.oben, platz.breite - rahmen.breite, platz.höhe - rahmen.höhe});
            break;
        }
        case Knoten::Sorte::Überlagerung:
            for (const Knoten& kind : knoten.kinder_) setzen(kind, platz);
            break;
    }
}

void Anordnung::setzen_Reihe(const Knoten& knoten, Bereich platz, bool waagrecht) const {
    const Größe bedarf = messen_Reihe(knoten, waagrecht);
    const int übrig = std::max(0, waagrecht ? platz.breite - bedarf.breite : platz.höhe - bedarf.höhe);
    int anteile = 0;
    for (const Knoten& kind : knoten.kinder_)
        if (zählt(kind)) anteile += waagrecht ? kind.dehnung_x_ : kind.dehnung_y_;
    int stelle = waagrecht ? platz.links : platz.oben;
    int verteilt = 0, gesehen = 0;
    for (const Knoten& kind : knoten.kinder_) {
        if (!zählt(kind)) continue;
        const Größe g = messen(kind);
        const int anteil = waagrecht ? kind.dehnung_x_ : kind.dehnung_y_;
        gesehen += anteil;
        // From the running sum, so that the rounding never leaves a rest.
        const int zusatz = anteile > 0 ? übrig * gesehen / anteile - verteilt : 0;
        verteilt += zusatz;
        Bereich teil = platz;
        if (waagrecht) {
            teil.links = stelle;
            teil.breite = g.breite + zusatz;
            stelle += teil.breite + Lücke(knoten.lücke_);
            if (kind.sorte_ == Knoten::Sorte::Element && kind.dehnung_y_ == 0 && g.höhe < platz.höhe) {
                teil.oben = platz.oben + (kind.oben_ ? 0 : (platz.höhe - g.höhe) / 2);
                teil.höhe = g.höhe;
            }
        } else {
            teil.oben = stelle;
            teil.höhe = g.höhe + zusatz;
            stelle += teil.höhe + Lücke(knoten.lücke_);
        }
        setzen(kind, teil);
    }
}

void Anordnung::Gittermaße(const Knoten& knoten, std::vector<int>& breiten, std::vector<int>& höhen) const {
    int stelle = 0;
    for (const Knoten& kind : knoten.kinder_) {
        if (!zählt(kind)) continue;
        const auto spalte = static_cast<std::size_t>(stelle % knoten.spalten_);
        const auto zeile = static_cast<std::size_t>(stelle / knoten.spalten_);
        ++stelle;
        if (breiten.size() <= spalte) breiten.resize(spalte + 1, 0);
        if (höhen.size() <= zeile) höhen.resize(zeile + 1, 0);
        const Größe g = messen(kind);
        breiten[spalte] = std::max(breiten[spalte], g.breite);
        höhen[zeile] = std::max(höhen[zeile], g.höhe);
    }
}

void Anordnung::setzen_Gitter(const Knoten& knoten, Bereich platz) const {
    std::vector<int> breiten, höhen;
    Gittermaße(knoten, breiten, höhen);
    const int lücke = Lücke(knoten.lücke_);
    // Stretching columns share the rest.
    std::vector<int> dehnung(breiten.size(), 0);
    int stelle = 0, anteile = 0;
    for (const Knoten& kind : knoten.kinder_) {
        if (!zählt(kind)) continue;
        int& d = dehnung[static_cast<std::size_t>(stelle++ % knoten.spalten_)];
        d = std::max(d, kind.dehnung_x_);
    }
    int summe = lücke * std::max(0, static_cast<int>(breiten.size()) - 1);
    for (std::size_t i = 0; i < breiten.size(); ++i) summe += breiten[i], anteile += dehnung[i];
    const int übrig = std::max(0, platz.breite - summe);
    int verteilt = 0, gesehen = 0;
    for (std::size_t i = 0; i < breiten.size() && anteile > 0; ++i) {
        gesehen += dehnung[i];
        const int zusatz = übrig * gesehen / anteile - verteilt;
        verteilt += zusatz;
        breiten[i] += zusatz;
    }
    stelle = 0;
    int x = platz.links, y = platz.oben;
    for (const Knoten& kind : knoten.kinder_) {
        if (!zählt(kind)) continue;
        const auto spalte = static_cast<std::size_t>(stelle % knoten.spalten_);
        const auto zeile = static_cast<std::size_t>(stelle / knoten.spalten_);
        if (spalte == 0) x = platz.links;
        Bereich teil{x, y, breiten[spalte], höhen[zeile]};
        if (kind.sorte_ == Knoten::Sorte::Element && kind.dehnung_y_ == 0) {
            const Größe g = messen(kind);
            teil.oben += (teil.höhe - g.höhe) / 2;
            teil.höhe = g.höhe;
        }
        setzen(kind, teil);
        x += breiten[spalte] + lücke;
        ++stelle;
        if (stelle % knoten.spalten_ == 0) y += höhen[zeile] + lücke;
    }
}

}  // namespace tonkartei
