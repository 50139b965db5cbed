#include "spieler/spieler.hpp"

#include <algorithm>
#include <limits>

#include "plattform/fenstersystem.hpp"
#include "spieler/liste_m3u.hpp"

namespace tonkartei::spieler {

namespace {

constexpr std::int64_t Frage_Status = 104, Frage_Zeit = 105, Befehl_springen = 106, Befehl_Lautstärke = 122;
constexpr std::int64_t Schritt = 5000;  // ms
constexpr auto Merkpause = std::chrono::milliseconds(300);

}  // namespace

Spieler::Spieler(Klang& klang, Dateisystem& platte, const Lautstärkegedächtnis& gedächtnis)
    : klang_(klang), platte_(platte), gedächtnis_(gedächtnis), lautstärke_(gedächtnis.lesen().value_or(255)) {
    klang_.Lautstärke_setzen(lautstärke_);
    klang_.zu_Ende = [this] { spielen_ab(aktuell_ + 1); };
}

std::int32_t Spieler::Nachricht(std::uint32_t nachricht, std::int32_t w, std::int64_t l) {
    if (nachricht == WM_COMMAND) Befehl(w);
    return nachricht == WM_USER ? Anwenderbefehl(w, l) : 0;
}

void Spieler::Befehl(std::int32_t code) {
    switch (code) {
        case Befehl_Wiedergabe:
            if (status_ == Status::pausiert) {
                anhalten(false);
            } else if (status_ == Status::spielt) {
                springen(0);
            } else {
                spielen_ab(aktuell_);
            }
            break;
        case Befehl_Pause:
            if (status_ != Status::gestoppt) anhalten(status_ == Status::spielt);
            break;
        case Befehl_Stopp: stoppen(); break;
        case Befehl_zurück: springen(klang_.Position() - Schritt); break;
        case Befehl_vor: springen(klang_.Position() + Schritt); break;
        default: break;
    }
}

std::int32_t Spieler::Anwenderbefehl(std::int32_t w, std::int64_t l) {
    switch (l) {
        case Frage_Status: return static_cast<std::int32_t>(status_);
        case Frage_Zeit: return w == 0 ? Position() : w == 1 ? Länge() : 0;
        case Befehl_springen:
            if (status_ == Status::gestoppt) return -1;
            springen(w);
            return 0;
        case Befehl_Lautstärke: Lautstärke_stellen(w); return 0;
        default: return 0;
    }
}

void Spieler::Dateien(const std::vector<Text>& dateien, bool ersetzen) {
    auto neue = entfaltet(dateien, platte_);
    if (ersetzen) {
        lieder_ = std::move(neue);
        spielen_ab(0);
    } else {
        lieder_.insert(lieder_.end(), std::make_move_iterator(neue.begin()), std::make_move_iterator(neue.end()));
    }
}

Fensterprozedur::Auskunft Spieler::Auskunft_geben() const {
    return {.Lautstärke = lautstärke_,
            .Status = static_cast<int>(status_),
            .Position = Position(),
            .Länge = Länge(),
            .Datei = aktuell_ < lieder_.size() ? lieder_[aktuell_] : Text()};
}

void Spieler::spielen_ab(std::size_t stelle) {
    // Pipes and devices could keep the engine waiting for ever.
    while (stelle < lieder_.size() && !platte_.Datei_da(lieder_[stelle])) ++stelle;
    if (stelle >= lieder_.size()) {
        aktuell_ = lieder_.empty() ? 0 : lieder_.size() - 1;
        stoppen();
        return;
    }
    aktuell_ = stelle;
    klang_.laden(lieder_[stelle]);
    anhalten(false);
}

void Spieler::nächstes() {
    if (hat_nächstes()) spielen_ab(aktuell_ + 1);
}

void Spieler::Lautstärke_stellen(int wert) {
    lautstärke_ = std::clamp(wert, 0, 255);
    klang_.Lautstärke_setzen(lautstärke_);
    merken_um_ = std::min(merken_um_, std::chrono::steady_clock::now() + Merkpause);
}

void Spieler::stoppen() {
    klang_.stoppen();
    status_ = Status::gestoppt;
}

void Spieler::anhalten(bool angehalten) {
    klang_.anhalten(angehalten);
    status_ = angehalten ? Status::pausiert : Status::spielt;
}

void Spieler::springen(std::int64_t ms) {
    if (status_ != Status::gestoppt) klang_.springen(std::max<std::int64_t>(ms, 0));
}

// -1 tells that nothing plays; rounded to seconds it counts as 0.
std::int32_t Spieler::Position() const {
    if (status_ == Status::gestoppt) return -1;
    return static_cast<std::int32_t>(std::min<std::int64_t>(klang_.Position(), std::numeric_limits<std::int32_t>::max()));
}

std::int32_t Spieler::Länge() const {
    const auto länge = klang_.Länge();
    return länge && *länge >= 0 ? static_cast<std::int32_t>(std::min(*länge, 1e9)) : -1;
}

std::chrono::steady_clock::time_point Spieler::spätestens() const { return merken_um_; }

void Spieler::Fälliges_erledigen() {
    if (std::chrono::steady_clock::now() >= merken_um_) Lautstärke_merken();
}

void Spieler::Lautstärke_merken() {
    if (merken_um_ == std::chrono::steady_clock::time_point::max()) return;
    gedächtnis_.merken(lautstärke_);
    merken_um_ = std::chrono::steady_clock::time_point::max();
}

void Spieler::geschlossen() {
    Lautstärke_merken();
    ende_ = true;
}

}  // namespace tonkartei::spieler
