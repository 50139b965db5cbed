#include "plattform/windows/ordnersuche.hpp"

#include <algorithm>

#include "plattform/dateisystem.hpp"
#include "plattform/windows/breit.hpp"
#include "plattform/windows/winapi.hpp"

namespace tonkartei {

struct Ordnersuche::Fund : WIN32_FIND_DATAW {};

Ordnersuche::Ordnersuche(const std::wstring& muster)
    : fund_(std::make_unique<Fund>()),
      suche_(::FindFirstFileExW(muster.c_str(), FindExInfoBasic, fund_.get(), FindExSearchNameMatch, nullptr,
                                FIND_FIRST_EX_LARGE_FETCH)),
      da_(suche_ != INVALID_HANDLE_VALUE) {}

Ordnersuche::~Ordnersuche() {
    if (da_) ::FindClose(suche_);
}

bool Ordnersuche::weiter() { return ::FindNextFileW(suche_, fund_.get()) != 0; }

std::wstring Ordnersuche::Name() const { return fund_->cFileName; }

bool Ordnersuche::ist_Ordner() const { return (fund_->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }

bool Ordnersuche::ist_Verweis() const {
    return (fund_->dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (fund_->dwReserved0 == IO_REPARSE_TAG_SYMLINK || fund_->dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
}

std::wstring in_seiner_Schreibweise(const std::wstring& weit) {
    const Ordnersuche suche(weit);
    return suche ? weit.substr(0, weit.rfind(L'\\') + 1) + suche.Name() : weit;
}

Text ganz_in_seiner_Schreibweise(const Pfadform& pfad) {
    Pfadform bisher{pfad.Name.substr(0, pfad.Wurzel)};
    for (std::size_t von = pfad.Wurzel; von < pfad.Name.size();) {
        const std::size_t bis = std::min(pfad.Name.find(Trenner, von), pfad.Name.size());
        const Text name = pfad.Name.substr(von, bis - von);
        const Ordnersuche suche(Pfadform{mit_Trenner(bisher.Name) + name}.weit());
        bisher.Name = mit_Trenner(bisher.Name) + (suche ? schmal(suche.Name()) : name);
        von = bis + 1;
    }
    return bisher.Name;
}

}  // namespace tonkartei
