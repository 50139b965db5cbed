#include "plattform/linux/papierkorb_freedesktop.hpp"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "plattform/linux/systemruf.hpp"
#include "plattform/linux/xdg.hpp"
#include "plattform/offene_datei.hpp"

namespace tonkartei {
namespace {

// Leaves room for the number and for the ending of the info file.
constexpr std::size_t längster_Name = 220;

Text Prozentform(std::string_view pfad) {
    constexpr std::string_view Ziffern = "0123456789ABCDEF";
    constexpr std::string_view unverändert = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.~/";
    Text ergebnis;
    for (const char zeichen : pfad) {
        const auto byte = static_cast<unsigned char>(zeichen);
        if (unverändert.find(zeichen) != std::string_view::npos)
            ergebnis.push_back(zeichen);
        else
            ergebnis.append({'%', Ziffern[byte >> 4U], Ziffern[byte & 15U]});
    }
    return ergebnis;
}

Text Infotext(const Text& herkunft) {
    const Zeitpunkt zeit = örtlich(std::time(nullptr));
    char datum[64];
    std::snprintf(datum, sizeof datum, "%04d-%02d-%02dT%02d:%02d:%02d", zeit.Jahr, zeit.Monat, zeit.Tag, zeit.Stunde,
                  zeit.Minute, zeit.Sekunde);
    return "[Trash Info]\nPath=" + Prozentform(herkunft) + "\nDeletionDate=" + datum + "\n";
}

// "Lied.mp3", "Lied.2.mp3", "Lied.3.mp3"
Text Name_mit_Nummer(const Text& name, int nummer) {
    if (nummer == 1) return name;
    const auto punkt = name.rfind('.');
    const Text zusatz = "." + std::to_string(nummer);
    if (punkt == Text::npos || punkt == 0) return name + zusatz;
    return name.substr(0, punkt) + zusatz + name.substr(punkt);
}

std::optional<dev_t> Gerät(const Text& pfad) {
    struct stat da {};
    if (::stat(pfad.c_str(), &da) != 0) return std::nullopt;
    return da.st_dev;
}

// Of the nearest folder that exists.
std::optional<dev_t> nächstes_Gerät(Text pfad) {
    while (!Gerät(pfad) && pfad.size() > 1) pfad = Ordner_von(pfad.substr(0, pfad.size() - 1));
    return Gerät(pfad);
}

// The folder at which the volume of a folder is mounted, with separator.
Text Laufwerkswurzel(Text ordner) {
    const auto gerät = Gerät(ordner);
    while (ordner.size() > 1) {
        const Text oben = Ordner_von(ordner.substr(0, ordner.size() - 1));
        if (Gerät(oben) != gerät) break;
        ordner = oben;
    }
    return ordner;
}

bool unser_Ordner(const Text& ordner) {
    struct stat da {};
    if (::mkdir(ordner.c_str(), 0700) != 0 && errno != EEXIST) return false;
    return ::lstat(ordner.c_str(), &da) == 0 && S_ISDIR(da.st_mode) && da.st_uid == ::geteuid();
}

}  // namespace

std::optional<Text> Korb_auf(const Text& wurzel) {
    const Text nummer = std::to_string(::geteuid());
    const Text gemeinsam = wurzel + ".Trash";
    struct stat da {};
    if (::lstat(gemeinsam.c_str(), &da) == 0 && S_ISDIR(da.st_mode) && (da.st_mode & S_ISVTX) != 0)
        if (const Text korb = gemeinsam + Trenner + nummer; unser_Ordner(korb)) return korb + Trenner;
    if (const Text korb = gemeinsam + "-" + nummer; unser_Ordner(korb)) return korb + Trenner;
    return std::nullopt;
}

Papierkorb_Freedesktop::Papierkorb_Freedesktop(Dateisystem& dateien, const Text& heimkorb)
    : dateien_(dateien), heimkorb_(mit_Trenner(heimkorb.empty() ? Datenwurzel() + "Trash" : heimkorb)) {}

void Papierkorb_Freedesktop::ablegen(const Ziel& ziel, const Text& pfad) {
    const Text dateien = ziel.Korb + "files/", infos = ziel.Korb + "info/";
    Text eigener = Dateiname_von(pfad);
    if (eigener.size() > längster_Name) eigener.erase(0, eigener.size() - längster_Name);
    for (int nummer = 1;; ++nummer) {
        const Text name = Name_mit_Nummer(eigener, nummer);
        const Text info = infos + name + ".trashinfo";
        // The info file reserves the name among all programs that use the bin.
        const Deskriptor belegt = öffne(info, O_WRONLY | O_CREAT | O_EXCL, 0600);
        if (!belegt && errno == EEXIST) continue;
        try {
            if (!belegt) werfen(errno == ENOENT ? ENOTDIR : errno, pfad, 70);
            Offene_Datei datei(dateien_, info, Dateimodus::ändern);
            datei.schreiben(0, Infotext(ziel.Herkunft + Dateiname_von(pfad)));
            datei.schließen();
            if (!ziel.hinübertragen) {
                dateien_.umbenennen(pfad, dateien + name);
            } else {
                if (dateien_.Dateilänge(dateien + name) >= 0) throw Dateifehler(58, dateien + name);
                dateien_.kopieren(pfad, dateien + name);
                dateien_.löschen(pfad);
            }
            return;
        } catch (const Dateifehler& fehler) {
            if (belegt) ::unlink(info.c_str());
            if (fehler.Nummer() == 58) continue;  // a file without its info lies there
            if (ziel.hinübertragen) ::unlink((dateien + name).c_str());
            throw;
        }
    }
}

// The bins that may take what lies in a folder, best first.
std::vector<Papierkorb_Freedesktop::Ziel> Papierkorb_Freedesktop::Ziele_für(const Text& ordner) {
    std::vector<Ziel> ziele;
    if (dateien_.gleiches_Laufwerk(ordner, heimkorb_)) ziele.push_back({heimkorb_, ordner, false});
    // Through links, the folder's path may begin on another volume than the one it lies on.
    char platz[PATH_MAX];
    struct stat da {};
    Text echter = ordner;
    namen_.ansehen(echter, da, false);
    if (::realpath(echter.c_str(), platz) != nullptr) echter = mit_Trenner(platz);
    const Text wurzel = Laufwerkswurzel(echter);
    if (Gerät(wurzel) != nächstes_Gerät(heimkorb_))
        if (const auto korb = Korb_auf(wurzel)) ziele.push_back({*korb, echter.substr(wurzel.size()), false});
    ziele.push_back({heimkorb_, ordner, true});
    return ziele;
}

void Papierkorb_Freedesktop::wegwerfen(const Text& pfad) {
    const Text ganzer = ohne_Trenner(ist_absolut(pfad) ? pfad : mit_Trenner(dateien_.aktueller_Ordner()) + pfad);
    const Text ordner = Ordner_von(ganzer);
    const auto versuchen = [&](const Ziel& ziel) {
        try {
            ablegen(ziel, ganzer);
            return true;
        } catch (const Dateifehler& fehler) {
            // The bin lies on another volume, or has been removed since.
            if (fehler.Nummer() != 74 && fehler.Nummer() != 76) throw;
            return false;
        }
    };
    if (ordner == letzter_Ordner_ && versuchen(letztes_Ziel_)) return;
    letzter_Ordner_.clear();
    const Pfadart art = dateien_.Art_von(ganzer);
    if (art == Pfadart::nichts) throw Dateifehler(53, pfad);
    for (const Ziel& ziel : Ziele_für(ordner)) {
        if (ziel.hinübertragen && art != Pfadart::Datei) break;
        if (!Ordner_kette_anlegen(ziel.Korb + "files/") || !Ordner_kette_anlegen(ziel.Korb + "info/"))
            throw Dateifehler(70, pfad);
        if (!versuchen(ziel)) continue;
        letzter_Ordner_ = ordner;
        letztes_Ziel_ = ziel;
        return;
    }
    throw Dateifehler(75, pfad);
}

}  // namespace tonkartei
