// What colours the user wants to see, as the desktop's settings portal tells it. A desktop without one says nothing.
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <functional>

#include "oberflaeche/qt/farben.hpp"

namespace tonkartei {

class Farbwunsch : public QObject {
    Q_OBJECT
public:
    // Tells `neu` what the desktop wants as soon as that is another than light, and whenever it changes. Waits for the first
    // answer, but not long.
    explicit Farbwunsch(std::function<void(Farbschema)> neu);

private slots:  // their names are ASCII: moc knows no umlauts
    void neuer_Wert(const QString& bereich, const QString& name, const QDBusVariant& wert);

private:
    void fragen(const char* bereich, const char* name, bool warten);
    void merken(const QString& bereich, const QString& name, const QVariant& wert);
    Farbschema schema() const;

    std::function<void(Farbschema)> neu_;
    bool dunkel_ = false, kontrast_ = false, kontrast_alt_ = false;
};

}  // namespace tonkartei
