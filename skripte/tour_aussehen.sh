#!/bin/bash
# The tour's look at the windows as other users see them: in the dark, in high contrast, on a small screen, and under a
# Wayland compositor. Sourced by tour.sh, whose functions and variables it uses.
# shellcheck disable=SC2154,SC2034

# Main window, adding, playlist, statistics and a desk, of a collection that is there.
ansehen() {
    local anhang=$1 sammlung=$arbeit/sammlungen/$2/
    : >"$arbeit/spieler/WinAmp.Exe"
    rm -rf "$arbeit/ansehen"
    starten --maschine probe --wurzel "$arbeit/ansehen" --setze "WinAmp=$arbeit/spieler/" \
        --setze 'geöffnete Datenbanken\Anzahl=1' --setze "geöffnete Datenbanken\\Nr. 1=$sammlung"
    tu "wähle Tonkartei.Liste 0"
    bild Tonkartei "tonkartei$anhang"
    tu "klick Tonkartei.Lieder_hinzufügen_Verzeichnis"
    tu "setze Verzeichnis_add.Pfad $wurzel/beispiel"
    tu "klick Verzeichnis_add.Ok"
    bild neue_Lieder_Liste "neue_lieder$anhang"
    tu "klick neue_Lieder_Liste.Abbruch"
    tu "klick Tonkartei.zeige_Playlist"
    bild Playlist "playlist$anhang"
    tu "klick Tonkartei.Statistik_anzeigen"
    tu "wähle Statistik.Ansicht 1"
    bild Statistik "statistik$anhang"
    tu "klick Statistik.Ok"
    tu "klick Tonkartei.starte_DJ_Modus"
    bild DJModus "pult$anhang"
    tu "schließe DJModus"
    ende
}

aussehen() {
    local sammlung=$1 farben gross=${2:-}
    for farben in dunkel kontrast kontrast-hell; do
        echo "== In other colours: $farben"
        TONKARTEI_FARBEN=$farben ansehen "_$farben$gross" "$sammlung"
    done
}

# A screen of the off-screen platform's own; windows then keep within it.
schirm() {
    printf '{"screens":[{"name":"klein","x":0,"y":0,"width":%s,"height":%s,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]}' \
        "$1" "$2" >"$arbeit/schirm.json"
    echo "offscreen:configfile=$arbeit/schirm.json"
}

kleiner_schirm() {
    local sammlung=$1 breite=$2 hoehe=$3 gross=${4:-}
    echo "== On a screen of $breite x $hoehe"
    QT_QPA_PLATFORM=$(schirm "$breite" "$hoehe") ansehen "_klein$gross" "$sammlung"
    for name in tonkartei neue_lieder playlist statistik pult; do
        if ! passt "$bilder/${name}_klein$gross.png" "$breite" "$hoehe"; then
            echo "    ${name}_klein$gross is larger than the screen"
            fehler=1
        fi
    done
}

# Width and height of a picture stand in its first bytes.
passt() {
    local masse
    masse=$(od -An -t u1 -j 16 -N 8 "$1")
    # shellcheck disable=SC2086
    set -- $masse "$2" "$3"
    [ $((($1 << 24) + ($2 << 16) + ($3 << 8) + $4)) -le "$9" ] && [ $((($5 << 24) + ($6 << 16) + ($7 << 8) + $8)) -le "${10}" ]
}

wayland() {
    local sammlung=$1 compositor i
    echo "== Under a Wayland compositor"
    XDG_RUNTIME_DIR=$arbeit/laufzeit weston --backend=headless-backend.so --socket=tour --idle-time=0 --no-config \
        >"$arbeit/weston" 2>&1 &
    compositor=$!
    for ((i = 0; i < 100; i++)); do
        if [ -e "$arbeit/laufzeit/tour" ]; then break; fi
        sleep 0.1
    done
    [ -e "$arbeit/laufzeit/tour" ] || { echo "    no compositor: $(cat "$arbeit/weston")"; fehler=1; return; }
    QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=tour ansehen _wayland "$sammlung"
    # What such a desktop cannot do is no reason to complain.
    if [ -s "$arbeit/fehler" ]; then
        echo "    said on the way: $(cat "$arbeit/fehler")"
        fehler=1
    fi
    kill "$compositor"
    wait "$compositor" 2>/dev/null || true
}
