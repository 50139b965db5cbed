#include "datenbank/rettung.hpp"

#include <utility>

#include "datenbank/info_koerper.hpp"
#include "grundlagen/versuchen.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

bool Rettung::schreiben() noexcept {
    int nummer = 0;
    Text pfad;
    try {
        if (!modell_.Datenbank_offen || modell_.Datenbank_Verzeichnis.empty() || modell_.im_Umbau ||
            modell_.konvertiert_in_Temp)
            return false;
        pfad = modell_.Pfad(Rettung_Name);
        verdrängt_ = pfad == gelesen_ && dateien_.Datei_da(pfad);
        if (verdrängt_) beiseite_legen(pfad);
        if (dateien_.Art_von(pfad) != Pfadart::nichts) return false;
        nummer = kanäle_.öffnen_zum_Schreiben(pfad);
        Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion);
        Info_Körper_schreiben(kanäle_, nummer, modell_, {});
        kanäle_.schließen(nummer, true);
        return true;
    } catch (...) {
        // A half one would be offered as a whole one.
        if (nummer == 0) return false;
        kanäle_.aufgeben(nummer);
        try {
            dateien_.löschen(pfad);
        } catch (...) {
            // Then it is told as unreadable when it is offered.
        }
        return false;
    }
}

void Rettung::zurücknehmen() {
    versuchen([&] {
        const Text pfad = modell_.Pfad(Rettung_Name);
        dateien_.löschen(pfad);
        if (std::exchange(verdrängt_, false)) dateien_.umbenennen(modell_.Pfad(Rettung_abgelehnt_Name), pfad);
    });
}

// One declined before makes room: its user has seen the offer and did without.
void Rettung::beiseite_legen(const Text& pfad) {
    const Text beiseite = modell_.Pfad(Rettung_abgelehnt_Name);
    if (dateien_.Datei_da(beiseite)) dateien_.löschen(beiseite);
    dateien_.umbenennen(pfad, beiseite);
}

void Rettung::Kopie_übernehmen(const Text& Kopie) {
    const Text pfad = modell_.Pfad(Rettung_Name);
    if (dateien_.Art_von(pfad) == Pfadart::nichts) versuchen([&] { dateien_.umbenennen(Kopie, pfad); });
}

void Rettung::anbieten(Text& Datei) {
    gelesen_.clear();
    const Text pfad = modell_.Pfad(Rettung_Name);
    if (!dateien_.Datei_da(pfad)) return;
    if (ansicht_.fragen("Datenbank öffnen",
                        "Beim letzten Mal konnte die Datenbank nicht gespeichert werden. Ihr Stand "
                        "wurde in der Datei" +
                            Text(CRCR) + anzeigbar(pfad) + Text(CRCR) + "gerettet." + Text(CRCR) +
                            "Soll dieser Stand geladen werden?")) {
        gelesen_ = Datei = pfad;
        return;
    }
    versuchen([&] { beiseite_legen(pfad); });
}

void Rettung::gespeichert() {
    const Text pfad = std::exchange(gelesen_, {});
    // Another collection may have come since, one that was made and not opened.
    if (!pfad.empty() && pfad == modell_.Pfad(Rettung_Name)) versuchen([&] { dateien_.löschen(pfad); });
}

}  // namespace tonkartei
