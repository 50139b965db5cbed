// Tables that turn the fields of a frame header into numbers and words.
#pragma once

#include <optional>
#include <string_view>

#include "grundlagen/zahl.hpp"

namespace tonkartei {

// The two-bit fields; `wert` 0 to 3.
Long MPEG_Version_von(Long wert);
Long MPEG_Layer_von(Long wert);
std::string_view Kanal_Modus_von(Long wert);
std::string_view Emphasis_von(Long wert);

// Samples per second; 0 for an index without an entry, none for a version without a table.
std::optional<Long> Samplerate_von(Long MPEG_Version, Long index);

// Kilobits per second; 0 for an index without an entry, 1 for a version and layer without a table.
Long Bitrate_von(Long MPEG_Version, Long MPEG_Layer, Long index);

// Bytes of a frame at one kilobit per second and one kilohertz, the factor of a mean bit rate; 0 where there is no layer.
Long Framegröße_Faktor(Long MPEG_Layer);

}  // namespace tonkartei
