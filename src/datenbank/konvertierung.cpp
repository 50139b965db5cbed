#include "datenbank/konvertierung.hpp"

#include "datenbank/text_form.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {

Konvertierung::Konvertierung(Modell& modell, Kanäle& kanäle, Dateisystem& dateien, Ansicht& ansicht,
                             Fortschritts_Fenster& fortschritt, Text Temp_Verzeichnis)
    : modell_(modell),
      kanäle_(kanäle),
      dateien_(dateien),
      ansicht_(ansicht),
      fortschritt_(fortschritt),
      temp_(std::move(Temp_Verzeichnis)) {}

bool Konvertierung::konvertiere_1_00(Text& Datei, int& Dateinummer) {
    return Schritt(Datei, Dateinummer, &Konvertierung::Körper_1_00);
}

bool Konvertierung::konvertiere_1_01(Text& Datei, int& Dateinummer) {
    return Schritt(Datei, Dateinummer, &Konvertierung::Körper_1_01);
}

bool Konvertierung::Schritt(Text& Datei, int& Dateinummer, Körper körper) {
    Text quelle;
    if (!vorbereiten(Datei, Dateinummer, quelle)) return false;
    fortschritt_.Text_setzen("Datenbank konvertieren...");
    int von = 0, nach = 0;
    try {
        von = kanäle_.öffnen_zum_Lesen(quelle);
        nach = kanäle_.öffnen_zum_Schreiben(Datei);
        Kopf_überspringen(von);
        Kopf_schreiben(nach);
        (this->*körper)(von, nach);
        kanäle_.schließen(von);
        // On the disk before the old file goes.
        kanäle_.schließen(nach, true);
        fortschritt_.anzeigen(100);
        if (!modell_.konvertiert_in_Temp) dateien_.löschen(quelle);
        Dateinummer = kanäle_.öffnen_zum_Lesen(Datei);
        Kopf_überspringen(Dateinummer);
        return true;
    } catch (const Laufzeitfehler&) {
        // Numbers that cannot be, too: the program and what it has open are none the worse for a bad file.
        for (const int nummer : {von, nach, Dateinummer}) kanäle_.aufgeben(nummer);
        Dateinummer = 0;
        misslungen();
        return false;
    }
}

// The source of the step; the target is `Datei`, which names the temporary file once the work has gone there.
bool Konvertierung::vorbereiten(Text& Datei, int& Dateinummer, Text& Quelle) {
    if (modell_.konvertiert_in_Temp) {
        // The second step in the temporary folder has one file as source and target and stays open on it: refused below.
        Quelle = Datei;
        Datei = modell_.Temp_Info_Datei;
        return true;
    }
    kanäle_.schließen(Dateinummer);
    Dateinummer = 0;
    Quelle = modell_.Pfad(Konvert_Kopie_Name);
    try {
        if (dateien_.Datei_da(Quelle)) dateien_.löschen(Quelle);
        dateien_.umbenennen(Datei, Quelle);
        return true;
    } catch (const Dateifehler&) {
        modell_.Meldung = "Es ist es Fehler beim schreiben der neuen Datenbank-Datei aufgetreten!" + Text(CRCR) +
                          "Dies kann passieren, wenn die Datenbank auf einer CD-Rom, "
                          "auf einem Netzwerkpfad, auf den sie keinen Schreibzugriff, oder "
                          "einem anderen, schreibgeschützten Datenträger liegt." +
                          Text(CRCR) +
                          "Die Datenbank kann in ein temporäres Verzeichnis konvertiert werden. "
                          "Allerdings können dann Änderungen von Ihnen nicht gespeichert werden." +
                          Text(CRCR) +
                          "Soll die Datenbank in ein temporäres Verzeichnis konvertiert werden "
                          "(Platzbedarf max. 150kB)?";
    }
    if (!ansicht_.fragen("Datenbank konvertieren", modell_.Meldung)) return false;
    modell_.Temp_Info_Datei = temp_ + Temp_Info_Name;
    modell_.konvertiert_in_Temp = true;
    Quelle = Datei;
    Datei = modell_.Temp_Info_Datei;
    return true;
}

void Konvertierung::misslungen() {
    fortschritt_.anzeigen(100);
    if (modell_.konvertiert_in_Temp) {
        // No collection came of it. The mark must not stay: it would keep the next one from being saved.
        modell_.konvertiert_in_Temp = false;
        try {
            dateien_.löschen(modell_.Temp_Info_Datei);
        } catch (const Dateifehler&) {
            // A temporary file that stays behind harms nobody.
        }
    }
    modell_.Meldung = "Es ist ein Fehler beim Konvertieren aufgetreten!" + Text(CRCR) +
                      "Kontaktieren sie den Autor, um das Problem zum lösen.";
    ansicht_.informieren("Fehler", modell_.Meldung);
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

void Konvertierung::Kopf_schreiben(int nummer) {
    kanäle_.schreibe_Zeile(nummer, Programmtitel);
    kanäle_.schreibe_Zeile(nummer, modell_.Programmversion);
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
