// The session: opening, leaving, saving, the access file, the recent folders; every box with its words and order.
#include <functional>

#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

const std::string Schreibfehler =
    "Tonkartei|Es ist ein Fehler beim Schreiben der Datenbank-Informations-Datei aufgetreten!\n\nEventuell ist der "
    "Datenträger schreibgeschützt?|i";
const std::string Lesefehler = "Tonkartei|Es ist ein Fehler beim öffnen der Informationsdatei aufgetreten!|i";
const std::string Geladen = "Fortschritt|Datenbank laden...", Gespeichert = "Fortschritt|Datenbank speichern...";
const std::string Kontakt = "tonkartei@example.org";

std::string Zugriffsfrage(const std::string& pfad, const std::string& wann, const std::string& wer, const std::string& wo) {
    return "Datenbank öffnen|Die Datenbank \"" + pfad + "\" ist bereits geöffnet!\n\nGeöffnet am " + wann + " Uhr von \"" +
           wer + "\" auf dem Computer \"" + wo +
           "\".\n\nDie Datenbank sollte jetzt nur geöffnet werden, wenn der Rechner vorher abgestürzt ist, anonsten führt "
           "das "
           "zu Datenverlust!\n\nWollen sie die Datenbank jetzt trotzdem öffnen?|?*Ja/Nein";
}

class Sitzung : public Bühne {
protected:
    std::string a = sammlung("a");
    std::string zweite = sammlung("zweite", {.Lieder = {{"Zoe", "Neu", 0, 2048}}, .Kategorien = {"Alle", "Jazz"}});
    Zeilen liste() { return b->zeilen("Tonkartei.Liste"); }
    void außen_beenden() {
        hand("schließe Tonkartei extern");
        EXPECT_EQ(b->bereit(), "ende");
        EXPECT_EQ(b->Ende_abwarten(), 0);
    }
    // Chooses a folder by the dialog.
    void wechseln(const std::string& pfad) {
        hände({"klick Tonkartei.öffne_Datenbank", "setze Datenbank_öffnen.Pfad " + Bediener::zitiert(pfad),
               "klick Datenbank_öffnen.Ok"});
    }
};

TEST_F(Sitzung, Zugriffsdatei) {
    starten({.setze = zuletzt({a}), .uhr = "2026-03-05 09:04:07"});
    EXPECT_EQ(
        ordner.inhalt("a/MP3_Info.DBG"),
        "Tonkartei\r\nV 1.02 16\r\nDatenbank-Zugriffsdatei\r\nRECHNER\r\nBENUTZER\r\n5\r\n3\r\n2026\r\n9\r\n4\r\n7\r\n");
    hand("absturz");

    // After a crash: who, where and when; whatever is not Yes ends the start.
    for (const auto& [antwort, bereit, zeit] : {std::tuple{"Nein", "ende", "5\r\n3\r\n2026\r\n9\r\n4\r\n7\r\n"},
                                                {"Ja", "schleife", "1\r\n1\r\n2027\r\n0\r\n0\r\n0\r\n"}}) {
        starten({.setze = zuletzt({a}), .uhr = "2027-01-01 00:00:00"});
        EXPECT_EQ(geschehen(), Zeilen{Zugriffsfrage(a, "05. Mrz 2026 um 09:04", "BENUTZER", "RECHNER")});
        hand(std::string("antwort ") + antwort);
        EXPECT_EQ(b->bereit(), bereit);
        EXPECT_TRUE(ordner.inhalt("a/MP3_Info.DBG").ends_with(zeit));
    }
}

TEST_F(Sitzung, unbrauchbare_Zugriffsdatei_sperrt) {
    const std::string kaputt = "Es ist ein Fehler beim Lesen der Datenbank-Zugriffsdatei aufgetreten!";
    for (const auto& [bytes, box] : std::vector<std::pair<std::string, std::string>>{
             {Zugriffsdatei_Bytes("Anders"), "Die Zugriffsdatei ist nicht von diesem Programm erstellt worden!"},
             {Zugriffsdatei_Bytes("Tonkartei", "V 9", "Andere Datei"), "Die Zugriffsdatei hat einen Fehler!"},
             {"", kaputt},
             {"Tonkartei\r\nV 1.02 16\r\nDatenbank-Zugriffsdatei\r\nTURM\r\nHEIDI\r\n5\r\n3\r\n", kaputt}}) {
        ordner.datei("a/MP3_Info.DBG", bytes);
        öffnen(a);
        EXPECT_EQ(geschehen(), Zeilen{"Zugriffsdatei lesen|" + box + "\n\nKontaktieren sie den Autor!|i"});
        hand("antwort OK");
        EXPECT_EQ(b->Ende_abwarten(), 0);
        EXPECT_EQ(ordner.inhalt("a/MP3_Info.DBG"), bytes);
    }
    // Any version is good enough.
    ordner.datei("a/MP3_Info.DBG", Zugriffsdatei_Bytes("Tonkartei", "irgendwas, mit Komma"));
    öffnen(a);
    EXPECT_EQ(geschehen(), Zeilen{Zugriffsfrage(a, "05. Mrz 2026 um 14:07", "HEIDI", "TURM")});
}

TEST_F(Sitzung, Parameter_I_gilt_nur_für_die_erste) {
    ordner.datei("a/MP3_Info.DBG", "Unsinn");
    ordner.datei("zweite/MP3_Info.DBG", Zugriffsdatei_Bytes());
    öffnen(a, "i");
    EXPECT_EQ(geschehen(), Zeilen{Geladen});
    wechseln(zweite);
    EXPECT_EQ(geschehen(), (Zeilen{Gespeichert, Zugriffsfrage(zweite, "05. Mrz 2026 um 14:07", "HEIDI", "TURM")}));
    // Declined: the songs of before stay, their access file is gone with the save.
    hand("antwort Nein");
    EXPECT_EQ(liste().size(), 3U);
    EXPECT_FALSE(ordner.da("a/MP3_Info.DBG"));
    EXPECT_EQ(b->zeilen("Tonkartei.Datenbank"), Zeilen{a});
    beenden();
    EXPECT_EQ(mdb(), Sammlung{}.bytes());
}

TEST_F(Sitzung, andere_Versionen) {
    const auto alte = [](const std::string& version) {
        return version +
               "\n\nDie alte Versionen der Datei kann eingelesen und konvertiert werden. Allerdings kann sie dann nicht "
               "mehr mit Programmversionen, die kleiner Version des Programms geöffnet werden.\n\nSoll die Datenbank "
               "geöffnet und konvertiert werden?|?*Ja/Nein";
    };
    const auto fremde = [](const std::string& version) {
        return version + "\n\nKontaktieren sie den Autor für ein Update oder einen Konverter für die Datei.\n\n" + Kontakt +
               "\n\nEs kann auf eigene Gefahr hin versucht werden die Datei trotzdem zu lesen. Wollen sie dies "
               "tun?|?Ja/*Nein";
    };
    for (const std::string version : {"V 1.02 15", "V 1.02 00", "V 1.03 00", "V 1.02 17", "v 1.02 15", "V 1.00 07"}) {
        const std::string alt = sammlung("alt", {.Version = version});
        const std::string vorher = mdb("alt");
        öffnen(alt);
        EXPECT_EQ(geschehen(), Zeilen{"Tonkartei|Die Informationsdatei ist von einer anderen Programmversion.\n\naktuelle "
                                      "Programmversion: V 1.02 16\nDateiversion: " +
                                      (version == "V 1.02 15" || version == "V 1.02 00" ? alte : fremde)(version)});
        hand("antwort Nein");
        EXPECT_EQ(b->Ende_abwarten(), 0);
        EXPECT_EQ(mdb("alt"), vorher);
        öffnen(alt);
        hand("antwort Ja");
        beenden();
        EXPECT_EQ(mdb("alt"), Sammlung{}.bytes());
    }
}

TEST_F(Sitzung, falsche_Kategorien_werden_gemeldet_und_berichtigt) {
    Sammlung k{.Lieder = {{"A & B", "Null", 0, 1, 0}, {"C", "Sieben", 0, 1, 7}, {"D", "gut", 0, 1, 6}}};
    const auto box = [](const std::string& titel, const std::string& artist) {
        return "Datenbank laden|Das Lied \"" + titel + "\"\nvon \"" + artist +
               "\"\nhat einen Fehler bei der eingestellten Kategorie!\n\nDie Kategorie wurde auf \"Alle\" gesetzt.\n\nBitte "
               "überprüfen!|i";
    };
    öffnen(sammlung("k", k));
    hände({"antwort OK", "antwort OK"});
    EXPECT_EQ(geschehen(), (Zeilen{box("Null", "A & B"), box("Sieben", "C"), Geladen}));
    beenden();
    k.Lieder[0].Kategorie = k.Lieder[1].Kategorie = 1;
    EXPECT_EQ(mdb("k"), k.bytes());
}

// What follows from a second collection: all of the list, the boxes, the recent folders.
TEST_F(Sitzung, zweite_Datenbank) {
    öffnen(a);
    geschehen();
    wechseln(zweite);
    // Sort, search and boxes stand as they stood, and yet the list is the new one's. One song is read too fast to be shown.
    EXPECT_EQ(geschehen(), Zeilen{Gespeichert});
    EXPECT_EQ(liste(), Zeilen{"Zoe - Neu"});
    EXPECT_EQ(b->zeige("Tonkartei.zeige_Kategorie(3)")["sichtbar"], false);
    EXPECT_EQ(b->zeilen("Tonkartei.Datenbank"), (Zeilen{zweite, a}));
    EXPECT_FALSE(ordner.da("a/MP3_Info.DBG"));

    hände({"setze Tonkartei.Schnellsuche zo", "klick Tonkartei.sortieren(1)", "klick Tonkartei.zeige_Kategorie(2)"});
    EXPECT_EQ(liste(), Zeilen{"Neu (Zoe)"});
    hand("setze Tonkartei.Datenbank #1");
    EXPECT_EQ(liste(), (Zeilen{"Anna - Zug", "Berta - Yacht", "Carla - Xylophon"}));
    EXPECT_EQ(b->text("Tonkartei.Schnellsuche"), "");
    EXPECT_EQ((*b)("fokus").front()["fokus"], "Tonkartei.Schnellsuche");
}

TEST_F(Sitzung, zuletzt_geöffnete) {
    std::vector<std::string> alle{a};
    for (int i = 2; i <= 9; ++i) alle.push_back(ordner.pfad("weg" + std::to_string(i) + "/"));
    alle.push_back(zweite);
    starten({.setze = zuletzt(alle)});
    geschehen();
    // Gone, and the open one: nothing changes.
    hände({"setze Tonkartei.Datenbank #4", "antwort OK", "setze Tonkartei.Datenbank #0"});
    EXPECT_EQ(geschehen(), Zeilen{"Datenbank öffnen|Die gewählte Datenbank existiert nicht mehr, oder ist momentan nicht "
                                  "verfügbar.|i"});
    EXPECT_EQ(b->zeige("Tonkartei.Datenbank")["gewählt"], 0);
    EXPECT_EQ(b->zeilen("Tonkartei.Datenbank"), alle);
    // A known one moves to the front, the others keep their order; a new one pushes the last out.
    hand("setze Tonkartei.Datenbank #9");
    auto erwartet = alle;
    std::rotate(erwartet.begin(), erwartet.end() - 1, erwartet.end());
    EXPECT_EQ(b->zeilen("Tonkartei.Datenbank"), erwartet);
    const std::string dritte = sammlung("dritte");
    wechseln(dritte.substr(0, dritte.size() - 1));
    erwartet.insert(erwartet.begin(), dritte);
    erwartet.pop_back();
    EXPECT_EQ(b->zeilen("Tonkartei.Datenbank"), erwartet);
    beenden();
    starten();
    for (std::size_t i = 0; i < 10; ++i) EXPECT_EQ(wert("geöffnete Datenbanken\\Nr. " + std::to_string(i + 1)), erwartet[i]);
}

// A path's bytes go through folder choice, registry and list unchanged, whatever they mean.
TEST_F(Sitzung, Ordner_mit_fremden_Bytes) {
    const std::string fremd = sammlung("\xff\xe4 & b");
    starten({.setze = zuletzt({ordner.pfad("weg/")})});
    hände({"klick Splash.Button(2)", "pfad " + Bediener::zitiert(fremd)});
    ASSERT_EQ(b->bereit(), "schleife");
    hand("klick Tonkartei.MP_Beenden");
    starten({.setze = {"geöffnete Datenbanken\\Anzahl=1"}});
    ASSERT_EQ(b->bereit(), "schleife");
    EXPECT_EQ(Bediener::Pfadbytes(b->text("Tonkartei.Datenbank")), fremd);
    EXPECT_TRUE(std::filesystem::exists(fremd + "MP3_Info.DBG"));
}

TEST_F(Sitzung, Dialog_Datenbank_wählen) {
    starten({.setze = zuletzt({a, zweite})});
    geschehen();
    // Cancelled, by the button and by the close box: saved all the same, and without an access file.
    for (const char* weise : {"klick Datenbank_öffnen.Abbruch", "schließe Datenbank_öffnen", "klick Datenbank_öffnen.Ok"}) {
        hand("klick Tonkartei.öffne_Datenbank");
        EXPECT_EQ(b->zeilen("Datenbank_öffnen.Liste"), (Zeilen{a, zweite}));
        hand(weise);
        EXPECT_EQ(geschehen(), Zeilen{Gespeichert}) << weise;
        EXPECT_FALSE(ordner.da("a/MP3_Info.DBG"));
    }
    wechseln(ordner.pfad("fehlt"));
    EXPECT_EQ(geschehen(),
              Zeilen{"Datenbank wählen|Dieses Verzeichnis wurde nicht gefunden, oder es ist zur Zeit kein Zugriff "
                     "darauf möglich!|i"});
    hand("antwort OK");
    EXPECT_EQ(geschehen(), Zeilen{Gespeichert});
    hände({"klick Tonkartei.öffne_Datenbank", "klick Datenbank_öffnen.Pfad_wählen",
           "pfad " + Bediener::zitiert(ordner.pfad("zweite"))});
    EXPECT_EQ(b->text("Datenbank_öffnen.Pfad"), zweite);
    hand("wähle Datenbank_öffnen.Liste 0");
    EXPECT_EQ(b->text("Datenbank_öffnen.Pfad"), a);
    hände({"wähle Datenbank_öffnen.Liste 1", "doppelklick Datenbank_öffnen.Liste"});
    EXPECT_EQ(liste(), Zeilen{"Zoe - Neu"});
}

// A collection that cannot be opened: the songs of before stay in sight, and what needs an open collection refuses.
TEST_F(Sitzung, misslungener_Wechsel) {
    ordner.datei("zweite/MP3_Info.MDB", "Falsch\r\n" + mdb("zweite"));
    öffnen(a);
    geschehen();
    wechseln(zweite);
    EXPECT_EQ(geschehen(), (Zeilen{Gespeichert,
                                   "Tonkartei|Die Informationsdatei MP3_Info.MDB ist fehlerhaft!\n\nKontaktieren "
                                   "sie den Autor, um eventuell noch die Daten zu retten.\n\n" +
                                       Kontakt + "|i"}));
    hand("antwort OK");
    EXPECT_EQ(liste().size(), 3U);
    EXPECT_EQ(b->zeilen("Tonkartei.Datenbank"), Zeilen{a});
    hand("klick Tonkartei.Menü_schreibe_Datenbank");
    EXPECT_EQ(geschehen(), Zeilen{"Datenbank speichern| Die Datenbank kann nicht gespeichert werden. Eventuell ist keine "
                                  "geöffnet?|i"});
    hände({"antwort OK", "klick Tonkartei.Lieder_hinzufügen_Verzeichnis"});
    EXPECT_EQ(b->bereit(), "schleife");
    // The way back is open.
    wechseln(a);
    EXPECT_EQ(geschehen(), Zeilen{Geladen});
    EXPECT_TRUE(ordner.da("a/MP3_Info.DBG"));
}

TEST_F(Sitzung, Speichern_von_Hand) {
    öffnen(a);
    geschehen();
    const std::string erklärung =
        "Datenbank speichern|Dieses Programm speichert die Änderungen an der Datenbank automatisch, wenn eine neue geöffnet "
        "wird, oder wenn das Programm beendet wird.\n\nAus diesem Grund ist es normalerweise nicht nötig die Änderungen mit "
        "diesem Menüpunkt zu speichern.|i";
    hände({"klick Tonkartei.Menü_schreibe_Datenbank", "antwort OK"});
    EXPECT_EQ(geschehen(), (Zeilen{erklärung, Gespeichert}));
    EXPECT_TRUE(ordner.da("a/MP3_Info.DBG"));
    EXPECT_EQ(mdb(), Sammlung{}.bytes());
    hände(
        {"schreibschutz " + a + " an", "klick Tonkartei.Menü_schreibe_Datenbank", "antwort OK", "antwort OK", "antwort OK"});
    EXPECT_EQ(geschehen(),
              (Zeilen{erklärung, Schreibfehler, "Datenbank speichern|Es ist ein Fehler beim speichern aufgetreten!|i"}));
    EXPECT_EQ(b->bereit(), "schleife");
}

// Every way out of a collection that cannot be saved asks, in its own words.
TEST_F(Sitzung, Fragen_nach_misslungenem_Speichern) {
    const std::string ohne = "ohne das die alten Informationen gespeichert wurden?|?*Ja/Nein";
    const std::string Ende = "Programm beenden|Wollen sie das Prorgamm wirklich beenden, " + ohne;
    öffnen(a);
    geschehen();
    hand("schreibschutz " + a + " an");
    const auto fragt = [&](const std::function<void()>& weg, const std::string& frage) {
        weg();
        hand("antwort OK");
        EXPECT_EQ(geschehen(), (Zeilen{Schreibfehler, frage}));
        hand("antwort Nein");
        EXPECT_EQ(b->bereit(), "schleife");
        EXPECT_EQ(liste().size(), 3U);
    };
    fragt([&] { hand("klick Tonkartei.Datenbank_neu"); },
          "Datenbank erstellen|Wollen sie wirklich eine neue Datenbank erstellen, " + ohne);
    fragt([&] { wechseln(zweite); }, "Datenbank öffnen|Wollen sie wirklich eine neue Datenbank öffnen, " + ohne);
    fragt([&] { hand("schließe Tonkartei"); }, Ende);
    außen_beenden();  // waits for no answer
    EXPECT_EQ(geschehen(), (Zeilen{Schreibfehler, Ende, "ende"}));
    EXPECT_EQ(mdb(), Sammlung{}.bytes());
    EXPECT_TRUE(ordner.da("a/MP3_Info.DBG"));
}

TEST_F(Sitzung, Ende_von_außen) {
    // In the main loop without the progress window; in waiting and modal windows and under a box just the same.
    for (const Zeilen& wo : {Zeilen{}, Zeilen{"klick Tonkartei.öffne_Datenbank"}, Zeilen{"klick Tonkartei.Uninstall"},
                             Zeilen{"klick Tonkartei.Lieder_hinzufügen_Verzeichnis"}}) {
        öffnen(a);
        hände(wo);
        geschehen();
        außen_beenden();
        EXPECT_EQ(geschehen(), Zeilen{"ende"}) << (wo.empty() ? "" : wo[0]);
        EXPECT_EQ(mdb(), Sammlung{}.bytes());
        EXPECT_FALSE(ordner.da("a/MP3_Info.DBG"));
    }
}

// Under the boxes of opening nothing stands in memory that belongs to the folder: an end from outside must not save it
// there.
TEST_F(Sitzung, Ende_von_außen_unter_den_Fragen_des_Öffnens) {
    Sammlung falsch;
    falsch.Lieder[1].Kategorie = 9;
    const Sammlung andere{.Lieder = {{"Ganz", "anders"}, {"Noch", "eins"}}};
    sammlung("a", andere);
    const std::string gut = Sammlung{}.bytes(), keine = "(fehlt)";
    const struct {
        const char* name;
        std::string inhalt, zugriff;
    } fälle[] = {{"Zugriffsdatei", gut, Zugriffsdatei_Bytes()},
                 {"kaputte Zugriffsdatei", gut, "x"},
                 {"alte Version", Sammlung{.Version = "V 1.02 15"}.bytes(), keine},
                 {"fremd", Sammlung{.Version = "V 9"}.bytes(), keine},
                 {"falscher Titel", Sammlung{.Titel = "x"}.bytes(), keine},
                 {"Kategorie", falsch.bytes(), keine},
                 {"keine Datenbank", keine, keine}};
    for (const auto& f : fälle)
        for (const bool erste : {true, false}) {
            SCOPED_TRACE(std::string(f.name) + (erste ? ", erste" : ", zweite"));
            std::filesystem::remove_all(ordner.pfad("neu"));
            std::filesystem::remove_all(ordner.pfad("wurzel"));
            const std::string neu = ordner.ordner("neu");
            if (f.inhalt != keine) ordner.datei("neu/MP3_Info.MDB", f.inhalt);
            if (f.zugriff != keine) ordner.datei("neu/MP3_Info.DBG", f.zugriff);
            öffnen(erste ? neu : a);
            if (!erste) wechseln(neu);
            ASSERT_EQ(b->bereit(), "meldung");
            außen_beenden();
            EXPECT_EQ(mdb("neu"), f.inhalt);
            EXPECT_EQ(mdb(), andere.bytes());
            EXPECT_FALSE(ordner.da("neu/MP3_Bak.MDB"));
            EXPECT_EQ(ordner.inhalt("neu/MP3_Info.DBG"), f.zugriff);
        }
    öffnen(a);
    hände({"klick Tonkartei.Datenbank_neu", "antwort OK", "pfad " + Bediener::zitiert(ordner.pfad()), "eingabe Anfang"});
    ASSERT_EQ(b->bereit(), "meldung");
    außen_beenden();
    EXPECT_TRUE(std::filesystem::is_empty(ordner.pfad("Anfang")));
}

TEST_F(Sitzung, neue_Datenbank) {
    const std::string k = sammlung("k", {.Kategorien = {"Alle", "Jazz"}, .Schemas = 3});
    const std::string oben = "pfad " + Bediener::zitiert(ordner.pfad());
    for (const bool übernehmen : {true, false}) {
        const std::string name = übernehmen ? "mit" : "ohne";
        öffnen(k);
        // Cancelled at each step nothing is made.
        for (const Zeilen& abbruch : {Zeilen{"abbrechen"}, Zeilen{oben, "abbrechen"}, Zeilen{oben, "eingabe "}}) {
            hände({"klick Tonkartei.Datenbank_neu", "antwort OK"});
            hände(abbruch);
            EXPECT_EQ(b->bereit(), "schleife");
        }
        hände({"klick Tonkartei.Datenbank_neu", "antwort OK", oben, "eingabe " + name});
        EXPECT_EQ(geschehen().back(),
                  "Datenbank erstellen|Wollen sie die Kategorien aus der aktuellen Datenbank in die neue "
                  "übernehmen?|?*Ja/Nein");
        hand(übernehmen ? "antwort Ja" : "antwort Nein");
        EXPECT_TRUE(std::filesystem::is_empty(ordner.pfad(name)));
        EXPECT_EQ(b->text("Tonkartei.zeige_Kategorie(2)"), übernehmen ? "Jazz" : "Freestyle");
        EXPECT_EQ(b->zeige("Tonkartei.Kategorie_Schema(1)")["sichtbar"], false);
        EXPECT_EQ(liste(), Zeilen{});
        EXPECT_EQ(b->zeilen("Tonkartei.Datenbank"), (Zeilen{ordner.pfad(name) + "/", k}));
        beenden();
        EXPECT_TRUE(mdb(name).starts_with(übernehmen
                                              ? "Tonkartei\r\nV 1.02 16\r\n 2 \r\nAlle\r\nJazz\r\n 0 \r\n 1 \r\nSchema 1"
                                              : "Tonkartei\r\nV 1.02 16\r\n 6 \r\n"));
    }
}

}  // namespace
}  // namespace tonkartei
