// The dialog in which albums of another collection are chosen and taken over.
#pragma once

#include "alben/alben.hpp"
#include "grundlagen/ereignis.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Album_Titel_Liste;
class Albenarbeit;
struct Modell;

class Album_importieren : public Fenster {
public:
    Album_importieren(Ansicht& ansicht, Modell& modell, Alben& alben, Albenarbeit& arbeit, Album_Titel_Liste& titel);

    Schriftfeld Liste_Text{*this, "Liste_Text", "gefundene Alben:"};
    Listenfeld Liste{*this, "Liste"};
    Knopf hinzufügen{*this, "hinzufügen", "&hinzufügen -->"};
    Knopf alle_hinzufügen{*this, "alle_hinzufügen", "&alle hinzufügen"};
    Knopf nicht_hinzufügen{*this, "nicht_hinzufügen", "&nicht hinzufügen"};
    Knopf Liste_löschen{*this, "Liste_löschen", "Liste &löschen"};
    Knopf Titel_anzeigen{*this, "Titel_anzeigen", "&Titel anzeigen..."};
    Schriftfeld Liste2_Text{*this, "Liste2_Text", "davon hinzufügen:"};
    Listenfeld Liste2{*this, "Liste2"};
    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "A&bbruch"};
    Listenfeld Nr_Liste{*this, "Nr_Liste"};  // hidden: the foreign album's number of each line of Liste2

    // Shows the foreign albums, with nothing chosen.
    void Init();

    // Albums were taken over.
    Ereignis<> übernommen;
    Ereignis<> geschlossen;

protected:
    Knoten anordnung() override;
    void beim_Entladen() override;

private:
    void aufnehmen(int album);
    void importieren();
    bool vorhanden(const Album& album) const;
    Long übernehmen(Long Nr);

    Modell& modell_;
    Alben& alben_;
    Albenarbeit& arbeit_;
    Album_Titel_Liste& titel_;
};

}  // namespace tonkartei
