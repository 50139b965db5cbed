// A file of the Dateisystem that closes itself.
#pragma once

#include <cstdint>
#include <span>
#include <utility>

#include "grundlagen/fehler.hpp"
#include "plattform/dateisystem.hpp"

namespace tonkartei {

// Throws the Dateifehler of the opening. Its end closes without a word: who wants to know how the closing of a written file
// went closes by hand before.
class Offene_Datei {
public:
    Offene_Datei(Dateisystem& dateien, const Text& pfad, Dateimodus modus)
        : dateien_(dateien), griff_(dateien.öffnen(pfad, modus)) {}
    ~Offene_Datei() {
        try {
            schließen();
        } catch (const Dateifehler&) {
            // what was to be written has been written or reported
        }
    }
    Offene_Datei(const Offene_Datei&) = delete;
    Offene_Datei& operator=(const Offene_Datei&) = delete;

    // Asked once, then remembered.
    std::uint64_t Länge() {
        if (!Länge_bekannt_) {
            länge_ = dateien_.Länge(griff_);
            Länge_bekannt_ = true;
        }
        return länge_;
    }
    std::size_t lesen(std::uint64_t stelle, std::span<char> ziel) { return dateien_.lesen(griff_, stelle, ziel); }
    void schreiben(std::uint64_t stelle, std::span<const char> bytes) { dateien_.schreiben(griff_, stelle, bytes); }
    void sichern() { dateien_.sichern(griff_); }
    // The file is closed in any case.
    void schließen() {
        if (griff_ != 0) dateien_.schließen(std::exchange(griff_, 0));
    }

private:
    Dateisystem& dateien_;
    Dateisystem::Griff griff_;
    std::uint64_t länge_ = 0;
    bool Länge_bekannt_ = false;
};

}  // namespace tonkartei
