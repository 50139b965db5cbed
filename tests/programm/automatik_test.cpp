// Autoplay and chance as the user meets them: boxes, menus, the tray, the start parameter.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Automatik : public Bühne {
protected:
    std::string a;

    void SetUp() override {
        Sammlung s;
        s.Lieder.clear();
        for (int n = 1; n <= 4; ++n) s.Lieder.push_back({"A" + std::to_string(n), "T", 4 - n, 100, n % 2 == 0 ? 2 : 3});
        a = sammlung("a", s);
        for (int n = 1; n <= 4; ++n) ordner.datei("a/0000000" + std::to_string(n) + ".MP3", "Ton");
    }
    // With a player's program, in order unless told otherwise.
    void starte(const std::string& parameter = {}, std::vector<std::string> setze = {"Random-Autoplay=False"}) {
        const std::string winamp = ordner.ordner("winamp");
        ordner.datei("winamp/WinAmp.Exe");
        setze.push_back("WinAmp=" + winamp);
        öffnen(a, parameter, setze);
        geschehen();
    }
    // The songs that were handed to the player since the last look.
    std::string gestartet() {
        std::string nummern;
        for (const auto& eintrag : b->protokoll())
            if (eintrag["art"] == "prozess") {
                const std::string befehl = eintrag["befehl"];
                if (const auto stelle = befehl.find(".MP3"); stelle != std::string::npos) nummern += befehl[stelle - 1];
            }
        return nummern;
    }
    bool an(const std::string& name) { return b->zeige("Tonkartei." + name)["wert"]; }
};

TEST_F(Automatik, Startparameter_Tray_und_Heute_gespielte) {
    starte("RA");
    EXPECT_TRUE(an("Autoplay"));
    EXPECT_EQ(b->text("Tonkartei.Zufallslied_starten"), "&nächstes");
    hand("uhr +500");
    hände({"spieler Tonkartei status=0", "uhr +500"});
    EXPECT_EQ(gestartet(), "12");
    // The tray's switch is the same one.
    hand("rechtsklick Tonkartei.SysTray");
    const std::string menü = (*b)("menü Kontextmenüs.Tray_Menü").front().dump();
    EXPECT_NE(menü.find(R"("haken":true,"name":"Random_Autoplay")"), std::string::npos) << menü;
    hand("klick Kontextmenüs.Random_Autoplay");
    EXPECT_FALSE(an("Autoplay"));
    EXPECT_EQ(b->text("Tonkartei.Zufallslied_starten"), "&Random");
    hände({"zufall 0", "klick Kontextmenüs.Zufallslied_starten"});
    EXPECT_EQ(gestartet(), "4");
    hand("klick Tonkartei.zeige_Random_Liste");
    EXPECT_EQ(b->zeilen("Tonkartei.Nr_Liste"), (Zeilen{"1", "2", "4"}));
    // Another collection: the numbers stay and mean its songs.
    const std::string c = sammlung("c");
    hände({"klick Tonkartei.öffne_Datenbank", "setze Datenbank_öffnen.Pfad " + c, "klick Datenbank_öffnen.Ok",
           "klick Tonkartei.zeige_Random_Liste"});
    EXPECT_EQ(b->zeilen("Tonkartei.Nr_Liste"), (Zeilen{"1", "2", "4"}));
    EXPECT_EQ(b->zeilen("Tonkartei.Liste").front(), "Anna - Zug");
}

TEST_F(Automatik, fremder_Kasten_während_des_Starts) {
    starte();
    hände({"wähle Tonkartei.Liste 0", "spieler neu Tonkartei", "vormerken klick Tonkartei.Menü_starte_Album",
           "klick Tonkartei.Lied_starten"});
    const std::string text = "Für diese Datenbank existiert noch keine Alben-Verwaltung!|i";
    EXPECT_EQ(geschehen(), Zeilen{"Album spielen|" + text});
    hand("antwort OK");
    EXPECT_EQ(geschehen(), Zeilen{"Fehler|" + text}) << "one text for all boxes";
    hand("antwort OK");
    EXPECT_EQ(b->text("Tonkartei.Anzahl"), "3") << "not started, not counted";
}

TEST_F(Automatik, Wechsel_nimmt_einem_Dialog_nichts) {
    starte("", {"Random-Autoplay=False", "automatisch Kategorie Wechseln\\Status=True",
                "automatisch Kategorie Wechseln\\Anzahl Lieder=1"});
    hände({"zufall 0", "klick Tonkartei.Autoplay", "uhr +500", "klick Tonkartei.Kategorie_Edit",
           "spieler Tonkartei status=0", "zufall 0.3"});
    const auto fokus = [this] { return (*b)("fokus").front().dump(); };
    const std::string vorher = fokus();
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), (Zeilen{"A2 - T", "A4 - T"}));
    hand("uhr +500");
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), (Zeilen{"A1 - T", "A3 - T"}));
    EXPECT_EQ(fokus(), vorher);
}

TEST_F(Automatik, Eingaben) {
    starte();
    geschehen();
    const std::string prozent =
        "Eingabe|Beim abspielen eines Zufallslieder wird zuerst eine sortierte Liste erstellt, in der die Anzahl wie oft "
        "das "
        "jeweilige Lied schon gespielt wurde, enthält. Das Lied, das am wenigsten gespielt wurde, ist das erste in der "
        "Liste.\n\nAus dieser Liste wird nur aus dem Anfangsbereich ein Lied ausgewählt, um zu verhindern, das ein Lied "
        "über "
        "Random öfters gespielt wird.\n\nAus wievielen Prozent dieser Liste soll ein Zufalls-Lied gewählt werden?|";
    const std::string wechsel = "Eingabe|Nach wievielen Liedern soll automatisch die Kategorie gewechselt werden?|";
    struct {
        std::string Befehl, Antwort, Frage, Einwand, Schlüssel, Wert;
    } const fälle[] = {
        {"Random_Prozent", "eingabe 100.5", prozent + "25", "", "Random-Einstellung", "100"},
        {"Random_Prozent", "eingabe 0.5", prozent + "100", "100", "Random-Einstellung", "100"},
        {"Random_Prozent", "eingabe 1e", prozent + "100", "", "Random-Einstellung", "1"},
        {"Random_Prozent", "eingabe 99999999999", prozent + "1", "1", "Random-Einstellung", "1"},
        {"Random_Prozent", "abbrechen", prozent + "1", "", "Random-Einstellung", "1"},
        {"auto_Kat_Wechsel_Setup", "eingabe 2.5", wechsel + "5", "", "automatisch Kategorie Wechseln\\Anzahl Lieder", "2"},
        {"auto_Kat_Wechsel_Setup", "eingabe 0.9", wechsel + "2", "2", "automatisch Kategorie Wechseln\\Anzahl Lieder", "2"},
        {"auto_Kat_Wechsel_Setup", "eingabe 9e9", wechsel + "2", "", "automatisch Kategorie Wechseln\\Anzahl Lieder", "9"},
        {"auto_Kat_Wechsel_Setup", "eingabe 99999999999", wechsel + "9", "9",
         "automatisch Kategorie Wechseln\\Anzahl Lieder", "9"},
        {"auto_Kat_Wechsel_Setup", "abbrechen", wechsel + "9", "9", "automatisch Kategorie Wechseln\\Anzahl Lieder", "9"},
    };
    for (const auto& f : fälle) {
        hände({"klick Tonkartei." + f.Befehl, f.Antwort});
        Zeilen erwartet{f.Frage};
        if (!f.Einwand.empty()) {
            hand("antwort OK");
            erwartet.push_back(f.Befehl == "Random_Prozent"
                                   ? "Random-Einstellungen|Ungültiger Wert, der alte Wert " + f.Einwand +
                                         "% wird beibehalten.|i"
                                   : "automatisch Kategorie Wechseln|Ungültige Eingabe!\n\nDer alte Wert von " + f.Einwand +
                                         " Liedern wurde beibehalten.|i");
        }
        EXPECT_EQ(geschehen(), erwartet) << f.Antwort;
    }
    hand("klick Tonkartei.MP_Beenden");
    starte();
    for (const auto& [befehl, vorgabe] : {std::pair{"Random_Prozent", "1"}, {"auto_Kat_Wechsel_Setup", "9"}}) {
        hand(std::string("klick Tonkartei.") + befehl);
        EXPECT_EQ(b->ereignis("eingabe")["vorgabe"], vorgabe) << "kept over the end of the program";
        hand("abbrechen");
        if (b->bereit() == "meldung") hand("antwort OK");
    }
}

TEST_F(Automatik, Zufallsliste_in_das_Fenster_oder_zum_Spieler) {
    starte("", {"Random-Einstellung=100"});
    const std::string frage =
        "Random-MP3-Playlist|Soll die Liste erst in den internen Playlist-Editor (Ja) oder soll die Playlist gleich mit "
        "Windamp gestartet werden (Nein)?|?*Ja/Nein";
    hände({"zufall 0 0.9 0 0", "klick Tonkartei.Zufalls_Playlist", "eingabe 9", "antwort OK", "antwort Nein"});
    EXPECT_EQ(geschehen(), (Zeilen{"Eingabe|Wieviel Lieder sollen in die Playlist?|4",
                                   "Random-MP3-Playlist|Es sind nur 4 Lieder in der Liste vorhanden!|i", frage}));
    const auto zeile = [&](int nr) { return a + "0000000" + std::to_string(nr) + ".MP3\r\n"; };
    EXPECT_EQ(ordner.inhalt("winamp/Tonkartei-Playlist.M3U"), zeile(4) + zeile(1) + zeile(3) + zeile(2));
    EXPECT_EQ(b->spieler()[0]["datei"], ordner.pfad("winamp/Tonkartei-Playlist.M3U"));
    EXPECT_EQ(b->text("Tonkartei.Anzahl"), "") << "songs of a list are not counted";
    hände({"zufall 0 0", "klick Tonkartei.Zufalls_Playlist", "eingabe 2", "antwort Ja"});
    EXPECT_EQ(geschehen(), (Zeilen{"Eingabe|Wieviel Lieder sollen in die Playlist?|4", frage}));
    EXPECT_EQ(b->zeilen("Playlist.Nr_Liste"), (Zeilen{"4", "3"}));
    // What is in the window is asked for; who cancels keeps it in front of the new songs.
    hände({"zufall 0.9", "klick Tonkartei.Zufalls_Playlist", "eingabe 1", "antwort Ja"});
    EXPECT_EQ(b->meldung(), "Wollen sie die aktuelle Playlist noch speichern?");
    hand("antwort Abbrechen");
    EXPECT_EQ(b->zeilen("Playlist.Nr_Liste"), (Zeilen{"4", "3", "1"}));
    EXPECT_EQ(b->bereit(), "schleife");
}

// Boxes come up in the middle of a tick, and with the right click that assigns, the change asks for the song.
TEST_F(Automatik, Kategoriewechsel_mit_der_rechten_Taste_fürs_Lied) {
    starte("", {"Random-Autoplay=False", "Kategorie-Rechtsklick=2", "automatisch Kategorie Wechseln\\Status=True"});
    EXPECT_TRUE(an("auto_Kat_Wechsel"));
    EXPECT_FALSE(b->zeige("Tonkartei.auto_Kat_Wechsel")["sichtbar"]);
    hände({"wähle Tonkartei.Liste 0", "zufall 0.99", "klick Tonkartei.Autoplay"});
    EXPECT_EQ(b->bereit(), "meldung");
    EXPECT_EQ(geschehen(), (Zeilen{"Kategorie wechseln|Wollen sie die Kategorie des Liedes \"T\" von \"A1\" wirklich von "
                                   "\"Hip-Hop/Rap\" auf \"Techno\" ändern?|?*Ja/Nein"}));
    hand("antwort Ja");
    EXPECT_TRUE(b->zeige("Tonkartei.auto_Kat_Wechsel")["sichtbar"]);
    EXPECT_EQ(b->zeige("Tonkartei.Lied_Kategorie")["gewählt"], 5);
    EXPECT_EQ(b->zeige("Tonkartei.zeige_Kategorie(6)")["farbe"], 65535) << "the song's own";
    EXPECT_EQ(b->zeige("Tonkartei.zeige_Kategorie(5)")["farbe"], 32768) << "of the pool";
    hand("klick Tonkartei.Autoplay");
    EXPECT_NE(b->zeige("Tonkartei.zeige_Kategorie(5)")["farbe"], 32768);
}

}  // namespace
}  // namespace tonkartei
