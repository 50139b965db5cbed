// The tag half: 128 bytes at the end of the file.
//
//   from the end   size
//   -128           3     marker "TAG"
//   -125           30    title
//   -95            30    artist
//   -65            30    album
//   -35            4     year, as text
//   -31            30    comment
//   -1             1     genre
#include <algorithm>
#include <array>
#include <string_view>

#include "grundlagen/codepage.hpp"
#include "grundlagen/fehler.hpp"
#include "mp3/mp3_taghead.hpp"
#include "plattform/offene_datei.hpp"

namespace tonkartei {
namespace {

constexpr std::string_view Marke = "TAG";
constexpr std::size_t Satzlänge = 125;
constexpr std::size_t Blocklänge = 128;

struct Tag_Feld {
    Text MP3_TagHead::*Wert;
    std::size_t Stelle;  // within the record behind the marker
    std::size_t Breite;
};
constexpr std::array<Tag_Feld, 5> Felder = {{{&MP3_TagHead::Tag_Titel, 0, 30},
                                             {&MP3_TagHead::Tag_Artist, 30, 30},
                                             {&MP3_TagHead::Tag_Album, 60, 30},
                                             {&MP3_TagHead::Tag_Jahr, 90, 4},
                                             {&MP3_TagHead::Tag_Kommentar, 94, 30}}};
constexpr std::size_t Genre_Stelle = 124;

// Zeros are holes, not ends: what stands behind them joins up.
void aus_Feld(std::string_view bytes, Text& ergebnis) {
    std::array<char, 30> rest;
    std::size_t länge = 0;
    for (const char zeichen : bytes) {
        if (zeichen == '\0') continue;
        rest[länge++] = zeichen;
    }
    std::string_view text(rest.data(), länge);
    const std::size_t anfang = std::min(text.find_first_not_of(' '), länge);
    text = text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
    if (nur_ASCII(text))
        ergebnis.assign(text);  // the memory of the last song serves again
    else
        ergebnis = aus_1252(text);
}

}  // namespace

bool MP3_TagHead::Tag_lesen() {
    try {
        Offene_Datei datei(dateien_, MP3_Datei, Dateimodus::lesen);
        return Tag_lesen_aus(datei);
    } catch (const Dateifehler&) {
        return false;
    }
}

bool MP3_TagHead::Tag_lesen_aus(Offene_Datei& datei) {
    std::array<char, Blocklänge> block;
    try {
        const std::uint64_t länge = datei.Länge();
        if (länge < Blocklänge || datei.lesen(länge - Blocklänge, block) != Blocklänge) return false;
    } catch (const Dateifehler&) {
        return false;
    }
    const std::string_view bytes(block.data(), block.size());
    if (!bytes.starts_with(Marke)) return false;
    const std::string_view satz = bytes.substr(Marke.size());
    for (const Tag_Feld& feld : Felder) aus_Feld(satz.substr(feld.Stelle, feld.Breite), this->*feld.Wert);
    Tag_Genre = static_cast<Byte>(satz[Genre_Stelle]);
    return true;
}

bool MP3_TagHead::Tag_schreiben() {
    try {
        Offene_Datei datei(dateien_, MP3_Datei, Dateimodus::ändern);
        const std::uint64_t länge = datei.Länge();
        if (länge < Blocklänge) return false;
        std::array<char, Marke.size()> gefunden;
        if (datei.lesen(länge - Blocklänge, gefunden) != gefunden.size()) return false;

        std::array<char, Satzlänge> satz;
        satz.fill(' ');
        for (const Tag_Feld& feld : Felder) {
            const std::string bytes = nach_1252(this->*feld.Wert);
            std::copy_n(bytes.begin(), std::min(bytes.size(), feld.Breite),
                        satz.begin() + static_cast<std::ptrdiff_t>(feld.Stelle));
        }
        satz[Genre_Stelle] = static_cast<char>(Tag_Genre);

        // The block is never appended: a file is expected to have one, and gets it over its last bytes if it has not.
        if (std::string_view(gefunden.data(), gefunden.size()) != Marke) datei.schreiben(länge - Blocklänge, Marke);
        datei.schreiben(länge - Satzlänge, satz);
        return true;
    } catch (const Dateifehler&) {
        return false;
    }
}

}  // namespace tonkartei
