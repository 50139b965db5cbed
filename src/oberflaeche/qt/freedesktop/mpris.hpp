// The program on the session's bus as a media player: media keys, lock screen and panels see what plays and ask for what
// they want. Names of the bus are in English; so are those of the two adaptors, since moc knows no umlauts.
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <functional>

#include "oberflaeche/medien.hpp"

namespace tonkartei {

// Runs a wish of the bus under the program's guard.
using Ausführung = std::function<void(const std::function<void()>&)>;

class Mpris : public QObject {
public:
    // Nothing where there is no bus, or where the name is taken. `befehle` must live as long.
    Mpris(const Medienbefehle& befehle, Ausführung ausführen);
    ~Mpris() override;

    bool spricht() const noexcept { return spricht_; }
    // As of now; what is new goes to whoever listens.
    void zeigen(const Medienstand& stand);

    const Medienstand& Stand() const noexcept { return stand_; }
    // Microseconds; between two looks it goes on with the clock.
    qlonglong Stelle() const;
    QVariantMap Angaben() const;
    void tun(const std::function<void()>& befehl) const;
    void springen(qlonglong mikrosekunden) const;
    const Medienbefehle& Befehle() const noexcept { return befehle_; }

private:
    void melden(const QVariantMap& neu) const;

    const Medienbefehle& befehle_;
    const Ausführung ausführen_;
    Medienstand stand_;
    QElapsedTimer seit_;
    bool spricht_ = false;
};

class Mpris_Wurzel : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ ja CONSTANT)
    Q_PROPERTY(bool CanRaise READ ja CONSTANT)
    Q_PROPERTY(bool HasTrackList READ nein CONSTANT)
    Q_PROPERTY(QString Identity READ identity CONSTANT)
    Q_PROPERTY(QString DesktopEntry READ desktopEntry CONSTANT)
    Q_PROPERTY(QStringList SupportedUriSchemes READ leer CONSTANT)
    Q_PROPERTY(QStringList SupportedMimeTypes READ leer CONSTANT)
public:
    explicit Mpris_Wurzel(Mpris& mpris) : QDBusAbstractAdaptor(&mpris), mpris_(mpris) {}
    bool ja() const { return true; }
    bool nein() const { return false; }
    QString identity() const { return QStringLiteral("Tonkartei"); }
    QString desktopEntry() const { return QStringLiteral("tonkartei"); }
    QStringList leer() const { return {}; }
public slots:
    void Raise() { mpris_.tun(mpris_.Befehle().zeigen); }
    void Quit() { mpris_.tun(mpris_.Befehle().Ende); }

private:
    Mpris& mpris_;
};

class Mpris_Spieler : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ playbackStatus)
    Q_PROPERTY(QVariantMap Metadata READ metadata)
    Q_PROPERTY(double Volume READ volume WRITE setVolume)
    Q_PROPERTY(qlonglong Position READ position)
    Q_PROPERTY(double Rate READ eins WRITE setRate)
    Q_PROPERTY(double MinimumRate READ eins CONSTANT)
    Q_PROPERTY(double MaximumRate READ eins CONSTANT)
    Q_PROPERTY(bool CanGoNext READ canGoNext)
    Q_PROPERTY(bool CanGoPrevious READ ja CONSTANT)
    Q_PROPERTY(bool CanPlay READ ja CONSTANT)
    Q_PROPERTY(bool CanPause READ ja CONSTANT)
    Q_PROPERTY(bool CanSeek READ ja CONSTANT)
    Q_PROPERTY(bool CanControl READ ja CONSTANT)
public:
    explicit Mpris_Spieler(Mpris& mpris) : QDBusAbstractAdaptor(&mpris), mpris_(mpris) {}
    QString playbackStatus() const;
    QVariantMap metadata() const { return mpris_.Angaben(); }
    double volume() const { return mpris_.Stand().Lautstärke / 100.0; }
    void setVolume(double wert);
    qlonglong position() const { return mpris_.Stelle(); }
    double eins() const { return 1; }
    void setRate(double) {}  // songs are played as they are
    bool canGoNext() const { return mpris_.Stand().kann_weiter; }
    bool ja() const { return true; }
public slots:
    void Next() { mpris_.tun(mpris_.Befehle().nächstes); }
    void Previous() { mpris_.tun(mpris_.Befehle().Anfang); }
    void Play() { mpris_.tun(mpris_.Befehle().spielen); }
    void Pause() { mpris_.tun(mpris_.Befehle().anhalten); }
    void PlayPause() { mpris_.tun(mpris_.Befehle().umschalten); }
    void Stop() { mpris_.tun(mpris_.Befehle().stoppen); }
    void Seek(qlonglong um) { mpris_.springen(mpris_.Stelle() + um); }
    void SetPosition(const QDBusObjectPath& lied, qlonglong stelle);
    void OpenUri(const QString&) {}  // only songs of the collection are played
signals:
    void Seeked(qlonglong stelle);

private:
    Mpris& mpris_;
};

}  // namespace tonkartei
