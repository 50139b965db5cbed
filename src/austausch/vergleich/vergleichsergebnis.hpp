// The outcome of a comparison by file, and the list of songs to be requested from the other collector.
#pragma once

#include "austausch/vergleichsfenster.hpp"
#include "datenbank/modell.hpp"

namespace tonkartei {

class Anforderungsdatei;
class Dateisystem;

class Vergleichsergebnis : public Vergleichsfenster {
public:
    Vergleichsergebnis(tonkartei::Ansicht& ansicht, Dateisystem& dateien, Anforderungsdatei& datei);

    Knopf anfordern{*this, "anfordern", "a&nfordern >"};
    Knopf alle_anfordern{*this, "alle_anfordern", "&alle anfordern >>"};
    Knopf nicht_anfordern{*this, "nicht_anfordern", "< n&icht anfordern"};
    Knopf keine_Anfordern{*this, "keine_Anfordern", "<< &keine anfordern"};
    Schriftfeld AListe_Text{*this, "AListe_Text", "angeforderte &Lieder:"};
    Listenfeld AListe{*this, "AListe"};
    Schriftfeld AListe_Anzahl_Text{*this, "AListe_Anzahl_Text", "Anzahl:"};
    Schriftfeld AListe_Anzahl{*this, "AListe_Anzahl", "0"};
    Knopf Anfrderungsdatei{*this, "Anfrderungsdatei", "Anforderungsdatei &erstellen"};
    Knopf Ok{*this, "Ok", "&OK"};
    // The numbers of the requested songs in the other collection, line by line beside AListe, ascending, none twice.
    Listenfeld angeforderte{*this, "angeforderte"};

protected:
    Knoten anordnung() override;

private:
    void aufnehmen(const std::vector<Text>& zeilen);
    void Anzahl_zeigen();
    void Datei_erstellen();

    Dateisystem& dateien_;
    Anforderungsdatei& datei_;
};

}  // namespace tonkartei
