// A real file system with trouble on order: failing operations, folders that refuse writing, other volumes, little room, and
// a power failure.
#pragma once

#include <map>
#include <set>
#include <vector>

#include "plattform/dateisystem.hpp"
#include "probe/stoerung.hpp"
#include "probe/ungesichert.hpp"

namespace tonkartei {

class Dateisystem_Probe : public Dateisystem {
public:
    Dateisystem_Probe(Dateisystem& echt, Störungen& störungen) : echt_(echt), störungen_(störungen) {}

    // Everything below that folder refuses writing.
    void Schreibschutz(const Text& ordner, bool an);
    // That folder counts as another volume.
    void Laufwerk(const Text& ordner);
    // What every volume reports as free.
    void Platz(std::uint64_t bytes) { platz_ = bytes; }
    // What was written and not synced is gone. Nothing is open afterwards.
    void Strom_weg();

    Griff öffnen(const Text& pfad, Dateimodus modus) override;
    std::size_t lesen(Griff griff, std::uint64_t stelle, std::span<char> ziel) override;
    void schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) override;
    std::uint64_t Länge(Griff griff) override { return echt_.Länge(griff); }
    void sichern(Griff griff) override;
    void schließen(Griff griff) override;
    bool Datei_da(const Text& pfad) override { return echt_.Datei_da(pfad); }
    bool Ordner_da(const Text& pfad) override { return echt_.Ordner_da(pfad); }
    std::int64_t Dateilänge(const Text& pfad) override { return echt_.Dateilänge(pfad); }
    std::optional<Zeitpunkt> Änderungszeit(const Text& pfad) override { return echt_.Änderungszeit(pfad); }
    void umbenennen(const Text& von, const Text& nach) override;
    void ersetzen(const Text& von, const Text& nach) override;
    void löschen(const Text& pfad) override;
    void Ordner_anlegen(const Text& pfad) override;
    void Ordner_löschen(const Text& pfad) override;
    std::vector<Eintrag> auflisten(const Text& pfad) override { return echt_.auflisten(pfad); }
    void kopieren(const Text& von, const Text& nach) override;
    bool gleiches_Laufwerk(const Text& a, const Text& b) override;
    bool gleiche_Datei(const Text& a, const Text& b) override;
    std::optional<std::uint64_t> freie_Bytes(const Text& ordner) override;
    const Text& aktueller_Ordner() const override { return echt_.aktueller_Ordner(); }
    void aktuellen_Ordner_setzen(const Text& ordner) override { echt_.aktuellen_Ordner_setzen(ordner); }

private:
    // Absolute, "." and ".." and doubled separators resolved by their text, with a trailing separator.
    Text voller_Pfad(const Text& pfad) const;
    bool geschützt(const Text& pfad) const;
    void Umbenennen_prüfen(const Text& von, const Text& nach);
    // 0 for the ordinary volume.
    std::size_t Laufwerk_von(const Text& pfad) const;

    Dateisystem& echt_;
    Störungen& störungen_;
    std::map<Griff, Text> offene_;  // full paths
    Ungesichert ungesichert_;
    std::set<Text> geschützt_;
    std::vector<Text> laufwerke_;
    std::optional<std::uint64_t> platz_;
};

}  // namespace tonkartei
