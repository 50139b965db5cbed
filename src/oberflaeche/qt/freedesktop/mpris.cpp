#include "oberflaeche/qt/freedesktop/mpris.hpp"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "oberflaeche/qt/freedesktop/sitzungsbus.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {
namespace {

constexpr char Name[] = "org.mpris.MediaPlayer2.tonkartei", Objekt[] = "/org/mpris/MediaPlayer2",
               Spieler_Schnittstelle[] = "org.mpris.MediaPlayer2.Player";
constexpr std::int64_t Mikro = 1000;   // in a millisecond
constexpr std::int64_t Sprung = 2000;  // milliseconds: farther off than two looks can be by themselves

QString Zustand(const Medienstand& stand) {
    switch (stand.zustand) {
        case Medienstand::Zustand::spielt: return QStringLiteral("Playing");
        case Medienstand::Zustand::angehalten: return QStringLiteral("Paused");
        case Medienstand::Zustand::gestoppt: break;
    }
    return QStringLiteral("Stopped");
}

QString Liedpfad(int lied) {
    return lied < 1 ? QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack")
                    : QStringLiteral("/tonkartei/lied/%1").arg(lied);
}

}  // namespace

Mpris::Mpris(const Medienbefehle& befehle, Ausführung ausführen) : befehle_(befehle), ausführen_(std::move(ausführen)) {
    new Mpris_Wurzel(*this);
    new Mpris_Spieler(*this);
    seit_.start();
    if (!Sitzungsbus_da()) return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    spricht_ = bus.registerObject(QLatin1String(Objekt), this) && bus.registerService(QLatin1String(Name));
}

Mpris::~Mpris() {
    if (spricht_) QDBusConnection::sessionBus().unregisterService(QLatin1String(Name));
}

qlonglong Mpris::Stelle() const {
    std::int64_t stelle = stand_.Position;
    if (stand_.zustand == Medienstand::Zustand::spielt) stelle += seit_.elapsed();
    if (stand_.Länge > 0) stelle = std::min(stelle, stand_.Länge);
    return stelle * Mikro;
}

QVariantMap Mpris::Angaben() const {
    QVariantMap angaben{{QStringLiteral("mpris:trackid"), QVariant::fromValue(QDBusObjectPath(Liedpfad(stand_.Lied)))}};
    if (stand_.Lied > 0) {
        angaben[QStringLiteral("xesam:title")] = Anzeigetext(stand_.Titel);
        if (!stand_.Artist.empty()) angaben[QStringLiteral("xesam:artist")] = QStringList{Anzeigetext(stand_.Artist)};
    }
    if (stand_.Länge > 0) angaben[QStringLiteral("mpris:length")] = static_cast<qlonglong>(stand_.Länge * Mikro);
    return angaben;
}

void Mpris::zeigen(const Medienstand& stand) {
    const qlonglong erwartet = Stelle();
    const Medienstand bisher = std::exchange(stand_, stand);
    seit_.restart();
    if (!spricht_) return;
    QVariantMap neu;
    if (stand.zustand != bisher.zustand) neu[QStringLiteral("PlaybackStatus")] = Zustand(stand);
    const bool anderes = stand.Lied != bisher.Lied || stand.Titel != bisher.Titel || stand.Artist != bisher.Artist;
    if (anderes || stand.Länge != bisher.Länge) neu[QStringLiteral("Metadata")] = Angaben();
    if (stand.Lautstärke != bisher.Lautstärke) neu[QStringLiteral("Volume")] = stand.Lautstärke / 100.0;
    if (stand.kann_weiter != bisher.kann_weiter) neu[QStringLiteral("CanGoNext")] = stand.kann_weiter;
    if (!neu.isEmpty()) melden(neu);
    if (!anderes && std::abs(Stelle() - erwartet) > Sprung * Mikro)
        for (auto* spieler : findChildren<Mpris_Spieler*>()) emit spieler->Seeked(Stelle());
}

void Mpris::melden(const QVariantMap& neu) const {
    QDBusMessage signal = QDBusMessage::createSignal(
        QLatin1String(Objekt), QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
    signal << QLatin1String(Spieler_Schnittstelle) << neu << QStringList();
    QDBusConnection::sessionBus().send(signal);
}

// Once its caller has been answered: a start of the player blocks for a second, and questions may come up.
void Mpris::tun(const std::function<void()>& befehl) const {
    if (!befehl) return;
    QTimer::singleShot(0, this, [this, befehl] { ausführen_(befehl); });
}

void Mpris::springen(qlonglong mikrosekunden) const {
    const std::int64_t ms = std::max<std::int64_t>(0, mikrosekunden / Mikro);
    tun([this, ms] {
        if (stand_.Länge > 0 && ms > stand_.Länge)
            befehle_.nächstes();
        else
            befehle_.springen(ms);
    });
}

QString Mpris_Spieler::playbackStatus() const { return Zustand(mpris_.Stand()); }

void Mpris_Spieler::setVolume(double wert) {
    const int prozent = static_cast<int>(std::lround(std::clamp(wert, 0.0, 1.0) * 100));
    mpris_.tun([this, prozent] { mpris_.Befehle().Lautstärke(prozent); });
}

// Of another song than the one that plays it is too late.
void Mpris_Spieler::SetPosition(const QDBusObjectPath& lied, qlonglong stelle) {
    const std::int64_t länge = mpris_.Stand().Länge * Mikro;
    if (lied.path() == Liedpfad(mpris_.Stand().Lied) && stelle >= 0 && (länge == 0 || stelle <= länge))
        mpris_.springen(stelle);
}

}  // namespace tonkartei
