#include "datenbank/einstellungsspeicher.hpp"

namespace tonkartei {
namespace {

// The table: key and variable of every setting, in order. `F` reads or writes one.
template <class E, class F>
void Einstellungen_durchgehen(E& e, F&& f) {
    const auto Liste = [&](const Text& schlüssel, auto& anzahl, auto& einträge) {
        f(schlüssel + "\\Anzahl", anzahl);
        for (int i = 1; i <= anzahl; ++i) f(schlüssel + "\\Nr. " + Zahltext(i), einträge[i]);
    };
    Liste("geöffnete Datenbanken", e.Datenbank_Liste_Anzahl, e.Datenbank_Liste);
    Liste("Verzeichnis hinzufügen", e.Verzeichnis_Anzahl, e.Zuletzt_hinzugefügte_Verzeichnisse);
    f("Anzahl-Zeit", e.Anzahl_Zeit);
    f("Lieder-Namen lesen", e.Lieder_Namen_lesen);
    f("Liste-Doppelklick", e.Liste_Doppelklick);
    f("bei_Listensuche_sichtbar", e.bei_Listensuche_sichtbar);
    f("Listensuche_Anzahl_Buchstaben", e.Listensuche_Anzahl_Buchstaben);
    f("löschen in den Papierkorb", e.Papierkorb);
    f("Alben-Liste animiert", e.Alben_Liste_animiert);
    f("WinAmp", e.WinAmp_Verzeichnis);
    f("WinAmp Lautstärke", e.WinAmp_Lautstärke);
    f("WinAmp Zeit vorwärts", e.WinAmp_Zeit_vorwärts);
    f("WinAmp Fernsteuerung", e.WinAmp_Fernsteuerung);
    f("WinAmp Fernsteuerung animiert", e.WinAmp_Fernsteuerung_animiert);
    f("WinAmp Fernsteuerung Lautstärke", e.WinAmp_FS_Lautstärke);
    f("WinAmp verstecken", e.WinAmp_verstecken);
    f("WinAmp verstecken wenn DB minimiert", e.WinAmp_verstecken_minimiert);
    f("WinAmp beenden", e.WinAmp_beenden);
    f("PositionX", e.PositionX);
    f("PositionY", e.PositionY);
    f("Kategorien merken", e.Kategorien_merken);
    f("Kategorien", e.Kategorien);
    f("Random-Einstellung", e.Random_Einstellung);
    f("Kategorie-Rechtsklick", e.Kategorie_Rechtsklick);
    f("Kategorie wechsel bestätigen", e.Kategorie_wechsel_bestätigen);
    f("Kategorie-Farbe", e.Kategorie_Farbe);
    f("automatische Kategorien Farbe", e.automatische_Kategorien_Farbe);
    f("Markierte Farbe", e.Markierte_Farbe);
    f("Markierte Listen-Farbe", e.Markierte_Listen_Farbe);
    f("Position merken", e.Position_merken);
    f("automatisch Kategorie Wechseln\\Status", e.auto_Kat_Wechsel_Status);
    f("automatisch Kategorie Wechseln\\Anzahl Lieder", e.auto_Kat_Wechsel_Lieder);
    f("Random-Autoplay", e.Random_Autoplay);
    f("Fenster minimieren", e.Fenster_minimieren);
    f("System-Tray-Symbol immer sichtbar", e.Systray_immer_sichtbar);
    f("Objekt markierung aktiv", e.Objekt_Markierung_aktiv);
    f("Alben-Verwaltung\\PositionX", e.Alben_PositionX);
    f("Alben-Verwaltung\\PositionY", e.Alben_PositionY);
    f("Playlist\\PositionX", e.Playlist_PositionX);
    f("Playlist\\PositionY", e.Playlist_PositionY);
    f("Playlist\\Breite", e.Playlist_Breite);
    f("Playlist\\Höhe", e.Playlist_Höhe);
    f("Playlist\\Always on top", e.Playlist_Always_on_top);
    f("Playlist\\autoshow", e.Playlist_autoshow);
    f("Playlist\\Status", e.Playlist_Status);
    f("Playlist\\Position merken", e.Playlist_Position_merken);
    f("Playlist\\Minimieren", e.Playlist_Minimieren);
}

template <class D, class F>
void Display_durchgehen(D& d, F&& f) {
    const auto nummeriert = [](const char* name, int i) { return Text("Display\\") + name + " " + Zahltext(i + 1); };
    f("Display\\Datenport", d.Datenport);
    f("Display\\Statusport", d.Statusport);
    f("Display\\Controlport", d.Controlport);
    f("Display\\Register-Select", d.Register_Select);
    f("Display\\Enable", d.Enable);
    for (int i = 0; i < 3; ++i) f(nummeriert("Taster", i), d.Taster[i]);
    for (int i = 0; i < 3; ++i) f(nummeriert("Taster", i) + " aktiv", d.Taster_aktiv[i]);
    f("Display\\Anzahl Zeilen", d.Anzahl_Zeilen);
    f("Display\\Anzahl Zeichen", d.Anzahl_Zeichen);
    for (int i = 0; i < 4; ++i) f(nummeriert("Adresse Zeile", i), d.Adresse_Zeile[i]);
    f("Display\\Befehls-Zeit", d.Befehls_Zeit);
    f("Display\\Anzeige-Zeit", d.Anzeige_Zeit);
    for (int i = 0; i < 4; ++i) {
        f(nummeriert("Init", i) + " aktiv", d.Init_aktiv[i]);
        f(nummeriert("Init", i) + " Wert", d.Init_Wert[i]);
        f(nummeriert("Init", i) + " Zeit", d.Init_Zeit[i]);
    }
}

template <class S, class F>
void Schreibtisch_durchgehen(S& s, F&& f) {
    f("Schreibtisch\\Breite", s.Breite);
    f("Schreibtisch\\Höhe", s.Höhe);
    f("Schreibtisch\\Alben-Breite", s.Alben_Breite);
    f("Schreibtisch\\Alben-Höhe", s.Alben_Höhe);
    f("Schreibtisch\\Liedwechsel melden", s.Liedwechsel_melden);
}

struct Leser {
    const Registry& registry;
    void operator()(const Text& name, Byte& wert) const { registry.Byte_lesen(name, wert); }
    void operator()(const Text& name, Long& wert) const { registry.Long_lesen(name, wert); }
    void operator()(const Text& name, bool& wert) const { registry.Bool_lesen(name, wert); }
    void operator()(const Text& name, Text& wert) const { registry.Wert_lesen(name, wert); }
};

struct Schreiber {
    Registry& registry;
    void operator()(const Text& name, const Byte& wert) const { registry.Byte_schreiben(name, wert); }
    void operator()(const Text& name, const Long& wert) const { registry.Long_schreiben(name, wert); }
    void operator()(const Text& name, const bool& wert) const { registry.Bool_schreiben(name, wert); }
    void operator()(const Text& name, const Text& wert) const { registry.Wert_schreiben(name, wert); }
};

// Leaves alone what stands there already, and what does not stand there because it is nothing.
struct Nachtrag {
    Registry& registry;
    template <class T>
    void operator()(const Text& name, const T& wert) const {
        T bisher{};
        Leser{registry}(name, bisher);
        if (bisher != wert) Schreiber{registry}(name, wert);
    }
};

}  // namespace

void Einstellungen_lesen(Registry& registry, Einstellungen& werte, const Einstellungs_Vorgaben& vorgaben) {
    werte = Einstellungen{};
    werte.PositionX = vorgaben.PositionX;
    werte.PositionY = vorgaben.PositionY;
    werte.Playlist_PositionX = vorgaben.Playlist_PositionX;
    werte.Playlist_PositionY = vorgaben.Playlist_PositionY;
    werte.Playlist_Breite = vorgaben.Playlist_Breite;
    werte.Playlist_Höhe = vorgaben.Playlist_Höhe;
    werte.WinAmp_Verzeichnis = vorgaben.WinAmp_Verzeichnis;
    Einstellungen_durchgehen(werte, Leser{registry});
    Schreibtisch_durchgehen(werte.Schreibtisch, Leser{registry});
    Display_durchgehen(werte.Display, Schreiber{registry});
    registry.sichern();
}

void Einstellungen_schreiben(Registry& registry, const Einstellungen& werte) {
    Einstellungen_durchgehen(werte, Schreiber{registry});
    Display_durchgehen(werte.Display, Schreiber{registry});
    Schreibtisch_durchgehen(werte.Schreibtisch, Nachtrag{registry});
    registry.sichern();
}

}  // namespace tonkartei
