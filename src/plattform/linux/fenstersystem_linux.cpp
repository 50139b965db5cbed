#include "plattform/linux/fenstersystem_linux.hpp"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "plattform/linux/schreibtisch.hpp"

namespace tonkartei {

using namespace std::chrono_literals;
using protokoll::Anfrage;
using protokoll::Antwort;
using protokoll::Art;

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

Fenstersystem_Linux::Fenstersystem_Linux(std::chrono::milliseconds frist) : frist_(frist) {}
Fenstersystem_Linux::~Fenstersystem_Linux() = default;

// A window may have let go of a connection: it is tried again at once. Who talks rubbish, or ends before it has told what
// it is, waits.
void Fenstersystem_Linux::trennen(Eintrag& eintrag, bool Unsinn) {
    if (eintrag.angemeldet && !Unsinn) eintrag.Nächster_Versuch = {};
    if (Unsinn) eintrag.Nächster_Versuch = Uhr::now() + Pause_nach_Fehlschlag;
    eintrag.Verbindung.schließen();
    eintrag.angemeldet = eintrag.hängt = false;
}

void Fenstersystem_Linux::schauen() {
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

void Fenstersystem_Linux::Ordner_lesen(const Deskriptor& ordner) {
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
void Fenstersystem_Linux::Lebende_prüfen() {
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

void Fenstersystem_Linux::verbinden(const Deskriptor& ordner, Hwnd griff, Eintrag& eintrag) {
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
void Fenstersystem_Linux::Anmeldungen_abwarten() {
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

bool Fenstersystem_Linux::abholen(Hwnd griff, Eintrag& eintrag) {
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

Fenstersystem_Linux::Eintrag* Fenstersystem_Linux::Fenster_zu(Hwnd fenster) {
    if (fenster < schreibtisch::Erster_Fenstergriff) return nullptr;
    for (const bool geschaut : {false, true}) {
        const auto i = einträge_.find(fenster);
        if (i != einträge_.end() && i->second.angemeldet && abholen(fenster, i->second)) return &i->second;
        if (!geschaut) schauen();
    }
    return nullptr;
}

std::optional<Fenstersystem_Linux::Rückgabe> Fenstersystem_Linux::fragen(Hwnd fenster, Anfrage anfrage,
                                                                         std::string_view anhang) {
    Eintrag* eintrag = Fenster_zu(fenster);
    if (!eintrag) return std::nullopt;
    anfrage.Folge = ++folge_;
    if (!senden(eintrag->Verbindung.fd(), protokoll::gepackt(anfrage, anhang))) {
        if (errno != EAGAIN) trennen(*eintrag, false);
        return std::nullopt;
    }
    return Antwort_abwarten(*eintrag, anfrage.Folge);
}

std::optional<Fenstersystem_Linux::Rückgabe> Fenstersystem_Linux::Antwort_abwarten(Eintrag& eintrag, std::uint32_t folge) {
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

std::optional<std::int32_t> Fenstersystem_Linux::SendMessageA(Hwnd fenster, std::uint32_t nachricht, std::int32_t w,
                                                              std::int64_t l) {
    Anfrage anfrage;
    anfrage.Art = Art::Nachricht;
    anfrage.Nachricht = nachricht;
    anfrage.w = w;
    anfrage.l = l;
    if (const auto antwort = fragen(fenster, anfrage)) return antwort->Antwort.Ergebnis;
    // Who has gone is no longer registered; who still is owes the answer.
    const auto i = einträge_.find(fenster);
    if (i != einträge_.end() && i->second.angemeldet) return std::nullopt;
    return 0;
}

Hwnd Fenstersystem_Linux::FindWindowA(const Text& klasse) {
    schauen();
    for (const auto& [griff, eintrag] : einträge_)
        if (eintrag.angemeldet && eintrag.Klasse == klasse) return griff;
    return 0;
}

Hwnd Fenstersystem_Linux::GetWindow(Hwnd fenster, std::uint32_t art) {
    auto i = einträge_.end();
    if (art == GW_CHILD && fenster == schreibtisch::Griff) {
        schauen();
        i = einträge_.begin();
    } else if (art == GW_HWNDNEXT) {
        i = einträge_.find(fenster);
        if (i != einträge_.end()) ++i;
    }
    while (i != einträge_.end() && !i->second.angemeldet) ++i;
    return i == einträge_.end() ? 0 : i->first;
}

Text Fenstersystem_Linux::GetClassNameA(Hwnd fenster) {
    const auto i = einträge_.find(fenster);
    if (i != einträge_.end() && i->second.angemeldet) return i->second.Klasse;
    const Eintrag* eintrag = Fenster_zu(fenster);
    return eintrag ? eintrag->Klasse : Text();
}

Hwnd Fenstersystem_Linux::GetDesktopWindow() { return schreibtisch::Griff; }

bool Fenstersystem_Linux::SetWindowPos(Hwnd fenster, Hwnd, int x, int y, int breite, int höhe, std::uint32_t flags) {
    Anfrage anfrage;
    anfrage.Art = Art::Lage_setzen;
    anfrage.w = static_cast<std::int32_t>(flags);
    anfrage.Werte[0] = x;
    anfrage.Werte[1] = y;
    anfrage.Werte[2] = breite;
    anfrage.Werte[3] = höhe;
    return fragen(fenster, anfrage).has_value();
}

bool Fenstersystem_Linux::GetWindowRect(Hwnd fenster, Rechteck& ergebnis) {
    Anfrage anfrage;
    anfrage.Art = Art::Lage_lesen;
    const auto antwort = fragen(fenster, anfrage);
    if (!antwort) return false;
    const auto& w = antwort->Antwort.Werte;
    ergebnis = {w[0], w[1], w[2], w[3]};
    return true;
}

Hwnd Fenstersystem_Linux::SetParent(Hwnd fenster, Hwnd neuer_Elter) {
    Anfrage anfrage;
    anfrage.Art = Art::Elter_setzen;
    anfrage.w = neuer_Elter;
    const auto antwort = fragen(fenster, anfrage);
    return antwort ? antwort->Antwort.Ergebnis : 0;
}

std::int32_t Fenstersystem_Linux::SetWindowLongA(Hwnd fenster, int stelle, std::int32_t wert) {
    Anfrage anfrage;
    anfrage.Art = Art::Fensterwert_setzen;
    anfrage.Nachricht = static_cast<std::uint32_t>(stelle);
    anfrage.w = wert;
    const auto antwort = fragen(fenster, anfrage);
    return antwort ? antwort->Antwort.Ergebnis : 0;
}

std::optional<Fenstersystem_Linux::Spielerzustand> Fenstersystem_Linux::Zustand(Hwnd fenster) {
    Anfrage anfrage;
    anfrage.Art = Art::Auskunft;
    const auto antwort = fragen(fenster, anfrage);
    if (!antwort) return std::nullopt;
    const auto& w = antwort->Antwort.Werte;
    return Spielerzustand{.sichtbar = w[protokoll::Wert_sichtbar] != 0,
                          .Lautstärke = w[protokoll::Wert_Lautstärke],
                          .Status = w[protokoll::Wert_Status],
                          .Position = w[protokoll::Wert_Position],
                          .Länge = w[protokoll::Wert_Länge],
                          .Datei = antwort->Anhang};
}

bool Fenstersystem_Linux::Dateien_übergeben(Hwnd fenster, const std::vector<Text>& dateien) {
    Anfrage anfrage;
    anfrage.Art = Art::Dateien_ersetzen;
    std::string anhang;
    for (std::size_t i = 0; i < dateien.size(); ++i) {
        if (dateien[i].size() <= protokoll::Höchstlänge_Pfad) (anhang += dateien[i]) += '\0';
        const bool letzte = i + 1 == dateien.size();
        const bool voll = anhang.size() + sizeof(Anfrage) + protokoll::Höchstlänge_Pfad + 1 > protokoll::Höchstlänge_Anfrage;
        if (!letzte && !voll) continue;
        if (!fragen(fenster, anfrage, anhang)) return false;
        anfrage.Art = Art::Dateien_anhängen;
        anhang.clear();
    }
    return true;
}

}  // namespace tonkartei
