// Controls of one name, told apart by their number: 1 to N.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <type_traits>
#include <utility>

#include "grundlagen/fehler.hpp"
#include "oberflaeche/anordnung.hpp"
#include "oberflaeche/elemente.hpp"

namespace tonkartei {

template <class E, int N>
class Elementreihe {
public:
    using Texte = std::initializer_list<const char*>;
    // The captions (contents of text fields) in order; those left out are empty.
    Elementreihe(Fenster& fenster, const char* name, Texte texte = {})
        : Elementreihe(fenster, name, texte, std::make_index_sequence<Anzahl_>{}) {}

    static constexpr int Anzahl() { return N; }
    // Error 9 outside 1 to N.
    E& operator[](int nummer) { return elemente_[geprüft(nummer)]; }
    const E& operator[](int nummer) const { return elemente_[geprüft(nummer)]; }
    auto begin() { return elemente_.begin(); }
    auto end() { return elemente_.end(); }

private:
    static constexpr auto Anzahl_ = static_cast<std::size_t>(N);

    template <std::size_t... I>
    Elementreihe(Fenster& fenster, const char* name, Texte texte, std::index_sequence<I...>)
        : elemente_{{machen(fenster, name, texte, I)...}} {}

    static E machen(Fenster& fenster, const char* name, Texte texte, std::size_t i) {
        const int nummer = static_cast<int>(i) + 1;
        if constexpr (std::is_constructible_v<E, Fenster&, Text, Text, int>)
            return E(fenster, name, i < texte.size() ? texte.begin()[i] : "", nummer);
        else
            return E(fenster, name, nummer);
    }
    static std::size_t geprüft(int nummer) {
        if (nummer < 1 || nummer > N) throw Laufzeitfehler(Fehler_Index);
        return static_cast<std::size_t>(nummer - 1);
    }

    std::array<E, Anzahl_> elemente_;
};

}  // namespace tonkartei
