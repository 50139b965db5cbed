#include "lieder/wartung/vergleichsbericht.hpp"

#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"

namespace tonkartei {
namespace {

constexpr const char* Titel_Bericht = "Vergleichs-Ergebnis schreiben";

Text Stunden_Minuten(Zeit zeit) { return Zahl_mit_Nullen(Stunde(zeit), 2) + ":" + Zahl_mit_Nullen(Minute(zeit), 2); }

}  // namespace

void Vergleichsbericht::Check_DB() {
    if (!modell_.Datenbank_offen) return;
    Ansicht& ansicht = fortschritt_.ansicht();
    Dateiwahl wahl;
    wahl.speichern = true;
    wahl.filter = "Vergleichs-Ergennis (*.MVE)|*.MVE| Alle Dateien (*.*) |*.*";
    const Text pfad = ansicht.Datei_wählen(wahl);
    if (pfad.empty()) return;
    if (dateien_.Datei_da(pfad) &&
        !ansicht.fragen(Titel_Bericht, "Soll die vorhandene Datei wirklich überschrieben werden?"))
        return;

    Long fehlerhafte = 0;
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Schreiben(pfad);
        fehlerhafte = schreiben(nummer);
        kanäle_.schließen(nummer);
    } catch (const Dateifehler& fehler) {
        kanäle_.aufgeben(nummer);
        ansicht.informieren(Programmtitel, fehler.mit_Pfad(pfad));
        return;
    }
    const Text befund = fehlerhafte == 0 ? Text("Es sind keine Fehler festgestellt worden.")
                                         : Zahltext(fehlerhafte) + (fehlerhafte == 1 ? " Eintrag" : " Einträge") +
                                               " in der Datenbank haben Fehler!";
    ansicht.informieren(Titel_Bericht, "Das Vergleichs-Ergebnis wurde erfolgreich geschrieben." + Text(CRCR) + befund);
}

Long Vergleichsbericht::schreiben(int nummer) {
    const Fortschritts_Ende ende(fortschritt_);
    for (const Text& zeile :
         {Text(Programmtitel), Text("Vergleichs-Ergebnis:"), Text(), "Datenbank: " + modell_.Datenbank_Verzeichnis, Text()})
        kanäle_.schreibe_Zeile(nummer, zeile);
    fortschritt_.Text_setzen("Lieder-Namen/-Größe einlesen und vergleichen...");
    Long fehlerhafte = 0;
    for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) {
        if (!Lied_prüfen(nr, fehlerhafte == 0, nummer)) ++fehlerhafte;
        fortschritt_.anzeigen(Prozent(nr, modell_.Anzahl_Lieder));
    }
    kanäle_.schreibe_Zeile(nummer, "");
    kanäle_.schreibe_Zeile(nummer, fehlerhafte == 0 ? Text("Alle Einträge in der Datenbank scheinen zu stimmen.")
                                                    : Zahltext(fehlerhafte) + " Einträge in der Datenbank haben Fehler!");
    return fehlerhafte;
}

// True when the song is in order; else its block is written. The time is shown there, but a song is not at fault for it.
bool Vergleichsbericht::Lied_prüfen(Long Nr, bool erstes, int nummer) {
    const Lied& lied = modell_.Lieder[Nr];
    const Text datei = modell_.Lied_Pfad(Nr);
    const bool da = dateien_.Datei_da(datei);
    Text titel, artist;
    Long größe = 0;
    if (da) {
        mp3_.Lied_Tag_lesen(datei, titel, artist);
        größe = mp3_.Lied_Größe_lesen(datei);
        if (lied.Titel == titel && lied.Artist == artist && lied.Größe == größe) return true;
    }
    const auto zeile = [&](const Text& text) { kanäle_.schreibe_Zeile(nummer, text); };
    const Text strich(40, '-');
    if (erstes) zeile(strich);
    zeile("Fehler bei Lied: " + Lied_Dateiname(Nr));
    zeile("Eintrag in der Datenbank: " + lied.Artist + (da ? " - " : " -") + lied.Titel);
    if (da) zeile("Wirklicher Artist/Titel:  " + artist + " - " + titel);
    zeile("Größe in der Datenbank:   " + Zahltext(lied.Größe));
    if (da) zeile("Wirkliche Größe:          " + Zahltext(größe));
    zeile("Zeit in der Datenbank:    " + Stunden_Minuten(lied.Zeit));
    if (da) {
        Zeit zeit = 0;
        try {
            zeit = mp3_.Lied_Zeit_lesen(datei);
        } catch (const Laufzeitfehler&) {
            // A length that cannot be worked out is as unknown as one that is not found.
        }
        zeile("Wirkliche Zeit:           " + Stunden_Minuten(zeit));
    } else {
        zeile("Schwerer Fehler: Dieses Lied fehlt!");
    }
    zeile(strich);
    return false;
}

}  // namespace tonkartei
