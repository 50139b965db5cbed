// The shell's file operation, made of the calls of Dateisystem alone.
#pragma once

#include <unordered_map>

#include "plattform/dateisystem.hpp"
#include "plattform/papierkorb.hpp"
#include "plattform/shell.hpp"

namespace tonkartei {

// One call of SHFileOperationA. The result is 0, or the system error's Windows number of the first file that failed, with
// which the work ends. "Nein" passes a file over, "Abbrechen" ends the work; both count as aborted by the user.
class Shell_Dateivorgang {
public:
    Shell_Dateivorgang(Dateisystem& dateien, Papierkorb& papierkorb, const Shell_Frage& frage, const Shell_Vorgang& vorgang);

    Shell_Ergebnis ausführen();

private:
    bool hat(std::uint16_t flag) const { return (vorgang_.Flags & flag) != 0; }
    bool da(const Text& pfad) { return dateien_.Art_von(pfad) != Pfadart::nichts; }
    bool ja(const Text& titel, const Text& text);

    void löschen();
    void umbenennen();
    void übertragen();
    void Zielordner_anlegen(const Text& ordner);
    void einen_übertragen(const Text& von, Pfadart art, Text nach, Pfadart dort);
    void Datei_übertragen(const Text& von, const Text& nach, bool ersetzen);
    void Ordner_übertragen(const Text& von, const Text& nach, int tiefe);
    void Ordner_entfernen(const Text& ordner, int tiefe);
    Text freier_Name(const Text& ziel);

    Dateisystem& dateien_;
    Papierkorb& papierkorb_;
    const Shell_Frage& frage_;
    const Shell_Vorgang& vorgang_;
    std::unordered_map<Text, Text> ziele_;  // files written so far: upper case to spelling
    bool übergangen_ = false;
};

}  // namespace tonkartei
