// The disk through the system's wide calls. Files open here are known by volume and number, so that another name of an open
// file is refused as well.
#pragma once

#include <string>

#include "plattform/dateisystem.hpp"
#include "plattform/windows/dateiangaben.hpp"
#include "plattform/windows/systemgriff.hpp"

namespace tonkartei {

// Paths: pfadform.hpp. What no file can bear is not there, and 75 when something is to be done with it.
class Dateisystem_Windows : public Dateisystem {
public:
    Dateisystem_Windows();
    Dateisystem_Windows(const Dateisystem_Windows&) = delete;
    Dateisystem_Windows& operator=(const Dateisystem_Windows&) = delete;

    // Others may read what is open here, and may write it while it is only read here.
    Griff öffnen(const Text& pfad, Dateimodus modus) override;
    std::size_t lesen(Griff griff, std::uint64_t stelle, std::span<char> ziel) override;
    void schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) override;
    // Of a file open for reading, as it was when it was opened.
    std::uint64_t Länge(Griff griff) override;
    void sichern(Griff griff) override;
    void schließen(Griff griff) override;

    bool Datei_da(const Text& pfad) override;
    bool Ordner_da(const Text& pfad) override;
    Pfadart Art_von(const Text& pfad) override;
    std::int64_t Dateilänge(const Text& pfad) override;
    std::optional<Zeitpunkt> Änderungszeit(const Text& pfad) override;

    // Folders, too. A change of case alone is no existing target.
    void umbenennen(const Text& von, const Text& nach) override;
    // The target keeps its own spelling.
    void ersetzen(const Text& von, const Text& nach) override;
    // A link is deleted itself, not what it points to.
    void löschen(const Text& pfad) override;
    void Ordner_anlegen(const Text& pfad) override;
    void Ordner_löschen(const Text& pfad) override;
    std::vector<Eintrag> auflisten(const Text& pfad) override;
    void kopieren(const Text& von, const Text& nach) override;
    bool gleiches_Laufwerk(const Text& a, const Text& b) override;
    bool gleiche_Datei(const Text& a, const Text& b) override;
    std::optional<std::uint64_t> freie_Bytes(const Text& ordner) override;

    // With a separator at its end; at first the process's.
    const Text& aktueller_Ordner() const override { return aktueller_Ordner_; }
    // In the disk's spelling. 76 when it is no folder.
    void aktuellen_Ordner_setzen(const Text& ordner) override;

private:
    struct Offen {
        Systemgriff griff;
        bool schreibend = false;
        Dateikennung kennung;
        std::uint64_t länge = 0;
        Text pfad;  // as it was opened
        std::wstring weit;
    };

    Offen& Offen_von(Griff griff);
    // The open file that this is, preferably one that writes; null without.
    const Offen* offen_hier(const Dateikennung& datei) const;
    // What is open under this name.
    const Offen* offen_hier(const std::wstring& weit) const;
    // The path for the system. Dateifehler 53 when it is empty or would end early, 75 when no file can bear it.
    std::wstring weit(const Text& pfad) const;
    // What is there under a path; none without.
    std::optional<Dateiangaben> da(const Text& pfad) const;
    // The same for a file that is to be worked on; throws.
    Dateiangaben genau(const std::wstring& weit, const Text& pfad, int verweigert = 75) const;
    [[noreturn]] void werfen_beim_Öffnen(unsigned long fehler, const std::wstring& weit, const Text& pfad) const;

    Text aktueller_Ordner_;
    std::vector<Offen> offene_;  // handle n at n - 1
};

}  // namespace tonkartei
