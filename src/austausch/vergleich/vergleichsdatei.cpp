#include "austausch/vergleich/vergleichsdatei.hpp"

#include "austausch/dateikopf.hpp"
#include "austausch/zieldatei.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/text_form.hpp"
#include "datenbank/zeitleser.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr const char* Titel_erstellen = "Datenbank-Vergleichsdatei erstellen";

}  // namespace

void Vergleichsdatei::Vergleichsdatei_erstellen() {
    if (!modell_.Datenbank_offen) return;
    Ansicht& ansicht = fortschritt_.ansicht();
    ansicht.informieren(Titel_erstellen, "Gegen sie bitte an, wo die Vergleichs-Datei gespeichert werden soll.");
    const Text datei = Zieldatei_wählen(ansicht, dateien_, Vergleichsdatei_Filter, "Vergleichsdatei überschreiben");
    if (datei.empty()) return;
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Schreiben(datei);
        schreiben(nummer);
        kanäle_.schließen(nummer);
    } catch (const Dateifehler&) {
        kanäle_.aufgeben(nummer);
        ansicht.informieren(Titel_erstellen, "Ein Fehler ist beim schreiben der Datei aufgetreten!");
    }
}

void Vergleichsdatei::schreiben(int nummer) {
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen("Datenbank-Vergleichsdatei erstellen...");
    Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion, Vergleichsdatei_Kennung);
    kanäle_.schreibe_Zahl(nummer, modell_.Anzahl_Lieder);
    const auto reine_Zahlen = [&](std::initializer_list<int> zahlen) {
        for (const int zahl : zahlen) kanäle_.schreibe_reine_Zahl(nummer, zahl);
    };
    for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) {
        const Lied& lied = modell_.Lieder[nr];
        const Text pfad = modell_.Lied_Pfad(nr);
        const auto datum = dateien_.Änderungszeit(pfad);
        if (!datum) throw Dateifehler(53, pfad);
        Text_schreiben(kanäle_, nummer, lied.Artist);
        kanäle_.schreibe_Zahl(nummer, lied.Größe);
        reine_Zahlen({Stunde(lied.Zeit), Minute(lied.Zeit), Sekunde(lied.Zeit)});
        Text_schreiben(kanäle_, nummer, lied.Titel);
        reine_Zahlen({datum->Tag, datum->Monat, datum->Jahr, datum->Stunde, datum->Minute, datum->Sekunde});
        fortschritt_.anzeigen(Prozent(nr, modell_.Anzahl_Lieder));
    }
}

void Vergleichsdatei::lesen(int nummer,
                            const std::function<void(Long Nr, Long Anzahl, const Vergleichslied& lied)>& je_Lied) {
    const Long anzahl = kanäle_.lese_Long(nummer);
    if (anzahl > Lieder_maximal) throw Laufzeitfehler(Fehler_Index);
    for (Long nr = 1; nr <= anzahl; ++nr) {
        Vergleichslied lied;
        lied.Artist = kanäle_.lese_Zeile(nummer);
        lied.Größe = kanäle_.lese_Long(nummer);
        drei_Zahlen_lesen(kanäle_);
        lied.Titel = kanäle_.lese_Zeile(nummer);
        const auto [tag, monat, jahr] = drei_Zahlen_lesen(kanäle_);
        const auto [stunde, minute, sekunde] = drei_Zahlen_lesen(kanäle_);
        lied.Datum = Zeitpunkt_aus(tag, monat, jahr, stunde, minute, sekunde);
        je_Lied(nr, anzahl, lied);
    }
}

}  // namespace tonkartei
