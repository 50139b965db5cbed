// Nothing is lost: whichever file operation fails, or is the one before which the process dies, while a file of exchange is
// written, songs are taken over, or a collection is dissolved by moving.
#include <gtest/gtest.h>

#include <map>

#include "bediener/bediener.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

namespace fs = std::filesystem;
using Schritte = std::vector<std::string>;

std::string Info(const std::vector<std::string>& titel, int KByte) {
    std::string t = "Tonkartei\r\nV 1.02 16\r\n 2 \r\nAlle\r\nRock\r\n 0 \r\n";
    for (int s = 1; s <= 9; ++s) t += " 1 \r\nSchema\r\n 1 \r\n";
    t += " 0 \r\n " + std::to_string(titel.size()) + " \r\n";
    for (const auto& name : titel)
        t += " 0 \r\nWer\r\n " + std::to_string(KByte) + " \r\n 2 \r\n" + name + "\r\n0\r\n0\r\n0\r\n";
    return t;
}

std::string Ton(const std::string& titel) { return "Ton von " + titel + std::string(3000, '.'); }

class Verlust : public testing::Test {
protected:
    Testordner ordner;

    void Sammlung_legen(const std::string& name, const std::vector<std::string>& titel, int KByte) const {
        fs::remove_all(ordner.pfad(name));
        ordner.ordner(name);
        ordner.datei(name + "/MP3_Info.MDB", Info(titel, KByte));
        for (std::size_t i = 0; i < titel.size(); ++i)
            ordner.datei(name + "/0000000" + std::to_string(i + 1) + ".MP3", Ton(titel[i]));
    }
    void alles_legen() const {
        Sammlung_legen("a", {"eins", "zwei", "drei"}, 3);
        Sammlung_legen("b", {"eins", "neu", "fremd"}, 4);
        ordner.datei("a/MP3_Info.BKV", alt("Backup-Verzeichnis"));
        ordner.datei("a/MP3_Info.LIL", alt("Datenbank Ignorieren-Liste"));
        fs::remove_all(ordner.pfad("ziel"));
        fs::remove_all(ordner.pfad("wurzel"));
        ordner.ordner("ziel");
    }
    static std::string alt(const std::string& kennung) {
        return "Tonkartei\r\nV 1.02 16\r\n" + kennung + "\r\n 1 \r\nAlter\r\nEintrag\r\n";
    }
    // Path, bytes and time of every file below a folder.
    std::map<std::string, std::pair<std::string, fs::file_time_type>> Stand(const std::string& name) const {
        std::map<std::string, std::pair<std::string, fs::file_time_type>> stand;
        for (const auto& e : fs::recursive_directory_iterator(ordner.pfad(name)))
            if (const std::string pfad = Testordner::Text_von(e.path()); e.is_regular_file())
                stand[pfad] = {Testordner::inhalt_von(pfad), fs::last_write_time(e.path())};
        return stand;
    }
    bool vorhanden(const std::string& titel) const {
        for (const char* wo : {"a", "ziel"})
            for (const auto& [pfad, datei] : Stand(wo))
                if (datei.first == Ton(titel)) return true;
        return false;
    }
    // The previous file is there under one of its two names, or the new one is whole.
    bool unversehrt(const std::string& endung, const std::string& kennung, const std::string& neuer) const {
        const std::string jetzt = ordner.inhalt("a/MP3_Info." + endung), kopie = ordner.inhalt("a/MP3_Bak." + endung);
        return jetzt == alt(kennung) || kopie == alt(kennung) || jetzt.ends_with("\r\n" + neuer + "\r\n");
    }
    // Works through the steps as far as the program still takes them, every other box by its default.
    void arbeiten(const Schritte& schritte) const {
        Bediener b({.wurzel = ordner.ordner("wurzel"),
                    .setze = {"geöffnete Datenbanken\\Anzahl=1", "geöffnete Datenbanken\\Nr. 1=" + ordner.pfad("a/")},
                    .ordner = ordner.pfad(),
                    .Frist = 20});
        const auto Boxen = [&] {
            for (int i = 0; i < 30 && b.bereit() == "meldung"; ++i) {
                const auto box = b.ereignis("meldung");
                b("antwort " + (!box.is_null() ? box["vorgabe"].get<std::string>() : i % 2 == 0 ? "Ja" : "OK"));
            }
        };
        for (const std::string& schritt : schritte) {
            if (b.bereit().empty() || b.bereit() == "ende") return;
            if (!schritt.starts_with("antwort ") && !schritt.starts_with("pfad ")) Boxen();
            b(schritt);
        }
        Boxen();
    }
};

TEST_F(Verlust, keiner_bei_keinem_Fehler_und_keinem_Absturz) {
    struct Fall {
        Schritte schritte;
        std::vector<std::pair<std::string, int>> vorgänge;  // each up to the how-manieth
        std::string Datei, darin;                           // what comes of it undisturbed
    };
    const std::string b = ordner.pfad("b"), ziel = ordner.pfad("ziel");
    const Fall fälle[] = {
        {{"klick Tonkartei.Backup_Verzeichnis_erweitern", "antwort OK", "pfad " + b, "klick Tonkartei.MP_Beenden"},
         {{"öffnen", 3}, {"schreiben", 1}, {"umbenennen", 1}, {"löschen", 1}},
         "a/MP3_Info.BKV",
         "fremd\r\n"},
        {{"klick Tonkartei.Menü_Live_abgleich", "antwort OK", "pfad " + b, "wähle Live_abgleich.Liste 0",
          "klick Live_abgleich.ignorieren", "klick Tonkartei.MP_Beenden"},
         {{"öffnen", 5}, {"schreiben", 2}, {"umbenennen", 2}, {"löschen", 3}},
         "a/MP3_Info.LIL",
         "nicht gefunden\r\n"},
        {{"klick Tonkartei.Menü_Live_abgleich", "antwort OK", "pfad " + b, "klick Live_abgleich.alle_hinzufügen",
          "antwort Ja", "klick Tonkartei.MP_Beenden"},
         {{"öffnen", 4}, {"schreiben", 1}, {"kopieren", 2}, {"löschen", 1}},
         "a/00000005.MP3",
         Ton("fremd")},
        {{"klick Tonkartei.Datenbank_auflösen", "antwort Ja", "klick auflösen.Aktion(2)", "antwort Ja", "klick auflösen.Ok",
          "antwort Nein", "pfad " + ziel},
         {{"umbenennen", 3}, {"anlegen", 2}},
         "ziel/Rock/Wer/drei.mp3",
         Ton("drei")},
        {{"laufwerk " + ziel, "klick Tonkartei.Datenbank_auflösen", "antwort Ja", "klick auflösen.Aktion(2)", "antwort Ja",
          "klick auflösen.Ok", "antwort Nein", "pfad " + ziel},
         {{"kopieren", 3}, {"löschen", 3}, {"umbenennen", 2}},
         "ziel/Rock/Wer/drei.mp3",
         Ton("drei")},
    };
    for (const Fall& fall : fälle) {
        const auto probieren = [&](const std::string& unglück) {
            SCOPED_TRACE(fall.Datei + " " + unglück);
            alles_legen();
            const auto fremd = Stand("b");
            Schritte schritte{unglück};
            schritte.insert(schritte.end(), fall.schritte.begin(), fall.schritte.end());
            arbeiten(schritte);
            for (const char* titel : {"eins", "zwei", "drei"}) EXPECT_TRUE(vorhanden(titel)) << titel;
            EXPECT_TRUE(unversehrt("BKV", "Backup-Verzeichnis", "fremd"));
            EXPECT_TRUE(unversehrt("LIL", "Datenbank Ignorieren-Liste", "kein Tag/Datei nicht gefunden"));
            EXPECT_EQ(Stand("b"), fremd);
        };
        probieren("fokus");
        EXPECT_NE(ordner.inhalt(fall.Datei).find(fall.darin), std::string::npos) << fall.Datei;
        for (const std::string art : {"störung ", "absturz "})
            for (const auto& [vorgang, höchstens] : fall.vorgänge)
                for (int n = 1; n <= höchstens; ++n) probieren(art + vorgang + " " + std::to_string(n));
    }
}

}  // namespace
}  // namespace tonkartei
