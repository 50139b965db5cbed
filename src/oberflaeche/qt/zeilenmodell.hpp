// The lines of a list or a drop-down list for Qt, read where they stand: nothing is copied.
#pragma once

#include <QAbstractListModel>

namespace tonkartei {

class Zeilenelement;

class Zeilenmodell : public QAbstractListModel {
public:
    explicit Zeilenmodell(const Zeilenelement& element);

    // Takes notice of other lines. Between a change and this call Qt still counts the old ones; lines that are gone read
    // empty.
    void erneuern();
    void Zeilenhöhe(int pixel) { zeilenhöhe_ = pixel; }

    int rowCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& stelle, int rolle) const override;

private:
    const Zeilenelement& element_;
    int anzahl_ = 0;
    int zeilenhöhe_ = 0;
};

}  // namespace tonkartei
