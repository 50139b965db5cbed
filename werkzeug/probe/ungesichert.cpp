#include "probe/ungesichert.hpp"

#include <algorithm>

#include "grundlagen/fehler.hpp"
#include "plattform/offene_datei.hpp"

namespace tonkartei {

void Ungesichert::schreiben(const Text& pfad, Dateisystem& dateien, Dateisystem::Griff griff, std::uint64_t stelle,
                            std::size_t anzahl) {
    auto i = dateien_.find(groß(pfad));
    if (i == dateien_.end()) i = dateien_.emplace(groß(pfad), Datei{pfad, dateien.Länge(griff), {}}).first;
    Datei& datei = i->second;
    if (stelle >= datei.länge) return;
    Stück stück{stelle, std::vector<char>(std::min<std::uint64_t>(anzahl, datei.länge - stelle))};
    dateien.lesen(griff, stelle, stück.bytes);
    datei.altes.push_back(std::move(stück));
}

void Ungesichert::umbenannt(const Text& von, const Text& nach) {
    const Text alt = groß(von);
    std::map<Text, Datei> bewegte;
    for (auto i = dateien_.lower_bound(alt); i != dateien_.end() && i->first.starts_with(alt);) {
        Datei datei = std::move(i->second);
        datei.pfad = nach + datei.pfad.substr(von.size());
        const Text schlüssel = groß(datei.pfad);
        bewegte.emplace(schlüssel, std::move(datei));
        i = dateien_.erase(i);
    }
    dateien_.merge(bewegte);
}

void Ungesichert::verlieren(Dateisystem& dateien) {
    for (const auto& [schlüssel, datei] : dateien_) try {
            zurücksetzen(datei, dateien);
        } catch (const Dateifehler&) {  // it is not there any more
        }
    dateien_.clear();
}

void Ungesichert::zurücksetzen(const Datei& datei, Dateisystem& dateien) {
    const Text pfad = ohne_Trenner(datei.pfad);
    std::vector<char> bytes(datei.länge);
    {
        Offene_Datei jetzt(dateien, pfad, Dateimodus::lesen);
        bytes.resize(jetzt.lesen(0, bytes));
    }
    for (auto i = datei.altes.rbegin(); i != datei.altes.rend(); ++i)
        if (i->stelle + i->bytes.size() <= bytes.size())
            std::copy(i->bytes.begin(), i->bytes.end(), bytes.begin() + static_cast<std::ptrdiff_t>(i->stelle));
    Offene_Datei(dateien, pfad, Dateimodus::schreiben).schreiben(0, bytes);
}

}  // namespace tonkartei
