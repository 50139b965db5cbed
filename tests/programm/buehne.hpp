// The whole program on a scratch folder: collections to put there, and a hand that writes down what it is asked.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bediener/bediener.hpp"
#include "mp3/bausteine.hpp"
#include "testordner.hpp"

namespace tonkartei {

using Zeilen = std::vector<std::string>;

struct Probelied {
    std::string Artist, Titel;
    int Anzahl = 0, KByte = 100, Kategorie = 2;
    std::string Stunde = "0", Minute = "3", Sekunde = "20";
};

struct Sammlung {
    std::vector<Probelied> Lieder = {{"Anna", "Zug"}, {"Berta", "Yacht"}, {"Carla", "Xylophon"}};
    std::string Titel = "Tonkartei", Version = "V 1.02 16";
    Zeilen Kategorien = {"Alle", "Freestyle", "Hip-Hop/Rap", "Metal/Punk", "Sonstiges", "Techno"};
    int Schemas = 0, Grenze = 0;
    bool Standard = false;  // the schemes of a new one

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
            zahl(Standard ? 1 : s % 6 + 1);
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

// An event as one line: "Caption | text | ?*Ja/Nein" for a question with its default starred, "i" for an information.
inline std::string als_Zeile(const nlohmann::json& e) {
    const std::string art = e["ereignis"];
    const auto feld = [&e](const char* name) { return e.at(name).get<std::string>(); };
    if (art == "meldung") {
        std::string knöpfe;
        for (const std::string knopf : e["knöpfe"])
            knöpfe += (knöpfe.empty() ? "" : "/") + std::string(knopf == e["vorgabe"] ? "*" : "") + knopf;
        const std::string kopf = (feld("quelle") == "programm" ? "" : feld("quelle") + ":") + feld("titel") + " | ";
        if (feld("art") == "information" && knöpfe == "*OK") return kopf + feld("text") + " | i";
        return kopf + feld("text") + " | " + (feld("art") == "frage" ? "?" : "i") + knöpfe;
    }
    if (art == "eingabe") return "Eingabe " + feld("titel") + " | " + feld("text") + " | " + feld("vorgabe");
    if (art == "ordner") return "Ordner | " + feld("titel");
    if (art == "datei")
        return "Datei " + feld("art") + " | " + feld("filter") + " | " + feld("vorschlag") +
               (e["muss_existieren"] == true ? " | muss" : "");
    if (art == "farbe") return "Farbe | " + e["vorgabe"].dump();
    if (art == "fortschritt")
        return "Fortschritt | " + feld("text") + (e["prozent"] == 100 ? "" : " " + e["prozent"].dump());
    if (art == "kontextmenü") return "Menü | " + feld("name");
    if (art == "laufzeitfehler") return "Laufzeitfehler | " + e["nummer"].dump();
    return art;
}

class Bühne : public testing::Test {
protected:
    Testordner ordner;
    std::unique_ptr<Bediener> b;
    // All events since the start or the last look at it, and "FEHLER ..." for a command that could not be done.
    Zeilen Ablauf;

    // A folder with a collection; its path with separator.
    std::string sammlung(const std::string& name, const Sammlung& s = {}) const {
        const std::string pfad = ordner.ordner(name);
        ordner.datei(name + "/MP3_Info.MDB", s.bytes());
        return pfad;
    }
    // Song n of the collection "a" is "An - Tn"; its file tells the same, so that it shows which file belongs to which
    // record. Those in `weg` have a title of their own.
    void lege(int anzahl, const std::vector<int>& ohne_Datei = {}, const std::vector<int>& weg = {}) const {
        Sammlung s;
        s.Lieder.clear();
        for (int n = 1; n <= anzahl; ++n)
            s.Lieder.push_back(
                {"A" + std::to_string(n), std::count(weg.begin(), weg.end(), n) > 0 ? "weg" : "T" + std::to_string(n), n});
        std::filesystem::remove_all(ordner.pfad("a"));
        sammlung("a", s);
        for (int n = 1; n <= anzahl; ++n)
            if (std::count(ohne_Datei.begin(), ohne_Datei.end(), n) == 0) ordner.datei(datei(n), bytes(n));
    }
    static std::string datei(int n) {
        const std::string ziffern = std::to_string(n);
        return "a/" + std::string(8 - ziffern.size(), '0') + ziffern + ".MP3";
    }
    static std::string ton(int n) { return "Ton " + std::to_string(n) + std::string(2000, '.'); }
    static std::string bytes(int n) {
        const std::string artist = "A" + std::to_string(n), titel = "T" + std::to_string(n);
        return ton(n) + Tag_Bytes{.Titel = titel, .Artist = artist}.Block();
    }
    static Zeilen zuletzt(const Zeilen& pfade) {
        Zeilen setze{"geöffnete Datenbanken\\Anzahl=" + std::to_string(pfade.size())};
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
    Bediener& öffnen(const std::string& pfad, const std::string& parameter = {}, Zeilen setze = {}) {
        for (const auto& eintrag : zuletzt({pfad})) setze.push_back(eintrag);
        return starten({.parameter = parameter, .setze = setze});
    }
    void hand(const std::string& zeile) {
        (*b)(zeile);
        mitschreiben();
    }
    void hände(const Zeilen& zeilen) {
        for (const auto& zeile : zeilen) hand(zeile);
    }
    void wechseln(const std::string& pfad) {
        hände({"klick Tonkartei.öffne_Datenbank", "setze Datenbank_öffnen.Pfad " + Bediener::zitiert(pfad),
               "klick Datenbank_öffnen.Ok"});
    }
    void beenden() {
        hand("klick Tonkartei.MP_Beenden");
        EXPECT_EQ(b->Ende_abwarten(), 0);
    }
    // Answers whatever comes with the first choice, up to the main loop.
    void durchziehen() {
        for (int i = 0; i < 40 && b->bereit() != "schleife"; ++i)
            hand(b->bereit() == "meldung" ? b->ereignis("meldung")["knöpfe"].size() == 1 ? "antwort OK" : "antwort Ja"
                 : b->bereit_name() == "Kategorie_Wahl" ? "wähle Kategorie_Wahl.Liste 0"
                                                        : "klick " + b->bereit_name() + ".Ok");
        ASSERT_EQ(b->bereit(), "schleife");
        ASSERT_EQ(b->fenster("Tonkartei")["aktiv"], true);
    }
    // Chooses the song of that number.
    void wähle(int nr) {
        const Zeilen nummern = b->zeilen("Tonkartei.Nr_Liste");
        const auto fund = std::find(nummern.begin(), nummern.end(), std::to_string(nr));
        ASSERT_NE(fund, nummern.end());
        hand("wähle Tonkartei.Liste " + std::to_string(fund - nummern.begin()));
    }
    // Whose records stand on the numbers, in order; "-" behind one without its file, "!" behind one with another's file.
    std::string stand() {
        const Zeilen zeilen = b->zeilen("Tonkartei.Liste"), nummern = b->zeilen("Tonkartei.Nr_Liste");
        std::map<int, std::string> nach_Nummer;
        for (std::size_t i = 0; i < zeilen.size(); ++i) {
            const int nr = std::stoi(nummern[i]);
            std::string wer = zeilen[i].substr(1, zeilen[i].find(' ') - 1);
            if (!ordner.da(datei(nr)))
                wer += "-";
            else if (ordner.inhalt(datei(nr)) != bytes(std::atoi(wer.c_str())))
                wer += "!";
            nach_Nummer[nr] = wer;
        }
        std::string text;
        for (const auto& [nr, wer] : nach_Nummer) text += (text.empty() ? "" : " ") + wer;
        return text;
    }
    // What has happened since the last look.
    Zeilen geschehen() { return std::exchange(Ablauf, {}); }
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

}  // namespace tonkartei
