// The contents of one open file into another.
#pragma once

#include <cstdint>

namespace tonkartei {

// Shares blocks where the file system can, else lets the kernel copy, else reads and writes. 0 or the error; EIO when the
// source ended before `länge` bytes. What has been copied until then stays.
int Inhalt_kopieren(int aus, int in, std::uint64_t länge);

}  // namespace tonkartei
