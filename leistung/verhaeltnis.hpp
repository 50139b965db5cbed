// Ratios of two ways to do a thing, measured in one run: what a machine's speed does to one way it does to the other. What
// counts is the processor time of this process, in the system too, so that a busy neighbour does not.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string_view>
#include <vector>

namespace tonkartei {

// Both ways run in turn, once unmeasured and then `Runden` times (an odd number). What is told is the median of the rounds'
// ratios: a load that comes and goes meets both ways of a round alike. A way is a callable without
// arguments that returns a number made from its results, so that no work can be left out.
class Verhältnisse {
public:
    explicit Verhältnisse(int Runden = 15) : Runden_(Runden) {}

    // Brings about what each way starts from; not measured.
    std::function<void()> davor;

    // `unser` takes at most `grenze` times as long as `maß`:
    // "Tags von 5000 Dateien: 1.21 x Systemaufrufe (höchstens 1.5)".
    template <class A, class B>
    void höchstens(std::string_view was, double grenze, std::string_view woran, A unser, B maß) {
        const auto [a, b, mal] = gemessen(unser, maß);
        zeigen(was, mal, woran, "höchstens", grenze, mal <= grenze, a, b);
    }
    // `unser` is at least `grenze` times as fast as `maß`.
    template <class A, class B>
    void mindestens(std::string_view was, double grenze, std::string_view woran, A unser, B maß) {
        const auto [a, b, mal] = gemessen(unser, maß);
        zeigen(was, 1 / mal, woran, "mindestens", grenze, 1 / mal >= grenze, a, b);
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
        double a, b;  // seconds of processor time
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
        const std::clock_t anfang = std::clock();
        senke_ = static_cast<double>(weg());
        return static_cast<double>(std::clock() - anfang) / CLOCKS_PER_SEC;
    }
    static double Median(std::vector<double>& werte) {
        const auto mitte = werte.begin() + static_cast<std::ptrdiff_t>(werte.size() / 2);
        std::nth_element(werte.begin(), mitte, werte.end());
        return *mitte;
    }
    static int Breite(std::string_view text) { return static_cast<int>(text.size()); }
    void zeigen(std::string_view was, double wert, std::string_view woran, const char* art, double grenze, bool gut,
                double a, double b) {
        gut_ = gut_ && gut;
        std::printf("%s%.*s: %.2f x %.*s (%s %g)   [%.3f ms, %.3f ms]\n", gut ? "" : "VERFEHLT ", Breite(was), was.data(),
                    wert, Breite(woran), woran.data(), art, grenze, a * 1e3, b * 1e3);
        std::fflush(stdout);
    }

    int Runden_;
    bool gut_ = true;
    volatile double senke_ = 0;
};

}  // namespace tonkartei
