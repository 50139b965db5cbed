// The user's colours, asked of a settings portal on a bus of the test's own.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>
#include <optional>

#include "oberflaeche/qt/freedesktop/farbwunsch.hpp"

namespace tonkartei {
namespace {

class Portal : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& frage, const QDBusConnection& bus) override {
        if (frage.arguments().value(1) != QVariant("color-scheme"))
            return bus.send(frage.createErrorReply("org.freedesktop.portal.Error.NotFound", "unknown"));
        const QDBusVariant dunkel(QVariant(1U));
        return bus.send(frage.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(dunkel)))));
    }
};

TEST(Farbwunsch, FollowsThePortalAndDoesWithoutOne) {
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    const QCoreApplication anwendung(argc, argv);
    QProcess bus;
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(bus.waitForReadyRead()) << bus.errorString().toStdString();
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());

    std::optional<Farbschema> schema;
    const auto merken = [&schema](Farbschema neues) { schema = neues; };
    {
        const Farbwunsch ohne_Portal(merken);
        EXPECT_FALSE(schema.has_value());
    }

    // In a thread of its own, as the question is waited for in this one.
    QThread faden;
    Portal portal;
    portal.moveToThread(&faden);
    faden.start();
    QDBusConnection seine = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
    ASSERT_TRUE(seine.registerVirtualObject("/org/freedesktop/portal/desktop", &portal));
    ASSERT_TRUE(seine.registerService("org.freedesktop.portal.Desktop"));
    const Farbwunsch wunsch(merken);
    EXPECT_EQ(schema, Farbschema::dunkel) << "at once";

    const auto sagen = [&](const char* bereich, const char* was, const QVariant& wert, Farbschema erwartet) {
        QDBusMessage signal = QDBusMessage::createSignal("/org/freedesktop/portal/desktop",
                                                         "org.freedesktop.portal.Settings", "SettingChanged");
        signal << bereich << was << QVariant::fromValue(QDBusVariant(wert));
        seine.send(signal);
        const QDeadlineTimer frist(5000);
        while (schema != erwartet && !frist.hasExpired()) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        EXPECT_EQ(schema, erwartet) << was;
    };
    sagen("org.freedesktop.appearance", "contrast", 1U, Farbschema::kontrast_dunkel);
    sagen("org.freedesktop.appearance", "color-scheme", 2U, Farbschema::kontrast_hell);
    sagen("org.gnome.desktop.a11y.interface", "high-contrast", true, Farbschema::kontrast_hell);
    sagen("org.freedesktop.appearance", "contrast", 0U, Farbschema::kontrast_hell);
    sagen("org.gnome.desktop.a11y.interface", "high-contrast", false, Farbschema::hell);

    faden.quit();
    faden.wait();
    bus.kill();
    bus.waitForFinished();
}

}  // namespace
}  // namespace tonkartei
