// Windows that were taken over from another process, and how they were before. Nothing takes one over any more: the players
// are hidden instead. What there is gives windows back.
#pragma once

#include "grundlagen/feld.hpp"
#include "plattform/fenstersystem.hpp"

namespace tonkartei {

class Kidnap {
public:
    explicit Kidnap(Fenstersystem& fenstersystem) : system_(fenstersystem) {}

    static constexpr int Fenster_maximal = 100;

    void Kidnap_leeren();
    // To its old parent, in its old styles; nothing for a place that is free.
    void Fenster_zurückgeben(int Index);
    void alle_Fenster_zurückgeben();

    struct Gekapertes {
        bool aktiv = false;
        Hwnd Fenster = 0;
        std::int32_t Stil = 0, erweiterter_Stil = 0;
        Hwnd Elter = 0;
    };
    Feld<Gekapertes, Fenster_maximal> Gekaperte_Fenster;

private:
    Fenstersystem& system_;
};

}  // namespace tonkartei
