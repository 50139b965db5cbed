#include "oberflaeche/fenster.hpp"

#include <algorithm>
#include <utility>

#include "grundlagen/waehrend.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Fenster::Fenster(Ansicht& ansicht, Text name, Text titel)
    : ansicht_(ansicht), name_(std::move(name)), titel_(std::move(titel)), start_titel_(titel_) {
    ansicht_.Fenster_entstanden(*this);
}

Fenster::~Fenster() {
    if (platz_ != nullptr) platz_->Inhalt = nullptr;
    ansicht_.Fenster_vergangen(*this);
    ansicht_.Fenster_verschwindet(*this);
}

void Fenster::laden() {
    if (geladen_) return;
    for (Element* e : elemente_) {
        if (startwerte_da_)
            e->Startwerte_setzen();
        else
            e->Startwerte_merken();
    }
    startwerte_da_ = true;
    titel_ = start_titel_;
    zustand_ = Fensterzustand::normal;
    aktiv_ = true;
    größe_gewählt_ = false;
    geladen_ = true;
    if (!anordnung_) anordnung_ = std::make_unique<Anordnung>(ansicht_, anordnung());
    ansicht_.Fenster_aufnehmen(*this);
    const Größe wunsch = Startgröße();
    const Größe mindest = Mindestgröße();
    const Größe frei = ansicht_.freie_Fläche(*this);
    const auto höchstens = [](int eins, int grenze) { return grenze > 0 ? std::min(eins, grenze) : eins; };
    lage_.breite = std::max(höchstens(wunsch.breite, frei.breite), mindest.breite);
    lage_.höhe = std::max(höchstens(wunsch.höhe, frei.höhe), mindest.höhe);
    if (platz_ == nullptr) zentrieren();
    neu_anordnen();
    if (platz_ != nullptr) platz_->fenster().neu_anordnen();
    beim_Laden();
    if (geladen_) ansicht_.Fenster_geändert(*this);
}

void Fenster::zeigen() {
    laden();
    if (!sichtbar_) {
        sichtbar_ = true;
        ansicht_.Fenster_gezeigt(*this);
    }
    nach_vorn();
}

void Fenster::zeigen_modal(Element* zuerst) {
    laden();
    modal_ = true;
    zeigen();
    if (zuerst != nullptr) ansicht_.fokus(*zuerst);
    ansicht_.modal_laufen_lassen(*this);
    modal_ = false;
}

void Fenster::verstecken() {
    if (!sichtbar_) return;
    sichtbar_ = false;
    ansicht_.Fenster_geändert(*this);
}

bool Fenster::entladen(Schließgrund grund) {
    if (!geladen_) return true;
    if (schließt_) {
        // A closing by hand is asking its own question. Whatever comes of it, an end from outside is not refused.
        außen_verlangt_ = außen_verlangt_ || grund == Schließgrund::außen;
        return true;
    }
    const Während schließt(schließt_);
    außen_verlangt_ = grund == Schließgrund::außen;
    if (!beim_Schließen(grund) && !außen_verlangt_) return false;
    beim_Entladen();
    geladen_ = false;
    sichtbar_ = false;
    ansicht_.Fenster_vergessen(*this);
    ansicht_.Fenster_geändert(*this);
    return true;
}

void Fenster::nach_vorn() {
    if (!geladen_) return;
    ansicht_.Fenster_nach_vorn(*this);
    ansicht_.Fenster_geändert(*this);
}

void Fenster::aktiv(bool wert) {
    if (aktiv_ == wert) return;
    aktiv_ = wert;
    if (geladen_) ansicht_.Fenster_geändert(*this);
}

void Fenster::zustand(Fensterzustand neu) {
    if (zustand_ == neu) return;
    zustand_ = neu;
    ansicht_.Fenster_geändert(*this);
    bei_neuem_Zustand();
}

void Fenster::immer_oben(bool wert) {
    if (immer_oben_ == wert) return;
    immer_oben_ = wert;
    if (geladen_) ansicht_.Fenster_geändert(*this);
}

void Fenster::titel(Text wert) {
    if (titel_ == wert) return;
    titel_ = std::move(wert);
    if (geladen_) ansicht_.Fenster_geändert(*this);
}

void Fenster::titelzusatz(Text wert) {
    if (titelzusatz_ == wert) return;
    titelzusatz_ = std::move(wert);
    if (geladen_) ansicht_.Fenster_geändert(*this);
}

void Fenster::bewegen(int links, int oben) {
    if (lage_.links == links && lage_.oben == oben) return;
    lage_.links = links;
    lage_.oben = oben;
    if (geladen_) ansicht_.Fenster_geändert(*this);
}

void Fenster::größe(int breite, int höhe) {
    von_Hand_bemessen(breite, höhe);
    if (geladen_) ansicht_.Fenster_geändert(*this);
}

void Fenster::von_Hand_bewegt(int links, int oben) {
    lage_.links = links;
    lage_.oben = oben;
    if (geladen_) bei_neuer_Lage();
}

void Fenster::von_Hand_bemessen(int breite, int höhe) {
    const Größe mindest = Mindestgröße();
    breite = std::max(breite, mindest.breite);
    höhe = std::max(höhe, mindest.höhe);
    if (lage_.breite == breite && lage_.höhe == höhe) return;
    lage_.breite = breite;
    lage_.höhe = höhe;
    größe_gewählt_ = true;
    neu_anordnen();
    if (geladen_) bei_neuer_Größe();
}

void Fenster::von_Hand_Zustand(Fensterzustand neu) {
    if (zustand_ == neu) return;
    zustand_ = neu;
    bei_neuem_Zustand();
}

void Fenster::zentrieren() {
    const Größe bildschirm = ansicht_.Bildschirm();
    bewegen((bildschirm.breite - lage_.breite) / 2, (bildschirm.höhe - lage_.höhe) / 2);
}

Größe Fenster::Mindestgröße() { return anordnung_ ? anordnung_->Mindestgröße(ansicht_.freie_Fläche(*this)) : Größe{}; }

Element* Fenster::element(const Text& name, int index) const {
    for (Element* e : elemente_)
        if (e->Name() == name && (index == -1 || e->Index() == index)) return e;
    return nullptr;
}

void Fenster::neu_anordnen() {
    if (!geladen_ || !anordnung_ || ordnet_) return;
    const Größe mindest = Mindestgröße();
    const bool zu_klein = mindest.breite > lage_.breite || mindest.höhe > lage_.höhe;
    if (Fenster* ganzes = Elternfenster(); zu_klein && ganzes != nullptr && ganzes->geladen_ && !ganzes->ordnet_) {
        ganzes->neu_anordnen();  // which gives this part its room, and comes back
        return;
    }
    ordnet_ = true;
    if (zu_klein) {
        lage_.breite = std::max(lage_.breite, mindest.breite);
        lage_.höhe = std::max(lage_.höhe, mindest.höhe);
        ansicht_.Fenster_geändert(*this);
    }
    anordnung_->anordnen({lage_.breite, lage_.höhe});
    Eingebettete_anordnen();
    ordnet_ = false;
    bei_neuer_Anordnung();
}

void Fenster::Eingebettete_anordnen() {
    for (const Element* e : elemente_) {
        Fenster* teil = e->art() == Elementart::Rahmen ? static_cast<const Rahmen*>(e)->Inhalt : nullptr;
        if (teil == nullptr || !teil->geladen_ || teil->ordnet_) continue;
        const Bereich rand = ansicht_.Rahmenrand(*e);
        teil->lage_ = {e->links() + rand.links, e->oben() + rand.oben, e->breite() - rand.breite, e->höhe() - rand.höhe};
        teil->neu_anordnen();
        teil->bei_neuer_Größe();
        ansicht_.Fenster_geändert(*teil);
    }
}

void Fenster::einbetten(Rahmen& platz) {
    platz_ = &platz;
    platz.Inhalt = this;
}

Fenster* Fenster::Elternfenster() const noexcept { return platz_ == nullptr ? nullptr : &platz_->fenster(); }

void Fenster::Vorgabe_wechseln(Element& knopf) {
    Element* bisher = std::exchange(Vorgabeknopf, &knopf);
    if (bisher != nullptr) ansicht_.Element_geändert(*bisher, Änderung_Aussehen);
    ansicht_.Element_geändert(knopf, Änderung_Aussehen);
}

void Fenster::malen() {
    if (sichtbar()) ansicht_.Fenster_malen(*this);
}

}  // namespace tonkartei
