// A window with every kind of control on an off-screen desktop.
#pragma once

#include <gtest/gtest.h>

#include "oberflaeche/qt/ansicht_qt.hpp"
#include "oberflaeche/qt/fenstermaler_qt.hpp"
#include "oberflaeche_qt/hilfen.hpp"
#include "oberflaeche_qt/schaufenster.hpp"

namespace tonkartei {

struct Desktop : testing::Test {
    Ansicht_Qt ansicht;
    Schaufenster fenster{ansicht};

    void SetUp() override {
        fenster.zeigen();
        ansicht.Ereignisse_laufen_lassen();
    }
    void abgleichen() { ansicht.maler().abgleichen(); }
    template <class W>
    W& widget(const Element& element) {
        auto* w = qobject_cast<W*>(ansicht.maler().Widget(element));
        if (w == nullptr) throw std::runtime_error("no such widget: " + element.Name());
        return *w;
    }
    void Zeilen(int anzahl) {
        std::vector<Text> zeilen;
        for (int i = 0; i < anzahl; ++i) zeilen.push_back("Lied " + std::to_string(i));
        fenster.Liste.setzen(std::move(zeilen));
        abgleichen();
    }
};

}  // namespace tonkartei
