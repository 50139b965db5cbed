// The settings of a display with push buttons on the parallel port. Nothing drives such a display yet: the dialog only keeps
// their values for the run.
#pragma once

#include "oberflaeche/elementreihe.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

struct Display_Einstellungen;

class Display_Setup : public Fenster {
public:
    Display_Setup(Ansicht& ansicht, Display_Einstellungen& werte);

    Rahmen LPT_Rahmen{*this, "LPT_Rahmen", "Parallel-Port"};
    Schriftfeld LPT_Data_Text{*this, "LPT_Data_Text", "&Datenport:"};
    Textfeld LPT_Data{*this, "LPT_Data"};
    Schriftfeld LPT_Stat_Text{*this, "LPT_Stat_Text", "&Statusport:"};
    Textfeld LPT_Stat{*this, "LPT_Stat"};
    Schriftfeld LPT_Cont_Text{*this, "LPT_Cont_Text", "&Controlport:"};
    Textfeld LPT_Cont{*this, "LPT_Cont"};
    Knopf LPT_LPT1{*this, "LPT_LPT1", "LPT1"};

    Rahmen Taster_Rahmen{*this, "Taster_Rahmen", "Tasten"};
    Elementreihe<Schriftfeld, 3> Taster_Text{*this, "Taster_Text", {"Multifunktion:", "links / oben:", "rechts / unten:"}};
    Elementreihe<Auswahlfeld, 3> Taster{*this, "Taster"};
    Elementreihe<Optionsfeld, 3> Hi_aktiv{*this, "Hi_aktiv", {"High-aktiv", "High-aktiv", "High-aktiv"}};
    Elementreihe<Optionsfeld, 3> Low_aktiv{*this, "Low_aktiv", {"Low-aktiv", "Low-aktiv", "Low-aktiv"}};
    // Place for the state of a pressed button.
    Elementreihe<Schriftfeld, 3> Taster_Status{*this, "Taster_Status"};

    Rahmen Display_Rahmen{*this, "Display_Rahmen", "Display"};
    Schriftfeld Register_Select_Text{*this, "Register_Select_Text", "&Register-Select:"};
    Auswahlfeld Register_Select{*this, "Register_Select"};
    Schriftfeld Enable_Text{*this, "Enable_Text", "&Enable:"};
    Auswahlfeld Enable{*this, "Enable"};
    Schriftfeld Display_Anzahl_Zeilen_Text{*this, "Display_Anzahl_Zeilen_Text", "Anzahl &Zeilen:"};
    Auswahlfeld Display_Anzahl_Zeilen{*this, "Display_Anzahl_Zeilen"};
    Schriftfeld Display_Anzahl_Zeichen_Text{*this, "Display_Anzahl_Zeichen_Text", "Zeichen &pro Zeile:"};
    Textfeld Display_Anzahl_Zeichen{*this, "Display_Anzahl_Zeichen"};
    Schriftfeld Display_Befehls_Zeit_Text{*this, "Display_Befehls_Zeit_Text", "&Befehls-Zeit:"};
    Textfeld Display_Befehls_Zeit{*this, "Display_Befehls_Zeit"};
    Schriftfeld Display_Anzeige_Zeit_Text{*this, "Display_Anzeige_Zeit_Text", "A&nzeige-Zeit:"};
    Textfeld Display_Anzeige_Zeit{*this, "Display_Anzeige_Zeit"};
    Elementreihe<Schriftfeld, 4> Display_Zeilen_Adresse_Text{
        *this,
        "Display_Zeilen_Adresse_Text",
        {"Adresse Zeile 1:", "Adresse Zeile 2:", "Adresse Zeile 3:", "Adresse Zeile 4:"}};
    Elementreihe<Textfeld, 4> Display_Zeilen_Adresse{*this, "Display_Zeilen_Adresse"};

    Rahmen Init_Rahmen{*this, "Init_Rahmen", "Initialisierung"};
    Schriftfeld Init_Wert_Text{*this, "Init_Wert_Text", "Wert"};
    Schriftfeld Init_Zeit_Text{*this, "Init_Zeit_Text", "Zeit"};
    Elementreihe<Kasten, 4> Display_Init_aktiv{
        *this, "Display_Init_aktiv", {"Schritt &1", "Schritt &2", "Schritt &3", "Schritt &4"}};
    Elementreihe<Textfeld, 4> Display_Init_Wert{*this, "Display_Init_Wert"};
    Elementreihe<Textfeld, 4> Display_Init_Zeit{*this, "Display_Init_Zeit"};
    // Place for a test of the initialisation.
    Knopf Init_Test{*this, "Init_Test", "Display initialisieren (&Test)"};

    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "&Abbruch"};

    void öffnen();
    // It is open (true) or not any more.
    Ereignis<bool> offen;

protected:
    Knoten anordnung() override;
    void beim_Entladen() override { offen(false); }

private:
    void Listen_füllen();
    void Reset();
    void übernehmen();

    Display_Einstellungen& werte_;
};

}  // namespace tonkartei
