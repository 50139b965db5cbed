#include "oberflaeche/listen.hpp"

#include <utility>

#include "grundlagen/fehler.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {

const Text& Zeilenelement::zeile(int stelle) const {
    if (stelle < 0 || stelle >= Anzahl()) throw Laufzeitfehler(Fehler_Index);
    return zeilen_[static_cast<std::size_t>(stelle)];
}

void Zeilenelement::zeile(int stelle, Text text) {
    if (stelle < 0 || stelle >= Anzahl()) throw Laufzeitfehler(Fehler_Index);
    zeilen_[static_cast<std::size_t>(stelle)] = std::move(text);
    melden(Änderung_Zeilen);
}

void Zeilenelement::hinzufügen(Text text) {
    zeilen_.push_back(std::move(text));
    melden(Änderung_Zeilen);
}

void Zeilenelement::setzen(std::vector<Text> zeilen) {
    zeilen_ = std::move(zeilen);
    gewählt_ = -1;
    Wahl_sichtbar_machen();
    melden(Änderung_Zeilen | Änderung_Wert);
}

void Zeilenelement::entfernen(int stelle) {
    if (stelle < 0 || stelle >= Anzahl()) throw Laufzeitfehler(Fehler_Index);
    zeilen_.erase(zeilen_.begin() + stelle);
    if (gewählt_ == stelle)
        gewählt_ = -1;
    else if (gewählt_ > stelle)
        --gewählt_;
    melden(Änderung_Zeilen | Änderung_Wert);
}

void Zeilenelement::leeren() { setzen({}); }

void Zeilenelement::wähle(int stelle) {
    markieren(stelle);
    if (stelle >= 0) Klick();
}

void Zeilenelement::markieren(int stelle) {
    if (stelle < -1 || stelle >= Anzahl()) throw Laufzeitfehler(380, "Ungültiger Eigenschaftswert");
    gewählt_ = stelle;
    Wahl_sichtbar_machen();
    melden(Änderung_Wert);
}

Text Zeilenelement::gewählter_Text() const { return gewählt_ < 0 ? Text{} : zeile(gewählt_); }

void Zeilenelement::Startwerte_merken() {
    Element::Startwerte_merken();
    start_zeilen_ = zeilen_;
    start_gewählt_ = gewählt_;
}

void Zeilenelement::Startwerte_setzen() {
    Element::Startwerte_setzen();
    zeilen_ = start_zeilen_;
    gewählt_ = start_gewählt_;
}

int Listenfeld::sichtbare_Zeilen() const {
    const int zeilenhöhe = fenster().ansicht().Zeilenhöhe(schrift());
    return zeilenhöhe > 0 ? std::max(1, höhe() / zeilenhöhe) : 1;
}

void Listenfeld::erste(int stelle) {
    stelle = std::clamp(stelle, 0, std::max(0, Anzahl() - 1));
    if (erste_ == stelle) return;
    erste_ = stelle;
    melden(Änderung_Wert);
}

void Listenfeld::Wahl_sichtbar_machen() {
    erste_ = std::clamp(erste_, 0, std::max(0, Anzahl() - 1));
    const int stelle = gewählt();
    if (stelle < 0) return;
    const int passen = sichtbare_Zeilen();
    if (stelle < erste_)
        erste_ = stelle;
    else if (stelle >= erste_ + passen)
        erste_ = stelle - passen + 1;
}

void Reiter::wert(int tab) {
    if (tab < 0 || tab >= static_cast<int>(tabs_.size())) throw Laufzeitfehler(380, "Ungültiger Eigenschaftswert");
    if (wert_ == tab) return;
    wert_ = tab;
    melden(Änderung_Wert);
    Klick();
}

void Reiter::Startwerte_setzen() {
    Element::Startwerte_setzen();
    wert_ = 0;
}

}  // namespace tonkartei
