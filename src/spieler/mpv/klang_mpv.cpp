#include "spieler/mpv/klang_mpv.hpp"

#include <mpv/client.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace tonkartei::spieler {

namespace {

constexpr auto Sprungfrist = std::chrono::seconds(2);  // a jump that has shown no effect by then had none
constexpr double Gerätepuffer = 0.5;                   // seconds
constexpr double Höchstlücke = 0.3;                    // seconds between two news of the position
constexpr std::uint64_t Beobachtet_Position = 1, Beobachtet_Länge = 2, Beobachtet_Titel = 3, Beobachtet_Interpret = 4;

// A plain player of local songs: no pictures, no scripts, no settings of the user's, and no file that leads to another one.
constexpr const char* Einstellungen[][2] = {
    {"config", "no"},
    {"terminal", "no"},
    {"msg-level", "all=no"},
    {"idle", "yes"},
    {"load-scripts", "no"},
    {"ytdl", "no"},
    {"osc", "no"},
    {"load-stats-overlay", "no"},
    {"load-osd-console", "no"},
    {"load-auto-profiles", "no"},
    {"input-default-bindings", "no"},
    {"input-media-keys", "no"},
    {"resume-playback", "no"},
    {"vo", "null"},
    {"vid", "no"},
    {"sid", "no"},
    {"audio-display", "no"},
    {"cover-art-auto", "no"},
    {"audio-file-auto", "no"},
    {"sub-auto", "no"},
    {"autoload-files", "no"},
    {"access-references", "no"},
    {"demuxer", "+lavf"},
    {"demuxer-lavf-o", "protocol_whitelist=file"},
    {"demuxer-max-bytes", "4MiB"},
    {"demuxer-max-back-bytes", "1MiB"},
    {"cache", "no"},
    {"audio-client-name", "Tonkartei"},
    {"ao", "pulse,pipewire,alsa"},
    {"audio-fallback-to-null", "yes"},
};

void wecken(void* wecker) {
    const std::uint64_t eins = 1;
    // A full counter is awake already.
    if (::write(static_cast<const Deskriptor*>(wecker)->fd(), &eins, sizeof(eins)) < 0) return;
}

}  // namespace

void Klang_mpv::Freigabe::operator()(mpv_handle* mpv) const { mpv_terminate_destroy(mpv); }

Klang_mpv::Klang_mpv(const Text& ausgabe) : wecker_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)), mpv_(mpv_create()) {
    if (!wecker_ || !mpv_) throw std::runtime_error("no player library");
    for (const auto& [name, wert] : Einstellungen)
        mpv_set_option_string(mpv_.get(), name, wert);  // names that this version of the library lacks are no loss
    if (!ausgabe.empty()) mpv_set_option_string(mpv_.get(), "ao", ausgabe.c_str());
    mpv_set_wakeup_callback(mpv_.get(), wecken, &wecker_);
    if (mpv_initialize(mpv_.get()) < 0) throw std::runtime_error("player library does not start");
    mpv_observe_property(mpv_.get(), Beobachtet_Position, "time-pos", MPV_FORMAT_DOUBLE);
    mpv_observe_property(mpv_.get(), Beobachtet_Länge, "duration", MPV_FORMAT_DOUBLE);
    mpv_observe_property(mpv_.get(), Beobachtet_Titel, "metadata/by-key/Title", MPV_FORMAT_STRING);
    mpv_observe_property(mpv_.get(), Beobachtet_Interpret, "metadata/by-key/Artist", MPV_FORMAT_STRING);
}

void Klang_mpv::abholen() {
    std::uint64_t zähler;
    if (::read(wecker_.fd(), &zähler, sizeof(zähler)) < 0 && errno != EAGAIN) return;
    for (;;) {
        const mpv_event* ereignis = mpv_wait_event(mpv_.get(), 0);
        if (ereignis->event_id == MPV_EVENT_NONE) return;
        verarbeiten(*ereignis);
    }
}

void Klang_mpv::verarbeiten(const mpv_event& ereignis) {
    switch (ereignis.event_id) {
        case MPV_EVENT_PROPERTY_CHANGE: {
            const auto& wert = *static_cast<const mpv_event_property*>(ereignis.data);
            if (ereignis.reply_userdata == Beobachtet_Titel || ereignis.reply_userdata == Beobachtet_Interpret) {
                const char* text = wert.format == MPV_FORMAT_STRING ? *static_cast<char* const*>(wert.data) : "";
                (ereignis.reply_userdata == Beobachtet_Titel ? titel_ : interpret_) = text;
                return;
            }
            const double* zahl = wert.format == MPV_FORMAT_DOUBLE ? static_cast<const double*>(wert.data) : nullptr;
            if (!geladen_ || !zahl) return;
            if (ereignis.reply_userdata == Beobachtet_Position) Position_übernehmen(*zahl);
            if (ereignis.reply_userdata == Beobachtet_Länge) länge_ = *zahl;
            return;
        }
        case MPV_EVENT_COMMAND_REPLY:
            if (ereignis.reply_userdata == 0) return;
            if (ereignis.reply_userdata == ladekennung_) {
                const mpv_node& ergebnis = static_cast<const mpv_event_command*>(ereignis.data)->result;
                for (int i = 0; ergebnis.format == MPV_FORMAT_NODE_MAP && i < ergebnis.u.list->num; ++i)
                    if (std::strcmp(ergebnis.u.list->keys[i], "playlist_entry_id") == 0)
                        eintrag_ = ergebnis.u.list->values[i].u.int64;
                if (ereignis.error < 0 && zu_Ende) zu_Ende();
            } else if (ereignis.reply_userdata == sprungkennung_) {
                sprung_angenommen_ = true;
                if (ereignis.error < 0) Sprung_vergessen();
            }
            return;
        case MPV_EVENT_FILE_LOADED:
            if (eintrag_ < 0) return;
            geladen_ = true;
            if (sprungziel_) Sprung_senden();
            return;
        case MPV_EVENT_SEEK: sprung_läuft_ = sprung_angenommen_; return;
        case MPV_EVENT_PLAYBACK_RESTART:
            if (!sprung_läuft_) return;
            position_ = boden_ = static_cast<double>(*sprungziel_) / 1000;
            erzählt_um_ = {};
            Sprung_vergessen();
            return;
        case MPV_EVENT_END_FILE: {
            const auto& ende = *static_cast<const mpv_event_end_file*>(ereignis.data);
            if (eintrag_ < 0 || ende.playlist_entry_id != eintrag_) return;
            if (ende.reason != MPV_END_FILE_REASON_EOF && ende.reason != MPV_END_FILE_REASON_ERROR) return;
            vergessen();
            if (zu_Ende) zu_Ende();
            return;
        }
        default: return;
    }
}

// The library counts what the device has yet to play as not played, also right after a jump: it then tells a position that
// lies before the target, by the length of the device's buffer.
void Klang_mpv::Position_übernehmen(double sekunden) {
    if (sekunden < boden_ && sekunden > boden_ - Gerätepuffer) return;
    boden_ = 0;
    position_ = sekunden;
    erzählt_um_ = Uhr::now();
}

void Klang_mpv::laden(const Text& datei) {
    vergessen();
    ladekennung_ = ++kennung_;
    const char* befehl[] = {"loadfile", datei.c_str(), "replace", nullptr};
    mpv_command_async(mpv_.get(), ladekennung_, befehl);
}

void Klang_mpv::vergessen() {
    eintrag_ = -1;
    ladekennung_ = 0;
    geladen_ = false;
    position_ = boden_ = 0;
    erzählt_um_ = {};
    länge_.reset();
    Sprung_vergessen();
}

void Klang_mpv::stoppen() {
    vergessen();
    const char* befehl[] = {"stop", nullptr};
    mpv_command_async(mpv_.get(), 0, befehl);
}

void Klang_mpv::anhalten(bool angehalten) {
    // The clock may have run a little ahead of the library; who saw where it stopped does not see it go back.
    if (angehalten && !angehalten_) boden_ = position_ = static_cast<double>(Position()) / 1000;
    angehalten_ = angehalten;
    erzählt_um_ = {};
    int wert = angehalten;
    mpv_set_property_async(mpv_.get(), 0, "pause", MPV_FORMAT_FLAG, &wert);
}

void Klang_mpv::Lautstärke_setzen(int wert) {
    double prozent = wert * 100.0 / 255;
    mpv_set_property_async(mpv_.get(), 0, "volume", MPV_FORMAT_DOUBLE, &prozent);
}

void Klang_mpv::springen(std::int64_t ms) {
    Sprung_vergessen();
    sprungziel_ = ms;
    sprung_gesendet_ = Uhr::now();
    if (geladen_) Sprung_senden();
}

void Klang_mpv::Sprung_senden() {
    sprungkennung_ = ++kennung_;
    sprung_gesendet_ = Uhr::now();
    char sekunden[32];
    std::snprintf(sekunden, sizeof(sekunden), "%.3f", static_cast<double>(*sprungziel_) / 1000);
    const char* befehl[] = {"seek", sekunden, "absolute+exact", nullptr};
    mpv_command_async(mpv_.get(), sprungkennung_, befehl);
}

void Klang_mpv::Sprung_vergessen() {
    sprungziel_.reset();
    sprungkennung_ = 0;
    sprung_angenommen_ = sprung_läuft_ = false;
}

// The library tells the position some times a second only; in between the clock goes on for it.
std::int64_t Klang_mpv::Position() const {
    const auto jetzt = Uhr::now();
    double sekunden = position_;
    if (sprungziel_ && (!geladen_ || jetzt - sprung_gesendet_ < Sprungfrist)) {
        sekunden = static_cast<double>(*sprungziel_) / 1000;
    } else if (!angehalten_ && erzählt_um_ != Uhr::time_point{}) {
        sekunden += std::min(std::chrono::duration<double>(jetzt - erzählt_um_).count(), Höchstlücke);
        if (länge_) sekunden = std::min(sekunden, std::max(*länge_, position_));
    }
    return std::max<std::int64_t>(std::llround(sekunden * 1000), 0);
}

}  // namespace tonkartei::spieler
