#include "datenbank/info_koerper.hpp"

#include <algorithm>

#include "datenbank/version.hpp"
#include "datenbank/zeitleser.hpp"
#include "plattform/kanaele.hpp"
#include "plattform/zeilenstift.hpp"

namespace tonkartei {
namespace {

void Lied_lesen(Kanäle& kanäle, int nummer, Lied& lied) {
    lied.Anzahl = kanäle.lese_Long(nummer);
    lied.Artist = kanäle.lese_Zeile(nummer);
    lied.Größe = kanäle.lese_Long(nummer);
    lied.Kategorie = kanäle.lese_Byte(nummer);
    lied.Titel = kanäle.lese_Zeile(nummer);
    const auto [stunden, minuten, sekunden] = drei_Zahlen_lesen(kanäle);
    lied.Zeit = Zeit_aus(stunden, minuten, sekunden);
}

constexpr std::size_t Zeilen_je_Lied = 8;

// All lines of a song in one go: a collection has 40,000 of them, and the user waits for its saving.
void Lied_schreiben(Kanäle& kanäle, int nummer, const Lied& lied) {
    const std::size_t höchstens = Zeilen_je_Lied * Zeilenstift::Zahlenzeile + lied.Artist.size() + lied.Titel.size();
    Zeilenstift stift(kanäle.Platz(nummer, höchstens));
    stift.Zahl(lied.Anzahl);
    stift.Zeile(lied.Artist);
    stift.Zahl(lied.Größe);
    // An end may come while the new category is being asked for: the song then counts to the first one.
    stift.Zahl(lied.Kategorie == ohne_Kategorie ? Byte{1} : lied.Kategorie);
    stift.Zeile(lied.Titel);
    const Long sekunden = Sekunden_von(lied.Zeit);
    for (const Long teil : {sekunden / 3600, sekunden / 60 % 60, sekunden % 60}) stift.reine_Zahl(teil);
    kanäle.geschrieben(nummer, stift.Ende());
}

}  // namespace

void Info_Körper_lesen(Kanäle& kanäle, int nummer, Bestand& bestand, const Liedzähler& je_Lied) {
    bestand.Anzahl_Kategorien = kanäle.lese_Byte(nummer);
    for (int k = 1; k <= bestand.Anzahl_Kategorien; ++k) bestand.Kategorien[k] = kanäle.lese_Zeile(nummer);
    bestand.Anz_Kat_Schemas = kanäle.lese_Byte(nummer);
    for (int s = 1; s <= Schemas_maximal; ++s) {
        Schema& schema = bestand.Schemas[s];
        schema.Anzahl = kanäle.lese_Byte(nummer);
        schema.Name = kanäle.lese_Zeile(nummer);
        for (int i = 1; i <= schema.Anzahl; ++i) schema.Kategorien[i] = kanäle.lese_Byte(nummer);
    }
    bestand.Backup_Warnungs_Grenze = kanäle.lese_Long(nummer);
    bestand.Anzahl_Lieder = std::max(kanäle.lese_Long(nummer), Long{0});
    for (Long n = 1; n <= bestand.Anzahl_Lieder; ++n) {
        Lied_lesen(kanäle, nummer, bestand.Lieder[n]);
        if (je_Lied) je_Lied(n, bestand.Anzahl_Lieder);
    }
}

void Info_Körper_schreiben(Kanäle& kanäle, int nummer, const Bestand& bestand, const Liedzähler& je_Lied) {
    kanäle.schreibe_Zahl(nummer, bestand.Anzahl_Kategorien);
    for (int k = 1; k <= bestand.Anzahl_Kategorien; ++k) kanäle.schreibe_Zeile(nummer, bestand.Kategorien[k]);
    kanäle.schreibe_Zahl(nummer, bestand.Anz_Kat_Schemas);
    for (int s = 1; s <= Schemas_maximal; ++s) {
        const Schema& schema = bestand.Schemas[s];
        kanäle.schreibe_Zahl(nummer, schema.Anzahl);
        kanäle.schreibe_Zeile(nummer, schema.Name);
        for (int i = 1; i <= schema.Anzahl; ++i) kanäle.schreibe_Zahl(nummer, schema.Kategorien[i]);
    }
    kanäle.schreibe_Zahl(nummer, bestand.Backup_Warnungs_Grenze);
    kanäle.schreibe_Zahl(nummer, bestand.Anzahl_Lieder);
    for (Long n = 1; n <= bestand.Anzahl_Lieder; ++n) {
        Lied_schreiben(kanäle, nummer, bestand.Lieder[n]);
        if (je_Lied) je_Lied(n, bestand.Anzahl_Lieder);
    }
}

void Familienkopf_schreiben(Kanäle& kanäle, int nummer, const Text& Programmversion, const Text& Kennung) {
    kanäle.schreibe_Zeile(nummer, Programmtitel);
    kanäle.schreibe_Zeile(nummer, Programmversion);
    if (!Kennung.empty()) kanäle.schreibe_Zeile(nummer, Kennung);
}

}  // namespace tonkartei
