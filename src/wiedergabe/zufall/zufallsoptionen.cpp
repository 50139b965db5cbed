#include "wiedergabe/zufall/zufallsoptionen.hpp"

#include <cmath>
#include <limits>

#include "datenbank/einstellungen.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

void Zufallsoptionen::Random_Prozent() {
    static constexpr const char* Titel = "Random-Einstellungen";
    const Text frage =
        "Beim abspielen eines Zufallslieder wird zuerst eine sortierte Liste erstellt, "
        "in der die Anzahl wie oft das jeweilige Lied schon gespielt wurde, enthält. "
        "Das Lied, das am wenigsten gespielt wurde, ist das erste in der Liste." +
        Text(CRCR) +
        "Aus dieser Liste wird nur aus dem Anfangsbereich ein Lied ausgewählt, um zu "
        "verhindern, das ein Lied über Random öfters gespielt wird." +
        Text(CRCR) + "Aus wievielen Prozent dieser Liste soll ein Zufalls-Lied gewählt werden?";
    const Text alt = Zahltext(einstellungen_.Random_Einstellung);
    const Text antwort = ansicht_.eingeben(frage, Titel, alt);
    if (antwort.empty()) return;
    const double prozent = std::nearbyint(Zahlwert(antwort));
    if (prozent >= 1 && prozent <= 100) {
        einstellungen_.Random_Einstellung = gerundet_Byte(prozent);
        return;
    }
    ansicht_.informieren(Titel, "Ungültiger Wert, der alte Wert " + alt + "% wird beibehalten.");
}

void Zufallsoptionen::auto_Kat_Wechsel_Setup() {
    static constexpr const char* Titel = "automatisch Kategorie Wechseln";
    const Text alt = Zahltext(einstellungen_.auto_Kat_Wechsel_Lieder);
    const double lieder =
        Zahlwert(ansicht_.eingeben("Nach wievielen Liedern soll automatisch die Kategorie gewechselt werden?", Titel, alt));
    // What does not fit counts as not understood, too.
    if (lieder >= 1 && lieder <= std::numeric_limits<Long>::max()) {
        einstellungen_.auto_Kat_Wechsel_Lieder = gerundet(lieder);
        return;
    }
    ansicht_.informieren(Titel,
                         "Ungültige Eingabe!" + Text(CRCR) + "Der alte Wert von " + alt + " Liedern wurde beibehalten.");
}

}  // namespace tonkartei
