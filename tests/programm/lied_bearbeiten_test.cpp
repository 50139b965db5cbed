// Names, numbers and categories of songs, copies and replacements, word for word.
#include <sys/stat.h>

#include "programm/lied_buehne.hpp"

namespace tonkartei {
namespace {

class Lied_Bearbeiten : public Lied_Bühne {
protected:
    std::string feld(const char* name) { return b->text(std::string("Tonkartei.") + name); }
    std::string fokus() {
        (*b)("fokus");
        return b->antworten().front().value("fokus", "");
    }
};

TEST_F(Lied_Bearbeiten, Titel_und_Artist) {
    const std::string dreißig(30, 'x');
    struct Fall {
        const char* feld;
        std::string eingabe, gespeichert;
        bool gekürzt;
    };
    for (const Fall& fall : std::vector<Fall>{{"Titel", "Neu & fein", "Neu & fein", false},
                                              {"Artist", "\"Neu \"", "Neu", false},
                                              {"Titel", dreißig, dreißig, false},
                                              {"Artist", dreißig + "y", dreißig, true}}) {
        const bool titel = fall.feld == std::string("Titel");
        lege(2);
        starte(false);
        wähle(2);
        hand(std::string("klick Tonkartei.") + fall.feld);
        EXPECT_EQ(b->ereignis("eingabe")["titel"], std::string("Lied-") + fall.feld + " ändern");
        EXPECT_EQ(geschehen(), Zeilen{std::string("Eingabe|Wie soll der neue ") + fall.feld +
                                      " des Liedes \"T2\" von \"A2\" lauten?|" + (titel ? "T2" : "A2")});
        hand("eingabe " + fall.eingabe);
        Zeilen boxen;
        if (fall.gekürzt) {
            boxen = {std::string("Titel ändern|Der ") + fall.feld +
                     " darf nicht mehr als 30 Zeichen haben. Er wurde gekürzt:\n\n" + fall.gespeichert + "|i"};
            hand("antwort OK");
        }
        EXPECT_EQ(geschehen(), boxen);
        const std::string neuer_Titel = titel ? fall.gespeichert : "T2", neuer_Artist = titel ? "A2" : fall.gespeichert;
        EXPECT_EQ(ordner.inhalt(datei(2)),
                  (ton(2) + Tag_Bytes{.Titel = neuer_Titel, .Artist = neuer_Artist, .Füllung = ' '}.Block()));
        const Zeilen liste = b->zeilen("Tonkartei.Liste");
        EXPECT_EQ(std::count(liste.begin(), liste.end(), neuer_Artist + " - " + neuer_Titel), 1);
        EXPECT_EQ(feld("Anzahl"), "2");  // the song is shown again
        EXPECT_EQ(fokus(), "Tonkartei.Schnellsuche");
    }
}

TEST_F(Lied_Bearbeiten, Namen_die_bleiben) {
    lege(3);
    ordner.datei(datei(2), "ohne");
    std::filesystem::remove(ordner.pfad(datei(3)));
    starte(false);
    for (const int n : {1, 2, 3}) {
        wähle(n);
        hände({"klick Tonkartei.Titel", n == 1 ? "abbrechen" : "eingabe neu"});
    }
    for (const char* vorgang : {"öffnen", "schreiben"}) {
        wähle(1);
        hände({std::string("störung ") + vorgang + " 1", "klick Tonkartei.Artist", "eingabe neu"});
        EXPECT_TRUE(ordner.inhalt(datei(1)).starts_with(ton(1)));
    }
    for (const auto& zeile : geschehen()) EXPECT_TRUE(zeile.starts_with("Eingabe|")) << zeile;
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), (Zeilen{"A1 - T1", "A2 - T2", "A3 - T3"}));
    EXPECT_EQ(ordner.inhalt(datei(2)), "ohne");
    // Nothing is shown after a rebuild, so there is nothing to edit.
    hände({"klick Tonkartei.Lieder_Anzahl", "antwort Ja"});
    geschehen();
    hände({"klick Tonkartei.Titel", "klick Tonkartei.Anzahl"});
    EXPECT_EQ(geschehen(), Zeilen{});
}

TEST_F(Lied_Bearbeiten, Anzahl_eines_Liedes) {
    lege(2);
    starte(false);
    for (const char* knopf : {"Reset_Anzahl", "Anzahl", "Menü_Lied_Anzahl"})
        for (const auto& [eingabe, danach] :
             std::map<std::string, std::string>{{"7", "7"}, {"-3", "-3"}, {"2.5", "2"}, {"Unfug", "0"}, {" 12x", "12"}}) {
            wähle(2);
            const std::string vorher = feld("Anzahl");
            geschehen();
            hand(std::string("klick Tonkartei.") + knopf);
            EXPECT_EQ(geschehen(),
                      Zeilen{"Anzahl ändern|Wollen sie wirklich die Anzahl des Liedes \"T2\" von \"A2\" ändern?|?*Ja/Nein"});
            hand("antwort Ja");
            EXPECT_EQ(geschehen(),
                      Zeilen{"Eingabe|Geben sie die neue Anzahl für das Lied \"T2\" von \"A2\" ein:|" + vorher});
            hand("eingabe " + Bediener::zitiert(eingabe));
            EXPECT_EQ(feld("Anzahl"), danach) << eingabe;
        }
    hände({"klick Tonkartei.Anzahl", "antwort Nein"});
    EXPECT_EQ(b->bereit(), "schleife");
}

TEST_F(Lied_Bearbeiten, Anzahl_aller) {
    lege(3);
    starte(false);
    const auto zahlen = [this] {
        std::string text;
        for (const int n : {1, 2, 3}) {
            wähle(n);
            text += feld("Anzahl") + " ";
        }
        return text;
    };
    for (const auto& [eingabe, danach] :
         std::vector<std::pair<std::string, std::string>>{{"+0", "1 2 3 "},
                                                          {"+2", "3 4 5 "},
                                                          {"-4", "0 0 1 "},
                                                          {" -4", "-4 -4 -4 "},  // the sign is not its first character
                                                          {"5", "5 5 5 "},
                                                          {"+1.5", "7 7 7 "},
                                                          {"-x", "7 7 7 "},
                                                          {"x", "0 0 0 "}}) {
        geschehen();
        hand("klick Tonkartei.alle_Anzahl_ändern");
        const std::string frage = geschehen().front();
        EXPECT_TRUE(frage.starts_with(
            "Eingabe|Die Anzahl, wie oft ein Lied gehört wurde sollte nicht geändert werden!\n\nSie dient der Statistik"))
            << frage;
        EXPECT_TRUE(frage.ends_with("Wie soll die Anzahl der Lieder in der Liste geändert werden?|+0")) << frage;
        hand("eingabe " + Bediener::zitiert(eingabe));
        EXPECT_EQ(geschehen(), Zeilen{"Anzahl ändern|Die Anzahl der 3 Lieder wurde geändert.|i"});
        hand("antwort OK");
        EXPECT_EQ(zahlen(), danach) << eingabe;
    }
    hände({"klick Tonkartei.alle_Anzahl_ändern", "abbrechen", "setze Tonkartei.Schnellsuche A2"});
    hände({"klick Tonkartei.alle_Anzahl_ändern", "eingabe 9", "antwort OK", "setze Tonkartei.Schnellsuche \"\""});
    EXPECT_EQ(zahlen(), "0 9 0 ");
    geschehen();
    hand("klick Tonkartei.Lieder_Anzahl");
    EXPECT_EQ(geschehen(), Zeilen{"Anzahl Reset|Wollen sie wirklich bei allen 3 Liedern in der Liste die Anzahl auf Null "
                                  "setzten?|?*Ja/Nein"});
    hand("antwort Ja");
    EXPECT_EQ(zahlen(), "0 0 0 ");
}

TEST_F(Lied_Bearbeiten, Kategorie_aller) {
    lege(3);
    starte(false);
    const auto kategorien = [this] {
        std::string text;
        for (const int n : {1, 2, 3}) {
            wähle(n);
            text += b->zeige("Tonkartei.Lied_Kategorie")["gewählt"].dump();
        }
        return text;
    };
    hand("klick Tonkartei.Lieder_Kategorie_ändern");
    EXPECT_EQ(
        geschehen(),
        Zeilen{"Kategorie ändern|Wollen sie wirklich bei allen 3 Liedern in der Liste die Kategorie ändern?|?*Ja/Nein"});
    hand("antwort Ja");
    EXPECT_EQ(geschehen(), Zeilen{"Kategorie ändern|Sollen alle Lieder die gleiche Kategorie bekommen?|?*Ja/Nein"});
    hand("antwort Ja");
    EXPECT_EQ(b->text("Kategorie_Wahl.Titel") + "|" + b->text("Kategorie_Wahl.Artist"), "alle Lieder in der Liste|");
    EXPECT_EQ(b->fenster("Tonkartei")["aktiv"], false);
    hand("wähle Kategorie_Wahl.Liste 4");
    EXPECT_EQ(kategorien(), "444");
    hände({"klick Tonkartei.Lieder_Kategorie_ändern", "antwort Ja", "antwort Nein"});
    for (const int n : {1, 2, 3}) {
        EXPECT_EQ(b->text("Kategorie_Wahl.Titel"), "T" + std::to_string(n));
        hand("wähle Kategorie_Wahl.Liste " + std::to_string(n));
    }
    EXPECT_EQ(kategorien(), "123");
    hand("klick Tonkartei.Menü_Lied_Kategorie");
    EXPECT_EQ(fokus(), "Tonkartei.Lied_Kategorie");
}

TEST_F(Lied_Bearbeiten, Auskünfte_und_Einlesen) {
    lege(2);
    starte(false);
    // Without a chosen song nothing happens.
    hände({"klick Tonkartei.Menü_Lied_Info", "klick Tonkartei.Artist_Titel_Clipboard", "klick Tonkartei.Lied_löschen",
           "klick Tonkartei.Lied_kopieren", "klick Tonkartei.Menü_Lied_tauschen",
           "klick Tonkartei.aktuellen_Namen_einlesen"});
    EXPECT_EQ(geschehen(), Zeilen{});
    wähle(2);
    hände({"klick Tonkartei.Artist_Titel_Clipboard", "klick Tonkartei.Menü_Lied_Info"});
    EXPECT_EQ(geschehen(), Zeilen{"Lied-Info|Titel: T2\nArtist: A2\nKategorie: Freestyle\nAnzahl: 2\nDateigröße: 100 "
                                  "kBytes\nDateiname: " +
                                  a + "00000002.MP3|i"});
    hand("antwort OK");
    (*b)("zwischenablage");
    EXPECT_EQ(b->antworten().front()["zwischenablage"], "A2 - T2");

    // One whose playing time cannot be worked out.
    ordner.datei(datei(2), Xing_Lied_Bytes(5000, 1, 0xFFFB9064U, 0) + Tag_Bytes{.Titel = "Neu", .Artist = "Wer"}.Block());
    hand("klick Tonkartei.aktuellen_Namen_einlesen");
    EXPECT_EQ(
        feld("Titel") + "|" + feld("Artist") + "|" + feld("Lied_Größe") + "|" + feld("Lied_Zeit") + "|" + feld("Anzahl"),
        "Neu|Wer|5|00:00|2");
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), (Zeilen{"A1 - T1", "Wer - Neu"}));
}

TEST_F(Lied_Bearbeiten, kopieren) {
    lege(3);
    starte(false);
    const std::string ziel = ordner.ordner("ziel");
    wähle(2);
    hand("klick Tonkartei.Lied_kopieren");
    const auto wahl = b->ereignis("datei");
    EXPECT_EQ(wahl["art"], "speichern");
    EXPECT_EQ(wahl["vorschlag"], "A2 - T2.MP3");
    EXPECT_EQ(wahl["filter"], "MP3-Datei (*.MP3)|*.MP3| Alle Dateien (*.*) |*.*");
    hand("pfad " + ziel + "x.mp3");
    EXPECT_EQ(ordner.inhalt("ziel/x.mp3"), bytes(2));
    geschehen();
    hände({"störung kopieren 1", "klick Tonkartei.Menü_Lied_kopieren", "pfad " + ziel + "y.mp3"});
    EXPECT_EQ(geschehen().back(), "Fehler|Ein Fehler ist beim kopieren aufgetreten!|i");
    hände({"antwort OK", "klick Tonkartei.Lieder_kopieren"});
    EXPECT_EQ(geschehen(), Zeilen{"Lieder kopieren|Wollen sie wirklich alle 3 Lieder in der Liste kopieren?|?*Ja/Nein"});
    hand("antwort Ja");
    EXPECT_EQ(geschehen(), Zeilen{"Ordner|Zielverzeichnis für die Kopien:"});
    hand("pfad " + ordner.pfad("ziel"));
    EXPECT_EQ(geschehen(), Zeilen{"Fortschritt|Lieder kopieren..."});
    for (const int n : {1, 2, 3})
        EXPECT_EQ(ordner.inhalt("ziel/A" + std::to_string(n) + " - T" + std::to_string(n) + ".MP3"), bytes(n));
}

TEST_F(Lied_Bearbeiten, tauschen) {
    lege(2);
    const std::string neu = ordner.datei("neu.mp3", bytes(5));
    starte(false);
    wähle(2);
    const auto bis_zur_Wahl = [this](const std::string& pfad) {
        hände({"klick Tonkartei.Menü_Lied_tauschen", "antwort Ja", "antwort OK", "pfad " + pfad});
    };
    bis_zur_Wahl(neu);
    const Zeilen ablauf = geschehen();
    ASSERT_EQ(ablauf.size(), 4U);
    EXPECT_EQ(
        ablauf[0],
        "Lied austauschen|Wollen sie das Lied \"T2\" von \"A2\" wirklich austauschen?\n\nDies ist nur sinnvoll, wenn die "
        "MP3-Datei defekt ist, oder durch eine andere Version ausgetauscht werden soll!|?*Ja/Nein");
    EXPECT_EQ(ablauf[1],
              "Lied austauschen|Wählen sie bitte, durch welche MP3-Datei das gewählte Lied getauscht werden soll.|i");
    EXPECT_EQ(ablauf[3],
              "Lied austauschen|Wollen sie die alte Version vorher noch irgendwohin kopieren?\n\nWenn sie das Lied jetzt "
              "austauschen, wird die alte Version gelöscht.|?*Ja/Nein/Abbrechen");
    hand("antwort Abbrechen");
    EXPECT_EQ(b->bereit(), "schleife");
    bis_zur_Wahl(neu);
    geschehen();
    hände({"antwort Ja", "pfad " + ordner.pfad("gerettet.mp3")});
    EXPECT_EQ(ordner.inhalt("gerettet.mp3"), bytes(2));
    const std::string frage = geschehen().back();
    EXPECT_TRUE(
        frage.starts_with("Lied austuaschen|Wollen sie folgendes Lied:\n\nTitel: T2\nArtist: A2\nKategorie: "
                          "Freestyle\nDateigröße: 100 kBytes\nDauer: 00:03\nDatum/Zeit: "))
        << frage;
    EXPECT_NE(frage.find("\n\ndurch folgendes Lied:\n\nTitel: T5\nArtist: A5\nDateiname: " + neu +
                         "\nDateigröße: 2 kBytes\nDauer: 00:00\nDatum/Zeit: "),
              std::string::npos)
        << frage;
    EXPECT_TRUE(frage.ends_with("\n\naustauschen?|?*Ja/Nein"));
    hand("antwort Ja");
    EXPECT_EQ(geschehen(), Zeilen{});
    EXPECT_EQ(ordner.inhalt(datei(2)), bytes(5));
    EXPECT_EQ(ordner.inhalt("neu.mp3"), bytes(5));
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), (Zeilen{"A1 - T1", "A5 - T5"}));

    // The song's own file, by whatever way, and one that has gone meanwhile, cannot take its place.
    std::filesystem::create_directory_symlink(a, ordner.pfad("weg"));
    for (const std::string& pfad : {a + "00000002.MP3", ordner.pfad("weg") + "/00000002.MP3", neu}) {
        wähle(2);
        bis_zur_Wahl(pfad);
        hand("antwort Nein");
        std::filesystem::remove(neu);
        geschehen();
        hand("antwort Ja");
        EXPECT_EQ(geschehen(), Zeilen{"Lied austauschen|Beim austauschen ist ein Fehler aufgetreten!|i"});
        hand("antwort OK");
        EXPECT_EQ(ordner.inhalt(datei(2)), bytes(5));
        ordner.datei("neu.mp3", bytes(5));
    }
}

TEST_F(Lied_Bearbeiten, Winamp_lässt_vorher_los) {
    lege(4);
    const std::string winamp = ordner.ordner("winamp");
    ordner.datei("winamp/WinAmp.Exe");
    starte(false, {"WinAmp=" + winamp});
    wähle(1);
    hände({"klick Tonkartei.Lied_starten", "uhr +1000"});
    b->protokoll();
    hände({"klick Tonkartei.Lied_löschen", "antwort Ja"});
    const auto protokoll = b->protokoll();
    ASSERT_EQ(protokoll.size(), 2U) << protokoll;
    EXPECT_EQ(protokoll[0]["w"], 40047);
    EXPECT_EQ(protokoll[0]["fenster"], "Tonkartei");
    EXPECT_EQ(protokoll[1]["ms"], 1000);

    // A song that was started twice stands twice in the list of this run, and goes once.
    wähle(2);
    hände(
        {"klick Tonkartei.Lied_starten", "uhr +1000", "klick Tonkartei.Lied_starten", "klick Tonkartei.zeige_Random_Liste"});
    EXPECT_EQ(b->zeilen("Tonkartei.Nr_Liste"), (Zeilen{"1", "2", "2"}));
    hände({"klick Tonkartei.alle_Lieder_löschen", "antwort Ja"});
    EXPECT_EQ(stand(), "3");
}

TEST_F(Lied_Bearbeiten, Tag_vor_dem_Hinzufügen) {
    lege(1);
    ordner.ordner("quelle");
    const std::string mit = ordner.datei("quelle/mit.mp3", bytes(8));
    ordner.datei("quelle/ohne.mp3", "ohne");
    starte(false);
    hände({"klick Tonkartei.Lieder_hinzufügen_Verzeichnis", "setze Verzeichnis_add.Pfad " + ordner.pfad("quelle"),
           "klick Verzeichnis_add.Ok", "klick neue_Lieder_Liste.Tag_ändern"});
    EXPECT_EQ(b->bereit_name(), "neue_Lieder_Liste");  // no line is chosen
    hände({"wähle neue_Lieder_Liste.gefundene_Lieder 0", "klick neue_Lieder_Liste.Tag_ändern"});
    ASSERT_EQ(b->bereit_name(), "MP3_Tag_ändern");
    EXPECT_EQ(b->text("MP3_Tag_ändern.Pfad"), mit);
    EXPECT_EQ(b->text("MP3_Tag_ändern.Artist") + "|" + b->text("MP3_Tag_ändern.Titel"), "A8|T8");
    hand("setze MP3_Tag_ändern.Titel " + std::string(31, 'z'));
    EXPECT_EQ(b->text("MP3_Tag_ändern.Titel"), std::string(30, 'z'));
    hand("klick MP3_Tag_ändern.Abbruch");
    EXPECT_EQ(ordner.inhalt("quelle/mit.mp3"), bytes(8));
    hände({"klick neue_Lieder_Liste.Tag_ändern", "setze MP3_Tag_ändern.Titel Neu", "setze MP3_Tag_ändern.Artist Wer",
           "klick MP3_Tag_ändern.Ok", "wähle neue_Lieder_Liste.gefundene_Lieder 1", "klick neue_Lieder_Liste.Tag_ändern",
           "setze MP3_Tag_ändern.Titel Neu", "klick MP3_Tag_ändern.Ok"});
    EXPECT_EQ(ordner.inhalt("quelle/mit.mp3"),
              (ton(8) + Tag_Bytes{.Titel = "Neu", .Artist = "Wer", .Füllung = ' '}.Block()));
    EXPECT_EQ(ordner.inhalt("quelle/ohne.mp3"), "ohne");
    for (const char* liste : {"gefundene_Lieder", "MP3_Tags", "Lieder_hinzufügen"})
        EXPECT_EQ(b->zeilen(std::string("neue_Lieder_Liste.") + liste), (Zeilen{"Wer - Neu", "ohne.mp3"})) << liste;
}

}  // namespace
}  // namespace tonkartei
