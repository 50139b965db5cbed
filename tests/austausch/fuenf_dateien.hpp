// The five files of exchange in memory, with a user who says yes: what reading each of them gives, as a text.
#pragma once

#include "austausch/abgleich/ignorieren_liste.hpp"
#include "austausch/dateikopf.hpp"
#include "austausch/sicherung/backup_verzeichnis.hpp"
#include "austausch/sicherung/portionsdatei.hpp"
#include "austausch/vergleich/anforderungsdatei.hpp"
#include "austausch/vergleich/vergleichsdatei.hpp"
#include "mp3/speicher_dateisystem.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"
#include "probe/stumme_ansicht.hpp"

namespace tonkartei {

struct Speicher_mit_Zeiten : Speicher_Dateisystem {
    std::optional<Zeitpunkt> Änderungszeit(const Text&) override { return Zeitpunkt{2001, 9, 10, 11, 12, 3}; }
};

struct Fünf_Dateien {
    enum Art { BKV, MBP, MVD, MAD, LIL };
    static constexpr const char* Pfade[] = {"/MP3_Info.BKV", "/p.MBP", "/v.MVD", "/a.MAD", "/MP3_Info.LIL"};

    struct Bejahend : Stumme_Ansicht {
        Antwort melden(const Meldungsfeld& feld) override {
            Stumme_Ansicht::melden(feld);
            return feld.art == Meldungsfeld::Art::Frage ? Antwort::Ja : Antwort::OK;
        }
        Text Datei_wählen(const Dateiwahl&) override { return Pfade[MVD]; }
    };

    Speicher_mit_Zeiten dateien;
    Kanäle kanäle{dateien};
    Bejahend ansicht;
    Fortschritts_Fenster fortschritt{ansicht};
    Modell modell;
    Backup_Verzeichnis verzeichnis{modell, kanäle, dateien, fortschritt};
    Portionsdatei portion{modell, kanäle, ansicht};
    Vergleichsdatei vergleich{modell, kanäle, dateien, fortschritt};
    Anforderungsdatei anforderung{modell, kanäle, ansicht};
    Ignorieren_Liste ignorierte{modell, kanäle, dateien, ansicht};

    Fünf_Dateien() {
        modell.Programmversion = "V 1.02 16";
        modell.Datenbank_Verzeichnis = "/";
        modell.Datenbank_offen = true;
    }

    std::string& inhalt(Art art) { return dateien.Dateien[Pfade[art]].Inhalt; }

    // Two songs or entries of these names, the numbers 12 and 3.
    void schreiben(Art art, const Text& Artist, const Text& Titel) {
        switch (art) {
            case BKV:
                verzeichnis.Einträge = {{Artist, Titel}, {"b", "c"}};
                verzeichnis.Backup_Verzeichnis_schreiben();
                break;
            case MBP: portion.schreiben(Pfade[art], {12, 3}); break;
            case MAD: anforderung.schreiben(Pfade[art], {"12", "3"}); break;
            case MVD:
                modell.Anzahl_Lieder = 2;
                modell.Lieder[1].Artist = Artist;
                modell.Lieder[1].Titel = Titel;
                modell.Lieder[2].Größe = -7;
                vergleich.Vergleichsdatei_erstellen();
                break;
            case LIL:
                for (const Ignorieren_Liste::Eintrag& e : {Ignorieren_Liste::Eintrag{Artist, Titel}, {"b", "c"}})
                    ignorierte.eintragen(ignorierte.Ignorieren_neu(), e);
                ignorierte.Ignorieren_schreiben();
                break;
        }
    }

    // Each entry behind a line break; the boxes are in `ansicht.Meldungen`.
    Text lesen(Art art) {
        Text alles;
        const auto nummern = [&](const std::vector<Long>& liste) {
            for (const Long nr : liste) alles += "\n" + Zahltext(nr);
        };
        const auto namen = [&](const auto& einträge) {
            for (const auto& e : einträge) alles += "\n" + e.Artist + "|" + e.Titel;
        };
        ansicht.Meldungen.clear();
        switch (art) {
            case BKV:
                verzeichnis.Backup_Verzeichnis_lesen();
                namen(verzeichnis.Einträge);
                break;
            case MBP: nummern(portion.lesen(Pfade[art])); break;
            case MAD: nummern(anforderung.lesen(Pfade[art])); break;
            case LIL:
                modell.Ignorieren_geladen = false;
                if (ignorierte.Ignorieren_lesen()) namen(ignorierte.Einträge());
                break;
            case MVD: Vergleichsdatei_lesen(alles); break;
        }
        return alles;
    }

private:
    void Vergleichsdatei_lesen(Text& alles) {
        int nummer = 0;
        try {
            nummer = kanäle.öffnen_zum_Lesen(Pfade[MVD]);
            if (Kopf_prüfen(kanäle, nummer, modell.Programmversion, Vergleichsdatei_Kennung) != Kopffehler::keiner)
                ansicht.Meldungen.emplace_back("Kopf");
            else
                vergleich.lesen(nummer, [&](Long, Long, const Vergleichslied& lied) {
                    alles += "\n" + lied.Artist + "|" + lied.Titel + "|" + Zahltext(lied.Größe) + "|" +
                             langes_Datum(lied.Datum) + " " + lange_Uhrzeit(lied.Datum);
                });
        } catch (const Laufzeitfehler& fehler) {
            ansicht.Meldungen.push_back(Zahltext(fehler.Nummer()));
        }
        kanäle.aufgeben(nummer);
    }
};

}  // namespace tonkartei
