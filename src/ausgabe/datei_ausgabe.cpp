#include "ausgabe/datei_ausgabe.hpp"

#include "liste/listenbereich.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

constexpr const char* Titel = "Datei ausgeben";
enum Trennerwahl { Tabulator = 1, Leerzeichen, Strich, anderes };

}  // namespace

Datei_ausgabe::Datei_ausgabe(Ansicht& ansicht, Dateisystem& dateien, Liedausgabe& ausgabe, const Listenbereich& liste)
    : Fenster(ansicht, "Datei_ausgabe", "Liedernamen in Datei ausgeben"),
      dateien_(dateien),
      ausgabe_(ausgabe),
      liste_(liste) {
    größenveränderlich = false;
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    const std::vector<Text> angebot{"Artist", "Titel", "Kategorie", "Anzahl", "Dateigröße", "Datum", "---"};
    for (Auswahlfeld& spalte : Spalte) {
        const int vorgabe = spalte.Index() <= 3 ? spalte.Index() - 1 : static_cast<int>(Spaltenart::keine);
        spalte.setzen(angebot);
        spalte.wähle(vorgabe);
        spalte.tooltip("Was in dieser Spalte der Datei steht.");
    }
    Spaltentrenner[3].Vorlesename = "senkrechter Strich";
    Spaltentrenner[Tabulator].wählen();
    for (Optionsfeld& option : Spaltentrenner) option.Klick.verbinden([this, &option] { Trenner_Nr_ = option.Index(); });
    Spaltentrennzeichen.tooltip("Was zwischen zwei Spalten steht.");
    Dateiname.tooltip("Die Datei, in die geschrieben wird.");
    Dateiname_suchen.klein = true;
    Dateiname_suchen.tooltip("Datei auswählen.");
    Dateiname_suchen.Klick.verbinden([this] { suchen(); });
    Ok.Klick.verbinden([this] { bestätigen(); });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

void Datei_ausgabe::öffnen() {
    if (Nummern().empty()) return;
    zeigen();
    ansicht().fokus(Dateiname);
}

void Datei_ausgabe::beim_Laden() {
    Trenner_Nr_ = Tabulator;
    const Bereich& haupt = liste_.Liste.fenster().lage();
    bewegen(haupt.links + (haupt.breite - lage().breite) / 2, haupt.oben + (haupt.höhe - lage().höhe) / 2);
}

void Datei_ausgabe::suchen() {
    Dateiwahl wahl;
    wahl.speichern = true;
    wahl.filter = "Ausgabe-Datei (*.Txt)|*.Txt| Alle Dateien (*.*) |*.*";
    const Text datei = ansicht().Datei_wählen(wahl);
    if (!datei.empty()) Dateiname.text(datei);
}

void Datei_ausgabe::bestätigen() {
    if (Dateiname.text().empty()) {
        ansicht().informieren(Titel, "Kein Dateiname angegeben!");
        return;
    }
    if (darf_schreiben()) ausgabe_.schreiben(Dateiname.text(), Form(), Nummern());
    entladen();
}

bool Datei_ausgabe::darf_schreiben() {
    if (Spaltentrennzeichen.text().empty() && Trenner_Nr_ == anderes &&
        !ansicht().fragen(Titel, "Es ist kein Spaltentrennzeichen angegeben!" + Text(CRCR) +
                                     "Soll die Datei ohne dieses Zeichen erstellt werden?"))
        return false;
    const Text& datei = Dateiname.text();
    return !dateien_.Datei_da(datei) ||
           ansicht().fragen(Titel, "Die Datei" + Text(CRCR) + anzeigbar(datei) + Text(CRCR) + "existiert bereits." +
                                       Text(CRCR) + "Soll sie überschrieben werden?");
}

Ausgabeform Datei_ausgabe::Form() const {
    Ausgabeform form;
    for (int s = 1; s <= Spalte.Anzahl(); ++s)
        form.Spalten.at(static_cast<std::size_t>(s - 1)) = static_cast<Spaltenart>(Spalte[s].gewählt());
    switch (Trenner_Nr_) {
        case Tabulator: form.Trenner = "\t"; break;
        case Leerzeichen: form.Trenner = " "; break;
        case Strich: form.Trenner = "|"; break;  // the blanks of its caption are not written
        default: form.Trenner = Spaltentrennzeichen.text();
    }
    return form;
}

// While the other tab is on show, the numbers are those of albums.
std::vector<Long> Datei_ausgabe::Nummern() const {
    std::vector<Long> nummern;
    if (!ausgabe_.möglich() || liste_.Datenbank_Modus.wert() != 0) return nummern;
    for (int zeile = 0; zeile < liste_.Liste.Anzahl(); ++zeile) nummern.push_back(liste_.Lied_Nr(zeile));
    return nummern;
}

Knoten Datei_ausgabe::anordnung() {
    std::vector<Knoten> spalten;
    for (int s = 1; s <= Spalte.Anzahl(); ++s) {
        spalten.emplace_back(Spalte_Text[s]);
        spalten.push_back(Knoten(Spalte[s]).zeichen(12).dehnen(1));
    }
    auto& t = Spaltentrenner;
    return tonkartei::Spalte(
               {Zeile({Gruppe(Spalten_Rahmen, Gitter(4, std::move(spalten))).dehnen(1),
                       Gruppe(Trenner_Rahmen,
                              tonkartei::Spalte(
                                  {t[1], t[2], t[3], Zeile({t[4], Knoten(Spaltentrennzeichen).zeichen(5).dehnen(1)})}))}),
                Zeile({Dateiname_Text, Knoten(Dateiname).zeichen(40).dehnen(1), Dateiname_suchen}),
                Zeile({Feder(), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

}  // namespace tonkartei
