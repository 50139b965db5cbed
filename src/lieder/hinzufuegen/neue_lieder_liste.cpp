#include "lieder/hinzufuegen/neue_lieder_liste.hpp"

#include <algorithm>
#include <array>
#include <charconv>

#include "grundlagen/codepage.hpp"
#include "lieder/hinzufuegen/mp3_tag_aendern.hpp"
#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fortschritt.hpp"
#include "wiedergabe/winamp/winamp_starter.hpp"

namespace tonkartei {
namespace {

// All digits that the number has, with a point.
Text Dezimaltext(double wert) {
    std::array<char, 400> puffer;
    const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert, std::chars_format::fixed);
    return {puffer.data(), ende.ptr};
}

Text MByte_Text(double KByte) { return KByte < 1 ? "---" : Zahltext(gerundet(KByte / 1024.0)); }

}  // namespace

neue_Lieder_Liste::neue_Lieder_Liste(Haus& haus, MP3_TagHead& mp3, Lieder_Übernahme& übernahme, MP3_Tag_ändern& tag_ändern,
                                     WinAmp_Starter& starter)
    : Fenster(haus.ansicht, "neue_Lieder_Liste", "Lieder hinzufügen"),
      dateien_(haus.plattform.Dateisystem),
      fortschritt_(haus.fortschritt),
      mp3_(mp3),
      übernahme_(übernahme),
      tag_ändern_(tag_ändern),
      starter_(starter) {
    gefundene_Lieder.tooltip("Alle Lieder, die gefunden wurden.");
    Lieder_hinzufügen.tooltip("Die Lieder, die hinzugefügt werden.");
    abspielen_1.tooltip("Das gewählte gefundene Lied mit WinAmp anhören.");
    abspielen_2.tooltip("Das gewählte neue Lied mit WinAmp anhören.");
    add_alle.tooltip("Alle gefundenen Lieder hinzufügen.");
    add_dieses.tooltip("Das gewählte gefundene Lied hinzufügen.");
    del_dieses.tooltip("Das gewählte neue Lied nicht hinzufügen.");
    del_alle.tooltip("Keines der Lieder hinzufügen.");
    MP3_Tags_lesen.tooltip("Artist, Titel und Größe aller gefundenen Lieder aus den Dateien lesen.");
    Tag_ändern.tooltip("Artist und Titel in der Datei des gewählten gefundenen Liedes ändern.");
    add_Option_1.tooltip("Die Dateien bleiben auch an ihrem alten Platz.");
    add_Option_2.tooltip("Die Dateien verlassen ihren alten Platz.");
    Album_erstellen.tooltip("Aus den neuen Liedern ein Album machen.");
    Playlist_erstellen.tooltip("Die neuen Lieder in eine Playlist schreiben.");
    Ok.tooltip("Die Lieder in die Datenbank aufnehmen.");
    Abbruch.tooltip("Kein Lied hinzufügen.");
    Vorgabeknopf = &Ok;
    Abbruchknopf = &Abbruch;
    for (Listenfeld* helfer : {&MP3_Tags, &MP3_DGröße, &Nr_Liste}) {
        helfer->unsichtbarer_Helfer = true;
        helfer->sichtbar(false);
    }

    add_alle.Klick.verbinden([this] { alle_hinzufügen(); });
    add_dieses.Klick.verbinden([this] { dieses_hinzufügen(); });
    del_dieses.Klick.verbinden([this] { dieses_entfernen(); });
    del_alle.Klick.verbinden([this] { alle_entfernen(); });
    MP3_Tags_lesen.Klick.verbinden([this] { Tags_lesen(); });
    Tag_ändern.Klick.verbinden([this] { Tag_des_gewählten_ändern(); });
    abspielen_1.Klick.verbinden([this] { Lied_abspielen(gefundene_Lieder.gewählt() + 1); });
    abspielen_2.Klick.verbinden([this] {
        if (Lieder_hinzufügen.gewählt() >= 0) Lied_abspielen(Nr_von(Lieder_hinzufügen.gewählt()));
    });
    add_Option_1.Klick.verbinden([this] { Modus_ = Übernahmeart::kopieren; });
    add_Option_2.Klick.verbinden([this] { Modus_ = Übernahmeart::bewegen; });
    Ok.Klick.verbinden([this] { übernehmen(); });
    Abbruch.Klick.verbinden([this] { entladen(); });
}

Knoten neue_Lieder_Liste::anordnung() {
    const auto Hälfte = [](Element& titel, Element& liste, Element& hören, std::vector<Knoten> summen) {
        std::vector<Knoten> fuß{hören, Feder()};
        fuß.insert(fuß.end(), std::make_move_iterator(summen.begin()), std::make_move_iterator(summen.end()));
        return Spalte({titel, Knoten(liste).zeichen(30).zeilen(12).dehnen(1, 1), Zeile(std::move(fuß))}).dehnen(1, 1);
    };
    return Spalte({Zeile({Hälfte(gefundene_Lieder_Text, gefundene_Lieder, abspielen_1,
                                 {Liste_Anzahl_1_Text, Knoten(Liste_Anzahl_1).zeichen(5), Liste_Größe_1_Text,
                                  Knoten(Liste_Größe_1).zeichen(6)}),
                          Spalte({Feder(0, 1), add_alle, add_dieses, del_dieses, del_alle, Feder(0, 1)}),
                          Hälfte(Lieder_hinzufügen_Text, Lieder_hinzufügen, abspielen_2,
                                 {Liste_Anzahl_2_Text, Knoten(Liste_Anzahl_2).zeichen(5), Liste_Größe_2_Text,
                                  Knoten(Liste_Größe_2).zeichen(6)})})
                       .dehnen(1, 1),
                   Zeile({Gruppe(Tags, Spalte({MP3_Tags_lesen, Tag_ändern})),
                          Gruppe(Dateien, Spalte({add_Option_1, add_Option_2}).mindestens(110 * Twips_je_Pixel, 0)),
                          Gruppe(dazu, Spalte({Album_erstellen, Playlist_erstellen})), Feder(),
                          Spalte({Feder(0, 1), Knoten(Ok).zeichen(12), Knoten(Abbruch).zeichen(12)})})})
        .rand(12 * Twips_je_Pixel);
}

Größe neue_Lieder_Liste::Startgröße() { return {920 * Twips_je_Pixel, 560 * Twips_je_Pixel}; }

void neue_Lieder_Liste::Reset() {
    laden();
    Anzahl_gefunden_ = 0;
    Funde_.leeren();
    MP3_Tags.leeren();
    MP3_DGröße.leeren();
    Nr_Liste.leeren();
}

void neue_Lieder_Liste::add_Lied(const Text& Pfad, Byte Quell_Kategorie) {
    Funde_[Anzahl_gefunden_ + 1] = {Pfad, Quell_Kategorie};
    ++Anzahl_gefunden_;
}

void neue_Lieder_Liste::add_MP3_Tag(const Text& Artist_Titel) { MP3_Tags.hinzufügen(auf_Seite(Artist_Titel)); }

void neue_Lieder_Liste::add_MP3_Größe(double KByte) { MP3_DGröße.hinzufügen(Dezimaltext(KByte)); }

void neue_Lieder_Liste::activate(Byte Quelle, bool Füllen) {
    Quelle_ = Quelle;
    if (Anzahl_gefunden_ == 0) {
        ansicht().informieren("Fehler", "Es wurden keine Lieder zum hinzufügen gefunden!");
        entladen();
        return;
    }
    if (Hauptfenster_sperren) Hauptfenster_sperren(true);
    if (Füllen) {
        std::vector<Text> namen;
        for (Long nr = 1; nr <= Anzahl_gefunden_; ++nr)
            namen.push_back(auf_Seite(anzeigbar(Dateiname_von(Funde_[nr].Pfad))));
        MP3_DGröße.setzen(std::vector<Text>(namen.size(), "0"));
        MP3_Tags.setzen(std::move(namen));
    }
    gefundene_Lieder.setzen(MP3_Tags.zeilen());
    if (Quelle == Quelle_Datenbank) add_Option_2.aktiv(false);
    add_Option_1.wählen();
    alle_hinzufügen();
    zeigen_modal(&gefundene_Lieder);
}

// Also the way of the close box: nothing was done, the main window is free again.
void neue_Lieder_Liste::beim_Entladen() {
    Funde_.leeren();
    if (Hauptfenster_sperren) Hauptfenster_sperren(false);
    if (Quelle_ == Quelle_Dateien && Liste_fokussieren) Liste_fokussieren();
}

void neue_Lieder_Liste::alle_hinzufügen() {
    std::vector<Text> nummern;
    for (Long nr = 1; nr <= Anzahl_gefunden_; ++nr) nummern.push_back(Zahltext(nr));
    Nr_Liste.setzen(std::move(nummern));
    Lieder_hinzufügen.setzen(gefundene_Lieder.zeilen());
    Summen_zeigen();
}

void neue_Lieder_Liste::dieses_hinzufügen() {
    const int zeile = gefundene_Lieder.gewählt();
    if (zeile < 0) return;
    const Text nummer = Zahltext(zeile + 1);
    const auto& nummern = Nr_Liste.zeilen();
    if (std::find(nummern.begin(), nummern.end(), nummer) != nummern.end()) {
        ansicht().informieren("Lied hinzufügen", "Dieses Lied wird schon hinzugefügt!");
        return;
    }
    Nr_Liste.hinzufügen(nummer);
    Lieder_hinzufügen.hinzufügen(gefundene_Lieder.zeile(zeile));
    Summen_zeigen();
}

void neue_Lieder_Liste::dieses_entfernen() {
    const int zeile = Lieder_hinzufügen.gewählt();
    if (zeile < 0) return;
    Nr_Liste.entfernen(zeile);
    Lieder_hinzufügen.entfernen(zeile);
    // The one that moves up, behind the end the one before; so a row of songs goes by pressing again and again.
    Lieder_hinzufügen.wähle(std::min(zeile, Lieder_hinzufügen.Anzahl() - 1));
    Summen_zeigen();
}

void neue_Lieder_Liste::alle_entfernen() {
    Nr_Liste.leeren();
    Lieder_hinzufügen.leeren();
    Summen_zeigen();
}

void neue_Lieder_Liste::Tags_lesen() {
    std::vector<Text> namen, größen;
    {
        const Fortschritts_Ende ende(fortschritt_);
        fortschritt_.Text_setzen("MP3-Tag's lesen...");
        for (Long nr = 1; nr <= Anzahl_gefunden_; ++nr) {
            const Text& pfad = Funde_[nr].Pfad;
            Text titel, artist;
            mp3_.Lied_Tag_lesen(pfad, titel, artist);
            namen.push_back(artist + " - " + titel);
            größen.push_back(
                Dezimaltext(static_cast<double>(std::max<std::int64_t>(0, dateien_.Dateilänge(pfad))) / 1024.0));
            fortschritt_.anzeigen(Prozent(nr, Anzahl_gefunden_));
        }
    }
    MP3_Tags.setzen(namen);
    MP3_DGröße.setzen(std::move(größen));
    const auto ersetzen = [](Listenfeld& liste, std::vector<Text> zeilen) {
        const int gewählt = liste.gewählt();
        liste.setzen(std::move(zeilen));
        liste.wähle(gewählt);
    };
    std::vector<Text> neue;
    for (int zeile = 0; zeile < Nr_Liste.Anzahl(); ++zeile)
        neue.push_back(namen[static_cast<std::size_t>(Nr_von(zeile) - 1)]);
    ersetzen(gefundene_Lieder, std::move(namen));
    ersetzen(Lieder_hinzufügen, std::move(neue));
    Summen_zeigen();
}

void neue_Lieder_Liste::Tag_des_gewählten_ändern() {
    const int zeile = gefundene_Lieder.gewählt();
    if (zeile < 0) return;
    const Text& pfad = Funde_[zeile + 1].Pfad;
    Text titel, artist;
    mp3_.Lied_Tag_lesen(pfad, titel, artist);
    if (!tag_ändern_.Tag_ändern(pfad, artist, titel)) return;
    const Text neu = artist + " - " + titel;
    MP3_Tags.zeile(zeile, neu);
    MP3_DGröße.zeile(zeile, Dezimaltext(static_cast<double>(std::max<std::int64_t>(0, dateien_.Dateilänge(pfad))) / 1024.0));
    gefundene_Lieder.zeile(zeile, neu);
    for (int i = 0; i < Nr_Liste.Anzahl(); ++i)
        if (Nr_von(i) == zeile + 1) Lieder_hinzufügen.zeile(i, neu);
    Summen_zeigen();
}

void neue_Lieder_Liste::Lied_abspielen(Long Nr) {
    if (Nr >= 1) starter_.starte_WinAmp_Datei(Funde_[Nr].Pfad);
}

void neue_Lieder_Liste::Summen_zeigen() {
    double gefunden = 0;
    for (Long nr = 1; nr <= Anzahl_gefunden_; ++nr) gefunden += KByte_von(nr);
    const double neue = KByte_hinzuzufügender();
    Liste_Anzahl_1.beschriftung(Zahltext(gefundene_Lieder.Anzahl()));
    Liste_Anzahl_2.beschriftung(Zahltext(Lieder_hinzufügen.Anzahl()));
    Liste_Größe_1.beschriftung(MByte_Text(gefunden));
    Liste_Größe_2.beschriftung(MByte_Text(neue));
    const bool zu_groß = neue >= static_cast<double>(übernahme_.freie_KByte());
    Liste_Größe_2.farbe(zu_groß ? Farbe_Rot : Liste_Größe_1.farbe());
}

void neue_Lieder_Liste::übernehmen() {
    Übernahme_Auftrag auftrag;
    auftrag.Quelle = Quelle_;
    auftrag.Modus = Modus_;
    for (int zeile = 0; zeile < Nr_Liste.Anzahl(); ++zeile) auftrag.Lieder.push_back(Funde_[Nr_von(zeile)]);
    auftrag.KByte = KByte_hinzuzufügender();
    auftrag.Album_erstellen = Album_erstellen.wert();
    auftrag.Playlist_erstellen = Playlist_erstellen.wert();

    // While the user picks categories events run, and a second commit must not begin inside this one.
    aktiv(false);
    if (Hauptfenster_sperren) Hauptfenster_sperren(true);
    const bool durchgeführt = übernahme_.ausführen(auftrag);
    entladen();
    if (!durchgeführt && Liste_fokussieren) Liste_fokussieren();
}

Long neue_Lieder_Liste::Nr_von(int zeile) const { return gerundet(Zahlwert(Nr_Liste.zeile(zeile))); }

double neue_Lieder_Liste::KByte_von(Long Nr) const { return Zahlwert(MP3_DGröße.zeile(Nr - 1)); }

double neue_Lieder_Liste::KByte_hinzuzufügender() const {
    double summe = 0;
    for (int zeile = 0; zeile < Nr_Liste.Anzahl(); ++zeile) summe += KByte_von(Nr_von(zeile));
    return summe;
}

}  // namespace tonkartei
