// The dialog that asks which categories of another collection are to be added.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "datenbank/modell.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/wartedialog.hpp"

namespace tonkartei {

// A flag for each category, place 0 for category 1.
using Kategorieauswahl = std::array<bool, Kategorien_maximal>;

class DB_add_start_Kategorien : public Wartedialog<Kategorieauswahl> {
public:
    explicit DB_add_start_Kategorien(Ansicht& ansicht);

private:
    std::array<std::unique_ptr<Kasten>, Kategorien_maximal> kästen_;  // come first in the tab order

public:
    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "&Abbruch"};

    // The box of a category of the other collection, 1 to 20; error 9 outside. The first stands for all songs.
    Kasten& Kategorie(int k) const;

    // Waits for the choice; box 1 is checked at first. None when it was cancelled.
    std::optional<Kategorieauswahl> wählen(const std::vector<Text>& Namen);

protected:
    Knoten anordnung() override;

private:
    void Kasten_geändert(int k);

    bool gleicht_an_ = false;
};

}  // namespace tonkartei
