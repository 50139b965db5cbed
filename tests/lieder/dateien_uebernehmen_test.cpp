#include "buehne.hpp"

namespace tonkartei {
namespace {

constexpr long Zeit_A = 1'700'000'000;

TEST(Dateien_übernehmen, kurze_Kopie_geht_und_die_Nummern_schließen_auf) {
    for (const Übernahmeart art : {Übernahmeart::kopieren, Übernahmeart::bewegen}) {
        Bühne b;
        const Text kurz = b.lege("b.mp3", std::string(5000, 'b'));
        const Text ganz = b.lege("c.mp3", "ccc");
        b.shell.danach = [&](const Shell_Vorgang& v, Shell_Ergebnis e) {
            // As on a full disk: the source stays, the target holds the beginning.
            if (v.von.front() == kurz) {
                b.ordner.datei("db/" + Dateiname_von(v.nach.front()), "bb");
                b.lege("b.mp3", std::string(5000, 'b'));
                e.Rückgabe = 112;
            }
            return e;
        };
        EXPECT_EQ(b.übernimm({b.lege("a.mp3", "aa"), kurz, ganz}, art), 2);
        EXPECT_EQ(b.inhalt(2), "ccc");
        EXPECT_FALSE(b.ordner.da("db/00000003.MP3"));
        EXPECT_TRUE(b.ordner.da("quelle/b.mp3"));
        const Text wort = art == Übernahmeart::kopieren ? "kopieren" : "bewegen";
        EXPECT_EQ(b.ansicht.Ablauf, (std::vector<Text>{"Lied hinzufügen: Es ist ein Fehler beim " + wort + " der Datei\r\r" +
                                                       kurz + "\r\raufgetreten!"}));
    }
}

TEST(Dateien_übernehmen, gewachsene_Datei_kehrt_zurück) {
    Bühne b;
    const Text pfad = b.lege("a.mp3", "aa");
    b.shell.danach = [&](const Shell_Vorgang& v, Shell_Ergebnis e) {
        if (v.von.front() == pfad) b.ordner.datei("db/00000001.MP3", "aaa");
        return e;
    };
    EXPECT_EQ(b.übernimm({pfad}, Übernahmeart::bewegen), 0);
    EXPECT_EQ(b.ordner.inhalt("quelle/a.mp3"), "aaa");
    EXPECT_FALSE(b.ordner.da("db/00000001.MP3"));
}

TEST(Dateien_übernehmen, Fehler_einer_Zeile_geben_die_Nummer_zurück) {
    Bühne b;
    const Text a = b.lege("a.mp3", "aa"), c = b.lege("b.mp3", "bbb");
    const Text gemeldet = "Lieder hinzufügen: Es ist ein Fehler beim hinzufügen des Liedes \"" + a + "\" aufgetreten!";
    b.dateien.unlesbare_Länge = a;
    EXPECT_EQ(b.übernimm({a, c}), 1);
    EXPECT_EQ(b.inhalt(1), "bbb");
    EXPECT_EQ(b.ansicht.Ablauf, std::vector<Text>{gemeldet});

    // Once the copying has begun, nothing of it stays.
    b.ansicht.Ablauf.clear();
    b.dateien.unlesbare_Länge = b.modell.Lied_Pfad(1);
    EXPECT_EQ(b.übernimm({a}), 0);
    EXPECT_FALSE(b.ordner.da("db/00000001.MP3"));
    EXPECT_EQ(b.ansicht.Ablauf, std::vector<Text>{gemeldet});

    // Beyond the last number every line has its message; what lies in the folder is not touched.
    b.ansicht.Ablauf.clear();
    b.dateien.unlesbare_Länge.clear();
    b.modell.Anzahl_Lieder = Lieder_maximal - 1;
    EXPECT_EQ(b.übernimm({c, a, a}), 1);
    EXPECT_EQ(b.inhalt(Lieder_maximal), "bbb");
    EXPECT_EQ(b.ansicht.Ablauf, (std::vector<Text>{gemeldet, gemeldet}));
}

// Against the plain double loop over all songs, with sizes and times that collide often.
TEST(Dateien_übernehmen, fragt_so_oft_wie_die_doppelte_Schleife) {
    Bühne b;
    unsigned zufall = 12345;
    const auto würfel = [&](unsigned n) { return (zufall = zufall * 1103515245U + 12345U) / 65536U % n; };
    struct Datei {
        std::size_t länge;
        long zeit;
    };
    const auto irgendeine = [&] { return Datei{511 + 512 * würfel(5), Zeit_A + static_cast<long>(würfel(3))}; };
    std::vector<Datei> alte, neue;
    for (int i = 0; i < 60; ++i) {
        alte.push_back(irgendeine());
        b.lege_Lied(alte.back().länge, alte.back().zeit);
    }
    std::filesystem::remove(Testordner::weg_zu(b.modell.Lied_Pfad(7)));
    std::vector<Text> pfade;
    for (int i = 0; i < 40; ++i) {
        neue.push_back(irgendeine());
        pfade.push_back(b.lege(Zahltext(100 + i) + ".mp3", std::string(neue.back().länge, 'n'), neue.back().zeit));
    }
    const auto KByte = [](const Datei& d) { return gerundet(static_cast<double>(d.länge) / 1024.0); };
    std::vector<Text> erwartet;
    Long genommen = 0;
    for (std::size_t i = 0; i < neue.size(); ++i) {
        bool nehmen = true;
        for (std::size_t n = 1; n <= alte.size() && nehmen; ++n) {
            if (n == 7 || KByte(alte[n - 1]) != KByte(neue[i]) || alte[n - 1].zeit != neue[i].zeit) continue;
            nehmen = würfel(4) != 0;
            erwartet.push_back(Dateiname_von(pfade[i]) + " wie Lied " + std::to_string(n));
            b.ansicht.Antworten.push_back(nehmen ? Antwort::Ja : Antwort::Nein);
        }
        if (nehmen) ++genommen;
    }
    EXPECT_EQ(b.übernimm(pfade), genommen);
    std::vector<Text> gefragt;
    for (const Text& box : b.ansicht.Ablauf) {
        const auto name = box.find(b.quelle) + b.quelle.size(), titel = box.rfind("Titel: ") + 7;
        gefragt.push_back(box.substr(name, 7) + " wie " + box.substr(titel, box.find('\r', titel) - titel));
    }
    EXPECT_EQ(gefragt, erwartet);
    EXPECT_GT(gefragt.size(), 40U);
    EXPECT_TRUE(b.ansicht.Antworten.empty());
    EXPECT_TRUE(b.ordner.da("db/" + Lied_Dateiname(60 + genommen)));
    EXPECT_FALSE(b.ordner.da("db/" + Lied_Dateiname(61 + genommen)));
    EXPECT_EQ(b.ansicht.Fortschritte, (std::vector<Text>{"Sammle Informationen...", "Lieder hinzufügen..."}));
}

}  // namespace
}  // namespace tonkartei
