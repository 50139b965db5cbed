// Trouble, met at every place where it can come: a file cut at any byte; a work of which any operation fails, or before any
// operation of which the process dies and with it whatever was not synced.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "echt.hpp"
#include "probe/dateisystem_probe.hpp"

namespace tonkartei {

// `lauf` gets every piece of the file that is shorter than it, from `ab` bytes on.
template <class Lauf>
void an_jedem_Byte_abgeschnitten(const std::string& ganz, Lauf&& lauf, std::size_t ab = 0) {
    for (std::size_t länge = ab; länge < ganz.size(); ++länge) {
        SCOPED_TRACE("cut at byte " + std::to_string(länge));
        lauf(ganz.substr(0, länge));
    }
}

// A disk that has its trouble on order, for works that begin anew with every one.
class Störfall {
public:
    Störungen Störungen_{[this] { getroffen(); }};
    Dateisystem_echt Platte;
    Dateisystem_Probe Dateien{Platte, Störungen_};

    // `lauf` sets the scene, calls the argument with the work, and looks at what is left. It is run for every operation of
    // that kind that the work does, and once more without trouble; how many operations there were.
    template <class Lauf>
    int jeder_scheitert(Vorgang vorgang, Lauf&& lauf) {
        return jeder(vorgang, false, lauf);
    }
    // The same; what the work holds open must go with it.
    template <class Lauf>
    int vor_jedem_stirbt(Vorgang vorgang, Lauf&& lauf) {
        return jeder(vorgang, true, lauf);
    }

private:
    struct Tod {};

    void getroffen() {
        getroffen_ = true;
        if (tödlich_) throw Tod{};
    }
    template <class Lauf>
    int jeder(Vorgang vorgang, bool tödlich, Lauf& lauf) {
        tödlich_ = tödlich;
        for (int n = 1;; ++n) {
            SCOPED_TRACE("operation " + std::to_string(static_cast<int>(vorgang)) + ", no. " + std::to_string(n));
            getroffen_ = false;
            lauf([&](auto&& arbeit) {
                Störungen_.Absturz_bestellen(vorgang, n);
                if (!tödlich) Störungen_.Fehler_bestellen(vorgang, n);
                try {
                    arbeit();
                } catch (const Tod&) {
                    Dateien.Strom_weg();
                }
                Störungen_.Absturz_bestellen(vorgang, 0);
                Störungen_.Fehler_bestellen(vorgang, 0);
            });
            if (!getroffen_) return n - 1;
        }
    }

    bool tödlich_ = false, getroffen_ = false;
};

}  // namespace tonkartei
