// The simulated disk at a crash.
#include <gtest/gtest.h>

#include "echt.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/offene_datei.hpp"
#include "probe/dateisystem_probe.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

TEST(Probe, VerliertWasNichtGesichertIst) {
    const Testordner ordner;
    Dateisystem_echt echt;
    Störungen störungen{[] {}};
    Dateisystem_Probe dateien(echt, störungen);
    Kanäle kanäle(dateien);
    const auto ändern = [&](const Text& name, std::uint64_t stelle, std::string_view bytes) {
        Offene_Datei(dateien, ordner.pfad(name), Dateimodus::ändern).schreiben(stelle, bytes);
    };
    for (const char* name : {"tag", "alt", "kopiert"}) ordner.datei(name, "0123456789");
    ordner.datei("weg", "x");
    for (const bool sichern : {true, false}) {
        const int nr = kanäle.öffnen_zum_Schreiben(ordner.pfad(sichern ? "sicher" : "flüchtig"));
        kanäle.schreibe_Zeile(nr, "a");
        kanäle.schließen(nr, sichern);
    }
    const int offen = kanäle.öffnen_zum_Schreiben(ordner.pfad("ALT"));
    kanäle.schreibe_Bytes(offen, "offen");
    ändern("tag", 8, "abcd");
    ändern("TAG", 9, "xy");
    dateien.umbenennen(ordner.pfad("tag"), ordner.pfad("neu"));
    ändern("kopiert", 0, "neu");
    dateien.kopieren(ordner.pfad("flüchtig"), ordner.pfad("kopiert"));
    ändern("weg", 0, "y");
    dateien.löschen(ordner.pfad("weg"));
    dateien.Strom_weg();
    EXPECT_EQ(ordner.inhalt("sicher"), "a\r\n");
    EXPECT_EQ(ordner.inhalt("flüchtig"), "");
    EXPECT_EQ(ordner.inhalt("alt"), "") << "emptied by its opening";
    EXPECT_EQ(ordner.inhalt("neu"), "0123456789") << "the name stays, the bytes go";
    EXPECT_EQ(ordner.inhalt("kopiert"), "a\r\n");
    EXPECT_FALSE(ordner.da("weg"));
}

}  // namespace
}  // namespace tonkartei
