// The start window: the program's picture while the first collection is opened, and the choice of one when the last is gone.
#pragma once

#include <array>
#include <optional>

#include "datenbank/einstellungen.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/listen.hpp"

namespace tonkartei {

struct Datenbankraum;
struct Haus;

class Splash : public Fenster {
public:
    explicit Splash(Datenbankraum& datenbank);

    Bildfläche Symbol{*this, "Symbol", "symbol"};
    Schriftfeld Programm_Name{*this, "Programm_Name"};
    Schriftfeld Programm_Version{*this, "Programm_Version"};
    Schriftfeld Autor{*this, "Autor"};
    Schriftfeld Copyright{*this, "Copyright"};
    Listenfeld Liste{*this, "Liste"};
    Knopf Button_1{*this, "Button", "&Diese öffnen", 1};
    Knopf Button_2{*this, "Button", "&andere öffnen...", 2};
    Knopf Button_3{*this, "Button", "&neue erstellen", 3};
    Knopf Button_4{*this, "Button", "Programm-&Ende", 4};
    Schriftfeld Status{*this, "Status"};
    Schriftfeld Willkommen{*this, "Willkommen",
                           "Willkommen! Eine Datenbank ist ein Ordner, in dem die Tonkartei Ihre Lieder ordnet."};

    // Second half of the start: opens the last collection or lets the user choose. False when the start is given up.
    bool lade_erste_Datenbank();
    // The user is choosing; closing the program then gives the start up.
    bool wählt() const noexcept { return wählt_; }
    void aufgeben();

protected:
    Knoten anordnung() override;
    Größe Startgröße() override { return {8400, 4800}; }
    void beim_Laden() override;
    bool beim_Schließen(Schließgrund grund) override;
    void beim_Entladen() override { fertig_ = true; }
    void bei_neuer_Größe() override;

private:
    void Datenbank_wählen();
    void Symbol_gleiten_lassen();
    void diese_öffnen();
    void andere_öffnen();
    void neue_erstellen();
    void Vorschau_zeigen();

    Datenbankraum& datenbank_;
    Haus& haus_;
    bool fertig_ = false, neu_erstellt_ = false, wählt_ = false;
    // What a line's collection holds, read at the first click on it.
    std::array<std::optional<Text>, Verzeichnisse_maximal> Informationen_;
};

}  // namespace tonkartei
