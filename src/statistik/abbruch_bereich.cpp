#include "statistik/abbruch_bereich.hpp"

#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

Abbruch_Bereich::Abbruch_Bereich(Fenster& fenster, const Modell& modell, Dateisystem& dateien, Kanäle& kanäle, Liedziel ziel)
    : AOption(fenster, "AOption",
              {"alle (&kürzestes Lied zuerst)", "alle &unter x Sekunden gehörte", "alle &über x Sekunden gehörte",
               "alle &x Sekunden gehörte"}),
      ASekunden_Text(fenster, "ASekunden_Text", "x Sekunden:"),
      ASekunden(fenster, "ASekunden", "60"),
      Lieder(fenster, "A", ziel),
      fenster_(fenster),
      modell_(modell),
      dateien_(dateien),
      kanäle_(kanäle) {
    AOption[1].wählen();
    for (Optionsfeld& option : AOption)
        option.Klick.verbinden([this, &option] { zeigen(static_cast<Abbruch_Sicht>(option.Index())); });
    ASekunden.tooltip("Die Sekunden x, mit denen verglichen wird.");
    ASekunden.Geändert.verbinden([this] { zeigen(sicht_); });
}

bool Abbruch_Bereich::lesen() {
    const Text pfad = modell_.Pfad("MP3_Info.ABR");
    if (!dateien_.Datei_da(pfad)) {
        fenster_.ansicht().informieren("Statistik abbgebrochen gehörte Lieder",
                                       "In dieser Datenbank existiert keine Statistik über abbgebrochen angehörte Lieder.");
        return false;
    }
    statistik_.leeren();
    statistik_.lesen(kanäle_, pfad);
    zeigen(sicht_);
    return true;
}

void Abbruch_Bereich::zeigen(Abbruch_Sicht sicht) {
    sicht_ = sicht;
    auto liste = statistik_.auflisten(modell_, sicht, gerundet(Zahlwert(ASekunden.text())));
    Lieder.zeigen(std::move(liste.lieder), std::move(liste.zeilen));
}

Knoten Abbruch_Bereich::knoten() {
    return Spalte({Zeile({Gitter(2, {AOption[1], AOption[2], AOption[3], AOption[4]}), ASekunden_Text,
                          Knoten(ASekunden).zeichen(6).dehnen(1), Feder(3)}),
                   Lieder.Listenknoten(), Lieder.Knopfknoten()});
}

}  // namespace tonkartei
