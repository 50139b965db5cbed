#include "dj/listen_dateien.hpp"

#include "alben/albenraum.hpp"
#include "datenbank/haus.hpp"
#include "datenbank/m3u.hpp"
#include "datenbank/version.hpp"
#include "dj/listen.hpp"
#include "grundlagen/versuchen.hpp"

namespace tonkartei {
namespace {

constexpr std::size_t Dateinamen_Länge = 12;  // "00000001.MP3"
constexpr std::size_t Ziffern = 8;

}  // namespace

Listen_Dateien::Listen_Dateien(Haus& haus, Albenraum& alben, Listen& listen) : haus_(haus), alben_(alben), listen_(listen) {
    listen_.speichern.verbinden([this] { speichern(); });
}

void Listen_Dateien::speichern() {
    const int liste = listen_.Listen_Modus;
    if (listen_.Lieder(liste).empty()) return haus_.ansicht.informieren(Programmtitel, "Keine Lieder zum speichern da!");
    Dateiwahl wahl;
    wahl.speichern = true;
    wahl.filter = Playlist_Filter;
    const Text datei = haus_.ansicht.Datei_wählen(wahl);
    if (!datei.empty()) Liste_speichern(liste, datei);
}

void Listen_Dateien::Liste_speichern(int Liste, const Text& Datei) {
    if (haus_.plattform.Dateisystem.Datei_da(Datei) &&
        !haus_.ansicht.fragen(
            Programmtitel,
            "Die Datei " + in_Anführungszeichen(anzeigbar(Datei)) + " existiert bereits. Soll sie überschrieben werden?",
            Antwort::Nein))
        return;
    try {
        M3U(haus_.modell, haus_.kanäle).schreiben(Datei, listen_.Lieder(Liste));
    } catch (const Dateifehler& fehler) {
        haus_.ansicht.informieren(Programmtitel, fehler.mit_Pfad(Datei));
    }
}

bool Listen_Dateien::Leeren_erfragen() const {
    if (listen_.Lieder(listen_.Listen_Modus).empty()) return true;
    return !haus_.ansicht.fragen(Programmtitel,
                                 "Achtung!" + Text(CRCR) +
                                     "Es befinden sich noch Lieder in der Liste. Sollen die Lieder der zu ladenden Liste "
                                     "dazugefügt (Ja) werden, oder sollen die Liste gelöscht werden und dann geladen "
                                     "werden (Nein)?");
}

void Listen_Dateien::Liste_laden_Playlist() {
    const int liste = listen_.Listen_Modus;
    if (liste == Listen::Suchliste) return;
    const bool leeren = Leeren_erfragen();
    Dateiwahl wahl;
    wahl.filter = Playlist_Filter;
    wahl.muss_existieren = true;
    const Text datei = haus_.ansicht.Datei_wählen(wahl);
    if (!datei.empty() && haus_.plattform.Dateisystem.Datei_da(datei)) Liste_aus_M3U(liste, leeren, datei);
}

void Listen_Dateien::laden(int Liste, bool Leeren, const std::vector<Long>& dazu) {
    std::vector<Long> alle;
    if (!Leeren) alle = listen_.Lieder(Liste);
    alle.insert(alle.end(), dazu.begin(), dazu.end());
    listen_.setzen(Liste, std::move(alle));
}

// 0 for what is no song of the collection.
Long Listen_Dateien::Nummer_aus(std::string_view Zeile) const {
    const Text zeile = groß(getrimmt(Zeile)), ordner = groß(haus_.modell.Datenbank_Verzeichnis);
    if (zeile.size() != ordner.size() + Dateinamen_Länge || !zeile.starts_with(ordner) || !zeile.ends_with(".MP3")) return 0;
    const Long nummer = gerundet(Zahlwert(std::string_view(zeile).substr(ordner.size(), Ziffern)));
    return nummer >= 1 && nummer <= haus_.modell.Anzahl_Lieder ? nummer : 0;
}

void Listen_Dateien::Liste_aus_M3U(int Liste, bool Leeren, const Text& Datei) {
    std::vector<Long> nummern;
    int kanal = 0;
    versuchen([&] {
        kanal = haus_.kanäle.öffnen_zum_Lesen(Datei);
        while (const auto zeile = haus_.kanäle.nächste_Rohzeile(kanal, längster_Pfad))
            if (const Long nr = Nummer_aus(*zeile); nr > 0) nummern.push_back(nr);
    });
    haus_.kanäle.aufgeben(kanal);
    laden(Liste, Leeren, nummern);
}

void Listen_Dateien::Liste_laden_Album() {
    const int liste = listen_.Listen_Modus;
    if (liste == Listen::Suchliste || !alben_.befehle.Alben_bereit()) return;
    const bool leeren = Leeren_erfragen();
    if (const Long album = alben_.wählen.wählen(); album > 0) Liste_aus_Album(liste, leeren, album);
}

void Listen_Dateien::Liste_aus_Album(int Liste, bool Leeren, Long Album) {
    if (Album < 1) return;
    std::vector<Long> nummern;
    const auto& album = std::as_const(alben_.alben.eigene).Alben[Album];
    for (int titel = 1; titel <= album.Titel_Anzahl; ++titel)
        if (const Long nr = Lied_von(haus_.modell, album.Lieder[titel]); nr >= 1) nummern.push_back(nr);
    laden(Liste, Leeren, nummern);
}

}  // namespace tonkartei
