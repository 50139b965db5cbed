// The playing side: a draw of chance from 5000 songs against the sort of its lines; the tick of the whole program on a
// desktop with fifty windows of others, its time and what it leaves in memory.
#include <malloc.h>
#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "alben/albenraum.hpp"
#include "datenbank/datenbankraum.hpp"
#include "kategorien/kategorienbereich.hpp"
#include "kategorien/kategorienraum.hpp"
#include "leistung/speicher.hpp"
#include "leistung/verhaeltnis.hpp"
#include "liste/listenbereich.hpp"
#include "oberflaeche/fenster.hpp"
#include "oberflaeche/zeitgeber.hpp"
#include "probe/stumme_ansicht.hpp"
#include "programm/programm.hpp"
#include "spieler/linux/fenster.hpp"
#include "wiedergabe/wiedergabe.hpp"
#include "wiedergabe/wiedergabebereich.hpp"
#include "wiedergabe/zufall/liedautomatik.hpp"

using namespace tonkartei;

namespace {

// A view that shows nothing and hands out the program's timers.
class Taktansicht : public Stumme_Ansicht {
public:
    void Zeitgeber_gestellt(Zeitgeber& zeitgeber) override {
        if (zeitgeber.aktiv()) Takt = &zeitgeber;
    }
    Zeitgeber* Takt = nullptr;
};

void Zufall_messen(Verhältnisse& v, Speicherprobe& probe) {
    Stumme_Ansicht ansicht;
    Haus haus{probe.maschine(), ansicht};
    Modell& modell = haus.modell;
    Datenbankraum datenbank{haus};
    Albenraum alben{datenbank};
    Kategorienraum kategoriefenster{haus};
    Wiedergabe wiedergabe{haus};
    Fenster haupt{ansicht, "Tonkartei", "Tonkartei"};
    Kategorienbereich kategorien{haupt, modell, haus.einstellungen, kategoriefenster.bearbeiten};
    Listenbereich lieder{haupt, haus, alben, kategorien};
    Wiedergabebereich knöpfe{haupt};
    Liedautomatik automatik{haus, alben.start, wiedergabe, {lieder, kategorien, knöpfe}};

    std::vector<std::string> zeilen;
    std::vector<long long> nummern;
    modell.Anzahl_Lieder = Lieder_maximal;
    for (Long nr = 1; nr <= Lieder_maximal; ++nr) {
        modell.Lieder[nr].Anzahl = nr * 7919 % 61;
        modell.Lieder[nr].Kategorie = 2;
        zeilen.push_back(Zahl_mit_Nullen(modell.Lieder[nr].Anzahl, 8) + Zahl_mit_Nullen(nr, 8) + "00000000");
        nummern.push_back(nr);
    }
    lieder.Nr_Liste_setzen(nummern);
    lieder.erstelle_Liste_von_Nr_Liste();
    v.höchstens(
        "Zufallslied aus 5000 Liedern", 2, "das Sortieren der Zeilen",
        [&] {
            Long summe = 0;
            for (int i = 0; i < 20; ++i) summe += automatik.Zufall.Zufallslied_wählen();
            return summe;
        },
        [&] {
            std::size_t summe = 0;
            for (int i = 0; i < 20; ++i) {
                std::vector<std::string_view> sortiert(zeilen.begin(), zeilen.end());
                std::sort(sortiert.begin(), sortiert.end());
                summe += sortiert.front().size();
            }
            return summe;
        });
}

struct Nichts final : spieler::Fensterprozedur {
    std::int32_t Nachricht(std::uint32_t, std::int32_t, std::int64_t) override { return 0; }
    void Dateien(const std::vector<Text>&, bool) override {}
    Auskunft Auskunft_geben() const override { return {}; }
    void geschlossen() override {}
};

// Windows of other programs, served by one thread.
class Fremde_Fenster {
public:
    explicit Fremde_Fenster(int anzahl) {
        for (int i = 0; i < anzahl; ++i)
            fenster_.push_back(std::make_unique<spieler::Fenster>("Fremdes" + std::to_string(i), prozedur_));
        diener_ = std::thread([this] {
            std::vector<pollfd> liste;
            while (!ende_) {
                liste.clear();
                for (const auto& f : fenster_) f->anmelden(liste);
                if (::poll(liste.data(), liste.size(), 5) <= 0) continue;
                for (const auto& f : fenster_) f->bedienen(liste);
            }
        });
    }
    ~Fremde_Fenster() {
        ende_ = true;
        diener_.join();
    }

private:
    Nichts prozedur_;
    std::vector<std::unique_ptr<spieler::Fenster>> fenster_;
    std::atomic<bool> ende_ = false;
    std::thread diener_;
};

// An hour of them, and one before that, in which whatever is taken once is taken.
void Takt_messen(Verhältnisse& v, Speicherprobe& probe) {
    constexpr int Stunde = 7200;
    const Fremde_Fenster fremde(50);
    Taktansicht ansicht;
    Programm programm(probe.maschine(), ansicht, "");
    programm.starten();
    std::vector<double> zeiten;
    std::size_t vorher = 0;
    for (int i = 0; i < 2 * Stunde; ++i) {
        if (i == Stunde) vorher = ::mallinfo2().uordblks;
        const auto anfang = std::chrono::steady_clock::now();
        ansicht.Takt->auslösen();
        if (i < Stunde)
            zeiten.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - anfang).count());
    }
    const std::size_t nachher = ::mallinfo2().uordblks;
    std::nth_element(zeiten.begin(), zeiten.begin() + Stunde / 2, zeiten.end());
    v.Wert("Takt mit 50 fremden Fenstern", zeiten[Stunde / 2], "ms", 1);
    v.Wert("Speicher nach einer Stunde Takte", nachher > vorher ? static_cast<double>(nachher - vorher) : 0, "Byte mehr", 0);
}

}  // namespace

int main() {
    Speicherprobe probe;
    ::mkdir(probe.ordner.pfad("lauf").c_str(), 0700);
    ::setenv("XDG_RUNTIME_DIR", probe.ordner.pfad("lauf").c_str(), 1);
    Verhältnisse v;
    Zufall_messen(v, probe);
    Takt_messen(v, probe);
    return v.Ergebnis();
}
