#include "spieler/mpg123/klang_mpg123.hpp"

#include <mpg123.h>

#include <utility>

#include "spieler/mpg123/spielwerk.hpp"

namespace tonkartei::spieler {

using namespace std::chrono_literals;

namespace {

constexpr auto Takt = 10ms;  // between two looks at the output, far below what it has in store

}  // namespace

Klang_mpg123::Klang_mpg123(const Text& ausgabe, Dateisystem& platte, std::function<void()> wecken)
    : wecken_(std::move(wecken)) {
    mpg123_init();
    faden_ = std::thread([this, stumm = ausgabe == "null", &platte] { laufen(stumm, platte); });
}

Klang_mpg123::~Klang_mpg123() {
    wünschen([](Wunsch& wunsch) { wunsch.Ende = true; });
    faden_.join();
}

template <class Änderung>
void Klang_mpg123::wünschen(Änderung änderung) {
    {
        const std::lock_guard sperre(sperre_);
        änderung(wunsch_);
        gewünscht_ = true;
    }
    neues_.notify_one();
}

void Klang_mpg123::Lied_wünschen(const Text& datei) {
    wünschen([&](Wunsch& wunsch) {
        ++wunsch.Lied;
        wunsch.Datei = datei;
        wunsch.Ziel.reset();
        stand_ = {};
    });
}

void Klang_mpg123::laden(const Text& datei) { Lied_wünschen(datei); }
void Klang_mpg123::stoppen() { Lied_wünschen({}); }
void Klang_mpg123::anhalten(bool angehalten) {
    wünschen([&](Wunsch& wunsch) { wunsch.angehalten = angehalten; });
}
void Klang_mpg123::Lautstärke_setzen(int wert) {
    wünschen([&](Wunsch& wunsch) { wunsch.Lautstärke = wert; });
}
void Klang_mpg123::springen(std::int64_t ms) {
    wünschen([&](Wunsch& wunsch) {
        ++wunsch.Sprung;
        wunsch.Ziel = ms;
    });
}

std::int64_t Klang_mpg123::Position() const {
    const std::lock_guard sperre(sperre_);
    return wunsch_.Ziel.value_or(stand_.Position);
}

std::optional<double> Klang_mpg123::Länge() const {
    const std::lock_guard sperre(sperre_);
    return stand_.Länge;
}

void Klang_mpg123::abholen() {
    {
        const std::lock_guard sperre(sperre_);
        if (!stand_.zu_Ende) return;
        stand_ = {};
        wunsch_.Ziel.reset();
    }
    if (zu_Ende) zu_Ende();
}

void Klang_mpg123::laufen(bool stumm, Dateisystem& platte) {
    Spielwerk werk(platte, stumm);
    std::uint64_t lied = 0;
    bool spielt = false;
    for (;;) {
        Wunsch wunsch;
        {
            std::unique_lock sperre(sperre_);
            const auto da = [this] { return gewünscht_; };
            if (spielt)
                neues_.wait_for(sperre, Takt, da);
            else
                neues_.wait(sperre, da);
            gewünscht_ = false;
            wunsch = wunsch_;
        }
        if (wunsch.Ende) return;
        const Stand stand = tun(wunsch, werk, lied, spielt);
        {
            const std::lock_guard sperre(sperre_);
            // What was told of a song that nobody wishes any more is stale.
            if (wunsch_.Lied != wunsch.Lied) continue;
            if (wunsch_.Sprung == wunsch.Sprung) wunsch_.Ziel.reset();
            if (!spielt && !stand.zu_Ende) continue;
            stand_ = stand;
        }
        if (stand.zu_Ende) wecken_();
    }
}

Klang_mpg123::Stand Klang_mpg123::tun(const Wunsch& wunsch, Spielwerk& werk, std::uint64_t& lied, bool& spielt) {
    Stand stand;
    werk.Lautstärke_setzen(wunsch.Lautstärke);
    werk.anhalten(wunsch.angehalten);
    if (std::exchange(lied, wunsch.Lied) != wunsch.Lied) {
        if (wunsch.Datei.empty()) werk.stoppen();
        spielt = !wunsch.Datei.empty() && werk.laden(wunsch.Datei);
        stand.zu_Ende = !spielt && !wunsch.Datei.empty();
    }
    if (!spielt) return stand;
    if (wunsch.Ziel) werk.springen(*wunsch.Ziel);
    spielt = werk.weiter();
    stand.zu_Ende = !spielt;
    stand.Position = werk.Position();
    stand.Länge = werk.Länge();
    return stand;
}

}  // namespace tonkartei::spieler
