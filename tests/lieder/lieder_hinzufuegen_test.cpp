// The commands and windows, worked by hand.
#include "buehne.hpp"

namespace tonkartei {
namespace {

// Chooses the folder `pfad`, then works the window of new songs.
void hinzufügen(Bühne& b, const Text& pfad, const std::function<void()>& im_Fenster = {}) {
    b.ansicht.Handgriffe = [&b, pfad, im_Fenster] {
        EXPECT_TRUE(b.Haupt_gesperrt);
        if (b.verzeichnis.sichtbar()) {
            Hand::schreiben(b.verzeichnis.Pfad, pfad);
            Hand::klicken(b.verzeichnis.Ok);
            return;
        }
        if (im_Fenster) im_Fenster();
        if (b.fenster.sichtbar()) Hand::klicken(b.fenster.Abbruch);
    };
    b.befehle.Lieder_hinzufügen_Verzeichnis();
    EXPECT_FALSE(b.fenster.geladen());
    EXPECT_FALSE(b.verzeichnis.geladen());
    EXPECT_FALSE(b.Haupt_gesperrt);
}

using Zeilen = std::vector<Text>;

TEST(Lieder_hinzufügen, ohne_Datenbank_geschieht_nichts) {
    Bühne b;
    b.modell.Datenbank_offen = false;
    b.befehle.Lieder_hinzufügen_Verzeichnis();
    EXPECT_FALSE(b.fenster.geladen());
    EXPECT_FALSE(b.Haupt_gesperrt);
}

TEST(Lieder_hinzufügen, letzte_Verzeichnisse_tauschen_den_Platz) {
    Bühne b;
    Zeilen erwartet;
    for (int i = 1; i <= 11; ++i) {
        erwartet.insert(erwartet.begin(), b.ordner.ordner("o" + Zahltext(i)));
        hinzufügen(b, erwartet.front());
    }
    erwartet.pop_back();
    hinzufügen(b, b.ordner.pfad("o8"));
    std::swap(erwartet[3], erwartet[0]);
    Zeilen gemerkt;
    for (int i = 1; i <= b.einstellungen.Verzeichnis_Anzahl; ++i)
        gemerkt.push_back(b.einstellungen.Zuletzt_hinzugefügte_Verzeichnisse[i]);
    EXPECT_EQ(gemerkt, erwartet);
}

TEST(Verzeichnis_add, Wege_zum_Ergebnis) {
    Bühne b;
    const Text roh = b.ordner.ordner(Testordner::krummer_Name);
    b.einstellungen.Verzeichnis_Anzahl = 1;
    b.einstellungen.Zuletzt_hinzugefügte_Verzeichnisse[1] = roh;
    Verzeichnis_add& v = b.verzeichnis;
    const auto frage = [&](std::function<void()> hand) {
        b.ansicht.Handgriffe = std::move(hand);
        return v.Dialog();
    };
    EXPECT_EQ(frage([&] {
                  EXPECT_EQ(v.Liste.zeilen(), Zeilen{anzeigbar(roh)});
                  Hand::wählen(v.Liste, 0);
                  EXPECT_EQ(v.Pfad.text(), roh);
                  Hand::doppelklicken(v.Liste);
              }),
              roh);
    EXPECT_EQ(frage([&] {
                  EXPECT_EQ(v.Pfad.text(), "");
                  Hand::doppelklicken(v.Liste);  // no line chosen
                  EXPECT_TRUE(v.sichtbar());
                  Hand::klicken(v.Pfad_wählen);  // cancelled
                  EXPECT_TRUE(v.sichtbar());
                  b.ansicht.Verzeichnis = b.ordner.pfad("quelle");
                  Hand::klicken(v.Pfad_wählen);
              }),
              b.quelle);
    EXPECT_EQ(b.ansicht.Ablauf.back(), "Verzeichnis hinzufügen:");
    const std::function<void()> ohne[] = {[&] { Hand::klicken(v.Abbruch); }, [&] { v.schließen(Schließgrund::Hand); },
                                          [&] {
                                              Hand::Taste_drücken(v.Pfad, {Taste::Art::Escape, {}});
                                          }};
    for (const auto& weg : ohne)
        EXPECT_EQ(frage([&] {
                      Hand::schreiben(v.Pfad, b.quelle);
                      weg();
                  }),
                  "");
}

TEST(neue_Lieder_Liste, Auswahl) {
    Bühne b;
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) b.lege(name, name);
    auto& f = b.fenster;
    hinzufügen(b, b.quelle, [&] {
        const auto steht = [&](const Zeilen& nummern, int gewählt) {
            EXPECT_EQ(f.Nr_Liste.zeilen(), nummern);
            Zeilen namen;
            for (const Text& nr : nummern) namen.push_back(Text(1, static_cast<char>('`' + std::stoi(nr))) + ".mp3");
            EXPECT_EQ(f.Lieder_hinzufügen.zeilen(), namen);
            EXPECT_EQ(f.Lieder_hinzufügen.gewählt(), gewählt);
            EXPECT_EQ(f.Liste_Anzahl_2.beschriftung(), Zahltext(static_cast<long long>(nummern.size())));
        };
        steht({"1", "2", "3"}, -1);
        Hand::klicken(f.del_dieses);
        steht({"1", "2", "3"}, -1);
        Hand::wählen(f.Lieder_hinzufügen, 1);
        Hand::klicken(f.del_dieses);
        steht({"1", "3"}, 1);
        Hand::klicken(f.del_dieses);
        steht({"1"}, 0);
        Hand::klicken(f.add_dieses);
        steht({"1"}, 0);
        Hand::wählen(f.gefundene_Lieder, 2);
        Hand::klicken(f.add_dieses);
        Hand::klicken(f.abspielen_1);
        Hand::wählen(f.gefundene_Lieder, 0);
        EXPECT_TRUE(b.ansicht.Ablauf.empty());
        Hand::klicken(f.add_dieses);
        steht({"1", "3"}, 0);
        EXPECT_EQ(b.ansicht.Ablauf, Zeilen{"Lied hinzufügen: Dieses Lied wird schon hinzugefügt!"});
        Hand::wählen(f.Lieder_hinzufügen, 1);
        Hand::klicken(f.abspielen_2);
        Hand::klicken(f.del_alle);
        steht({}, -1);
        Hand::klicken(f.abspielen_2);
        Hand::klicken(f.del_dieses);
        Hand::klicken(f.add_alle);
        steht({"1", "2", "3"}, -1);
    });
    ASSERT_EQ(b.shell.gestartet.size(), 2U);
    for (const Text& befehl : b.shell.gestartet) EXPECT_TRUE(befehl.ends_with(" \"" + b.quelle + "c.mp3\"")) << befehl;
    EXPECT_EQ(b.modell.Anzahl_Lieder, 0);
    EXPECT_FALSE(b.ordner.da("db/00000001.MP3"));
}

TEST(neue_Lieder_Liste, Tags_und_Größen) {
    Bühne b;
    b.lege("a.mp3", std::string(2 * 1024 * 1024, 'x') + Tag_Bytes{}.Block());
    b.lege("b.mp3", "x");
    b.dateien.frei = 2 * 1024 * 1024 + 1024;
    auto& f = b.fenster;
    hinzufügen(b, b.quelle, [&] {
        Hand::wählen(f.Lieder_hinzufügen, 0);
        Hand::klicken(f.del_dieses);
        EXPECT_EQ(f.Liste_Größe_2.farbe(), f.Liste_Größe_1.farbe());
        Hand::klicken(f.MP3_Tags_lesen);
        EXPECT_EQ(f.MP3_DGröße.zeilen(), (Zeilen{"2048.125", "0.0009765625"}));
        EXPECT_EQ(f.gefundene_Lieder.zeilen(), (Zeilen{"Artist - Titel", "--- - kein Tag/Datei nicht gefunden"}));
        EXPECT_EQ(f.Lieder_hinzufügen.zeilen(), Zeilen{"--- - kein Tag/Datei nicht gefunden"});
        EXPECT_EQ(f.Lieder_hinzufügen.gewählt(), 0);
        EXPECT_EQ(f.Liste_Größe_1.beschriftung(), "2");
        EXPECT_EQ(f.Liste_Größe_2.beschriftung(), "---");
        Hand::klicken(f.add_alle);
        EXPECT_EQ(f.Liste_Größe_2.farbe(), f.Liste_Größe_1.farbe());
        b.dateien.frei = 2 * 1024 * 1024 + 1023;
        Hand::klicken(f.add_alle);
        EXPECT_EQ(f.Liste_Größe_2.farbe(), Farbe_Rot);
        b.ansicht.Antworten = {Antwort::Nein};  // not enough room: ends the commit and the window
        Hand::klicken(f.Ok);
    });
    EXPECT_EQ(b.ansicht.Fortschritte, Zeilen{"MP3-Tag's lesen..."});
    EXPECT_EQ(b.modell.Anzahl_Lieder, 0);
}

}  // namespace
}  // namespace tonkartei
