// The session of a collection: opening, creating, saving, leaving, and the list of recent folders.
#pragma once

#include <functional>

#include "datenbank/einstellungen.hpp"
#include "datenbank/modell.hpp"
#include "grundlagen/ereignis.hpp"

namespace tonkartei {

class Ansicht;
class Datenbank_öffnen;
class Info_Datei;
class Zugriffsdatei;
struct Haus;
struct Plattform;

class Sitzung {
public:
    Sitzung(Haus& haus, Info_Datei& info, Zugriffsdatei& zugriff);

    // Opens the collection in Datenbank_Verzeichnis. False: declined, or a failure was shown.
    bool lade_Datenbank();
    bool schreibe_Datenbank(bool Fortschritt_zeigen);
    // The collection is left although the save just failed: what is in memory is kept beside the info file. True when it
    // was.
    bool ungespeichert_verlassen();
    // Saves the open collection and opens the one in `Pfad`; an empty path only saves.
    void öffne_Datenbank_Verzeichnis(const Text& Pfad);
    // Makes a new collection. With `fragen` the user decides whether the categories are taken over, else the second flag.
    // True when it stands and is open.
    bool Datenbank_erstellen(bool fragen, bool Kategorien_übernehmen);
    // Saving by hand, with its explanation.
    void speichern_von_Hand();
    // A line of the combo box of recent folders was picked.
    void zuletzt_geöffnete_wählen(const Text& Pfad);

    // Folder of the collection, with trailing separator; bare file names resolve against it from now on.
    void Verzeichnis_setzen(const Text& Pfad);
    // The open folder moves to the first place of the recent list.
    void Datenbank_Liste_nachführen();

    // The folder is the new collection's already, memory is not: what is asked meanwhile may end the program, and then
    // nothing may be saved.
    bool wechselt() const noexcept { return wechselt_; }

    // Start parameter I: the access file of the first collection of the run is ignored.
    bool Zugriffsdatei_ignorieren = false;
    // Re-reads names, sizes and times of all songs, when the setting asks for it.
    std::function<void()> Lieder_einlesen;
    // Another collection is about to take the place of the open one: comparison windows close.
    Ereignis<> vor_Wechsel;
    // A collection was loaded or made; the main window follows. True: the start categories are to be set.
    Ereignis<bool> geladen;

private:
    bool Zugriff_erlaubt();
    bool gespeichert_oder_verzichtet(const Text& titel, const Text& frage);
    void andere_Speicher_vergessen();

    Modell& modell_;
    Einstellungen& einstellungen_;
    Info_Datei& info_;
    Zugriffsdatei& zugriff_;
    const Plattform& plattform_;
    Ansicht& ansicht_;
    // From the change of folder until memory holds what belongs to it; for good when a run-time error comes in between.
    bool wechselt_ = false;
};

}  // namespace tonkartei
