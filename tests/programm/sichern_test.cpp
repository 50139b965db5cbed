// Nothing is ever lost: whatever fails and whenever the process dies, a whole copy of the collection is on the disk.
#include <functional>

#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

constexpr int Lieder = 700;  // several buffers of the file channel

class Sichern : public Bühne {
protected:
    static Sammlung vor() {
        Sammlung s;
        s.Lieder.clear();
        for (int n = 1; n <= Lieder; ++n)
            s.Lieder.push_back({"Artist " + std::to_string(n), std::string(150, 'x') + std::to_string(n), n % 7});
        return s;
    }
    // The same after a start of song 1 has been counted and a scheme added.
    static Sammlung nach() {
        Sammlung s = vor();
        s.Schemas = 3;
        return s;
    }
    std::string a = sammlung("a", vor());
    const std::string alt = vor().bytes(), neu = nach().bytes();

    void ändern() {
        öffnen(a);
        hand("klick Tonkartei.Anz_Kat_Schemas(3)");
        ASSERT_EQ(b->bereit(), "schleife");
    }
    // The disk as it was before.
    void zurückstellen() {
        b.reset();
        std::filesystem::remove_all(ordner.pfad("a"));
        std::filesystem::create_directory(ordner.pfad("a"));
        ordner.datei("a/MP3_Info.MDB", alt);
    }
    // Which whole copies are there: "MDB alt", "MDB neu", "BAK alt" ...
    std::string ganze_Stücke() const {
        std::string ergebnis;
        for (const char* name : {"MDB", "BAK"}) {
            const std::string bytes = ordner.inhalt(name == std::string("MDB") ? "a/MP3_Info.MDB" : "a/MP3_Bak.MDB");
            if (bytes == alt || bytes == neu)
                ergebnis += (ergebnis.empty() ? "" : ", ") + std::string(name) + (bytes == alt ? " alt" : " neu");
        }
        return ergebnis;
    }
};

// Each way of saving, with the answers that its failure may ask for.
const std::vector<std::pair<const char*, Zeilen>> Wege{
    {"Ende", {"schließe Tonkartei"}},
    {"von Hand", {"klick Tonkartei.Menü_schreibe_Datenbank", "antwort OK"}},
};

TEST_F(Sichern, Absturz_vor_jedem_Schritt) {
    for (const auto& [name, hände_dazu] : Wege)
        for (const char* vorgang : {"öffnen", "schreiben", "umbenennen", "löschen"}) {
            int n = 1;
            for (;; ++n) {
                SCOPED_TRACE(std::string(name) + ", " + vorgang + " " + std::to_string(n));
                zurückstellen();
                ändern();
                (*b)("absturz " + std::string(vorgang) + " " + std::to_string(n));
                for (const auto& zeile : hände_dazu) (*b)(zeile);
                const bool durch = b->bereit() == "ende" || b->bereit() == "schleife";
                EXPECT_NE(ganze_Stücke(), "");
                // What counts at the next start is whole, or the copy beside it is.
                if (durch) {
                    EXPECT_EQ(ganze_Stücke(), "MDB neu");
                    break;
                }
                ASSERT_LT(n, 50);
            }
            EXPECT_GT(n, 1) << "nothing was struck: " << vorgang;
        }
}

TEST_F(Sichern, Fehler_bei_jedem_Schritt) {
    const std::string meldung =
        "Tonkartei|Es ist ein Fehler beim Schreiben der Datenbank-Informations-Datei aufgetreten!\n\nEventuell ist der "
        "Datenträger schreibgeschützt?|i";
    for (const char* vorgang : {"öffnen", "schreiben", "umbenennen", "löschen"}) {
        int n = 1;
        for (;; ++n) {
            SCOPED_TRACE(std::string(vorgang) + " " + std::to_string(n));
            zurückstellen();
            ändern();
            geschehen();
            hände({"störung " + std::string(vorgang) + " " + std::to_string(n), "schließe Tonkartei"});
            const bool durch = b->bereit() == "ende";
            EXPECT_NE(ganze_Stücke(), "");
            if (durch) {
                EXPECT_EQ(ganze_Stücke(), "MDB neu");
                EXPECT_FALSE(ordner.da("a/MP3_Bak.MDB"));
                break;
            }
            EXPECT_EQ(geschehen().back(), meldung);
            // Stay and try again: that must not make it worse.
            hände({"antwort OK", "antwort Nein", "schließe Tonkartei"});
            EXPECT_NE(ganze_Stücke(), "");
            if (b->bereit() != "ende") hände({"antwort OK", "antwort Ja"});
            EXPECT_EQ(b->Ende_abwarten(), 0);
            EXPECT_NE(ganze_Stücke(), "");
            ASSERT_LT(n, 50);
        }
        EXPECT_GT(n, 1) << "nothing was struck: " << vorgang;
    }
}

// The copy of a crash blocks the next save, so that nobody writes over the last whole copy.
TEST_F(Sichern, liegen_gebliebene_Kopie_wird_nicht_überschrieben) {
    ordner.datei("a/MP3_Bak.MDB", "der Rest von früher");
    ändern();
    hände({"schließe Tonkartei"});
    EXPECT_EQ(b->bereit(), "meldung");
    hände({"antwort OK", "antwort Ja"});
    EXPECT_EQ(b->Ende_abwarten(), 0);
    EXPECT_EQ(ordner.inhalt("a/MP3_Bak.MDB"), "der Rest von früher");
    EXPECT_EQ(mdb(), alt);
}

// A failed save leaves its file open: nothing may rename it, and the next file gets the next channel.
TEST_F(Sichern, offen_gebliebene_Datei) {
    const std::string zweite = sammlung("zweite");
    ändern();
    hände({"störung schreiben 1", "klick Tonkartei.öffne_Datenbank",
           "setze Datenbank_öffnen.Pfad " + Bediener::zitiert(zweite), "klick Datenbank_öffnen.Ok", "antwort OK",
           "antwort Ja"});
    // Times are read from channel 1, which is the forsaken one's: what comes from there is a failure.
    EXPECT_EQ(b->bereit(), "meldung");
    EXPECT_EQ(b->meldung(), "Es ist ein Fehler beim öffnen der Informationsdatei aufgetreten!");
    EXPECT_EQ(ganze_Stücke(), "BAK alt");
    EXPECT_EQ(mdb("zweite"), Sammlung{}.bytes());
    hände({"antwort OK", "schließe Tonkartei"});
    EXPECT_EQ(b->Ende_abwarten(), 0);
    EXPECT_EQ(ganze_Stücke(), "BAK alt");
}

}  // namespace
}  // namespace tonkartei
