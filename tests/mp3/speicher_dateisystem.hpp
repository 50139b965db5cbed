// Files in memory, for the code that reads and writes songs: counts the calls, fails when told, plays at any length.
#pragma once

#include <algorithm>
#include <cstring>
#include <map>
#include <string>

#include "grundlagen/fehler.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

class Speicher_Dateisystem : public Dateisystem {
public:
    struct Datei {
        std::string Inhalt;
        std::uint64_t Länge_dahinter = 0;  // zeros that are not held
        bool gesperrt = false;             // has a length, may not be opened
        bool nur_lesbar = false;
    };
    std::map<Text, Datei> Dateien;
    int Öffnungen = 0;
    int Lesungen = 0;
    int Schreibungen = 0;
    int Fehler_bei_Lesung = 0;  // the how-manieth fails; 0 none
    int Fehler_bei_Schreibung = 0;
    std::size_t offene() const { return griffe_.size(); }

    Griff öffnen(const Text& pfad, Dateimodus modus) override {
        if (modus == Dateimodus::schreiben) Dateien[pfad] = {};
        const auto datei = Dateien.find(pfad);
        if (datei == Dateien.end()) throw Dateifehler(53, pfad);
        if (datei->second.gesperrt || (modus != Dateimodus::lesen && datei->second.nur_lesbar)) throw Dateifehler(75, pfad);
        ++Öffnungen;
        griffe_[++letzter_Griff_] = &datei->second;
        return letzter_Griff_;
    }
    std::size_t lesen(Griff griff, std::uint64_t stelle, std::span<char> ziel) override {
        if (++Lesungen == Fehler_bei_Lesung) throw Dateifehler(57);
        const Datei& datei = *griffe_.at(griff);
        const std::uint64_t länge = Länge(griff);
        if (stelle >= länge) return 0;
        const auto anzahl = static_cast<std::size_t>(std::min<std::uint64_t>(ziel.size(), länge - stelle));
        std::fill_n(ziel.begin(), anzahl, '\0');
        if (stelle < datei.Inhalt.size())
            std::memcpy(ziel.data(), datei.Inhalt.data() + stelle,
                        std::min(anzahl, datei.Inhalt.size() - static_cast<std::size_t>(stelle)));
        return anzahl;
    }
    void schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) override {
        if (++Schreibungen == Fehler_bei_Schreibung) throw Dateifehler(61);
        std::string& inhalt = griffe_.at(griff)->Inhalt;
        if (inhalt.size() < stelle + bytes.size()) inhalt.resize(static_cast<std::size_t>(stelle) + bytes.size());
        std::copy(bytes.begin(), bytes.end(), inhalt.begin() + static_cast<std::ptrdiff_t>(stelle));
    }
    std::uint64_t Länge(Griff griff) override {
        const Datei& datei = *griffe_.at(griff);
        return datei.Inhalt.size() + datei.Länge_dahinter;
    }
    void sichern(Griff) override {}
    void schließen(Griff griff) override {
        if (griffe_.erase(griff) == 0) throw Dateifehler(52);
    }
    bool Datei_da(const Text& pfad) override { return Dateien.contains(pfad); }
    std::int64_t Dateilänge(const Text& pfad) override {
        const auto datei = Dateien.find(pfad);
        if (datei == Dateien.end()) return -1;
        return static_cast<std::int64_t>(datei->second.Inhalt.size() + datei->second.Länge_dahinter);
    }

    void umbenennen(const Text& von, const Text& nach) override {
        Dateien[nach] = Dateien.at(von);
        Dateien.erase(von);
    }
    void ersetzen(const Text& von, const Text& nach) override { umbenennen(von, nach); }
    void löschen(const Text& pfad) override { Dateien.erase(pfad); }

    // Nothing here reads or changes folders.
    bool Ordner_da(const Text&) override { return false; }
    std::optional<Zeitpunkt> Änderungszeit(const Text&) override { return std::nullopt; }
    void Ordner_anlegen(const Text&) override { throw Dateifehler(70); }
    void Ordner_löschen(const Text&) override { throw Dateifehler(70); }
    std::vector<Eintrag> auflisten(const Text&) override { throw Dateifehler(70); }
    void kopieren(const Text&, const Text&) override { throw Dateifehler(70); }
    bool gleiches_Laufwerk(const Text&, const Text&) override { return true; }
    std::optional<std::uint64_t> freie_Bytes(const Text&) override { return std::nullopt; }
    const Text& aktueller_Ordner() const override { return ordner_; }
    void aktuellen_Ordner_setzen(const Text& ordner) override { ordner_ = ordner; }

private:
    std::map<Griff, Datei*> griffe_;
    Griff letzter_Griff_ = 0;
    Text ordner_;
};

}  // namespace tonkartei
