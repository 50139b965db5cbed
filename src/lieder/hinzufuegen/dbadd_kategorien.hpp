// The dialog that maps the categories of another collection to those of the open one, before its songs are entered.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/modell.hpp"
#include "kategorien/kategoriezuordnung.hpp"
#include "lieder/hinzufuegen/uebernahme_auftrag.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/wartedialog.hpp"

namespace tonkartei {

class Kategorie_bearbeiten;

// Its answer is the mapping itself, however it is closed.
class DBadd_Kategorien : public Wartedialog<bool> {
public:
    DBadd_Kategorien(Ansicht& ansicht, const Modell& modell, Kategorie_bearbeiten& editor);

    Schriftfeld Liste_Text{*this, "Liste_Text", "&Kategorien der anderen Datenbank:"};
    Listenfeld Liste{*this, "Liste"};
    Schriftfeld neue_Kategorie_Text{*this, "neue_Kategorie_Text", "&neue Kategorie:"};
    Auswahlfeld neue_Kategorie{*this, "neue_Kategorie"};
    Knopf Kategorie_Edit{*this, "Kategorie_Edit", "Kategorien &bearbeiten..."};
    Knopf Ok{*this, "Ok", "&OK"};

    // Names of the source collection's categories, from 1; at most 20.
    void Quelle_setzen(std::vector<Text> Kategorien) { zuordnung_.Quelle_setzen(std::move(Kategorien)); }
    // The open collection is the source.
    void eigene_als_Quelle();

    // Waits until the mapping is done: the category of each of the `A` new songs, 0 where it is to be asked for. New song i
    // takes that of line i of `Lieder`, although a file that was dropped on the way has no new song: all behind it get the
    // category of their predecessor in the list. That is so on purpose.
    std::vector<Byte> Init(Long A, const std::vector<Lied_Fund>& Lieder);
    // The same without waiting: as the mapping stands, or by the names alone when it has not been asked for yet.
    std::vector<Byte> ohne_Rückfrage(Long A, const std::vector<Lied_Fund>& Lieder);

protected:
    Knoten anordnung() override;

private:
    void bearbeiten();
    void nach_dem_Bearbeiten();
    std::vector<Byte> je_Lied(Long A, const std::vector<Lied_Fund>& Lieder) const;

    const Modell& modell_;
    Kategorie_bearbeiten& editor_;
    Kategoriezuordnung zuordnung_{modell_, Liste, neue_Kategorie};
};

}  // namespace tonkartei
