#include "plattform/kanaele.hpp"

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>

#include "grundlagen/codepage.hpp"
#include "grundlagen/fehler.hpp"
#include "plattform/offene_datei.hpp"
#include "plattform/zeilenstift.hpp"

namespace tonkartei {
namespace {

constexpr std::size_t Puffergröße = 65536;
constexpr std::size_t höchste_Nummer = 255;

std::string_view ohne_Blanks_dahinter(std::string_view bytes) {
    while (!bytes.empty() && bytes.back() == ' ') bytes.remove_suffix(1);
    return bytes;
}

}  // namespace

// Reading: `puffer[stelle, ende)` is what has been read ahead, and the file goes on at byte `position`. Writing: what stands
// before `ende` waits to be written to byte `position`.
struct Kanäle::Kanal {
    Kanal(Dateisystem& dateien, const Text& pfad_, bool schreibend_)
        : datei(dateien, pfad_, schreibend_ ? Dateimodus::schreiben : Dateimodus::lesen),
          schreibend(schreibend_),
          pfad(pfad_) {}

    Offene_Datei datei;
    const bool schreibend;
    const Text pfad;
    bool ausgelesen = false;
    std::string puffer;
    std::size_t stelle = 0;
    std::size_t ende = 0;
    std::uint64_t position = 0;
};

Kanäle::Kanäle(Dateisystem& dateien) : dateien_(dateien) {}
Kanäle::~Kanäle() = default;

int Kanäle::öffnen(const Text& pfad, bool schreibend) {
    const auto frei = std::find(kanäle_.begin(), kanäle_.end(), nullptr);
    const auto platz = static_cast<std::size_t>(frei - kanäle_.begin());
    if (platz == höchste_Nummer) throw Dateifehler(67, pfad);
    auto kanal = std::make_unique<Kanal>(dateien_, pfad, schreibend);
    if (platz == kanäle_.size()) kanäle_.emplace_back();
    kanäle_[platz] = std::move(kanal);
    return static_cast<int>(platz) + 1;
}

int Kanäle::öffnen_zum_Lesen(const Text& pfad) { return öffnen(pfad, false); }
int Kanäle::öffnen_zum_Schreiben(const Text& pfad) { return öffnen(pfad, true); }

bool Kanäle::offen(int nummer) const {
    return nummer >= 1 && static_cast<std::size_t>(nummer) <= kanäle_.size() &&
           kanäle_[static_cast<std::size_t>(nummer) - 1] != nullptr;
}

// Every line of every file comes by these: inline, as far as this file is concerned.
inline Kanäle::Kanal& Kanäle::Kanal_von(int nummer) {
    const auto stelle = static_cast<std::size_t>(nummer) - 1;
    if (stelle >= kanäle_.size() || kanäle_[stelle] == nullptr) throw Dateifehler(52);
    return *kanäle_[stelle];
}

inline Kanäle::Kanal& Kanäle::mit_Richtung(int nummer, bool schreibend) {
    Kanal& kanal = Kanal_von(nummer);
    if (kanal.schreibend != schreibend) throw Dateifehler(54, kanal.pfad);
    return kanal;
}

inline Kanäle::Kanal& Kanäle::zum_Lesen(int nummer) { return mit_Richtung(nummer, false); }
inline Kanäle::Kanal& Kanäle::zum_Schreiben(int nummer) { return mit_Richtung(nummer, true); }

void Kanäle::schließen(int nummer, bool sichern) {
    Kanal& kanal = Kanal_von(nummer);
    if (kanal.schreibend) {
        ausschreiben(kanal);
        if (sichern) kanal.datei.sichern();
    }
    const auto abgelöst = std::exchange(kanäle_[static_cast<std::size_t>(nummer) - 1], nullptr);
    abgelöst->datei.schließen();
}

void Kanäle::aufgeben(int nummer) noexcept {
    if (offen(nummer)) kanäle_[static_cast<std::size_t>(nummer) - 1].reset();
}

// More bytes behind those not yet consumed, which move to the front; false at the end of the file.
bool Kanäle::nachfüllen(Kanal& kanal) {
    if (kanal.ausgelesen) return false;
    const std::size_t rest = kanal.ende - kanal.stelle;
    if (kanal.stelle > 0) std::memmove(kanal.puffer.data(), kanal.puffer.data() + kanal.stelle, rest);
    kanal.stelle = 0;
    kanal.ende = rest;
    // A line longer than the buffer doubles it, so that its bytes are not copied again and again.
    if (kanal.puffer.size() - rest < Puffergröße / 2) kanal.puffer.resize(std::max(Puffergröße, 2 * kanal.puffer.size()));
    const std::size_t gelesen = kanal.datei.lesen(kanal.position, std::span<char>(kanal.puffer).subspan(kanal.ende));
    kanal.position += gelesen;
    kanal.ende += gelesen;
    kanal.ausgelesen = gelesen == 0;
    return gelesen > 0;
}

// The view is good until the next reading from the channel.
std::string_view Kanäle::Zeile(Kanal& kanal) {
    if (kanal.stelle == kanal.ende && !nachfüllen(kanal)) throw Dateifehler(62, kanal.pfad);
    std::size_t geprüft = 0;  // from `stelle` on
    for (;;) {
        const char* anfang = kanal.puffer.data() + kanal.stelle;
        const std::size_t länge = kanal.ende - kanal.stelle;
        const void* treffer = std::memchr(anfang + geprüft, '\n', länge - geprüft);
        if (treffer == nullptr) {
            geprüft = länge;
            if (nachfüllen(kanal)) continue;
            kanal.stelle = kanal.ende;
            return {kanal.puffer.data() + kanal.ende - länge, länge};
        }
        const auto lf = static_cast<std::size_t>(static_cast<const char*>(treffer) - anfang);
        if (lf > 0 && anfang[lf - 1] == '\r') {
            kanal.stelle += lf + 1;
            return {anfang, lf - 1};
        }
        geprüft = lf + 1;
    }
}

// Behind the blanks; false at the end of the file. Blanks alone are no value: a number that was cut off in front of its
// digits must not read as 0.
bool Kanäle::am_Wert(Kanal& kanal) {
    do {
        while (kanal.stelle < kanal.ende && kanal.puffer[kanal.stelle] == ' ') ++kanal.stelle;
    } while (kanal.stelle == kanal.ende && nachfüllen(kanal));
    return kanal.stelle < kanal.ende;
}

std::string_view Kanäle::Wert(Kanal& kanal, std::size_t höchstens) {
    if (!am_Wert(kanal)) throw Dateifehler(62, kanal.pfad);
    return ohne_Blanks_dahinter(Satz(kanal, höchstens));
}

// Up to a line end, or up to a comma as well, which is consumed.
std::string_view Kanäle::Satz(Kanal& kanal, std::size_t höchstens, bool Komma_trennt) {
    std::size_t länge = 0;
    bool zu_lang = false;
    const auto am_Wertende = [Komma_trennt](char zeichen) {
        return (zeichen == ',' && Komma_trennt) || zeichen == '\r' || zeichen == '\n';
    };
    for (;;) {
        while (kanal.stelle + länge < kanal.ende && !am_Wertende(kanal.puffer[kanal.stelle + länge])) ++länge;
        if (länge > höchstens) {
            zu_lang = true;
            kanal.stelle += länge;
            länge = 0;
        }
        if (kanal.stelle + länge < kanal.ende) {
            // Whether a LF follows a CR must be known before the view is taken, since refilling moves the bytes.
            if (kanal.puffer[kanal.stelle + länge] != '\r' || kanal.stelle + länge + 1 < kanal.ende) break;
        }
        if (!nachfüllen(kanal)) break;
    }
    const auto wert = std::string_view(kanal.puffer).substr(kanal.stelle, zu_lang ? 0 : länge);
    kanal.stelle += länge;
    if (kanal.stelle < kanal.ende) {
        const char trenner = kanal.puffer[kanal.stelle++];
        if (trenner == '\r' && kanal.stelle < kanal.ende && kanal.puffer[kanal.stelle] == '\n') ++kanal.stelle;
    }
    return wert;
}

Text Kanäle::lese_Zeile(int nummer) { return aus_1252(Zeile(zum_Lesen(nummer))); }
Text Kanäle::lese_Wert(int nummer) { return aus_1252(Wert(zum_Lesen(nummer))); }
std::optional<std::string_view> Kanäle::nächster_Rohwert(int nummer, std::size_t höchstens) {
    Kanal& kanal = zum_Lesen(nummer);
    if (!am_Wert(kanal)) return std::nullopt;
    return Wert(kanal, höchstens);
}
std::optional<std::string_view> Kanäle::nächster_Satz(int nummer, std::size_t höchstens) {
    Kanal& kanal = zum_Lesen(nummer);
    if (kanal.stelle == kanal.ende && !nachfüllen(kanal)) return std::nullopt;
    return Satz(kanal, höchstens);
}
std::optional<std::string_view> Kanäle::nächste_Rohzeile(int nummer, std::size_t höchstens) {
    Kanal& kanal = zum_Lesen(nummer);
    if (kanal.stelle == kanal.ende && !nachfüllen(kanal)) return std::nullopt;
    return Satz(kanal, höchstens, false);
}
Long Kanäle::lese_Long(int nummer) { return gerundet(Zahlwert(Wert(zum_Lesen(nummer)))); }
Byte Kanäle::lese_Byte(int nummer) { return gerundet_Byte(Zahlwert(Wert(zum_Lesen(nummer)))); }

void Kanäle::ausschreiben(Kanal& kanal) {
    if (kanal.ende == 0) return;
    kanal.datei.schreiben(kanal.position, std::span<const char>(kanal.puffer.data(), kanal.ende));
    kanal.position += kanal.ende;
    kanal.ende = 0;
}

char* Kanäle::Platz(int nummer, std::size_t höchstens) {
    Kanal& kanal = zum_Schreiben(nummer);
    if (kanal.ende + höchstens > kanal.puffer.size()) {
        ausschreiben(kanal);
        if (höchstens > kanal.puffer.size()) kanal.puffer.resize(std::max(Puffergröße, höchstens));
    }
    return kanal.puffer.data() + kanal.ende;
}

void Kanäle::geschrieben(int nummer, const char* ende) {
    Kanal& kanal = zum_Schreiben(nummer);
    kanal.ende = static_cast<std::size_t>(ende - kanal.puffer.data());
}

template <class Schreiber>
void Kanäle::schreibe(int nummer, std::size_t höchstens, Schreiber&& schreiber) {
    Zeilenstift stift(Platz(nummer, höchstens));
    schreiber(stift);
    geschrieben(nummer, stift.Ende());
}

void Kanäle::schreibe_Zeile(int nummer, const Text& text) {
    schreibe(nummer, text.size() + Zeilenstift::Zahlenzeile, [&](Zeilenstift& stift) { stift.Zeile(text); });
}

void Kanäle::schreibe_Rohzeile(int nummer, const std::string& bytes) {
    char* ziel = std::copy(bytes.begin(), bytes.end(), Platz(nummer, bytes.size() + 2));
    *ziel++ = '\r';
    *ziel++ = '\n';
    geschrieben(nummer, ziel);
}

void Kanäle::schreibe_Zahl(int nummer, std::int64_t wert) {
    schreibe(nummer, Zeilenstift::Zahlenzeile, [&](Zeilenstift& stift) { stift.Zahl(wert); });
}

void Kanäle::schreibe_reine_Zahl(int nummer, std::int64_t wert) {
    schreibe(nummer, Zeilenstift::Zahlenzeile, [&](Zeilenstift& stift) { stift.reine_Zahl(wert); });
}

void Kanäle::schreibe_Bytes(int nummer, std::string_view bytes) {
    Kanal& kanal = zum_Schreiben(nummer);
    ausschreiben(kanal);
    if (bytes.empty()) return;
    kanal.datei.schreiben(kanal.position, std::span<const char>(bytes.data(), bytes.size()));
    kanal.position += bytes.size();
}

}  // namespace tonkartei
