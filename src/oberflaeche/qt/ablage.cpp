#include "oberflaeche/qt/ablage.hpp"

#include <QMimeData>
#include <QUrl>

namespace tonkartei {

bool hat_Pfade(const QMimeData& daten) { return daten.hasUrls() && !Pfade_aus(daten).empty(); }

std::vector<Text> Pfade_aus(const QMimeData& daten) {
    std::vector<Text> pfade;
    for (const QUrl& url : daten.urls()) {
        if (!url.isLocalFile()) continue;
        // Not by way of QString, which cannot hold bytes that are not UTF-8.
        const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
        if (!bytes.isEmpty()) pfade.push_back(bytes.toStdString());
    }
    return pfade;
}

}  // namespace tonkartei
