#include "lieder/hinzufuegen/dateien_uebernehmen.hpp"

#include "lieder/cshfileop.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"

namespace tonkartei {
namespace {

Text Datum_Zeit(const Zeitpunkt& zeit) { return "Datum/Zeit: " + langes_Datum(zeit) + " " + lange_Uhrzeit(zeit); }

Text Titel_Artist(const Text& titel, const Text& artist) { return "Titel: " + titel + Text(CR) + "Artist: " + artist; }

}  // namespace

Long Dateien_übernehmen::ausführen(const Übernahme_Auftrag& auftrag) {
    A_ = 0;
    spieler_.WinAmp_Befehl_Standard(WinAmp_Code_Stop);
    if (auftrag.Lieder.empty()) return 0;
    const Fortschritts_Ende ende(fortschritt_);

    fortschritt_.Text_setzen("Sammle Informationen...");
    const Doppelte_Lieder vorhandene(modell_, dateien_,
                                     [&](Long nr) { fortschritt_.anzeigen(Prozent(nr, modell_.Anzahl_Lieder)); });

    fortschritt_.Text_setzen("Lieder hinzufügen...");
    std::size_t erledigt = 0;
    for (const Lied_Fund& lied : auftrag.Lieder) {
        // Ended from outside while a box was up, and saved: what is not there yet stays where it is.
        if (fortschritt_.ansicht().endet()) break;
        if (übernehmen(lied, auftrag.Modus, vorhandene, modell_.Anzahl_Lieder + A_ + 1)) ++A_;
        ++erledigt;
        fortschritt_.anzeigen(Prozent(static_cast<double>(erledigt), static_cast<double>(auftrag.Lieder.size())));
    }
    return A_;
}

// True when the file stands on its number. One that is empty or gone is passed over without a word.
bool Dateien_übernehmen::übernehmen(const Lied_Fund& lied, Übernahmeart modus, const Doppelte_Lieder& vorhandene, Long Nr) {
    Ansicht& ansicht = fortschritt_.ansicht();
    Text angefangen;
    try {
        const std::int64_t länge = dateien_.Dateilänge(lied.Pfad);
        if (länge < 1) return false;
        if (!trotz_Doppelter(lied.Pfad, gerundet(static_cast<double>(länge) / 1024.0), vorhandene)) return false;

        const Text ziel = modell_.Lied_Pfad(Nr);
        angefangen = ziel;
        // The lengths decide, not the shell's word: a moved file whose source could not be deleted is a song all the same.
        bringen(lied.Pfad, ziel, modus);
        if (dateien_.Dateilänge(ziel) == länge) {
            modell_.Lieder[Nr].Kategorie = lied.Quell_Kategorie;
            return true;
        }
        ansicht.informieren("Lied hinzufügen",
                            Text("Es ist ein Fehler beim ") + (modus == Übernahmeart::kopieren ? "kopieren" : "bewegen") +
                                " der Datei" + Text(CRCR) + anzeigbar(lied.Pfad) + Text(CRCR) + "aufgetreten!");
        Rest_entfernen(lied.Pfad, ziel);
    } catch (const Laufzeitfehler&) {
        ansicht.informieren("Lieder hinzufügen", "Es ist ein Fehler beim hinzufügen des Liedes " +
                                                     in_Anführungszeichen(anzeigbar(lied.Pfad)) + " aufgetreten!");
        try {
            if (!angefangen.empty()) Rest_entfernen(lied.Pfad, angefangen);
        } catch (const Laufzeitfehler&) {
            // What cannot be deleted lies behind the last song; the next file on this number writes over it.
        }
    }
    return false;
}

// Asks for each song that the file may be already; one No decides.
bool Dateien_übernehmen::trotz_Doppelter(const Text& pfad, Long KByte, const Doppelte_Lieder& vorhandene) {
    const auto zeit = dateien_.Änderungszeit(pfad);
    if (!zeit) return true;
    for (const Long n : vorhandene.suchen(KByte, *zeit)) {
        Text titel, artist;
        mp3_.Lied_Tag_lesen(pfad, titel, artist);
        const Lied& da = modell_.Lieder[n];
        const Text frage = "Die folgende Datei ist eventuell schon einmal in der Datenbank vorhanden:" + Text(CRCR) +
                           "Dateiname: " + anzeigbar(pfad) + Text(CR) + Datum_Zeit(*zeit) + Text(CR) +
                           Titel_Artist(titel, artist) + Text(CRCR) +
                           "Bereits vorhandenes Lied in der Datenbank:" + Text(CRCR) + Datum_Zeit(*zeit) + Text(CR) +
                           Titel_Artist(da.Titel, da.Artist) + Text(CRCR) + "Soll dieses Lied trotzdem hinzugefügt werden?";
        Ansicht& ansicht = fortschritt_.ansicht();
        if (!ansicht.fragen("Lied hinzufügen", frage) || ansicht.endet()) return false;
    }
    return true;
}

bool Dateien_übernehmen::bringen(Text von, Text nach, Übernahmeart modus) {
    CSHFileOp vorgang(shell_);
    // What lies behind the last song belongs to nobody and is written over without a question.
    vorgang.ConfirmOperation(false);
    vorgang.ClearSourceFiles();
    vorgang.ClearDestFiles();
    vorgang.AddSourceFile(std::move(von));
    vorgang.AddDestFile(std::move(nach));
    bool ok = false;
    if (modus == Übernahmeart::kopieren)
        vorgang.CopyFiles(ok);
    else
        vorgang.MoveFiles(ok);
    return ok;
}

// The target goes, unless it is all that is left of the file: one that grew while it was moved goes back to its place.
void Dateien_übernehmen::Rest_entfernen(const Text& quelle, const Text& ziel) {
    if (quelle == ziel || !dateien_.Datei_da(ziel)) return;
    if (dateien_.Datei_da(quelle))
        dateien_.löschen(ziel);
    else
        bringen(ziel, quelle, Übernahmeart::bewegen);
}

}  // namespace tonkartei
