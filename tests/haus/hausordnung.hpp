// The rules of the house, checked on the text of the sources: who may include and name what, and how far things may grow.
#pragma once

#include <map>
#include <string>
#include <string_view>
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
void prüfe_Maße(const Quellen& quellen, std::vector<Verstoß>& verstöße);  // a part of it

// Comments and the contents of strings and character literals as blanks, line breaks kept; include paths stay.
std::string nur_Code(const std::string& text);
// Identifiers and numbers; they point into the text.
std::vector<std::string_view> Wörter(std::string_view text);

}  // namespace tonkartei::haus
