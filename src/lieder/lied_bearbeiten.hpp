// Changes of one song: its names, in the file's tag first, and what its file tells.
#pragma once

#include "datenbank/modell.hpp"
#include "mp3/mp3_taghead.hpp"

namespace tonkartei {

class Ansicht;

// As many characters as a tag holds of a title or an artist.
inline constexpr std::size_t Tagtext_maximal = 30;

// An answer of the user's as a name: what the page cannot hold is "?", and line breaks go.
Text als_Name(const Text& eingabe);

class Lied_bearbeiten {
public:
    Lied_bearbeiten(Modell& modell, MP3_TagHead& mp3, Ansicht& ansicht) : modell_(modell), mp3_(mp3), ansicht_(ansicht) {}

    // Ask for the new text. True when tag and record have it; a song without a tag stays as it is, without a word.
    bool Titel_ändern(Long Nr);
    bool Artist_ändern(Long Nr);
    void Info_zeigen(Long Nr) const;

private:
    bool ändern(Long Nr, const Text& Feldname, Text Lied::*feld, Text MP3_TagHead::*im_Tag);

    Modell& modell_;
    MP3_TagHead& mp3_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
