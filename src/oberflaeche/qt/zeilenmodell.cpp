#include "oberflaeche/qt/zeilenmodell.hpp"

#include <QSize>

#include "oberflaeche/listen.hpp"
#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {

Zeilenmodell::Zeilenmodell(const Zeilenelement& element) : element_(element) {}

void Zeilenmodell::erneuern() {
    beginResetModel();
    anzahl_ = element_.Anzahl();
    endResetModel();
}

int Zeilenmodell::rowCount(const QModelIndex& eltern) const { return eltern.isValid() ? 0 : anzahl_; }

QVariant Zeilenmodell::data(const QModelIndex& stelle, int rolle) const {
    if (rolle == Qt::SizeHintRole && zeilenhöhe_ > 0) return QSize(1, zeilenhöhe_);
    if (rolle != Qt::DisplayRole || !stelle.isValid() || stelle.row() >= element_.Anzahl()) return {};
    return Anzeigetext(element_.zeile(stelle.row()));
}

}  // namespace tonkartei
