#include "datenbank/einstellungsspeicher.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "echt.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

// Every key with its default, and how it is stored: # 8-bit, = 32-bit, ? boolean, $ text.
constexpr const char* Liste =
    R"(geöffnete Datenbanken\Anzahl#0|Verzeichnis hinzufügen\Anzahl#0|Anzahl-Zeit=10|Lieder-Namen lesen?False|
Liste-Doppelklick#1|bei_Listensuche_sichtbar?True|Listensuche_Anzahl_Buchstaben#1|löschen in den Papierkorb?True|
Alben-Liste animiert?True|WinAmp$C:\Programme\WinAmp\|WinAmp Lautstärke=75|WinAmp Zeit vorwärts?True|
WinAmp Fernsteuerung?True|WinAmp Fernsteuerung animiert?True|WinAmp Fernsteuerung Lautstärke?False|
WinAmp verstecken?False|WinAmp verstecken wenn DB minimiert?True|WinAmp beenden=4|PositionX=100|PositionY=200|
Kategorien merken?False|Kategorien=1|Random-Einstellung#25|Kategorie-Rechtsklick#1|Kategorie wechsel bestätigen?True|
Kategorie-Farbe=65535|automatische Kategorien Farbe=32768|Markierte Farbe=16763030|Markierte Listen-Farbe=16773340|
Position merken?True|automatisch Kategorie Wechseln\Status?False|automatisch Kategorie Wechseln\Anzahl Lieder=5|
Random-Autoplay?True|Fenster minimieren#2|System-Tray-Symbol immer sichtbar?True|Objekt markierung aktiv?True|
Alben-Verwaltung\PositionX=0|Alben-Verwaltung\PositionY=0|Playlist\PositionX=300|Playlist\PositionY=400|
Playlist\Breite=500|Playlist\Höhe=600|Playlist\Always on top?False|Playlist\autoshow#3|Playlist\Status?False|
Playlist\Position merken?True|Playlist\Minimieren?True|)";
// Written at every start, and never read.
constexpr const char* Anzeige = R"(Datenport=888|Statusport=889|Controlport=889|Register-Select=1|Enable=2|Taster 1=1|
Taster 2=2|Taster 3=3|Taster 1 aktiv=False|Taster 2 aktiv=False|Taster 3 aktiv=False|Anzahl Zeilen=4|Anzahl Zeichen=20|
Adresse Zeile 1=0|Adresse Zeile 2=40|Adresse Zeile 3=20|Adresse Zeile 4=60|Befehls-Zeit=40|Anzeige-Zeit=40|
Init 1 aktiv=True|Init 1 Wert=48|Init 1 Zeit=80|Init 2 aktiv=True|Init 2 Wert=56|Init 2 Zeit=80|
Init 3 aktiv=True|Init 3 Wert=12|Init 3 Zeit=40|Init 4 aktiv=True|Init 4 Wert=6|Init 4 Zeit=40)";

// A folder whose name is no text, as each system has them.
const Text krumm = Trenner == '/' ? "/müsik \xFF/" : "C:\\müsik \xED\xA0\x80\\";

using Werte = std::map<Text, Text>;
const Text Wurzel = "Software\\Tonkartei\\";

struct Einstellungen_Test : testing::Test {
    Testordner ordner;
    Registrierung_echt registrierung{ordner.pfad("e.reg")};
    Registry registry{registrierung};
    Einstellungen werte;
    Einstellungs_Vorgaben vorgaben{100, 200, 300, 400, 500, 600, "C:\\Programme\\WinAmp\\"};
    struct Schlüssel {
        Text name, vorgabe;
        char art;
    };
    std::vector<Schlüssel> tabelle;
    Werte anzeige;

    Einstellungen_Test() {
        registry.Registry_Wurzel(HKEY_CURRENT_USER, "Software\\Tonkartei");
        std::istringstream zeilen(Liste), paare(Anzeige);
        for (Text zeile; std::getline(zeilen >> std::ws, zeile, '|');) {
            const auto trenner = zeile.find_first_of("#=?$");
            tabelle.push_back({zeile.substr(0, trenner), zeile.substr(trenner + 1), zeile[trenner]});
        }
        for (Text paar; std::getline(paare >> std::ws, paar, '|');)
            anzeige[Wurzel + "Display\\" + paar.substr(0, paar.find('='))] = paar.substr(paar.find('=') + 1);
    }
    Werte gespeichert() {
        const auto alle = registrierung.alle();
        return {alle.begin(), alle.end()};
    }
    void lesen() { Einstellungen_lesen(registry, werte, vorgaben); }
    // All of them stand there as `wert` says, and come out of a run as `erwartet` says.
    template <class Wert, class Erwartet>
    void Lauf(Wert&& wert, Erwartet&& erwartet) {
        Werte soll = anzeige;
        for (const auto& s : tabelle) {
            if (const auto text = wert(s)) registry.Wert_schreiben(s.name, *text);
            soll[Wurzel + s.name] = erwartet(s);
        }
        lesen();
        Einstellungen_schreiben(registry, werte);
        EXPECT_EQ(gespeichert(), soll);
    }
};

TEST_F(Einstellungen_Test, alle_Schlüssel) {
    const auto vorgabe = [](const auto& s) { return s.vorgabe; };
    lesen();
    EXPECT_EQ(gespeichert(), anzeige) << "the start writes nothing else";
    Lauf([](const auto&) { return std::optional<Text>(); }, vorgabe);
    const auto anders = [](const auto& s) -> Text {
        switch (s.art) {
            case '?': return s.vorgabe == "True" ? "False" : "True";
            case '$': return krumm;
            case '#': return s.name.ends_with("\\Anzahl") ? s.vorgabe : "200";
            default: return "-70000";
        }
    };
    Lauf([&](const auto& s) { return std::optional(anders(s)); }, anders);
    // What is no value of the kind keeps the default; any text but "True" is a no.
    const auto unpassend = [](const auto& s) -> std::optional<Text> {
        return s.art == '?' ? "true" : s.art == '$' ? "" : s.art == '#' ? "300" : "2147483648";
    };
    Lauf(unpassend, [](const auto& s) { return s.art == '?' ? "False" : s.art == '$' ? " " : s.vorgabe; });
}

TEST_F(Einstellungen_Test, Listen_und_fremde_Formen) {
    for (const auto& [roh, erwartet] : {std::pair{"-1", 25}, {"", 25}, {" 7.5 ", 8}, {"abc", 0}, {"6,9", 6}}) {
        registry.Wert_schreiben("Random-Einstellung", roh);
        lesen();
        EXPECT_EQ(werte.Random_Einstellung, erwartet) << roh;
    }
    const auto rohwert = [&](const Text& name, std::uint32_t art, const std::vector<char>& daten) {
        Registrierung::Schlüssel s = 0;
        registrierung.RegCreateKeyExA(HKEY_CURRENT_USER, Wurzel + name, s);
        registrierung.RegSetValueExA(s, "", art, daten);
        registrierung.RegCloseKey(s);
    };
    rohwert("PositionY", REG_DWORD, {1, 1, 0, 0});
    rohwert("WinAmp", REG_SZ, {' ', '/', 0, 'w', '/', ' ', 0});
    rohwert("Kategorien", REG_BINARY, {1, 2, 3, 4});
    lesen();
    EXPECT_EQ(werte.PositionY, 257);
    EXPECT_EQ(werte.WinAmp_Verzeichnis, "/w/");
    EXPECT_EQ(werte.Kategorien, 1);

    werte.Datenbank_Liste_Anzahl = werte.Verzeichnis_Anzahl = 10;
    werte.Datenbank_Liste[10] = krumm;
    werte.Zuletzt_hinzugefügte_Verzeichnisse[1] = "/b/";
    werte.Display.Enable = 77;
    Einstellungen_schreiben(registry, werte);
    Werte alles = gespeichert();
    EXPECT_EQ(alles.size(), tabelle.size() + anzeige.size() + 20);
    EXPECT_EQ(alles[Wurzel + "geöffnete Datenbanken\\Nr. 9"], " ");
    EXPECT_EQ(alles[Wurzel + "Verzeichnis hinzufügen\\Nr. 1"], "/b/");
    EXPECT_EQ(alles[Wurzel + "Display\\Enable"], "77");
    lesen();
    EXPECT_EQ(werte.Datenbank_Liste[10], krumm);
    EXPECT_EQ(werte.Datenbank_Liste[9], "");
    EXPECT_EQ(werte.Display.Enable, 2);
    registry.Byte_schreiben("geöffnete Datenbanken\\Anzahl", 11);
    EXPECT_THROW(lesen(), Laufzeitfehler);
    registry.alles_löschen();
    EXPECT_TRUE(gespeichert().empty());
}

}  // namespace
}  // namespace tonkartei
