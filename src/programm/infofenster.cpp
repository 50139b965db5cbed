#include "programm/infofenster.hpp"

#include "datenbank/version.hpp"

namespace tonkartei {

Infofenster::Infofenster(Ansicht& ansicht, const Modell& modell) : Fenster(ansicht, "Infofenster", "Info"), modell_(modell) {
    größenveränderlich = false;
    Symbol.Wunsch = {1440, 1440};
    Programm_Name.schrift(18);
    Programm_Name.fett(true);
    for (Schriftfeld* zeile : {&Programm_Name, &Programm_Version, &Autor, &Copyright, &Kontakt}) zeile->wie_Daten = true;
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Ok;
    Ok.Klick.verbinden([this] { entladen(); });
}

Knoten Infofenster::anordnung() {
    return Spalte(
               {Zeile({Spalte({Symbol, Feder(0, 1)}),
                       Spalte({Programm_Name, Programm_Version, Autor, Copyright, Knoten(Kontakt).zeichen(36)}).dehnen(1)})
                    .lücke(300),
                Zeile({Feder(), Ok, Feder()})})
        .lücke(240)
        .rand(240);
}

void Infofenster::beim_Laden() {
    Programm_Name.beschriftung(Programmtitel);
    Programm_Version.beschriftung(modell_.Programmversion);
    Autor.beschriftung(Programm_Autor);
    Copyright.beschriftung(Programm_Copyright);
    Kontakt.beschriftung(Kontaktadresse);
}

}  // namespace tonkartei
