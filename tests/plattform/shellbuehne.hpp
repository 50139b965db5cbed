// The shell of this machine, a scratch folder, and a user who answers from a row.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "echt.hpp"
#include "grundlagen/fehler.hpp"
#include "testordner.hpp"

namespace tonkartei {

// What lies in a folder "fern" counts as another volume; writing to a copy can be made to stop.
class Zwei_Laufwerke : public Dateisystem_echt {
public:
    bool kopiert_kurz = false;
    bool löscht_nicht = false;
    int gesichert = 0;

    bool gleiches_Laufwerk(const Text& a, const Text& b) override { return fern(a) == fern(b); }
    void umbenennen(const Text& von, const Text& nach) override {
        if (fern(von) != fern(nach)) throw Dateifehler(74, nach);
        Dateisystem_echt::umbenennen(von, nach);
    }
    void ersetzen(const Text& von, const Text& nach) override {
        if (fern(von) != fern(nach)) throw Dateifehler(74, nach);
        Dateisystem_echt::ersetzen(von, nach);
    }
    void kopieren(const Text& von, const Text& nach) override {
        if (kopiert_kurz) {
            std::ofstream(Testordner::weg_zu(nach)) << "kur";
            throw Dateifehler(61, nach);
        }
        Dateisystem_echt::kopieren(von, nach);
    }
    void sichern(Griff griff) override {
        ++gesichert;
        Dateisystem_echt::sichern(griff);
    }
    void löschen(const Text& pfad) override {
        if (löscht_nicht) throw Dateifehler(70, pfad);
        Dateisystem_echt::löschen(pfad);
    }

private:
    static bool fern(const Text& pfad) { return (pfad + Trenner).find(Trenner + Text("fern") + Trenner) != Text::npos; }
};

class ShellTest : public testing::Test {
protected:
    Testordner ordner;
    Zwei_Laufwerke dateien;
    Papierkorb_echt papierkorb{dateien, ordner.pfad("korb")};
    Shell_echt shell{dateien, papierkorb};
    std::vector<Text> fragen;
    std::vector<Shell_Antwort> antworten;

    ShellTest() {
        shell.Frage_setzen([this](const Text& titel, const Text& text) {
            fragen.push_back(titel + "|" + text);
            const Shell_Antwort antwort = antworten.empty() ? Shell_Antwort::Abbrechen : antworten.front();
            if (!antworten.empty()) antworten.erase(antworten.begin());
            return antwort;
        });
    }
    // Names below the scratch folder. "0", or the return value, with "!" behind it when aborted.
    std::string tu(std::uint32_t code, std::vector<Text> von, std::vector<Text> nach, int flags = 0) {
        Shell_Vorgang vorgang;
        vorgang.Code = code;
        vorgang.Flags = static_cast<std::uint16_t>(flags);
        for (const Text& name : von) vorgang.von.push_back(ordner.pfad(name));
        for (const Text& name : nach) vorgang.nach.push_back(ordner.pfad(name));
        const auto ergebnis = shell.SHFileOperationA(vorgang);
        return std::to_string(ergebnis.Rückgabe) + (ergebnis.abgebrochen ? "!" : "");
    }
    // "name=contents" of every file below a folder, in order.
    std::string stand(std::string_view name = "") const {
        std::set<std::string> zeilen;
        const std::filesystem::path oben = ordner.weg(name);
        const auto kurz = [&](const std::filesystem::directory_entry& eintrag) {
            std::string name_darin = Testordner::Text_von(eintrag.path().lexically_relative(oben));
            std::replace(name_darin.begin(), name_darin.end(), '\\', '/');
            return name_darin;
        };
        for (const auto& eintrag : std::filesystem::recursive_directory_iterator(oben))
            if (!eintrag.is_directory() || eintrag.is_symlink())
                zeilen.insert(kurz(eintrag) + "=" + Testordner::inhalt_von(Testordner::Text_von(eintrag.path())));
            else if (std::filesystem::is_empty(eintrag.path()))
                zeilen.insert(kurz(eintrag) + "/");
        std::string alles;
        for (const auto& zeile : zeilen) alles += zeile + " ";
        return alles;
    }
};

}  // namespace tonkartei
