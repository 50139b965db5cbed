#include "lieder/lieder_entfernen.hpp"

#include <algorithm>

#include "grundlagen/versuchen.hpp"
#include "grundlagen/waehrend.hpp"
#include "lieder/dateibewegung.hpp"
#include "lieder/lied_nachruecken.hpp"
#include "oberflaeche/ansicht.hpp"
#include "wiedergabe/winamp/winamp.hpp"

namespace tonkartei {
namespace {

// A file that somebody has just let go of may take so long to vanish.
constexpr int Loslassen_ms = 1000;

}  // namespace

bool Lieder_entfernen::Datei_entfernen(Long Nr) {
    const Text datei = modell_.Lied_Pfad(Nr);
    spieler_.für_Dateiarbeit_anhalten();
    if (!einstellungen_.Papierkorb) return versuchen([&] { dateien_.löschen(datei); });

    const Text lesbar = modell_.Pfad(Lied_Exportname(modell_.Lieder[Nr]));
    if (!Datei_bewegen(shell_, dateien_, datei, lesbar)) Fehler_melden("Beim Umbennen ist ein Fehler aufgetreten!");
    if (dateien_.Datei_da(datei)) rechner_.Sleep(Loslassen_ms);
    if (dateien_.Datei_da(datei) || !dateien_.Datei_da(lesbar)) return false;
    if (!in_den_Papierkorb(shell_, lesbar)) Fehler_melden("Beim Löschen ist ein Fehler aufgetreten!");
    return true;
}

void Lieder_entfernen::Lied_entfernen(Long Nr) {
    const Halb_getan umbau(modell_.im_Umbau);
    const Long letzte = modell_.Anzahl_Lieder;
    const Text datei = modell_.Lied_Pfad(Nr);
    if (!Datei_entfernen(Nr) || dateien_.Datei_da(datei)) return;
    // Nobody can take the place of the last one. Its record stays, a gap that the search for gaps takes off.
    if (letzte == 1 || Nr >= letzte) return;
    const Text datei_letzte = modell_.Lied_Pfad(letzte);
    if (!dateien_.Datei_da(datei_letzte)) {
        Fehler_melden("Beim Umbennen ist ein Fehler aufgetreten!");
        return;
    }
    if (!aufrücken(datei_letzte, datei)) {
        ansicht_.informieren("Fehler", "Es wurden Lücken in der Datenbank gefunden!" + Text(CRCR) +
                                           "Benutzen sie den Menüpunkt Lieer/Wartung/Fehlersuche/Lücken suchen/auffüllen");
        return;
    }
    nachrücken_.ausführen(Nr);
    --modell_.Anzahl_Lieder;
}

bool Lieder_entfernen::aufrücken(const Text& von, const Text& nach) {
    if (einstellungen_.Papierkorb) return Datei_bewegen(shell_, dateien_, von, nach);
    return versuchen([&] { dateien_.umbenennen(von, nach); });
}

bool Lieder_entfernen::Lied_löschen(Long Nr) {
    const Lied& lied = modell_.Lieder[Nr];
    if (!ansicht_.fragen("Lied löschen", "Wollen sie das Lied " + in_Anführungszeichen(lied.Titel) + " von " +
                                             in_Anführungszeichen(lied.Artist) + " wirklich löschen?"))
        return false;
    Lied_entfernen(Nr);
    return true;
}

bool Lieder_entfernen::alle_Lieder_löschen(std::vector<Long> Nummern) {
    if (Nummern.empty()) return false;
    if (Nummern.size() > 1) {
        if (!ansicht_.fragen("Lieder löschen", "Wollen sie wirklich die " +
                                                   Zahltext(static_cast<long long>(Nummern.size())) +
                                                   " Lieder in der Liste löschen?"))
            return false;
    }
    spieler_.für_Dateiarbeit_anhalten();
    // From the highest down: what moves into a freed place never has a number that is still to come. Once each, or the song
    // that moved in would go as well.
    std::sort(Nummern.begin(), Nummern.end(), std::greater<>());
    Nummern.erase(std::unique(Nummern.begin(), Nummern.end()), Nummern.end());
    for (const Long nr : Nummern) Lied_entfernen(nr);
    return true;
}

void Lieder_entfernen::Fehler_melden(const char* text) { ansicht_.informieren("Fehler", text); }

}  // namespace tonkartei
