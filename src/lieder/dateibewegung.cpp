#include "lieder/dateibewegung.hpp"

#include "lieder/cshfileop.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

bool Datei_bewegen(Shell& shell, Dateisystem& dateien, const Text& von, const Text& nach) {
    if (dateien.Ordner_da(nach)) return false;
    CSHFileOp vorgang(shell);
    vorgang.AddSourceFile(von);
    vorgang.AddDestFile(nach);
    bool ok = false;
    vorgang.MoveFiles(ok);
    return ok;
}

bool Datei_kopieren(Shell& shell, const Text& von, const Text& nach) {
    CSHFileOp vorgang(shell);
    vorgang.AddSourceFile(von);
    vorgang.AddDestFile(nach);
    bool ok = false;
    vorgang.CopyFiles(ok);
    return ok;
}

bool in_den_Papierkorb(Shell& shell, const Text& pfad) {
    CSHFileOp vorgang(shell);
    vorgang.AllowUndo(true);
    vorgang.AddSourceFile(pfad);
    bool ok = false;
    vorgang.DeleteFiles(ok);
    return ok;
}

}  // namespace tonkartei
