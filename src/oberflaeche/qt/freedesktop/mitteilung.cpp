#include "oberflaeche/qt/freedesktop/mitteilung.hpp"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

#include "oberflaeche/qt/freedesktop/sitzungsbus.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {

void Mitteilung::zeigen(const Text& titel, const Text& text) {
    if (!Sitzungsbus_da()) return;
    QDBusMessage bitte = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    // Its body is a kind of HTML.
    bitte << QStringLiteral("Tonkartei") << nummer_ << QStringLiteral("tonkartei") << Anzeigetext(titel)
          << Anzeigetext(text).toHtmlEscaped() << QStringList()
          << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("tonkartei")}, {QStringLiteral("transient"), true}}
          << -1;
    auto* antwort = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(bitte), this);
    connect(antwort, &QDBusPendingCallWatcher::finished, this, [this, antwort] {
        antwort->deleteLater();
        const QDBusPendingReply<unsigned> nummer = *antwort;
        nummer_ = nummer.isValid() ? nummer.value() : 0;
    });
}

}  // namespace tonkartei
