#include "oberflaeche/qt/freedesktop/farbwunsch.hpp"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "oberflaeche/qt/freedesktop/sitzungsbus.hpp"

namespace tonkartei {
namespace {

constexpr char Dienst[] = "org.freedesktop.portal.Desktop", Objekt[] = "/org/freedesktop/portal/desktop",
               Schnittstelle[] = "org.freedesktop.portal.Settings";
constexpr char Aussehen[] = "org.freedesktop.appearance", Zugang[] = "org.gnome.desktop.a11y.interface";
constexpr char Schemaname[] = "color-scheme", Kontrast_Wunsch[] = "contrast", Kontrast_alt[] = "high-contrast";
// A portal that runs answers within a few; the first window is waiting.
constexpr int Geduld_ms = 100, Geduld_beim_Anlaufen_ms = 25000;

// The older way of asking wraps its answer once more.
QVariant ausgepackt(QVariant wert) {
    while (wert.canConvert<QDBusVariant>()) wert = wert.value<QDBusVariant>().variant();
    return wert;
}

}  // namespace

Farbwunsch::Farbwunsch(std::function<void(Farbschema)> neu) : neu_(std::move(neu)) {
    if (!Sitzungsbus_da()) return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    // One that does not run yet is started by the questions below, and not waited for.
    const bool läuft = bus.interface()->isServiceRegistered(QLatin1String(Dienst));
    qRegisterMetaType<QDBusVariant>("QDBusVariant");  // it finds the slot by the names of its types
    bus.connect(QLatin1String(Dienst), QLatin1String(Objekt), QLatin1String(Schnittstelle), QStringLiteral("SettingChanged"),
                this, SLOT(neuer_Wert(QString, QString, QDBusVariant)));
    for (const auto& [bereich, name] :
         {std::pair(Aussehen, Schemaname), std::pair(Aussehen, Kontrast_Wunsch), std::pair(Zugang, Kontrast_alt)})
        fragen(bereich, name, läuft);
}

void Farbwunsch::fragen(const char* bereich, const char* name, bool warten) {
    QDBusMessage frage = QDBusMessage::createMethodCall(QLatin1String(Dienst), QLatin1String(Objekt),
                                                        QLatin1String(Schnittstelle), QStringLiteral("Read"));
    frage << QLatin1String(bereich) << QLatin1String(name);
    auto* antwort = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(frage, warten ? Geduld_ms : Geduld_beim_Anlaufen_ms), this);
    connect(antwort, &QDBusPendingCallWatcher::finished, this, [this, antwort, bereich, name] {
        antwort->deleteLater();
        const QDBusPendingReply<QDBusVariant> wert = *antwort;
        if (wert.isValid()) neuer_Wert(QLatin1String(bereich), QLatin1String(name), wert.value());
    });
    if (warten) antwort->waitForFinished();
}

void Farbwunsch::merken(const QString& bereich, const QString& name, const QVariant& wert) {
    const QVariant inhalt = ausgepackt(wert);
    if (bereich == QLatin1String(Aussehen) && name == QLatin1String(Schemaname))
        dunkel_ = inhalt.toUInt() == 1;
    else if (bereich == QLatin1String(Aussehen) && name == QLatin1String(Kontrast_Wunsch))
        kontrast_ = inhalt.toUInt() == 1;
    else if (bereich == QLatin1String(Zugang) && name == QLatin1String(Kontrast_alt))
        kontrast_alt_ = inhalt.toBool();
}

void Farbwunsch::neuer_Wert(const QString& bereich, const QString& name, const QDBusVariant& wert) {
    const Farbschema bisher = schema();
    merken(bereich, name, wert.variant());
    if (schema() != bisher) neu_(schema());
}

Farbschema Farbwunsch::schema() const {
    if (kontrast_ || kontrast_alt_) return dunkel_ ? Farbschema::kontrast_dunkel : Farbschema::kontrast_hell;
    return dunkel_ ? Farbschema::dunkel : Farbschema::hell;
}

}  // namespace tonkartei
