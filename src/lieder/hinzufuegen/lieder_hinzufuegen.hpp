// The commands of the main window that add songs: each source collects files and hands them to neue_Lieder_Liste.
#pragma once

#include "datenbank/haus.hpp"
#include "lieder/hinzufuegen/neue_lieder_liste.hpp"
#include "lieder/hinzufuegen/verzeichnis_add.hpp"

namespace tonkartei {

class Lieder_hinzufügen {
public:
    Lieder_hinzufügen(Haus& haus, Verzeichnis_add& verzeichnis, neue_Lieder_Liste& liste)
        : modell_(haus.modell),
          dateien_(haus.plattform.Dateisystem),
          kanäle_(haus.kanäle),
          einstellungen_(haus.einstellungen),
          verzeichnis_(verzeichnis),
          liste_(liste) {}

    // All MP3 files of one folder. None of these does anything while no collection is open.
    void Lieder_hinzufügen_Verzeichnis();
    // Files from the file manager, and the MP3 files of folders among them. Nothing happens when none of them is one.
    void Lieder_hinzufügen_Ablage(const std::vector<Text>& pfade);
    // The files that a list file names.
    void Lieder_hinzufügen_Playlist();

private:
    void beginnen();
    // The MP3 files of a folder into the list, and how many; Dateifehler when it cannot be read.
    int Ordner_aufnehmen(const Text& ordner);
    int Datei_aufnehmen(const Text& pfad);
    void aufgeben();
    void Playlist_lesen(const Text& datei, int nummer);
    void Verzeichnis_merken(const Text& pfad);
    // Bytes of what can be opened as a file; -1 else.
    std::int64_t Länge_wenn_lesbar(const Text& pfad) const;

    const Modell& modell_;
    Dateisystem& dateien_;
    Kanäle& kanäle_;
    Einstellungen& einstellungen_;
    Verzeichnis_add& verzeichnis_;
    neue_Lieder_Liste& liste_;
};

}  // namespace tonkartei
