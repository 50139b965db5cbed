#include "lieder/cshfileop.hpp"

#include "grundlagen/fehler.hpp"

namespace tonkartei {

std::uint16_t CSHFileOp::Flags() const {
    unsigned flags = 0;
    if (AllowUndo_) flags += FOF_ALLOWUNDO;
    if (!ConfirmMakeDir_) flags += FOF_NOCONFIRMMKDIR;
    if (!ConfirmOperation_) flags += FOF_NOCONFIRMATION;
    if (!CustomText_.empty()) flags += FOF_SIMPLEPROGRESS;
    if (!IncludeDirectories_) flags += FOF_FILESONLY;
    if (RenameOnCollision_) flags += FOF_RENAMEONCOLLISION;
    if (SilentMode_) flags += FOF_SILENT;
    if (Ziele_.size() > 1) flags += FOF_MULTIDESTFILES;
    return static_cast<std::uint16_t>(flags);
}

bool CSHFileOp::ausführen(std::uint32_t code) {
    if (Quellen_.empty()) throw Laufzeitfehler(Fehler_ohne_Quelle, "No source files specified file operation");
    Shell_Vorgang vorgang;
    vorgang.Code = code;
    vorgang.Flags = Flags();
    vorgang.von = Quellen_;
    vorgang.nach = Ziele_;
    vorgang.Titel = CustomText_;
    const Shell_Ergebnis ergebnis = shell_.SHFileOperationA(vorgang);
    return ergebnis.Rückgabe == 0 && !ergebnis.abgebrochen;
}

}  // namespace tonkartei
