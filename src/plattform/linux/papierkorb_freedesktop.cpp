#include "plattform/linux/papierkorb_freedesktop.hpp"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>

#include "plattform/linux/systemruf.hpp"
#include "plattform/linux/xdg.hpp"

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

Text Infotext(const Text& Herkunft) {
    const Zeitpunkt zeit = örtlich(std::time(nullptr));
    char datum[64];
    std::snprintf(datum, sizeof datum, "%04d-%02d-%02dT%02d:%02d:%02d", zeit.Jahr, zeit.Monat, zeit.Tag, zeit.Stunde,
                  zeit.Minute, zeit.Sekunde);
    return "[Trash Info]\nPath=" + Prozentform(Herkunft) + "\nDeletionDate=" + datum + "\n";
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

// The user's bin on a volume. An administrator's common .Trash counts only if its sticky bit keeps users from each other's
// files and it is no link.
std::optional<Text> Korb_auf(const Text& wurzel) {
    const Text nummer = std::to_string(::geteuid());
    const Text gemeinsam = wurzel + ".Trash";
    struct stat da {};
    if (::lstat(gemeinsam.c_str(), &da) == 0 && S_ISDIR(da.st_mode) && (da.st_mode & S_ISVTX) != 0)
        if (const Text korb = gemeinsam + Trenner + nummer; unser_Ordner(korb)) return korb + Trenner;
    if (const Text korb = gemeinsam + "-" + nummer; unser_Ordner(korb)) return korb + Trenner;
    return std::nullopt;
}

}  // namespace

Papierkorb_Freedesktop::Papierkorb_Freedesktop(Dateisystem& dateien, const Text& heimkorb)
    : dateien_(dateien), heimkorb_(mit_Trenner(heimkorb.empty() ? Datenwurzel() + "Trash" : heimkorb)) {}

bool Papierkorb_Freedesktop::ablegen(const Text& korb, const Text& pfad, const Text& Herkunft, Weg weg) {
    const Text dateien = korb + "files/";
    const Text infos = korb + "info/";
    if (!Ordner_kette_anlegen(dateien) || !Ordner_kette_anlegen(infos)) throw Dateifehler(70, pfad);
    for (int nummer = 1;; ++nummer) {
        Text eigener = Dateiname_von(pfad);
        if (eigener.size() > längster_Name) eigener.erase(0, eigener.size() - längster_Name);
        const Text name = Name_mit_Nummer(eigener, nummer);
        const Text info = infos + name + ".trashinfo";
        // The info file reserves the name among all programs that use the bin.
        const int fd = ungestört([&] { return ::open(info.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600); });
        if (fd < 0 && errno == EEXIST) continue;
        if (fd < 0) werfen(errno, pfad, 70);
        ::close(fd);
        try {
            const auto griff = dateien_.öffnen(info, Dateimodus::ändern);
            try {
                dateien_.schreiben(griff, 0, Infotext(Herkunft));
            } catch (const Dateifehler&) {
                dateien_.schließen(griff);
                throw;
            }
            dateien_.schließen(griff);
            if (weg == Weg::umbenennen) {
                dateien_.umbenennen(pfad, dateien + name);
            } else {
                if (dateien_.Dateilänge(dateien + name) >= 0) throw Dateifehler(58, dateien + name);
                dateien_.kopieren(pfad, dateien + name);
                dateien_.löschen(pfad);
            }
            return true;
        } catch (const Dateifehler& fehler) {
            ::unlink(info.c_str());
            if (fehler.Nummer() == 58) continue;  // a file without its info lies there
            if (weg == Weg::hinübertragen) ::unlink((dateien + name).c_str());
            if (weg == Weg::umbenennen && fehler.Nummer() == 74) return false;
            throw;
        }
    }
}

void Papierkorb_Freedesktop::wegwerfen(const Text& pfad) {
    Text ganzer = ist_absolut(pfad) ? pfad : mit_Trenner(dateien_.aktueller_Ordner()) + pfad;
    while (ganzer.size() > 1 && ganzer.back() == Trenner) ganzer.pop_back();
    if (!dateien_.Datei_da(ganzer) && !dateien_.Ordner_da(ganzer)) throw Dateifehler(53, pfad);
    if (dateien_.gleiches_Laufwerk(ganzer, heimkorb_) && ablegen(heimkorb_, ganzer, ganzer, Weg::umbenennen)) return;

    // Through links, the folder's path may begin on another volume than the one it lies on.
    char echter[PATH_MAX];
    const Text ordner = ::realpath(Ordner_von(ganzer).c_str(), echter) != nullptr ? mit_Trenner(echter) : Ordner_von(ganzer);
    const Text wurzel = Laufwerkswurzel(ordner);
    if (Gerät(wurzel) != nächstes_Gerät(heimkorb_))
        if (const auto korb = Korb_auf(wurzel))
            if (ablegen(*korb, ganzer, (ordner + Dateiname_von(ganzer)).substr(wurzel.size()), Weg::umbenennen)) return;
    if (!dateien_.Datei_da(ganzer)) throw Dateifehler(75, pfad);
    ablegen(heimkorb_, ganzer, ganzer, Weg::hinübertragen);
}

}  // namespace tonkartei
