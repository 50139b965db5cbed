#include "datenbank/quell_datenbank.hpp"

#include "datenbank/haus.hpp"
#include "datenbank/info_datei.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/version.hpp"
#include "grundlagen/versuchen.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

bool Quell_Datenbank::vorhanden(const Text& Ordner) const {
    return haus_.plattform.Dateisystem.Datei_da(Ordner + Info_Datei_Name);
}

std::optional<Bestand> Quell_Datenbank::lesen(const Text& Ordner) {
    // A collection of its own stands for the other one, so that opening and converting it leave the open one alone.
    Modell andere;
    andere.Datenbank_Verzeichnis = Ordner;
    andere.Programmversion = haus_.modell.Programmversion;
    Info_Datei info(andere, haus_.kanäle, haus_.plattform.Dateisystem, haus_.fortschritt,
                    haus_.plattform.Rechner.Temp_Verzeichnis());
    Text datei = Ordner + Info_Datei_Name;
    int nummer = 0;
    bool gelesen = false;
    if (info.pruefe_Info_Datei(datei, nummer)) {
        try {
            Info_Körper_lesen(haus_.kanäle, nummer, andere, {});
            gelesen = true;
        } catch (const Laufzeitfehler&) {
            // Cut off, or numbers that cannot be: the open collection is none the worse for it.
            haus_.ansicht.informieren(Programmtitel, "Es ist ein Fehler beim öffnen der Informationsdatei aufgetreten!");
        }
        haus_.kanäle.aufgeben(nummer);
    }
    if (andere.konvertiert_in_Temp) versuchen([&] { haus_.plattform.Dateisystem.löschen(andere.Temp_Info_Datei); });
    if (!gelesen) return std::nullopt;
    return std::move(static_cast<Bestand&>(andere));
}

}  // namespace tonkartei
