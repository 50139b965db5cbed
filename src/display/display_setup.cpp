#include "display/display_setup.hpp"

#include "datenbank/einstellungen.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

Long Zahl(const Textfeld& feld) { return gerundet(Zahlwert(feld.text())); }
void eintragen(Textfeld& feld, Long wert) { feld.text(Zahltext(wert)); }

// Lists hold positions from 1.
Long Stelle(const Auswahlfeld& liste) { return liste.gewählt() + 1; }
void eintragen(Auswahlfeld& liste, Long stelle) { liste.wähle(stelle - 1); }

}  // namespace

Display_Setup::Display_Setup(Ansicht& ansicht, Display_Einstellungen& werte)
    : Fenster(ansicht, "Display_Setup", "Display/Tasten-Einstellungen"), werte_(werte) {
    größenveränderlich = false;
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    LPT_LPT1.tooltip("Setzt die Werte für Daten-, Status- und Controlport auf die Standartwerte für LPT1");
    for (int i = 1; i <= Taster.Anzahl(); ++i)
        Hi_aktiv[i].Gruppe = Low_aktiv[i].Gruppe = "Taster_aktiv(" + Zahltext(i) + ")";
    for (int i = 1; i <= Display_Init_Wert.Anzahl(); ++i) {
        Display_Init_Wert[i].Vorlesename = "Wert " + Zahltext(i);
        Display_Init_Zeit[i].Vorlesename = "Zeit " + Zahltext(i);
    }
    Listen_füllen();
    LPT_LPT1.Klick.verbinden([this] {
        LPT_Data.text("888");
        LPT_Stat.text("889");
        LPT_Cont.text("890");
    });
    Ok.Klick.verbinden([this] {
        übernehmen();
        entladen();
    });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

void Display_Setup::öffnen() {
    offen(true);
    ansicht().informieren(
        "Display-Einstellungen",
        "Dieser Menü-Punkt ist in Planung und soll es dieser Software ermöglichen als Stand-Alone-MP3-Player "
        "mit LCD-Display und Steuerungstasten zu arbeiten.");
    // The end of the program may have come while the box was up.
    if (ansicht().endet()) return;
    laden();
    Reset();
    zeigen();
    ansicht().fokus(LPT_Data);
}

void Display_Setup::Listen_füllen() {
    for (Auswahlfeld* pins : {&Register_Select, &Enable}) pins->setzen({"Pin 1", "Pin 13", "Pin 14", "Pin 16"});
    for (Auswahlfeld& taster : Taster) taster.setzen({"Pin 10", "Pin 11", "Pin 12", "Pin 15", "Pin 17"});
    Display_Anzahl_Zeilen.setzen({"1 Zeile", "2 Zeilen", "3 Zeilen", "4 Zeilen"});
}

void Display_Setup::Reset() {
    eintragen(LPT_Data, werte_.Datenport);
    eintragen(LPT_Stat, werte_.Statusport);
    eintragen(LPT_Cont, werte_.Controlport);
    eintragen(Register_Select, werte_.Register_Select);
    eintragen(Enable, werte_.Enable);
    for (int i = 0; i < Taster.Anzahl(); ++i) {
        eintragen(Taster[i + 1], werte_.Taster[i]);
        (werte_.Taster_aktiv[i] ? Hi_aktiv : Low_aktiv)[i + 1].wählen();
    }
    eintragen(Display_Anzahl_Zeilen, werte_.Anzahl_Zeilen);
    eintragen(Display_Anzahl_Zeichen, werte_.Anzahl_Zeichen);
    eintragen(Display_Befehls_Zeit, werte_.Befehls_Zeit);
    eintragen(Display_Anzeige_Zeit, werte_.Anzeige_Zeit);
    for (int i = 0; i < Display_Zeilen_Adresse.Anzahl(); ++i) {
        eintragen(Display_Zeilen_Adresse[i + 1], werte_.Adresse_Zeile[i]);
        Display_Init_aktiv[i + 1].wert(werte_.Init_aktiv[i]);
        eintragen(Display_Init_Wert[i + 1], werte_.Init_Wert[i]);
        eintragen(Display_Init_Zeit[i + 1], werte_.Init_Zeit[i]);
    }
}

// All but the number of lines: that one never got further than into the number of characters, which has its own field.
void Display_Setup::übernehmen() {
    werte_.Datenport = Zahl(LPT_Data);
    werte_.Statusport = Zahl(LPT_Stat);
    werte_.Controlport = Zahl(LPT_Cont);
    werte_.Register_Select = Stelle(Register_Select);
    werte_.Enable = Stelle(Enable);
    for (int i = 0; i < Taster.Anzahl(); ++i) {
        werte_.Taster[i] = Stelle(Taster[i + 1]);
        werte_.Taster_aktiv[i] = Hi_aktiv[i + 1].wert();
    }
    werte_.Anzahl_Zeichen = Zahl(Display_Anzahl_Zeichen);
    werte_.Befehls_Zeit = Zahl(Display_Befehls_Zeit);
    werte_.Anzeige_Zeit = Zahl(Display_Anzeige_Zeit);
    for (int i = 0; i < Display_Zeilen_Adresse.Anzahl(); ++i) {
        werte_.Adresse_Zeile[i] = Zahl(Display_Zeilen_Adresse[i + 1]);
        werte_.Init_aktiv[i] = Display_Init_aktiv[i + 1].wert();
        werte_.Init_Wert[i] = Zahl(Display_Init_Wert[i + 1]);
        werte_.Init_Zeit[i] = Zahl(Display_Init_Zeit[i + 1]);
    }
}

Knoten Display_Setup::anordnung() {
    // Every such field holds a number.
    const auto Feld = [](Textfeld& feld) { return Knoten(feld).zeichen(7).dehnen(1); };
    const auto anfügen = [](std::vector<Knoten>& zellen, std::initializer_list<Knoten> neue) {
        zellen.insert(zellen.end(), neue.begin(), neue.end());
    };
    std::vector<Knoten> tasten, display, schritte{Feder(0), Init_Wert_Text, Init_Zeit_Text};
    for (int i = 1; i <= Taster.Anzahl(); ++i)
        anfügen(tasten, {Taster_Text[i], Taster[i], Hi_aktiv[i], Low_aktiv[i], Knoten(Taster_Status[i]).zeichen(2)});
    anfügen(display, {Register_Select_Text, Knoten(Register_Select).dehnen(1), Enable_Text, Knoten(Enable).dehnen(1)});
    anfügen(display,
            {Display_Anzahl_Zeilen_Text, Display_Anzahl_Zeilen, Display_Anzahl_Zeichen_Text, Feld(Display_Anzahl_Zeichen)});
    anfügen(display,
            {Display_Befehls_Zeit_Text, Feld(Display_Befehls_Zeit), Display_Anzeige_Zeit_Text, Feld(Display_Anzeige_Zeit)});
    // Two columns, read downwards.
    for (const int i : {1, 3, 2, 4}) anfügen(display, {Display_Zeilen_Adresse_Text[i], Feld(Display_Zeilen_Adresse[i])});
    for (int i = 1; i <= Display_Init_aktiv.Anzahl(); ++i)
        anfügen(schritte, {Display_Init_aktiv[i], Feld(Display_Init_Wert[i]), Feld(Display_Init_Zeit[i])});
    return Spalte({Gruppe(LPT_Rahmen, Zeile({LPT_Data_Text, Feld(LPT_Data), LPT_Stat_Text, Feld(LPT_Stat), LPT_Cont_Text,
                                             Feld(LPT_Cont), LPT_LPT1})),
                   Zeile({Gruppe(Taster_Rahmen, Gitter(5, std::move(tasten))).dehnen(1),
                          Gruppe(Init_Rahmen, Gitter(3, std::move(schritte))).dehnen(1)}),
                   Gruppe(Display_Rahmen, Gitter(4, std::move(display))),
                   Zeile({Init_Test, Feder(), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

}  // namespace tonkartei
