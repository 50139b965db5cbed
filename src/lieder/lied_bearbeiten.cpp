#include "lieder/lied_bearbeiten.hpp"

#include "grundlagen/codepage.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

Text als_Name(const Text& eingabe) { return Zeichen_entfernen(Zeichen_entfernen(auf_Seite(eingabe), "\r"), "\n"); }

bool Lied_bearbeiten::Titel_ändern(Long Nr) { return ändern(Nr, "Titel", &Lied::Titel, &MP3_TagHead::Tag_Titel); }

bool Lied_bearbeiten::Artist_ändern(Long Nr) { return ändern(Nr, "Artist", &Lied::Artist, &MP3_TagHead::Tag_Artist); }

bool Lied_bearbeiten::ändern(Long Nr, const Text& Feldname, Text Lied::*feld, Text MP3_TagHead::*im_Tag) {
    Lied& lied = modell_.Lieder[Nr];
    Text neu =
        als_Name(ansicht_.eingeben("Wie soll der neue " + Feldname + " des Liedes " + in_Anführungszeichen(lied.Titel) +
                                       " von " + in_Anführungszeichen(lied.Artist) + " lauten?",
                                   "Lied-" + Feldname + " ändern", lied.*feld));
    if (neu.empty()) return false;
    if (Zeichenzahl(neu) > Tagtext_maximal) {
        neu = links(neu, Tagtext_maximal);
        ansicht_.informieren("Titel ändern", "Der " + Feldname + " darf nicht mehr als 30 Zeichen haben. Er wurde gekürzt:" +
                                                 Text(CRCR) + neu);
    }
    mp3_.MP3_Datei = modell_.Lied_Pfad(Nr);
    if (!mp3_.Tag_lesen()) return false;
    mp3_.*im_Tag = neu;
    if (!mp3_.Tag_schreiben()) return false;
    lied.*feld = getrimmt(neu);  // as the tag is read again
    return true;
}

void Lied_bearbeiten::Info_zeigen(Long Nr) const {
    const Lied& lied = modell_.Lieder[Nr];
    const bool da = lied.Kategorie >= 1 && lied.Kategorie <= modell_.Anzahl_Kategorien;
    ansicht_.informieren("Lied-Info", "Titel: " + lied.Titel + Text(CR) + "Artist: " + lied.Artist + Text(CR) +
                                          "Kategorie: " + (da ? modell_.Kategorien[lied.Kategorie] : Text{}) + Text(CR) +
                                          "Anzahl: " + Zahltext(lied.Anzahl) + Text(CR) +
                                          "Dateigröße: " + Zahltext(lied.Größe) + " kBytes" + Text(CR) +
                                          "Dateiname: " + anzeigbar(modell_.Lied_Pfad(Nr)));
}

}  // namespace tonkartei
