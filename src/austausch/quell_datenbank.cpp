#include "austausch/quell_datenbank.hpp"

#include "datenbank/info_datei.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

bool Quell_Datenbank::vorhanden(const Text& Ordner) const { return dateien_.Datei_da(Ordner + Info_Datei_Name); }

}  // namespace tonkartei
