#include "austausch/aufloesung/datenbank_aufloesung.hpp"

#include "datenbank/version.hpp"
#include "lieder/dateibewegung.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {
namespace {

Text Pfad(const Text& ziel, const std::vector<Text>& ordner) {
    Text pfad = ziel;
    for (const Text& name : ordner) pfad += name + Trenner;
    return pfad;
}

}  // namespace

void Datenbank_Auflösung::ausführen(const Ablageplan& plan, const Text& Ziel, bool bewegen) {
    const Fortschritts_Ende ende(fortschritt_);
    gemeldet_.clear();
    if (plan.Ebene.front() != Baustein::keiner) Ordner_anlegen(plan, Ziel);
    fortschritt_.anzeigen(100);
    fortschritt_.Text_setzen(Text("Datenbank auflösen, Lieder ") + (bewegen ? "bewegen" : "kopieren") + "...");
    for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) {
        const Lied& lied = modell_.Lieder[nr];
        if (const Text ordner = Pfad(Ziel, plan.Ordner(modell_, lied)); dateien_.Ordner_da(ordner))
            übertragen(modell_.Lied_Pfad(nr), ordner + plan.Dateiname(modell_, lied), bewegen);
        fortschritt_.anzeigen(Prozent(nr, modell_.Anzahl_Lieder));
    }
}

void Datenbank_Auflösung::Ordner_anlegen(const Ablageplan& plan, const Text& Ziel) {
    fortschritt_.Text_setzen("Datenbank auflösen, Verzeichnisse erstellen...");
    for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) {
        Text pfad = Ziel;
        for (const Text& name : plan.Ordner(modell_, modell_.Lieder[nr])) {
            pfad += name;
            if (!dateien_.Ordner_da(pfad)) {
                try {
                    dateien_.Ordner_anlegen(pfad);
                } catch (const Dateifehler& fehler) {
                    if (gemeldet_.insert(pfad).second) Fehler_zeigen(pfad, fehler.Nummer());
                    break;
                }
            }
            pfad += Trenner;
        }
        fortschritt_.anzeigen(Prozent(nr, modell_.Anzahl_Lieder));
    }
}

void Datenbank_Auflösung::übertragen(const Text& von, const Text& nach, bool bewegen) {
    const bool ok = bewegen ? Datei_bewegen(shell_, dateien_, von, nach) : Datei_kopieren(shell_, von, nach);
    if (ok || dateien_.Art_von(nach) != Pfadart::nichts) return;
    // The shell tells its own failures. A name that the file system cannot hold is our doing, since we made it up; whether
    // it is one shows when it is asked for: any other name would merely not be there.
    try {
        dateien_.schließen(dateien_.öffnen(nach, Dateimodus::lesen));
    } catch (const Dateifehler& fehler) {
        constexpr int nicht_da = 53;
        if (fehler.Nummer() != nicht_da) Fehler_zeigen(nach, fehler.Nummer());
    }
}

void Datenbank_Auflösung::Fehler_zeigen(const Text& pfad, int nummer) {
    fortschritt_.ansicht().informieren(Programmtitel, Dateifehler(nummer).mit_Pfad(pfad));
}

}  // namespace tonkartei
