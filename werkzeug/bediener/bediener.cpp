#include "bediener/bediener.hpp"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <stdexcept>

namespace tonkartei {
namespace {

using nlohmann::json;

// The JSON library knows no lone surrogates, so they move to a private area of their own: U+DCxx becomes U+F7xx.
std::string ohne_Ersatzzeichen(std::string zeile) {
    for (std::size_t i = 0; i + 5 < zeile.size(); ++i) {
        if (zeile[i] != '\\') continue;
        if (zeile.compare(i, 4, "\\udc") == 0) zeile.replace(i, 4, "\\uf7");
        ++i;
    }
    return zeile;
}

std::vector<char*> Zeiger(std::vector<std::string>& texte) {
    std::vector<char*> ergebnis;
    for (std::string& text : texte) ergebnis.push_back(text.data());
    ergebnis.push_back(nullptr);
    return ergebnis;
}

// The environment of the test, with the names of `zusätze` replaced.
std::vector<std::string> Umgebung(const std::vector<std::string>& zusätze) {
    std::vector<std::string> ergebnis = zusätze;
    for (char** e = environ; *e != nullptr; ++e) {
        const std::string eintrag = *e;
        const std::string name = eintrag.substr(0, eintrag.find('=') + 1);
        bool ersetzt = false;
        for (const std::string& zusatz : zusätze) ersetzt = ersetzt || zusatz.starts_with(name);
        if (!ersetzt) ergebnis.push_back(eintrag);
    }
    return ergebnis;
}

std::vector<std::string> Aufruf(const Bediener::Optionen& o) {
    std::vector<std::string> a{o.programm.empty() ? TONKARTEI_BEDIENER : o.programm};
    const auto mit = [&a](const char* name, const std::string& wert) {
        if (wert.empty()) return;
        a.emplace_back(name);
        a.push_back(wert);
    };
    mit("--wurzel", o.wurzel);
    mit("--parameter", o.parameter);
    for (const std::string& setze : o.setze) mit("--setze", setze);
    mit("--ordner", o.ordner);
    mit("--maschine", o.maschine);
    mit("--ansicht", o.ansicht);
    mit("--uhr", o.uhr);
    if (o.zweite_Instanz) a.emplace_back("--zweite-instanz");
    return a;
}

}  // namespace

Bediener::Bediener(const Optionen& optionen) : frist_(optionen.Frist) {
    std::array<int, 2> hin{}, her{};
    if (pipe2(hin.data(), O_CLOEXEC) != 0 || pipe2(her.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t griffe;
    posix_spawn_file_actions_init(&griffe);
    posix_spawn_file_actions_adddup2(&griffe, hin[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&griffe, her[1], STDOUT_FILENO);
    auto aufruf = Aufruf(optionen);
    auto umgebung = Umgebung(optionen.umgebung);
    const int fehler =
        posix_spawn(&prozess_, aufruf.front().c_str(), &griffe, nullptr, Zeiger(aufruf).data(), Zeiger(umgebung).data());
    posix_spawn_file_actions_destroy(&griffe);
    close(hin[0]);
    close(her[1]);
    hinein_ = hin[1];
    heraus_ = her[0];
    if (fehler != 0) {
        prozess_ = -1;
        beenden();
        throw std::runtime_error("cannot start " + aufruf.front());
    }
    Antworten_lesen();
}

Bediener::~Bediener() { beenden(); }

void Bediener::beenden() noexcept {
    // Without input it ends by itself and takes its scratch folder along, unless it hangs.
    if (hinein_ >= 0) close(hinein_);
    hinein_ = -1;
    if (heraus_ >= 0) close(heraus_);
    heraus_ = -1;
    if (prozess_ <= 0) return;
    for (int versuch = 0; versuch < 400; ++versuch) {
        if (waitpid(prozess_, nullptr, WNOHANG) == prozess_) {
            prozess_ = -1;
            return;
        }
        poll(nullptr, 0, 5);
    }
    kill(prozess_, SIGKILL);
    waitpid(prozess_, nullptr, 0);
    prozess_ = -1;
}

const Bediener::Antworten& Bediener::operator()(const std::string& zeile) {
    const std::string ganz = zeile + "\n";
    // A process that has died must not take the test along.
    struct sigaction ruhig {};
    struct sigaction alt {};
    ruhig.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &ruhig, &alt);
    for (std::size_t stelle = 0; stelle < ganz.size();) {
        const ssize_t n = write(hinein_, ganz.data() + stelle, ganz.size() - stelle);
        if (n < 0 && errno != EINTR) break;
        if (n > 0) stelle += static_cast<std::size_t>(n);
    }
    sigaction(SIGPIPE, &alt, nullptr);
    Antworten_lesen();
    return antworten_;
}

bool Bediener::Zeile_lesen(std::string& zeile) {
    const auto ende_der_Frist = std::chrono::steady_clock::now() + std::chrono::seconds(frist_);
    std::size_t ende = 0;
    while ((ende = puffer_.find('\n')) == std::string::npos) {
        const auto rest =
            std::chrono::duration_cast<std::chrono::milliseconds>(ende_der_Frist - std::chrono::steady_clock::now());
        pollfd auge{heraus_, POLLIN, 0};
        const int bereit = rest.count() > 0 ? poll(&auge, 1, static_cast<int>(rest.count())) : 0;
        if (bereit < 0 && errno == EINTR) continue;
        if (bereit <= 0) {
            beenden();
            throw std::runtime_error("no reply within the time limit");
        }
        std::array<char, 65536> stück;
        const ssize_t n = read(heraus_, stück.data(), stück.size());
        if (n <= 0) return false;
        puffer_.append(stück.data(), static_cast<std::size_t>(n));
    }
    zeile = puffer_.substr(0, ende);
    puffer_.erase(0, ende + 1);
    return true;
}

void Bediener::Antworten_lesen() {
    antworten_.clear();
    std::string zeile;
    while (heraus_ >= 0 && Zeile_lesen(zeile)) {
        antworten_.push_back(json::parse(ohne_Ersatzzeichen(zeile)));
        if (antworten_.back().contains("bereit")) return;
    }
}

std::string Bediener::zuletzt(const char* schlüssel) const {
    return antworten_.empty() ? std::string() : antworten_.back().value(schlüssel, std::string());
}

json Bediener::ereignis(const std::string& art) const {
    json letztes;
    for (const json& antwort : antworten_)
        if (antwort.value("ereignis", std::string()) == art) letztes = antwort;
    return letztes;
}

std::string Bediener::meldung() const {
    const json feld = ereignis("meldung");
    return feld.is_null() ? std::string() : feld["text"].get<std::string>();
}

json Bediener::schau(const std::string& zeile, const std::string& schlüssel) {
    const Antworten vorher = antworten_;
    (*this)(zeile);
    for (const json& antwort : antworten_) {
        if (!antwort.contains(schlüssel)) continue;
        json ergebnis = antwort;
        antworten_ = vorher;  // a look does not hide what the last command did
        return ergebnis;
    }
    throw std::runtime_error(zeile + ": " + (fehler().empty() ? "no answer" : fehler()));
}

json Bediener::zeige(const std::string& name) { return schau("zeige " + name, "element"); }

std::string Bediener::text(const std::string& name) { return zeige(name).value("text", std::string()); }

std::vector<std::string> Bediener::zeilen(const std::string& name) {
    return zeige(name).at("zeilen").get<std::vector<std::string>>();
}

json Bediener::fenster(const std::string& name) {
    const json alle = schau("fenster", "fenster");
    for (const json& fenster : alle["fenster"])
        if (fenster["name"] == name) return fenster;
    return {};
}

json Bediener::protokoll(bool alles) { return schau(alles ? "protokoll alles" : "protokoll", "protokoll")["protokoll"]; }

json Bediener::registrierung() { return schau("registrierung", "registrierung")["registrierung"]; }

json Bediener::spieler() { return schau("spieler", "spieler")["spieler"]; }

int Bediener::Ende_abwarten() {
    if (prozess_ > 0) {
        const auto ende_der_Frist = std::chrono::steady_clock::now() + std::chrono::seconds(frist_);
        int status = 0;
        while (waitpid(prozess_, &status, WNOHANG) == 0) {
            if (std::chrono::steady_clock::now() > ende_der_Frist) {
                beenden();
                throw std::runtime_error("it does not end");
            }
            poll(nullptr, 0, 2);
        }
        prozess_ = -1;
        status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    return status_;
}

std::string Bediener::Pfadbytes(const std::string& text) {
    std::string ergebnis;
    for (std::size_t i = 0; i < text.size(); ++i) {
        // U+F780 to U+F7FF: EF 9E 80 to EF 9F BF.
        if (text.compare(i, 1, "\xEF") == 0 && i + 2 < text.size() && (text[i + 1] == '\x9E' || text[i + 1] == '\x9F')) {
            const unsigned unten = static_cast<unsigned char>(text[i + 2]) & 0x3FU;
            ergebnis += static_cast<char>((text[i + 1] == '\x9E' ? 0x80U : 0xC0U) + unten);
            i += 2;
        } else {
            ergebnis += text[i];
        }
    }
    return ergebnis;
}

std::string Bediener::zitiert(const std::string& text) {
    std::string ergebnis = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') ergebnis += '\\';
        if (c == '\n')
            ergebnis += "\\n";
        else if (c == '\r')
            ergebnis += "\\r";
        else
            ergebnis += c;
    }
    return ergebnis + '"';
}

}  // namespace tonkartei
