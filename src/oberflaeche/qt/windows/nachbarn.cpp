#include "nachbarn.hpp"

#include <QSettings>
#include <QVariant>

namespace tonkartei {

// As the user has chosen for programs. A theme of high contrast comes as the desktop's own palette.
Nachbarn::Nachbarn(Qt_Umgebung& qt) {
    const QSettings wahl(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
        QSettings::NativeFormat);
    if (wahl.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0) qt.Schema_setzen(Farbschema::dunkel);
}

}  // namespace tonkartei
