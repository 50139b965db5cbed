// MP3_Info.ALB: the albums of a collection, one value a line. Reader and writer mirror each other.
#pragma once

#include "alben/alben.hpp"

namespace tonkartei {

class Ansicht;
class Dateisystem;
class Kanäle;
struct Modell;

inline constexpr const char* Alben_Datei_Name = "MP3_Info.ALB";
inline constexpr const char* Alben_Kopie_Name = "MP3_Bak.ALB";  // bare: lies in the current folder

class Alben_Datei {
public:
    Alben_Datei(Modell& modell, Alben& alben, Kanäle& kanäle, Dateisystem& dateien, Ansicht& ansicht);

    // The open collection has an album file.
    bool Album_Datei_vorhanden() const;
    // Reads the open collection's file into the own store, which then counts as loaded; another file, named by its path,
    // into the foreign one. False, and the store as before, for whatever failed; only a bad head has been told to the user.
    bool Alben_lesen(const Text& Datei = {});
    // The own store is loaded, or was read just now.
    bool geladen_oder_gelesen();
    // Writes the own store and takes `Alben_geändert` back. A store that is not loaded is never written: it would put
    // nothing in the place of a file that could not be read. False after a failure, of which nobody has been told.
    bool Alben_schreiben();
    // Song `alt` is now `neu`, or gone when `neu` is below 1: the links follow, in a store that is read for it if need be.
    void Album_Referenz_ändern(Long alt, Long neu);

private:
    bool Alben_prüfen(const Text& Datei, int& Dateinummer);
    void Körper_lesen(int nummer, Albenbestand& bestand);
    void Album_lesen(int nummer, Album& album);
    void Körper_schreiben(int nummer);

    Modell& modell_;
    Alben& alben_;
    Kanäle& kanäle_;
    Dateisystem& dateien_;
    Ansicht& ansicht_;
};

}  // namespace tonkartei
