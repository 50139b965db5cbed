// What the program asks of the user's side: windows, boxes, waiting, timers. The base class keeps what every view needs
// alike (the loaded windows and their order, the focus, the modal ones, the timers); a view shows it.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "grundlagen/ereignis.hpp"
#include "grundlagen/fehler.hpp"
#include "grundlagen/text.hpp"
#include "oberflaeche/element.hpp"
#include "oberflaeche/farbe.hpp"
#include "oberflaeche/geometrie.hpp"
#include "oberflaeche/medien.hpp"

namespace tonkartei {

class Fenster;
class Menüpunkt;
class Zeitgeber;

enum class Antwort { OK, Ja, Nein, Abbrechen };

struct Meldungsfeld {
    enum class Art { Information, Frage };
    enum class Knöpfe { OK, JaNein, JaNeinAbbrechen };
    Text titel, text;
    Art art = Art::Information;
    Knöpfe knöpfe = Knöpfe::OK;
    Antwort vorgabe = Antwort::OK;
    // Who asks: "programm", "shell".
    Text quelle = "programm";
};

struct Eingabefeld {
    Text text, titel, vorgabe;
};

struct Dateiwahl {
    bool speichern = false;
    Text filter;     // "WinAmp-Playlist (*.M3U)|*.M3U| Alle Dateien (*.*) |*.*"
    Text vorschlag;  // file name
    bool muss_existieren = false;
};

class Ansicht {
public:
    Ansicht() = default;
    virtual ~Ansicht() = default;
    Ansicht(const Ansicht&) = delete;
    Ansicht& operator=(const Ansicht&) = delete;

    // --- boxes -------------------------------------------------------------------------------------------------------
    virtual Antwort melden(const Meldungsfeld& feld) = 0;
    // Empty on Cancel.
    virtual Text eingeben(const Text& text, const Text& titel, const Text& vorgabe) = 0;
    virtual Text Verzeichnis_wählen(const Text& titel) = 0;
    virtual Text Datei_wählen(const Dateiwahl& wahl) = 0;
    virtual std::optional<Farbe> Farbe_wählen(Farbe vorgabe) = 0;

    // Text of each message box of the program, before it comes up.
    Ereignis<const Text&> Kasten;
    void informieren(const Text& titel, const Text& text);
    // Yes/No with the question icon; true for Yes.
    bool fragen(const Text& titel, const Text& text, Antwort vorgabe = Antwort::Ja);
    // Yes/No/Cancel.
    Antwort fragen_oder_abbrechen(const Text& titel, const Text& text, const Text& quelle = "programm");

    // --- windows (called by Fenster and Element) ---------------------------------------------------------------------
    virtual void Fenster_geändert(Fenster& fenster) = 0;                     // title, visible, state, place, size, enabled
    virtual void Element_geändert(Element& element, unsigned änderung) = 0;  // bits of Änderung
    virtual void Fenster_malen(Fenster& fenster) = 0;                        // repaints at once, runs no input
    virtual void Fenster_verschwindet(Fenster&) {}                           // the object dies; its controls are gone
    virtual void modal_laufen(Fenster& fenster) = 0;                         // until it is hidden
    virtual void Menü_zeigen(Menüpunkt& wurzel) = 0;                         // a pop-up menu at the mouse
    virtual void Zwischenablage_setzen(const Text& text) = 0;
    // Shows the handbook; false where there is none.
    virtual bool Handbuch_zeigen() { return false; }
    // Help was asked for, by F1 in any window.
    std::function<void()> Hilfe;
    // The desktop wants to know what plays; only then it is told, since the telling asks the player.
    virtual bool fragt_nach_Medien() const { return false; }
    virtual void Medien_zeigen(const Medienstand&) {}
    // What it may ask of the program.
    Medienbefehle Medien;
    // A word at the edge of the screen that goes by itself.
    virtual void mitteilen(const Text& /*titel*/, const Text& /*text*/) {}
    // Whether the desktop has a place for a tray symbol, from which a hidden window can be brought back.
    virtual bool Tray_da() const { return true; }
    // A progress window that has run to its end.
    virtual void Fortschritt_beendet(const Text& text, int prozent);

    // --- measures, twips -----------------------------------------------------------------------------------------------
    virtual int Textbreite(const Text& text, int punkte) const = 0;
    virtual int Texthöhe(int punkte) const = 0;
    // The size at which a control shows all of itself.
    virtual Größe Wunschgröße(const Element& element) const = 0;
    virtual Größe Bildschirm() const = 0;
    // The largest inside that a window can have on the screen; 0 in a direction without a limit.
    virtual Größe freie_Fläche(const Fenster&) const { return {}; }
    // Room that a frame's border and title take: left, top, width and height beyond the inside.
    virtual Bereich Rahmenrand(const Element& rahmen) const = 0;
    // Height of a line of a list.
    virtual int Zeilenhöhe(int punkte) const = 0;

    // --- running -------------------------------------------------------------------------------------------------------
    // Handles what is pending and returns; does not block. Throws Programmende once the end is decided and this is a nested
    // wait.
    virtual void Ereignisse_laufen_lassen() = 0;
    // Lets events run until the condition holds, which is asked after every event. `fenster` is the dialog that waits.
    virtual void warten_bis(Fenster& fenster, const std::function<bool()>& bedingung) = 0;
    virtual void Zeitgeber_gestellt(Zeitgeber& zeitgeber) = 0;
    virtual void Zeitgeber_entfernt(Zeitgeber& zeitgeber) = 0;
    // A run-time error is about to end the program: the last thing that can be done, and what there is to say of it in the
    // error box. Must not throw.
    std::function<Text()> vor_dem_Absturz;
    // Shows the error box and ends the process at once with status 1, nothing is saved.
    [[noreturn]] virtual void an_Laufzeitfehler_enden(const Laufzeitfehler& fehler) = 0;

    // Runs a handler under the guard: run-time errors end the program, the orderly end is remembered.
    void ausführen(const std::function<void()>& handler);
    // Decides the end: the main loop ends, nested waits are left by Programmende.
    void beenden();
    bool endet() const noexcept { return endet_; }

    // --- shared state --------------------------------------------------------------------------------------------------
    // The loaded windows, front first.
    const std::vector<Fenster*>& fenster() const noexcept { return fenster_; }
    // All that exist, loaded or not, in the order of their making.
    const std::vector<Fenster*>& alle_Fenster() const noexcept { return alle_; }
    // The innermost modal window, or null.
    Fenster* modales_Fenster() const noexcept { return modale_.empty() ? nullptr : modale_.back(); }
    // False for windows that a modal one blocks: those that were up before it.
    bool erreichbar(const Fenster& fenster) const;
    Element* fokus() const noexcept { return fokus_; }
    // Gives the focus to a control; ignored when it cannot take it.
    void fokus(Element& element);
    // The view's report that the user moved it; no echo.
    void von_Hand_Fokus(Element* element) noexcept { fokus_ = element; }

    // Called by Fenster.
    void Fenster_entstanden(Fenster& fenster);
    void Fenster_vergangen(Fenster& fenster);
    void Fenster_aufnehmen(Fenster& fenster);
    void Fenster_vergessen(Fenster& fenster);
    void Fenster_nach_vorn(Fenster& fenster);
    void Fenster_gezeigt(Fenster& fenster);  // became visible; what was up before a modal window is blocked by it
    void Element_verschwindet(Element& element);
    void modal_laufen_lassen(Fenster& fenster);

protected:
    // What the error box says; does what is to be done before the end.
    Text Fehlertext(const Laufzeitfehler& fehler);
    virtual void Fokus_zeigen(Element&) {}

private:
    std::vector<Fenster*> fenster_, alle_;
    std::vector<Fenster*> modale_;
    std::vector<const Fenster*> gezeigt_;  // in the order of their becoming visible
    Element* fokus_ = nullptr;
    bool endet_ = false;
};

}  // namespace tonkartei
