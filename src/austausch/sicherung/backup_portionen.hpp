// The window in which a backup is planned.
#pragma once

#include <optional>

#include "austausch/sicherung/portionsplan.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {

class Backup_Verzeichnis;
class Fortschritts_Fenster;
class Portionserstellung;
class Quell_Datenbank;

class Backup_Portionen : public Fenster {
public:
    Backup_Portionen(const Modell& modell, Backup_Verzeichnis& verzeichnis, Quell_Datenbank& quelle,
                     Portionserstellung& erstellung, Fortschritts_Fenster& fortschritt);

    Schriftfeld Backup_Anzahl_Lieder_Text{*this, "Backup_Anzahl_Lieder_Text", "Lieder im Backup:"};
    Schriftfeld Backup_Anzahl_Lieder{*this, "Backup_Anzahl_Lieder"};
    Schriftfeld Backup_Gesamtgröße_Text{*this, "Backup_Gesamtgröße_Text", "Gesamtgröße in MB:"};
    Schriftfeld Backup_Gesamtgröße{*this, "Backup_Gesamtgröße"};
    Schriftfeld Backup_Portionsgröße_Text{*this, "Backup_Portionsgröße_Text", "&Größe einer Portion in MB:"};
    Textfeld Backup_Portionsgröße{*this, "Backup_Portionsgröße"};
    Schriftfeld Backup_Anzahl_Portionen_Text{*this, "Backup_Anzahl_Portionen_Text", "Anzahl der Portionen:"};
    Schriftfeld Backup_Anzahl_Portionen{*this, "Backup_Anzahl_Portionen"};
    Knopf Backup_berücksichtigen{*this, "Backup_berücksichtigen", "&altes Backup berücksichtigen..."};
    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "A&bbruch"};

    // The menu's command. Modal: the plan goes by song numbers, which must stay as they are.
    void Menü_Backup_Portionen();

protected:
    Knoten anordnung() override;
    void beim_Laden() override;

private:
    void Verzeichnis_berücksichtigen();
    void altes_Backup_berücksichtigen();
    void Werte_zeigen();
    double P() const;

    const Modell& modell_;
    Backup_Verzeichnis& verzeichnis_;
    Quell_Datenbank& quelle_;
    Portionserstellung& erstellung_;
    Fortschritts_Fenster& fortschritt_;
    std::optional<Portionsplan> plan_;  // while the window is open
};

}  // namespace tonkartei
