#include "lieder/hinzufuegen/neues_album.hpp"

#include <algorithm>

#include "datenbank/modell.hpp"
#include "grundlagen/codepage.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

void Neues_Album::erstellen(Long A, Begleitung& begleitung) {
    if (A > Album_Titel_maximal) {
        const Text höchstens = Zahltext(Album_Titel_maximal);
        if (!ansicht_.fragen("Album erstellen", "Achtung!" + Text(CRCR) + "Es sind nur " + höchstens +
                                                    " Lieder pro Album erlaubt." + Text(CRCR) +
                                                    "Wollen Sie ein Album nur mit den ersten " + höchstens +
                                                    " Liedern, die hinzugefügt werden sollen erstellen?"))
            return;
    }
    if (!geladen()) {
        ansicht_.informieren("Album hinzufügen", "Für diese Datenbank existiert noch keine Alben-Verwaltung.");
        return;
    }
    const Long nr = alben_.Album_neu();
    if (nr <= 0) return;
    if (!benennen(nr)) {
        --alben_.eigene.Anzahl;
        return;
    }
    const Byte anzahl = als_Byte(A);
    alben_.eigene.Alben[nr].Titel_Anzahl = std::min(anzahl, Byte{Album_Titel_maximal});
    modell_.Alben_geändert = true;
    begleitung.Album_Eintrag = [this, nr](Long i, Long Lied_Nr) {
        Album& album = alben_.eigene.Alben[nr];
        if (i > album.Titel_Anzahl) return;
        const Lied& lied = modell_.Lieder[Lied_Nr];
        album.Lieder[i] = {lied.Artist, lied.Titel, lied.Zeit, true, Lied_Nr};
    };
}

bool Neues_Album::geladen() {
    if (modell_.Alben_geladen || datei_.Album_Datei_vorhanden()) return datei_.geladen_oder_gelesen();
    alben_.eigene = {};
    modell_.Alben_geladen = true;
    return true;
}

bool Neues_Album::benennen(Long Nr) {
    Album& album = alben_.eigene.Alben[Nr];
    const Text vorgabe = "Album " + Zahltext(Nr);
    album.Interpret =
        auf_Seite(ansicht_.eingeben("Wie lautet der Interpret des neuen Albums?", "Album hinzufügen", vorgabe));
    if (album.Interpret.empty()) return false;
    album.Titel = auf_Seite(ansicht_.eingeben("Wie lautet der Titel des neuen Albums?", "Album hinzufügen", vorgabe));
    return !album.Titel.empty();
}

}  // namespace tonkartei
