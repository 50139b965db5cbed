// The table of titles under its scroll bar, the scan against its plain form, and times as a hand types them.
#include <gtest/gtest.h>

#include "albenverwaltung/album_abgleich.hpp"
#include "albenverwaltung/titeltabelle.hpp"
#include "datenbank/modell.hpp"
#include "oberflaeche/fenster.hpp"
#include "probe/stumme_ansicht.hpp"

namespace tonkartei {
namespace {

struct Tabellenfenster : Fenster {
    explicit Tabellenfenster(Ansicht& ansicht) : Fenster(ansicht, "Tabellenfenster", "") {}
    Titeltabelle Tabelle{*this};
    // The numbers shown, "3-15" or "".
    std::string gezeigt() {
        std::string von, bis;
        for (const auto& zeile : Tabelle.Zeilen) {
            const Text nr = zeile->Lied_Nr.beschriftung();
            EXPECT_EQ(zeile->Lied_Titel.beschriftung(), nr.empty() ? "" : "T" + nr);
            if (von.empty()) von = nr;
            if (!nr.empty()) bis = nr;
        }
        return von.empty() ? "" : von + "-" + bis;
    }
};

TEST(Titeltabelle, dreizehn_Zeilen_ab_der_Stellung) {
    struct Fall {
        int Anzahl;
        std::string am_Anfang, am_Ende, nach_Löschen;
    };
    const Fall fälle[] = {{0, "", "", ""},
                          {1, "1-1", "1-1", ""},
                          {12, "1-12", "12-12", "11-11"},
                          {13, "1-13", "13-13", "12-12"},
                          {14, "1-13", "14-14", "13-13"},
                          {200, "1-13", "200-200", "199-199"}};
    Stumme_Ansicht ansicht;
    Tabellenfenster f(ansicht);
    f.laden();
    for (const Fall& fall : fälle) {
        SCOPED_TRACE(fall.Anzahl);
        Album album;
        for (int t = 1; t <= fall.Anzahl; ++t) album.Lieder[t].Titel = "T" + std::to_string(t);
        album.Titel_Anzahl = static_cast<Byte>(fall.Anzahl);
        f.Tabelle.zeigen(nullptr);
        f.Tabelle.zeigen(&album);
        if (fall.Anzahl > 0) f.Tabelle.Titel_wählen(1);
        EXPECT_EQ(f.gezeigt(), fall.am_Anfang);
        f.Tabelle.Titel_wählen(fall.Anzahl);
        EXPECT_EQ(f.gezeigt(), fall.am_Ende);
        EXPECT_EQ(f.Tabelle.Titel_Nr(), fall.Anzahl);
        if (fall.Anzahl == 0) continue;
        --album.Titel_Anzahl;
        f.Tabelle.zeigen(&album);
        EXPECT_EQ(f.gezeigt(), fall.nach_Löschen);
        EXPECT_EQ(f.Tabelle.Titel_Nr(), fall.Anzahl - 1);
    }
}

TEST(Titel_verknüpfen, findet_was_die_doppelte_Schleife_findet) {
    Bestand bestand;
    const auto name = [](int n) { return std::string(1, static_cast<char>("aAb"[n % 3])); };
    for (int n = 1; n <= 40; ++n) {
        bestand.Lieder[n].Artist = name(n * 7 / 3);
        bestand.Lieder[n].Titel = name(n * n / 5) + (n > 20 ? "x" : "");
    }
    const auto füllen = [&](Album& album, int anzahl) {
        album.Titel_Anzahl = static_cast<Byte>(anzahl);
        for (int t = 1; t <= 30; ++t)
            album.Lieder[t] = {name(t), name(t / 3) + (t % 2 ? "x" : t % 5 ? "" : "y"), 0, t % 4 == 0, t};
    };
    for (bestand.Anzahl_Lieder = 0; bestand.Anzahl_Lieder <= 40; bestand.Anzahl_Lieder += 8)
        for (const int anzahl : {0, 1, 10, 30}) {
            Album soll, ist;
            füllen(soll, anzahl);
            füllen(ist, anzahl);
            Long gefunden = 0;
            for (int t = 1; t <= soll.Titel_Anzahl; ++t)
                for (Long i = 1; i <= bestand.Anzahl_Lieder; ++i)
                    if (bestand.Lieder[i].Titel == soll.Lieder[t].Titel &&
                        bestand.Lieder[i].Artist == soll.Lieder[t].Artist) {
                        soll.Lieder[t].in_Datenbank = true;
                        soll.Lieder[t].Lied_Nr = i;
                        ++gefunden;
                    }
            int schritte = 0;
            EXPECT_EQ(Titel_verknüpfen(ist, bestand, [&](int t) { EXPECT_EQ(t, ++schritte); }), gefunden);
            EXPECT_EQ(schritte, anzahl);
            for (int t = 1; t <= 30; ++t) {
                EXPECT_EQ(ist.Lieder[t].Lied_Nr, soll.Lieder[t].Lied_Nr) << t;
                EXPECT_EQ(ist.Lieder[t].in_Datenbank, soll.Lieder[t].in_Datenbank) << t;
            }
        }
}

TEST(Zeit_aus_Eingabe, Minuten_und_Sekunden) {
    const std::pair<const char*, const char*> fälle[] = {
        {"3", "03:00"},     {"3:75", "04:15"},   {"75:00", "00:00"}, {"x", "00:00"},
        {"", "00:00"},      {":", "00:00"},      {":59", "00:59"},   {"59:59", "59:59"},
        {"59:60", "00:00"}, {"60:61", "00:01"},  {"1:2:3", "01:02"}, {" 4 : 5 ", "04:05"},
        {"-3:10", "00:10"}, {"0:3600", "00:00"}, {"0:-5", "00:00"},  {"99999999999999999999", "00:00"},
        {"3:5x", "03:05"}};
    for (const auto& [eingabe, zeit] : fälle) EXPECT_EQ(Minuten_Sekunden(Zeit_aus_Eingabe(eingabe)), zeit) << eingabe;
}

}  // namespace
}  // namespace tonkartei
