// The rules of the house about who may include and name what, checked on the text of the sources.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace tonkartei::haus {

// Path below the project's root, with '/' ("src/mp3/tag.cpp"), to the file's text.
using Quellen = std::map<std::string, std::string>;

struct Verstoß {
    std::string Datei;
    int Zeile;  // from 1; 0 where the whole file is meant
    std::string Grund;
};

std::vector<Verstoß> prüfe(const Quellen& quellen);

}  // namespace tonkartei::haus
