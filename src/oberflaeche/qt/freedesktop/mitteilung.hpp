// A word at the edge of the screen, by the desktop's notification service; a later one takes the place of the one before.
#pragma once

#include <QObject>

#include "grundlagen/text.hpp"

namespace tonkartei {

class Mitteilung : public QObject {
public:
    // Nothing where nobody shows it; nothing waits.
    void zeigen(const Text& titel, const Text& text);

private:
    unsigned nummer_ = 0;  // of the one on show, 0 none
};

}  // namespace tonkartei
