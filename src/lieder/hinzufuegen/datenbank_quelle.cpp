#include "lieder/hinzufuegen/datenbank_quelle.hpp"

#include "datenbank/info_koerper.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

void Datenbank_Quelle::add_Datenbank() {
    if (!haus_.modell.Datenbank_offen) return;
    const auto sperren = [this](bool gesperrt) {
        if (liste_.Hauptfenster_sperren) liste_.Hauptfenster_sperren(gesperrt);
    };
    sperren(true);
    const Text ordner = mit_Trenner(öffnen_.Dialog());
    if (ordner.empty() || !sammeln(ordner)) sperren(false);
}

// False: cancelled, or the user was told.
bool Datenbank_Quelle::sammeln(const Text& ordner) {
    Quell_Datenbank leser(haus_);
    if (!leser.vorhanden(ordner)) {
        haus_.ansicht.informieren("Datenbank hinzufügen", "An dieser Stelle wurde keine Datenbank gefunden!");
        return false;
    }
    // Read whole before the user chooses: meanwhile the program may end and save, and should the other collection be the
    // open one, its file must be free for that.
    const auto quelle = leser.lesen(ordner);
    if (!quelle) return false;
    std::vector<Text> kategorien;
    for (int k = 1; k <= quelle->Anzahl_Kategorien; ++k) kategorien.push_back(quelle->Kategorien[k]);
    const auto gewählt = start_Kategorien_.wählen(kategorien);
    if (!gewählt) return false;
    zuordnung_.Quelle_setzen(std::move(kategorien));
    liste_.Reset();
    for (Long nr = 1; nr <= quelle->Anzahl_Lieder; ++nr) {
        const Lied& lied = quelle->Lieder[nr];
        // One whose category does not exist there comes with all songs only, and its new category is asked for.
        const Byte kategorie = Kategorie_bekannt(*quelle, lied.Kategorie) ? lied.Kategorie : Byte{0};
        if (!gewählt->front() && (kategorie == 0 || !(*gewählt)[kategorie - 1U])) continue;
        liste_.add_MP3_Tag(lied.Artist + " - " + lied.Titel);
        liste_.add_Lied(ordner + Lied_Dateiname(nr), kategorie);
        liste_.add_MP3_Größe(lied.Größe);
    }
    liste_.activate(Quelle_Datenbank, false);
    return true;
}

}  // namespace tonkartei
