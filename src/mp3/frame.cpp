// The frame half: the playing time from the first frame header and the length of the file. Positions count from 1.
#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <string_view>

#include "grundlagen/fehler.hpp"
#include "mp3/bits.hpp"
#include "mp3/mp3_taghead.hpp"
#include "mp3/mpeg_tabellen.hpp"
#include "plattform/offene_datei.hpp"

namespace tonkartei {
namespace {

constexpr std::size_t letzte_Suchstelle = 5000;
constexpr std::uint64_t größte_Länge_ohne_Suche = 255;
constexpr std::size_t Xing_Abstand = 36;  // its place in a stereo frame of MPEG 1; other places are not looked at
constexpr std::size_t Xing_Frames_Abstand = 44;

// The start of a file, as far as a frame at the last possible position reaches. Bytes behind the end of the file are zero.
// Most frames stand near the start, so a small piece is read first and the rest only when the search comes that far.
class Dateianfang {
public:
    explicit Dateianfang(Offene_Datei& datei) : datei_(datei) { lesen_bis(erstes_Stück); }

    // Position of the first pair FF FA or FF FB, 0 when there is none. No more of a header is tested, so it need not be one.
    // All that belongs to a frame found here has been read.
    std::size_t Frame_suchen() {
        const std::size_t p = suchen(1, erstes_Stück - Framekopf_Länge);
        if (p > 0) return p;
        lesen_bis(bytes_.size());
        return suchen(erstes_Stück - Framekopf_Länge + 1, letzte_Suchstelle);
    }

    std::array<Byte, 4> vier_Bytes(std::size_t stelle) const {
        std::array<Byte, 4> bytes{};
        std::memcpy(bytes.data(), bytes_.data() + stelle - 1, bytes.size());
        return bytes;
    }

private:
    static constexpr std::size_t Framekopf_Länge = Xing_Frames_Abstand + 3;  // what is looked at behind a frame's position
    static constexpr std::size_t erstes_Stück = 2560;                        // holds the small tag of the newer kind, too

    void lesen_bis(std::size_t ende) {
        const std::span<char> ziel(bytes_.data() + gelesen_, ende - gelesen_);
        const std::size_t anzahl = datei_.lesen(gelesen_, ziel);
        std::fill(ziel.begin() + static_cast<std::ptrdiff_t>(anzahl), ziel.end(), '\0');
        gelesen_ = ende;
    }
    std::size_t suchen(std::size_t von, std::size_t bis) const {
        const char* const ende = bytes_.data() + bis;
        for (const char* p = bytes_.data() + von - 1; p < ende; ++p) {
            p = static_cast<const char*>(std::memchr(p, 0xFF, static_cast<std::size_t>(ende - p)));
            if (p == nullptr) return 0;
            const auto nächstes = static_cast<Byte>(p[1]);
            if (nächstes == 0xFA || nächstes == 0xFB) return static_cast<std::size_t>(p - bytes_.data()) + 1;
        }
        return 0;
    }

    Offene_Datei& datei_;
    std::size_t gelesen_ = 0;
    std::array<char, letzte_Suchstelle + Framekopf_Länge> bytes_;
};

// The bits `von` to `bis` of a header text as a number; an empty text reads as if all were 0.
Long Bitfeld(std::string_view kopf, std::size_t von, std::size_t bis) {
    return kopf.size() < bis ? 0 : Bits_zu_Zahl(kopf.substr(von - 1, bis - von + 1));
}

double geteilt(double zähler, Long nenner) {
    if (nenner == 0) throw Laufzeitfehler(Fehler_Division);
    return zähler / nenner;
}

}  // namespace

Text MP3_TagHead::Frame_Kopf_lesen() {
    try {
        Offene_Datei datei(dateien_, MP3_Datei, Dateimodus::lesen);
        return Frame_Kopf_lesen_aus(datei);
    } catch (const Dateifehler&) {
        return {};
    }
}

Text MP3_TagHead::Frame_Kopf_lesen_aus(Offene_Datei& datei) {
    VBR = false;
    try {
        if (datei.Länge() <= größte_Länge_ohne_Suche) return {};
        Dateianfang anfang(datei);
        const std::size_t p = anfang.Frame_suchen();
        if (p == 0) return {};
        if (anfang.vier_Bytes(p + Xing_Abstand) == std::array<Byte, 4>{'X', 'i', 'n', 'g'}) {
            VBR = true;
            auto frames = anfang.vier_Bytes(p + Xing_Frames_Abstand);
            Xing_Frames = Bits_zu_Zahl(Bytes_zu_Bits(frames));
        }
        auto kopf = anfang.vier_Bytes(p);
        return Bytes_zu_Bits(kopf);
    } catch (const Laufzeitfehler&) {
        return {};  // a frame count beyond 31 bits is a failure of the reading, like one of the disk
    }
}

bool MP3_TagHead::MP3_Info_lesen() {
    std::optional<Offene_Datei> datei;
    try {
        datei.emplace(dateien_, MP3_Datei, Dateimodus::lesen);
    } catch (const Dateifehler&) {
        return false;
    }
    return MP3_Info_lesen_aus(*datei);
}

bool MP3_TagHead::MP3_Info_lesen_aus(Offene_Datei& datei) {
    const Text kopf = Frame_Kopf_lesen_aus(datei);
    MPEG_Version = MPEG_Version_von(Bitfeld(kopf, 12, 13));
    MPEG_Layer = MPEG_Layer_von(Bitfeld(kopf, 14, 15));
    Kanal_Modus = Kanal_Modus_von(Bitfeld(kopf, 25, 26));
    Emphasis = Emphasis_von(Bitfeld(kopf, 31, 32));

    // Ends here without a frame, too: an empty header text reads as version 2.5, which has no table.
    const auto rate = Samplerate_von(MPEG_Version, Bitfeld(kopf, 21, 22));
    if (!rate) return false;
    Samplerate = *rate;

    const auto bytes = static_cast<double>(datei.Länge());
    if (VBR) {
        const Long a = gerundet(Samplerate / 1000.0 * bytes);
        const Long b = gerundet(geteilt(a, Xing_Frames));
        Bitrate = gerundet(geteilt(b, Framegröße_Faktor(MPEG_Layer)));
    } else {
        Bitrate = Bitrate_von(MPEG_Version, MPEG_Layer, Bitfeld(kopf, 17, 20));
    }

    Original = Bitfeld(kopf, 30, 30) == 1;
    Copyright = Bitfeld(kopf, 29, 29) == 1;
    Padding = Bitfeld(kopf, 23, 23) == 1;
    Privat = Bitfeld(kopf, 24, 24) == 1;
    Schutz = Bitfeld(kopf, 16, 16) == 1;

    // Bits by kilobits per second are milliseconds; tags and padding count as sound.
    Dauer_ms = Bitrate == 0 ? 0 : gerundet(static_cast<double>(gerundet(bytes * 8)) / Bitrate);
    Dauer_Sekunden = Dauer_ms / 1000;
    Dauer_Minuten = Dauer_Sekunden / 60;
    Dauer_Sekunden -= Dauer_Minuten * 60;
    return true;
}

}  // namespace tonkartei
