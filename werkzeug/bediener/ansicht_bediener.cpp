#include "bediener/ansicht_bediener.hpp"

#include <algorithm>
#include <cstdlib>

#include "bediener/befehlszeile.hpp"
#include "bediener/json.hpp"
#include "bediener/schau.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/zeitgeber.hpp"

namespace tonkartei {
namespace {

constexpr int Höchstrunden = 100000;
constexpr int Status_hängt = 3;
// How long a toolkit may wait for its next look, milliseconds.
constexpr std::int64_t Malpause = 15;

const char* Antworttext(Antwort antwort) {
    switch (antwort) {
        case Antwort::Ja: return "Ja";
        case Antwort::Nein: return "Nein";
        case Antwort::Abbrechen: return "Abbrechen";
        case Antwort::OK: break;
    }
    return "OK";
}

const char* Standname(Wartestand::Art art) {
    switch (art) {
        case Wartestand::Art::Fenster: return "fenster";
        case Wartestand::Art::Meldung: return "meldung";
        case Wartestand::Art::Eingabe: return "eingabe";
        case Wartestand::Art::Ordner: return "ordner";
        case Wartestand::Art::Datei: return "datei";
        case Wartestand::Art::Farbwahl: return "farbe";
        case Wartestand::Art::Schleife: break;
    }
    return "schleife";
}

}  // namespace

std::vector<Antwort> Antworten_von(const Meldungsfeld& feld) {
    switch (feld.knöpfe) {
        case Meldungsfeld::Knöpfe::JaNein: return {Antwort::Ja, Antwort::Nein};
        case Meldungsfeld::Knöpfe::JaNeinAbbrechen: return {Antwort::Ja, Antwort::Nein, Antwort::Abbrechen};
        case Meldungsfeld::Knöpfe::OK: break;
    }
    return {Antwort::OK};
}

std::optional<Antwort> Antwort_von(const Text& name) {
    for (const Antwort antwort : {Antwort::OK, Antwort::Ja, Antwort::Nein, Antwort::Abbrechen})
        if (name == Antworttext(antwort)) return antwort;
    return std::nullopt;
}

// A stay in a loop: what is waited for, and new counting for the handlers within.
struct Ansicht_Bediener::Aufenthalt {
    Aufenthalt(Ansicht_Bediener& a, Wartestand& stand) : ansicht(a) {
        ansicht.stände_.push_back(&stand);
        ansicht.runden_ = 0;
    }
    ~Aufenthalt() {
        ansicht.stände_.pop_back();
        ansicht.runden_ = 0;
    }
    Aufenthalt(const Aufenthalt&) = delete;
    Aufenthalt& operator=(const Aufenthalt&) = delete;
    Ansicht_Bediener& ansicht;
};

void Ansicht_Bediener::Maler_setzen(Fenstermaler& maler, std::function<void()> pumpen) {
    maler_ = &maler;
    pumpen_ = std::move(pumpen);
}

// --- loops
// -----------------------------------------------------------------------------------------------------------------

void Ansicht_Bediener::Hauptschleife() {
    while (!endet()) Schritt();
}

void Ansicht_Bediener::warten_bis(Fenster& fenster, const std::function<bool()>& bedingung) {
    Wartestand stand;
    stand.art = Wartestand::Art::Fenster;
    stand.fenster = &fenster;
    const Aufenthalt aufenthalt(*this, stand);
    while (!bedingung()) {
        if (endet()) throw Programmende{};
        if (von_außen_ || Sitzung_endet_) {
            fenster.schließen(Schließgrund::außen);
            if (bedingung()) break;
            throw Programmende{};
        }
        Schritt();
    }
    if (endet()) throw Programmende{};
}

void Ansicht_Bediener::modal_laufen(Fenster& fenster) {
    warten_bis(fenster, [&] { return !fenster.sichtbar(); });
}

void Ansicht_Bediener::Feld_abwarten(Wartestand& stand) {
    vergehen_bis_.reset();
    if (von_außen_ || Sitzung_endet_) return;
    const Aufenthalt aufenthalt(*this, stand);
    while (!stand.beantwortet) {
        Zeile_abwarten();
        if (endet()) throw Programmende{};
        if (Sitzung_endet_) return;
    }
}

void Ansicht_Bediener::Schritt() {
    if (!vergehen_bis_) return Zeile_abwarten();
    const bool echt = t_.uhr.läuft_von_selbst();
    if (Zeitschritt(echt ? std::min(t_.uhr.jetzt(), *vergehen_bis_) : *vergehen_bis_)) return;
    std::int64_t rest = *vergehen_bis_ - t_.uhr.jetzt();
    if (rest <= 0) return vergehen_bis_.reset();
    if (echt) {
        if (const auto fällig = zeitplan_.nächste_Fälligkeit()) rest = std::min(rest, *fällig - t_.uhr.jetzt());
        if (pumpen_) rest = std::min(rest, Malpause);
    }
    t_.uhr.vor(std::max<std::int64_t>(1, rest));
    if (pumpen_) pumpen_();
}

// Runs the next timer that is due by then; false when there is none.
bool Ansicht_Bediener::Zeitschritt(std::int64_t bis) {
    const auto fällig = zeitplan_.nächste_Fälligkeit();
    if (!fällig || *fällig > bis) return false;
    t_.uhr.vor(std::max<std::int64_t>(0, *fällig - t_.uhr.jetzt()));
    if (Zeitgeber* zeitgeber = zeitplan_.nehmen(bis, t_.uhr.jetzt())) auslösen(*zeitgeber);
    return true;
}

void Ansicht_Bediener::auslösen(Zeitgeber& zeitgeber) {
    von_Hand([&] { zeitgeber.auslösen(); });
}

void Ansicht_Bediener::von_Hand(const std::function<void()>& handler) {
    runden_ = 0;
    ausführen(handler);
    runden_ = 0;
}

void Ansicht_Bediener::von_außen_schließen(Fenster& fenster) {
    von_außen_ = true;
    von_Hand([&] { fenster.schließen(Schließgrund::außen); });
    von_außen_ = false;
    // A closing by hand is still asking: nobody is there to answer.
    if (fenster.geladen()) Sitzung_endet_ = true;
}

void Ansicht_Bediener::vergehen(std::int64_t ms) {
    if (Stand().ist_Feld())
        t_.uhr.vor(ms);
    else
        vergehen_bis_ = t_.uhr.jetzt() + ms;
}

void Ansicht_Bediener::Ereignisse_laufen_lassen() {
    if (endet()) throw Programmende{};
    Runde();
    if (pumpen_) pumpen_();
    for (std::size_t anzahl = vorgemerkt_.size(); anzahl > 0 && !vorgemerkt_.empty(); --anzahl) {
        const Text zeile = std::move(vorgemerkt_.front());
        vorgemerkt_.pop_front();
        Zeile_ausführen(zeile);
    }
    if (t_.uhr.läuft_von_selbst() && !Stand().ist_Feld())
        while (Zeitschritt(t_.uhr.jetzt())) {
        }
    if (endet()) throw Programmende{};
}

void Ansicht_Bediener::Runde() {
    if (++runden_ < Höchstrunden) return;
    ausgeben(Json::Objekt().mit("bereit", "hängt").text());
    abbrechen(Status_hängt);
}

// --- lines
// -----------------------------------------------------------------------------------------------------------------

void Ansicht_Bediener::bereit_melden() {
    if (!Antwort_schuldig_) return;
    Antwort_schuldig_ = false;
    Json::Objekt antwort;
    if (fehler_) antwort.mit("fehler", *fehler_);
    fehler_.reset();
    const Wartestand& stand = Stand();
    antwort.mit("bereit", Standname(stand.art));
    if (stand.fenster != nullptr) antwort.mit("name", stand.fenster->Name());
    ausgeben(antwort.text());
}

void Ansicht_Bediener::Zeile_abwarten() {
    if (pumpen_) pumpen_();
    bereit_melden();
    std::int64_t frist = pumpen_ ? Malpause : -1;
    const bool mit_Zeit = t_.uhr.läuft_von_selbst() && !Stand().ist_Feld();
    if (mit_Zeit) {
        // One timer a step, so that the loop around sees what it has done.
        if (Zeitschritt(t_.uhr.jetzt())) return;
        if (const auto fällig = zeitplan_.nächste_Fälligkeit()) {
            const std::int64_t rest = std::max<std::int64_t>(0, *fällig - t_.uhr.jetzt());
            frist = frist < 0 ? rest : std::min(frist, rest);
        }
    }
    switch (t_.leitung.abwarten(static_cast<int>(std::min<std::int64_t>(frist, 60000)))) {
        case Leitung::Lage::Zeit_um: return;
        case Leitung::Lage::Ende: abbrechen(0);
        case Leitung::Lage::Zeile: break;
    }
    Antwort_schuldig_ = true;
    Zeile_ausführen(t_.leitung.Zeile());
}

void Ansicht_Bediener::Zeile_ausführen(const Text& zeile) {
    try {
        Befehl(zeile);
    } catch (const Befehlsfehler& fehler) {
        fehler_ = fehler.what();
    }
}

void Ansicht_Bediener::abbrechen(int status) {
    t_.abbrechen(status);
    std::abort();
}

void Ansicht_Bediener::an_Laufzeitfehler_enden(const Laufzeitfehler& fehler) {
    ausgeben(Json::Objekt()
                 .mit("ereignis", "laufzeitfehler")
                 .mit("nummer", fehler.Nummer())
                 .mit("text", einheitliche_Umbrüche(Fehlertext(fehler)))
                 .text());
    ausgeben(Json::Objekt().mit("bereit", "ende").text());
    abbrechen(1);
}

// --- boxes
// -----------------------------------------------------------------------------------------------------------------

Antwort Ansicht_Bediener::melden(const Meldungsfeld& feld) {
    std::vector<Text> knöpfe;
    for (const Antwort antwort : Antworten_von(feld)) knöpfe.emplace_back(Antworttext(antwort));
    const bool einfach = feld.knöpfe == Meldungsfeld::Knöpfe::OK;
    const Antwort vorgabe = einfach ? Antwort::OK : feld.vorgabe == Antwort::OK ? Antwort::Ja : feld.vorgabe;
    ausgeben(Json::Objekt()
                 .mit("ereignis", "meldung")
                 .mit("quelle", feld.quelle)
                 .mit("titel", einheitliche_Umbrüche(feld.titel))
                 .mit("text", einheitliche_Umbrüche(feld.text))
                 .mit("art", feld.art == Meldungsfeld::Art::Frage ? "frage" : "information")
                 .roh("knöpfe", Json::Textliste(knöpfe))
                 .mit("vorgabe", Antworttext(vorgabe))
                 .text());
    Wartestand stand;
    stand.art = Wartestand::Art::Meldung;
    stand.feld = &feld;
    stand.antwort = vorgabe;
    Feld_abwarten(stand);
    return stand.antwort;
}

Text Ansicht_Bediener::eingeben(const Text& text, const Text& titel, const Text& vorgabe) {
    ausgeben(Json::Objekt()
                 .mit("ereignis", "eingabe")
                 .mit("titel", einheitliche_Umbrüche(titel))
                 .mit("text", einheitliche_Umbrüche(text))
                 .mit("vorgabe", vorgabe)
                 .text());
    Wartestand stand;
    const Eingabefeld feld{text, titel, vorgabe};
    stand.art = Wartestand::Art::Eingabe;
    stand.eingabe = &feld;
    stand.text = vorgabe;
    Feld_abwarten(stand);
    return stand.text;
}

Text Ansicht_Bediener::Verzeichnis_wählen(const Text& titel) {
    ausgeben(Json::Objekt().mit("ereignis", "ordner").mit("titel", einheitliche_Umbrüche(titel)).text());
    Wartestand stand;
    stand.art = Wartestand::Art::Ordner;
    Feld_abwarten(stand);
    return stand.text;
}

Text Ansicht_Bediener::Datei_wählen(const Dateiwahl& wahl) {
    ausgeben(Json::Objekt()
                 .mit("ereignis", "datei")
                 .mit("art", wahl.speichern ? "speichern" : "öffnen")
                 .mit("filter", wahl.filter)
                 .mit("vorschlag", wahl.vorschlag)
                 .mit("muss_existieren", wahl.muss_existieren && !wahl.speichern)
                 .text());
    Wartestand stand;
    stand.art = Wartestand::Art::Datei;
    stand.dateiwahl = &wahl;
    Feld_abwarten(stand);
    return stand.text;
}

std::optional<Farbe> Ansicht_Bediener::Farbe_wählen(Farbe vorgabe) {
    ausgeben(Json::Objekt().mit("ereignis", "farbe").mit("vorgabe", vorgabe).text());
    Wartestand stand;
    stand.art = Wartestand::Art::Farbwahl;
    Feld_abwarten(stand);
    return stand.farbe;
}

void Ansicht_Bediener::Menü_zeigen(Menüpunkt& wurzel) {
    ausgeben(Json::Objekt()
                 .mit("ereignis", "kontextmenü")
                 .mit("name", wurzel.voller_Name())
                 .roh("einträge", Menübaum(wurzel.einträge()))
                 .text());
}

void Ansicht_Bediener::Fortschritt_beendet(const Text& text, int prozent) {
    ausgeben(Json::Objekt()
                 .mit("ereignis", "fortschritt")
                 .mit("text", einheitliche_Umbrüche(text))
                 .mit("prozent", prozent)
                 .text());
}

}  // namespace tonkartei
