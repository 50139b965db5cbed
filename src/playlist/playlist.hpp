// The window in which the user puts songs of the open collection into an order of his own, keeps that as a list file, hands
// it to the player or makes a new collection of it. It knows songs by their numbers alone.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/haus.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/menue.hpp"

namespace tonkartei {

class Listenbereich;
class M3U;
class WinAmp_Starter;

class Playlist : public Fenster {
public:
    // `liste` is the main window's area: where songs are dragged from, and where the window's own can be shown.
    Playlist(Haus& haus, const M3U& m3u, Listenbereich& liste, WinAmp_Starter& starter);

    Listenfeld Liste{*this, "Liste"};
    // Side by side with Liste: the number of each line's song. Both change together.
    Listenfeld Nr_Liste{*this, "Nr_Liste"};
    Schriftfeld Liste_Anzahl_Text{*this, "Liste_Anzahl_Text", "Lieder:"};
    Schriftfeld Liste_Anzahl{*this, "Liste_Anzahl", "0"};
    Dreistufer Reihenfolge{*this, "Reihenfolge"};
    Knopf löschen{*this, "löschen", "&löschen"};
    Knopf alle_löschen{*this, "alle_löschen", "&alle löschen"};

    // Opens the window when it is not open.
    void zeigen_falls_nötig();
    // With `Nachfragen` the user is asked once for every line that has the song already; the last answer counts. Error 9
    // for a number that can be no song's.
    void add_Lied(Long Nr, bool Nachfragen);
    // The same for many, without questions.
    void add_Lieder(const std::vector<Long>& Nummern);
    // The lines as the collection has their songs now. The numbers stay, whatever song they mean meanwhile.
    void aktualisieren();
    // Empties the list after its questions; Cancel keeps it.
    void Neu();
    void starten();
    void aktuelles_löschen();
    void alles_löschen();
    // At the end of the program: nothing is asked.
    void Hauptfenster_schließt();
    // Takes the main window's state if the user wants it so, and hides with it in the tray.
    void Hauptfenster_folgen(Fensterzustand haupt, bool im_Tray);
    // The stored place and size, and those of the open window.
    void Lage_setzen(const Bereich& neue);

    // What a line becomes in a new collection.
    struct Auszug {
        Text Name, Pfad;
        Byte Kategorie = 0;
        Long Größe = 0;
    };

    // Connected by the composition. The dialog of new songs takes these; then the new collection is made, and the user goes
    // on there.
    std::function<void(const std::vector<Auszug>&)> Datenbank_vorbereiten;
    std::function<void()> Datenbank_anlegen;

protected:
    Knoten anordnung() override;
    Größe Startgröße() override;
    void beim_Laden() override;
    bool beim_Schließen(Schließgrund grund) override;
    void bei_neuer_Größe() override { Lage_merken(); }
    void bei_neuer_Lage() override { Lage_merken(); }

private:
    std::vector<Menüzeile> Tabelle();
    // The song that a drag from that control carries; 0 none.
    Long gezogenes_Lied(const Element& quelle) const;
    void Haken_setzen();
    void Lage_merken();

    std::vector<Long> Nummern() const;
    bool vorhanden(Long Nr) const { return Nr >= 1 && Nr <= modell_.Anzahl_Lieder; }
    Text Zeile_von(Long Nr) const;
    void setzen(const std::vector<Long>& nummern);
    void Anzahl_zeigen();
    void verschieben(int schritt);

    void sortieren();
    void Dateigröße();
    void speichern();
    void öffnen();
    void erstelle_DB_Liste();
    void erstelle_Datenbank();

    Modell& modell_;
    Einstellungen& einstellungen_;
    Dateisystem& dateien_;
    const M3U& m3u_;
    Listenbereich& datenbankliste_;
    WinAmp_Starter& starter_;
    Menü menü_;
    // The list has no changes that a save would keep.
    bool Playlist_gespeichert_ = true;
};

}  // namespace tonkartei
