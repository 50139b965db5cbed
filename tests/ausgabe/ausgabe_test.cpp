#include <chrono>

#include "programm/buehne.hpp"

using namespace tonkartei;

struct Ausgabe : Bühne {
    // "Title|text|buttons".
    Zeilen Kästen() {
        Zeilen zeilen = geschehen();
        for (auto& zeile : zeilen)
            for (std::size_t i = 0; (i = zeile.find(" | ")) != zeile.npos;) zeile.replace(i, 3, "|");
        return zeilen;
    }
};

TEST_F(Ausgabe, SpaltenTrennerUndFragen) {
    öffnen(sammlung("a", {.Lieder = {{"K\xe4the", "Zug", 7, 1234, 2}, {"Otto", "\xdc", 0, 5, 4}}}));
    // Only the first song has its file.
    std::filesystem::last_write_time(
        ordner.datei("a/00000001.MP3"),
        std::chrono::file_clock::from_sys(std::chrono::sys_seconds{std::chrono::seconds{1772712000}}));
    const std::string datei = ordner.pfad("x.txt"), D = "Datei ausgeben|",
                      F = "Fortschritt|Liedernamen in Datei ausgeben...";
    const std::string ohne = D +
                             "Es ist kein Spaltentrennzeichen angegeben!\n\nSoll die Datei ohne dieses Zeichen erstellt "
                             "werden?|?*Ja/Nein";
    const std::string da =
        D + "Die Datei\n\n" + datei + "\n\nexistiert bereits.\n\nSoll sie überschrieben werden?|?*Ja/Nein";
    const std::string leer = "setze Datei_ausgabe.Spaltentrennzeichen \"\"";
    // The columns by their place in the offer, the separator, a hand before the button, the boxes' answers; what was asked,
    // the file.
    const std::tuple<std::string, int, std::string, Zeilen, Zeilen, std::string> fälle[] = {
        {"012666", 1, "", {}, {F}, "K\xe4the\tZug\tFreestyle\r\nOtto\t\xdc\tMetal/Punk\r\n"},
        {"061666", 3, "", {"Ja"}, {da, F}, "K\xe4the||Zug\r\nOtto||\xdc\r\n"},
        {"666666", 1, "", {"Ja"}, {da, F}, "\t\t\t\t\t\r\n\t\t\t\t\t\r\n"},
        {"666634", 2, leer, {"Ja"}, {da, F}, "    7 1234 kB\r\n    0 5 kB\r\n"},
        {"016666", 4, "", {"Ja"}, {da, F}, "K\xe4the,Zug\r\nOtto,\xdc\r\n"},
        {"666666", 1, "", {"Nein"}, {da}, "K\xe4the,Zug\r\nOtto,\xdc\r\n"},
        {"016666", 4, leer, {"Ja", "Ja"}, {ohne, da, F}, "K\xe4theZug\r\nOtto\xdc\r\n"},
        {"666666", 4, leer, {"Nein"}, {ohne}, "K\xe4theZug\r\nOtto\xdc\r\n"},
        // The second song has no date: what was written till then stays.
        {"056666", 1, "", {"Ja"}, {da, F}, "K\xe4the\t05. Mrz 2026\r\n"}};
    for (const auto& [spalten, trenner, tat, antworten, ablauf, inhalt] : fälle) {
        hände({"klick Kontextmenüs.ASCII_Datei", "klick Datei_ausgabe.Dateiname_suchen", "pfad " + datei,
               "klick Datei_ausgabe.Spaltentrenner(" + std::to_string(trenner) + ")"});
        for (std::size_t i = 0; i < spalten.size(); ++i)
            hand("setze Datei_ausgabe.Spalte(" + std::to_string(i + 1) + ") #" + spalten[i]);
        if (!tat.empty()) hand(tat);
        geschehen();
        hand("klick Datei_ausgabe.Ok");
        for (const auto& antwort : antworten) hand("antwort " + antwort);
        EXPECT_EQ(Kästen(), ablauf);
        EXPECT_EQ(ordner.inhalt("x.txt"), inhalt);
    }
    // Without a name nothing begins; what cannot be written ends without a word; without a line nothing opens.
    hände({"klick Tonkartei.ASCII_Datei", "klick Datei_ausgabe.Ok", "antwort OK", "setze Datei_ausgabe.Dateiname /fehlt/x",
           "klick Datei_ausgabe.Ok", "setze Tonkartei.Schnellsuche nichts", "klick Tonkartei.ASCII_Datei"});
    EXPECT_EQ(Kästen(), Zeilen{D + "Kein Dateiname angegeben!|i"});
    EXPECT_TRUE(b->fenster("Datei_ausgabe").is_null());
}
