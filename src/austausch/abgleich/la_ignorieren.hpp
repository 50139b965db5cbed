// The window that shows the ignore list and takes songs off it.
#pragma once

#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Ignorieren_Liste;

class LA_Ignorieren : public Fenster {
public:
    LA_Ignorieren(Ansicht& ansicht, Ignorieren_Liste& liste);

    Schriftfeld Liste_Text{*this, "Liste_Text", "&ignorierte Lieder:"};
    Listenfeld Liste{*this, "Liste"};
    Knopf löschen{*this, "löschen", "aus Liste löschen"};
    Knopf Ok{*this, "Ok", "&OK"};

    // Opens with the calling window disabled until it is closed. Nothing when the list cannot be loaded.
    void anzeigen(Fenster& Aufrufer);
    // What it shows.
    Ignorieren_Liste& Einträge() const noexcept { return liste_; }

protected:
    Knoten anordnung() override;
    void beim_Laden() override;
    void beim_Entladen() override;

private:
    void Eintrag_löschen();

    Ignorieren_Liste& liste_;
    Fenster* aufrufer_ = nullptr;
};

}  // namespace tonkartei
