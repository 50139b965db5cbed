#include "lieder/lieder_uebernahme.hpp"

#include <cmath>

namespace tonkartei {
namespace {

Text MByte_Text(double KByte) { return Zahltext(static_cast<long long>(std::floor(KByte / 1024.0))); }

}  // namespace

bool Lieder_Übernahme::ausführen(const Übernahme_Auftrag& auftrag) {
    if (!bestätigt(auftrag)) return false;
    if (Winamp_anhalten) Winamp_anhalten();
    const Long A = übernehmen_.ausführen(auftrag);
    Begleitung begleitung;
    if (auftrag.Album_erstellen && Album_erstellen) Album_erstellen(A, begleitung);
    if (auftrag.Playlist_erstellen && Playlist_erstellen) Playlist_erstellen(A, begleitung);
    if (auftrag.Quelle == Quelle_Datenbank && Kategorien_zuordnen)
        eintragen_.mit_Kategorien(Kategorien_zuordnen(A, auftrag.Lieder), begleitung);
    else
        eintragen_.ausführen(A, auftrag.Modus, begleitung);
    if (begleitung.Abschluss) begleitung.Abschluss();
    vor_Größe_warnen();
    return true;
}

std::uint64_t Lieder_Übernahme::freie_KByte() const {
    return dateien_.freie_Bytes(modell_.Datenbank_Verzeichnis).value_or(0) / 1024;
}

bool Lieder_Übernahme::bestätigt(const Übernahme_Auftrag& auftrag) const {
    // The window does not offer moving for that source; should it ever, nobody loses the other collection unasked.
    if (auftrag.Quelle == Quelle_Datenbank && auftrag.Modus == Übernahmeart::bewegen) {
        modell_.Meldung = "Wollen sie die Lieder wirklich aus der anderen Datenbank bewegen?" + Text(CRCR) +
                          "Sie stehen in der anderen Datenbank dann nicht mehr zur verfügung!";
        if (!ansicht_.fragen("Lieder bewegen", modell_.Meldung)) return false;
    }
    const auto frei = static_cast<double>(freie_KByte());
    if (auftrag.KByte < frei) return true;
    modell_.Meldung = "Die Größe der Lieder (" + MByte_Text(auftrag.KByte) +
                      " MB), die sie hinzufügen möchten, ist größer als der freie Speicherplatz auf dem Ziel-Laufwerk (" +
                      MByte_Text(frei) + " MB)." + Text(CRCR) + "Wollen sie wirklich fortfahren?";
    return ansicht_.fragen("Lieder hinzufügen", modell_.Meldung);
}

void Lieder_Übernahme::vor_Größe_warnen() const {
    double KByte = 0;
    for (Long nr = 1; nr <= modell_.Anzahl_Lieder; ++nr) KByte += modell_.Lieder[nr].Größe;
    const Long MByte = gerundet(KByte / 1024.0);
    const Long grenze = modell_.Backup_Warnungs_Grenze;
    if (grenze == 0 || MByte < grenze) return;
    modell_.Meldung = "Achtung!" + Text(CRCR) + "Die Größe der Datenbank hat die Backup-Warnungs-Grenze überschritten!" +
                      Text(CRCR) + "aktuelle Größe der Datenbank: " + Zahltext(MByte) + " MB" + Text(CR) +
                      "Backup-Warnungs-Grenze: " + Zahltext(grenze) + " MB";
    ansicht_.informieren("Backup-Warnung", modell_.Meldung);
}

}  // namespace tonkartei
