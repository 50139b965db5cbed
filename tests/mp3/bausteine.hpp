// Songs made of bytes: tag blocks, frame headers, Xing headers at any position.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tonkartei {

inline std::string gefüllt(std::string_view text, std::size_t breite, char füllung) {
    std::string feld(text.substr(0, breite));
    feld.resize(breite, füllung);
    return feld;
}

struct Tag_Bytes {
    std::string_view Titel = "Titel", Artist = "Artist", Album = "Album", Jahr = "1999", Kommentar = "Kommentar";
    char Genre = 17;
    char Füllung = '\0';
    std::string_view Marke = "TAG";

    std::string Block() const {
        return std::string(Marke) + gefüllt(Titel, 30, Füllung) + gefüllt(Artist, 30, Füllung) +
               gefüllt(Album, 30, Füllung) + gefüllt(Jahr, 4, Füllung) + gefüllt(Kommentar, 30, Füllung) + Genre;
    }
};

// The four header bytes as one number, high byte first. 0xFFFB9064: 128 kbit/s, 44100 Hz, joint stereo.
inline std::string vier_Bytes(std::uint32_t wert) {
    std::string bytes;
    for (int schub = 24; schub >= 0; schub -= 8) bytes.push_back(static_cast<char>((wert >> schub) & 0xFF));
    return bytes;
}

// `länge` zeros with `kopf` at position `stelle` (from 1), cut off at the end.
inline std::string Lied_Bytes(std::size_t länge, std::size_t stelle, std::uint32_t kopf) {
    std::string bytes(länge < stelle + 3 ? stelle + 3 : länge, '\0');
    bytes.replace(stelle - 1, 4, vier_Bytes(kopf));
    bytes.resize(länge);
    return bytes;
}

// The same with a Xing header that belongs to the frame at `stelle`.
inline std::string Xing_Lied_Bytes(std::size_t länge, std::size_t stelle, std::uint32_t kopf, std::uint32_t frames) {
    std::string bytes = Lied_Bytes(länge + stelle + 47, stelle, kopf);
    bytes.replace(stelle - 1 + 36, 4, "Xing");
    bytes.replace(stelle - 1 + 44, 4, vier_Bytes(frames));
    bytes.resize(länge);
    return bytes;
}

}  // namespace tonkartei
