#include "echt.hpp"
#include "programm/buehne.hpp"

using namespace tonkartei;
using Display = Bühne;

TEST_F(Display, WerteGeltenBisZumNächstenStart) {
    öffnen(sammlung("a"), "", {"Display\\Datenport=5"});
    // A control, what it shows, what the hand does to it, its key, and the value at the end of the run.
    const std::tuple<std::string, const char*, std::string, std::string, std::string> fälle[] = {
        {"LPT_Cont", "889", "klick Display_Setup.LPT_LPT1", "Controlport", "890"},
        {"Taster(2)", "Pin 11", "klick Display_Setup.Hi_aktiv(2)", "Taster 2 aktiv", "True"},
        {"Display_Init_aktiv(3)", "Schritt &3", "klick Display_Setup.Display_Init_aktiv(3)", "Init 3 aktiv", "False"},
        {"LPT_Data", "888", "-7.5", "Datenport", "-8"},
        {"LPT_Stat", "889", "viel", "Statusport", "0"},
        {"Register_Select", "Pin 1", "Pin 16", "Register-Select", "4"},
        {"Enable", "Pin 13", "Pin 14", "Enable", "3"},
        {"Taster(1)", "Pin 10", "Pin 17", "Taster 1", "5"},
        {"Taster(3)", "Pin 12", "Pin 10", "Taster 3", "1"},
        {"Display_Anzahl_Zeilen", "4 Zeilen", "#1", "Anzahl Zeilen", "4"},
        {"Display_Anzahl_Zeichen", "20", "16", "Anzahl Zeichen", "16"},
        {"Display_Zeilen_Adresse(2)", "40", "64", "Adresse Zeile 2", "64"},
        {"Display_Befehls_Zeit", "40", "41", "Befehls-Zeit", "41"},
        {"Display_Anzeige_Zeit", "40", "42", "Anzeige-Zeit", "42"},
        {"Display_Init_Wert(2)", "56", "57", "Init 2 Wert", "57"},
        {"Display_Init_Zeit(4)", "40", "43", "Init 4 Zeit", "43"}};
    for (const char* knopf : {"Abbruch", "Ok"}) {
        hand("klick Tonkartei.Menü_Display_Setup");
        EXPECT_EQ(b->ereignis("meldung")["titel"], "Display-Einstellungen");
        EXPECT_EQ(b->meldung(),
                  "Dieser Menü-Punkt ist in Planung und soll es dieser Software ermöglichen als "
                  "Stand-Alone-MP3-Player mit LCD-Display und Steuerungstasten zu arbeiten.");
        hand("antwort OK");
        for (const auto& [element, vorher, tat, schlüssel, nachher] : fälle) {
            EXPECT_EQ(b->text("Display_Setup." + element), vorher);
            hand(tat.starts_with("klick") ? tat : "setze Display_Setup." + element + " " + tat);
        }
        hand(std::string("klick Display_Setup.") + knopf);
    }
    hände({"klick Tonkartei.Menü_Display_Setup", "antwort OK"});
    EXPECT_EQ(b->text("Display_Setup.Display_Anzahl_Zeilen") + b->text("Display_Setup.Enable"), "4 ZeilenPin 14");
    EXPECT_TRUE(b->zeige("Display_Setup.Hi_aktiv(2)")["wert"] && b->zeige("Display_Setup.Low_aktiv(1)")["wert"]);
    EXPECT_FALSE(b->fenster("Tonkartei")["aktiv"].get<bool>());
    hand("schließe Display_Setup");
    beenden();
    const auto alle = Registrierung_echt(ordner.pfad("wurzel/einstellungen.reg")).alle();
    std::map<std::string, std::string> geschrieben(alle.begin(), alle.end());
    for (const auto& [element, vorher, tat, schlüssel, nachher] : fälle)
        EXPECT_EQ(geschrieben["Software\\Tonkartei\\Display\\" + schlüssel], nachher) << element;
    starten();
    EXPECT_EQ(wert("Display\\Enable") + wert("Display\\Taster 2 aktiv"), "2False");
}
