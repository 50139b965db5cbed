// Nothing is ever lost: whatever fails and whenever the process dies, a whole copy of the collection is on the disk.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

constexpr int Lieder = 700;  // several buffers of the file channel

class Sichern : public Bühne {
protected:
    static Sammlung vor(int schemas = 0) {
        Sammlung s{.Lieder = {}, .Schemas = schemas};
        for (int n = 1; n <= Lieder; ++n)
            s.Lieder.push_back({"Artist " + std::to_string(n), std::string(150, 'x') + std::to_string(n), n % 7});
        return s;
    }
    std::string a = sammlung("a", vor());
    const std::string alt = vor().bytes(), neu = vor(3).bytes();

    void ändern() {
        öffnen(a);
        hand("klick Tonkartei.Anz_Kat_Schemas(3)");
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

const std::string Schritte[] = {"öffnen", "schreiben", "umbenennen", "löschen"};

TEST_F(Sichern, Absturz_vor_jedem_Schritt) {
    for (const Zeilen& weg : {Zeilen{"schließe Tonkartei"}, Zeilen{"klick Tonkartei.Menü_schreibe_Datenbank", "antwort OK"}})
        for (const auto& vorgang : Schritte) {
            bool durch = false;
            int n = 0;
            while (!durch && n < 50) {
                SCOPED_TRACE(weg[0] + ", " + vorgang + " " + std::to_string(++n));
                zurückstellen();
                ändern();
                (*b)("absturz " + vorgang + " " + std::to_string(n));
                for (const auto& zeile : weg) (*b)(zeile);
                durch = b->bereit() == "ende" || b->bereit() == "schleife";
                // What counts at the next start is whole, or the copy beside it is.
                EXPECT_NE(ganze_Stücke(), "");
            }
            EXPECT_EQ(ganze_Stücke(), "MDB neu");
            EXPECT_GT(n, 1) << "nothing was struck: " << vorgang;
        }
}

TEST_F(Sichern, Fehler_bei_jedem_Schritt) {
    const std::string meldung =
        "Tonkartei | Es ist ein Fehler beim Schreiben der Datenbank-Informations-Datei aufgetreten!\n\nEventuell ist der "
        "Datenträger schreibgeschützt? | i";
    for (const auto& vorgang : Schritte) {
        bool durch = false;
        int n = 0;
        while (!durch && n < 50) {
            SCOPED_TRACE(vorgang + " " + std::to_string(++n));
            zurückstellen();
            ändern();
            hände({"störung " + vorgang + " " + std::to_string(n), "schließe Tonkartei"});
            durch = b->bereit() == "ende";
            EXPECT_NE(ganze_Stücke(), "");
            if (durch) break;
            EXPECT_EQ(geschehen().back(), meldung);
            // Stay and try again: that must not make it worse.
            hände({"antwort OK", "antwort Nein", "schließe Tonkartei"});
            EXPECT_NE(ganze_Stücke(), "");
            if (b->bereit() != "ende") hände({"antwort OK", "antwort Ja"});
            EXPECT_EQ(b->Ende_abwarten(), 0);
            EXPECT_NE(ganze_Stücke(), "");
        }
        EXPECT_EQ(ganze_Stücke(), "MDB neu");
        EXPECT_FALSE(ordner.da("a/MP3_Bak.MDB"));
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
