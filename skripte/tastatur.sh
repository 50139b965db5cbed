#!/bin/bash
# Works the real program on a private X server with a window manager, by keyboard alone: from the first start to a new
# collection, songs added, one of them found while typing, played, paused, edited; a second start; the end. What must come of
# it is seen in the windows' titles, on the disk and on the session's bus. Fails with the step and a picture of the screen.
#
#     tastatur.sh [FOLDER OF THE PROGRAMS]
set -eu
wurzel=$(cd "$(dirname "$0")/.." && pwd)
programme=$(cd "${1:-$wurzel/build/release/bin}" && pwd)
arbeit=$(mktemp -d)
bild=$wurzel/build/tastatur.png
prozesse=()
aufraeumen() {
    # The player plays on when the program ends, as it should.
    for prozess in /proc/[0-9]*; do
        if grep -aqs "$arbeit/" "$prozess/cmdline"; then kill "${prozess#/proc/}" 2>/dev/null || true; fi
    done
    for prozess in "${prozesse[@]}"; do kill "$prozess" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$arbeit"
}
trap aufraeumen EXIT
mkdir -p "$arbeit"/{heim/Musik,sammlungen,einst,daten,zustand}
mkdir -m 700 "$arbeit/lauf"
unset WAYLAND_DISPLAY
export HOME=$arbeit/heim XDG_CONFIG_HOME=$arbeit/einst XDG_DATA_HOME=$arbeit/daten XDG_STATE_HOME=$arbeit/zustand
export XDG_RUNTIME_DIR=$arbeit/lauf QT_QPA_PLATFORM=xcb TONKARTEI_TON=null LC_ALL=C.UTF-8

schritt=
scheitern() {
    import -window root "$bild" 2>/dev/null || true
    cat "$arbeit"/fehler* "$arbeit"/*.log >&2 2>/dev/null || true
    [ -z "${programm:-}" ] || kill -0 "$programm" || { wait "$programm" && true; echo "the program ended with $?" >&2; }
    echo "Failed: $schritt: $1 (in front: $(vorn); picture: ${bild#"$wurzel"/})" >&2
    exit 1
}
# Within twenty seconds.
bald() {
    local i
    for ((i = 0; i < 200; i++)); do
        if "$@" >/dev/null 2>&1; then return 0; fi
        sleep 0.1
    done
    return 1
}
vorn() { xdotool getactivewindow getwindowname 2>/dev/null || true; }
ist_vorn() { [[ $(vorn) == *"$1"* ]]; }
fenster() { bald ist_vorn "$1" || scheitern "no window '$1'"; }
# A box may bear the title of its window.
merken() { gemerkt=$(xdotool getactivewindow); }
ist_anderes() { [ "$(xdotool getactivewindow)" != "$gemerkt" ] && ist_vorn "$1"; }
anderes() { bald ist_anderes "$1" || scheitern "no other window '$1'"; }
schritt() {
    schritt=$1
    echo "- $1"
}
taste() { xdotool key --clearmodifiers --delay 30 "$@"; }
tippe() { xdotool type --clearmodifiers --delay 15 "$1"; }
spieler() {
    dbus-send --print-reply=literal --dest=org.mpris.MediaPlayer2.tonkartei /org/mpris/MediaPlayer2 \
        org.freedesktop.DBus.Properties.Get string:org.mpris.MediaPlayer2.Player "string:$1"
}
spieler_sagt() { [[ $(spieler "$1") == *"$2"* ]]; }
es_zeigt() { bald spieler_sagt "$1" "$2" || scheitern "$1 is not $2 but $(spieler "$1" 2>&1)"; }

schritt "a screen, a window manager, a bus"
exec {nummer}<> <(:)
Xvfb -displayfd "$nummer" -screen 0 1280x800x24 -nolisten tcp -noreset >"$arbeit/x.log" 2>&1 &
prozesse+=($!)
read -r -t 20 -u "$nummer" anzeige || scheitern "no X server: $(cat "$arbeit/x.log")"
export DISPLAY=:$anzeige
coproc BUS { exec dbus-daemon --session --nofork --print-address 2>/dev/null; }
prozesse+=("$BUS_PID")
read -r -t 20 -u "${BUS[0]}" DBUS_SESSION_BUS_ADDRESS
export DBUS_SESSION_BUS_ADDRESS
openbox >"$arbeit/wm.log" 2>&1 &
prozesse+=($!)
hat_verwalter() { [[ $(xprop -root _NET_SUPPORTING_WM_CHECK) == *"window id"* ]]; }
bald hat_verwalter || scheitern "no window manager"

schritt "first start: a new collection"
"$programme/tonkartei" 2>"$arbeit/fehler" &
programm=$!
prozesse+=("$programm")
fenster "Tonkartei"
# The start window takes keys once its picture has glided aside.
for ((versuch = 0; versuch < 20; versuch++)); do
    taste Return
    for ((i = 0; i < 10; i++)); do
        if ist_vorn "erstellen"; then break 2; fi
        sleep 0.1
    done
done
fenster "erstellen"
taste Return
fenster "Verzeichnis"
tippe "$arbeit/sammlungen"
taste Return
fenster "erstellen"
tippe "Tasten"
taste Return
fenster "Tasten"
bald test -d "$arbeit/sammlungen/Tasten" || scheitern "no folder of the collection on the disk"

schritt "songs are added"
taste alt+l
taste Right
taste v
fenster "Verzeichnis hinzufügen"
tippe "$wurzel/beispiel"
taste Return
fenster "Lieder hinzufügen"
merken
taste alt+o
anderes "Lieder hinzufügen"
taste Return
fenster "Kategorie"
taste Down Down
ist_vorn "Kategorie" || scheitern "an arrow has chosen already"
taste Return
fenster "Tasten"

schritt "one is found while typing, and played"
taste ctrl+f
tippe "kartenw"
taste Down Return
es_zeigt PlaybackStatus Playing
es_zeigt Metadata Kartenwalzer

schritt "the remote control pauses it"
for ((versuch = 0; versuch < 20; versuch++)); do
    # Its panel slides in first; once more is no more.
    taste alt+f
    sleep 0.5
    taste Tab space
    if spieler_sagt PlaybackStatus Paused; then break; fi
    sleep 0.5
    if spieler_sagt PlaybackStatus Paused; then break; fi
done
es_zeigt PlaybackStatus Paused
taste Escape

schritt "its title is changed"
taste ctrl+f F2
fenster "Titel"
taste Escape
fenster "Tasten"

schritt "a second start brings the first to the front"
xdotool getactivewindow windowminimize
"$programme/tonkartei" 2>"$arbeit/fehler2" &
zweites=$!
prozesse+=("$zweites")
ist_zweites() { [ "$(xdotool getactivewindow getwindowpid)" = "$zweites" ]; }
bald ist_zweites || scheitern "no message of the second start"
taste Return
bald eval "! kill -0 $zweites" || scheitern "the second start goes on"
fenster "Tasten"

schritt "the end"
taste ctrl+q
bald eval "! kill -0 $programm" || scheitern "the program goes on"
wait "$programm" || scheitern "it ended with $?"
grep -q Kartenwalzer "$arbeit/sammlungen/Tasten/MP3_Info.MDB" || scheitern "the song is not in the info file"
[ ! -e "$arbeit/sammlungen/Tasten/MP3_Info.DBG" ] || scheitern "the access file stayed behind"
[ ! -s "$arbeit/fehler" ] || scheitern "said on the way: $(head -c 500 "$arbeit/fehler")"
echo "By keyboard alone, from the first start to the end."
