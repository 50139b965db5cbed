#include "plattform/windows/aufruf.hpp"

#include "plattform/windows/breit.hpp"
#include "plattform/windows/winapi.hpp"

#include <shellapi.h>

namespace tonkartei {

Aufruf::Aufruf(int argc, char** argv) : Anzahl(argc), Argumente(argv) {
    int anzahl = 0;
    wchar_t** breite = ::CommandLineToArgvW(::GetCommandLineW(), &anzahl);
    if (breite == nullptr) return;
    for (int i = 0; i < anzahl; ++i) texte_.push_back(schmal(breite[i]));
    ::LocalFree(breite);
    for (Text& text : texte_) zeiger_.push_back(text.data());
    zeiger_.push_back(nullptr);
    Anzahl = anzahl;
    Argumente = zeiger_.data();
}

}  // namespace tonkartei
