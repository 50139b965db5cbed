#include "lieder/hinzufuegen/datenbank_quelle.hpp"

#include "datenbank/info_datei.hpp"
#include "datenbank/konvertierung.hpp"
#include "datenbank/version.hpp"
#include "datenbank/zeitleser.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

void Datenbank_Quelle::add_Datenbank() {
    if (!modell_.Datenbank_offen) return;
    const auto sperren = [this](bool gesperrt) {
        if (liste_.Hauptfenster_sperren) liste_.Hauptfenster_sperren(gesperrt);
    };
    sperren(true);
    const Text ordner = mit_Trenner(öffnen_.Dialog());
    std::vector<Fund> funde;
    if (ordner.empty() || !sammeln(ordner, funde)) {
        sperren(false);
        return;
    }
    liste_.Reset();
    for (const Fund& fund : funde) {
        liste_.add_MP3_Tag(fund.Artist_Titel);
        liste_.add_Lied(ordner + fund.Dateiname, fund.Kategorie);
        liste_.add_MP3_Größe(fund.Größe);
    }
    liste_.activate(Quelle_Datenbank, false);
}

// False: cancelled, or the user was told.
bool Datenbank_Quelle::sammeln(const Text& ordner, std::vector<Fund>& funde) {
    Ansicht& ansicht = liste_.ansicht();
    Text datei = ordner + Info_Datei_Name;
    if (!dateien_.Datei_da(datei)) {
        ansicht.informieren("Datenbank hinzufügen", "An dieser Stelle wurde keine Datenbank gefunden!");
        return false;
    }
    // A collection of its own stands for the other one, so that opening and converting it leave the open one alone.
    Modell andere;
    andere.Datenbank_Verzeichnis = ordner;
    andere.Programmversion = modell_.Programmversion;
    Konvertierung konvertierung(andere, kanäle_, dateien_, ansicht, fortschritt_, rechner_.Temp_Verzeichnis());
    Info_Datei info(andere, kanäle_, dateien_, ansicht, fortschritt_);
    info.konvertiere_1_00 = [&](Text& d, int& n) { return konvertierung.konvertiere_1_00(d, n); };
    info.konvertiere_1_01 = [&](Text& d, int& n) { return konvertierung.konvertiere_1_01(d, n); };

    int nummer = 0;
    bool gelesen = false;
    if (info.pruefe_Info_Datei(datei, nummer)) {
        try {
            gelesen = lesen(datei, nummer, funde);
        } catch (const Laufzeitfehler&) {
            // Cut off, or numbers that cannot be: the open collection is none the worse for it.
            ansicht.informieren(Programmtitel, "Es ist ein Fehler beim öffnen der Informationsdatei aufgetreten!");
        } catch (...) {
            kanäle_.aufgeben(nummer);
            throw;
        }
        kanäle_.aufgeben(nummer);
    }
    if (andere.konvertiert_in_Temp) {
        try {
            dateien_.löschen(andere.Temp_Info_Datei);
        } catch (const Dateifehler&) {
            // Then it stays until the folder is cleaned up.
        }
    }
    return gelesen;
}

std::vector<Text> Datenbank_Quelle::Kategorien_lesen(int nummer) {
    const Byte anzahl = kanäle_.lese_Byte(nummer);
    if (anzahl > Kategorien_maximal) throw Laufzeitfehler(Fehler_Index);
    std::vector<Text> kategorien;
    for (int k = 1; k <= anzahl; ++k) kategorien.push_back(kanäle_.lese_Zeile(nummer));
    return kategorien;
}

// The body behind the head. False when the choice of categories was cancelled.
bool Datenbank_Quelle::lesen(const Text& datei, int& nummer, std::vector<Fund>& funde) {
    std::vector<Text> kategorien = Kategorien_lesen(nummer);
    // While the user chooses the program may end and save; should the other collection be the open one, its file must be
    // free for that.
    kanäle_.schließen(nummer);
    nummer = 0;
    const auto gewählt = start_Kategorien_.wählen(kategorien);
    if (!gewählt) return false;
    nummer = kanäle_.öffnen_zum_Lesen(datei);
    for (int kopfzeile = 1; kopfzeile <= 2; ++kopfzeile) kanäle_.lese_Wert(nummer);
    kategorien = Kategorien_lesen(nummer);
    const auto anzahl_kategorien = kategorien.size();
    zuordnung_.Quelle_setzen(std::move(kategorien));

    kanäle_.lese_Byte(nummer);  // schemes offered
    for (int s = 1; s <= Schemas_maximal; ++s) {
        const Byte anzahl = kanäle_.lese_Byte(nummer);
        kanäle_.lese_Zeile(nummer);
        for (int i = 1; i <= anzahl; ++i) kanäle_.lese_Byte(nummer);
    }
    kanäle_.lese_Long(nummer);  // backup limit
    const Long anzahl = kanäle_.lese_Long(nummer);
    for (Long n = 1; n <= anzahl; ++n) {
        Fund fund;
        kanäle_.lese_Long(nummer);  // times heard
        const Text artist = kanäle_.lese_Zeile(nummer);
        fund.Größe = kanäle_.lese_Long(nummer);
        fund.Kategorie = kanäle_.lese_Byte(nummer);
        fund.Artist_Titel = artist + " - " + kanäle_.lese_Zeile(nummer);
        drei_Zahlen_lesen(kanäle_);
        // One whose category does not exist there comes with all songs only, and its new category is asked for.
        if (fund.Kategorie > anzahl_kategorien) fund.Kategorie = 0;
        if (!gewählt->front() && (fund.Kategorie == 0 || !(*gewählt)[fund.Kategorie - 1U])) continue;
        fund.Dateiname = Lied_Dateiname(n);
        funde.push_back(std::move(fund));
    }
    return true;
}

}  // namespace tonkartei
