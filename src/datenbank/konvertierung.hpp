// Older layouts of the info file brought to the current one, step by step, file to file.
#pragma once

#include <functional>

#include "datenbank/modell.hpp"

namespace tonkartei {

class Ansicht;
class Dateisystem;
class Fortschritts_Fenster;
class Kanäle;

inline constexpr const char* Konvert_Kopie_Name = "konvert.bak";
inline constexpr const char* Konvert_Zwischen_Name = "konvert.tmp";
inline constexpr const char* Temp_Info_Name = "Tempkonv.MDB";

// Each step takes the open file and gives it back open on the new one, just behind its two head lines. A folder that cannot
// be written to sends the work into the temporary folder, after a question; `Datei` then names the file there, and the model
// remembers that the collection must not be saved. False: the user declined, or was told of the failure, and nothing is
// open. From the first step on until the last one stands, and after a failure, `konvert.bak` is the old file.
class Konvertierung {
public:
    // The temporary folder with trailing separator.
    Konvertierung(Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Fortschritts_Fenster& fortschritt,
                  Text Temp_Verzeichnis);

    // 1.00 to 1.01: texts of songs in the escaped form, no schemes.
    bool konvertiere_1_00(Text& Datei, int& Dateinummer);
    // 1.01 to the current layout: no backup limit and no times yet.
    bool konvertiere_1_01(Text& Datei, int& Dateinummer);

private:
    struct Umsetzung {
        void (Konvertierung::*Körper)(int von, int nach);
        bool letzte;  // its result is the current layout
    };
    struct Weg {
        Text von, nach;
    };
    bool Schritt(Text& Datei, int& Dateinummer, const Umsetzung& umsetzung);
    bool vorbereiten(Text& Datei, int& Dateinummer, const Umsetzung& umsetzung, Weg& weg);
    void aufräumen(const Weg& weg);
    void misslungen();

    void Körper_1_00(int von, int nach);
    void Körper_1_01(int von, int nach);
    void Kopf_überspringen(int nummer);
    Long Long_übertragen(int von, int nach);
    Byte Byte_übertragen(int von, int nach);
    void Zeile_übertragen(int von, int nach);
    void Lieder_übertragen(int von, int nach, const std::function<void()>& Lied);

    Modell& modell_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    Ansicht& ansicht_;
    Fortschritts_Fenster& fortschritt_;
    Text temp_;
    Text zwischen_;  // result of a first step whose second one is still to come; empty: none
};

}  // namespace tonkartei
