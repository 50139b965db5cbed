#include "lieder/lied_austauschen.hpp"

#include <algorithm>

#include "lieder/dateibewegung.hpp"
#include "lieder/lied_einlesen.hpp"
#include "lieder/lied_kopieren.hpp"
#include "lieder/lieder_entfernen.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

constexpr const char* Überschrift = "Lied austauschen";

Text kurze_Dauer(Zeit dauer) {
    Zeitpunkt uhr;
    uhr.Stunde = Stunde(dauer);
    uhr.Minute = Minute(dauer);
    return kurze_Uhrzeit(uhr);
}

}  // namespace

bool Lied_austauschen::Lied_tauschen(Long Nr) {
    const Lied& lied = modell_.Lieder[Nr];
    if (!ansicht_.fragen(Überschrift, "Wollen sie das Lied " + in_Anführungszeichen(lied.Titel) + " von " +
                                          in_Anführungszeichen(lied.Artist) + " wirklich austauschen?" + Text(CRCR) +
                                          "Dies ist nur sinnvoll, wenn die MP3-Datei defekt ist, "
                                          "oder durch eine andere Version ausgetauscht werden soll!"))
        return false;
    ansicht_.informieren(Überschrift, "Wählen sie bitte, durch welche MP3-Datei das gewählte Lied getauscht werden soll.");
    Dateiwahl wahl;
    wahl.filter = "MP3-Dateien (*.MP3)|*.MP3| Alle Dateien (*.*) |*.*";
    wahl.muss_existieren = true;
    const Text datei = ansicht_.Datei_wählen(wahl);
    return !datei.empty() && ausführen(Nr, datei);
}

bool Lied_austauschen::ausführen(Long Nr, const Text& Datei) {
    const Antwort antwort = ansicht_.fragen_oder_abbrechen(
        Überschrift, "Wollen sie die alte Version vorher noch irgendwohin kopieren?" + Text(CRCR) +
                         "Wenn sie das Lied jetzt austauschen, wird die alte Version gelöscht.");
    if (antwort == Antwort::Ja)
        kopieren_.ausführen(Nr);
    else if (antwort != Antwort::Nein)
        return false;

    if (!ansicht_.fragen("Lied austuaschen", "Wollen sie folgendes Lied:" + Text(CRCR) + Beschreibung(Nr) + Text(CRCR) +
                                                 "durch folgendes Lied:" + Text(CRCR) + Beschreibung(Datei) + Text(CRCR) +
                                                 "austauschen?"))
        return false;
    if (ersetzen(Nr, Datei)) return true;
    ansicht_.informieren(Überschrift, "Beim austauschen ist ein Fehler aufgetreten!");
    return false;
}

// A file that goes together with the old version, or that cannot be read, must not cost the song its file.
bool Lied_austauschen::taugt_als_Ersatz(Long Nr, const Text& Datei) const {
    return !dateien_.gleiche_Datei(Datei, modell_.Lied_Pfad(Nr)) &&
           !dateien_.gleiche_Datei(Datei, modell_.Pfad(Lied_Exportname(modell_.Lieder[Nr]))) && mp3_.Datei_lesbar(Datei);
}

bool Lied_austauschen::ersetzen(Long Nr, const Text& Datei) {
    if (!taugt_als_Ersatz(Nr, Datei) || !entfernen_.Datei_entfernen(Nr)) return false;
    if (!Datei_kopieren(shell_, Datei, modell_.Lied_Pfad(Nr))) {
        Rest_entfernen(Nr, Datei);
        return false;
    }
    try {
        Lied_einlesen(modell_, mp3_, Nr);
    } catch (const Laufzeitfehler&) {
        // Only the playing time cannot be worked out, which then counts as unknown; the file is in its place.
    }
    return true;
}

// A copy that came out short must not pass for the song: a gap is found and told of.
void Lied_austauschen::Rest_entfernen(Long Nr, const Text& Datei) {
    const Text ziel = modell_.Lied_Pfad(Nr);
    if (!dateien_.Datei_da(ziel) || dateien_.Dateilänge(ziel) == dateien_.Dateilänge(Datei)) return;
    try {
        dateien_.löschen(ziel);
    } catch (const Dateifehler&) {
        // The user hears of the failed replacement in any case.
    }
}

Text Lied_austauschen::Beschreibung(Long Nr) const {
    const Lied& lied = modell_.Lieder[Nr];
    const bool da = lied.Kategorie >= 1 && lied.Kategorie <= modell_.Anzahl_Kategorien;
    return "Titel: " + lied.Titel + Text(CR) + "Artist: " + lied.Artist + Text(CR) +
           "Kategorie: " + (da ? modell_.Kategorien[lied.Kategorie] : Text{}) + Text(CR) +
           Größe_bis_Datum(lied.Größe, lied.Zeit, modell_.Lied_Pfad(Nr));
}

Text Lied_austauschen::Beschreibung(const Text& Datei) const {
    Text titel, artist;
    mp3_.Lied_Tag_lesen(Datei, titel, artist);
    Zeit dauer = 0;
    try {
        dauer = mp3_.Lied_Zeit_lesen(Datei);
    } catch (const Laufzeitfehler&) {
        // Nothing has happened yet: the user sees that the time is unknown.
    }
    return "Titel: " + titel + Text(CR) + "Artist: " + artist + Text(CR) + "Dateiname: " + anzeigbar(Datei) + Text(CR) +
           Größe_bis_Datum(std::max<std::int64_t>(0, dateien_.Dateilänge(Datei)) / 1024, dauer, Datei);
}

Text Lied_austauschen::Größe_bis_Datum(long long KByte, Zeit dauer, const Text& datei) const {
    Text text =
        "Dateigröße: " + Zahltext(KByte) + " kBytes" + Text(CR) + "Dauer: " + kurze_Dauer(dauer) + Text(CR) + "Datum/Zeit: ";
    if (const auto zeit = dateien_.Änderungszeit(datei)) text += langes_Datum(*zeit) + " " + lange_Uhrzeit(*zeit);
    return text;
}

}  // namespace tonkartei
