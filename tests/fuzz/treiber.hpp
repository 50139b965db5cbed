// What a fuzz target and its driver say to each other. See treiber.cpp for the recipe.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// One run. Catches the failures that its subject may report; whatever leaves it otherwise is a finding. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t größe);

// Good and nearly good inputs to start from; each is tried as it is first. At most 1 MByte each.
std::vector<std::string> Fuzz_Saat();

// A property that every input must keep.
inline void verlangt(bool gilt, const char* was) {
    if (gilt) return;
    std::fprintf(stderr, "Befund: %s\n", was);
    std::abort();
}
