#include "plattform/schale_dateien.hpp"

#include "grundlagen/fehler.hpp"
#include "plattform/offene_datei.hpp"

namespace tonkartei {
namespace {

constexpr int FEHLER_DATEI_FEHLT = 2;
constexpr int FEHLER_PARAMETER = 87;
constexpr int FEHLER_GLEICHE_DATEI = 0x71;
constexpr int FEHLER_ZIEL_IM_ORDNER = 0x7D;
constexpr int FEHLER_DATEI_STATT_ORDNER = 0x7E;
constexpr int FEHLER_ORDNER_STATT_DATEI = 0x80;
constexpr int höchste_Tiefe = 200;

struct Abbruch {};
struct Fehlschlag {
    int Rückgabe;
};

int Rückgabe_von(const Dateifehler& fehler) {
    switch (fehler.Nummer()) {
        case 53: return FEHLER_DATEI_FEHLT;
        case 76: return 3;
        case 70:
        case 75: return 5;
        case 55: return 32;
        case 58: return 80;
        case 61: return 112;
        case 74: return 17;
        default: return 29;
    }
}

Text für_die_Frage(const Text& pfad) { return in_Anführungszeichen(anzeigbar(Dateiname_von(ohne_Trenner(pfad)))); }

}  // namespace

Shell_Dateivorgang::Shell_Dateivorgang(Dateisystem& dateien, Papierkorb& papierkorb, const Shell_Frage& frage,
                                       const Shell_Vorgang& vorgang)
    : dateien_(dateien), papierkorb_(papierkorb), frage_(frage), vorgang_(vorgang) {}

Shell_Ergebnis Shell_Dateivorgang::ausführen() {
    Shell_Ergebnis ergebnis;
    try {
        if (vorgang_.von.empty()) throw Fehlschlag{FEHLER_PARAMETER};
        switch (vorgang_.Code) {
            case FO_MOVE:
            case FO_COPY: übertragen(); break;
            case FO_DELETE: löschen(); break;
            case FO_RENAME: umbenennen(); break;
            default: throw Fehlschlag{FEHLER_PARAMETER};
        }
    } catch (const Abbruch&) {
        übergangen_ = true;
    } catch (const Fehlschlag& fehlschlag) {
        ergebnis.Rückgabe = fehlschlag.Rückgabe;
    } catch (const Dateifehler& fehler) {
        ergebnis.Rückgabe = Rückgabe_von(fehler);
    }
    ergebnis.abgebrochen = übergangen_;
    return ergebnis;
}

bool Shell_Dateivorgang::ja(const Text& titel, const Text& text) {
    switch (frage_ ? frage_(titel, text) : Shell_Antwort::Abbrechen) {
        case Shell_Antwort::Ja: return true;
        case Shell_Antwort::Nein: übergangen_ = true; return false;
        case Shell_Antwort::Abbrechen: break;
    }
    throw Abbruch{};
}

void Shell_Dateivorgang::löschen() {
    const bool in_den_Korb = hat(FOF_ALLOWUNDO);
    for (const Text& pfad : vorgang_.von)
        if (!da(pfad)) throw Fehlschlag{FEHLER_DATEI_FEHLT};
    if (!in_den_Korb && !hat(FOF_NOCONFIRMATION)) {
        const bool eines = vorgang_.von.size() == 1;
        const Text was =
            eines ? für_die_Frage(vorgang_.von.front()) : "diese " + std::to_string(vorgang_.von.size()) + " Elemente";
        if (!ja(eines ? "Löschen von Dateien bestätigen" : "Löschen mehrerer Dateien bestätigen",
                "Möchten Sie " + was + " wirklich löschen?"))
            return;
    }
    for (const Text& pfad : vorgang_.von) {
        if (in_den_Korb)
            papierkorb_.wegwerfen(pfad);
        else if (dateien_.Datei_da(pfad))
            dateien_.löschen(pfad);
        else
            Ordner_entfernen(pfad, 0);
    }
}

void Shell_Dateivorgang::umbenennen() {
    if (vorgang_.von.size() != 1 || vorgang_.nach.size() != 1) throw Fehlschlag{FEHLER_PARAMETER};
    const Text von = ohne_Trenner(vorgang_.von.front());
    const Text neu = ohne_Trenner(vorgang_.nach.front());
    const Pfadart art = dateien_.Art_von(von);
    if (art == Pfadart::nichts) throw Fehlschlag{FEHLER_DATEI_FEHLT};
    Text nach = ist_absolut(neu) ? neu : Ordner_von(von) + Dateiname_von(neu);
    const Pfadart dort = dateien_.Art_von(nach);
    einen_übertragen(von, art, std::move(nach), dort);
}

void Shell_Dateivorgang::übertragen() {
    const auto& von = vorgang_.von;
    const auto& nach = vorgang_.nach;
    const bool einzeln = hat(FOF_MULTIDESTFILES);
    if (nach.empty() || (einzeln ? nach.size() != von.size() : nach.size() != 1)) throw Fehlschlag{FEHLER_PARAMETER};
    for (std::size_t i = 0; i < von.size(); ++i) {
        const Text quelle = ohne_Trenner(von[i]);
        const Pfadart art = dateien_.Art_von(quelle);
        if (art == Pfadart::nichts) throw Fehlschlag{FEHLER_DATEI_FEHLT};
        Text ziel = einzeln ? nach[i] : nach.front();
        // One target for several sources is their folder; so is a folder that exists, or what is written as one.
        const bool als_Ordner = !einzeln && (von.size() > 1 || (!ziel.empty() && ziel.back() == Trenner));
        ziel = ohne_Trenner(ziel);
        Pfadart dort = dateien_.Art_von(ziel);
        if (als_Ordner || (!einzeln && dort == Pfadart::Ordner)) {
            ziel = mit_Trenner(ziel) + Dateiname_von(quelle);
            dort = dateien_.Art_von(ziel);
        }
        if (const Text ordner = Ordner_von(ziel); dort == Pfadart::nichts && !ordner.empty() && ordner != Ordner_von(quelle))
            Zielordner_anlegen(ordner);
        einen_übertragen(quelle, art, std::move(ziel), dort);
    }
}

void Shell_Dateivorgang::Zielordner_anlegen(const Text& ordner) {
    if (dateien_.Ordner_da(ordner)) return;
    if (!hat(FOF_NOCONFIRMMKDIR) &&
        !ja("Ordner erstellen", "Der Ordner " + in_Anführungszeichen(anzeigbar(ordner)) + " ist nicht vorhanden." +
                                    Text(CRCR) + "Soll er jetzt erstellt werden?"))
        throw Abbruch{};
    std::vector<Text> fehlende;
    for (Text teil = ohne_Trenner(ordner); !teil.empty() && !dateien_.Ordner_da(teil); teil = ohne_Trenner(Ordner_von(teil)))
        fehlende.push_back(teil);
    for (auto i = fehlende.rbegin(); i != fehlende.rend(); ++i) dateien_.Ordner_anlegen(*i);
}

// "Kopie von Lied.mp3", "Kopie (2) von Lied.mp3"
Text Shell_Dateivorgang::freier_Name(const Text& ziel) {
    for (int nummer = 1;; ++nummer) {
        const Text zahl = nummer == 1 ? Text() : "(" + std::to_string(nummer) + ") ";
        Text name = Ordner_von(ziel) + "Kopie " + zahl + "von " + Dateiname_von(ziel);
        if (!da(name)) return name;
    }
}

void Shell_Dateivorgang::einen_übertragen(const Text& von, Pfadart art, Text nach, Pfadart dort) {
    const bool Ordner = art == Pfadart::Ordner;
    const bool verschieben = vorgang_.Code != FO_COPY;
    if (Ordner && groß(nach) != groß(von) && groß(mit_Trenner(nach)).starts_with(groß(mit_Trenner(von))))
        throw Fehlschlag{FEHLER_ZIEL_IM_ORDNER};
    // Only the spelling changes: the target that would be found is the source itself.
    if (verschieben && nach != von && groß(nach) == groß(von)) {
        dateien_.umbenennen(von, nach);
        return;
    }
    bool ersetzen = false;
    if (dort != Pfadart::nichts) {
        if (hat(FOF_RENAMEONCOLLISION)) {
            nach = freier_Name(nach);
        } else {
            if (groß(nach) == groß(von)) throw Fehlschlag{FEHLER_GLEICHE_DATEI};
            const bool Zielordner = dort == Pfadart::Ordner;
            if (Ordner && !Zielordner) throw Fehlschlag{FEHLER_DATEI_STATT_ORDNER};
            if (!Ordner && Zielordner) throw Fehlschlag{FEHLER_ORDNER_STATT_DATEI};
            const Text frage =
                Ordner ? "Dieser Ordner enthält bereits einen Ordner " + für_die_Frage(nach) + "." + Text(CRCR) +
                             "Gleichnamige Dateien darin werden ersetzt. Soll der Ordner trotzdem übertragen werden?"
                       : "Dieser Ordner enthält bereits eine Datei " + für_die_Frage(nach) + "." + Text(CRCR) +
                             "Soll die vorhandene Datei ersetzt werden?";
            if (!hat(FOF_NOCONFIRMATION) &&
                !ja(Ordner ? "Ersetzen von Ordnern bestätigen" : "Ersetzen von Dateien bestätigen", frage))
                return;
            ersetzen = true;
        }
    }
    if (!Ordner) {
        Datei_übertragen(von, nach, ersetzen);
        return;
    }
    if (verschieben && !ersetzen) {
        try {
            dateien_.umbenennen(von, nach);
            return;
        } catch (const Dateifehler& fehler) {
            if (fehler.Nummer() != 74) throw;
        }
    }
    Ordner_übertragen(von, nach, 0);
}

void Shell_Dateivorgang::Datei_übertragen(const Text& von, const Text& nach, bool ersetzen) {
    // Two sources whose names differ by case alone would end as one file.
    if (const auto [i, neu] = ziele_.try_emplace(groß(nach), nach); !neu && i->second != nach) throw Dateifehler(58, nach);
    if (vorgang_.Code == FO_COPY) {
        dateien_.kopieren(von, nach);
        return;
    }
    try {
        if (ersetzen)
            dateien_.ersetzen(von, nach);
        else
            dateien_.umbenennen(von, nach);
        return;
    } catch (const Dateifehler& fehler) {
        if (fehler.Nummer() != 74) throw;
    }
    dateien_.kopieren(von, nach);
    if (dateien_.Dateilänge(nach) != dateien_.Dateilänge(von)) throw Dateifehler(57, nach);
    // The source goes only when the copy would survive a power failure.
    Offene_Datei(dateien_, nach, Dateimodus::lesen).sichern();
    dateien_.löschen(von);
}

void Shell_Dateivorgang::Ordner_übertragen(const Text& von, const Text& nach, int tiefe) {
    if (tiefe > höchste_Tiefe) throw Dateifehler(75, von);
    if (!dateien_.Ordner_da(nach)) dateien_.Ordner_anlegen(nach);
    for (const auto& eintrag : dateien_.auflisten(von)) {
        const Text quelle = mit_Trenner(von) + eintrag.Name;
        const Text ziel = mit_Trenner(nach) + eintrag.Name;
        // What lies behind a link to a folder is not part of this one.
        if (eintrag.ist_Ordner && eintrag.ist_Verweis) throw Dateifehler(75, quelle);
        if (eintrag.ist_Ordner)
            Ordner_übertragen(quelle, ziel, tiefe + 1);
        else
            Datei_übertragen(quelle, ziel, dateien_.Datei_da(ziel));
    }
    if (vorgang_.Code != FO_COPY) dateien_.Ordner_löschen(von);
}

void Shell_Dateivorgang::Ordner_entfernen(const Text& ordner, int tiefe) {
    if (tiefe > höchste_Tiefe) throw Dateifehler(75, ordner);
    for (const auto& eintrag : dateien_.auflisten(ordner)) {
        const Text pfad = mit_Trenner(ordner) + eintrag.Name;
        if (eintrag.ist_Ordner && !eintrag.ist_Verweis)
            Ordner_entfernen(pfad, tiefe + 1);
        else
            dateien_.löschen(pfad);
    }
    dateien_.Ordner_löschen(ordner);
}

}  // namespace tonkartei
