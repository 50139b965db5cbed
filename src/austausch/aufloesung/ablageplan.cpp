#include "austausch/aufloesung/ablageplan.hpp"

#include <algorithm>

namespace tonkartei {
namespace {

constexpr std::string_view zwischen = " - ";
constexpr const char* Endung = ".mp3";

Text Text_von(const Bestand& bestand, const Lied& lied, Baustein baustein) {
    switch (baustein) {
        case Baustein::Kategorie: {
            // A song that was taken over without a category has none to be filed under.
            const bool da = lied.Kategorie >= 1 && lied.Kategorie <= Kategorien_maximal;
            return da ? bestand.Kategorien[lied.Kategorie] : Text{};
        }
        case Baustein::Artist: return lied.Artist;
        case Baustein::Titel: return lied.Titel;
        case Baustein::keiner: break;
    }
    return {};
}

Text ohne_Sonderzeichen(Text text) {
    for (char& zeichen : text)
        if (zeichen == ':' || zeichen == '\\' || zeichen == '?' || zeichen == '/') zeichen = '_';
    return text;
}

// A folder of dots alone would be the one it stands in, or the one above.
Text als_Ordnername(const Text& text) {
    Text name = ohne_Sonderzeichen(text);
    if (name.find_first_not_of('.') == Text::npos) std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

}  // namespace

std::vector<Text> Ablageplan::Ordner(const Bestand& bestand, const Lied& lied) const {
    std::vector<Text> ordner;
    for (const Baustein ebene : Ebene)
        if (Text name = als_Ordnername(Text_von(bestand, lied, ebene)); !name.empty()) ordner.push_back(std::move(name));
    return ordner;
}

Text Ablageplan::Dateiname(const Bestand& bestand, const Lied& lied) const {
    Text name;
    for (const Baustein teil : DName)
        if (teil != Baustein::keiner) name += Text_von(bestand, lied, teil) + Text(zwischen);
    name.resize(name.size() - std::min(name.size(), zwischen.size()));
    return ohne_Sonderzeichen(name + Endung);
}

}  // namespace tonkartei
