// The window of a live comparison: what the other collection has and the open one has not, to be taken over song by song,
// beside a main window that stays usable.
#pragma once

#include "austausch/vergleichsfenster.hpp"
#include "datenbank/modell.hpp"
#include "grundlagen/ereignis.hpp"
#include "kategorien/kategoriezuordnung.hpp"

namespace tonkartei {

class Abgleich_Übernahme;
class Fortschritts_Fenster;
class Ignorieren_Liste;
class Kategorie_bearbeiten;
class LA_Ignorieren;
class Listenbereich;
class Lied_austauschen;
class MP3_TagHead;
class WinAmp_Starter;

// The other collection, as it was read for the comparison.
struct Abgleichsquelle {
    Text Verzeichnis;  // with trailing separator
    std::vector<Text> Kategorien;
    std::vector<Lied> Lieder;  // place 0 is number 1
};

// What is done with a single song, besides taking it over.
struct Abgleichswerkzeug {
    Listenbereich& Hauptliste;
    Lied_austauschen& Austausch;
    WinAmp_Starter& Starter;
    MP3_TagHead& MP3;
    Fortschritts_Fenster& Fortschritt;
};

class Live_abgleich : public Vergleichsfenster {
public:
    Live_abgleich(const Modell& modell, Abgleich_Übernahme& übernahme, LA_Ignorieren& ignorierte,
                  Kategorie_bearbeiten& editor, const Abgleichswerkzeug& werkzeug);

    Rahmen Kategorien{*this, "Kategorien", "Kategorien"};
    Listenfeld KatListe{*this, "KatListe"};
    Schriftfeld neue_Kategorie_Text{*this, "neue_Kategorie_Text", "&neue Kategorie:"};
    Auswahlfeld neue_Kategorie{*this, "neue_Kategorie"};
    Knopf Kategorie_Edit{*this, "Kategorie_Edit", "Kategorien &bearbeiten..."};
    Knopf hinzufügen{*this, "hinzufügen", "&hinzufügen"};
    Knopf alle_hinzufügen{*this, "alle_hinzufügen", "&alle hinzufügen"};
    Knopf austauschen{*this, "austauschen", "aus&tauschen"};
    Knopf ignorieren{*this, "ignorieren", "&ignorieren"};
    Knopf zeige_ignorieren_Liste{*this, "zeige_ignorieren_Liste", "Ignorieren-Liste &zeigen..."};
    Knopf löschen{*this, "löschen", "aus Liste &löschen"};
    Knopf anhören{*this, "anhören", "mit WinAmp anhö&ren"};
    Knopf Lied_Info{*this, "Lied_Info", "Lied-Inf&o"};
    Knopf Ok{*this, "Ok", "O&K"};

    void zeigen(Abgleichsquelle quelle, Vergleichsergebnisse ergebnisse);

    // The list from which songs are passed over.
    Ignorieren_Liste& Ignorierte() const;
    // Songs were taken over or exchanged: what shows them follows.
    Ereignis<> Lieder_geändert;

protected:
    Knoten anordnung() override;
    void beim_Entladen() override;

private:
    void verbinden();
    bool Zeile_hinzufügen(int zeile);
    void dieses_hinzufügen();
    void alle_gezeigten_hinzufügen();
    void dieses_austauschen();
    void dieses_ignorieren();
    void Info_zeigen();
    Text Quellpfad(const Text& zeile) const;
    const Lied& Quell_Lied_von(const Text& zeile) const;
    Fenster& Hauptfenster() const;

    const Modell& modell_;
    Abgleich_Übernahme& übernahme_;
    LA_Ignorieren& ignorierte_;
    Kategorie_bearbeiten& editor_;
    Abgleichswerkzeug werkzeug_;
    Kategoriezuordnung zuordnung_{modell_, KatListe, neue_Kategorie};
    Abgleichsquelle quelle_;
};

}  // namespace tonkartei
