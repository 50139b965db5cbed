// Numbered file channels for the line-oriented files of the family: 8-bit text of the Windows page, lines ended by CR LF.
// Names outside the channels are Text; the conversion sits here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

// Reads and writes sequentially through a buffer. An opened file takes the lowest free number from 1 and keeps it until it
// is closed. A failed write leaves the channel open, and the file stays unavailable to others until somebody closes it.
// Work on a number that is not open, or open the other way, is Dateifehler 52 or 54; reading at the end of the file is 62;
// a 256th channel is 67.
class Kanäle {
public:
    explicit Kanäle(Dateisystem& dateien);
    // Closes what is still open without writing anything more.
    ~Kanäle();
    Kanäle(const Kanäle&) = delete;
    Kanäle& operator=(const Kanäle&) = delete;

    int öffnen_zum_Lesen(const Text& pfad);
    int öffnen_zum_Schreiben(const Text& pfad);
    // Writes out what is buffered; with `sichern`, waits until it is on the disk. When one of the two fails, the channel
    // stays open, as after any failed write.
    void schließen(int nummer, bool sichern = false);
    // Closes without writing out the buffer; does nothing for a number that is not open. Never throws.
    void aufgeben(int nummer) noexcept;
    bool offen(int nummer) const;

    // A whole line, up to CR LF or the end of the file. A CR or LF that stands alone belongs to the line, so all
    // 256 bytes come back in a name.
    Text lese_Zeile(int nummer);
    // A value: blanks before it skipped, up to a comma or any line end (CR LF, CR or LF), blanks behind it cut. Blanks alone
    // up to the end of the file are no value but the end (62). Quotes mean nothing.
    Text lese_Wert(int nummer);
    // The same with the file's own bytes, for paths, and without a copy: good until the next reading; none at the end. A
    // value of more than `höchstens` bytes comes as an empty one and is not kept in memory.
    std::optional<std::string_view> nächster_Rohwert(int nummer, std::size_t höchstens);
    // The same with the blanks around it, for records that count by columns.
    std::optional<std::string_view> nächster_Satz(int nummer, std::size_t höchstens);
    // A whole line with the file's own bytes, whatever ends it; the rest as with values.
    std::optional<std::string_view> nächste_Rohzeile(int nummer, std::size_t höchstens);
    // A value taken as a number, rounded; overflow (6) outside the type, 0 for what is no number.
    Long lese_Long(int nummer);
    Byte lese_Byte(int nummer);

    void schreibe_Zeile(int nummer, const Text& text);
    void schreibe_Rohzeile(int nummer, const std::string& bytes);
    // " 6 " or "-1 ".
    void schreibe_Zahl(int nummer, std::int64_t wert);
    // "45".
    void schreibe_reine_Zahl(int nummer, std::int64_t wert);
    // The file's own bytes as they are, line ends included.
    void schreibe_Bytes(int nummer, std::string_view bytes);
    // For many lines at once: room for so many bytes behind what was written, and how far it has been filled (see
    // Zeilenstift). Nothing else may be written to the channel in between.
    char* Platz(int nummer, std::size_t höchstens);
    void geschrieben(int nummer, const char* ende);

private:
    struct Kanal;
    Kanal& Kanal_von(int nummer);
    Kanal& mit_Richtung(int nummer, bool schreibend);
    Kanal& zum_Lesen(int nummer);
    Kanal& zum_Schreiben(int nummer);
    int öffnen(const Text& pfad, bool schreibend);
    bool nachfüllen(Kanal& kanal);
    std::string_view Zeile(Kanal& kanal);
    bool am_Wert(Kanal& kanal);
    std::string_view Wert(Kanal& kanal, std::size_t höchstens = std::string_view::npos);
    std::string_view Satz(Kanal& kanal, std::size_t höchstens, bool Komma_trennt = true);
    void ausschreiben(Kanal& kanal);
    template <class Schreiber>
    void schreibe(int nummer, std::size_t höchstens, Schreiber&& schreiber);

    Dateisystem& dateien_;
    std::vector<std::unique_ptr<Kanal>> kanäle_;  // number n at n - 1, null where free
};

}  // namespace tonkartei
