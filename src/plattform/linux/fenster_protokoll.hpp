// What travels between the program and the windows of other processes: one packet asks, one answers (SOCK_SEQPACKET, so a
// packet arrives whole or not at all). Both ends run on one machine under one user: native byte order, fixed layouts.
// Neither side trusts the other: a packet of a wrong size or mark ends the connection.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace tonkartei::protokoll {

inline constexpr std::uint32_t Kennung = 0x31464B54;  // "TKF1" in memory

enum class Art : std::uint32_t {
    Gruß = 1,            // first packet of every connection; answered by the handle, and the class as appendix
    Nachricht,           // SendMessageA: Nachricht, w, l
    Lage_setzen,         // SetWindowPos: w = flags, Werte = x, y, width, height
    Lage_lesen,          // GetWindowRect: Werte = left, top, right, bottom
    Elter_setzen,        // SetParent: w = new parent; answered by the previous one
    Fensterwert_setzen,  // SetWindowLongA: Nachricht = index, w = value; answered by the previous value
    Auskunft,            // what a status line would show; answered by Werte below and the file as appendix
    Dateien_ersetzen,    // appendix: paths, each ended by a zero byte; they replace what is played
    Dateien_anhängen,    // the same, put behind
};

struct Anfrage {
    std::uint32_t Kennung = protokoll::Kennung;
    protokoll::Art Art = Art::Gruß;
    std::uint32_t Folge = 0;  // comes back in the answer
    std::uint32_t Nachricht = 0;
    std::int64_t l = 0;
    std::int32_t w = 0;
    std::int32_t Werte[5] = {};
};

// Values of an answer to Auskunft.
enum Auskunftswert { Wert_sichtbar, Wert_Lautstärke, Wert_Status, Wert_Position, Wert_Länge };

struct Antwort {
    std::uint32_t Kennung = protokoll::Kennung;
    std::uint32_t Folge = 0;
    std::int32_t Ergebnis = 0;
    std::int32_t Werte[5] = {};
};

static_assert(sizeof(Anfrage) == 48 && std::has_unique_object_representations_v<Anfrage>);
static_assert(sizeof(Antwort) == 32 && std::has_unique_object_representations_v<Antwort>);

inline constexpr std::size_t Höchstlänge_Klasse = 255;
inline constexpr std::size_t Höchstlänge_Pfad = 4096;
inline constexpr std::size_t Höchstlänge_Anfrage = 65536;
inline constexpr std::size_t Höchstlänge_Antwort = sizeof(Antwort) + Höchstlänge_Pfad;

template <class Paket>
std::string gepackt(const Paket& paket, std::string_view anhang = {}) {
    std::string bytes(sizeof(Paket), '\0');
    std::memcpy(bytes.data(), &paket, sizeof(Paket));
    bytes += anhang;
    return bytes;
}

// The packet at the head of `bytes`, which then holds the appendix. None when it is too short or bears another mark.
template <class Paket>
std::optional<Paket> entpackt(std::string_view& bytes) {
    if (bytes.size() < sizeof(Paket)) return std::nullopt;
    Paket paket;
    std::memcpy(&paket, bytes.data(), sizeof(Paket));
    if (paket.Kennung != Kennung) return std::nullopt;
    bytes.remove_prefix(sizeof(Paket));
    return paket;
}

}  // namespace tonkartei::protokoll
