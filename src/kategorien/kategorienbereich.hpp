// The category area of the main window: the boxes that decide what the list shows, the buttons of the stored schemes, and
// the drop-down list with the category of the song shown.
#pragma once

#include <array>
#include <functional>
#include <memory>

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "grundlagen/ereignis.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

class Kategorie_bearbeiten;

// The selection lives in the boxes and nowhere else: whoever wants to know it reads them.
class Kategorienbereich {
public:
    Kategorienbereich(Fenster& fenster, Modell& modell, Einstellungen& einstellungen, Kategorie_bearbeiten& editor);

    // First: its label stands at the end of the list area, and the label's access key goes to what follows it.
    Auswahlfeld Lied_Kategorie;
    Rahmen Kategorien_Rahmen;
    Rahmen Schema_Rahmen;
    Kasten& zeige_Kategorie(int k) const;
    Knopf& Kategorie_Schema(int n) const;
    Knopf Kategorie_Edit;

    // All controls in line with the table of categories; box 1 is checked, or the stored boxes with `Startkategorien_setzen`
    // and the setting. Ends in a rebuild of the list.
    void aktualisiere_Kategorie_List(bool Startkategorien_setzen);
    void setzte_Startkategorien();
    // Bit k - 1 for every checked box k up to the number of categories.
    Long Kategorien_Maske() const;
    // Text colour of all boxes: the song's own category, else those of the automatic change.
    void zeige_Kategorie_Farben();
    // All boxes back to the normal colour.
    void Farben_zurücksetzen();

    // How many schemes are offered; the buttons follow. Nothing changes without an open collection.
    void Anz_Kat_Schemas_setzen(int n);
    // What a click on scheme button n does.
    void Schema_klicken(int n);
    void Schema_zuweisen_beginnen();
    void Schema_beschreiben_beginnen();
    void Farbe_ändern(Long Einstellungen::*einstellung);

    // The selection is another: the list is to be built anew.
    Ereignis<> Auswahl_geändert;
    // The user is done with a box, a scheme or the editor: on with the search.
    Ereignis<> Suche_fokussieren;
    // Caption, state or number of categories or schemes changed, for the pop-up menus.
    Ereignis<> Tabelle_geändert;
    // Number of the song whose details are shown; 0 none.
    std::function<Long()> angezeigtes_Lied = [] { return 0; };
    // The automatic change of category: whether it is running, and the categories that take part in it.
    std::function<bool()> Auto_Wechsel_an = [] { return false; };
    Feld<bool, Kategorien_maximal> Auto_Wechsel_Kategorie;
    // It is changing the boxes: they do not count as changed by the user.
    bool Kategorie_intern = false;
    // The boxes are set by anything else while it runs: it ends.
    Ereignis<> Auto_Wechsel_beenden;
    // The checked boxes from 2 on become its categories and are unchecked; with box 1 all of them do. No rebuild yet.
    void Pool_übernehmen();
    // What the right mouse button on box k does.
    void Rechtsklick_auf_Kasten(int k);

    Knoten anordnung();

private:
    enum class Schema_Modus { wählen, speichern, beschreiben };

    void Editor_anschließen(Kategorie_bearbeiten& editor);
    // Categories, schemes and songs may be changed: a collection is open. The controls may still show the one before.
    bool änderbar() const { return modell_.Datenbank_offen; }
    void Kasten_geändert(int k);
    void Pool_zeigen(int k);
    void nur_oder_alle_anderen(int k);
    bool hat_Kategorie(const Lied& lied) const;
    bool Wechsel_bestätigt(const Lied& lied, int neu);
    void Kategorie_des_Liedes_geändert();
    void von_anderswo_gesetzt();
    void Schema_rechtsklicken(int n);
    void Schema_wählen(int n);
    void Schema_speichern(int n);
    void Schema_beschreiben(int n);
    void beginnen(Schema_Modus modus, const Text& titel, const Text& text);
    void Schemas_zeigen();
    void melden();

    Fenster& fenster_;
    Modell& modell_;
    Einstellungen& einstellungen_;
    std::array<std::unique_ptr<Kasten>, Kategorien_maximal> kästen_;
    std::array<std::unique_ptr<Knopf>, Schemas_maximal> schemas_;
    // While false a change of a box is not followed by a rebuild.
    bool Kategorie_Ereignisse_an_ = true;
    Schema_Modus schema_modus_ = Schema_Modus::wählen;
};

}  // namespace tonkartei
