// Which lines the views of the albums show. No control in it.
#pragma once

#include <vector>

#include "alben/album.hpp"

namespace tonkartei {

// The numbers of all albums in the order of the list: by performer and title, joined without a separator.
std::vector<long long> sortierte_Alben(const Albenbestand& bestand);

// The titles of an album, one a line. The artist stands before a title only where it is not the album's performer.
std::vector<Text> Titelzeilen(const Album& album);

}  // namespace tonkartei
