#include "lieder/hinzufuegen/lieder_uebernahme.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "grundlagen/waehrend.hpp"
#include "lieder/hinzufuegen/begleiter.hpp"
#include "lieder/hinzufuegen/dbadd_kategorien.hpp"
#include "oberflaeche/ansicht.hpp"

namespace tonkartei {
namespace {

Text MByte_Text(double KByte) { return Zahltext(static_cast<long long>(std::floor(KByte / 1024.0))); }

}  // namespace

bool Lieder_Übernahme::ausführen(const Übernahme_Auftrag& auftrag) {
    if (!bestätigt(auftrag)) return false;
    Lauf lauf{auftrag, modell_.Anzahl_Lieder, {}};
    const Während läuft(lauf_, &lauf);
    const Halb_getan umbau(modell_.im_Umbau);
    const Long A = übernehmen_.ausführen(auftrag);
    if (auftrag.Album_erstellen && !lauf.abgeschlossen) begleiter_.album.erstellen(A, lauf.begleitung);
    if (auftrag.Playlist_erstellen && !lauf.abgeschlossen) begleiter_.playlist.erstellen(lauf.begleitung);
    if (!lauf.abgeschlossen) eintragen(lauf, A);
    if (lauf.abgeschlossen) return true;
    if (lauf.begleitung.Abschluss) std::exchange(lauf.begleitung.Abschluss, nullptr)();
    vor_Größe_warnen();
    return true;
}

void Lieder_Übernahme::eintragen(Lauf& lauf, Long A) {
    if (lauf.auftrag.Quelle != Quelle_Datenbank) {
        eintragen_.ausführen(A, lauf.auftrag.Modus, lauf.begleitung);
        return;
    }
    std::vector<Byte> kategorien = zuordnung_.Init(A, lauf.auftrag.Lieder);
    if (!lauf.abgeschlossen) eintragen_.mit_Kategorien(std::move(kategorien), lauf.begleitung);
}

void Lieder_Übernahme::abschließen() {
    if (lauf_ == nullptr || std::exchange(lauf_->abgeschlossen, true)) return;
    eintragen_.abschließen();
    const Long A = übernehmen_.Anzahl();
    if (modell_.Anzahl_Lieder < lauf_->vorher + A) {
        std::vector<Byte> kategorien(static_cast<std::size_t>(A), 1);
        if (lauf_->auftrag.Quelle == Quelle_Datenbank) kategorien = zuordnung_.ohne_Rückfrage(A, lauf_->auftrag.Lieder);
        std::replace(kategorien.begin(), kategorien.end(), Byte{0}, Byte{1});
        eintragen_.mit_Kategorien(std::move(kategorien), lauf_->begleitung);
    }
    if (lauf_->begleitung.Abschluss) std::exchange(lauf_->begleitung.Abschluss, nullptr)();
    modell_.im_Umbau = false;
}

std::uint64_t Lieder_Übernahme::freie_KByte() const {
    return dateien_.freie_Bytes(modell_.Datenbank_Verzeichnis).value_or(0) / 1024;
}

bool Lieder_Übernahme::bestätigt(const Übernahme_Auftrag& auftrag) const {
    // The window does not offer moving for that source; should it ever, nobody loses the other collection unasked.
    if (auftrag.Quelle == Quelle_Datenbank && auftrag.Modus == Übernahmeart::bewegen) {
        if (!ansicht_.fragen("Lieder bewegen", "Wollen sie die Lieder wirklich aus der anderen Datenbank bewegen?" +
                                                   Text(CRCR) +
                                                   "Sie stehen in der anderen Datenbank dann nicht mehr zur verfügung!"))
            return false;
    }
    const auto frei = static_cast<double>(freie_KByte());
    if (auftrag.KByte < frei) return true;
    return ansicht_.fragen(
        "Lieder hinzufügen",
        "Die Größe der Lieder (" + MByte_Text(auftrag.KByte) +
            " MB), die sie hinzufügen möchten, ist größer als der freie Speicherplatz auf dem Ziel-Laufwerk (" +
            MByte_Text(frei) + " MB)." + Text(CRCR) + "Wollen sie wirklich fortfahren?");
}

void Lieder_Übernahme::vor_Größe_warnen() const {
    double KByte = 0;
    for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) KByte += modell_.Lieder[nr].Größe;
    const Long MByte = gerundet(KByte / 1024.0);
    const Long grenze = modell_.Backup_Warnungs_Grenze;
    if (grenze == 0 || MByte < grenze) return;
    ansicht_.informieren("Backup-Warnung", "Achtung!" + Text(CRCR) +
                                               "Die Größe der Datenbank hat die Backup-Warnungs-Grenze überschritten!" +
                                               Text(CRCR) + "aktuelle Größe der Datenbank: " + Zahltext(MByte) + " MB" +
                                               Text(CR) + "Backup-Warnungs-Grenze: " + Zahltext(grenze) + " MB");
}

}  // namespace tonkartei
