// Songs leave the folder or change their file while the shell does not do what it should.
#include "buehne.hpp"

#include "lieder/lied_austauschen.hpp"
#include "lieder/lied_kopieren.hpp"
#include "lieder/lied_nachruecken.hpp"
#include "lieder/lieder_entfernen.hpp"
#include "lieder/luecken.hpp"

namespace tonkartei {
namespace {

// Three songs "A - T1" to "A - T3" whose files hold "1", "2" and "3", and a recycle bin.
struct Werkstatt : Bühne {
    explicit Werkstatt(bool papierkorb) {
        einstellungen.Papierkorb = papierkorb;
        modell.Anzahl_Lieder = 3;
        for (const Long n : {1, 2, 3}) {
            modell.Lieder[n].Artist = "A";
            modell.Lieder[n].Titel = "T" + Zahltext(n);
            ordner.datei("db/" + Lied_Dateiname(n), Zahltext(n));
        }
    }
    // The shell fails at operations of that code; it may do them all the same.
    void scheitern(std::uint32_t code, const Text& von, bool trotzdem_getan, Shell_Ergebnis ergebnis = {5, false}) {
        shell.statt = [=, this](const Shell_Vorgang& v) -> std::optional<Shell_Ergebnis> {
            if (v.Code != code || !v.von.front().ends_with(von)) return std::nullopt;
            if (trotzdem_getan) echte_Shell.SHFileOperationA(v);
            statt_dessen();
            return ergebnis;
        };
    }
    Text titel() const {
        Text text;
        for (Long n = 1; n <= modell.Anzahl_Lieder; ++n) text += modell.Lieder[n].Titel;
        return text;
    }

    std::function<void()> statt_dessen = [] {};
    ABR_Datei abr{modell, dateien, haus.kanäle};
    Lied_nachrücken nachrücken{modell, alben.datei, abr};
    Lieder_entfernen entfernen{haus, nachrücken, wiedergabe.Spieler};
    Lücken lücken{modell, dateien, shell, fortschritt, nachrücken};
    Lied_kopieren kopieren{modell, shell, fortschritt};
    Lied_austauschen austauschen{haus, mp3, entfernen, kopieren};
};

const Text Umbenennen = "Fehler: Beim Umbennen ist ein Fehler aufgetreten!";
const Text Gefunden =
    "Fehler: Es wurden Lücken in der Datenbank gefunden!\r\rBenutzen sie den Menüpunkt "
    "Lieer/Wartung/Fehlersuche/Lücken suchen/auffüllen";

TEST(Lieder_entfernen, wenn_die_Shell_versagt) {
    struct Fall {
        const char* name;
        std::uint32_t code;
        const char* von;
        bool trotzdem_getan;
        Shell_Ergebnis ergebnis;
        std::vector<Text> ablauf;
        const char *titel, *dateien;  // of the numbers 1 to 3; "-" missing
        int pause;
    };
    const std::vector<Fall> fälle{
        {"alles gut", 99, "", false, {}, {}, "T3T2", "32-", 0},
        {"bewegt nicht", FO_MOVE, "1.MP3", false, {5, false}, {Umbenennen}, "T1T2T3", "123", 1000},
        {"abgebrochen", FO_MOVE, "1.MP3", false, {0, true}, {Umbenennen}, "T1T2T3", "123", 1000},
        {"sagt ja, tut nichts", FO_MOVE, "1.MP3", false, {0, false}, {}, "T1T2T3", "123", 1000},
        {"bewegt, meldet Fehler", FO_MOVE, "1.MP3", true, {5, false}, {Umbenennen}, "T3T2", "32-", 0},
        {"Korb voll",
         FO_DELETE,
         "T1.MP3",
         false,
         {5, false},
         {"Fehler: Beim Löschen ist ein Fehler aufgetreten!"},
         "T3T2",
         "32-",
         0},
        {"rückt nicht auf", FO_MOVE, "3.MP3", false, {5, false}, {Gefunden}, "T1T2T3", "-23", 0},
    };
    for (const Fall& fall : fälle) {
        SCOPED_TRACE(fall.name);
        Werkstatt w(true);
        w.scheitern(fall.code, fall.von, fall.trotzdem_getan, fall.ergebnis);
        w.entfernen.Lied_entfernen(1);
        EXPECT_EQ(w.ansicht.Ablauf, fall.ablauf);
        EXPECT_EQ(w.titel(), fall.titel);
        Text da;
        for (const Long n : {1, 2, 3}) da += w.ordner.da("db/" + Lied_Dateiname(n)) ? w.inhalt(n) : "-";
        EXPECT_EQ(da, fall.dateien);
        EXPECT_EQ(w.rechner.Uhr(), fall.pause);
        // What could not be thrown away stays, under its readable name.
        EXPECT_EQ(w.ordner.da("db/A - T1.MP3"), fall.code == FO_DELETE);
    }
}

TEST(Lücken, eine_die_sich_nicht_füllen_lässt) {
    Werkstatt w(false);
    w.modell.Anzahl_Lieder = 4;
    w.modell.Lieder[4].Titel = "T4";
    w.ordner.datei("db/" + Lied_Dateiname(4), "4");
    std::filesystem::remove(w.modell.Lied_Pfad(1));
    std::filesystem::remove(w.modell.Lied_Pfad(2));
    // The first move fails and leaves its gap; the next one works.
    int züge = 0;
    w.shell.statt = [&](const Shell_Vorgang& v) {
        return v.Code == FO_MOVE && ++züge == 1 ? std::optional(Shell_Ergebnis{5, false}) : std::nullopt;
    };
    w.ansicht.Antworten = {Antwort::Ja};
    int aufgefrischt = 0;
    w.nachrücken.Alben_geändert.verbinden([&] { ++aufgefrischt; });
    EXPECT_TRUE(w.lücken.Lücken_füllen());
    EXPECT_EQ(w.ansicht.Ablauf[1], Umbenennen);
    EXPECT_EQ(w.ansicht.Ablauf[2], "Lücken suchen/auffüllen: Es wurden 1 Lücken gefunden und wieder aufgefüllt.");
    EXPECT_EQ(w.titel(), "T1T4T3");
    EXPECT_EQ(w.inhalt(2), "4");
    EXPECT_EQ(aufgefrischt, 1);
    EXPECT_FALSE(w.fortschritt.sichtbar());
}

// A copy that came out short would pass for the song.
TEST(Lied_austauschen, kurze_Kopie_bleibt_nicht) {
    Werkstatt w(false);
    const Text neu = w.lege("neu.mp3", std::string(3000, 'n'));
    w.scheitern(FO_COPY, "neu.mp3", false);
    w.statt_dessen = [&] { w.ordner.datei("db/" + Lied_Dateiname(2), "nnn"); };
    w.ansicht.Antworten = {Antwort::Nein, Antwort::Ja};
    EXPECT_FALSE(w.austauschen.ausführen(2, neu));
    EXPECT_EQ(w.ansicht.Ablauf.back(), "Lied austauschen: Beim austauschen ist ein Fehler aufgetreten!");
    EXPECT_FALSE(w.ordner.da("db/" + Lied_Dateiname(2)));
    EXPECT_EQ(w.titel(), "T1T2T3");
    EXPECT_EQ(w.ordner.inhalt("quelle/neu.mp3").size(), 3000U);
}

}  // namespace
}  // namespace tonkartei
