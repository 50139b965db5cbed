#include "lieder/hinzufuegen/mp3_tag_aendern.hpp"

#include "lieder/lied_bearbeiten.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

MP3_Tag_ändern::MP3_Tag_ändern(Ansicht& ansicht, MP3_TagHead& mp3)
    : Wartedialog(ansicht, "MP3_Tag_ändern", "MP3-Tag ändern"), mp3_(mp3) {
    Pfad.wie_Daten = true;
    Pfad.Beschriftung_wörtlich = true;
    Pfad.eingerahmt = true;
    Artist.tooltip("Der Artist, höchstens 30 Zeichen");
    Titel.tooltip("Der Titel, höchstens 30 Zeichen");
    Ok.tooltip("schreibt Artist und Titel in die Datei");
    Abbruch.tooltip("lässt die Datei, wie sie ist");
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    for (Textfeld* feld : {&Artist, &Titel})
        feld->Geändert.verbinden([feld] {
            if (Zeichenzahl(feld->text()) > Tagtext_maximal) feld->text(links(feld->text(), Tagtext_maximal));
        });
    Ok.Klick.verbinden([this] { antworten(true); });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

Knoten MP3_Tag_ändern::anordnung() {
    return Spalte({Pfad_Text, Knoten(Pfad).zeichen(50).dehnen(1),
                   Gitter(2, {Artist_Text, Knoten(Artist).zeichen(30).dehnen(1), Titel_Text,
                              Knoten(Titel).zeichen(30).dehnen(1)}),
                   Feder(0, 1), Zeile({Feder(), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

bool MP3_Tag_ändern::Tag_ändern(const Text& Datei, Text& neuer_Artist, Text& neuer_Titel) {
    if (!mp3_.Datei_lesbar(Datei)) return false;
    const auto füllen = [&] {
        Pfad.beschriftung(anzeigbar(Datei));
        Pfad.tooltip(anzeigbar(Datei));  // the end of a long one does not fit
        Artist.text(neuer_Artist);
        Titel.text(neuer_Titel);
    };
    // The fields keep their texts until the window is loaded again.
    return modal_fragen(füllen, Artist).has_value() && schreiben(Datei, neuer_Artist, neuer_Titel);
}

bool MP3_Tag_ändern::schreiben(const Text& Datei, Text& neuer_Artist, Text& neuer_Titel) {
    mp3_.MP3_Datei = Datei;
    if (!mp3_.Tag_lesen()) return false;
    const Text artist = als_Name(Artist.text()), titel = als_Name(Titel.text());
    mp3_.Tag_Artist = artist;
    mp3_.Tag_Titel = titel;
    if (!mp3_.Tag_schreiben()) return false;
    neuer_Artist = getrimmt(artist);  // as the tag is read again
    neuer_Titel = getrimmt(titel);
    return true;
}

}  // namespace tonkartei
