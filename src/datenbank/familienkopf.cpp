#include "datenbank/familienkopf.hpp"

#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

Kopfurteil Kopf_beurteilen(Ansicht& ansicht, Kanäle& kanäle, int Dateinummer, const Text& Programmversion,
                           const Familienkopf& kopf) {
    const Text crcr(CRCR);
    const bool eigene = kanäle.lese_Zeile(Dateinummer) == Programmtitel;
    const Text version = eigene ? kanäle.lese_Zeile(Dateinummer) : Text{};
    if (!eigene || kanäle.lese_Zeile(Dateinummer) != kopf.Kennung) {
        ansicht.informieren(Programmtitel, kopf.Name_mit_Pfad + " ist fehlerhaft!" + crcr +
                                               "Kontaktieren sie den Autor, um eventuell noch die Daten zu retten." + crcr +
                                               Kontaktadresse);
        return Kopfurteil::abgelehnt;
    }
    if (version == Programmversion) return Kopfurteil::aktuell;
    const Text meldung = kopf.Name + " ist von einer anderen Programmversion." + crcr +
                         "aktuelle Programmversion: " + Programmversion + Text(CR) + "Dateiversion: " + version + crcr;
    if (kopf.alte_Version(version))
        return ansicht.fragen(Programmtitel, meldung +
                                                 "Die alte Versionen der Datei kann eingelesen und konvertiert werden. "
                                                 "Allerdings kann sie dann nicht mehr mit Programmversionen, die kleiner "
                                                 "Version des Programms geöffnet werden." +
                                                 crcr + kopf.Frage)
                   ? Kopfurteil::alt
                   : Kopfurteil::abgelehnt;
    const bool trotzdem = ansicht.fragen(
        Programmtitel,
        meldung + "Kontaktieren sie den Autor für ein Update oder einen Konverter für die Datei." + crcr + Kontaktadresse +
            crcr + "Es kann auf eigene Gefahr hin versucht werden die Datei trotzdem zu lesen. Wollen sie dies tun?",
        Antwort::Nein);
    return trotzdem ? Kopfurteil::unlesbar : Kopfurteil::abgelehnt;
}

}  // namespace tonkartei
