#include "austausch/abgleich/la_ignorieren.hpp"

#include <algorithm>
#include <utility>

#include "austausch/abgleich/ignorieren_liste.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {

LA_Ignorieren::LA_Ignorieren(Ansicht& ansicht, Ignorieren_Liste& liste)
    : Fenster(ansicht, "LA_Ignorieren", "Ignorieren-Liste"), liste_(liste) {
    Liste.tooltip("Diese Lieder werden bei keinem Abgleich mehr angeboten");
    löschen.tooltip("Das gewählte Lied wieder anbieten");
    Abbruchknopf = &Ok;
    löschen.Klick.verbinden([this] { Eintrag_löschen(); });
    Ok.Klick.verbinden([this] { entladen(); });
}

void LA_Ignorieren::anzeigen(Fenster& Aufrufer) {
    if (geladen()) {
        nach_vorn();
        return;
    }
    if (!liste_.geladen_oder_gelesen()) return;
    aufrufer_ = &Aufrufer;
    aufrufer_->aktiv(false);
    zeigen();
    ansicht().fokus(Liste);
}

Knoten LA_Ignorieren::anordnung() {
    return Spalte({Liste_Text, Knoten(Liste).zeichen(50).zeilen(14).dehnen(1, 1),
                   Zeile({löschen, Feder(), Knoten(Ok).zeichen(12)})})
        .rand(12 * Twips_je_Pixel);
}

void LA_Ignorieren::beim_Laden() {
    std::vector<Text> zeilen;
    for (const auto& eintrag : liste_.Einträge()) zeilen.push_back(eintrag.Artist + " - " + eintrag.Titel);
    Liste.setzen(std::move(zeilen));
}

void LA_Ignorieren::beim_Entladen() {
    Fenster* aufrufer = std::exchange(aufrufer_, nullptr);
    if (aufrufer == nullptr) return;
    aufrufer->aktiv(true);
    aufrufer->nach_vorn();
}

void LA_Ignorieren::Eintrag_löschen() {
    const int zeile = Liste.gewählt();
    if (zeile < 0) return;
    liste_.entfernen(zeile + 1);
    Liste.entfernen(zeile);
    if (Liste.Anzahl() > 0) Liste.wähle(std::min(zeile, Liste.Anzahl() - 1));
}

}  // namespace tonkartei
