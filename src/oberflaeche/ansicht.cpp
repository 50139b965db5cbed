#include "oberflaeche/ansicht.hpp"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

#include "oberflaeche/fenster.hpp"

namespace tonkartei {
namespace {

template <class T>
void entfernen(std::vector<T*>& liste, const Fenster* was) {
    liste.erase(std::remove(liste.begin(), liste.end(), was), liste.end());
}

}  // namespace

void Ansicht::informieren(const Text& titel, const Text& text) {
    Meldungsfeld feld;
    feld.titel = titel;
    feld.text = text;
    Kasten(text);
    melden(feld);
}

bool Ansicht::fragen(const Text& titel, const Text& text, Antwort vorgabe) {
    Meldungsfeld feld;
    feld.titel = titel;
    feld.text = text;
    feld.art = Meldungsfeld::Art::Frage;
    feld.knöpfe = Meldungsfeld::Knöpfe::JaNein;
    feld.vorgabe = vorgabe;
    Kasten(text);
    return melden(feld) == Antwort::Ja;
}

Antwort Ansicht::fragen_oder_abbrechen(const Text& titel, const Text& text, const Text& quelle) {
    Meldungsfeld feld;
    feld.titel = titel;
    feld.text = text;
    feld.art = Meldungsfeld::Art::Frage;
    feld.knöpfe = Meldungsfeld::Knöpfe::JaNeinAbbrechen;
    feld.vorgabe = Antwort::Ja;
    feld.quelle = quelle;
    if (quelle == "programm") Kasten(text);
    return melden(feld);
}

void Ansicht::Fortschritt_beendet(const Text&, int) {}

void Ansicht::ausführen(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const Programmende&) {
        // The end is decided already; the loops around this handler see it.
    } catch (const Laufzeitfehler& fehler) {
        an_Laufzeitfehler_enden(fehler);
    } catch (const std::bad_alloc&) {
        an_Laufzeitfehler_enden(Laufzeitfehler(7, "Nicht genügend Speicher"));
    } catch (const std::exception& fehler) {
        // Nothing of the standard library may end the process without a word; the classic number of what is our own fault.
        an_Laufzeitfehler_enden(Laufzeitfehler(51, "Interner Fehler (" + Text(fehler.what()) + ")"));
    }
}

Text Ansicht::Fehlertext(const Laufzeitfehler& fehler) {
    // Once: should this fail as well, it is not asked again.
    const auto retten = std::exchange(vor_dem_Absturz, nullptr);
    const Text dazu = retten ? retten() : Text{};
    return fehler.Beschreibung() + (dazu.empty() ? Text{} : Text(CRCR) + dazu);
}

void Ansicht::beenden() { endet_ = true; }

bool Ansicht::erreichbar(const Fenster& fenster) const {
    if (const Fenster* ganzes = fenster.Elternfenster()) return erreichbar(*ganzes);
    if (modale_.empty() || modale_.back() == &fenster) return true;
    const auto modal = std::find(gezeigt_.begin(), gezeigt_.end(), modale_.back());
    return std::find(modal, gezeigt_.end(), &fenster) != gezeigt_.end();
}

void Ansicht::fokus(Element& element) {
    if (!element.fenster().sichtbar() || !element.nimmt_Fokus()) return;
    fokus_ = &element;
    Fenster_nach_vorn(element.fenster());
    Fokus_zeigen(element);
}

void Ansicht::Fenster_entstanden(Fenster& fenster) { alle_.push_back(&fenster); }

void Ansicht::Fenster_vergangen(Fenster& fenster) {
    Fenster_vergessen(fenster);
    entfernen(alle_, &fenster);
}

void Ansicht::Fenster_aufnehmen(Fenster& fenster) {
    // A window that is loaded but not yet shown lies behind all others.
    fenster_.push_back(&fenster);
}

void Ansicht::Fenster_vergessen(Fenster& fenster) {
    entfernen(fenster_, &fenster);
    entfernen(gezeigt_, &fenster);
    if (fokus_ != nullptr && &fokus_->fenster() == &fenster) fokus_ = nullptr;
}

void Ansicht::Fenster_nach_vorn(Fenster& fenster) {
    if (Fenster* ganzes = fenster.Elternfenster(); ganzes != nullptr && ganzes->sichtbar()) Fenster_nach_vorn(*ganzes);
    entfernen(fenster_, &fenster);
    fenster_.insert(fenster_.begin(), &fenster);
}

void Ansicht::Fenster_gezeigt(Fenster& fenster) {
    entfernen(gezeigt_, &fenster);
    gezeigt_.push_back(&fenster);
}

void Ansicht::Element_verschwindet(Element& element) {
    if (fokus_ == &element) fokus_ = nullptr;
}

void Ansicht::modal_laufen_lassen(Fenster& fenster) {
    struct Eintrag {
        std::vector<Fenster*>& liste;
        Eintrag(std::vector<Fenster*>& l, Fenster& f) : liste(l) { liste.push_back(&f); }
        ~Eintrag() { liste.pop_back(); }
    };
    {
        const Eintrag eintrag(modale_, fenster);
        for (Fenster* anderes : fenster_) Fenster_geändert(*anderes);
        modal_laufen(fenster);
    }
    for (Fenster* anderes : fenster_) Fenster_geändert(*anderes);
}

}  // namespace tonkartei
