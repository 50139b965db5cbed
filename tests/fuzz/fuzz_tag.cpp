// The tag reader and writer on any file at all.
#include "fuzz/treiber.hpp"
#include "grundlagen/codepage.hpp"
#include "mp3/bausteine.hpp"
#include "mp3/mp3_taghead.hpp"
#include "mp3/speicher_dateisystem.hpp"

using namespace tonkartei;

namespace {

void sauber(const Text& text, std::size_t breite) {
    verlangt(Zeichenzahl(text) <= breite, "text no longer than its field");
    verlangt(text.find_first_of(std::string_view("\0\r\n", 3)) == Text::npos, "no zero and no line break");
    verlangt(text == getrimmt(text), "no blanks at the ends");
    verlangt(text == auf_Seite(text), "only characters of the page");
}

void Felder_gleich(const MP3_TagHead& a, const MP3_TagHead& b) {
    verlangt(a.Tag_Titel == b.Tag_Titel && a.Tag_Artist == b.Tag_Artist && a.Tag_Album == b.Tag_Album &&
                 a.Tag_Jahr == b.Tag_Jahr && a.Tag_Kommentar == b.Tag_Kommentar && a.Tag_Genre == b.Tag_Genre,
             "what was written is read again");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
    const std::string alt(reinterpret_cast<const char*>(daten), größe);
    Speicher_Dateisystem dateien;
    std::string& inhalt = dateien.Dateien["a"].Inhalt;
    inhalt = alt;
    MP3_TagHead mp3(dateien);
    mp3.MP3_Datei = "a";

    const bool gelesen = mp3.Tag_lesen();
    verlangt(gelesen == (größe >= 128 && alt.compare(größe - 128, 3, "TAG") == 0), "a tag is 128 bytes and a marker");
    for (const Text* text : {&mp3.Tag_Titel, &mp3.Tag_Artist, &mp3.Tag_Album, &mp3.Tag_Kommentar}) sauber(*text, 30);
    sauber(mp3.Tag_Jahr, 4);

    verlangt(mp3.Tag_schreiben() == (größe >= 128), "writing needs 128 bytes");
    verlangt(inhalt.size() == größe, "the file never grows");
    const std::size_t davor = größe < 128 ? größe : größe - 128;
    verlangt(inhalt.compare(0, davor, alt, 0, davor) == 0, "the sound stays");
    if (größe >= 128) {
        MP3_TagHead neu(dateien);
        neu.MP3_Datei = "a";
        verlangt(neu.Tag_lesen(), "a tag stands now");
        Felder_gleich(mp3, neu);
    }
    verlangt(dateien.offene() == 0, "all closed");
    return 0;
}

std::vector<std::string> Fuzz_Saat() {
    return {
        Tag_Bytes{}.Block(),
        "Ton" + Tag_Bytes{.Titel = "ab\rcd\n", .Kommentar = " \xE4\x80 ", .Füllung = ' '}.Block(),
        std::string(127, 'x'),
        Tag_Bytes{.Marke = "tag"}.Block(),
        Lied_Bytes(600, 1, 0xFFFB9064) + Tag_Bytes{}.Block(),
    };
}
