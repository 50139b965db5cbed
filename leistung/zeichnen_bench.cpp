// Drawing a list: a screenful of 5000 lines against one of 50.
#include <string>
#include <vector>

#include "leistung/verhaeltnis.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"

namespace {

using namespace tonkartei;

struct Listenfenster : Fenster {
    Listenfeld liste{*this, "Liste"};
    explicit Listenfenster(Ansicht& ansicht) : Fenster(ansicht, "Listenfenster", "") {}
    Knoten anordnung() override { return Spalte({Knoten(liste).zeilen(30).zeichen(60).dehnen(1, 1)}); }
    void füllen(int zeilen) {
        std::vector<Text> alle;
        for (int i = 0; i < zeilen; ++i)
            alle.push_back("Some Band With A Name - A title of the usual length " + std::to_string(i));
        liste.setzen(std::move(alle));
    }
    // Every line of the screen is drawn anew: the list scrolls by a page.
    double zeichnen() {
        for (int i = 0; i < 10; ++i) {
            liste.erste(i % 2 == 0 ? 19 : 0);
            ansicht().Fenster_malen(*this);
        }
        return liste.erste();
    }
};

}  // namespace

int main(int argc, char** argv) {
    const Qt_Umgebung qt(argc, argv);
    Ansicht_Qt ansicht;
    Listenfenster kurz(ansicht), lang(ansicht);
    for (Listenfenster* f : {&kurz, &lang}) {
        f->zeigen();
        f->füllen(f == &kurz ? 50 : 5000);
    }
    ansicht.Ereignisse_laufen_lassen();
    Verhältnisse v;
    v.höchstens(
        "Zeichnen einer Seite von 5000 Zeilen", 1.3, "dasselbe bei 50 Zeilen", [&] { return lang.zeichnen(); },
        [&] { return kurz.zeichnen(); });
    return v.Ergebnis();
}
