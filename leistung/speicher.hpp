// What the memory benchmarks share: a collection of 5000 songs on disk, a machine of its own, and the memory of this
// process.
#pragma once

#include <cstdio>
#include <fstream>
#include <string>

#include "echt.hpp"
#include "plattform/plattform.hpp"
#include "testordner.hpp"

namespace tonkartei {

// Resident memory of this process in MByte.
inline double Speicher_MB() {
    std::ifstream strom("/proc/self/status");
    for (std::string zeile; std::getline(strom, zeile);)
        if (zeile.rfind("VmRSS:", 0) == 0) return std::stod(zeile.substr(6)) / 1024;
    return 0;
}

// A folder with a collection of 5000 songs that is the last one opened, and the real machine with its settings in it.
struct Speicherprobe {
    Testordner ordner;
    Dateisystem_echt dateien;
    Registrierung_echt registrierung{ordner.pfad("einstellungen.reg")};
    Fenstersystem_echt fenster;
    Papierkorb_echt papierkorb{dateien, ordner.pfad("korb")};
    Shell_echt shell{dateien, papierkorb};
    Rechner_echt rechner{ordner.pfad()};

    Speicherprobe() {
        std::string bytes =
            "Tonkartei\r\nV 1.02 16\r\n 6 \r\nAlle\r\nFreestyle\r\nHip-Hop/Rap\r\nMetal/Punk\r\nSonstiges\r\nTechno\r\n 0 "
            "\r\n";
        for (int s = 1; s <= 9; ++s) bytes += " 1 \r\nSchema " + std::to_string(s) + "\r\n 1 \r\n";
        bytes += " 0 \r\n 5000 \r\n";
        for (int n = 1; n <= 5000; ++n)
            bytes += " 3 \r\nSome Band With A Name " + std::to_string(n % 997) +
                     "\r\n 4000 \r\n 2 \r\nA title of the usual length " + std::to_string(n) + "\r\n0\r\n3\r\n30\r\n";
        ordner.datei("MP3_Info.MDB", bytes);
        merken("geöffnete Datenbanken\\Anzahl", "1");
        merken("geöffnete Datenbanken\\Nr. 1", ordner.pfad());
    }
    Plattform maschine() { return {dateien, registrierung, fenster, shell, rechner}; }

private:
    void merken(const Text& name, const Text& wert) {
        Registrierung::Schlüssel s = 0;
        registrierung.RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Tonkartei\\" + name, s);
        std::vector<char> daten(wert.begin(), wert.end());
        daten.push_back('\0');
        registrierung.RegSetValueExA(s, "", REG_SZ, daten);
        registrierung.RegFlushKey(s);
        registrierung.RegCloseKey(s);
    }
};

}  // namespace tonkartei
