#include "programm/kontextmenues.hpp"

#include <algorithm>

#include "oberflaeche/ansicht.hpp"
#include "playlist/playlist.hpp"
#include "programm/tonkartei.hpp"
#include "wiedergabe/liedstart.hpp"
#include "wiedergabe/winamp/winamp.hpp"

namespace tonkartei {
namespace {

void umschalten(Kasten& kasten) { kasten.wert(!kasten.wert()); }

Menüzeile Strich(int n) { return {"Tray_Strich" + Zahltext(n), "-", ohne_Index, nullptr, {}}; }

}  // namespace

Kontextmenüs::Kontextmenüs(const Modell& modell, Tonkartei& haupt, Playlist& playlist, WinAmp& spieler, Liedstart& start)
    : Fenster(haupt.ansicht(), "Kontextmenüs", "Kontextmenüs"),
      modell_(modell),
      haupt_(haupt),
      playlist_(playlist),
      spieler_(spieler),
      start_(start),
      menü_(*this, Tabelle()) {
    Menü_setzen(menü_);
    haupt_.Kategorien.Tabelle_geändert.verbinden([this] { nachführen(); });
    haupt_.Wiedergabe.Autoplay.Klick.verbinden([this] { nachführen(); });
    haupt_.SysTray.Rechtsklick.verbinden([this](int) { Tray_zeigen(); });
    playlist_.Liste.Rechtsklick.verbinden([this](int zeile) { Playlist_zeigen(zeile); });
    haupt_.Lieder.Liste.Rechtsklick.verbinden([this](int zeile) {
        if (haupt_.Lieder.Datenbank_Modus.wert() == 0) Lied_zeigen(zeile);
    });
}

// An entry that runs an entry of the menu bar.
Menüzeile Kontextmenüs::wie(const Text& name, const Text& text) const {
    const Hauptmenü& leiste = haupt_.Menüleiste;
    return {name,
            text.empty() ? leiste.Leiste()(name).beschriftung() : text,
            ohne_Index,
            [&leiste, name] { leiste.ausführen(name); },
            {}};
}

std::vector<Menüzeile> Kontextmenüs::Tabelle() {
    std::vector<Menüzeile> lied;
    for (const auto& eintrag : haupt_.Menüleiste.Leiste()("UMP_aktuelles").einträge())
        lied.push_back(eintrag->ist_Strich() ? Menüzeile{eintrag->Name(), "-", ohne_Index, nullptr, {}}
                                             : wie(eintrag->Name()));
    lied.push_back(wie("ASCII_Datei", "Liedernamen in Datei ausgeben"));

    std::vector<Menüzeile> schemas;
    for (int n = 1; n <= Schemas_maximal; ++n)
        schemas.push_back({"Schema", "---", n, [this, n] { haupt_.Kategorien.Schema_klicken(n); }, {}});
    // There is always a first category.
    std::vector<Menüzeile> kategorien{
        {"Kategorie", "", 1, [this] { umschalten(haupt_.Kategorien.zeige_Kategorie(1)); }, {}}};

    std::vector<Menüzeile> tray{
        {"Datenbank_anzeigen", "&Datenbank-Fenster anzeigen", ohne_Index, [this] { haupt_.hervorholen(); }, {}},
        Strich(1),
        {"Zufallslied_starten",
         "nächstes/Zufalls-Lied &starten",
         ohne_Index,
         [this] {
             if (haupt_.Wiedergabe.Zufallslied_starten.aktiv()) start_.Zufallslied_starten();
         },
         {}},
        {"Random_Autoplay",
         "&Random-Autoplay",
         ohne_Index,
         [this] {
             if (haupt_.Wiedergabe.Autoplay.aktiv()) umschalten(haupt_.Wiedergabe.Autoplay);
         },
         {}},
        wie("Menü_starte_Album", "&Album starten"),
        Strich(2),
        {"Winamp_Pause", "Winamp &Pause/Weiter", ohne_Index, [this] { spieler_.Befehl(WinAmp_Code_Pause); }, {}},
        wie("Menü_WinAmp_verstecken", "WinAmp &verstecken"),
        Strich(3),
        {"Tray_Kategorien", "&Kategorien...", ohne_Index, nullptr, std::move(kategorien)},
        {"Tray_Schemas", "Schemas...", ohne_Index, nullptr, std::move(schemas)},
        Strich(4),
        wie("MP_Beenden", "Be&enden"),
    };
    std::vector<Menüzeile> playlist{
        {"Playlist_starten", "Playlist &starten", ohne_Index, [this] { playlist_.starten(); }, {}},
        {"Playlist_löschen", "aktuelles löschen", ohne_Index, [this] { playlist_.aktuelles_löschen(); }, {}},
        {"Playlist_alle_löschen", "alle löschen", ohne_Index, [this] { playlist_.alles_löschen(); }, {}},
    };
    return {{"Lied_Menü", "Lied", ohne_Index, nullptr, std::move(lied)},
            {"Playlist_Menü", "Playlist", ohne_Index, nullptr, std::move(playlist)},
            {"Tray_Menü", "Tonkartei", ohne_Index, nullptr, std::move(tray)},
            {"DJ_Listen_Menü", "Liste laden", ohne_Index, nullptr, {}}};
}

void Kontextmenüs::füllen(const Text& menü, const std::vector<Menüzeile>& einträge) {
    for (const Menüzeile& eintrag : einträge) menü_(menü).anfügen(eintrag);
}

void Kontextmenüs::zeigen(const Text& menü) { ansicht().Menü_zeigen(menü_(menü)); }

// The control or command that an entry stands for; null for what is always there.
const Element* Kontextmenüs::Vorbild(const Text& eintrag) const {
    if (eintrag == "Random_Autoplay") return &haupt_.Wiedergabe.Autoplay;
    return haupt_.element(eintrag, ohne_Index);
}

void Kontextmenüs::nachführen() {
    const auto& bereich = haupt_.Kategorien;
    Menüpunkt& kategorien = menü_("Tray_Kategorien");
    const int anzahl = std::max<int>(1, modell_.Anzahl_Kategorien);
    if (static_cast<int>(kategorien.einträge().size()) > anzahl) kategorien.kürzen(static_cast<std::size_t>(anzahl));
    for (int k = static_cast<int>(kategorien.einträge().size()) + 1; k <= anzahl; ++k)
        kategorien.anfügen({"Kategorie", "", k, [this, k] { umschalten(haupt_.Kategorien.zeige_Kategorie(k)); }, {}});
    for (int k = 1; k <= anzahl; ++k) {
        Menüpunkt& eintrag = *kategorien.einträge()[static_cast<std::size_t>(k - 1)];
        eintrag.Beschriftung_wörtlich = true;
        eintrag.beschriftung(modell_.Kategorien[k]);
        eintrag.haken(bereich.zeige_Kategorie(k).wert());
    }
    for (int n = 1; n <= Schemas_maximal; ++n) {
        Menüpunkt& eintrag = menü_("Schema", n);
        const bool angeboten = n <= modell_.Anz_Kat_Schemas;
        eintrag.Beschriftung_wörtlich = true;
        eintrag.beschriftung(angeboten ? modell_.Schemas[n].Name : Text("---"));
        eintrag.aktiv(angeboten);
    }
    for (const auto& menü : menü_.einträge())
        for (const auto& eintrag : menü->einträge())
            if (const Element* vorbild = Vorbild(eintrag->Name())) eintrag->aktiv(vorbild->aktiv());
    menü_("Random_Autoplay").haken(haupt_.Wiedergabe.Autoplay.wert());
    menü_("Menü_WinAmp_verstecken").haken(haupt_.Menüleiste.Leiste()("Menü_WinAmp_verstecken").haken());
}

void Kontextmenüs::Lied_zeigen(int zeile) {
    auto& liste = haupt_.Lieder.Liste;
    // The commands work on the chosen song: it must be the one that the user points at, and its details must be there.
    if (zeile >= 0 && (zeile != liste.gewählt() || haupt_.Lieder.angezeigtes_Lied() == 0)) liste.wähle(zeile);
    nachführen();
    ansicht().Menü_zeigen(menü_("Lied_Menü"));
}

void Kontextmenüs::Playlist_zeigen(int zeile) {
    if (zeile >= 0 && zeile != playlist_.Liste.gewählt()) playlist_.Liste.wähle(zeile);
    ansicht().Menü_zeigen(menü_("Playlist_Menü"));
}

void Kontextmenüs::Tray_zeigen() {
    nachführen();
    ansicht().Menü_zeigen(menü_("Tray_Menü"));
}

}  // namespace tonkartei
