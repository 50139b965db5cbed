// The main window and the user's settings: state and tray, switches, what is stored, uninstalling.
#include "programm/buehne.hpp"

namespace tonkartei {
namespace {

class Hauptfenster : public Bühne {
protected:
    std::string a = sammlung("a");
    bool zu_sehen() { return b->fenster("Tonkartei")["sichtbar"]; }
    bool tray() { return b->zeige("Tonkartei.SysTray")["sichtbar"]; }
};

TEST_F(Hauptfenster, minimieren_und_Tray) {
    struct Fall {
        int weise;
        bool immer;
        bool tray_normal, tray_klein, fenster_klein;
    };
    for (const Fall& f :
         {Fall{1, false, false, false, true}, Fall{2, false, false, true, false}, Fall{3, false, false, true, true},
          Fall{1, true, true, true, true}, Fall{2, true, true, true, false}, Fall{3, true, true, true, true}}) {
        SCOPED_TRACE(std::to_string(f.weise) + (f.immer ? " immer" : ""));
        öffnen(a, "I",
               {"Fenster minimieren=" + std::to_string(f.weise),
                std::string("System-Tray-Symbol immer sichtbar=") + (f.immer ? "True" : "False")});
        EXPECT_EQ(tray(), f.tray_normal);
        hand("zustand Tonkartei minimiert");
        EXPECT_EQ(tray(), f.tray_klein);
        EXPECT_EQ(zu_sehen(), f.fenster_klein);
        hand(f.tray_klein ? "klick Tonkartei.SysTray" : "zustand Tonkartei normal");
        EXPECT_EQ(b->fenster("Tonkartei")["zustand"], "normal");
        EXPECT_TRUE(zu_sehen());
        EXPECT_EQ(tray(), f.tray_normal);
    }
    öffnen(a, "M", {"Fenster minimieren=2", "System-Tray-Symbol immer sichtbar=False"});
    EXPECT_FALSE(zu_sehen()) << "a minimised start stays hidden";
    EXPECT_TRUE(tray());
}

TEST_F(Hauptfenster, Schalter_und_Wahlen_werden_gemerkt) {
    struct Fall {
        const char *eintrag, *schlüssel, *nachher;
    };
    const std::vector<Fall> fälle{{"DblClk(2)", "Liste-Doppelklick", "2"},
                                  {"Liste_aktualisieren(3)", "Listensuche_Anzahl_Buchstaben", "3"},
                                  {"Listensuche_unvisible", "bei_Listensuche_sichtbar", "False"},
                                  {"Menü_Liste2_animiert", "Alben-Liste animiert", "False"},
                                  {"Katrechts(2)", "Kategorie-Rechtsklick", "2"},
                                  {"Kategorien_merken", "Kategorien merken", "True"},
                                  {"Kat_wechsel_bestätigen", "Kategorie wechsel bestätigen", "False"},
                                  {"Fenster_minimieren(3)", "Fenster minimieren", "3"},
                                  {"Winamp_Mini_verstecken", "WinAmp verstecken wenn DB minimiert", "False"},
                                  {"Systray_always", "System-Tray-Symbol immer sichtbar", "False"},
                                  {"Position_merken", "Position merken", "False"},
                                  {"Papierkorb_löschen", "löschen in den Papierkorb", "False"},
                                  {"WinAmp_FS_Lautstärke", "WinAmp Fernsteuerung Lautstärke", "True"},
                                  {"Menü_WinAmp_verstecken", "WinAmp verstecken", "True"},
                                  {"Menü_WinAmp_Beenden(2)", "WinAmp beenden", "2"}};
    öffnen(a);
    const auto marken = [&] {
        std::string ergebnis;
        const std::function<void(const nlohmann::json&)> gehen = [&](const nlohmann::json& einträge) {
            for (const auto& e : einträge) {
                if (e["haken"] == true) ergebnis += e["name"].get<std::string>() + " ";
                if (e.contains("einträge")) gehen(e["einträge"]);
            }
        };
        gehen((*b)("menü").front()["menü"]);
        return ergebnis;
    };
    for (const Fall& f : fälle) {
        // Nothing is written during the run; and of several entries one alone is marked.
        const std::string vorher = marken();
        hand(std::string("klick Tonkartei.") + f.eintrag);
        EXPECT_NE(marken(), vorher) << f.eintrag;
        EXPECT_EQ(wert(f.schlüssel), "-") << f.schlüssel;
    }
    EXPECT_FALSE(tray());
    const std::string am_Ende = marken();
    hand("schließe Tonkartei extern");
    EXPECT_EQ(b->Ende_abwarten(), 0);
    öffnen(a);
    for (const Fall& f : fälle) EXPECT_EQ(wert(f.schlüssel), f.nachher) << f.schlüssel;
    EXPECT_EQ(marken(), am_Ende);
    // A start reads, and writes nothing back but the display's defaults.
    EXPECT_EQ(geschehen(), Zeilen{"Fortschritt|Datenbank laden..."});
}

TEST_F(Hauptfenster, Kategorien_merken) {
    öffnen(a);
    hände({"klick Tonkartei.zeige_Kategorie(3)", "klick Tonkartei.zeige_Kategorie(6)", "klick Tonkartei.MP_Beenden"});
    öffnen(a);
    // Stored in any case, applied only with the setting.
    EXPECT_EQ(wert("Kategorien"), "36");
    EXPECT_EQ(b->zeige("Tonkartei.zeige_Kategorie(1)")["wert"], true);
    öffnen(a, "I", {"Kategorien merken=True", "Kategorien=36"});
    EXPECT_EQ(b->zeige("Tonkartei.zeige_Kategorie(6)")["wert"], true);
    EXPECT_EQ(b->zeilen("Tonkartei.Liste"), Zeilen{});
}

TEST_F(Hauptfenster, Uninstall_hinterlässt_nichts) {
    const std::string frage =
        "Uninstall|Mit dieser Funktion werden die gemerkten Einstellungen der Tonkartei in der Registry gelöscht und beim "
        "beenden nicht neu gespeichert. Zum kompletten Deinstallieren müssen Sie danach nur noch die Exe-Datei löschen.\n\n"
        "Wollen sie fortfahren?|?*Ja/Nein";
    öffnen(a);
    beenden();
    öffnen(a);
    geschehen();
    hände({"klick Tonkartei.Uninstall", "antwort Nein"});
    EXPECT_EQ(geschehen(), Zeilen{frage});
    EXPECT_EQ(wert("Anzahl-Zeit"), "10");
    hände({"klick Tonkartei.Uninstall", "antwort Ja"});
    EXPECT_TRUE(b->registrierung().empty()) << b->registrierung();
    hand("klick Tonkartei.Papierkorb_löschen");
    beenden();
    // The next start, which still says where it is, finds no setting of before.
    starten();
    EXPECT_EQ(b->bereit_name(), "Splash");
    EXPECT_EQ(wert("Anzahl-Zeit"), "-");
}

}  // namespace
}  // namespace tonkartei
