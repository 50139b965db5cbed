// A collection whose files tell which song they belong to, and a hand for the commands on songs.
#pragma once

#include <algorithm>
#include <filesystem>
#include <map>

#include "programm/buehne.hpp"

namespace tonkartei {

class Lied_Bühne : public Bühne {
protected:
    std::string a;

    // Song n is "An - Tn"; its file tells the same, so that it shows which file belongs to which record.
    void lege(int anzahl, const std::vector<int>& ohne_Datei = {}) {
        Sammlung s;
        s.Lieder.clear();
        for (int n = 1; n <= anzahl; ++n) s.Lieder.push_back({"A" + std::to_string(n), "T" + std::to_string(n), n});
        std::filesystem::remove_all(ordner.pfad("a"));
        a = sammlung("a", s);
        for (int n = 1; n <= anzahl; ++n)
            if (std::find(ohne_Datei.begin(), ohne_Datei.end(), n) == ohne_Datei.end()) ordner.datei(datei(n), bytes(n));
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
    void starte(bool papierkorb, std::vector<std::string> setze = {}) {
        setze.push_back(std::string("löschen in den Papierkorb=") + (papierkorb ? "True" : "False"));
        öffnen(a, "", setze);
        geschehen();
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
            else if (ordner.inhalt(datei(nr)) != bytes(std::stoi(wer)))
                wer += "!";
            nach_Nummer[nr] = wer;
        }
        std::string text;
        for (const auto& [nr, wer] : nach_Nummer) text += (text.empty() ? "" : " ") + wer;
        return text;
    }
    // Where the sound of song n is: in how many files of the collection's folder.
    int vorhanden(int n) const {
        int zahl = 0;
        for (const auto& eintrag : std::filesystem::directory_iterator(ordner.pfad("a")))
            if (ordner.inhalt("a/" + eintrag.path().filename().string()).starts_with(ton(n))) ++zahl;
        return zahl;
    }
    void bis_zur_Ruhe() {
        for (int i = 0; i < 40 && b->bereit() == "meldung"; ++i)
            hand(b->ereignis("meldung")["knöpfe"].size() == 1 ? "antwort OK" : "antwort Ja");
        ASSERT_EQ(b->bereit(), "schleife");
    }
};

}  // namespace tonkartei
