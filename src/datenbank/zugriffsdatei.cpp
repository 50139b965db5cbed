#include "datenbank/zugriffsdatei.hpp"

#include "datenbank/info_datei.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/version.hpp"
#include "datenbank/zeitleser.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {
namespace {

constexpr const char* Kennung = "Datenbank-Zugriffsdatei";
constexpr const char* beschädigt = "Die Zugriffsdatei hat einen Fehler!";

}  // namespace

void Zugriffsdatei::schreibe_Zugriffsdatei() {
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Schreiben(modell_.Pfad(Zugriffsdatei_Name));
        const Zeitpunkt jetzt = rechner_.jetzt();
        Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion, Kennung);
        kanäle_.schreibe_Zeile(nummer, rechner_.GetComputerNameA());
        kanäle_.schreibe_Zeile(nummer, rechner_.GetUserNameA());
        for (const int zahl : {jetzt.Tag, jetzt.Monat, jetzt.Jahr, jetzt.Stunde, jetzt.Minute, jetzt.Sekunde})
            kanäle_.schreibe_reine_Zahl(nummer, zahl);
        // An empty one, after a power failure, would lock the collection.
        kanäle_.schließen(nummer, true);
    } catch (const Dateifehler&) {
        kanäle_.aufgeben(nummer);
        ansicht_.informieren("Zugriffsdatei schreiben",
                             "Es ist ein Fehler beim Schreiben der Datenbank-Zugriffsdatei aufgetreten!");
    }
}

bool Zugriffsdatei::lese_Zugriffsdatei(const Text& Datei, Zeitpunkt& zeitpunkt, Text& Computer, Text& Benutzer) {
    Text fehler;
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Lesen(Datei);
        fehler = Inhalt_lesen(nummer, zeitpunkt, Computer, Benutzer);
    } catch (const Dateifehler&) {
        fehler = "Es ist ein Fehler beim Lesen der Datenbank-Zugriffsdatei aufgetreten!";
    }
    kanäle_.aufgeben(nummer);
    if (fehler.empty()) return true;
    ansicht_.informieren("Zugriffsdatei lesen", fehler + Text(CRCR) + "Kontaktieren sie den Autor!");
    return false;
}

// Empty, or what is wrong with the file.
Text Zugriffsdatei::Inhalt_lesen(int nummer, Zeitpunkt& zeitpunkt, Text& Computer, Text& Benutzer) {
    if (kanäle_.lese_Zeile(nummer) != Programmtitel)
        return "Die Zugriffsdatei ist nicht von diesem Programm erstellt worden!";
    // Whatever version wrote it: the layout never changed.
    kanäle_.lese_Zeile(nummer);
    if (kanäle_.lese_Zeile(nummer) != Kennung) return beschädigt;
    Computer = kanäle_.lese_Zeile(nummer);
    Benutzer = kanäle_.lese_Zeile(nummer);
    const auto [tag, monat, jahr] = drei_Zahlen_lesen(kanäle_);
    const auto [stunde, minute, sekunde] = drei_Zahlen_lesen(kanäle_);
    try {
        zeitpunkt = Zeitpunkt_aus(tag, monat, jahr, stunde, minute, sekunde);
    } catch (const Laufzeitfehler&) {
        return beschädigt;  // beyond any calendar
    }
    return {};
}

}  // namespace tonkartei
