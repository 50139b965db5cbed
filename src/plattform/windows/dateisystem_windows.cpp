#include "plattform/windows/dateisystem_windows.hpp"

#include <algorithm>

#include "plattform/windows/breit.hpp"
#include "plattform/windows/ordnersuche.hpp"
#include "plattform/windows/systemfehler.hpp"
#include "plattform/windows/winapi.hpp"

namespace tonkartei {
namespace {

constexpr std::size_t Stück = 64U << 20U;  // what one call moves at most

Text Ordner_am_Anfang() {
    std::wstring ordner(::GetCurrentDirectoryW(0, nullptr), L'\0');
    ordner.resize(::GetCurrentDirectoryW(static_cast<DWORD>(ordner.size()), ordner.data()));
    const auto form = Pfadform_von(schmal(ordner), {});
    return form ? mit_Trenner(form->Name) : "C:\\";
}

// Reading and writing at a place, without moving a common one.
OVERLAPPED an_Stelle(std::uint64_t stelle) {
    OVERLAPPED ort{};
    ort.Offset = static_cast<DWORD>(stelle);
    ort.OffsetHigh = static_cast<DWORD>(stelle >> 32U);
    return ort;
}

}  // namespace

Dateisystem_Windows::Dateisystem_Windows() : aktueller_Ordner_(Ordner_am_Anfang()) {}

std::wstring Dateisystem_Windows::weit(const Text& pfad) const {
    if (pfad.empty() || pfad.find('\0') != Text::npos) throw Dateifehler(53, pfad);
    const auto form = Pfadform_von(pfad, aktueller_Ordner_);
    if (!form) throw Dateifehler(75, pfad);
    return form->weit();
}

std::optional<Dateiangaben> Dateisystem_Windows::da(const Text& pfad) const {
    if (pfad.empty() || pfad.find('\0') != Text::npos) return std::nullopt;
    const auto form = Pfadform_von(pfad, aktueller_Ordner_);
    Dateiangaben angaben;
    if (!form || ansehen(form->weit(), angaben) != 0 || (form->als_Ordner && !angaben.Ordner)) return std::nullopt;
    return angaben;
}

Dateiangaben Dateisystem_Windows::genau(const std::wstring& weit, const Text& pfad, int verweigert) const {
    Dateiangaben angaben;
    if (const auto fehler = genau_ansehen(weit, angaben, true); fehler != 0) werfen(fehler, pfad, verweigert);
    return angaben;
}

Dateisystem_Windows::Offen& Dateisystem_Windows::Offen_von(Griff griff) {
    if (griff < 1 || static_cast<std::size_t>(griff) > offene_.size() || !offene_[static_cast<std::size_t>(griff) - 1].griff)
        throw Dateifehler(52);
    return offene_[static_cast<std::size_t>(griff) - 1];
}

const Dateisystem_Windows::Offen* Dateisystem_Windows::offen_hier(const Dateikennung& datei) const {
    const Offen* treffer = nullptr;
    for (const Offen& offen : offene_)
        if (offen.griff && offen.kennung == datei)
            if (treffer == nullptr || offen.schreibend) treffer = &offen;
    return treffer;
}

const Dateisystem_Windows::Offen* Dateisystem_Windows::offen_hier(const std::wstring& weit) const {
    Dateiangaben angaben;
    return genau_ansehen(weit, angaben) == 0 ? offen_hier(angaben.Kennung) : nullptr;
}

// The system's word for a file that somebody works on is the same whether it is us.
void Dateisystem_Windows::werfen_beim_Öffnen(unsigned long fehler, const std::wstring& weit, const Text& pfad) const {
    if (fehler == ERROR_SHARING_VIOLATION && offen_hier(weit) != nullptr) throw Dateifehler(55, pfad);
    werfen(fehler, pfad);
}

Dateisystem::Griff Dateisystem_Windows::öffnen(const Text& pfad, Dateimodus modus) {
    const bool neu = modus == Dateimodus::schreiben;
    const bool schreibend = modus != Dateimodus::lesen;
    std::wstring ganzer = weit(pfad);
    const DWORD zugriff = !schreibend ? GENERIC_READ
                          : neu       ? GENERIC_WRITE | FILE_READ_ATTRIBUTES
                                      : GENERIC_READ | GENERIC_WRITE;
    const DWORD andere = schreibend ? FILE_SHARE_READ : FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    Systemgriff griff(::CreateFileW(ganzer.c_str(), zugriff, andere, nullptr, neu ? OPEN_ALWAYS : OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!griff) werfen_beim_Öffnen(::GetLastError(), ganzer, pfad);
    Dateiangaben datei;
    if (const auto fehler = ansehen(griff.griff(), datei); fehler != 0) werfen(fehler, pfad);
    // Not every server minds the protection.
    if (datei.Ordner || (schreibend && datei.schreibgeschützt)) throw Dateifehler(75, pfad);
    const Offen* schon = offen_hier(datei.Kennung);
    if (schon != nullptr && (schon->schreibend || schreibend)) throw Dateifehler(55, pfad);
    if (neu && datei.Länge > 0 && ::SetEndOfFile(griff.griff()) == 0) werfen_letzten(pfad);

    auto platz = std::find_if(offene_.begin(), offene_.end(), [](const Offen& offen) { return !offen.griff; });
    if (platz == offene_.end()) platz = offene_.emplace(platz);
    *platz = Offen{std::move(griff), schreibend, datei.Kennung, datei.Länge, pfad, std::move(ganzer)};
    return static_cast<Griff>(platz - offene_.begin()) + 1;
}

std::size_t Dateisystem_Windows::lesen(Griff griff, std::uint64_t stelle, std::span<char> ziel) {
    const Offen& offen = Offen_von(griff);
    std::size_t gelesen = 0;
    while (gelesen < ziel.size()) {
        // At the known end a further call would only confirm it.
        if (!offen.schreibend && stelle + gelesen >= offen.länge) break;
        OVERLAPPED ort = an_Stelle(stelle + gelesen);
        DWORD teil = 0;
        const auto höchstens = static_cast<DWORD>(std::min(Stück, ziel.size() - gelesen));
        if (::ReadFile(offen.griff.griff(), ziel.data() + gelesen, höchstens, &teil, &ort) == 0) {
            if (::GetLastError() == ERROR_HANDLE_EOF) break;
            werfen_letzten(offen.pfad);
        }
        if (teil == 0) break;
        gelesen += teil;
    }
    return gelesen;
}

void Dateisystem_Windows::schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) {
    const Offen& offen = Offen_von(griff);
    if (!offen.schreibend) throw Dateifehler(54, offen.pfad);
    while (!bytes.empty()) {
        OVERLAPPED ort = an_Stelle(stelle);
        DWORD teil = 0;
        if (::WriteFile(offen.griff.griff(), bytes.data(), static_cast<DWORD>(std::min(Stück, bytes.size())), &teil, &ort) ==
            0)
            werfen_letzten(offen.pfad);
        if (teil == 0) throw Dateifehler(61, offen.pfad);
        stelle += teil;
        bytes = bytes.subspan(teil);
    }
}

std::uint64_t Dateisystem_Windows::Länge(Griff griff) {
    const Offen& offen = Offen_von(griff);
    if (!offen.schreibend) return offen.länge;
    LARGE_INTEGER länge;
    if (::GetFileSizeEx(offen.griff.griff(), &länge) == 0) werfen_letzten(offen.pfad);
    return static_cast<std::uint64_t>(länge.QuadPart);
}

// Names need nothing: the file systems here keep a log of them.
void Dateisystem_Windows::sichern(Griff griff) {
    const Offen& offen = Offen_von(griff);
    Systemgriff zweiter;
    if (!offen.schreibend) {
        // Only who may write may ask for it.
        zweiter = Systemgriff(::CreateFileW(offen.weit.c_str(), GENERIC_WRITE,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                            FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!zweiter) werfen_letzten(offen.pfad);
    }
    if (::FlushFileBuffers(zweiter ? zweiter.griff() : offen.griff.griff()) == 0) werfen_letzten(offen.pfad);
}

void Dateisystem_Windows::schließen(Griff griff) {
    Offen& offen = Offen_von(griff);
    // Some file systems tell only here that the disk is full. The handle is gone in any case.
    if (!offen.griff.schließen() && offen.schreibend) werfen_letzten(offen.pfad);
}

bool Dateisystem_Windows::Datei_da(const Text& pfad) { return Art_von(pfad) == Pfadart::Datei; }
bool Dateisystem_Windows::Ordner_da(const Text& pfad) { return Art_von(pfad) == Pfadart::Ordner; }

Pfadart Dateisystem_Windows::Art_von(const Text& pfad) {
    const auto angaben = da(pfad);
    return !angaben ? Pfadart::nichts : angaben->Ordner ? Pfadart::Ordner : Pfadart::Datei;
}

std::int64_t Dateisystem_Windows::Dateilänge(const Text& pfad) {
    const auto angaben = da(pfad);
    return angaben && !angaben->Ordner ? static_cast<std::int64_t>(angaben->Länge) : -1;
}

std::optional<Zeitpunkt> Dateisystem_Windows::Änderungszeit(const Text& pfad) {
    const auto angaben = da(pfad);
    if (!angaben || angaben->Ordner) return std::nullopt;
    return örtlich(angaben->geändert);
}

bool Dateisystem_Windows::gleiche_Datei(const Text& a, const Text& b) {
    Dateiangaben eine, andere;
    return da(a) && da(b) && genau_ansehen(weit(a), eine) == 0 && genau_ansehen(weit(b), andere) == 0 && !eine.Ordner &&
           eine.Kennung == andere.Kennung;
}

bool Dateisystem_Windows::gleiches_Laufwerk(const Text& a, const Text& b) {
    const auto laufwerk = [this](const Text& pfad) {
        std::wstring ganzer = weit(pfad);
        std::wstring ergebnis(ganzer.size() + MAX_PATH, L'\0');
        if (::GetVolumePathNameW(ganzer.c_str(), ergebnis.data(), static_cast<DWORD>(ergebnis.size())) == 0) return Text();
        return groß(schmal(ergebnis.c_str()));
    };
    return laufwerk(a) == laufwerk(b);
}

std::optional<std::uint64_t> Dateisystem_Windows::freie_Bytes(const Text& ordner) {
    ULARGE_INTEGER frei;
    if (!da(ordner) || ::GetDiskFreeSpaceExW(weit(ordner).c_str(), &frei, nullptr, nullptr) == 0) return std::nullopt;
    return frei.QuadPart;
}

void Dateisystem_Windows::aktuellen_Ordner_setzen(const Text& ordner) {
    if (!Ordner_da(ordner)) throw Dateifehler(76, ordner);
    aktueller_Ordner_ = mit_Trenner(ganz_in_seiner_Schreibweise(*Pfadform_von(ordner, aktueller_Ordner_)));
}

}  // namespace tonkartei
