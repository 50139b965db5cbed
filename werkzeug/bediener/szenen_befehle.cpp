#include "bediener/ansicht_bediener.hpp"
#include "bediener/befehle.hpp"
#include "bediener/maschine.hpp"
#include "grundlagen/fehler.hpp"
#include "probe/dateisystem_probe.hpp"
#include "probe/fenstersystem_probe.hpp"
#include "probe/rechner_probe.hpp"
#include "probe/stoerung.hpp"

namespace tonkartei {
namespace {

Probe& Probe_von(Maschine& maschine) {
    if (maschine.probe() == nullptr) throw Befehlsfehler("nur mit der Probe");
    return *maschine.probe();
}

Vorgang Vorgang_lesen(Befehlszeile& z) {
    const Text name = z.nächstes("Vorgang");
    const auto vorgang = Vorgang_von(name);
    if (!vorgang) throw Befehlsfehler("kein solcher Vorgang: " + name);
    return *vorgang;
}

long Anzahl_lesen(Befehlszeile& z) {
    const long anzahl = z.Zahl("Anzahl");
    if (anzahl < 1) throw Befehlsfehler("zählt von 1 an");
    return anzahl;
}

// "status=1", "position=5000", "länge=200"; "hängt=1": answers no message until "hängt=0".
void Spieler_stellen(Fenstersystem_Probe& fenster, const Text& klasse, Befehlszeile& z) {
    const auto spieler = fenster.von_Klasse(klasse);
    if (spieler.empty()) throw Befehlsfehler("kein solcher Spieler: " + klasse);
    std::map<Text, int> werte;
    while (z.mehr()) {
        const Text angabe = z.nächstes("Angabe");
        const std::size_t gleich = angabe.find('=');
        const Text name = angabe.substr(0, gleich);
        if (gleich == Text::npos || (name != "status" && name != "position" && name != "länge" && name != "hängt"))
            throw Befehlsfehler("unbekannt: " + angabe);
        Befehlszeile zahl(angabe.substr(gleich + 1));
        werte[name] = static_cast<int>(zahl.Zahl("Wert"));
    }
    for (auto* s : spieler) {
        if (werte.contains("status")) s->Status = werte["status"];
        if (werte.contains("position")) s->Position = werte["position"];
        if (werte.contains("länge")) s->Länge = werte["länge"];
        if (werte.contains("hängt")) s->hängt = werte["hängt"] != 0;
    }
}

void Spieler_Szene(Fenstersystem_Probe& fenster, Befehlszeile& z) {
    const Text wort = z.nächstes("Klasse");
    if (wort == "neu" || wort == "weg") {
        const Text klasse = z.nächstes("Klasse");
        z.zu_Ende();
        if (wort == "neu")
            fenster.neues_Fenster(klasse);
        else if (!fenster.Fenster_stirbt(klasse))
            throw Befehlsfehler("kein solcher Spieler: " + klasse);
        return;
    }
    Spieler_stellen(fenster, wort, z);
}

}  // namespace

void Szenenbefehle_eintragen(Befehlstafel& tafel, Ansicht_Bediener& ansicht, Maschine& maschine) {
    tafel["uhr"] = [&](Befehlszeile& z) {
        Probe_von(maschine);
        const Text angabe = z.nächstes("Millisekunden");
        z.zu_Ende();
        Befehlszeile zahl(angabe.starts_with('+') ? angabe.substr(1) : angabe);
        const long ms = zahl.Zahl("Millisekunden");
        if (ms < 0) throw Befehlsfehler("die Uhr geht nur vorwärts");
        ansicht.vergehen(ms);
    };
    tafel["warte"] = [&](Befehlszeile& z) {
        if (maschine.probe() != nullptr) throw Befehlsfehler("nur mit der echten Maschine");
        const long ms = z.Zahl("Millisekunden");
        z.zu_Ende();
        if (ms < 0) throw Befehlsfehler("die Uhr geht nur vorwärts");
        ansicht.vergehen(ms);
    };
    tafel["vormerken"] = [&](Befehlszeile& z) {
        if (!z.mehr()) throw Befehlsfehler("es fehlt: Befehl");
        ansicht.vormerken(z.rest_roh());
    };
    tafel["zufall"] = [&](Befehlszeile& z) {
        Probe& probe = Probe_von(maschine);
        std::vector<double> werte;
        do werte.push_back(z.Kommazahl("Wert"));
        while (z.mehr());
        for (const double wert : werte)
            if (!(wert >= 0 && wert < 1)) throw Befehlsfehler("liegt nicht zwischen 0 und 1");
        for (const double wert : werte) probe.Rechner.Zufall_bestellen(wert);
    };
    const auto Auskunft = tafel["spieler"];
    tafel["spieler"] = [&maschine, Auskunft](Befehlszeile& z) {
        if (z.mehr())
            Spieler_Szene(Probe_von(maschine).Fenster, z);
        else
            Auskunft(z);
    };
    tafel["platz"] = [&](Befehlszeile& z) {
        Probe& probe = Probe_von(maschine);
        const long kbyte = z.Zahl("KByte");
        z.zu_Ende();
        if (kbyte < 0) throw Befehlsfehler("weniger als nichts");
        probe.Dateien.Platz(static_cast<std::uint64_t>(kbyte) * 1024);
    };
    tafel["störung"] = [&](Befehlszeile& z) {
        Probe& probe = Probe_von(maschine);
        const Vorgang vorgang = Vorgang_lesen(z);
        const long n = Anzahl_lesen(z);
        z.zu_Ende();
        probe.Störungen.Fehler_bestellen(vorgang, n);
    };
    tafel["absturz"] = [&](Befehlszeile& z) {
        Probe& probe = Probe_von(maschine);
        if (!z.mehr()) return probe.Störungen.abstürzen();
        const Vorgang vorgang = Vorgang_lesen(z);
        const long n = Anzahl_lesen(z);
        z.zu_Ende();
        probe.Störungen.Absturz_bestellen(vorgang, n);
    };
    tafel["schreibschutz"] = [&](Befehlszeile& z) {
        Probe& probe = Probe_von(maschine);
        const Text pfad = z.nächstes("Pfad"), wie = z.nächstes("an oder aus");
        z.zu_Ende();
        if (wie != "an" && wie != "aus") throw Befehlsfehler("weder an noch aus: " + wie);
        probe.Dateien.Schreibschutz(pfad, wie == "an");
    };
    tafel["laufwerk"] = [&](Befehlszeile& z) {
        Probe& probe = Probe_von(maschine);
        const Text pfad = z.nächstes("Pfad");
        z.zu_Ende();
        probe.Dateien.Laufwerk(pfad);
    };
}

}  // namespace tonkartei
