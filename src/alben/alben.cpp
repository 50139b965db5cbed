#include "alben/alben.hpp"

#include "datenbank/modell.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/rechner.hpp"

namespace tonkartei {

Alben::Alben(Rechner& rechner, Ansicht& ansicht) : rechner_(rechner), ansicht_(ansicht) {}

Long Alben::Album_neu() {
    if (eigene.Anzahl >= Alben_maximal) {
        ansicht_.informieren(Programmtitel, "Maximal " + Zahltext(Alben_maximal) + " Alben möglich!");
        return 0;
    }
    Album_reset(++eigene.Anzahl);
    return eigene.Anzahl;
}

void Alben::Album_reset(Long Nr) {
    Album& album = eigene.Alben[Nr];
    album = Album{};
    album.Jahr = rechner_.jetzt().Jahr;
    album.Titel = "Album Nr. " + Zahltext(Nr);
}

int Alben::Titel_neu(Long Nr) {
    Album& album = eigene.Alben[Nr];
    if (album.Titel_Anzahl >= Album_Titel_maximal) {
        ansicht_.informieren(Programmtitel, "Maximal " + Zahltext(Album_Titel_maximal) + " pro Album möglich!");
        return 0;
    }
    ++album.Titel_Anzahl;
    Titel_reset(Nr, album.Titel_Anzahl);
    return album.Titel_Anzahl;
}

void Alben::Titel_reset(Long Nr, int Titel) {
    Album& album = eigene.Alben[Nr];
    Album_Lied& titel = album.Lieder[Titel];
    titel = Album_Lied{};
    titel.Artist = album.Interpret;
    titel.Titel = "Lied Nr. " + Zahltext(Titel);
}

Long Lied_von(const Modell& modell, const Album_Lied& titel) {
    const bool da = titel.in_Datenbank && titel.Lied_Nr >= 1 && titel.Lied_Nr <= modell.Anzahl_Lieder;
    return da ? titel.Lied_Nr : 0;
}

Text Album_Zeile(const Album& album) { return album.Interpret + " - " + album.Titel; }

Text Album_Text(const Album& album) { return album.Titel + " - " + album.Interpret; }

}  // namespace tonkartei
