// The readers of a song file on any file at all: the frame beside a search that follows its rules byte by byte, the tag
// there and back.
#include <cstring>
#include <optional>

#include "fuzz/treiber.hpp"
#include "grundlagen/codepage.hpp"
#include "grundlagen/fehler.hpp"
#include "mp3/bausteine.hpp"
#include "mp3/mp3_taghead.hpp"
#include "mp3/speicher_dateisystem.hpp"

using namespace tonkartei;

namespace {

// Position of the frame by single bytes, 0 when there is none.
std::size_t langsam_gesucht(const std::string& inhalt, std::uint64_t länge) {
    const auto byte = [&](std::size_t stelle) {
        return stelle <= inhalt.size() ? static_cast<std::uint8_t>(inhalt[stelle - 1]) : std::uint8_t{0};
    };
    if (länge <= 255) return 0;
    for (std::size_t p = 1; p <= 5000; ++p)
        if (byte(p) == 255 && (byte(p + 1) == 250 || byte(p + 1) == 251)) return p;
    return 0;
}

void sauber(const Text& text, std::size_t breite) {
    verlangt(Zeichenzahl(text) <= breite, "text no longer than its field");
    verlangt(text.find(char{0}) == Text::npos, "no zero");
    verlangt(text == getrimmt(text), "no blanks at the ends");
    verlangt(text == auf_Seite(text), "only characters of the page");
}

void Tag_hin_und_zurück(Speicher_Dateisystem& dateien) {
    const std::string& inhalt = dateien.Dateien["a"].Inhalt;
    const std::string alt = inhalt;
    MP3_TagHead mp3(dateien), neu(dateien);
    mp3.MP3_Datei = neu.MP3_Datei = "a";
    const bool lang_genug = alt.size() >= 128;
    const bool da = lang_genug && alt.compare(alt.size() - 128, 3, "TAG") == 0;
    verlangt(mp3.Tag_lesen() == da, "a tag is 128 bytes and a marker");
    for (const Text* text : {&mp3.Tag_Titel, &mp3.Tag_Artist, &mp3.Tag_Album, &mp3.Tag_Kommentar}) sauber(*text, 30);
    sauber(mp3.Tag_Jahr, 4);
    verlangt(mp3.Tag_schreiben() == lang_genug, "writing needs 128 bytes");
    verlangt(inhalt.size() == alt.size(), "the file never grows");
    verlangt(!lang_genug || inhalt.compare(0, alt.size() - 128, alt, 0, alt.size() - 128) == 0, "the sound stays");
    verlangt(neu.Tag_lesen() == lang_genug, "a tag stands now");
    verlangt(mp3.Tag_Titel == neu.Tag_Titel && mp3.Tag_Artist == neu.Tag_Artist && mp3.Tag_Album == neu.Tag_Album &&
                 mp3.Tag_Jahr == neu.Tag_Jahr && mp3.Tag_Kommentar == neu.Tag_Kommentar && mp3.Tag_Genre == neu.Tag_Genre,
             "what was written is read again");
}

// The value of a call, or none for one of the two failures it may report.
template <class Aufruf>
auto versucht(Aufruf aufruf) -> std::optional<decltype(aufruf())> {
    try {
        return aufruf();
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.Nummer() != Fehler_Überlauf && fehler.Nummer() != Fehler_Division) throw;
        return std::nullopt;
    }
}

}  // namespace

// The first four bytes say how many zeros the file has behind the rest, so that large files need no memory.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe) {
    std::uint32_t dahinter = 0;
    if (größe < sizeof dahinter) return 0;
    std::memcpy(&dahinter, daten, sizeof dahinter);
    Speicher_Dateisystem dateien;
    auto& datei = dateien.Dateien["a"];
    datei.Inhalt.assign(reinterpret_cast<const char*>(daten) + sizeof dahinter, größe - sizeof dahinter);
    datei.Länge_dahinter = dahinter;
    const std::uint64_t länge = datei.Inhalt.size() + dahinter;

    MP3_TagHead mp3(dateien);
    mp3.MP3_Datei = "a";
    const std::size_t p = langsam_gesucht(datei.Inhalt, länge);
    const Text kopf = mp3.Frame_Kopf_lesen();
    const bool Überlauf_der_Frames = mp3.VBR && kopf.empty();
    verlangt(kopf.size() == (p == 0 || Überlauf_der_Frames ? 0U : 32U), "the header is found where it is");
    if (p > 0) {
        const bool xing = p + 39 <= datei.Inhalt.size() && datei.Inhalt.compare(p + 35, 4, "Xing") == 0;
        verlangt(mp3.VBR == xing, "VBR by the four letters");
    }

    const auto erfolg = versucht([&] { return mp3.MP3_Info_lesen(); });
    if (erfolg) verlangt(*erfolg == !kopf.empty(), "a header can be analysed");
    if (erfolg && *erfolg) {
        verlangt(mp3.Dauer_Sekunden >= 0 && mp3.Dauer_Sekunden < 60 && mp3.Dauer_Minuten >= 0, "minutes and seconds");
        verlangt(mp3.Dauer_ms / 1000 == mp3.Dauer_Minuten * 60 + mp3.Dauer_Sekunden, "the same time twice");
    }

    MP3_TagHead gemeinsam(dateien);
    const auto daten_auf_einmal = versucht([&] { return gemeinsam.Lied_Daten_lesen("a"); });
    MP3_TagHead einzeln(dateien);
    const auto zeit = versucht([&] { return einzeln.Lied_Zeit_lesen("a"); });
    verlangt(daten_auf_einmal.has_value() == zeit.has_value(), "the same failures in one go");
    if (zeit) {
        Text Titel, Artist;
        einzeln.Lied_Tag_lesen("a", Titel, Artist);
        verlangt(daten_auf_einmal->Zeit == *zeit, "the same time in one go");
        verlangt(daten_auf_einmal->Größe == einzeln.Lied_Größe_lesen("a"), "the same size in one go");
        verlangt(daten_auf_einmal->Titel == Titel && daten_auf_einmal->Artist == Artist, "the same names in one go");
    }
    if (dahinter == 0) Tag_hin_und_zurück(dateien);
    verlangt(dateien.offene() == 0, "all closed");
    return 0;
}

std::vector<std::string> Fuzz_Saat() {
    const std::string nichts(4, '\0');
    const std::string viel("\x00\xE1\xF5\x05", 4);
    return {
        nichts + Lied_Bytes(600, 1, 0xFFFB9064),
        nichts + Lied_Bytes(256, 250, 0xFFFA1064),
        viel + Lied_Bytes(6000, 5000, 0xFFFB9064),
        nichts + Xing_Lied_Bytes(6000, 5000, 0xFFFB9064, 3000),
        nichts + Xing_Lied_Bytes(400, 20, 0xFFFB9064, 3000) + Tag_Bytes{}.Block(),
        viel + Xing_Lied_Bytes(400, 1, 0xFFFB9C64, 70'000),
        nichts + Xing_Lied_Bytes(300, 1, 0xFFFB9064, 0x80000000),
        nichts + std::string(300, '\xFF'),
        nichts + Tag_Bytes{}.Block(),
        nichts + "Ton" + Tag_Bytes{.Titel = "ab\rcd\n", .Kommentar = " \xE4\x80 ", .Füllung = ' '}.Block(),
        nichts + std::string(127, 'x'),
        nichts + Tag_Bytes{.Marke = "tag"}.Block(),
    };
}
