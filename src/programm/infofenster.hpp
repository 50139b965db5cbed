// The about box.
#pragma once

#include "datenbank/modell.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {

class Infofenster : public Fenster {
public:
    Infofenster(Ansicht& ansicht, const Modell& modell);

    Bildfläche Symbol{*this, "Symbol", "symbol"};
    Schriftfeld Programm_Name{*this, "Programm_Name"};
    Schriftfeld Programm_Version{*this, "Programm_Version"};
    Schriftfeld Autor{*this, "Autor"};
    Schriftfeld Copyright{*this, "Copyright"};
    Schriftfeld Kontakt{*this, "Kontakt"};
    Knopf Ok{*this, "Ok", "&Ok"};

protected:
    Knoten anordnung() override;
    void beim_Laden() override;

private:
    const Modell& modell_;
};

}  // namespace tonkartei
