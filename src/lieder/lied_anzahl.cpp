#include "lieder/lied_anzahl.hpp"

#include <algorithm>

#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

constexpr const char* Überschrift = "Anzahl ändern";

Text Anzahl_Text(const std::vector<Long>& nummern) { return Zahltext(static_cast<long long>(nummern.size())); }

}  // namespace

bool Lied_Anzahl::ändern(Long Nr) {
    Lied& lied = modell_.Lieder[Nr];
    const Text wessen = "des Liedes " + in_Anführungszeichen(lied.Titel) + " von " + in_Anführungszeichen(lied.Artist);
    if (!ansicht_.fragen(Überschrift, "Wollen sie wirklich die Anzahl " + wessen + " ändern?")) return false;
    const Text antwort = ansicht_.eingeben("Geben sie die neue Anzahl für das Lied " + in_Anführungszeichen(lied.Titel) +
                                               " von " + in_Anführungszeichen(lied.Artist) + " ein:",
                                           Überschrift, Zahltext(lied.Anzahl));
    if (antwort.empty()) return false;
    lied.Anzahl = gerundet(Zahlwert(antwort));
    return true;
}

bool Lied_Anzahl::alle_ändern(const std::vector<Long>& Nummern) {
    if (Nummern.empty()) return false;
    const Text antwort = ansicht_.eingeben(
        "Die Anzahl, wie oft ein Lied gehört wurde sollte nicht geändert werden!" + Text(CRCR) +
            "Sie dient der Statistik und als Grundlage für die Zufalls-Funktion der Datenbank." + Text(CRCR) +
            "Falls sie die Anzahl der Lieder in der Liste nicht ändern wollen, drücken sie jetzt auf Abbrechen!" +
            Text(CRCR) + "Die Anzahl kann auf zwei Arten geändert werden:" + Text(CRCR) +
            "1. auf einen festen Wert setzten:" + Text(CRCR) +
            "Hierbei wird die Anzahl bei jedem Lied auf einen festen Wert gesetzt, zum Beispiel 5." + Text(CRCR) +
            "2. Um einen Wert ändern:" + Text(CRCR) +
            "Wenn sie vor Ihre Eingabe ein Vorzeichen (+ oder -) setzen, wird die Anzahl jedes Liedes um den Wert nach dem "
            "Vorzeichen geändert." +
            Text(CRCR) + "Wie soll die Anzahl der Lieder in der Liste geändert werden?",
        Überschrift, "+0");
    if (antwort.empty()) return false;
    if (antwort.front() == '+' || antwort.front() == '-') {
        const double betrag = Zahlwert(getrimmt(ab(antwort, 2)));
        const Long um = gerundet(antwort.front() == '-' ? -betrag : betrag);
        std::vector<Long> neue;
        for (const Long nr : Nummern)
            neue.push_back(als_Long(std::max(0LL, static_cast<long long>(modell_.Lieder[nr].Anzahl) + um)));
        for (std::size_t i = 0; i < neue.size(); ++i) modell_.Lieder[Nummern[i]].Anzahl = neue[i];
    } else {
        const Long wert = gerundet(Zahlwert(getrimmt(antwort)));
        for (const Long nr : Nummern) modell_.Lieder[nr].Anzahl = wert;
    }
    ansicht_.informieren(Überschrift, "Die Anzahl der " + Anzahl_Text(Nummern) + " Lieder wurde geändert.");
    return true;
}

bool Lied_Anzahl::alle_auf_Null(const std::vector<Long>& Nummern) {
    if (Nummern.empty()) return false;
    if (!ansicht_.fragen("Anzahl Reset", "Wollen sie wirklich bei allen " + Anzahl_Text(Nummern) +
                                             " Liedern in der Liste die Anzahl auf Null setzten?"))
        return false;
    for (const Long nr : Nummern) modell_.Lieder[nr].Anzahl = 0;
    return true;
}

}  // namespace tonkartei
