#include "spieler/lautstaerke.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>

#include "plattform/linux/deskriptor.hpp"

namespace tonkartei::spieler {

namespace {

// $XDG_STATE_HOME/tonkartei/spieler/, the folders made; empty when there is none.
Text Zustandsordner() {
    Text ordner;
    if (const char* zustand = std::getenv("XDG_STATE_HOME"); zustand && zustand[0] == '/') {
        ordner = zustand;
    } else if (const char* heim = std::getenv("HOME"); heim && heim[0] == '/') {
        ordner = Text(heim) + "/.local/state";
    } else {
        return {};
    }
    ordner += "/tonkartei/spieler/";
    for (std::size_t i = 1; (i = ordner.find('/', i)) != Text::npos; ++i) ::mkdir(ordner.substr(0, i).c_str(), 0700);
    return ordner;
}

}  // namespace

Text Dateiname_aus_Klasse(const Text& klasse) {
    constexpr std::size_t Höchstlänge = 200;
    Text name;
    std::uint64_t streuwert = 0xCBF29CE484222325;  // FNV-1a, for classes whose name would be too long
    for (const char zeichen : klasse) {
        const auto code = static_cast<unsigned char>(zeichen);
        streuwert = (streuwert ^ code) * 0x100000001B3;
        const bool schlicht = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
        std::array<char, 4> form{};
        std::snprintf(form.data(), form.size(), schlicht ? "%c" : "%%%02X", code);
        name += form.data();
    }
    if (name.size() > Höchstlänge) {
        std::array<char, 20> form{};
        std::snprintf(form.data(), form.size(), "%016llx", static_cast<unsigned long long>(streuwert));
        name = name.substr(0, Höchstlänge) + "~" + form.data();
    }
    return name;
}

Lautstärkegedächtnis::Lautstärkegedächtnis(const Text& klasse) {
    const Text ordner = Zustandsordner();
    if (!ordner.empty()) pfad_ = ordner + "lautstaerke-" + Dateiname_aus_Klasse(klasse);
}

std::optional<int> Lautstärkegedächtnis::lesen() const {
    const Deskriptor datei(::open(pfad_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    std::array<char, 16> text{};
    const ssize_t n = datei ? ::read(datei.fd(), text.data(), text.size()) : 0;
    int wert = 0;
    if (n <= 0 || std::from_chars(text.data(), text.data() + n, wert).ec != std::errc()) return std::nullopt;
    if (wert < 0 || wert > 255) return std::nullopt;
    return wert;
}

void Lautstärkegedächtnis::merken(int wert) const {
    if (pfad_.empty()) return;
    const Text neu = pfad_ + ".neu-" + std::to_string(::getpid());
    const Text text = std::to_string(wert) + "\n";
    Deskriptor datei(::open(neu.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600));
    const bool ganz = datei && ::write(datei.fd(), text.data(), text.size()) == static_cast<ssize_t>(text.size());
    datei.schließen();
    if (!ganz || ::rename(neu.c_str(), pfad_.c_str()) != 0) ::unlink(neu.c_str());
}

}  // namespace tonkartei::spieler
