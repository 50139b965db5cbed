#include "datenbank/vorschau.hpp"

#include "datenbank/info_datei.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/version.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

std::optional<Datenbank_Vorschau> lesen(Kanäle& kanäle, int nummer, const Text& Programmversion) {
    if (kanäle.lese_Wert(nummer) != Programmtitel || kanäle.lese_Wert(nummer) != Programmversion) return std::nullopt;
    Bestand bestand;
    Datenbank_Vorschau vorschau;
    Info_Körper_lesen(kanäle, nummer, bestand, [&](Long nr, Long) {
        vorschau.KByte += bestand.Lieder[nr].Größe;
        vorschau.Sekunden += Sekunden_von(bestand.Lieder[nr].Zeit);
    });
    vorschau.Lieder = bestand.Anzahl_Lieder;
    vorschau.Kategorien = bestand.Anzahl_Kategorien;
    return vorschau;
}

}  // namespace

std::optional<Datenbank_Vorschau> lese_Vorschau(Kanäle& kanäle, const Text& Datei, const Text& Programmversion) {
    int nummer = 0;
    std::optional<Datenbank_Vorschau> vorschau;
    try {
        nummer = kanäle.öffnen_zum_Lesen(Datei);
        vorschau = lesen(kanäle, nummer, Programmversion);
    } catch (const Laufzeitfehler&) {
        // A look at a collection must not end the program, whatever is wrong with its file.
        vorschau.reset();
    }
    kanäle.aufgeben(nummer);
    return vorschau;
}

Text Vorschau_Text(Kanäle& kanäle, Dateisystem& dateien, const Text& Verzeichnis, const Text& Programmversion) {
    if (!dateien.Ordner_da(Verzeichnis)) return "Kein Zugriff auf die gewählte Datenbank!";
    const Text datei = mit_Trenner(Verzeichnis) + Info_Datei_Name;
    if (!dateien.Datei_da(datei)) return "In diesem Verzeichnis ist keine Datenbank vorhanden!";
    const auto vorschau = lese_Vorschau(kanäle, datei, Programmversion);
    if (!vorschau) return "Es können keine Informationen gelesen werden (evtl. lte Version).";
    return "Anzahl Lieder: " + Zahltext(vorschau->Lieder) + "; Anzahl Kategorien: " + Zahltext(vorschau->Kategorien) +
           "; Größe: " + Zahltext(vorschau->KByte / 1024) +
           " MB; Dauer: " + Dauer_Text(static_cast<double>(vorschau->Sekunden));
}

}  // namespace tonkartei
