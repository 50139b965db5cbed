// MP3_Info.MDB: categories, schemes and all songs of a collection, one value a line. Reader and writer mirror each other.
#pragma once

#include <functional>

#include "datenbank/konvertierung.hpp"
#include "datenbank/modell.hpp"
#include "datenbank/rettung.hpp"

namespace tonkartei {

class Ansicht;
class Dateisystem;
class Fortschritts_Fenster;
class Kanäle;

inline constexpr const char* Info_Datei_Name = "MP3_Info.MDB";
inline constexpr const char* Info_Kopie_Name = "MP3_Bak.MDB";  // bare: lies in the current folder
inline constexpr const char* Zugriffsdatei_Name = "MP3_Info.DBG";

// What a version text in the second line needs: 0 unknown, 1 none, 2 and 3 one and two conversion steps.
int Versionsstufe(const Text& version);

class Info_Datei {
public:
    // The temporary folder takes what is converted but cannot be written beside its source.
    Info_Datei(Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Fortschritts_Fenster& fortschritt,
               const Text& Temp_Verzeichnis);

    // Opens the file on a channel and tests its two head lines, with the questions about other versions. True: the channel
    // stands just behind the head. False: it is closed and the user was told.
    bool pruefe_Info_Datei(Text& Datei, int& Dateinummer);

    // Reads the body behind the head into the model and closes the file. False, after the box, when the file ends too soon
    // or cannot be read; the model is then as before. Counts and numbers that are out of range are run-time errors.
    bool lesen(int Dateinummer);

    // Writes everything that must be written, under the safety copy. False after a failure, which the user was told.
    bool schreibe_Datenbank(bool Fortschritt_zeigen);

    // What a session leaves where it could not save.
    Rettung Gerettetes;
    // The last save was not able to write the info file.
    bool zu_retten() const noexcept { return zu_retten_; }
    // The writers of the albums and of the ignore list, called when those were changed.
    std::function<bool()> Alben_schreiben, Ignorieren_schreiben;

private:
    bool Kopf_prüfen(Text& Datei, int& Dateinummer);
    void Kategorie_berichtigen(Bestand& bestand, Lied& lied);
    bool Datei_schreiben(bool Fortschritt_zeigen);

    Modell& modell_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    Ansicht& ansicht_;
    Fortschritts_Fenster& fortschritt_;
    Konvertierung konvertierung_;
    bool zu_retten_ = false;
};

}  // namespace tonkartei
