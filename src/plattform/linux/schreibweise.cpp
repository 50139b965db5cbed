#include "plattform/linux/schreibweise.hpp"

#include "plattform/dateisystem.hpp"
#include "plattform/linux/systemruf.hpp"

namespace tonkartei {

Schreibweise::Fund Schreibweise::suchen(Text& pfad) {
    const Text glatt = ohne_Trenner(pfad);
    Text ordner = Ordner_von(glatt);
    const Text name = glatt.substr(ordner.size());
    Text gefunden;
    auto ergebnis = namen_.suche(ordner, name, gefunden);
    if (ergebnis == Namensbuch::Ergebnis::Ordner_fehlt) {
        Text oben = ohne_Trenner(ordner);
        struct stat da {};
        if (oben.size() <= 1 || ansehen(oben, da, false) != 0 || !S_ISDIR(da.st_mode)) return Fund::ohne_Ordner;
        ordner = mit_Trenner(oben);
        ergebnis = namen_.suche(ordner, name, gefunden);
        if (ergebnis == Namensbuch::Ergebnis::Ordner_fehlt) return Fund::ohne_Ordner;
    }
    const bool da = ergebnis == Namensbuch::Ergebnis::gefunden;
    const Text richtig = ordner + (da ? gefunden : name);
    if (richtig == glatt) return da ? Fund::wie_geschrieben : Fund::nichts;
    pfad = richtig;
    return da ? Fund::anders : Fund::nichts;
}

int Schreibweise::ansehen(Text& pfad, struct stat& ergebnis, bool Verweis_selbst) {
    const int merker = Verweis_selbst ? AT_SYMLINK_NOFOLLOW : 0;
    for (;;) {
        if (::fstatat(AT_FDCWD, pfad.c_str(), &ergebnis, merker) == 0) return 0;
        if (errno != ENOENT) return errno;
        switch (suchen(pfad)) {
            case Fund::anders: break;
            case Fund::ohne_Ordner: return ENOTDIR;
            default: return ENOENT;
        }
    }
}

int Schreibweise::vergeben(Text& pfad) {
    switch (suchen(pfad)) {
        case Fund::nichts: return ENOENT;
        case Fund::ohne_Ordner: return ENOTDIR;
        default: return EEXIST;
    }
}

Deskriptor Schreibweise::öffnen(Text& pfad, int flags) {
    Deskriptor fd = öffne(pfad, flags);
    if (fd || errno != ENOENT) return fd;
    const Fund fund = suchen(pfad);
    if (fund == Fund::anders) return öffne(pfad, flags);
    errno = fund == Fund::ohne_Ordner ? ENOTDIR : ENOENT;
    return fd;
}

Deskriptor Schreibweise::öffnen_oder_anlegen(Text& pfad, int flags, mode_t rechte) {
    Deskriptor fd = öffnen(pfad, flags);
    return fd || errno != ENOENT ? std::move(fd) : öffne(pfad, flags | O_CREAT, rechte);
}

}  // namespace tonkartei
