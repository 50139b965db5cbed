#include "austausch/sicherung/portionsdatei.hpp"

#include "datenbank/info_koerper.hpp"
#include "datenbank/modell.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr const char* Kennung = "Datenbank Backup-Portions-Datei";
constexpr const char* Endzeile = "Datenbank Backup-Portions-Datei - Ende";
constexpr const char* keine_Portion = "Diese Datei ist keine Backup-Portions-Datei!";

}  // namespace

Long Portionsnummer(const Text& wert) {
    const Long nr = gerundet(Zahlwert(wert));
    if (nr > Lieder_maximal) throw Laufzeitfehler(Fehler_Index);
    return nr;
}

void Nummer_aufnehmen(std::vector<Long>& nummern, Long nr) {
    if (nr < 1 || nummern.size() == Lieder_maximal) throw Laufzeitfehler(Fehler_Index);
    nummern.push_back(nr);
}

Text Kopfmeldung(Kopffehler fehler, const Text& falsche_Kennung) {
    switch (fehler) {
        case Kopffehler::Titel: return "Diese Datei ist nicht von diesem Programm erstellt!";
        case Kopffehler::Version:
            return "Diese Datei ist von einer anderen Version dieses Programms erstellt worden." + Text(CRCR) +
                   "Bringen sie beide Datenbanken auf den gleichen Versionsstand um die "
                   "Anforderungs-Datenbank erstellen zu lassen.";
        case Kopffehler::Kennung: return falsche_Kennung;
        case Kopffehler::keiner: break;
    }
    return {};
}

void Portionsdatei::schreiben(const Text& Datei, const std::vector<Long>& Nummern) {
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Schreiben(Datei);
        Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion, Kennung);
        for (const Long nr : Nummern) kanäle_.schreibe_reine_Zahl(nummer, nr);
        kanäle_.schreibe_Zeile(nummer, Endzeile);
        kanäle_.schließen(nummer);
    } catch (const Dateifehler&) {
        kanäle_.aufgeben(nummer);
        throw;
    }
}

std::vector<Long> Portionsdatei::lesen(const Text& Datei) {
    int nummer = 0;
    Text meldung;
    std::vector<Long> nummern;
    try {
        nummer = kanäle_.öffnen_zum_Lesen(Datei);
        meldung = Kopfmeldung(Kopf_prüfen(kanäle_, nummer, modell_.Programmversion, Kennung), keine_Portion);
        if (meldung.empty())
            for (Text wert = kanäle_.lese_Wert(nummer); wert != Endzeile; wert = kanäle_.lese_Wert(nummer))
                if (const Long nr = Portionsnummer(wert); nr > 0) Nummer_aufnehmen(nummern, nr);
    } catch (const Laufzeitfehler&) {
        // Cut off, or numbers that no songs can have: as little a portion as a file of another kind.
        meldung = keine_Portion;
    }
    kanäle_.aufgeben(nummer);
    if (meldung.empty()) return nummern;
    ansicht_.informieren("Backup-Portionsdatei lesen", meldung);
    return {};
}

}  // namespace tonkartei
