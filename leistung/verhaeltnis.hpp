// Ratios of two ways to do a thing, measured in one run: what a machine's speed does to one way it does to the other. What
// counts is processor time, in the system too, so that a busy neighbour does not.
#pragma once

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>
#include <string_view>
#include <vector>

namespace tonkartei {

// Seconds of processor time that this process took, and that children took for which it has waited.
inline double Prozessorzeit() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }
inline double Prozessorzeit_der_Kinder() {
    rusage verbrauch{};
    ::getrusage(RUSAGE_CHILDREN, &verbrauch);
    const auto Sekunden = [](const timeval& zeit) {
        return static_cast<double>(zeit.tv_sec) + static_cast<double>(zeit.tv_usec) / 1e6;
    };
    return Sekunden(verbrauch.ru_utime) + Sekunden(verbrauch.ru_stime);
}
// For what waits for the disk.
inline double verstrichene_Zeit() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Both ways run in turn, once unmeasured and then `Runden` times (an odd number). What is told is the median of the rounds'
// ratios: a load that comes and goes meets both ways of a round alike. A way is a callable without
// arguments that returns a number made from its results, so that no work can be left out.
class Verhältnisse {
public:
    explicit Verhältnisse(int Runden = 15) : Runden_(Runden) {}

    // Brings about what each way starts from; not measured.
    std::function<void()> davor;
    double (*Uhr)() = Prozessorzeit;

    // `unser` takes at most `grenze` times as long as `maß`:
    // "Tags von 5000 Dateien: 1.21 x Systemaufrufe (höchstens 1.5)".
    template <class A, class B>
    void höchstens(std::string_view was, double grenze, std::string_view woran, A unser, B maß) {
        const auto [a, b, mal] = gemessen(unser, maß);
        zeigen(was, mal, woran, grenze, a, b);
    }
    // Without a limit, for whoever is curious.
    template <class A, class B>
    void zum_Vergleich(std::string_view was, std::string_view woran, A unser, B maß) {
        const auto [a, b, mal] = gemessen(unser, maß);
        zeigen(was, mal, woran, std::numeric_limits<double>::infinity(), a, b);
    }
    // For a figure measured otherwise (memory, say), in the same form.
    void Wert(std::string_view was, double wert, std::string_view einheit, double grenze) {
        gut_ = gut_ && wert <= grenze;
        std::printf("%s%.*s: %.2f %.*s (höchstens %g)\n", wert <= grenze ? "" : "ZU VIEL  ", Breite(was), was.data(), wert,
                    Breite(einheit), einheit.data(), grenze);
    }

    // Exit status of the benchmark: 1 when a limit was missed.
    int Ergebnis() const { return gut_ ? 0 : 1; }

private:
    struct Messung {
        double a, b;  // seconds
        double mal;   // a as a multiple of b
    };

    template <class A, class B>
    Messung gemessen(A& unser, B& maß) {
        std::vector<double> a, b, mal;
        for (int runde = 0; runde <= Runden_; ++runde) {
            const double eins = Sekunden(unser), zwei = Sekunden(maß);
            if (runde == 0) continue;
            a.push_back(eins);
            b.push_back(zwei);
            mal.push_back(eins / zwei);
        }
        return {Median(a), Median(b), Median(mal)};
    }
    template <class F>
    double Sekunden(F& weg) {
        if (davor) davor();
        const double anfang = Uhr();
        senke_ = static_cast<double>(weg());
        return Uhr() - anfang;
    }
    static double Median(std::vector<double>& werte) {
        const auto mitte = werte.begin() + static_cast<std::ptrdiff_t>(werte.size() / 2);
        std::nth_element(werte.begin(), mitte, werte.end());
        return *mitte;
    }
    static int Breite(std::string_view text) { return static_cast<int>(text.size()); }
    void zeigen(std::string_view was, double wert, std::string_view woran, double grenze, double a, double b) {
        const bool gut = wert <= grenze;
        gut_ = gut_ && gut;
        std::printf("%s%.*s: %.2f x %.*s ", gut ? "" : "VERFEHLT ", Breite(was), was.data(), wert, Breite(woran),
                    woran.data());
        if (std::isinf(grenze))
            std::printf("(zum Vergleich)");
        else
            std::printf("(höchstens %g)", grenze);
        std::printf("   [%.3f ms, %.3f ms]\n", a * 1e3, b * 1e3);
        std::fflush(stdout);
    }

    int Runden_;
    bool gut_ = true;
    volatile double senke_ = 0;
};

}  // namespace tonkartei
