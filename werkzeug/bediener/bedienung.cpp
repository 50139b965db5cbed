#include "bediener/bedienung.hpp"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "bediener/ansicht_bediener.hpp"
#include "bediener/befehle.hpp"
#include "bediener/json.hpp"
#include "bediener/malstube.hpp"
#include "bediener/maschine.hpp"
#include "bediener/optionen.hpp"
#include "echt.hpp"
#include "testordner.hpp"

namespace tonkartei {
namespace {

// Free for tests to tell from the others: neither an orderly end nor a run-time error.
constexpr int Status_Absturz = 9;
constexpr int Status_Aufruf = 2;

// The scratch folder; a fresh one goes away with the process, however that ends.
class Wurzel {
public:
    explicit Wurzel(const std::optional<Text>& gewünscht) : behalten_(gewünscht.has_value()) {
        if (gewünscht) {
            std::filesystem::create_directories(Testordner::weg_zu(*gewünscht));
            pfad_ = Testordner::Text_von(std::filesystem::canonical(Testordner::weg_zu(*gewünscht)));
        } else {
            pfad_ = Testordner::Text_von(
                Testordner::frischer_Ordner(std::filesystem::temp_directory_path(), "tonkartei-bediener-"));
        }
    }
    ~Wurzel() { aufräumen(); }
    Wurzel(const Wurzel&) = delete;
    Wurzel& operator=(const Wurzel&) = delete;

    Text pfad() const { return mit_Trenner(pfad_); }
    void aufräumen() const {
        std::error_code fehler;
        if (!behalten_) std::filesystem::remove_all(Testordner::weg_zu(pfad_), fehler);
    }

private:
    bool behalten_;
    Text pfad_;
};

void Zeile_ausführen(const Befehlstafel& tafel, const Text& zeile) {
    Befehlszeile z(zeile.ends_with('\r') ? zeile.substr(0, zeile.size() - 1) : zeile);
    if (!z.mehr()) throw Befehlsfehler("eine leere Zeile");
    const Text wort = z.nächstes("Befehl");
    const auto befehl = tafel.find(wort);
    if (befehl == tafel.end()) throw Befehlsfehler("kein solcher Befehl: " + wort);
    befehl->second(z);
}

int betreiben(const Optionen& optionen, const char* programmname, const Bauplan& bauplan) {
    const Wurzel wurzel(optionen.wurzel);
    const auto abbrechen = [&wurzel](int status) {
        wurzel.aufräumen();
        std::fflush(nullptr);
        std::_Exit(status);
    };

    Maschinenwahl wahl;
    wahl.echt = optionen.echt;
    wahl.wurzel = wurzel.pfad();
    wahl.ordner = optionen.ordner;
    wahl.uhr = optionen.uhr;
    wahl.zweite_Instanz = optionen.zweite_Instanz;
    wahl.abstürzen = [abbrechen] { abbrechen(Status_Absturz); };
    const auto maschine = Maschine_bauen(wahl);
    for (const auto& [schlüssel, wert] : optionen.einstellungen) maschine->Einstellung_setzen(schlüssel, wert, false);

    Leitung leitung;
    std::optional<Größe> bildschirm;
    if (maschine->probe() != nullptr) bildschirm = {1280 * Twips_je_Pixel, 1024 * Twips_je_Pixel};
    Ansicht_Bediener ansicht({leitung, maschine->uhr(), bildschirm, abbrechen});
    const auto stube = optionen.qt ? Malstube_Qt(ansicht, programmname) : Malstube_ohne();
    ansicht.Maler_setzen(stube->maler(), stube->pumpen());
    maschine->Ansicht_setzen(ansicht);

    Befehlstafel tafel;
    Handbefehle_eintragen(tafel, ansicht);
    Antwortbefehle_eintragen(tafel, ansicht, *maschine);
    Schaubefehle_eintragen(tafel, ansicht, *maschine, stube->bild());
    Szenenbefehle_eintragen(tafel, ansicht, *maschine);
    ansicht.Befehl = [&tafel](const Text& zeile) { Zeile_ausführen(tafel, zeile); };

    try {
        std::unique_ptr<Bedientes> programm;
        ansicht.von_Hand([&] {
            programm = bauplan(maschine->plattform(), ansicht, optionen.parameter);
            programm->starten();
        });
        ansicht.Hauptschleife();
    } catch (const std::exception& fehler) {
        // Whoever reads the replies waits for the end.
        ansicht.an_Laufzeitfehler_enden(Laufzeitfehler(51, fehler.what()));
    }
    ansicht.ausgeben(Json::Objekt().mit("ereignis", "ende").text());
    ansicht.ausgeben(Json::Objekt().mit("bereit", "ende").text());
    return 0;
}

}  // namespace

int bedienen(int argc, char** argv, const Bauplan& bauplan) {
    const Aufruf aufruf(argc, argv);
    try {
        return betreiben(Optionen_lesen({aufruf.Argumente + 1, aufruf.Argumente + aufruf.Anzahl}), argv[0], bauplan);
    } catch (const std::exception& fehler) {
        std::fprintf(stderr, "%s: %s\n", argv[0], fehler.what());
        return Status_Aufruf;
    }
}

}  // namespace tonkartei
