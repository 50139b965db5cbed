#include "dj/spielerfeld.hpp"

namespace tonkartei {
namespace {

constexpr Farbe Rahmenfarbe = RGB(40, 40, 75);
constexpr int große_Schrift = 26, Ziffernschrift = 36, Titelschrift = 14;

}  // namespace

Spielerfeld::Spielerfeld(Fenster& f, const char*, int n)
    : Player_Rahmen(f, "Player_Rahmen", "", n),
      Player_Label(f, "Player_Label", Zahltext(n), n),
      Player_Artist(f, "Player_Artist", "Artist", n),
      Player_Titel(f, "Player_Titel", "Titel", n),
      Player_Minus(f, "Player_Minus", "-", n),
      Player_Minuten(f, "Player_Minuten", "00", n),
      Player_Doppelpunkt(f, "Player_Doppelpunkt", ":", n),
      Player_Sekunden(f, "Player_Sekunden", "00", n),
      Player_Position(f, "Player_Position", 0, Reglerweite, n),
      Player_Taste_Play(f, "Player_Taste_Play", "", n),
      Player_Taste_Pause(f, "Player_Taste_Pause", "", n),
      Player_Taste_Playlist(f, "Player_Taste_Playlist", "Playlist", n),
      Player_Taste_Random(f, "Player_Taste_Random", "Random", n),
      Player_Taste_nach1(f, "Player_Taste_nach1", "1", n),
      Player_Taste_nach2(f, "Player_Taste_nach2", "2", n),
      Player_Taste_nach3(f, "Player_Taste_nach3", "3", n),
      Player_Taste_nach4(f, "Player_Taste_nach4", "4", n),
      Player_Auto_1x(f, "Player_Auto_1x", "Auto 1x", n),
      Player_Auto_Immer(f, "Player_Auto_Immer", "Auto", n),
      Player_Auto_Label(f, "Player_Auto_Label", n % 2 == 1 ? "   ---------->" : "   <----------", n),
      Player_Lautstärke(f, "Player_Lautstärke", 0, Reglerweite, n) {
    Player_Rahmen.deckend = true;
    Player_Rahmen.Vorlesename = "Player " + Zahltext(n);
    Player_Taste_Play.Vorlesename = "Play";
    Player_Taste_Pause.Vorlesename = "Pause";
    for (Schriftfeld* feld : {&Player_Artist, &Player_Titel}) {
        feld->wie_Daten = true;
        feld->schrift(Titelschrift);
    }
    Player_Titel.fett(true);
    Player_Label.schrift(große_Schrift);
    Player_Label.fett(true);
    Player_Minus.schrift(große_Schrift);
    Player_Minus.ausrichtung = Schriftfeld::Ausrichtung::Mitte;
    Player_Minus.tooltip("abwärts (-) oder aufwärts zählen");
    for (Schriftfeld* feld : {&Player_Minuten, &Player_Sekunden, &Player_Doppelpunkt}) {
        feld->Ziffern = true;
        feld->schrift(Ziffernschrift);
    }
    Player_Position.griffig = true;
    Player_Position.tooltip("Position im Lied; die Helligkeit zeigt, wie laut der Player in der Mischung ist");
    Player_Taste_Play.Bild = "play";
    Player_Taste_Play.tooltip("spielt; ein Klick hält das Lied an");
    Player_Taste_Pause.Bild = "pause";
    Player_Taste_Pause.tooltip("hält an; ein Klick spielt das Lied");
    Player_Taste_Playlist.tooltip("lädt das erste Lied aus der Playlist");
    Player_Taste_Random.tooltip("lädt ein Zufalls-Lied aus den eingestellten Kategorien und Suchbegriffen");
    for (int k = 1; k <= 4; ++k) {
        Player_Taste_nach(k).tooltip("kopiert ein Lied in den Player");
        Player_Taste_nach(k).klein = true;
    }
    Player_Auto_1x.tooltip("einmal kurz vor dem Ende des Liedes zum anderen Player faden");
    Player_Auto_Immer.tooltip("bei jedem Lied kurz vor dem Ende zum anderen Player faden");
    Player_Auto_1x.Klick.verbinden([this] {
        if (Player_Auto_1x.wert()) Player_Auto_Immer.wert(false);
    });
    Player_Auto_Immer.Klick.verbinden([this] {
        if (Player_Auto_Immer.wert()) Player_Auto_1x.wert(false);
    });
    Player_Lautstärke.senkrecht = true;
    Player_Lautstärke.umgekehrt = true;
    Player_Lautstärke.griffig = true;
    Player_Lautstärke.tooltip("Lautstärke des Players vor der Mischung");
}

Knopf& Spielerfeld::Player_Taste_nach(int k) {
    Knopf* const tasten[] = {&Player_Taste_nach1, &Player_Taste_nach2, &Player_Taste_nach3, &Player_Taste_nach4};
    if (k < 1 || k > 4) throw Laufzeitfehler(Fehler_Index);
    return *tasten[k - 1];
}

std::vector<Element*> Spielerfeld::alle() {
    return {&Player_Rahmen,      &Player_Label,          &Player_Artist,       &Player_Titel,       &Player_Minus,
            &Player_Minuten,     &Player_Doppelpunkt,    &Player_Sekunden,     &Player_Position,    &Player_Taste_Play,
            &Player_Taste_Pause, &Player_Taste_Playlist, &Player_Taste_Random, &Player_Taste_nach1, &Player_Taste_nach2,
            &Player_Taste_nach3, &Player_Taste_nach4,    &Player_Auto_1x,      &Player_Auto_Immer,  &Player_Auto_Label,
            &Player_Lautstärke};
}

Knoten Spielerfeld::anordnung() {
    const Knoten Lied = Spalte({Knoten(Player_Artist).zeichen(9).dehnen(1), Knoten(Player_Titel).zeichen(9).dehnen(1)});
    const Knoten Uhr = Zeile({Knoten(Player_Minus).zeichen(1), Player_Minuten, Player_Doppelpunkt, Player_Sekunden});
    const Knoten Start = Überlagerung({Knoten(Player_Taste_Play).mindestens(1200, 720).Platz_halten(),
                                       Knoten(Player_Taste_Pause).mindestens(1200, 720).Platz_halten()});
    const Knoten Kopien = Zeile({Player_Taste_nach1, Player_Taste_nach2, Player_Taste_nach3, Player_Taste_nach4});
    const Knoten links =
        Spalte({Zeile({Knoten(Player_Label).zeichen(1), Knoten(Lied).lücke(0).dehnen(1)}), Feder(0, 1),
                Zeile({Start, Feder(), Knoten(Uhr).lücke(30)}), Feder(0, 1), Knoten(Player_Position).dehnen(1), Feder(0, 1),
                Zeile({Player_Taste_Playlist, Player_Taste_Random, Feder(), Knoten(Kopien).lücke(45)}), Feder(0, 1),
                Zeile({Player_Auto_1x, Player_Auto_Immer, Player_Auto_Label, Feder()})});
    return Gruppe(Player_Rahmen, Zeile({Knoten(links).dehnen(1, 1), Knoten(Player_Lautstärke).dehnen(0, 1)}).rand(120));
}

void Spielerfeld::färben(Farbe eigene) {
    Player_Rahmen.hintergrund(Rahmenfarbe);
    for (Schriftfeld* feld : {&Player_Label, &Player_Artist, &Player_Titel, &Player_Minus, &Player_Minuten,
                              &Player_Doppelpunkt, &Player_Sekunden, &Player_Auto_Label})
        feld->farbe(eigene);
}

void Spielerfeld::zeigen(bool spielt) {
    Player_Taste_Play.sichtbar(spielt);
    Player_Taste_Pause.sichtbar(!spielt);
}

Long Spielerfeld::Lautstärke() const { return gerundet((Reglerweite - Player_Lautstärke.wert()) / (Reglerweite / 100.0)); }

void Spielerfeld::Lautstärke(Long Prozent) { Player_Lautstärke.wert(gerundet(Reglerweite / 100.0 * (100 - Prozent))); }

void Spielerfeld::Helligkeit(Long Anteil) {
    const int g = gerundet_Integer(Anteil * 2.5);
    Player_Position.farbe(RGB(g, g, g));
    Player_Position.hintergrund(RGB(g, g, g));
}

}  // namespace tonkartei
