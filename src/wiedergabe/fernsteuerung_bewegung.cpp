#include "wiedergabe/fernsteuerung_bewegung.hpp"

#include <algorithm>

#include "grundlagen/zahl.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {
namespace {

constexpr int Schritte = 20;

}  // namespace

struct Fernsteuerung_Bewegung::Lauf {
    Fernsteuerung_Bewegung& b;
    const unsigned nummer;
    explicit Lauf(Fernsteuerung_Bewegung& bewegung) : b(bewegung), nummer(++b.neuester_) { ++b.unterwegs_; }
    ~Lauf() { --b.unterwegs_; }
    Lauf(const Lauf&) = delete;
    Lauf& operator=(const Lauf&) = delete;
    bool ist_neuester() const { return nummer == b.neuester_; }
    double dX() const { return static_cast<double>(b.marke_.links() - b.ecke_.links()) / Schritte; }
    double dY() const { return static_cast<double>(b.marke_.oben() - b.ecke_.oben()) / Schritte; }
};

// Right and bottom edges stay where the marker's are. A marker that has no place yet leaves nothing to show.
void Fernsteuerung_Bewegung::links_oben(int links, int oben) {
    tafel_.lage({links, oben, std::max(0, marke_.breite() + marke_.links() - links),
                 std::max(0, marke_.höhe() + marke_.oben() - oben)});
}

void Fernsteuerung_Bewegung::ziehen(double dX, double dY, int schritt) {
    links_oben(marke_.links() - gerundet(dX * (schritt - 1)), marke_.oben() - gerundet(dY * (schritt - 1)));
}

// The redraw sets the pace, there is no pause. False when a newer movement has run meanwhile.
bool Fernsteuerung_Bewegung::zeigen_und_warten(const Lauf& lauf) {
    tafel_.fenster().malen();
    tafel_.fenster().ansicht().Ereignisse_laufen_lassen();
    return lauf.ist_neuester();
}

void Fernsteuerung_Bewegung::öffnen(bool animiert) {
    const Lauf lauf(*this);
    if (animiert) {
        tafel_.lage(marke_.lage());
        tafel_.sichtbar(true);
        const double dX = lauf.dX(), dY = lauf.dY();
        for (int i = 1; i <= Schritte; ++i) {
            ziehen(dX, dY, i);
            if (!zeigen_und_warten(lauf)) return;
        }
    }
    an_offenen_Platz();
    tafel_.sichtbar(true);
}

void Fernsteuerung_Bewegung::schließen(bool animiert) {
    const Lauf lauf(*this);
    if (animiert && tafel_.sichtbar()) {
        const double dX = lauf.dX(), dY = lauf.dY();
        for (int i = Schritte; i >= 1; --i) {
            ziehen(dX, dY, i);
            // All of the window, and so the buttons that come out from under the panel.
            if (!zeigen_und_warten(lauf)) return;
        }
    }
    tafel_.sichtbar(false);
    tafel_.fenster().malen();
}

void Fernsteuerung_Bewegung::an_offenen_Platz() { links_oben(ecke_.links(), ecke_.oben()); }

void Fernsteuerung_Bewegung::Lage_nachführen() {
    if (unterwegs_ == 0) an_offenen_Platz();
}

}  // namespace tonkartei
