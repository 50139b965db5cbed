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

TEST(Quicksort, SortiertAlleFolgen) {
    for (int länge = 0; länge <= 7; ++länge) {
        std::string folge(static_cast<std::size_t>(länge), 'a');
        for (int rest = 0;; ++rest) {
            int ziffern = rest;
            for (char& c : folge) c = static_cast<char>('a' + ziffern % 3), ziffern /= 3;
            if (ziffern > 0) break;
            const std::string ergebnis = sortiert(folge);
            std::string schlüssel;
            bool zusammen = true;
            for (std::size_t i = 0; i < ergebnis.size(); i += 2) {
                schlüssel += ergebnis[i];
                zusammen = zusammen && folge[static_cast<std::size_t>(ergebnis[i + 1] - '1')] == ergebnis[i];
            }
            std::string erwartet = folge;
            std::sort(erwartet.begin(), erwartet.end());
            ASSERT_EQ(schlüssel, erwartet) << folge;
            ASSERT_TRUE(zusammen) << folge << ' ' << ergebnis;
        }
    }
}

}  // namespace
}  // namespace tonkartei
