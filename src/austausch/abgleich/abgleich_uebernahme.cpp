#include "austausch/abgleich/abgleich_uebernahme.hpp"

#include "grundlagen/versuchen.hpp"
#include "kategorien/kategorie_wahl.hpp"
#include "lieder/cshfileop.hpp"
#include "lieder/lied_einlesen.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

constexpr const char* Überschrift = "Lied hinzufügen";

}  // namespace

bool Abgleich_Übernahme::genug_Platz(std::int64_t bytes, const Text& Name) {
    const auto ganze_KByte = dateien_.freie_Bytes(modell_.Datenbank_Verzeichnis).value_or(0) / 1024;
    const auto frei = static_cast<double>(ganze_KByte);
    // MByte against KByte: it hardly ever asks, and that is how it stays.
    if (static_cast<double>(bytes) / 1024 / 1024 <= frei) return true;
    return wahl_.ansicht().fragen(
        Überschrift, "Es ist eventuell nicht genügend Platz auf dem Ziellaufwerk vorhanden, um das Lied" + Text(CRCR) +
                         Name + Text(CRCR) + "zu kopieren." + Text(CRCR) +
                         "Soll trotzdem versucht werden das Lied hinzuzufügen?");
}

// True when the whole file stands behind the last song.
bool Abgleich_Übernahme::kopieren(const Text& Datei, std::int64_t bytes) {
    if (bytes < 0 || modell_.Anzahl_Lieder >= Lieder_maximal) return false;
    const Text ziel = modell_.Lied_Pfad(modell_.Anzahl_Lieder + 1);
    CSHFileOp vorgang(shell_);
    // What lies behind the last song is nobody's.
    vorgang.ConfirmOperation(false);
    vorgang.AddSourceFile(Datei);
    vorgang.AddDestFile(ziel);
    bool ok = false;
    vorgang.CopyFiles(ok);
    if (dateien_.Dateilänge(ziel) == bytes) return true;
    if (dateien_.Datei_da(ziel)) versuchen([&] { dateien_.löschen(ziel); });
    return false;
}

bool Abgleich_Übernahme::hinzufügen(const Text& Datei, const Text& Name, Byte Kategorie) {
    const std::int64_t bytes = dateien_.Dateilänge(Datei);
    if (bytes >= 0 && !genug_Platz(bytes, Name)) return false;
    if (!kopieren(Datei, bytes)) {
        wahl_.ansicht().informieren(Überschrift, "Es ist ein Fehler beim kopieren der Datei" + Text(CRCR) +
                                                     anzeigbar(Datei) + Text(CRCR) + "aufgetreten!");
        return false;
    }
    const Long nr = modell_.Anzahl_Lieder + 1;
    modell_.Lieder[nr] = {};
    // Category 1 until it is known: should the program end while it is asked for, the song is a whole one.
    modell_.Lieder[nr].Kategorie = Kategorie == 0 ? Byte{1} : Kategorie;
    modell_.Anzahl_Lieder = nr;
    try {
        Lied_einlesen(modell_, mp3_, nr);
    } catch (const Laufzeitfehler&) {
        // A length that cannot be worked out is as unknown as one that is not found.
    }
    if (Kategorie == 0) {
        const Lied& lied = modell_.Lieder[nr];
        const Byte antwort = wahl_.wählen(lied.Titel, lied.Artist, modell_.Lied_Pfad(nr));
        modell_.Lieder[nr].Kategorie = antwort;
    }
    return true;
}

}  // namespace tonkartei
