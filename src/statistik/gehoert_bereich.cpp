#include "statistik/gehoert_bereich.hpp"

namespace tonkartei {

Gehört_Bereich::Gehört_Bereich(Fenster& fenster, const Modell& modell, Liedziel ziel)
    : Option(fenster, "Option",
             {"alle (&meistgespielten zuerst)", "alle (&wenigstgespielten zuerst)", "nur &x mal gespielt:"}),
      Anzahl_gespielt(fenster, "Anzahl_gespielt", "0"),
      Lieder(fenster, "", ziel),
      Liste_Anzahl_Text(fenster, "Liste_Anzahl_Text", "Lieder:"),
      Liste_Anzahl(fenster, "Liste_Anzahl", "0"),
      Liste_Durchschnitt_Text(fenster, "Liste_Durchschnitt_Text", "im Durchschnitt gehört:"),
      Liste_Durchschnitt(fenster, "Liste_Durchschnitt", "0"),
      Insgesamt_gehört_Text(fenster, "Insgesamt_gehört_Text", "insgesamt gehört:"),
      Insgesamt_gehört(fenster, "Insgesamt_gehört", "0"),
      modell_(modell) {
    Option[1].wählen();
    for (Optionsfeld& option : Option)
        option.Klick.verbinden([this, &option] { zeigen(static_cast<Gehört_Sicht>(option.Index())); });
    Anzahl_gespielt.tooltip("So oft wurden die gesuchten Lieder gespielt.");
    Anzahl_gespielt.Geändert.verbinden([this] { zeigen(sicht_); });
    for (Schriftfeld* feld : {&Liste_Anzahl, &Liste_Durchschnitt, &Insgesamt_gehört}) {
        feld->eingerahmt = true;
        feld->ausrichtung = Schriftfeld::Ausrichtung::rechts;
    }
}

void Gehört_Bereich::zeigen(Gehört_Sicht sicht) {
    sicht_ = sicht;
    Gehört_Liste liste = Gehört_auflisten(modell_, sicht, Zahlwert(Anzahl_gespielt.text()));
    const auto anzahl = static_cast<long long>(liste.zeilen.size());
    Liste_Anzahl.beschriftung(Zahltext(anzahl));
    Liste_Durchschnitt.beschriftung(Zahltext(anzahl > 0 ? liste.Insgesamt / anzahl : 0));
    Insgesamt_gehört.beschriftung(Zahltext(liste.Insgesamt));
    Lieder.zeigen(std::move(liste.lieder), std::move(liste.zeilen));
}

Knoten Gehört_Bereich::knoten() {
    const auto Wert = [](Schriftfeld& feld) { return Knoten(feld).zeichen(8); };
    return Spalte({Zeile({Option[1], Option[2], Option[3], Knoten(Anzahl_gespielt).zeichen(5).dehnen(1), Feder(3)}),
                   Lieder.Listenknoten(),
                   Zeile({Lieder.Knopfknoten(), Feder(), Liste_Anzahl_Text, Wert(Liste_Anzahl), Liste_Durchschnitt_Text,
                          Wert(Liste_Durchschnitt), Insgesamt_gehört_Text, Wert(Insgesamt_gehört)})});
}

}  // namespace tonkartei
