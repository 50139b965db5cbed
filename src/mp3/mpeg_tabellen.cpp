#include "mp3/mpeg_tabellen.hpp"

#include <array>
#include <cstddef>

namespace tonkartei {
namespace {

constexpr std::array<Long, 4> Versionen = {25, 0, 2, 1};
constexpr std::array<Long, 4> Layer = {0, 3, 2, 1};
constexpr std::array<std::string_view, 4> Kanal_Modi = {"Stereo", "Joint stereo", "Zwei-Kanal", "Ein-Kanal"};
constexpr std::array<std::string_view, 4> Emphasen = {"no", "50/15", "reserviert", "CCITT J 17"};
constexpr std::array<Long, 4> Framegröße_Faktoren = {0, 12, 144, 144};

struct Samplerate_Tabelle {
    Long Version;
    std::array<Long, 3> Werte;
};
// No header yields version 27: the second table waits for a way to it, and MPEG 2 is not analysed.
constexpr std::array<Samplerate_Tabelle, 2> Sampleraten = {{{1, {44100, 48000, 32000}}, {27, {22050, 24000, 16000}}}};

struct Bitrate_Tabelle {
    Long Schlüssel;  // the digits of version and layer, one behind the other
    std::array<Long, 15> Werte;
};
// No version and layer make 255; kept with the others.
constexpr std::array<Bitrate_Tabelle, 4> Bitraten = {{
    {11, {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448}},
    {12, {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384}},
    {13, {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320}},
    {255, {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256}},
}};

template <class T, std::size_t N>
T Eintrag(const std::array<T, N>& tabelle, Long index) {
    return index >= 0 && static_cast<std::size_t>(index) < N ? tabelle[static_cast<std::size_t>(index)] : T{};
}

}  // namespace

Long MPEG_Version_von(Long wert) { return Eintrag(Versionen, wert); }
Long MPEG_Layer_von(Long wert) { return Eintrag(Layer, wert); }
std::string_view Kanal_Modus_von(Long wert) { return Eintrag(Kanal_Modi, wert); }
std::string_view Emphasis_von(Long wert) { return Eintrag(Emphasen, wert); }
Long Framegröße_Faktor(Long MPEG_Layer) { return Eintrag(Framegröße_Faktoren, MPEG_Layer); }

std::optional<Long> Samplerate_von(Long MPEG_Version, Long index) {
    for (const auto& tabelle : Sampleraten)
        if (tabelle.Version == MPEG_Version) return Eintrag(tabelle.Werte, index);
    return std::nullopt;
}

Long Bitrate_von(Long MPEG_Version, Long MPEG_Layer, Long index) {
    const Long schlüssel = MPEG_Version * 10 + MPEG_Layer;
    for (const auto& tabelle : Bitraten)
        if (tabelle.Schlüssel == schlüssel) return Eintrag(tabelle.Werte, index);
    return 1;
}

}  // namespace tonkartei
