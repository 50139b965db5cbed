// What an MP3 file tells about itself: the tag in its last 128 bytes and the first frame header in its first 5000.
#pragma once

#include <string_view>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"
#include "grundlagen/zeit.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

class Offene_Datei;

// All that a song record takes from its file.
struct Lied_Daten {
    Text Titel;
    Text Artist;
    Long Größe = 0;            // KByte
    tonkartei::Zeit Zeit = 0;  // 0 when unknown
};

// One slot for the whole program: set MP3_Datei, call, read the fields. A call that answers false leaves the fields of its
// half as an earlier call filled them. No call throws for what the disk does; where an arithmetic failure goes up, it says
// so.
class MP3_TagHead {
public:
    explicit MP3_TagHead(Dateisystem& dateien) : dateien_(dateien) {}

    // Full path of the file that the next call works on.
    Text MP3_Datei;

    // The tag, read by Tag_lesen and written by Tag_schreiben. At most 30 characters (the year 4); a longer text is cut in
    // the file only. Read texts hold no zero and no blank at their ends.
    Text Tag_Titel;
    Text Tag_Artist;
    Text Tag_Album;
    Text Tag_Jahr;
    Text Tag_Kommentar;
    Byte Tag_Genre = 0;  // index into Genre_Tabelle, or beyond it

    // The frame header, read by MP3_Info_lesen.
    Long MPEG_Version = 0;  // 25 (2.5), 2 or 1; 0 is reserved
    Long MPEG_Layer = 0;    // 1 to 3; 0 is reserved
    bool VBR = false;       // a Xing header was seen
    Long Bitrate = 0;       // kilobits per second, the mean if VBR
    Long Samplerate = 0;    // samples per second
    Text Kanal_Modus;
    Long Xing_Frames = 0;  // set only if VBR
    Long Dauer_ms = 0;
    Long Dauer_Sekunden = 0;  // 0 to 59
    Long Dauer_Minuten = 0;
    Text Emphasis;
    bool Padding = false;
    bool Schutz = false;
    bool Privat = false;
    bool Copyright = false;
    bool Original = false;

    // True when the file can be opened for reading.
    bool Datei_lesbar(const Text& pfad);

    // True when the file has a tag; then all Tag_ fields are fresh.
    bool Tag_lesen();
    // Overwrites the last 128 bytes, tag or not; the file never grows. Ask Tag_lesen first. True when all was written; a
    // failure half way leaves what had been written.
    bool Tag_schreiben();

    // The 32 bits of the frame header as "0" and "1", empty when none was found. Sets VBR and Xing_Frames.
    Text Frame_Kopf_lesen();
    // True when the header could be analysed. On false the times are of no use.
    // Overflow (6): 256 MByte or more, or VBR beyond some 48 million bytes. Division by zero (11): VBR without frames.
    bool MP3_Info_lesen();

    // Title and artist of a file, without line breaks; the words for a song without a tag when it has none.
    void Lied_Tag_lesen(const Text& Datei, Text& Titel, Text& Artist);
    // Minutes and seconds of a file, 0 when the analysis finds nothing. Fails as MP3_Info_lesen does; a time that passes it
    // stays below 9000 minutes.
    Zeit Lied_Zeit_lesen(const Text& Datei);
    // KByte of a file, rounded; 0 when there is none.
    Long Lied_Größe_lesen(const Text& Datei);
    // The three above through one opening of the file, in that order, with the same results, fields and failures.
    Lied_Daten Lied_Daten_lesen(const Text& Datei);

private:
    bool Tag_lesen_aus(Offene_Datei& datei);
    Text Frame_Kopf_lesen_aus(Offene_Datei& datei);
    bool MP3_Info_lesen_aus(Offene_Datei& datei);
    void benennen(bool mit_Tag, Text& Titel, Text& Artist) const;
    Zeit Zeit_nach(bool analysiert) const;

    Dateisystem& dateien_;
};

// What a song without a readable tag is called.
inline constexpr std::string_view Artist_ohne_Tag = "---";
inline constexpr std::string_view Titel_ohne_Tag = "kein Tag/Datei nicht gefunden";

}  // namespace tonkartei
