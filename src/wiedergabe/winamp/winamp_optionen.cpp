#include "wiedergabe/winamp/winamp_optionen.hpp"

#include <limits>

#include "datenbank/einstellungen.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"
#include "wiedergabe/winamp/winamp.hpp"
#include "wiedergabe/winamp/winamp_programm.hpp"

namespace tonkartei {

WinAmp_Optionen::WinAmp_Optionen(Einstellungen& einstellungen, Ansicht& ansicht, WinAmp& winamp,
                                 const WinAmp_Programm& programm)
    : einstellungen_(einstellungen), ansicht_(ansicht), winamp_(winamp), programm_(programm) {}

void WinAmp_Optionen::umschalten(bool& einstellung) {
    einstellung = !einstellung;
    geändert();
}

void WinAmp_Optionen::Menü_WinAmp_verstecken() {
    umschalten(einstellungen_.WinAmp_verstecken);
    winamp_.Verstecken_umgeschaltet();
}

void WinAmp_Optionen::Winamp_Mini_verstecken() { umschalten(einstellungen_.WinAmp_verstecken_minimiert); }

void WinAmp_Optionen::WinAmp_FS_Lautstärke() { umschalten(einstellungen_.WinAmp_FS_Lautstärke); }

void WinAmp_Optionen::Menü_WinAmp_Beenden(int n) {
    einstellungen_.WinAmp_beenden = n;
    geändert();
}

void WinAmp_Optionen::WinAmp_Verzeichnis_wählen() {
    const Text verzeichnis = ansicht_.Verzeichnis_wählen("Verzeichnis von WinAmp:");
    if (verzeichnis.empty()) return;
    einstellungen_.WinAmp_Verzeichnis = mit_Trenner(verzeichnis);
    if (!programm_.WinAmp_existiert()) ansicht_.informieren("Fehler", "In diesem Verzeichnis wurde kein WinAmp gefunden!");
    geändert();
}

void WinAmp_Optionen::Zeit_Anzahl() {
    const Text antwort = ansicht_.eingeben(
        "Dieser Wert (in Sekunden) gibt an, wie lange ein Lied mindestens gespielt werden muß, damit der Anzahl-Wert "
        "erhöht wird:",
        "Zeit zum Anzahl erhöhen", Zahltext(einstellungen_.Anzahl_Zeit));
    const double sekunden = Zahlwert(antwort);
    if (sekunden <= 0 || sekunden > std::numeric_limits<Long>::max()) return;
    einstellungen_.Anzahl_Zeit = gerundet(sekunden);  // a fraction up to one half becomes 0, and that is taken
    geändert();
}

}  // namespace tonkartei
