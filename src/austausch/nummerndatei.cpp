#include "austausch/nummerndatei.hpp"

#include "austausch/dateikopf.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/modell.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

// Empty for a good head.
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

}  // namespace

Long Liednummer(const Text& wert) {
    const Long nr = gerundet(Zahlwert(wert));
    if (nr > Lieder_maximal) throw Laufzeitfehler(Fehler_Index);
    return nr;
}

void Nummer_aufnehmen(std::vector<Long>& nummern, Long nr) {
    if (nr < 1 || nummern.size() == Lieder_maximal) throw Laufzeitfehler(Fehler_Index);
    nummern.push_back(nr);
}

void Nummerndatei::schreiben(const Text& Datei, const std::function<void(int)>& Rest) {
    int nummer = 0;
    try {
        nummer = kanäle_.öffnen_zum_Schreiben(Datei);
        Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion, art_.Kennung);
        Rest(nummer);
        kanäle_.schließen(nummer);
    } catch (const Dateifehler&) {
        kanäle_.aufgeben(nummer);
        throw;
    }
}

std::vector<Long> Nummerndatei::lesen(const Text& Datei, const std::function<void(int, std::vector<Long>&)>& Rest) {
    int nummer = 0;
    Text meldung;
    std::vector<Long> nummern;
    try {
        nummer = kanäle_.öffnen_zum_Lesen(Datei);
        meldung = Kopfmeldung(Kopf_prüfen(kanäle_, nummer, modell_.Programmversion, art_.Kennung), art_.falsche_Kennung);
        if (meldung.empty()) Rest(nummer, nummern);
    } catch (const Laufzeitfehler&) {
        // Cut off, or numbers that no song can have: as little such a list as a file of another kind.
        meldung = art_.falsche_Kennung;
    }
    kanäle_.aufgeben(nummer);
    if (meldung.empty()) return nummern;
    ansicht_.informieren(art_.Lesetitel, meldung);
    return {};
}

}  // namespace tonkartei
