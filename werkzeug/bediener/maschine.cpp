#include "bediener/maschine.hpp"

#include <chrono>
#include <cstdlib>
#include <thread>

#include "echt.hpp"
#include "probe/dateisystem_probe.hpp"
#include "probe/fenstersystem_probe.hpp"
#include "probe/rechner_probe.hpp"
#include "probe/shell_probe.hpp"
#include "programm/shellfrage.hpp"

namespace tonkartei {
namespace {

const Text Wurzelschlüssel = "Software\\Tonkartei\\";

Text Temp_anlegen(Dateisystem& dateien, const Text& wurzel) {
    Text temp = mit_Trenner(wurzel + "temp");
    if (!dateien.Ordner_da(temp)) dateien.Ordner_anlegen(temp);
    return temp;
}

class Probenuhr : public Uhrwerk {
public:
    explicit Probenuhr(Rechner_Probe& rechner) : rechner_(rechner) {}
    std::int64_t jetzt() const override { return rechner_.Uhr(); }
    bool läuft_von_selbst() const override { return false; }
    void vor(std::int64_t ms) override { rechner_.Uhr_vor(ms); }

private:
    Rechner_Probe& rechner_;
};

class Wanduhr : public Uhrwerk {
public:
    std::int64_t jetzt() const override {
        return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - beginn_).count();
    }
    bool läuft_von_selbst() const override { return true; }
    void vor(std::int64_t ms) override { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }

private:
    std::chrono::steady_clock::time_point beginn_ = std::chrono::steady_clock::now();
};

class Maschine_Probe : public Maschine {
public:
    explicit Maschine_Probe(const Maschinenwahl& wahl)
        : störungen_([this, ende = wahl.abstürzen] {
              dateien_.Strom_weg();
              ende();
          }),
          registrierung_(wahl.wurzel + "einstellungen.reg"),
          papierkorb_(dateien_, wahl.wurzel + "papierkorb"),
          rechner_(wahl.uhr, Temp_anlegen(platte_, wahl.wurzel), wahl.zweite_Instanz) {
        if (wahl.ordner) platte_.aktuellen_Ordner_setzen(*wahl.ordner);
    }

    Plattform plattform() override { return {dateien_, registrierung_, fenster_mit_, shell_mit_, rechner_mit_}; }
    Uhrwerk& uhr() override { return uhr_; }
    Mitschrift& mitschrift() override { return mitschrift_; }
    Probe* probe() override { return &probe_; }
    std::vector<std::pair<Text, Text>> registrierung() const override { return registrierung_.alle(); }
    void Ansicht_setzen(Ansicht& ansicht) override { schale_.Frage_setzen(Frage_über(ansicht)); }

    std::vector<Spielerauskunft> Spielerliste() override {
        std::vector<Spielerauskunft> ergebnis;
        for (const auto& s : fenster_.Spielerliste())
            ergebnis.push_back({s->Klasse, s->Datei, s->Status, s->Position, s->Länge, s->Lautstärke, s->sichtbar});
        return ergebnis;
    }

private:
    Störungen störungen_;
    Dateisystem_echt platte_;
    Dateisystem_Probe dateien_{platte_, störungen_};
    Registrierung_echt registrierung_;
    Papierkorb_echt papierkorb_;
    Shell_echt schale_{dateien_, papierkorb_};
    Fenstersystem_Probe fenster_;
    Shell_Probe shell_{schale_, fenster_, störungen_};
    Rechner_Probe rechner_;
    Probenuhr uhr_{rechner_};
    Mitschrift mitschrift_{[this] { return uhr_.jetzt(); }};
    Fenstersystem_Mitschrift fenster_mit_{fenster_, mitschrift_};
    Shell_Mitschrift shell_mit_{shell_, mitschrift_};
    Rechner_Mitschrift rechner_mit_{rechner_, mitschrift_};
    Probe probe_{rechner_, dateien_, fenster_, störungen_};
};

// The real machine, but folders of the run's own: the user's stay as they are.
class Rechner_des_Laufs : public Rechner_echt {
public:
    Rechner_des_Laufs(const Text& wurzel, Text temp)
        : Rechner_echt(wurzel), winamp_(Spieler_bereitstellen(mit_Trenner(wurzel + "winamp"))), temp_(std::move(temp)) {}
    Text WinAmp_Vorgabe() override { return winamp_; }
    Text Temp_Verzeichnis() override { return temp_; }

private:
    Text winamp_, temp_;
};

class Maschine_echt : public Maschine {
public:
    explicit Maschine_echt(const Maschinenwahl& wahl)
        : registrierung_(wahl.wurzel + "einstellungen.reg"),
          papierkorb_(dateien_, wahl.wurzel + "papierkorb"),
          rechner_(wahl.wurzel, Temp_anlegen(dateien_, wahl.wurzel)),
          andere_(wahl.wurzel) {
        if (wahl.ordner) dateien_.aktuellen_Ordner_setzen(*wahl.ordner);
        if (wahl.zweite_Instanz) andere_.andere_Instanz_läuft();
    }

    Plattform plattform() override { return {dateien_, registrierung_, fenster_mit_, shell_mit_, rechner_mit_}; }
    Uhrwerk& uhr() override { return uhr_; }
    Mitschrift& mitschrift() override { return mitschrift_; }
    Probe* probe() override { return nullptr; }
    std::vector<std::pair<Text, Text>> registrierung() const override { return registrierung_.alle(); }
    void Ansicht_setzen(Ansicht& ansicht) override { schale_.Frage_setzen(Frage_über(ansicht)); }

    std::vector<Spielerauskunft> Spielerliste() override {
        std::vector<Spielerauskunft> ergebnis;
        for (Hwnd f = fenster_.GetWindow(fenster_.GetDesktopWindow(), GW_CHILD); f != 0;
             f = fenster_.GetWindow(f, GW_HWNDNEXT)) {
            const auto z = fenster_.Zustand(f);
            if (!z) continue;
            ergebnis.push_back(
                {fenster_.GetClassNameA(f), z->Datei, z->Status, z->Position, z->Länge, z->Lautstärke, z->sichtbar});
        }
        return ergebnis;
    }

private:
    Dateisystem_echt dateien_;
    Registrierung_echt registrierung_;
    Papierkorb_echt papierkorb_;
    Shell_echt schale_{dateien_, papierkorb_};
    Fenstersystem_echt fenster_;
    Rechner_des_Laufs rechner_;
    Rechner_echt andere_;  // plays the other instance where one is asked for
    Wanduhr uhr_;
    Mitschrift mitschrift_{[this] { return uhr_.jetzt(); }};
    Fenstersystem_Mitschrift fenster_mit_{fenster_, mitschrift_};
    Shell_Mitschrift shell_mit_{schale_, mitschrift_};
    Rechner_Mitschrift rechner_mit_{rechner_, mitschrift_};
};

std::vector<char> mit_Null(const Text& text) {
    std::vector<char> bytes(text.begin(), text.end());
    bytes.push_back('\0');
    return bytes;
}

}  // namespace

bool Maschine::Einstellung_setzen(const Text& schlüssel, const Text& wert, bool dword) {
    std::uint32_t art = REG_SZ;
    std::vector<char> daten = mit_Null(wert);
    if (dword) {
        char* ende = nullptr;
        const long zahl = std::strtol(wert.c_str(), &ende, 10);
        if (wert.empty() || *ende != '\0') return false;
        art = REG_DWORD;
        daten.clear();
        for (unsigned schub = 0; schub < 32; schub += 8)
            daten.push_back(static_cast<char>((static_cast<unsigned long>(zahl) >> schub) & 255U));
    }
    const Text pfad = schlüssel.starts_with("Software\\") ? schlüssel : Wurzelschlüssel + schlüssel;
    Registrierung& r = plattform().Registrierung;
    Registrierung::Schlüssel offen = 0;
    if (r.RegCreateKeyExA(HKEY_CURRENT_USER, pfad, offen) != ERROR_SUCCESS) return false;
    r.RegSetValueExA(offen, {}, art, daten);
    r.RegFlushKey(offen);
    r.RegCloseKey(offen);
    return true;
}

std::unique_ptr<Maschine> Maschine_bauen(const Maschinenwahl& wahl) {
    if (wahl.echt) return std::make_unique<Maschine_echt>(wahl);
    return std::make_unique<Maschine_Probe>(wahl);
}

}  // namespace tonkartei
