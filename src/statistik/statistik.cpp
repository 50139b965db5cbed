#include "statistik/statistik.hpp"

#include "datenbank/haus.hpp"

namespace tonkartei {

Statistik::Statistik(Haus& haus, Liedziel ziel)
    : Fenster(haus.ansicht, "Statistik", "Statistik"),
      Gehört(*this, haus.modell, ziel),
      Einsortiert(*this, haus.modell, haus.plattform.Dateisystem, haus.plattform.Rechner, haus.fortschritt),
      Kategorien(*this, haus.modell),
      Abbruch(*this, haus.modell, haus.plattform.Dateisystem, haus.kanäle, ziel),
      modell_(haus.modell) {
    Sortier_Liste.unsichtbarer_Helfer = true;
    Abbruchknopf = &Ok;
    for (Rahmen& rahmen : Tabrahmen) rahmen.sichtbar(rahmen.Index() == Tab_Gehört + 1);
    Ok.tooltip("Schließt die Statistik.");
    Ok.Klick.verbinden([this] { entladen(); });
    Tabs.Klick.verbinden([this] { Tab_gewählt(); });
    Gehört.Lieder.gezeigt.verbinden([this] { Sortierung_nachführen(Tab_Gehört); });
    Abbruch.Lieder.gezeigt.verbinden([this] { Sortierung_nachführen(Tab_Abbruch); });

    const auto nichts_markiert = [this](int, int) { Einsortiert.Markierung_löschen(); };
    Mausbewegung.verbinden([this] { Einsortiert.Markierung_löschen(); });
    Tabs.Mausbewegung.verbinden(nichts_markiert);
    for (Rahmen& rahmen : Tabrahmen) rahmen.Mausbewegung.verbinden(nichts_markiert);
}

void Statistik::öffnen() {
    if (!modell_.Datenbank_offen) return;
    offen(true);
    laden();
    gefüllt_ = {};
    Einsortiert.leeren();
    Abbruch.leeren();
    Gehört.zeigen(Gehört_Sicht::meiste);
    Abbruch.zeigen(Abbruch_Sicht::alle);
    zeigen();
    ansicht().fokus(Gehört.Lieder.Liste);
}

void Statistik::beim_Entladen() {
    Kategorien.leeren();
    offen(false);
}

void Statistik::Rahmen_zeigen() {
    for (Rahmen& rahmen : Tabrahmen) rahmen.sichtbar(rahmen.Index() == Tabs.wert() + 1);
}

void Statistik::Tab_gewählt() {
    Rahmen_zeigen();
    const int tab = Tabs.wert();
    füllen(tab);
    Sortierung_nachführen(tab);
}

void Statistik::füllen(int tab) {
    bool& gefüllt = gefüllt_.at(static_cast<std::size_t>(tab));
    if (gefüllt || tab == Tab_Gehört) return;
    gefüllt = true;
    switch (tab) {
        case Tab_Einsortiert: Einsortiert.lesen(); break;
        case Tab_Kategorien: Kategorien.zeigen(); break;
        case Tab_Abbruch:
            if (Abbruch.lesen()) break;
            gefüllt = false;
            Tabs.wert(Tab_Gehört);
            break;
        default: break;
    }
}

void Statistik::Sortierung_nachführen(int tab) {
    if (tab != Tabs.wert()) return;
    if (tab == Tab_Gehört) Sortier_Liste.setzen(Gehört.Lieder.lieder().texte());
    if (tab == Tab_Abbruch) Sortier_Liste.setzen(Abbruch.Lieder.lieder().texte());
}

Knoten Statistik::anordnung() {
    return Spalte({Tabs,
                   Überlagerung({Gruppe(Tabrahmen[1], Gehört.knoten()).Platz_halten(),
                                 Gruppe(Tabrahmen[2], Einsortiert.knoten()).Platz_halten(),
                                 Gruppe(Tabrahmen[3], Kategorien.knoten()).Platz_halten(),
                                 Gruppe(Tabrahmen[4], Abbruch.knoten()).Platz_halten()})
                       .dehnen(1, 1),
                   Zeile({Feder(), Knoten(Ok).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void Statistik::bei_neuer_Anordnung() {
    Einsortiert.platzieren();
    Kategorien.platzieren();
}

}  // namespace tonkartei
