#include "lieder/lieder_eintragen.hpp"

#include "lieder/lied_einlesen.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

void Lieder_eintragen::ausführen(Long A, Übernahmeart modus, const Begleitung& begleitung) {
    if (A < 1) return;
    mit_Kategorien(std::vector<Byte>(static_cast<std::size_t>(A), gemeinsame_Kategorie(A, modus)), begleitung);
}

void Lieder_eintragen::mit_Kategorien(const std::vector<Byte>& Kategorien, Begleitung begleitung) {
    if (Kategorien.empty()) return;
    Long i = 0;
    for (const Byte kategorie : Kategorien) {
        const Long nr = ++modell_.Anzahl_Lieder;
        ++i;
        try {
            eintragen(nr, kategorie);
            if (begleitung.Album_Eintrag) begleitung.Album_Eintrag(i, nr);
            if (begleitung.Playlist_Zeile) begleitung.Playlist_Zeile(nr);
        } catch (const Laufzeitfehler&) {
            // The list file gets the blame whatever has failed, and is given up.
            wahl_.ansicht().informieren("Playlist erstellen", "Es ist ein Fehler beim erstellen der Playlist aufgetreten!");
            begleitung.Playlist_Zeile = nullptr;
        }
    }
    if (Liste_neu_aufbauen) Liste_neu_aufbauen();
}

Byte Lieder_eintragen::gemeinsame_Kategorie(Long A, Übernahmeart modus) {
    Ansicht& ansicht = wahl_.ansicht();
    const Text rest = Text(" in die Datenbank ") + (modus == Übernahmeart::kopieren ? "kopiert." : "bewegt.");
    if (A == 1) {
        modell_.Meldung = "Es wurde 1 neues Lied" + rest;
        ansicht.informieren("Lied hinzufügen", modell_.Meldung);
        return 0;
    }
    modell_.Meldung =
        "Es wurden " + Zahltext(A) + " neue Lieder" + rest + Text(CRCR) + "Haben alle diese Lieder die gleiche Kategorie?";
    if (!ansicht.fragen("Lieder hinzufügen", modell_.Meldung)) return 0;
    return wahl_.wählen("Alle neuen Lieder", {}, {});
}

void Lieder_eintragen::eintragen(Long Nr, Byte Kategorie) {
    Lied& lied = modell_.Lieder[Nr];
    lied.Anzahl = 0;
    // The song is counted already: a failure below, or the end of the program while its category is asked for, must leave a
    // record that holds together.
    lied.Kategorie = Kategorie == 0 ? Byte{1} : Kategorie;
    Lied_einlesen(modell_, mp3_, Nr);
    if (Kategorie == 0) lied.Kategorie = wahl_.wählen(lied.Titel, lied.Artist, modell_.Lied_Pfad(Nr));
}

}  // namespace tonkartei
