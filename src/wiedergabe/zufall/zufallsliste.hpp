// The sorted list from which chance draws: the songs in view, the seldom-heard first.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

#include "grundlagen/zahl.hpp"

namespace tonkartei {

// What stands in front of the sorted list, in percent of its lines, is what a draw takes from. So all songs of a collection
// come up equally often in the end.
//
// A line is a text of fixed-width fields of digits and sorts as such: count, number, and line of the title where the songs
// come from an album. A count of more digits than its field leaves the field out; the fields behind it then move forward.
class Zufallsliste {
public:
    void vormerken(std::size_t zeilen) { zeilen_.reserve(zeilen); }
    // With the line of the title in its album, from 0.
    void hinzufügen(Long Anzahl, Long Nr, int Titelzeile);
    void hinzufügen(Long Anzahl, Long Nr);
    void sortieren();

    int Anzahl() const noexcept { return static_cast<int>(zeilen_.size()); }
    bool leer() const noexcept { return zeilen_.empty(); }
    // A line of the front `Prozent` percent, counted from 1, for a value of the generator (0 <= R < 1).
    int ziehe(int Prozent, float R) const;
    // The song in the second field of a line, counted from 1.
    Long Nr(int Index) const;
    // What the last field of a line holds, counted from 1.
    Long letztes_Feld(int Index) const;
    void entfernen(int Index);

private:
    static constexpr std::size_t Feldbreite = 8, Felder_maximal = 3;
    // The text of a line, field by field as numbers whose first character weighs most: they compare as the text does. What
    // the line does not fill is 0.
    using Zeile = std::array<std::uint64_t, Felder_maximal>;
    static Zeile Zeile_aus(std::initializer_list<long long> felder);
    Long Feldwert(int Index, std::size_t feld) const;

    std::vector<Zeile> zeilen_;
};

}  // namespace tonkartei
