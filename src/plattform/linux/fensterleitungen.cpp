#include "plattform/linux/fensterleitungen.hpp"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

#include "plattform/linux/schreibtisch.hpp"

namespace tonkartei {

using namespace std::chrono_literals;
using protokoll::Anfrage;
using protokoll::Antwort;

namespace {

constexpr std::size_t Höchstzahl_Fenster = 256;
constexpr auto Pause_nach_Fehlschlag = 5s;  // before a socket that failed is tried again
constexpr auto Frist_wenn_hängend = 10ms;   // for a process that owes an answer
constexpr int Höchstzahl_Reste = 64;        // late answers that a window may have left in the line

int Restzeit(std::chrono::steady_clock::time_point bis) {
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(bis - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<std::int64_t>(rest.count(), 0));
}

// Waits for something to read; false when the time is over.
bool warten(int fd, std::chrono::steady_clock::time_point bis) {
    pollfd p{fd, POLLIN, 0};
    for (;;) {
        const int n = ::poll(&p, 1, Restzeit(bis));
        if (n > 0) return true;
        if (n == 0 || errno != EINTR) return false;
    }
}

// One packet into `puffer`. Empty result: none there; an empty view: the other end is gone, or the packet is too long.
template <std::size_t N>
std::optional<std::string_view> empfangen(int fd, std::array<char, N>& puffer) {
    const ssize_t n = ::recv(fd, puffer.data(), N, MSG_DONTWAIT | MSG_TRUNC);
    if (n < 0 && (errno == EAGAIN || errno == EINTR)) return std::nullopt;
    if (n <= 0 || static_cast<std::size_t>(n) > N) return std::string_view();
    return std::string_view(puffer.data(), static_cast<std::size_t>(n));
}

bool senden(int fd, const std::string& bytes) {
    return ::send(fd, bytes.data(), bytes.size(), MSG_DONTWAIT | MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
}

}  // namespace

// A window may have let go of a connection: it is tried again at once. Who talks rubbish, or ends before it has told what
// it is, waits.
void Fensterleitungen::trennen(Eintrag& eintrag, bool Unsinn) {
    if (eintrag.angemeldet && !Unsinn) eintrag.Nächster_Versuch = {};
    if (Unsinn) eintrag.Nächster_Versuch = Uhr::now() + Pause_nach_Fehlschlag;
    eintrag.Verbindung.schließen();
    eintrag.angemeldet = eintrag.hängt = false;
}

void Fensterleitungen::schauen() {
    const Deskriptor ordner = schreibtisch::öffnen(false);
    if (!ordner) {
        einträge_.clear();
        return;
    }
    Ordner_lesen(ordner);
    Lebende_prüfen();
    bool neue = false;
    for (auto i = einträge_.begin(); i != einträge_.end();) {
        auto& [griff, eintrag] = *i;
        if (!eintrag.Verbindung && Uhr::now() >= eintrag.Nächster_Versuch) {
            verbinden(ordner, griff, eintrag);
            neue = neue || eintrag.Verbindung;
        }
        const bool weg = eintrag.Inode == 0;
        i = weg ? einträge_.erase(i) : std::next(i);
    }
    if (neue) Anmeldungen_abwarten();
}

void Fensterleitungen::Ordner_lesen(const Deskriptor& ordner) {
    const auto da = schreibtisch::Fenster(ordner);
    std::erase_if(einträge_, [&](const auto& e) {
        const auto i = da.find(e.first);
        return i == da.end() || i->second != e.second.Inode;
    });
    for (const auto& [griff, inode] : da) {
        if (einträge_.size() >= Höchstzahl_Fenster) break;
        einträge_.try_emplace(griff).first->second.Inode = inode;
    }
}

// One poll over all connections: the end of one shows as readable.
void Fensterleitungen::Lebende_prüfen() {
    std::vector<pollfd> p;
    std::vector<Hwnd> griffe;
    for (const auto& [griff, eintrag] : einträge_) {
        if (!eintrag.Verbindung) continue;
        p.push_back({eintrag.Verbindung.fd(), POLLIN, 0});
        griffe.push_back(griff);
    }
    if (p.empty() || ::poll(p.data(), p.size(), 0) <= 0) return;
    for (std::size_t i = 0; i < p.size(); ++i)
        if (p[i].revents != 0) abholen(griffe[i], einträge_.find(griffe[i])->second);
}

void Fensterleitungen::verbinden(const Deskriptor& ordner, Hwnd griff, Eintrag& eintrag) {
    const Text name = std::to_string(griff);
    const sockaddr_un adresse = schreibtisch::Adresse(ordner, name);
    eintrag.Nächster_Versuch = Uhr::now() + Pause_nach_Fehlschlag;
    struct stat st;
    if (::fstatat(ordner.fd(), name.c_str(), &st, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISSOCK(st.st_mode)) return;
    Deskriptor s(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!s) return;
    if (::connect(s.fd(), reinterpret_cast<const sockaddr*>(&adresse), sizeof(adresse)) != 0) {
        if (errno == ECONNREFUSED) {  // nobody listens any more: handles are not given out twice, so nobody will
            ::unlinkat(ordner.fd(), name.c_str(), 0);
            eintrag.Inode = 0;
        }
        return;
    }
    if (!schreibtisch::eigener_Benutzer(s.fd()) || !senden(s.fd(), protokoll::gepackt(Anfrage{}))) return;
    eintrag.Verbindung = std::move(s);
}

// New connections have one common time limit; who lets it pass stays connected and becomes a window when it speaks.
void Fensterleitungen::Anmeldungen_abwarten() {
    const auto bis = Uhr::now() + frist_;
    for (;;) {
        std::vector<pollfd> p;
        std::vector<Hwnd> griffe;
        for (const auto& [griff, eintrag] : einträge_) {
            if (!eintrag.Verbindung || eintrag.angemeldet || eintrag.hängt) continue;
            p.push_back({eintrag.Verbindung.fd(), POLLIN, 0});
            griffe.push_back(griff);
        }
        if (p.empty()) return;
        const int n = ::poll(p.data(), p.size(), Restzeit(bis));
        if (n < 0 && errno != EINTR) return;
        for (std::size_t i = 0; n > 0 && i < p.size(); ++i)
            if (p[i].revents != 0) abholen(griffe[i], einträge_.find(griffe[i])->second);
        if (n == 0) {
            for (const Hwnd griff : griffe) einträge_.find(griff)->second.hängt = true;
            return;
        }
    }
}

bool Fensterleitungen::abholen(Hwnd griff, Eintrag& eintrag) {
    std::array<char, protokoll::Höchstlänge_Antwort> puffer;
    for (int i = 0; i < Höchstzahl_Reste; ++i) {
        auto bytes = empfangen(eintrag.Verbindung.fd(), puffer);
        if (!bytes) return true;
        const bool ende = bytes->empty();
        const auto antwort = protokoll::entpackt<Antwort>(*bytes);
        const bool brauchbar = antwort && (eintrag.angemeldet || (antwort->Ergebnis == griff && !bytes->empty() &&
                                                                  bytes->size() <= protokoll::Höchstlänge_Klasse));
        if (!brauchbar) {
            trennen(eintrag, !ende);
            return false;
        }
        eintrag.hängt = false;
        if (!eintrag.angemeldet) {
            eintrag.angemeldet = true;
            eintrag.Klasse = Text(*bytes);
        }
    }
    trennen(eintrag, true);  // an endless talker
    return false;
}

Fensterleitungen::Eintrag* Fensterleitungen::Fenster_zu(Hwnd fenster) {
    if (fenster < schreibtisch::Erster_Fenstergriff) return nullptr;
    for (const bool geschaut : {false, true}) {
        const auto i = einträge_.find(fenster);
        if (i != einträge_.end() && i->second.angemeldet && abholen(fenster, i->second)) return &i->second;
        if (!geschaut) schauen();
    }
    return nullptr;
}

std::optional<Fensterleitungen::Rückgabe> Fensterleitungen::fragen(Hwnd fenster, Anfrage anfrage, std::string_view anhang) {
    Eintrag* eintrag = Fenster_zu(fenster);
    if (!eintrag) return std::nullopt;
    anfrage.Folge = ++folge_;
    if (!senden(eintrag->Verbindung.fd(), protokoll::gepackt(anfrage, anhang))) {
        if (errno != EAGAIN) trennen(*eintrag, false);
        return std::nullopt;
    }
    return Antwort_abwarten(*eintrag, anfrage.Folge);
}

std::optional<Fensterleitungen::Rückgabe> Fensterleitungen::Antwort_abwarten(Eintrag& eintrag, std::uint32_t folge) {
    const auto bis = Uhr::now() + (eintrag.hängt ? std::min<std::chrono::milliseconds>(Frist_wenn_hängend, frist_) : frist_);
    std::array<char, protokoll::Höchstlänge_Antwort> puffer;
    for (int i = 0; i < Höchstzahl_Reste && warten(eintrag.Verbindung.fd(), bis);) {
        auto bytes = empfangen(eintrag.Verbindung.fd(), puffer);
        if (!bytes) continue;
        const bool ende = bytes->empty();
        const auto antwort = protokoll::entpackt<Antwort>(*bytes);
        if (!antwort) {
            trennen(eintrag, !ende);
            return std::nullopt;
        }
        eintrag.hängt = false;
        if (antwort->Folge == folge) return Rückgabe{*antwort, std::string(*bytes)};
        ++i;  // an answer that came too late for its question
    }
    eintrag.hängt = true;
    return std::nullopt;
}

std::optional<Text> Fensterleitungen::Klasse(Hwnd fenster) {
    const auto i = einträge_.find(fenster);
    if (i != einträge_.end() && i->second.angemeldet) return i->second.Klasse;
    if (const Eintrag* eintrag = Fenster_zu(fenster)) return eintrag->Klasse;
    return std::nullopt;
}

bool Fensterleitungen::da(Hwnd fenster) const {
    const auto i = einträge_.find(fenster);
    return i != einträge_.end() && i->second.angemeldet;
}

Hwnd Fensterleitungen::nächstes(Hwnd nach) const {
    auto i = nach == 0 ? einträge_.begin() : einträge_.find(nach);
    if (nach != 0 && i != einträge_.end()) ++i;
    while (i != einträge_.end() && !i->second.angemeldet) ++i;
    return i == einträge_.end() ? 0 : i->first;
}

}  // namespace tonkartei
