#include "probe/mitschrift.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tonkartei {
namespace {

constexpr std::size_t Höchstzahl = 10000;

bool reine_Frage(const Mitschrift_Eintrag& eintrag) {
    const auto* nachricht = std::get_if<Mitschrift_Nachricht>(&eintrag.Was);
    return nachricht != nullptr && nachricht->reine_Frage();
}

}  // namespace

void Mitschrift::eintragen(decltype(Mitschrift_Eintrag::Was) was) {
    Mitschrift_Eintrag eintrag{++nr_, uhr_(), std::move(was)};
    auto& ziel = reine_Frage(eintrag) ? fragen_ : einträge_;
    ziel.push_back(std::move(eintrag));
    if (ziel.size() > Höchstzahl) ziel.pop_front();
}

std::vector<Mitschrift_Eintrag> Mitschrift::nehmen(bool alles) {
    std::vector<Mitschrift_Eintrag> ergebnis;
    const auto früher = [](const Mitschrift_Eintrag& a, const Mitschrift_Eintrag& b) { return a.Nr < b.Nr; };
    if (alles)
        std::merge(einträge_.begin(), einträge_.end(), fragen_.begin(), fragen_.end(), std::back_inserter(ergebnis), früher);
    else
        ergebnis.assign(einträge_.begin(), einträge_.end());
    if (ergebnis.size() > Höchstzahl)
        ergebnis.erase(ergebnis.begin(), ergebnis.end() - static_cast<std::ptrdiff_t>(Höchstzahl));
    einträge_.clear();
    fragen_.clear();
    return ergebnis;
}

std::optional<std::int32_t> Fenstersystem_Mitschrift::SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w,
                                                                   std::int64_t l) {
    mitschrift_.eintragen(Mitschrift_Nachricht{innen_.GetClassNameA(fenster), nachricht, w, l});
    return innen_.SendMessageA(fenster, nachricht, w, l);
}

bool Fenstersystem_Mitschrift::SetWindowPos(Hwnd fenster, Hwnd davor, int x, int y, int breite, int höhe,
                                            std::uint32_t flags) {
    mitschrift_.eintragen(Mitschrift_Fensterbefehl{
        innen_.GetClassNameA(fenster), "SetWindowPos", {davor, x, y, breite, höhe, std::int64_t{flags}}});
    return innen_.SetWindowPos(fenster, davor, x, y, breite, höhe, flags);
}

Hwnd Fenstersystem_Mitschrift::SetParent(Hwnd fenster, Hwnd neuer_Elter) {
    mitschrift_.eintragen(Mitschrift_Fensterbefehl{innen_.GetClassNameA(fenster), "SetParent", {neuer_Elter}});
    return innen_.SetParent(fenster, neuer_Elter);
}

std::int32_t Fenstersystem_Mitschrift::SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) {
    mitschrift_.eintragen(Mitschrift_Fensterbefehl{innen_.GetClassNameA(fenster), "SetWindowLongA", {stelle, wert}});
    return innen_.SetWindowLongA(fenster, stelle, wert);
}

Shell_Ergebnis Shell_Mitschrift::SHFileOperationA(const Shell_Vorgang& vorgang) {
    mitschrift_.eintragen(vorgang);
    return innen_.SHFileOperationA(vorgang);
}

void Shell_Mitschrift::starten(const Text& befehl, int fensterstil) {
    mitschrift_.eintragen(Mitschrift_Prozess{befehl});
    innen_.starten(befehl, fensterstil);
}

void Rechner_Mitschrift::Sleep(int ms) {
    mitschrift_.eintragen(Mitschrift_Pause{ms});
    innen_.Sleep(ms);
}

}  // namespace tonkartei
