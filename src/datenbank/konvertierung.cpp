#include "datenbank/konvertierung.hpp"

#include <utility>

#include "datenbank/info_koerper.hpp"
#include "datenbank/text_form.hpp"
#include "grundlagen/versuchen.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

Konvertierung::Konvertierung(Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Fortschritts_Fenster& fortschritt,
                             Text Temp_Verzeichnis)
    : modell_(modell),
      kanäle_(kanäle),
      dateien_(dateien),
      ansicht_(fortschritt.ansicht()),
      fortschritt_(fortschritt),
      temp_(std::move(Temp_Verzeichnis)) {}

bool Konvertierung::konvertiere_1_00(Text& Datei, int& Dateinummer) {
    return Schritt(Datei, Dateinummer, {&Konvertierung::Körper_1_00, false});
}

bool Konvertierung::konvertiere_1_01(Text& Datei, int& Dateinummer) {
    return Schritt(Datei, Dateinummer, {&Konvertierung::Körper_1_01, true});
}

bool Konvertierung::Schritt(Text& Datei, int& Dateinummer, const Umsetzung& umsetzung) {
    Weg weg;
    if (!vorbereiten(Datei, Dateinummer, umsetzung, weg)) return false;
    fortschritt_.Text_setzen("Datenbank konvertieren...");
    int von = 0, nach = 0;
    try {
        von = kanäle_.öffnen_zum_Lesen(weg.von);
        nach = kanäle_.öffnen_zum_Schreiben(weg.nach);
        Kopf_überspringen(von);
        Familienkopf_schreiben(kanäle_, nach, modell_.Programmversion);
        (this->*umsetzung.Körper)(von, nach);
        kanäle_.schließen(von);
        // On the disk before the old file goes.
        kanäle_.schließen(nach, true);
        fortschritt_.anzeigen(100);
        if (umsetzung.letzte) aufräumen(weg);
        Dateinummer = kanäle_.öffnen_zum_Lesen(weg.nach);
        Kopf_überspringen(Dateinummer);
        zwischen_ = umsetzung.letzte ? Text{} : weg.nach;
        return true;
    } catch (const Laufzeitfehler&) {
        // Numbers that cannot be, too: the program and what it has open are none the worse for a bad file.
        for (const int nummer : {von, nach, Dateinummer}) kanäle_.aufgeben(nummer);
        Dateinummer = 0;
        misslungen();
        return false;
    }
}

// Whence and whither the step goes; `Datei` names the temporary file once the work has gone there. The layout between two
// steps bears a head like the current one's, so it never stands under the info file's name: a death between the steps leaves
// the first copy and no info file.
bool Konvertierung::vorbereiten(Text& Datei, int& Dateinummer, const Umsetzung& umsetzung, Weg& weg) {
    if (modell_.konvertiert_in_Temp) {
        // The second step in the temporary folder has one file as source and target and stays open on it: refused below.
        weg = {Datei, modell_.Temp_Info_Datei};
        Datei = weg.nach;
        return true;
    }
    kanäle_.schließen(Dateinummer);
    Dateinummer = 0;
    if (!zwischen_.empty()) {
        weg = {zwischen_, Datei};
        return true;
    }
    weg = {modell_.Pfad(Konvert_Kopie_Name), umsetzung.letzte ? Datei : modell_.Pfad(Konvert_Zwischen_Name)};
    try {
        if (dateien_.Datei_da(weg.von)) dateien_.löschen(weg.von);
        dateien_.umbenennen(Datei, weg.von);
        return true;
    } catch (const Dateifehler&) {
        // Asked below.
    }
    if (!ansicht_.fragen("Datenbank konvertieren",
                         "Es ist es Fehler beim schreiben der neuen Datenbank-Datei aufgetreten!" + Text(CRCR) +
                             "Dies kann passieren, wenn die Datenbank auf einer CD-Rom, "
                             "auf einem Netzwerkpfad, auf den sie keinen Schreibzugriff, oder "
                             "einem anderen, schreibgeschützten Datenträger liegt." +
                             Text(CRCR) +
                             "Die Datenbank kann in ein temporäres Verzeichnis konvertiert werden. "
                             "Allerdings können dann Änderungen von Ihnen nicht gespeichert werden." +
                             Text(CRCR) +
                             "Soll die Datenbank in ein temporäres Verzeichnis konvertiert werden "
                             "(Platzbedarf max. 150kB)?"))
        return false;
    modell_.Temp_Info_Datei = temp_ + Temp_Info_Name;
    modell_.konvertiert_in_Temp = true;
    weg = {Datei, modell_.Temp_Info_Datei};
    Datei = weg.nach;
    return true;
}

// The last step stands: the old file goes, and what lay between. In the temporary folder the source is the user's own file.
void Konvertierung::aufräumen(const Weg& weg) {
    if (modell_.konvertiert_in_Temp) return;
    dateien_.löschen(weg.von);
    if (!zwischen_.empty()) dateien_.löschen(modell_.Pfad(Konvert_Kopie_Name));
}

void Konvertierung::misslungen() {
    fortschritt_.anzeigen(100);
    // What stays behind of either harms nobody.
    zwischen_.clear();
    const Text zwischen = modell_.Pfad(Konvert_Zwischen_Name);
    if (dateien_.Datei_da(zwischen)) versuchen([&] { dateien_.löschen(zwischen); });
    if (modell_.konvertiert_in_Temp) {
        // No collection came of it. The mark must not stay: it would keep the next one from being saved.
        modell_.konvertiert_in_Temp = false;
        versuchen([&] { dateien_.löschen(modell_.Temp_Info_Datei); });
    }
    ansicht_.informieren("Fehler", "Es ist ein Fehler beim Konvertieren aufgetreten!" + Text(CRCR) +
                                       "Kontaktieren sie den Autor, um das Problem zum lösen.");
}

void Konvertierung::Körper_1_00(int von, int nach) {
    const Byte kategorien = Byte_übertragen(von, nach);
    for (int k = 1; k <= kategorien; ++k) kanäle_.schreibe_Zeile(nach, kanäle_.lese_Wert(von));
    kanäle_.schreibe_Zahl(nach, 0);
    for (int s = 1; s <= Schemas_maximal; ++s) {
        kanäle_.schreibe_Zahl(nach, 1);
        kanäle_.schreibe_Zeile(nach, "Schema " + Zahltext(s));
        kanäle_.schreibe_Zahl(nach, 1);
    }
    Lieder_übertragen(von, nach, [&] {
        Long_übertragen(von, nach);
        Text_schreiben(kanäle_, nach, Text_lesen(kanäle_, von));
        Long_übertragen(von, nach);
        Byte_übertragen(von, nach);
        Text_schreiben(kanäle_, nach, Text_lesen(kanäle_, von));
    });
}

void Konvertierung::Körper_1_01(int von, int nach) {
    const Byte kategorien = Byte_übertragen(von, nach);
    for (int k = 1; k <= kategorien; ++k) Zeile_übertragen(von, nach);
    Byte_übertragen(von, nach);
    for (int s = 1; s <= Schemas_maximal; ++s) {
        const Byte anzahl = Byte_übertragen(von, nach);
        Zeile_übertragen(von, nach);
        for (int i = 1; i <= anzahl; ++i) Byte_übertragen(von, nach);
    }
    kanäle_.schreibe_Zahl(nach, 0);
    Lieder_übertragen(von, nach, [&] {
        Long_übertragen(von, nach);
        Zeile_übertragen(von, nach);
        Long_übertragen(von, nach);
        Byte_übertragen(von, nach);
        Zeile_übertragen(von, nach);
        for (int teil = 0; teil < 3; ++teil) kanäle_.schreibe_reine_Zahl(nach, 0);
    });
}

void Konvertierung::Kopf_überspringen(int nummer) {
    kanäle_.lese_Wert(nummer);
    kanäle_.lese_Wert(nummer);
}

Long Konvertierung::Long_übertragen(int von, int nach) {
    const Long wert = kanäle_.lese_Long(von);
    kanäle_.schreibe_Zahl(nach, wert);
    return wert;
}

Byte Konvertierung::Byte_übertragen(int von, int nach) {
    const Byte wert = kanäle_.lese_Byte(von);
    kanäle_.schreibe_Zahl(nach, wert);
    return wert;
}

void Konvertierung::Zeile_übertragen(int von, int nach) { kanäle_.schreibe_Zeile(nach, kanäle_.lese_Zeile(von)); }

void Konvertierung::Lieder_übertragen(int von, int nach, const std::function<void()>& Lied) {
    const Long anzahl = Long_übertragen(von, nach);
    for (Long n = 1; n <= anzahl; ++n) {
        Lied();
        fortschritt_.anzeigen(Prozent(n, anzahl));
    }
}

}  // namespace tonkartei
