#include "austausch/abgleich/ignorieren_liste.hpp"

#include "datenbank/familienkopf.hpp"
#include "datenbank/info_koerper.hpp"
#include "datenbank/version.hpp"
#include "oberflaeche/ansicht.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

constexpr const char* Kennung = "Datenbank Ignorieren-Liste";

// Those that wrote this list, which is younger than the collections.
bool alte_Version(const Text& version) {
    for (int revision = 10; revision <= 15; ++revision)
        if (version == Programmversion_bilden(1, 2, revision)) return true;
    return false;
}

}  // namespace

bool Ignorieren_Liste::Ignorieren_lesen() {
    const Text datei = modell_.Pfad(Ignorieren_Name);
    if (!dateien_.Datei_da(datei)) {
        einträge_.clear();
        modell_.Ignorieren_geladen = true;
        return Ignorieren_schreiben();
    }
    int nummer = 0;
    bool gelesen = false;
    try {
        nummer = kanäle_.öffnen_zum_Lesen(datei);
        gelesen = Inhalt_lesen(datei, nummer);
    } catch (const Laufzeitfehler& fehler) {
        ansicht_.informieren(Programmtitel, fehler.Beschreibung() + Text(CRCR) + anzeigbar(datei));
    }
    kanäle_.aufgeben(nummer);
    if (gelesen) modell_.Ignorieren_geladen = true;
    return gelesen;
}

bool Ignorieren_Liste::Inhalt_lesen(const Text& datei, int nummer) {
    const Familienkopf kopf{Kennung, "Die Ignorieren-Liste (" + anzeigbar(datei) + ")", "Die Ignorieren-Liste",
                            "Soll die Ignorieren-Liste geöffnet und konvertiert werden?", alte_Version};
    const Kopfurteil urteil = Kopf_beurteilen(ansicht_, kanäle_, nummer, modell_.Programmversion, kopf);
    if (urteil != Kopfurteil::aktuell && urteil != Kopfurteil::alt) return false;
    const Long anzahl = kanäle_.lese_Long(nummer);
    if (anzahl > Ignorieren_maximal) throw Laufzeitfehler(Fehler_Index);
    // Read aside first, so that a file that ends too soon leaves no half of it behind.
    std::vector<Eintrag> neu;
    for (Long i = 1; i <= anzahl; ++i) {
        Eintrag eintrag;
        eintrag.Artist = kanäle_.lese_Zeile(nummer);
        eintrag.Titel = kanäle_.lese_Zeile(nummer);
        neu.push_back(std::move(eintrag));
    }
    einträge_ = std::move(neu);
    if (urteil == Kopfurteil::alt) modell_.Ignorieren_geändert = true;
    return true;
}

bool Ignorieren_Liste::Ignorieren_schreiben() {
    const Text pfad = modell_.Pfad(Ignorieren_Name);
    int nummer = 0;
    try {
        if (dateien_.Datei_da(pfad)) dateien_.umbenennen(pfad, Ignorieren_Kopie_Name);
        nummer = kanäle_.öffnen_zum_Schreiben(pfad);
        Familienkopf_schreiben(kanäle_, nummer, modell_.Programmversion, Kennung);
        kanäle_.schreibe_Zahl(nummer, static_cast<std::int64_t>(einträge_.size()));
        for (const Eintrag& eintrag : einträge_) {
            kanäle_.schreibe_Zeile(nummer, eintrag.Artist);
            kanäle_.schreibe_Zeile(nummer, eintrag.Titel);
        }
        // On the disk before the copy goes: at every instant one whole list exists.
        kanäle_.schließen(nummer, true);
        if (dateien_.Datei_da(Ignorieren_Kopie_Name)) dateien_.löschen(Ignorieren_Kopie_Name);
    } catch (const Dateifehler&) {
        kanäle_.aufgeben(nummer);
        return false;
    }
    modell_.Ignorieren_geändert = false;
    return true;
}

Long Ignorieren_Liste::Ignorieren_neu() {
    if (einträge_.size() < Ignorieren_maximal) {
        einträge_.emplace_back();
        return static_cast<Long>(einträge_.size());
    }
    ansicht_.informieren("Lied ignorieren", "Die Ignorieren-Liste ist voll! Es können maximal " +
                                                Zahltext(Ignorieren_maximal) + " Lieder ignoriert werden!");
    return 0;
}

void Ignorieren_Liste::eintragen(Long Nr, Eintrag eintrag) {
    einträge_.at(static_cast<std::size_t>(Nr - 1)) = std::move(eintrag);
    modell_.Ignorieren_geändert = true;
}

void Ignorieren_Liste::entfernen(Long Nr) {
    einträge_.erase(einträge_.begin() + (Nr - 1));
    modell_.Ignorieren_geändert = true;
}

}  // namespace tonkartei
