// The dialog with which any part asks for a song's category.
#pragma once

#include <functional>
#include <vector>

#include "datenbank/modell.hpp"
#include "oberflaeche/elemente.hpp"
#include "oberflaeche/listen.hpp"
#include "oberflaeche/wartedialog.hpp"

namespace tonkartei {

class Kategorie_Wahl : public Wartedialog<Byte> {
public:
    Kategorie_Wahl(Ansicht& ansicht, const Modell& modell);

    Schriftfeld Titel{*this, "Titel"};
    Schriftfeld Artist{*this, "Artist"};
    Listenfeld Liste{*this, "Liste"};
    Knopf abspielen{*this, "abspielen", "mit WinAmp &anhören"};
    Knopf Kategorie_Edit{*this, "Kategorie_Edit", "Kategorien &bearbeiten..."};

    // Shows the song and waits for a click on a line: the number of the category. The close box does nothing unless the
    // end comes from outside (then category 1). A second question may come up while the first one waits: it goes first.
    Byte wählen(const Text& titel, const Text& artist, const Text& Datei);
    // The lines, as the table of categories has them; called when the table changes.
    void Kategorien_füllen();

    // Plays the file whose category is asked for; connected by the composition.
    std::function<void(const Text& Datei)> Datei_abspielen;
    // Opens the category editor; without one its button is disabled.
    std::function<void()> Kategorien_bearbeiten;

protected:
    Knoten anordnung() override;
    bool beim_Schließen(Schließgrund grund) override;

private:
    const Modell& modell_;
    Text datei_;  // of the song that is asked for
};

}  // namespace tonkartei
