// What a session could not save is found again, and never stands where it does not belong.
#include "datenbank/buehne.hpp"
#include "grundlagen/waehrend.hpp"

namespace tonkartei {
namespace {

constexpr const char* Gerettet = "\r\rDer Stand der Datenbank wurde in der Datei MP3_Rettung.MDB gerettet.";
constexpr const char* Angebot = "Soll dieser Stand geladen werden?";

struct Rettung_Test : Datenbankbühne {
    void SetUp() override {
        ordner.datei("a/MP3_Info.MDB", Info_Bytes("alt"));
        ordner.datei("b/MP3_Info.MDB", Info_Bytes("b"));
    }
    // Opened, changed, and the disk refuses the next save.
    void geändert(Lauf& lauf) {
        lauf.ansicht.Antworten["bereits geöffnet"] = Antwort::Ja;
        ASSERT_TRUE(lauf.öffnen(a));
        lauf.modell.Lieder[1].Artist = "neu";
        störfall.Störungen_.Fehler_bestellen(Vorgang::öffnen, 1);
    }
};

TEST_F(Rettung_Test, jedes_Ende_durch_einen_Fehler) {
    const std::function<void()> werfen[] = {[] { throw Laufzeitfehler(Fehler_Index); }, [] { throw std::length_error("x"); },
                                            [] { throw std::bad_alloc(); }};
    const char* const texte[] = {"Index außerhalb des gültigen Bereichs", "Interner Fehler (x)", "Nicht genügend Speicher"};
    for (int i = 0; i < 3; ++i) {
        std::filesystem::remove(ordner.pfad("a/MP3_Rettung.MDB"));
        Lauf lauf(ordner, störfall);
        // Nothing is open yet.
        EXPECT_EQ(lauf.Laufzeitfehler_bei(werfen[i]), texte[i]);
        Lauf zweiter(ordner, störfall);
        geändert(zweiter);
        störfall.Störungen_.Fehler_bestellen(Vorgang::öffnen, 0);
        EXPECT_EQ(zweiter.Laufzeitfehler_bei(werfen[i]), Text(texte[i]) + Gerettet);
        störfall.Dateien.Strom_weg();
        EXPECT_EQ(ordner.inhalt("a/MP3_Rettung.MDB"), Info_Bytes("neu"));
        EXPECT_EQ(ordner.inhalt("a/MP3_Info.MDB"), Info_Bytes("alt"));
        EXPECT_TRUE(ordner.da("a/MP3_Info.DBG"));
    }
}

// The copy of a save that was cut off stands in the way of every later one: what a session begun with the rescued file has
// changed since must not be lost for it.
TEST_F(Rettung_Test, auch_nach_einer_gelesenen) {
    ordner.datei("a/MP3_Rettung.MDB", Info_Bytes("gerettet"));
    Lauf lauf(ordner, störfall);
    lauf.ansicht.Antworten[Angebot] = Antwort::Ja;
    geändert(lauf);
    störfall.Störungen_.Fehler_bestellen(Vorgang::öffnen, 0);
    EXPECT_EQ(lauf.Laufzeitfehler_bei([] { throw Laufzeitfehler(Fehler_Index); }),
              "Index außerhalb des gültigen Bereichs" + Text(Gerettet));
    EXPECT_EQ(ordner.inhalt("a/MP3_Rettung.MDB"), Info_Bytes("neu"));
    EXPECT_EQ(ordner.inhalt("a/MP3_Rettung.Bak"), Info_Bytes("gerettet"));
}

TEST_F(Rettung_Test, keine_wo_nichts_zu_retten_ist) {
    const auto wirft = [] { throw Laufzeitfehler(Fehler_Index); };
    const struct {
        const char* was;
        std::function<void(Lauf&)> dann;
    } fälle[] = {
        {"closed", [](Lauf& l) { l.modell.Datenbank_offen = false; }},
        {"songs on the move",
         [&](Lauf& l) {
             const Halb_getan umbau(l.modell.im_Umbau);
             wirft();
         }},
        {"only in the temporary folder", [](Lauf& l) { l.modell.konvertiert_in_Temp = true; }},
        {"more songs than fit, while another collection is opened",
         [&](Lauf& l) {
             std::string viele = Info_Bytes("b");
             viele.replace(viele.find(" 650 \r\n 2 "), 10, " 650 \r\n 5001 ");
             for (int n = 0; n < 5000; ++n) viele += " 1 \r\nA\r\n 1 \r\n 1 \r\nT\r\n0\r\n0\r\n1\r\n";
             ordner.datei("b/MP3_Info.MDB", viele);
             l.raum.sitzung.öffne_Datenbank_Verzeichnis(b);
         }},
        {"the disk is full", [&](Lauf&) { störfall.Störungen_.Fehler_bestellen(Vorgang::schreiben, 1); }},
        {"one is there", [&](Lauf&) { ordner.datei("a/MP3_Rettung.MDB", "von früher"); }},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.was);
        Lauf lauf(ordner, störfall);
        geändert(lauf);
        störfall.Störungen_.Fehler_bestellen(Vorgang::öffnen, 0);
        const Text box = lauf.Laufzeitfehler_bei([&] {
            fall.dann(lauf);
            wirft();
        });
        EXPECT_EQ(box, "Index außerhalb des gültigen Bereichs");
        EXPECT_EQ(ordner.inhalt("a/MP3_Rettung.MDB"), fall.was == Text("one is there") ? "von früher" : "(fehlt)");
        EXPECT_FALSE(ordner.da("b/MP3_Rettung.MDB"));
        störfall.Störungen_.Fehler_bestellen(Vorgang::schreiben, 0);
    }
}

TEST_F(Rettung_Test, die_Sammlung_wird_ungespeichert_verlassen) {
    ordner.ordner("c");
    const struct {
        const char* was;
        std::function<void(Lauf&)> dann;
        bool gerettet;
    } fälle[] = {
        {"for another one", [&](Lauf& l) { l.raum.sitzung.öffne_Datenbank_Verzeichnis(b); }, true},
        {"for none", [&](Lauf& l) { l.raum.sitzung.öffne_Datenbank_Verzeichnis(""); }, false},
        {"not, when asked",
         [&](Lauf& l) {
             l.ansicht.Antworten["ohne das die alten"] = Antwort::Nein;
             l.raum.sitzung.öffne_Datenbank_Verzeichnis(b);
         },
         false},
        {"for one that somebody else has open",
         [&](Lauf& l) {
             l.ansicht.Antworten["bereits geöffnet"] = Antwort::Nein;
             ordner.datei("b/MP3_Info.DBG", ordner.inhalt("a/MP3_Info.DBG"));
             l.raum.sitzung.öffne_Datenbank_Verzeichnis(b);
             EXPECT_TRUE(l.modell.Datenbank_offen);
         },
         false},
        {"for one that cannot be read",
         [&](Lauf& l) {
             ordner.datei("c/MP3_Info.MDB", "x");
             l.raum.sitzung.öffne_Datenbank_Verzeichnis(ordner.pfad("c"));
             EXPECT_FALSE(l.modell.Datenbank_offen);
         },
         true},
        {"for a new one",
         [&](Lauf& l) {
             l.ansicht.Ordner = ordner.pfad();
             l.ansicht.Name = "neue";
             EXPECT_TRUE(l.raum.sitzung.Datenbank_erstellen(false, false));
         },
         true},
        {"for a new one that is not made", [](Lauf& l) { l.raum.sitzung.Datenbank_erstellen(false, false); }, false},
        {"the end of the program",
         [](Lauf& l) { EXPECT_TRUE(!l.raum.sitzung.schreibe_Datenbank(true) && l.raum.sitzung.ungespeichert_verlassen()); },
         true},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.was);
        for (const char* name : {"a/MP3_Rettung.MDB", "a/MP3_Bak.MDB", "b/MP3_Info.DBG"})
            std::filesystem::remove(ordner.pfad(name));
        ordner.datei("a/MP3_Info.MDB", Info_Bytes("alt"));
        Lauf lauf(ordner, störfall);
        geändert(lauf);
        fall.dann(lauf);
        EXPECT_EQ(ordner.inhalt("a/MP3_Rettung.MDB"), fall.gerettet ? Info_Bytes("neu") : "(fehlt)");
        EXPECT_EQ(ordner.inhalt("a/MP3_Bak.MDB"), Info_Bytes("alt")) << "the safety copy stays as told";
        EXPECT_FALSE(ordner.da("b/MP3_Rettung.MDB"));
    }
}

TEST_F(Rettung_Test, die_nächste_Öffnung_bietet_sie_an) {
    const struct {
        const char* was;
        std::string info, rettung;
        Antwort antwort;
        const char* gelesen;  // null: nothing is open
        std::string danach, beiseite;
    } fälle[] = {
        {"yes", Info_Bytes("alt"), Info_Bytes("neu"), Antwort::Ja, "neu", "(fehlt)", "(fehlt)"},
        {"yes, the only one", "", Info_Bytes("neu"), Antwort::Ja, "neu", "(fehlt)", "(fehlt)"},
        {"no", Info_Bytes("alt"), Info_Bytes("neu"), Antwort::Nein, "alt", "(fehlt)", Info_Bytes("neu")},
        {"damaged", Info_Bytes("alt"), Info_Bytes("neu").substr(0, 99), Antwort::Ja, nullptr,
         Info_Bytes("neu").substr(0, 99), "(fehlt)"},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.was);
        for (const char* name : {"a/MP3_Info.MDB", "a/MP3_Info.DBG", "a/MP3_Rettung.Bak"})
            std::filesystem::remove(ordner.pfad(name));
        if (!fall.info.empty()) ordner.datei("a/MP3_Info.MDB", fall.info);
        ordner.datei("a/MP3_Rettung.MDB", fall.rettung);
        if (fall.antwort == Antwort::Nein) ordner.datei("a/MP3_Rettung.Bak", "noch früher");
        Lauf lauf(ordner, störfall);
        lauf.ansicht.Antworten[Angebot] = fall.antwort;
        EXPECT_EQ(lauf.öffnen(a), fall.gelesen != nullptr);
        if (fall.gelesen == nullptr) {
            // A new collection elsewhere must not take it along.
            lauf.ansicht.Ordner = ordner.pfad();
            lauf.ansicht.Name = "andere";
            ASSERT_TRUE(lauf.raum.sitzung.Datenbank_erstellen(false, false));
        } else {
            EXPECT_EQ(lauf.modell.Lieder[1].Artist, fall.gelesen);
            EXPECT_EQ(lauf.ansicht.Meldungen.size(), 1U);
            // Until saved.
            EXPECT_EQ(ordner.inhalt("a/MP3_Rettung.MDB"), fall.antwort == Antwort::Ja ? fall.rettung : "(fehlt)");
        }
        ASSERT_TRUE(lauf.raum.sitzung.schreibe_Datenbank(false));
        EXPECT_EQ(ordner.inhalt("a/MP3_Info.MDB"), Info_Bytes(fall.gelesen ? fall.gelesen : "alt"));
        EXPECT_EQ(ordner.inhalt("a/MP3_Rettung.MDB"), fall.danach);
        EXPECT_EQ(ordner.inhalt("a/MP3_Rettung.Bak"), fall.beiseite);
    }
}

// A copy beside no info file is what an earlier save had come to.
TEST_F(Rettung_Test, fremde_Sicherheitskopie) {
    for (const bool gelesen : {false, true}) {
        std::filesystem::remove(ordner.pfad("a/MP3_Info.MDB"));
        ordner.datei("a/MP3_Bak.MDB", Info_Bytes("Kopie"));
        if (gelesen) ordner.datei("a/MP3_Rettung.MDB", Info_Bytes("neu"));
        Lauf lauf(ordner, störfall);
        ASSERT_TRUE(lauf.öffnen(a));
        ASSERT_TRUE(lauf.raum.sitzung.schreibe_Datenbank(false));
        EXPECT_EQ(ordner.inhalt("a/MP3_Rettung.MDB"), Info_Bytes("Kopie"));
        EXPECT_FALSE(ordner.da("a/MP3_Bak.MDB"));
        EXPECT_TRUE(lauf.raum.sitzung.schreibe_Datenbank(false)) << "and blocks no save";
    }
}

}  // namespace
}  // namespace tonkartei
