#include "liste/quicksort.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace tonkartei {
namespace {

std::string sortiert(const std::string& schlüssel) {
    Quicksort<char, int> q;
    const auto n = static_cast<Long>(schlüssel.size());
    q.Quicksort_Init(n);
    for (Long i = 1; i <= n; ++i) {
        q.Schlüssel(i) = schlüssel[static_cast<std::size_t>(i - 1)];
        q.Wert(i) = i;
    }
    q.Quicksort_Start();
    std::string folge;
    for (Long i = 1; i <= n; ++i) folge += q.Schlüssel(i) + std::to_string(q.Wert(i));
    return folge;
}

// Worked out by hand. The last two tell where the middle of an even stretch lies: (1 + 4) / 2 is 2, (1 + 6) / 2 is 4.
TEST(Quicksort, GleicheSchluesselInSeinerReihenfolge) {
    for (const auto& [folge, sortierte] : {std::pair{"aa", "a2a1"},
                                           {"aaa", "a3a2a1"},
                                           {"aaaa", "a3a4a1a2"},
                                           {"bbaa", "a3a4b1b2"},
                                           {"abba", "a4a1b3b2"},
                                           {"bababa", "a4a6a2b1b5b3"}})
        EXPECT_EQ(sortiert(folge), sortierte);
}

// All sequences of up to seven of three keys: sorted, and each value still with its key.
TEST(Quicksort, SortiertAlleFolgen) {
    for (int n = 0; n < 3280; ++n) {
        std::string folge, erwartet, schlüssel;
        for (int rest = n; rest > 0; rest = (rest - 1) / 3) folge += static_cast<char>('a' + (rest - 1) % 3);
        const std::string ergebnis = sortiert(folge);
        for (std::size_t i = 0; i < ergebnis.size(); i += 2) {
            schlüssel += ergebnis[i];
            ASSERT_EQ(folge[static_cast<std::size_t>(ergebnis[i + 1] - '1')], ergebnis[i]) << folge << ' ' << ergebnis;
        }
        erwartet = folge;
        std::sort(erwartet.begin(), erwartet.end());
        ASSERT_EQ(schlüssel, erwartet) << folge;
    }
}

}  // namespace
}  // namespace tonkartei
