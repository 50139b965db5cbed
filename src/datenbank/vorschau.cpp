#include "datenbank/vorschau.hpp"

#include "datenbank/info_datei.hpp"
#include "datenbank/version.hpp"
#include "datenbank/zeitleser.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

void Zeilen_überlesen(Kanäle& kanäle, int nummer, int anzahl) {
    for (int i = 0; i < anzahl; ++i) kanäle.lese_Zeile(nummer);
}

std::optional<Datenbank_Vorschau> lesen(Kanäle& kanäle, int nummer, const Text& Programmversion) {
    if (kanäle.lese_Wert(nummer) != Programmtitel || kanäle.lese_Wert(nummer) != Programmversion) return std::nullopt;
    Datenbank_Vorschau vorschau;
    vorschau.Kategorien = kanäle.lese_Byte(nummer);
    Zeilen_überlesen(kanäle, nummer, vorschau.Kategorien);
    kanäle.lese_Byte(nummer);  // schemes offered
    for (int s = 1; s <= Schemas_maximal; ++s) {
        const int anzahl = kanäle.lese_Byte(nummer);
        Zeilen_überlesen(kanäle, nummer, 1 + anzahl);
    }
    kanäle.lese_Long(nummer);  // backup limit
    vorschau.Lieder = kanäle.lese_Long(nummer);
    for (long long n = 1; n <= vorschau.Lieder; ++n) {
        Zeilen_überlesen(kanäle, nummer, 2);  // count, artist
        vorschau.KByte += kanäle.lese_Long(nummer);
        Zeilen_überlesen(kanäle, nummer, 2);  // category, title
        const auto [stunden, minuten, sekunden] = drei_Zahlen_lesen(kanäle);
        vorschau.Sekunden += Sekunden_von(Zeit_aus(stunden, minuten, sekunden));
    }
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
