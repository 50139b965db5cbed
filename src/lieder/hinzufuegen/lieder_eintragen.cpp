#include "lieder/hinzufuegen/lieder_eintragen.hpp"

#include <utility>

#include "grundlagen/waehrend.hpp"
#include "lieder/lied_einlesen.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

void Lieder_eintragen::ausführen(Long A, Übernahmeart modus, const Begleitung& begleitung) {
    if (A < 1) return;
    const Long vorher = modell_.Anzahl_Lieder;
    const Byte kategorie = gemeinsame_Kategorie(A, modus);
    // Entered already, for an end that then did not come.
    if (modell_.Anzahl_Lieder != vorher) return;
    mit_Kategorien(std::vector<Byte>(static_cast<std::size_t>(A), kategorie), begleitung);
}

void Lieder_eintragen::mit_Kategorien(std::vector<Byte> Kategorien, Begleitung begleitung) {
    if (Kategorien.empty()) return;
    Lauf lauf{std::move(Kategorien), std::move(begleitung)};
    {
        const Während eingetragen_wird(lauf_, &lauf);
        while (lauf.gezählt < lauf.Kategorien.size()) nächstes(lauf, true);
    }
    if (Liste_neu_aufbauen) Liste_neu_aufbauen();
}

// The end may come, and finish the run, while a category is asked for.
void Lieder_eintragen::nächstes(Lauf& lauf, bool fragen) {
    try {
        if (lauf.gezählt == lauf.begleitet) {
            const Byte kategorie = lauf.Kategorien[lauf.gezählt++];
            eintragen(++modell_.Anzahl_Lieder, kategorie, fragen);
            if (lauf.begleitet == lauf.gezählt) return;
        }
        const auto i = als_Long(static_cast<long long>(++lauf.begleitet));
        const Long nr = modell_.Anzahl_Lieder;
        if (lauf.begleitung.Album_Eintrag) lauf.begleitung.Album_Eintrag(i, nr);
        if (lauf.begleitung.Playlist_Zeile) lauf.begleitung.Playlist_Zeile(nr);
    } catch (const Laufzeitfehler&) {
        lauf.begleitet = lauf.gezählt;
        // The list file gets the blame whatever has failed, and is given up.
        wahl_.ansicht().informieren("Playlist erstellen", "Es ist ein Fehler beim erstellen der Playlist aufgetreten!");
        lauf.begleitung.Playlist_Zeile = nullptr;
    }
}

void Lieder_eintragen::umnummerieren(const std::function<Byte(Byte)>& neue) {
    if (lauf_ == nullptr) return;
    for (Byte& kategorie : lauf_->Kategorien)
        if (kategorie != 0) kategorie = neue(kategorie);
}

void Lieder_eintragen::abschließen() {
    if (lauf_ == nullptr) return;
    while (lauf_->begleitet < lauf_->Kategorien.size()) nächstes(*lauf_, false);
}

Byte Lieder_eintragen::gemeinsame_Kategorie(Long A, Übernahmeart modus) {
    Ansicht& ansicht = wahl_.ansicht();
    const Text rest = Text(" in die Datenbank ") + (modus == Übernahmeart::kopieren ? "kopiert." : "bewegt.");
    if (A == 1) {
        ansicht.informieren("Lied hinzufügen", "Es wurde 1 neues Lied" + rest);
        return 0;
    }
    if (!ansicht.fragen("Lieder hinzufügen", "Es wurden " + Zahltext(A) + " neue Lieder" + rest + Text(CRCR) +
                                                 "Haben alle diese Lieder die gleiche Kategorie?"))
        return 0;
    return wahl_.wählen("Alle neuen Lieder", {}, {});
}

void Lieder_eintragen::eintragen(Long Nr, Byte Kategorie, bool fragen) {
    Lied& lied = modell_.Lieder[Nr];
    lied.Anzahl = 0;
    // The song is counted already: a failure below, or the end of the program while its category is asked for, must leave a
    // record that holds together.
    lied.Kategorie = Kategorie == 0 ? Byte{1} : Kategorie;
    Lied_einlesen(modell_, mp3_, Nr);
    if (Kategorie == 0 && fragen) lied.Kategorie = wahl_.wählen(lied.Titel, lied.Artist, modell_.Lied_Pfad(Nr));
}

}  // namespace tonkartei
