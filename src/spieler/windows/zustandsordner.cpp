#include "spieler/zustandsordner.hpp"

#include "plattform/dateisystem.hpp"
#include "plattform/windows/breit.hpp"
#include "plattform/windows/dateiangaben.hpp"
#include "plattform/windows/winapi.hpp"

#include <knownfolders.h>
#include <objbase.h>
#include <shlobj.h>

namespace tonkartei::spieler {

Text Zustandsordner() {
    wchar_t* pfad = nullptr;
    const bool da = ::SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &pfad) == S_OK;
    const Text ordner = da ? mit_Trenner(schmal(pfad)) + "Tonkartei\\Spieler\\" : Text();
    ::CoTaskMemFree(pfad);
    return da && Ordner_kette_anlegen(ordner) ? ordner : Text();
}

}  // namespace tonkartei::spieler
