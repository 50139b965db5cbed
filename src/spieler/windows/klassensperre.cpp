#include "spieler/windows/klassensperre.hpp"

#include "plattform/windows/breit.hpp"
#include "plattform/windows/winapi.hpp"
#include "spieler/lautstaerke.hpp"

namespace tonkartei::spieler {

namespace {

constexpr DWORD Frist = 5000;  // ms

}  // namespace

// Classes are told apart without case here.
Klassensperre::Klassensperre(const Text& klasse)
    : objekt_(::CreateMutexW(nullptr, FALSE,
                             (L"Local\\Tonkartei Spieler " + breit(Dateiname_aus_Klasse(groß(klasse)))).c_str())) {
    const DWORD ergebnis = objekt_ ? ::WaitForSingleObject(objekt_.griff(), Frist) : WAIT_FAILED;
    hält_ = ergebnis == WAIT_OBJECT_0 || ergebnis == WAIT_ABANDONED;
}

Klassensperre::~Klassensperre() {
    if (hält_) ::ReleaseMutex(objekt_.griff());
}

}  // namespace tonkartei::spieler
