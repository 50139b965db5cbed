// The dialog that changes title and artist in the tag of a file.
#pragma once

#include "mp3/mp3_taghead.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/wartedialog.hpp"

namespace tonkartei {

// Answers whether the fields are to be written.
class MP3_Tag_ändern : public Wartedialog<bool> {
public:
    MP3_Tag_ändern(Ansicht& ansicht, MP3_TagHead& mp3);

    Schriftfeld Pfad_Text{*this, "Pfad_Text", "Pfad/Dateiname:"};
    Schriftfeld Pfad{*this, "Pfad"};
    Schriftfeld Artist_Text{*this, "Artist_Text", "A&rtist:"};
    Textfeld Artist{*this, "Artist"};
    Schriftfeld Titel_Text{*this, "Titel_Text", "&Titel:"};
    Textfeld Titel{*this, "Titel"};
    Knopf Ok{*this, "Ok", "&OK"};
    Knopf Abbruch{*this, "Abbruch", "&Abbruch"};

    // Waits for the user. True when the tag was written, and the texts are the new ones; a file without a tag is left alone,
    // without a word. Does nothing when the file cannot be opened.
    bool Tag_ändern(const Text& Datei, Text& neuer_Artist, Text& neuer_Titel);

protected:
    Knoten anordnung() override;

private:
    bool schreiben(const Text& Datei, Text& neuer_Artist, Text& neuer_Titel);

    MP3_TagHead& mp3_;
};

}  // namespace tonkartei
