#include "mp3/mp3_taghead.hpp"

#include <optional>

#include "grundlagen/fehler.hpp"
#include "plattform/offene_datei.hpp"

namespace tonkartei {
namespace {

// As a name leaves the tag: what was the end of a line closes up.
Text einzeilig(const Text& text) {
    if (text.find_first_of("\r\n") == Text::npos) return text;
    return getrimmt(Zeichen_entfernen(Zeichen_entfernen(text, "\r"), "\n"));
}

Long in_KByte(double bytes) { return gerundet(bytes / 1024.0); }

}  // namespace

bool MP3_TagHead::Datei_lesbar(const Text& pfad) {
    try {
        const Offene_Datei datei(dateien_, pfad, Dateimodus::lesen);
        return true;
    } catch (const Dateifehler&) {
        return false;
    }
}

void MP3_TagHead::Lied_Tag_lesen(const Text& Datei, Text& Titel, Text& Artist) {
    MP3_Datei = Datei;
    benennen(Tag_lesen(), Titel, Artist);
}

Zeit MP3_TagHead::Lied_Zeit_lesen(const Text& Datei) {
    MP3_Datei = Datei;
    return Zeit_nach(MP3_Info_lesen());
}

Long MP3_TagHead::Lied_Größe_lesen(const Text& Datei) {
    try {
        return in_KByte(static_cast<double>(dateien_.Dateilänge(Datei)));
    } catch (const Dateifehler&) {
        return 0;
    }
}

Lied_Daten MP3_TagHead::Lied_Daten_lesen(const Text& Datei) {
    MP3_Datei = Datei;
    Lied_Daten daten;
    std::optional<Offene_Datei> datei;
    try {
        datei.emplace(dateien_, Datei, Dateimodus::lesen);
    } catch (const Dateifehler&) {
        benennen(false, daten.Titel, daten.Artist);
        daten.Größe = Lied_Größe_lesen(Datei);  // a file that may not be opened still has a length
        return daten;
    }
    benennen(Tag_lesen_aus(*datei), daten.Titel, daten.Artist);
    try {
        daten.Größe = in_KByte(static_cast<double>(datei->Länge()));
    } catch (const Dateifehler&) {
        daten.Größe = 0;
    }
    daten.Zeit = Zeit_nach(MP3_Info_lesen_aus(*datei));
    return daten;
}

void MP3_TagHead::benennen(bool mit_Tag, Text& Titel, Text& Artist) const {
    // A song is one line in the info file, so line breaks stay behind.
    Titel = mit_Tag ? einzeilig(Tag_Titel) : Text(Titel_ohne_Tag);
    Artist = mit_Tag ? einzeilig(Tag_Artist) : Text(Artist_ohne_Tag);
}

Zeit MP3_TagHead::Zeit_nach(bool analysiert) const { return analysiert ? Zeit_aus(0, Dauer_Minuten, Dauer_Sekunden) : 0; }

}  // namespace tonkartei
