#include "spieler/mpris/medienbus.hpp"

#include <systemd/sd-bus.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <ctime>

#include "plattform/dateisystem.hpp"
#include "plattform/fenstersystem.hpp"
#include "spieler/spieler.hpp"

namespace tonkartei::spieler {
namespace {

constexpr const char* Programmname = "org.mpris.MediaPlayer2.tonkartei";
constexpr const char *Objekt = "/org/mpris/MediaPlayer2", *Wurzel = "org.mpris.MediaPlayer2",
                     *Abspielen = "org.mpris.MediaPlayer2.Player", *Lied = "/tonkartei/lied/aktuelles";
constexpr std::int64_t Mikro = 1000, Mega = 1'000'000;
constexpr int spielt = 1, pausiert = 3;

Spieler& von(void* daten) { return *static_cast<Spieler*>(daten); }

const char* Zustand(const Spieler& spieler) {
    const int status = spieler.Auskunft_geben().Status;
    return status == spielt ? "Playing" : status == pausiert ? "Paused" : "Stopped";
}

std::int64_t Stelle(const Spieler& spieler) { return std::max<std::int64_t>(0, spieler.Auskunft_geben().Position) * Mikro; }

// --- properties -------------------------------------------------------------------------------------------------------

int Text_lesen(sd_bus*, const char*, const char*, const char* name, sd_bus_message* antwort, void* daten, sd_bus_error*) {
    if (std::strcmp(name, "Identity") == 0) return sd_bus_message_append(antwort, "s", "Tonkartei (Spieler)");
    if (std::strcmp(name, "DesktopEntry") == 0) return sd_bus_message_append(antwort, "s", "tonkartei");
    return sd_bus_message_append(antwort, "s", Zustand(von(daten)));
}

int Wahrheit_lesen(sd_bus*, const char*, const char*, const char* name, sd_bus_message* antwort, void* daten,
                   sd_bus_error*) {
    int wert = 1;
    for (const char* nie : {"CanRaise", "HasTrackList"})
        if (std::strcmp(name, nie) == 0) wert = 0;
    if (std::strcmp(name, "CanGoNext") == 0) wert = von(daten).hat_nächstes() ? 1 : 0;
    return sd_bus_message_append(antwort, "b", wert);
}

int Zahl_lesen(sd_bus*, const char*, const char*, const char* name, sd_bus_message* antwort, void* daten, sd_bus_error*) {
    const double wert = std::strcmp(name, "Volume") == 0 ? von(daten).Auskunft_geben().Lautstärke / 255.0 : 1.0;
    return sd_bus_message_append(antwort, "d", wert);
}

int Lautstärke_schreiben(sd_bus*, const char*, const char*, const char*, sd_bus_message* wert, void* daten, sd_bus_error*) {
    double neu = 0;
    if (const int fehler = sd_bus_message_read(wert, "d", &neu); fehler < 0) return fehler;
    von(daten).Lautstärke_stellen(static_cast<int>(std::lround(std::clamp(neu, 0.0, 1.0) * 255)));
    return 0;
}

// Songs are played as they are.
int Tempo_schreiben(sd_bus*, const char*, const char*, const char*, sd_bus_message*, void*, sd_bus_error*) { return 0; }

int Stelle_lesen(sd_bus*, const char*, const char*, const char*, sd_bus_message* antwort, void* daten, sd_bus_error*) {
    return sd_bus_message_append(antwort, "x", Stelle(von(daten)));
}

int Liste_lesen(sd_bus*, const char*, const char*, const char*, sd_bus_message* antwort, void*, sd_bus_error*) {
    return sd_bus_message_append(antwort, "as", 0);
}

int Angaben_lesen(sd_bus*, const char*, const char*, const char*, sd_bus_message* antwort, void* daten, sd_bus_error*) {
    const Spieler& spieler = von(daten);
    const auto auskunft = spieler.Auskunft_geben();
    const Text titel = spieler.Titel().empty() ? Dateiname_von(auskunft.Datei) : spieler.Titel();
    int fehler = sd_bus_message_open_container(antwort, 'a', "{sv}");
    if (fehler >= 0) fehler = sd_bus_message_append(antwort, "{sv}", "mpris:trackid", "o", Lied);
    if (fehler >= 0 && !titel.empty())
        fehler = sd_bus_message_append(antwort, "{sv}", "xesam:title", "s", anzeigbar(titel).c_str());
    if (fehler >= 0 && !spieler.Interpret().empty())
        fehler = sd_bus_message_append(antwort, "{sv}", "xesam:artist", "as", 1, anzeigbar(spieler.Interpret()).c_str());
    if (fehler >= 0 && auskunft.Länge > 0)
        fehler = sd_bus_message_append(antwort, "{sv}", "mpris:length", "x", auskunft.Länge * Mega);
    return fehler < 0 ? fehler : sd_bus_message_close_container(antwort);
}

// --- methods ----------------------------------------------------------------------------------------------------------

int tun(sd_bus_message* ruf, void* daten, sd_bus_error*) {
    Spieler& spieler = von(daten);
    const Text was = sd_bus_message_get_member(ruf);
    const int status = spieler.Auskunft_geben().Status;
    if (was == "Quit")
        spieler.geschlossen();
    else if (was == "Next")
        spieler.nächstes();
    else if (was == "Previous")
        spieler.an_Stelle(0);
    else if (was == "Stop")
        spieler.Nachricht(WM_COMMAND, Befehl_Stopp, 0);
    else if (was == "Play" && status != spielt)
        spieler.Nachricht(WM_COMMAND, Befehl_Wiedergabe, 0);
    else if (was == "Pause" && status == spielt)
        spieler.Nachricht(WM_COMMAND, Befehl_Pause, 0);
    else if (was == "PlayPause")
        spieler.Nachricht(WM_COMMAND, status == 0 ? Befehl_Wiedergabe : Befehl_Pause, 0);
    return sd_bus_reply_method_return(ruf, "");
}

int springen(sd_bus_message* ruf, void* daten, sd_bus_error*) {
    std::int64_t um = 0;
    if (const int fehler = sd_bus_message_read(ruf, "x", &um); fehler < 0) return fehler;
    von(daten).an_Stelle((Stelle(von(daten)) + um) / Mikro);
    return sd_bus_reply_method_return(ruf, "");
}

int Stelle_setzen(sd_bus_message* ruf, void* daten, sd_bus_error*) {
    const char* lied = nullptr;
    std::int64_t stelle = 0;
    if (const int fehler = sd_bus_message_read(ruf, "ox", &lied, &stelle); fehler < 0) return fehler;
    if (stelle >= 0 && std::strcmp(lied, Lied) == 0) von(daten).an_Stelle(stelle / Mikro);
    return sd_bus_reply_method_return(ruf, "");
}

// The macros build what the library wants, by casts of their own.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
constexpr std::uint64_t fest = SD_BUS_VTABLE_PROPERTY_CONST, meldet = SD_BUS_VTABLE_PROPERTY_EMITS_CHANGE,
                        offen = SD_BUS_VTABLE_UNPRIVILEGED;

const sd_bus_vtable Wurzeltafel[] = {SD_BUS_VTABLE_START(0),
                                     SD_BUS_METHOD("Raise", "", "", tun, offen),
                                     SD_BUS_METHOD("Quit", "", "", tun, offen),
                                     SD_BUS_PROPERTY("CanQuit", "b", Wahrheit_lesen, 0, fest),
                                     SD_BUS_PROPERTY("CanRaise", "b", Wahrheit_lesen, 0, fest),
                                     SD_BUS_PROPERTY("HasTrackList", "b", Wahrheit_lesen, 0, fest),
                                     SD_BUS_PROPERTY("Identity", "s", Text_lesen, 0, fest),
                                     SD_BUS_PROPERTY("DesktopEntry", "s", Text_lesen, 0, fest),
                                     SD_BUS_PROPERTY("SupportedUriSchemes", "as", Liste_lesen, 0, fest),
                                     SD_BUS_PROPERTY("SupportedMimeTypes", "as", Liste_lesen, 0, fest),
                                     SD_BUS_VTABLE_END};

const sd_bus_vtable Spieltafel[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Next", "", "", tun, offen),
    SD_BUS_METHOD("Previous", "", "", tun, offen),
    SD_BUS_METHOD("Pause", "", "", tun, offen),
    SD_BUS_METHOD("PlayPause", "", "", tun, offen),
    SD_BUS_METHOD("Stop", "", "", tun, offen),
    SD_BUS_METHOD("Play", "", "", tun, offen),
    SD_BUS_METHOD("Seek", "x", "", springen, offen),
    SD_BUS_METHOD("SetPosition", "ox", "", Stelle_setzen, offen),
    SD_BUS_METHOD("OpenUri", "s", "", tun, offen),
    SD_BUS_SIGNAL("Seeked", "x", 0),
    SD_BUS_PROPERTY("PlaybackStatus", "s", Text_lesen, 0, meldet),
    SD_BUS_PROPERTY("Metadata", "a{sv}", Angaben_lesen, 0, meldet),
    SD_BUS_WRITABLE_PROPERTY("Rate", "d", Zahl_lesen, Tempo_schreiben, 0, meldet),
    SD_BUS_WRITABLE_PROPERTY("Volume", "d", Zahl_lesen, Lautstärke_schreiben, 0, meldet | offen),
    SD_BUS_PROPERTY("Position", "x", Stelle_lesen, 0, 0),
    SD_BUS_PROPERTY("MinimumRate", "d", Zahl_lesen, 0, fest),
    SD_BUS_PROPERTY("MaximumRate", "d", Zahl_lesen, 0, fest),
    SD_BUS_PROPERTY("CanGoNext", "b", Wahrheit_lesen, 0, meldet),
    SD_BUS_PROPERTY("CanGoPrevious", "b", Wahrheit_lesen, 0, fest),
    SD_BUS_PROPERTY("CanPlay", "b", Wahrheit_lesen, 0, fest),
    SD_BUS_PROPERTY("CanPause", "b", Wahrheit_lesen, 0, fest),
    SD_BUS_PROPERTY("CanSeek", "b", Wahrheit_lesen, 0, fest),
    SD_BUS_PROPERTY("CanControl", "b", Wahrheit_lesen, 0, fest),
    SD_BUS_VTABLE_END};
#pragma GCC diagnostic pop

// Somebody has the program's name, or nobody has.
int Besitzer_gewechselt(sd_bus_message* signal, void* daten, sd_bus_error*) {
    const char *name = nullptr, *alter = nullptr, *neuer = nullptr;
    if (sd_bus_message_read(signal, "sss", &name, &alter, &neuer) >= 0 && std::strcmp(name, Programmname) == 0)
        static_cast<Medienbus*>(daten)->Programm_da(*neuer != '\0');
    return 0;
}

int Besitzer_gefragt(sd_bus_message* antwort, void* daten, sd_bus_error*) {
    static_cast<Medienbus*>(daten)->Programm_da(!sd_bus_message_is_method_error(antwort, nullptr));
    return 0;
}

}  // namespace

void Medienbus::Freigabe::operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }

Medienbus::Medienbus(Spieler& spieler)
    : spieler_(spieler), name_("org.mpris.MediaPlayer2.tonkartei_spieler.instance" + std::to_string(::getpid())) {
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) < 0) return;
    bus_.reset(bus);
    einrichten();
}

Medienbus::~Medienbus() = default;

void Medienbus::einrichten() {
    sd_bus* bus = bus_.get();
    const bool geht =
        sd_bus_add_object_vtable(bus, nullptr, Objekt, Wurzel, Wurzeltafel, &spieler_) >= 0 &&
        sd_bus_add_object_vtable(bus, nullptr, Objekt, Abspielen, Spieltafel, &spieler_) >= 0 &&
        sd_bus_match_signal_async(bus, nullptr, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                  "NameOwnerChanged", Besitzer_gewechselt, nullptr, this) >= 0 &&
        sd_bus_call_method_async(bus, nullptr, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                 "GetNameOwner", Besitzer_gefragt, this, "s", Programmname) >= 0;
    if (!geht) bus_.reset();
}

void Medienbus::Programm_da(bool da) {
    if (spricht_ != da) return;
    spricht_ = !da;
    if (spricht_)
        sd_bus_request_name_async(bus_.get(), nullptr, name_.c_str(), 0, nullptr, nullptr);
    else
        sd_bus_release_name_async(bus_.get(), nullptr, name_.c_str(), nullptr, nullptr);
}

pollfd Medienbus::Wache() const {
    if (!bus_) return {-1, 0, 0};
    const int ereignisse = sd_bus_get_events(bus_.get());
    return {sd_bus_get_fd(bus_.get()), static_cast<short>(std::max(ereignisse, 0)), 0};
}

Medienbus::Uhr::time_point Medienbus::spätestens() const {
    std::uint64_t bis = 0;  // microseconds of the monotonic clock, which is the one of `Uhr`
    if (!bus_ || sd_bus_get_timeout(bus_.get(), &bis) < 0 || bis == UINT64_MAX) return Uhr::time_point::max();
    return Uhr::time_point(std::chrono::microseconds(bis));
}

void Medienbus::bedienen() {
    if (!bus_) return;
    int getan = 0;
    do {
        getan = sd_bus_process(bus_.get(), nullptr);
    } while (getan > 0);
    // A bus that is gone leaves the player alone.
    if (getan < 0) return bus_.reset();
    Stand stand = jetzt();
    if (!spricht_ || stand == gemeldet_) return;
    gemeldet_ = std::move(stand);
    sd_bus_emit_properties_changed(bus_.get(), Objekt, Abspielen, "PlaybackStatus", "Metadata", "Volume", "CanGoNext",
                                   nullptr);
}

Medienbus::Stand Medienbus::jetzt() const {
    const auto auskunft = spieler_.Auskunft_geben();
    return {auskunft.Status, auskunft.Lautstärke, auskunft.Länge, auskunft.Datei, spieler_.Titel()};
}

}  // namespace tonkartei::spieler
