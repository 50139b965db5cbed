#include "alben/alben_datei.hpp"

#include <algorithm>
#include <memory>

#include "datenbank/familienkopf.hpp"
#include "datenbank/info_datei.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/version.hpp"
#include "datenbank/zeitleser.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr const char* Kennung = "Datenbank Alben-Verwaltung";
constexpr const char* Wahr = "T";
constexpr const char* Falsch = "F";

}  // namespace

Alben_Datei::Alben_Datei(Modell& modell, Alben& alben, Kanäle& kanäle, Dateisystem& dateien, Ansicht& ansicht)
    : modell_(modell), alben_(alben), kanäle_(kanäle), dateien_(dateien), ansicht_(ansicht) {}

bool Alben_Datei::Album_Datei_vorhanden() const { return dateien_.Datei_da(modell_.Pfad(Alben_Datei_Name)); }

bool Alben_Datei::geladen_oder_gelesen() { return modell_.Alben_geladen || Alben_lesen(); }

bool Alben_Datei::Alben_lesen(const Text& Datei) {
    const bool eigene = Datei.empty();
    int nummer = 0;
    // Read aside first, so that a file that ends too soon leaves no half of it behind.
    auto neu = std::make_unique<Albenbestand>();
    try {
        if (!Alben_prüfen(eigene ? modell_.Pfad(Alben_Datei_Name) : Datei, nummer)) return false;
        Körper_lesen(nummer, *neu);
        kanäle_.schließen(nummer);
    } catch (const Laufzeitfehler&) {
        kanäle_.aufgeben(nummer);
        return false;
    }
    (eigene ? alben_.eigene : alben_.fremde) = std::move(*neu);
    if (eigene) modell_.Alben_geladen = true;
    return true;
}

// Opens the file and tests its three head lines. True: go on reading. False: it is closed and the user has decided or was
// told.
bool Alben_Datei::Alben_prüfen(const Text& Datei, int& Dateinummer) {
    Dateinummer = kanäle_.öffnen_zum_Lesen(Datei);
    const Kopfurteil urteil =
        Kopf_beurteilen(ansicht_, kanäle_, Dateinummer, modell_.Programmversion,
                        {.Kennung = Kennung,
                         .Name_mit_Pfad = "Die Alben-Verwaltung-Datei (" + anzeigbar(Datei) + ")",
                         .Name = "Die Alben-Verwaltungsdatei",
                         .Frage = "Soll die Alben-Verwaltungsdatei geöffnet und konvertiert werden?",
                         .alte_Version = [](const Text& version) { return Versionsstufe(version) == 1; }});
    if (urteil == Kopfurteil::alt || urteil == Kopfurteil::unlesbar) modell_.Alben_geändert = true;
    // Closed even where the user wants an unknown version to be tried: the reading that follows fails, and it stays unread.
    if (urteil == Kopfurteil::abgelehnt || urteil == Kopfurteil::unlesbar) kanäle_.aufgeben(Dateinummer);
    return urteil != Kopfurteil::abgelehnt;
}

void Alben_Datei::Körper_lesen(int nummer, Albenbestand& bestand) {
    bestand.Anzahl = std::max(kanäle_.lese_Long(nummer), Long{0});
    for (Long n = 1; n <= bestand.Anzahl; ++n) Album_lesen(nummer, bestand.Alben[n]);
}

void Alben_Datei::Album_lesen(int nummer, Album& album) {
    album.Titel_Anzahl = kanäle_.lese_Byte(nummer);
    album.Interpret = kanäle_.lese_Zeile(nummer);
    album.Jahr = kanäle_.lese_Long(nummer);
    album.Maxi_CD = kanäle_.lese_Wert(nummer) == Wahr;
    album.Titel = kanäle_.lese_Zeile(nummer);
    for (int t = 1; t <= album.Titel_Anzahl; ++t) {
        Album_Lied& titel = album.Lieder[t];
        titel.Artist = kanäle_.lese_Zeile(nummer);
        const auto [stunden, minuten, sekunden] = drei_Zahlen_lesen(kanäle_);
        titel.Zeit = Zeit_aus(stunden, minuten, sekunden);
        titel.in_Datenbank = kanäle_.lese_Wert(nummer) == Wahr;
        titel.Lied_Nr = kanäle_.lese_Long(nummer);
        titel.Titel = kanäle_.lese_Zeile(nummer);
    }
}

bool Alben_Datei::Alben_schreiben() {
    if (modell_.Alben_geladen) {
        int nummer = 0;
        try {
            const Text pfad = modell_.Pfad(Alben_Datei_Name);
            if (dateien_.Datei_da(pfad)) dateien_.umbenennen(pfad, Alben_Kopie_Name);
            nummer = kanäle_.öffnen_zum_Schreiben(pfad);
            Körper_schreiben(nummer);
            // On the disk before the copy goes: at every instant one whole file exists.
            kanäle_.schließen(nummer, true);
            if (dateien_.Datei_da(Alben_Kopie_Name)) dateien_.löschen(Alben_Kopie_Name);
        } catch (const Laufzeitfehler&) {
            kanäle_.aufgeben(nummer);
            return false;
        }
    }
    modell_.Alben_geändert = false;
    return true;
}

void Alben_Datei::Körper_schreiben(int nummer) {
    const Albenbestand& bestand = alben_.eigene;
    Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion, Kennung);
    kanäle_.schreibe_Zahl(nummer, bestand.Anzahl);
    for (Long n = 1; n <= bestand.Anzahl; ++n) {
        const Album& album = bestand.Alben[n];
        kanäle_.schreibe_Zahl(nummer, album.Titel_Anzahl);
        kanäle_.schreibe_Zeile(nummer, album.Interpret);
        kanäle_.schreibe_Zahl(nummer, album.Jahr);
        kanäle_.schreibe_Zeile(nummer, album.Maxi_CD ? Wahr : Falsch);
        kanäle_.schreibe_Zeile(nummer, album.Titel);
        for (int t = 1; t <= album.Titel_Anzahl; ++t) {
            const Album_Lied& titel = album.Lieder[t];
            kanäle_.schreibe_Zeile(nummer, titel.Artist);
            kanäle_.schreibe_reine_Zahl(nummer, Stunde(titel.Zeit));
            kanäle_.schreibe_reine_Zahl(nummer, Minute(titel.Zeit));
            kanäle_.schreibe_reine_Zahl(nummer, Sekunde(titel.Zeit));
            kanäle_.schreibe_Zeile(nummer, titel.in_Datenbank ? Wahr : Falsch);
            kanäle_.schreibe_Zahl(nummer, titel.Lied_Nr);
            kanäle_.schreibe_Zeile(nummer, titel.Titel);
        }
    }
}

void Alben_Datei::Album_Referenz_ändern(Long alt, Long neu) {
    if (!modell_.Alben_geladen && (!Album_Datei_vorhanden() || !Alben_lesen())) return;
    modell_.Alben_geändert = true;
    Albenbestand& bestand = alben_.eigene;
    for (Long n = 1; n <= bestand.Anzahl; ++n) {
        Album& album = bestand.Alben[n];
        for (int t = 1; t <= album.Titel_Anzahl; ++t) {
            Album_Lied& titel = album.Lieder[t];
            if (!titel.in_Datenbank || titel.Lied_Nr != alt) continue;
            titel.Lied_Nr = neu;
            if (neu < 1) titel.in_Datenbank = false;
        }
    }
}

}  // namespace tonkartei
