#include "datenbank/abr_datei.hpp"

#include <algorithm>

#include "datenbank/modell.hpp"
#include "grundlagen/codepage.hpp"
#include "grundlagen/versuchen.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr std::size_t Nummer_Breite = 4;
constexpr std::size_t Rest_ab = 7;
constexpr std::size_t längste_Zeile = 65536;  // bytes; what is longer is no record
constexpr const char* Dateiname = "MP3_Info.ABR";
// Has no folder: it lies in the current one, which follows the collection.
constexpr const char* Kopie = "MP3_Bak.ABR";

Text Zeile(Long Nr, const Text& ergebnis) {
    const Text ziffern = Zahltext(Nr);
    return Text(Nummer_Breite - std::min(Nummer_Breite, ziffern.size()), ' ') + ziffern + ": " + ergebnis;
}

}  // namespace

bool ABR_Satz::voll() const { return groß(Rest) == "VOLL"; }

double ABR_Satz::Sekunden() const { return Zahlwert(Rest); }

std::optional<ABR_Satz> lese_ABR_Satz(Kanäle& kanäle, int kanal) {
    while (const auto bytes = kanäle.nächster_Satz(kanal, längste_Zeile)) {
        const Text wert = aus_1252(*bytes);
        if (Zeichenzahl(wert) < Rest_ab) continue;
        const Long nummer = gerundet(Zahlwert(links(wert, Nummer_Breite)));
        if (nummer >= 1) return ABR_Satz{nummer, getrimmt(ab(wert, Rest_ab))};
    }
    return std::nullopt;
}

ABR_Datei::ABR_Datei(const Modell& modell, Dateisystem& dateien, Kanäle& kanäle)
    : modell_(modell), dateien_(dateien), kanäle_(kanäle) {}

void ABR_Datei::ABR_umnummerieren(Long Alt, Long Neu) {
    const Text datei = modell_.Pfad(Dateiname);
    if (!dateien_.Datei_da(datei)) return;
    versuchen([&] { dateien_.umbenennen(datei, Kopie); });
    // A copy that an earlier run left behind refuses the renaming and is read in its place. Without any copy there is
    // nothing to read, and opening for writing would only empty the file.
    if (!dateien_.Datei_da(Kopie)) return;
    if (umschreiben(datei, Alt, Neu) && dateien_.Datei_da(datei)) versuchen([&] { dateien_.löschen(Kopie); });
}

// True when the new file stands whole.
bool ABR_Datei::umschreiben(const Text& datei, Long Alt, Long Neu) {
    int aus = 0;
    int ein = 0;
    const bool geschrieben = versuchen([&] {
        aus = kanäle_.öffnen_zum_Schreiben(datei);
        ein = kanäle_.öffnen_zum_Lesen(Kopie);
        while (const auto satz = lese_ABR_Satz(kanäle_, ein)) {
            if (satz->Nr == Neu) continue;
            const bool voll = satz->voll();
            if (!voll && satz->Sekunden() != 0) continue;  // lost with every renumbering, ever since
            kanäle_.schreibe_Zeile(aus, Zeile(satz->Nr == Alt ? Neu : satz->Nr, voll ? "voll" : "0"));
        }
        kanäle_.schließen(aus, true);
    });
    // Whatever failed, no channel stays open: nobody is told, so nobody could close it.
    if (aus > 0) kanäle_.aufgeben(aus);
    if (ein > 0) kanäle_.aufgeben(ein);
    return geschrieben;
}

}  // namespace tonkartei
