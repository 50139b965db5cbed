#include "oberflaeche/qt/freedesktop/sitzungsbus.hpp"

#include <QFile>
#include <QtGlobal>

namespace tonkartei {

bool Sitzungsbus_da() {
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return true;
    const QByteArray ordner = qgetenv("XDG_RUNTIME_DIR");
    return !ordner.isEmpty() && QFile::exists(QFile::decodeName(ordner) + QStringLiteral("/bus"));
}

}  // namespace tonkartei
