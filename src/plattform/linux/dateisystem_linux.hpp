// The disk through POSIX calls. Files open here are known by device and number, so that another name of an open file is
// refused as well.
#pragma once

#include <sys/types.h>

#include "plattform/dateisystem.hpp"
#include "plattform/linux/schreibweise.hpp"

struct stat;

namespace tonkartei {

// Where a path does not exist as it stands, the one that equals it but for case is meant (schreibweise.hpp).
// FIFOs, sockets and devices count as not accessible and are never waited for.
class Dateisystem_Linux : public Dateisystem {
public:
    Dateisystem_Linux();
    ~Dateisystem_Linux() override;
    Dateisystem_Linux(const Dateisystem_Linux&) = delete;
    Dateisystem_Linux& operator=(const Dateisystem_Linux&) = delete;

    Griff öffnen(const Text& pfad, Dateimodus modus) override;
    std::size_t lesen(Griff griff, std::uint64_t stelle, std::span<char> ziel) override;
    void schreiben(Griff griff, std::uint64_t stelle, std::span<const char> bytes) override;
    // Of a file open for reading, as it was when it was opened.
    std::uint64_t Länge(Griff griff) override;
    // The name in its folder, too.
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
        int fd = -1;
        bool schreibend = false;
        dev_t gerät = 0;
        ino_t nummer = 0;
        std::uint64_t länge = 0;
        Text pfad;    // as it was opened
        Text ordner;  // with the disk's spelling
    };

    Offen& Offen_von(Griff griff);
    // The open file that this is, preferably one that writes; null without.
    const Offen* offen_hier(const struct stat& datei) const;
    Text voll(const Text& pfad) const;

    Text aktueller_Ordner_;
    std::vector<Offen> offene_;  // handle n at n - 1
    Schreibweise namen_;
};

}  // namespace tonkartei
