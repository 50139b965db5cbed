#include "lieder/luecken.hpp"

#include "grundlagen/waehrend.hpp"
#include "lieder/dateibewegung.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"

namespace tonkartei {
namespace {

constexpr const char* Überschrift = "Lücken suchen/auffüllen";

}  // namespace

bool Lücken::Lücken_füllen() {
    Ansicht& ansicht = fortschritt_.ansicht();
    if (modell_.Anzahl_Lieder == 0) {
        ansicht.informieren(Überschrift, "Es sind noch keine Lieder in der Datenbank!");
        return false;
    }
    if (!ansicht.fragen(
            Überschrift,
            "Achtung: Eine Lücke in der Datenbank ist ein schwerer Fehler!" + Text(CRCR) +
                "Es existiert zwar noch der Eintag in der Datenbank, aber die MP3-Datei fehlt. "
                "Wenn sie jetzt die Lücken füllen gehen die Informationen über die fehlenden Lieder verloren. "
                "Wenn sie wissen möchten, ob es Lücken gibt, und wenn ja bei welchen Liedern wählen sie den Menüpunkt "
                "Namen/Größe mit MP3's vergleichen aus dem Untermenü Wartung/Fehlersuche." +
                Text(CRCR) + "Wollen sie jetzt nach Lücken suchen und diese füllen?"))
        return false;
    const Long anzahl = füllen();
    ansicht.informieren(Überschrift, anzahl >= 1
                                         ? "Es wurden " + Zahltext(anzahl) + " Lücken gefunden und wieder aufgefüllt."
                                         : Text("Es wurden keine Lücken in der Datenbank gefunden."));
    return anzahl > 0;
}

// How many records went.
Long Lücken::füllen() {
    const Halb_getan umbau(modell_.im_Umbau);
    const Fortschritts_Ende ende(fortschritt_);
    fortschritt_.Text_setzen("Lücken suchen/auffüllen...");
    Long anzahl = Ende_kürzen();
    for (Long i = 1; i < modell_.Anzahl_Lieder; ++i) {
        if (!dateien_.Datei_da(modell_.Lied_Pfad(i))) {
            if (Datei_bewegen(shell_, dateien_, modell_.Lied_Pfad(modell_.Anzahl_Lieder), modell_.Lied_Pfad(i))) {
                nachrücken_.ausführen(i);
                anzahl += Ende_kürzen();
            } else {
                fortschritt_.ansicht().informieren("Fehler", "Beim Umbennen ist ein Fehler aufgetreten!");
            }
        }
        fortschritt_.anzeigen(Prozent(i, modell_.Anzahl_Lieder));
    }
    return anzahl;
}

// Takes off the records at the end that have no file; how many.
Long Lücken::Ende_kürzen() {
    const Long vorher = modell_.Anzahl_Lieder;
    while (modell_.Anzahl_Lieder > 0 && !dateien_.Datei_da(modell_.Lied_Pfad(modell_.Anzahl_Lieder)))
        --modell_.Anzahl_Lieder;
    return vorher - modell_.Anzahl_Lieder;
}

}  // namespace tonkartei
