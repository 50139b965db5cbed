#include "buehne.hpp"

namespace tonkartei {
namespace {

Übernahme_Auftrag auftrag(std::vector<Text> pfade) {
    Übernahme_Auftrag a;
    for (Text& pfad : pfade) a.Lieder.push_back({std::move(pfad), 0});
    return a;
}

TEST(Lieder_Übernahme, gescheiterte_Analyse_lässt_die_Lieder_dahinter_leben) {
    Bühne b;
    b.modell.Lieder[2] = {9, "alt", 9, 9, "alt", 0.5};  // what an earlier song left behind
    auto a = auftrag({b.lege("a.mp3", "a"), b.lege("b.mp3", Xing_Lied_Bytes(44100, 1, 0xFFFB9064, 0) + Tag_Bytes{}.Block()),
                      b.lege("c.mp3", "c")});
    a.Playlist_erstellen = true;
    b.ansicht.Antworten = {Antwort::Ja};
    b.ansicht.Kategorien = {3};
    b.ansicht.Datei = b.ordner.pfad("neu.m3u");
    EXPECT_TRUE(b.übernahme.ausführen(a));
    EXPECT_EQ(b.ansicht.Ablauf.at(3), "Playlist erstellen: Es ist ein Fehler beim erstellen der Playlist aufgetreten!");
    EXPECT_EQ(b.ansicht.Ablauf.size(), 5U);
    EXPECT_EQ(b.modell.Anzahl_Lieder, 3);
    EXPECT_EQ(b.ordner.inhalt("neu.m3u"), b.modell.Lied_Pfad(1) + "\r\n");
    const Lied& lied = b.modell.Lieder[2];
    EXPECT_EQ(lied.Titel, "Titel");
    EXPECT_EQ(lied.Größe, 43);
    EXPECT_EQ(lied.Anzahl, 0);
    EXPECT_EQ(lied.Kategorie, 3);
    EXPECT_EQ(lied.Zeit, 0);
}

TEST(Lieder_Übernahme, Platz_auf_dem_Laufwerk) {
    const struct {
        double KByte;
        std::optional<std::uint64_t> frei;
        Text mengen;  // empty: no question
    } fälle[] = {
        {2047.9, 2048 * 1024 + 1023, ""},
        {2048, 2048 * 1024 + 1023, "1: 2, 2: 2"},
        {5119.5, 1024 * 1024 - 1, "1: 4, 2: 0"},
        {0, std::nullopt, "1: 0, 2: 0"},
    };
    for (const auto& fall : fälle) {
        Bühne b;
        b.dateien.frei = fall.frei;
        auto a = auftrag({b.lege("a.mp3", "a")});
        a.KByte = fall.KByte;
        if (fall.mengen.empty()) {
            b.ansicht.Kategorien = {1};
            EXPECT_TRUE(b.übernahme.ausführen(a));
            continue;
        }
        b.ansicht.Antworten = {Antwort::Nein};
        EXPECT_FALSE(b.übernahme.ausführen(a));
        EXPECT_EQ(b.ansicht.Ablauf,
                  std::vector<Text>{"Lieder hinzufügen: Die Größe der Lieder (" + fall.mengen.substr(3, 1) +
                                    " MB), die sie hinzufügen möchten, ist größer als der freie Speicherplatz auf dem "
                                    "Ziel-Laufwerk (" +
                                    fall.mengen.substr(9, 1) + " MB).\r\rWollen sie wirklich fortfahren?"});
        EXPECT_EQ(b.modell.Anzahl_Lieder, 0);
    }
}

TEST(Lieder_Übernahme, Bewegen_aus_einer_Datenbank_fragt_zuerst) {
    Bühne b;
    auto a = auftrag({b.lege("a.mp3", "a")});
    a.Quelle = Quelle_Datenbank;
    a.Modus = Übernahmeart::bewegen;
    b.ansicht.Antworten = {Antwort::Nein};
    EXPECT_FALSE(b.übernahme.ausführen(a));
    EXPECT_EQ(b.ansicht.Ablauf,
              std::vector<Text>{"Lieder bewegen: Wollen sie die Lieder wirklich aus der anderen Datenbank bewegen?\r\r"
                                "Sie stehen in der anderen Datenbank dann nicht mehr zur verfügung!"});
    EXPECT_TRUE(b.ordner.da("quelle/a.mp3"));
}

TEST(Lieder_Übernahme, Backup_Warnung_genau_ab_der_Grenze) {
    const struct {
        Long KByte, grenze;
        bool warnt;
    } fälle[] = {
        {2 * 1024, 2, true}, {2 * 1024 - 513, 2, false}, {2 * 1024 - 511, 2, true},
        {5000, 0, false},    {1024, 2, false},           {2 * 1024 + 512, 3, false},  // 2.5 rounds to the even 2
    };
    for (const auto& fall : fälle) {
        Bühne b;
        b.modell.Anzahl_Lieder = 2;
        b.modell.Lieder[1].Größe = fall.KByte - 3;
        b.modell.Lieder[2].Größe = 3;
        b.modell.Backup_Warnungs_Grenze = fall.grenze;
        EXPECT_TRUE(b.übernahme.ausführen(auftrag({})));
        EXPECT_EQ(b.ansicht.Ablauf.size(), fall.warnt ? 1U : 0U) << fall.KByte;
        if (fall.warnt) {
            EXPECT_EQ(b.ansicht.Ablauf.back(),
                      "Backup-Warnung: Achtung!\r\rDie Größe der Datenbank hat die Backup-Warnungs-Grenze überschritten!\r\r"
                      "aktuelle Größe der Datenbank: 2 MB\rBackup-Warnungs-Grenze: 2 MB");
        }
    }
}

}  // namespace
}  // namespace tonkartei
