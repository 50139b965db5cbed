#include "programm/splash.hpp"

#include "datenbank/datenbankraum.hpp"
#include "datenbank/version.hpp"
#include "datenbank/vorschau.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

constexpr int Gleitschritte = 20;
constexpr int Gleitpause = 10;  // milliseconds

}  // namespace

Splash::Splash(Datenbankraum& datenbank)
    : Fenster(datenbank.haus.ansicht, "Splash", Programmtitel), datenbank_(datenbank), haus_(datenbank.haus) {
    größenveränderlich = false;
    Symbol.frei = true;
    Symbol.Wunsch = {1920, 1920};
    Programm_Name.schrift(22);
    Programm_Name.fett(true);
    Programm_Version.schrift(12);
    for (Schriftfeld* zeile : {&Programm_Name, &Programm_Version, &Autor, &Copyright}) {
        zeile->ausrichtung = Schriftfeld::Ausrichtung::Mitte;
        zeile->wie_Daten = true;
    }
    Status.wie_Daten = true;
    Button_1.tooltip("öffnet die in der Liste gewählte Datenbank");
    Button_2.tooltip("öffnet eine nicht in der Liste aufgeführte Datenbank");
    Button_3.tooltip("erstellt eine neue Datenbank");
    Button_4.tooltip("Beendet das Proramm");
    Liste.sichtbar(false);
    Liste.Vorlesename = "zuletzt geöffnete Datenbanken";
    for (Knopf* knopf : {&Button_1, &Button_2, &Button_3, &Button_4}) knopf->sichtbar(false);
    Willkommen.sichtbar(false);
    Vorgabeknopf = &Button_1;
    Liste.Klick.verbinden([this] { Vorschau_zeigen(); });
    Liste.Doppelklick.verbinden([this] { diese_öffnen(); });
    Button_1.Klick.verbinden([this] { diese_öffnen(); });
    Button_2.Klick.verbinden([this] { andere_öffnen(); });
    Button_3.Klick.verbinden([this] { neue_erstellen(); });
    Button_4.Klick.verbinden([this] { aufgeben(); });
}

Knoten Splash::anordnung() {
    // The picture stands above the middle at first and glides to the left edge to make room for the list.
    return Spalte(
               {Überlagerung(
                    {Spalte({Feder(0, 5), Programm_Name, Programm_Version, Autor, Copyright, Feder(0, 1)}),
                     Zeile({Spalte({}).mindestens(2100, 0), Knoten(Liste).zeilen(8).zeichen(44).dehnen(1, 1).Platz_halten(),
                            Spalte({Knoten(Button_1).Platz_halten(), Knoten(Button_2).Platz_halten(),
                                    Knoten(Button_3).Platz_halten(), Feder(0, 1), Knoten(Button_4).Platz_halten()})})})
                    .dehnen(1, 1),
                Knoten(Status).zeichen(60), Willkommen})
        .rand(240);
}

void Splash::beim_Laden() {
    Programm_Name.beschriftung(Programmtitel);
    Programm_Version.beschriftung(haus_.modell.Programmversion);
    Autor.beschriftung(Programm_Autor);
    Copyright.beschriftung(Programm_Copyright);
    fertig_ = false;
    bei_neuer_Größe();
}

void Splash::bei_neuer_Größe() {
    if (wählt_) return;
    const Größe bild = Symbol.Wunsch;
    Symbol.lage({(lage().breite - bild.breite) / 2, 300, bild.breite, bild.höhe});
}

bool Splash::lade_erste_Datenbank() {
    zeigen();
    malen();
    neu_erstellt_ = false;
    Text verzeichnis;
    if (haus_.einstellungen.Datenbank_Liste_Anzahl > 0) {
        Status.beschriftung("suche zuletzt geöffnete Datenbank...");
        malen();
        verzeichnis = haus_.einstellungen.Datenbank_Liste[1];
    }
    haus_.modell.Datenbank_Verzeichnis = verzeichnis;
    if (!haus_.plattform.Dateisystem.Ordner_da(verzeichnis)) Datenbank_wählen();
    if (haus_.modell.Datenbank_Verzeichnis.empty()) return false;
    datenbank_.sitzung.Verzeichnis_setzen(haus_.modell.Datenbank_Verzeichnis);
    if (!neu_erstellt_ && !datenbank_.sitzung.lade_Datenbank()) {
        haus_.modell.Datenbank_Verzeichnis.clear();
        return false;
    }
    return true;
}

void Splash::Datenbank_wählen() {
    // No collection stands behind the main window's commands while the user chooses.
    haus_.modell.Datenbank_offen = false;
    haus_.modell.Datenbank_Verzeichnis.clear();
    wählt_ = true;
    Symbol_gleiten_lassen();
    for (Schriftfeld* zeile : {&Programm_Name, &Programm_Version, &Autor, &Copyright}) zeile->sichtbar(false);
    Status.beschriftung("letzte geöffnete Datenbank nicht gefunden!");
    std::vector<Text> zeilen;
    for (int i = 1; i <= haus_.einstellungen.Datenbank_Liste_Anzahl; ++i)
        zeilen.push_back(haus_.einstellungen.Datenbank_Liste[i]);
    Liste.setzen(std::move(zeilen));
    Informationen_ = {};
    Liste.sichtbar(true);
    for (Knopf* knopf : {&Button_1, &Button_2, &Button_3, &Button_4}) knopf->sichtbar(true);
    // At the very first start there is nothing to be opened.
    const bool erster_Start = Liste.Anzahl() == 0;
    Willkommen.sichtbar(erster_Start);
    Vorgabe_wechseln(erster_Start ? Button_3 : Button_1);
    neu_anordnen();
    ansicht().fokus(erster_Start ? Button_3 : Button_1);
    fertig_ = false;
    ansicht().warten_bis(*this, [this] { return fertig_; });
    wählt_ = false;
    // The main window's own commands may have opened or made one meanwhile.
    if (haus_.modell.Datenbank_offen) neu_erstellt_ = true;
}

void Splash::Symbol_gleiten_lassen() {
    Bereich lage = Symbol.lage();
    const Long schritt = gerundet(lage.links / static_cast<double>(Gleitschritte));
    for (int i = 1; i <= Gleitschritte; ++i) {
        lage.links = (Gleitschritte - i) * schritt;
        Symbol.lage(lage);
        malen();
        haus_.plattform.Rechner.Sleep(Gleitpause);
    }
}

void Splash::aufgeben() {
    haus_.modell.Datenbank_Verzeichnis.clear();
    fertig_ = true;
}

void Splash::diese_öffnen() {
    if (Liste.gewählt() < 0) return;
    Status.beschriftung("öffne Datenbank...");
    const Text verzeichnis = Liste.gewählter_Text();
    if (haus_.plattform.Dateisystem.Ordner_da(verzeichnis)) {
        haus_.modell.Datenbank_Verzeichnis = verzeichnis;
        fertig_ = true;
        return;
    }
    ansicht().informieren("Datenbank öffnen",
                          "Diese Datenbank existiert nicht mehr, oder es ist im moment kein Zugriff darauf möglich.");
}

void Splash::andere_öffnen() {
    const Text verzeichnis = ansicht().Verzeichnis_wählen("Verzeichnis der Tonkartei:");
    if (verzeichnis.empty()) {
        nach_vorn();
        return;
    }
    haus_.modell.Datenbank_Verzeichnis = verzeichnis;
    fertig_ = true;
}

void Splash::neue_erstellen() {
    haus_.modell.Datenbank_offen = false;
    if (datenbank_.sitzung.Datenbank_erstellen(false, false)) {
        neu_erstellt_ = true;
        fertig_ = true;
    } else {
        nach_vorn();
    }
}

void Splash::Vorschau_zeigen() {
    auto& information = Informationen_[static_cast<std::size_t>(Liste.gewählt())];
    if (!information) {
        Status.beschriftung("lese Informationen...");
        malen();
        information =
            Vorschau_Text(haus_.kanäle, haus_.plattform.Dateisystem, Liste.gewählter_Text(), haus_.modell.Programmversion);
    }
    Status.beschriftung(*information);
}

// During the choice the close box is the fourth button; otherwise the window goes by itself.
bool Splash::beim_Schließen(Schließgrund grund) {
    if (grund != Schließgrund::Hand) return true;
    if (wählt_) aufgeben();
    return false;
}

}  // namespace tonkartei
