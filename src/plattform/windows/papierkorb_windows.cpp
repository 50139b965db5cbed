#include "plattform/windows/papierkorb_windows.hpp"

#include "grundlagen/fehler.hpp"
#include "plattform/windows/breit.hpp"
#include "plattform/windows/pfadform.hpp"
#include "plattform/windows/systemfehler.hpp"
#include "plattform/windows/winapi.hpp"

#include <shellapi.h>

namespace tonkartei {
namespace {

// Short enough for the shell, and on a disk of the machine itself, since no other keeps what is thrown away.
bool geeignet(const Text& pfad) {
    const std::wstring einfach = breit(pfad);
    wchar_t wurzel[MAX_PATH];
    return einfach.size() < MAX_PATH && ::GetVolumePathNameW(einfach.c_str(), wurzel, MAX_PATH) != 0 &&
           ::GetDriveTypeW(wurzel) == DRIVE_FIXED;
}

// The shell's own numbers, where they are not the system's.
int Nummer_von(int rückgabe) {
    constexpr int DE_ACCESSDENIEDSRC = 0x78, DE_INVALIDFILES = 0x7C, DE_PATHTOODEEP = 0x79;
    if (rückgabe == DE_INVALIDFILES) return 53;
    if (rückgabe == DE_ACCESSDENIEDSRC) return 70;
    return rückgabe == DE_PATHTOODEEP ? 75 : Fehlernummer(static_cast<unsigned long>(rückgabe), 70);
}

}  // namespace

Papierkorb_Windows::Papierkorb_Windows(Dateisystem& dateien, const Text& ordner) : dateien_(dateien), ordner_(ordner) {}

void Papierkorb_Windows::wegwerfen(const Text& pfad) {
    const auto form = Pfadform_von(pfad, dateien_.aktueller_Ordner());
    if (dateien_.Art_von(pfad) == Pfadart::nichts || !form) throw Dateifehler(53, pfad);
    if (!ordner_.empty()) return in_den_Ordner(form->Name);
    // What is open would be taken away from whoever reads it, ourselves among them.
    if (dateien_.Datei_da(pfad)) dateien_.schließen(dateien_.öffnen(pfad, Dateimodus::ändern));
    if (geeignet(form->Name)) return in_den_Korb(form->Name);
    if (!dateien_.Datei_da(pfad)) throw Dateifehler(75, pfad);
    hinübertragen(form->Name);
}

void Papierkorb_Windows::in_den_Korb(const Text& pfad) {
    const std::wstring liste = breit(pfad) + L'\0';  // a second zero ends it
    SHFILEOPSTRUCTW vorgang{};
    vorgang.wFunc = FO_DELETE;
    vorgang.pFrom = liste.c_str();
    vorgang.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    if (const int rückgabe = ::SHFileOperationW(&vorgang); rückgabe != 0) throw Dateifehler(Nummer_von(rückgabe), pfad);
    if (vorgang.fAnyOperationsAborted != 0 || dateien_.Art_von(pfad) != Pfadart::nichts) throw Dateifehler(70, pfad);
}

// At every instant there is the file or a whole copy of it.
void Papierkorb_Windows::hinübertragen(const Text& pfad) {
    wchar_t temp[MAX_PATH + 1];
    const DWORD länge = ::GetTempPathW(MAX_PATH + 1, temp);
    const Text ordner = mit_Trenner(schmal({temp, länge})) + "tonkartei-korb-" + std::to_string(::GetCurrentProcessId());
    const Text kopie = mit_Trenner(ordner) + Dateiname_von(pfad);
    if (!geeignet(kopie)) throw Dateifehler(75, pfad);
    dateien_.Ordner_anlegen(ordner);
    try {
        dateien_.kopieren(pfad, kopie);
        dateien_.löschen(pfad);
        try {
            in_den_Korb(kopie);
        } catch (const Dateifehler&) {
            dateien_.kopieren(kopie, pfad);
            throw;
        }
    } catch (const Dateifehler&) {
        if (dateien_.Datei_da(pfad) && dateien_.Datei_da(kopie)) dateien_.löschen(kopie);
        if (!dateien_.Datei_da(kopie)) dateien_.Ordner_löschen(ordner);
        throw;
    }
    dateien_.Ordner_löschen(ordner);
}

void Papierkorb_Windows::in_den_Ordner(const Text& pfad) {
    const Text ziel = mit_Trenner(ordner_) + "files\\";
    for (const Text& teil : {ordner_, ziel})
        if (!dateien_.Ordner_da(teil)) dateien_.Ordner_anlegen(teil);
    const Text name = Dateiname_von(pfad);
    const auto punkt = std::min(name.rfind('.'), name.size());
    Text frei = name;
    for (int nummer = 2; dateien_.Art_von(ziel + frei) != Pfadart::nichts; ++nummer)
        frei = name.substr(0, punkt) + "." + std::to_string(nummer) + name.substr(punkt);
    try {
        dateien_.umbenennen(pfad, ziel + frei);
    } catch (const Dateifehler& fehler) {
        if (fehler.Nummer() != 74) throw;
        dateien_.kopieren(pfad, ziel + frei);
        dateien_.löschen(pfad);
    }
}

}  // namespace tonkartei
