#include "austausch/aufloesung/aufloesen.hpp"

#include <vector>

#include "austausch/aufloesung/datenbank_aufloesung.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

constexpr const char* Überschrift = "Datenbank auflösen";
// The two differ by a blank, ever since.
constexpr const char* keine_Ebene = "---keine ---";
constexpr const char* kein_Namensteil = "--- keine ---";

constexpr int Stelle(Baustein baustein) { return static_cast<int>(baustein); }

void füllen(Auswahlfeld (&felder)[3], const char* keiner, const std::array<Baustein, 3>& vorgabe) {
    for (std::size_t i = 0; i < vorgabe.size(); ++i) felder[i].setzen({"Kategorie", "Artist", "Titel", keiner});
    for (std::size_t i = 0; i < vorgabe.size(); ++i) felder[i].wähle(Stelle(vorgabe[i]));
}

}  // namespace

auflösen::auflösen(Ansicht& ansicht, const Modell& modell, Dateisystem& dateien, Datenbank_Auflösung& arbeit)
    : Fenster(ansicht, "auflösen", Überschrift), modell_(modell), dateien_(dateien), arbeit_(arbeit) {
    größenveränderlich = false;
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    for (std::size_t i = 0; i < 3; ++i) {
        Ebene[i].Vorlesename = "Ebene " + Zahltext(static_cast<Long>(i) + 1);
        DName[i].Vorlesename = "Teil " + Zahltext(static_cast<Long>(i) + 1);
        Ebene[i].tooltip("Wonach die Verzeichnisse dieser Ebene heißen.");
        DName[i].tooltip("Was an dieser Stelle des Dateinamens steht.");
        Ebene[i].Klick.verbinden([this] { Folge_nachführen(Ebene); });
        DName[i].Klick.verbinden([this] { Folge_nachführen(DName); });
    }
    Aktion[0].tooltip("Die Datenbank bleibt, wie sie ist.");
    Aktion[1].tooltip("Die Lieder verlassen die Datenbank.");
    Aktion[1].Klick.verbinden([this] {
        if (!this->ansicht().fragen(Überschrift, "Wenn sie die Lieder bewegen, wird die Datenbank endgültig aufgelöst!" +
                                                     Text(CRCR) + "Sind sie sicher?"))
            Aktion[0].wählen();
    });
    Ok.Klick.verbinden([this] { bestätigen(); });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

Knoten auflösen::anordnung() {
    const auto Liste = [](Schriftfeld(&texte)[3], Auswahlfeld(&felder)[3]) {
        std::vector<Knoten> zellen;
        for (std::size_t i = 0; i < 3; ++i) {
            zellen.emplace_back(texte[i]);
            zellen.push_back(Knoten(felder[i]).zeichen(18).dehnen(1));
        }
        return Gitter(2, std::move(zellen));
    };
    return Spalte({Zeile({Gruppe(Verzeichnisse, Liste(Ebene_Text, Ebene)).dehnen(1),
                          Gruppe(Dateinamen, Liste(DName_Text, DName)).dehnen(1)}),
                   Gruppe(Aktionen, Zeile({Aktion[0], Aktion[1], Feder()})),
                   Zeile({Feder(), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void auflösen::beim_Laden() {
    const Ablageplan vorgabe;
    füllen(Ebene, keine_Ebene, vorgabe.Ebene);
    füllen(DName, kein_Namensteil, vorgabe.DName);
    Aktion[0].wählen();
}

// Behind a level without a value there is none.
void auflösen::Folge_nachführen(Auswahlfeld (&felder)[3]) {
    constexpr int keiner = Stelle(Baustein::keiner);
    for (std::size_t i = 1; i < 3; ++i) {
        const bool offen = felder[i - 1].gewählt() != keiner;
        if (!offen && felder[i].gewählt() != keiner) felder[i].wähle(keiner);
        felder[i].aktiv(offen);
    }
}

Ablageplan auflösen::Plan() const {
    Ablageplan plan;
    for (std::size_t i = 0; i < 3; ++i) {
        plan.Ebene[i] = static_cast<Baustein>(Ebene[i].gewählt());
        plan.DName[i] = static_cast<Baustein>(DName[i].gewählt());
    }
    return plan;
}

bool auflösen::Datenbank_auflösen() {
    if (!modell_.Datenbank_offen) return false;
    const bool eines = modell_.Anzahl_Lieder == 1;
    if (!ansicht().fragen(Überschrift, "Wollen sie diese Datenbank mit " + Zahltext(modell_.Anzahl_Lieder) +
                                           (eines ? " Lied" : " Liedern") + " wirklich auflösen?"))
        return false;
    ausgeführt_ = false;
    zeigen_modal(&Ebene[0]);
    return ausgeführt_;
}

void auflösen::bestätigen() {
    Text ziel = modell_.Datenbank_Verzeichnis;
    if (!ansicht().fragen(Überschrift, "Soll die Datenbank in ihr Verzeichnis aufgelöst werden?"))
        ziel = ansicht().Verzeichnis_wählen("Zielverzeichnis");
    if (dateien_.Ordner_da(ziel)) {
        arbeit_.ausführen(Plan(), mit_Trenner(ziel), Aktion[1].wert());
        ausgeführt_ = true;
    }
    entladen();
}

}  // namespace tonkartei
