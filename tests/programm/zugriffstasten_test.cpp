// Access keys of the whole program: Alt and a letter mean one thing in a window.
#include <map>

#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

// The letter behind a single "&"; "" without one.
std::string Zugriffszeichen(const std::string& text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        if (text[i + 1] != '&') return text.substr(i + 1, (text[i + 1] & 0x80) != 0 ? 2 : 1);
        ++i;
    }
    return {};
}

std::string klein(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

class Zugriffstasten : public testing::TestWithParam<const char*> {};

TEST_P(Zugriffstasten, are_unique_in_their_window) {
    const std::string fenster = GetParam();
    Bediener b;
    std::map<std::string, std::vector<std::string>> tasten;
    const auto merken = [&](const std::string& text, const std::string& name) {
        if (const std::string taste = klein(Zugriffszeichen(text)); !taste.empty()) tasten[taste].push_back(name);
    };
    b("elemente " + fenster);
    const auto elemente = b.antworten().front().at("elemente");
    for (const std::string name : elemente) {
        const auto bild = b.zeige(fenster + "." + name);
        const std::string art = bild["art"];
        // What the user typed or chose is no caption, and entries of menus have their letters to themselves.
        if (!bild["sichtbar"] || art == "text" || art == "liste" || art == "auswahl" || art == "menü") continue;
        if (bild.contains("text")) merken(bild["text"], name);
    }
    if (fenster == "Tonkartei") {
        b("menü");
        for (const auto& eintrag : b.antworten().front().at("menü")) merken(eintrag["text"], eintrag["name"]);
    }
    EXPECT_FALSE(tasten.empty());
    for (const auto& [taste, namen] : tasten)
        EXPECT_EQ(namen.size(), 1U) << "Alt+" << taste << ": " << nlohmann::json(namen);
}

// The key of a label goes to the field beside it, and Tab from there on to what comes next for the eye.
TEST_F(Bühne, Tasten_der_Beschriftungen_und_Reihenfolge) {
    öffnen(sammlung("a"));
    hand("wähle Tonkartei.Liste 0");
    const auto fokus = [&](const std::string& zeile) {
        hand(zeile);
        (*b)("fokus");
        return b->antworten().front().at("fokus").get<std::string>();
    };
    EXPECT_EQ(fokus("taste Tonkartei.Liste Alt+a"), "Tonkartei.Datenbank");
    EXPECT_EQ(fokus("taste Tonkartei.Datenbank Tab"), "Tonkartei.Datenbank_Modus");
    EXPECT_EQ(fokus("taste Tonkartei.Liste Alt+u"), "Tonkartei.Schnellsuche");
    EXPECT_EQ(fokus("taste Tonkartei.Schnellsuche Tab"), "Tonkartei.Liste");
    EXPECT_EQ(fokus("taste Tonkartei.Liste Alt+g"), "Tonkartei.Lied_Kategorie");
    EXPECT_EQ(geschehen(), Zeilen{"Fortschritt|Datenbank laden..."});
}

INSTANTIATE_TEST_SUITE_P(Fenster, Zugriffstasten,
                         testing::Values("Tonkartei", "Splash", "Datenbank_öffnen", "Kategorie_Wahl", "Kategorie_bearbeiten",
                                         "Verzeichnis_add", "neue_Lieder_Liste", "Album_wählen", "Infofenster",
                                         "MP3_Tag_ändern", "Datum_eingeben", "DB_add_start_Kategorien", "DBadd_Kategorien",
                                         "Playlist"),
                         [](const auto& fall) { return "Fenster_" + std::to_string(fall.index); });

}  // namespace
}  // namespace tonkartei
