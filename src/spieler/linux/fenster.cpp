#include "spieler/linux/fenster.hpp"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <stdexcept>

#include "plattform/linux/schreibtisch.hpp"
#include "spieler/linux/sperre.hpp"

namespace tonkartei::spieler {

using namespace std::chrono_literals;
using protokoll::Anfrage;
using protokoll::Antwort;
using protokoll::Art;

namespace {

constexpr std::size_t Höchstzahl_Verbindungen = 64;
constexpr auto Grußfrist = 1s;
constexpr auto Annahmepause = 100ms;  // after the machine refused us a descriptor
constexpr int Pakete_je_Runde = 16;   // of one connection, before the others have their turn
constexpr auto Höchstzahl_Fensterwerte = 16U;

// The handle given out last, kept in the lock file of the desktop, so that no handle comes twice while the folder lives.
Hwnd lies_Zähler(int fd) {
    std::array<char, 16> text{};
    if (::pread(fd, text.data(), text.size() - 1, 0) <= 0) return schreibtisch::Erster_Fenstergriff;
    return schreibtisch::Griff_aus(text.data()).value_or(schreibtisch::Erster_Fenstergriff);
}

void schreibe_Zähler(int fd, Hwnd griff) {
    const std::string text = std::to_string(griff);
    if (::ftruncate(fd, 0) == 0 && ::pwrite(fd, text.data(), text.size(), 0) < 0) return;  // the folder's names remain
}

}  // namespace

Fenster::Fenster(Text klasse, Fensterprozedur& prozedur)
    : klasse_(std::move(klasse)), prozedur_(prozedur), elter_(schreibtisch::Griff) {
    erscheinen();
}

// A socket is found as soon as its name is there, and taken for dead as long as it does not listen: so it gets ready under a
// hidden name first.
void Fenster::erscheinen() {
    ordner_ = schreibtisch::öffnen(true);
    if (!ordner_) throw std::runtime_error("no folder for windows");
    const Sperre sperre(ordner_, ".griffe");
    const Text vorläufig = ".neu";
    ::unlinkat(ordner_.fd(), vorläufig.c_str(), 0);

    empfang_ = Deskriptor(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    const sockaddr_un adresse = schreibtisch::Adresse(ordner_, vorläufig);
    if (!empfang_ || ::bind(empfang_.fd(), reinterpret_cast<const sockaddr*>(&adresse), sizeof(adresse)) != 0 ||
        ::listen(empfang_.fd(), 64) != 0)
        throw std::runtime_error("no socket for the window");

    const auto andere = schreibtisch::Fenster(ordner_);
    Hwnd griff = std::max(lies_Zähler(sperre.fd()), andere.empty() ? 0 : andere.rbegin()->first);
    for (int versuch = 0; versuch < 100 && griff < std::numeric_limits<Hwnd>::max(); ++versuch) {
        const Text name = std::to_string(++griff);
        if (::renameat2(ordner_.fd(), vorläufig.c_str(), ordner_.fd(), name.c_str(), RENAME_NOREPLACE) == 0) {
            griff_ = griff;
            schreibe_Zähler(sperre.fd(), griff);
            return;
        }
        if (errno != EEXIST) break;
    }
    ::unlinkat(ordner_.fd(), vorläufig.c_str(), 0);
    throw std::runtime_error("no name for the window");
}

void Fenster::verschwinden() {
    if (griff_ != 0) ::unlinkat(ordner_.fd(), std::to_string(griff_).c_str(), 0);
    griff_ = 0;
    empfang_.schließen();
    for (auto& verbindung : verbindungen_) verbindung.Socket.schließen();
}

void Fenster::anmelden(std::vector<pollfd>& liste) const {
    if (!empfang_) return;
    const bool ruht = Uhr::now() < annahme_ruht_bis_;
    liste.push_back({ruht ? -1 : empfang_.fd(), POLLIN, 0});
    for (const auto& verbindung : verbindungen_) liste.push_back({verbindung.Socket.fd(), POLLIN, 0});
}

Fenster::Uhr::time_point Fenster::spätestens() const {
    auto bis = Uhr::time_point::max();
    if (annahme_ruht_bis_ > Uhr::now()) bis = annahme_ruht_bis_;
    for (const auto& verbindung : verbindungen_)
        if (!verbindung.gegrüßt) bis = std::min<Uhr::time_point>(bis, verbindung.Zuletzt + Grußfrist);
    return bis;
}

void Fenster::bedienen(const std::vector<pollfd>& liste) {
    bool neue = false;
    for (const pollfd& p : liste) {
        if (p.revents == 0 || p.fd < 0) continue;
        if (p.fd == empfang_.fd()) {
            neue = true;
            continue;
        }
        const auto i = std::ranges::find_if(verbindungen_, [&](const auto& v) { return v.Socket.fd() == p.fd; });
        if (i != verbindungen_.end() && !lesen(*i)) i->Socket.schließen();
        if (!offen()) break;
    }
    const auto jetzt = Uhr::now();
    std::erase_if(verbindungen_, [&](const auto& v) { return !v.Socket || (!v.gegrüßt && jetzt - v.Zuletzt >= Grußfrist); });
    if (neue && offen()) annehmen();
}

void Fenster::annehmen() {
    for (int i = 0; i < Pakete_je_Runde; ++i) {
        Deskriptor neu(::accept4(empfang_.fd(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (!neu) {
            const bool mangel = errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM;
            if (mangel) annahme_ruht_bis_ = Uhr::now() + Annahmepause;
            return;
        }
        if (!schreibtisch::eigener_Benutzer(neu.fd())) continue;
        if (verbindungen_.size() >= Höchstzahl_Verbindungen) Platz_schaffen();
        verbindungen_.push_back({std::move(neu), false, Uhr::now()});
    }
}

// Who never introduced himself goes first, then who has been silent longest; the window of a program that still needs the
// connection makes itself a new one.
void Fenster::Platz_schaffen() {
    const auto opfer = std::ranges::min_element(verbindungen_, [](const Verbindung& a, const Verbindung& b) {
        return a.gegrüßt != b.gegrüßt ? b.gegrüßt : a.Zuletzt < b.Zuletzt;
    });
    verbindungen_.erase(opfer);
}

bool Fenster::lesen(Verbindung& verbindung) {
    static thread_local std::array<char, protokoll::Höchstlänge_Anfrage> puffer;
    for (int i = 0; i < Pakete_je_Runde && offen(); ++i) {
        const ssize_t n = ::recv(verbindung.Socket.fd(), puffer.data(), puffer.size(), MSG_DONTWAIT | MSG_TRUNC);
        if (n < 0 && (errno == EAGAIN || errno == EINTR)) return true;
        if (n <= 0 || static_cast<std::size_t>(n) > puffer.size()) return false;
        std::string_view bytes(puffer.data(), static_cast<std::size_t>(n));
        const auto anfrage = protokoll::entpackt<Anfrage>(bytes);
        if (!anfrage || !(verbindung.gegrüßt || anfrage->Art == Art::Gruß)) return false;
        verbindung.gegrüßt = true;
        verbindung.Zuletzt = Uhr::now();
        if (!beantworten(verbindung, *anfrage, bytes)) return false;
    }
    return offen();
}

bool Fenster::beantworten(Verbindung& verbindung, const Anfrage& anfrage, std::string_view anhang) {
    Antwort antwort;
    antwort.Folge = anfrage.Folge;
    std::string zusatz;
    Deskriptor letzter;
    switch (anfrage.Art) {
        case Art::Gruß:
            antwort.Ergebnis = griff_;
            zusatz = klasse_;
            break;
        case Art::Nachricht:
            if (anfrage.Nachricht == WM_CLOSE) {
                letzter = std::move(verbindung.Socket);
                verschwinden();
                prozedur_.geschlossen();
            } else {
                antwort.Ergebnis = prozedur_.Nachricht(anfrage.Nachricht, anfrage.w, anfrage.l);
            }
            break;
        case Art::Lage_setzen: Lage_setzen(anfrage); break;
        case Art::Lage_lesen:
            antwort.Werte[0] = lage_.links;
            antwort.Werte[1] = lage_.oben;
            antwort.Werte[2] = lage_.rechts;
            antwort.Werte[3] = lage_.unten;
            break;
        case Art::Elter_setzen:
            antwort.Ergebnis = std::exchange(elter_, anfrage.w == 0 ? schreibtisch::Griff : anfrage.w);
            break;
        case Art::Fensterwert_setzen: {
            const auto stelle = static_cast<std::int32_t>(anfrage.Nachricht);
            if (fensterwerte_.size() < Höchstzahl_Fensterwerte || fensterwerte_.contains(stelle))
                antwort.Ergebnis = std::exchange(fensterwerte_[stelle], anfrage.w);
            break;
        }
        case Art::Auskunft: {
            const auto auskunft = prozedur_.Auskunft_geben();
            antwort.Werte[protokoll::Wert_sichtbar] = sichtbar_;
            antwort.Werte[protokoll::Wert_Lautstärke] = auskunft.Lautstärke;
            antwort.Werte[protokoll::Wert_Status] = auskunft.Status;
            antwort.Werte[protokoll::Wert_Position] = auskunft.Position;
            antwort.Werte[protokoll::Wert_Länge] = auskunft.Länge;
            zusatz = auskunft.Datei.substr(0, protokoll::Höchstlänge_Pfad);
            break;
        }
        case Art::Dateien_ersetzen:
        case Art::Dateien_anhängen: {
            std::vector<Text> dateien;
            for (std::size_t ende; (ende = anhang.find('\0')) != std::string_view::npos; anhang.remove_prefix(ende + 1))
                if (ende > 0 && anhang.front() == '/') dateien.emplace_back(anhang.substr(0, ende));
            prozedur_.Dateien(dateien, anfrage.Art == Art::Dateien_ersetzen);
            break;
        }
        default: return false;
    }
    const std::string paket = protokoll::gepackt(antwort, zusatz);
    const int ziel = letzter ? letzter.fd() : verbindung.Socket.fd();
    return ::send(ziel, paket.data(), paket.size(), MSG_DONTWAIT | MSG_NOSIGNAL) == static_cast<ssize_t>(paket.size());
}

void Fenster::Lage_setzen(const Anfrage& anfrage) {
    const auto flags = static_cast<std::uint32_t>(anfrage.w);
    // Foreign numbers: sums are made without the overflow that they could provoke.
    const auto summe = [](std::int32_t a, std::int64_t b) {
        return static_cast<std::int32_t>(std::clamp<std::int64_t>(a + b, std::numeric_limits<std::int32_t>::min(),
                                                                  std::numeric_limits<std::int32_t>::max()));
    };
    std::int64_t breite = std::int64_t{lage_.rechts} - lage_.links, höhe = std::int64_t{lage_.unten} - lage_.oben;
    if (!(flags & SWP_NOSIZE)) {
        breite = std::max(anfrage.Werte[2], 0);
        höhe = std::max(anfrage.Werte[3], 0);
    }
    if (!(flags & SWP_NOMOVE)) {
        lage_.links = anfrage.Werte[0];
        lage_.oben = anfrage.Werte[1];
    }
    lage_.rechts = summe(lage_.links, breite);
    lage_.unten = summe(lage_.oben, höhe);
    if (flags & SWP_SHOWWINDOW) sichtbar_ = true;
    if (flags & SWP_HIDEWINDOW) sichtbar_ = false;
}

}  // namespace tonkartei::spieler
