// The whole program on a scratch folder: collections to put there, and a hand that writes down what it is asked.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "bediener/bediener.hpp"
#include "mp3/bausteine.hpp"
#include "testordner.hpp"

namespace tonkartei {

struct Probelied {
    std::string Artist, Titel;
    int Anzahl = 0, KByte = 100, Kategorie = 2;
    std::string Stunde = "0", Minute = "3", Sekunde = "20";
};

struct Sammlung {
    std::vector<Probelied> Lieder = {{"Anna", "Zug"}, {"Berta", "Yacht"}, {"Carla", "Xylophon"}};
    std::string Titel = "Tonkartei", Version = "V 1.02 16";
    std::vector<std::string> Kategorien = {"Alle", "Freestyle", "Hip-Hop/Rap", "Metal/Punk", "Sonstiges", "Techno"};
    int Schemas = 0, Grenze = 0;

    // What the info file holds, byte for byte; for texts within ASCII.
    std::string bytes() const {
        std::string t;
        const auto zeile = [&t](const std::string& text) { t += text + "\r\n"; };
        const auto zahl = [&](long long n) { zeile((n < 0 ? "" : " ") + std::to_string(n) + " "); };
        zeile(Titel);
        zeile(Version);
        zahl(static_cast<long long>(Kategorien.size()));
        for (const auto& name : Kategorien) zeile(name);
        zahl(Schemas);
        for (int s = 1; s <= 9; ++s) {
            zahl(1);
            zeile("Schema " + std::to_string(s));
            zahl(s % 6 + 1);
        }
        zahl(Grenze);
        zahl(static_cast<long long>(Lieder.size()));
        for (const auto& lied : Lieder) {
            zahl(lied.Anzahl);
            zeile(lied.Artist);
            zahl(lied.KByte);
            zahl(lied.Kategorie);
            zeile(lied.Titel);
            for (const auto& teil : {lied.Stunde, lied.Minute, lied.Sekunde}) zeile(teil);
        }
        return t;
    }
};

inline std::string Zugriffsdatei_Bytes(const std::string& titel = "Tonkartei", const std::string& version = "V 1.02 16",
                                       const std::string& kennung = "Datenbank-Zugriffsdatei") {
    return titel + "\r\n" + version + "\r\n" + kennung + "\r\nTURM\r\nHEIDI\r\n5\r\n3\r\n2026\r\n14\r\n7\r\n33\r\n";
}

// An event as one line: "Caption|text|?*Ja/Nein" for a question with its default starred, "i" for an information.
inline std::string als_Zeile(const nlohmann::json& e) {
    const std::string art = e["ereignis"];
    const auto feld = [&e](const char* name) { return e.at(name).get<std::string>(); };
    if (art == "meldung") {
        std::string knöpfe;
        for (const std::string knopf : e["knöpfe"])
            knöpfe += (knöpfe.empty() ? "" : "/") + std::string(knopf == e["vorgabe"] ? "*" : "") + knopf;
        const std::string kopf = feld("quelle") == "programm" ? "" : feld("quelle") + ":";
        if (feld("art") == "information" && knöpfe == "*OK") return kopf + feld("titel") + "|" + feld("text") + "|i";
        return kopf + feld("titel") + "|" + feld("text") + "|" + (feld("art") == "frage" ? "?" : "i") + knöpfe;
    }
    if (art == "eingabe") return "Eingabe|" + feld("text") + "|" + feld("vorgabe");
    if (art == "ordner") return "Ordner|" + feld("titel");
    if (art == "fortschritt") return "Fortschritt|" + feld("text");
    if (art == "laufzeitfehler") return "Laufzeitfehler|" + std::to_string(e["nummer"].get<int>());
    return art;
}

class Bühne : public testing::Test {
protected:
    Testordner ordner;
    std::unique_ptr<Bediener> b;
    // All events since the start or the last look at it, and "FEHLER ..." for a command that could not be done.
    std::vector<std::string> Ablauf;

    // A folder with a collection; its path with separator.
    std::string sammlung(const std::string& name, const Sammlung& s = {}) const {
        const std::string pfad = ordner.ordner(name);
        ordner.datei(name + "/MP3_Info.MDB", s.bytes());
        return pfad;
    }
    static std::vector<std::string> zuletzt(const std::vector<std::string>& pfade) {
        std::vector<std::string> setze{"geöffnete Datenbanken\\Anzahl=" + std::to_string(pfade.size())};
        for (std::size_t i = 0; i < pfade.size(); ++i)
            setze.push_back("geöffnete Datenbanken\\Nr. " + std::to_string(i + 1) + "=" + pfade[i]);
        return setze;
    }
    Bediener& starten(Bediener::Optionen o = {}) {
        b.reset();
        if (o.wurzel.empty()) o.wurzel = ordner.ordner("wurzel");
        if (o.ordner.empty()) o.ordner = ordner.pfad();
        o.Frist = 20;
        b = std::make_unique<Bediener>(o);
        Ablauf.clear();
        mitschreiben();
        return *b;
    }
    Bediener& öffnen(const std::string& pfad, const std::string& parameter = {}, std::vector<std::string> setze = {}) {
        for (const auto& eintrag : zuletzt({pfad})) setze.push_back(eintrag);
        return starten({.parameter = parameter, .setze = setze});
    }
    void hand(const std::string& zeile) {
        (*b)(zeile);
        mitschreiben();
    }
    void hände(const std::vector<std::string>& zeilen) {
        for (const auto& zeile : zeilen) hand(zeile);
    }
    void beenden() {
        hand("klick Tonkartei.MP_Beenden");
        EXPECT_EQ(b->Ende_abwarten(), 0);
    }
    // What has happened since the last look.
    std::vector<std::string> geschehen() { return std::exchange(Ablauf, {}); }
    std::string mdb(const std::string& name = "a") const { return ordner.inhalt(name + "/MP3_Info.MDB"); }
    // The value of a setting, "-" when its key is not there.
    std::string wert(const std::string& schlüssel) {
        return b->registrierung().value("Software\\Tonkartei\\" + schlüssel, "-");
    }

private:
    void mitschreiben() {
        for (const auto& antwort : b->antworten())
            if (antwort.contains("ereignis")) Ablauf.push_back(als_Zeile(antwort));
        if (!b->fehler().empty()) Ablauf.push_back("FEHLER " + b->fehler());
    }
};

using Zeilen = std::vector<std::string>;

}  // namespace tonkartei
