#!/bin/bash
# Plays the main job without a screen, with real files, the real player and the real windows drawn off-screen: a new
# collection, songs added, sorted, searched, cut by categories, played and counted; then all of it once more after a new
# start. Prints what happens and leaves a picture of every window in build/tour. Fails when something is not as it should.
set -eu
wurzel=$(cd "$(dirname "$0")/.." && pwd)
bediener=${1:-$wurzel/build/release/bin/tonkartei-bediener}
bilder=$wurzel/build/tour
arbeit=$(mktemp -d)
trap 'kill "${bediener_prozess:-0}" 2>/dev/null || true; rm -rf "$arbeit"' EXIT
mkdir -p "$bilder" "$arbeit/wurzel" "$arbeit/sammlungen" "$arbeit/laufzeit"
chmod 700 "$arbeit/laufzeit"

export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$arbeit/laufzeit XDG_STATE_HOME=$arbeit/zustand
# No sound device is needed, and none is used: the tour plays into nothing, in real time.
export TONKARTEI_TON=null

fehler=0
antwort=

starten() {
    coproc BEDIENER { exec "$bediener" --maschine echt --ansicht qt --wurzel "$arbeit/wurzel" "$@" 2>"$arbeit/fehler"; }
    bediener_prozess=$BEDIENER_PID
    lesen
}

# Reads the replies up to the one that says that the program waits.
lesen() {
    antwort=
    local zeile
    while IFS= read -r -u "${BEDIENER[0]}" zeile; do
        antwort+=$zeile$'\n'
        case $zeile in
            *'"bereit"'*) return 0 ;;
        esac
    done
    echo "  The operator is gone: $(cat "$arbeit/fehler")"
    exit 1
}

# A line to the program; what it shows in return is printed.
tu() {
    printf '%s\n' "$1" >&"${BEDIENER[1]}"
    echo "> $1"
    lesen
    printf '%s' "$antwort" | sed -n \
        -e 's/^{"ereignis":"meldung".*"titel":"\([^"]*\)","text":"\(.*\)","art".*/    [\1] \2/p' \
        -e 's/^{"ereignis":"eingabe","titel":"\([^"]*\)","text":"\([^"]*\)".*/    [\1] \2/p' \
        -e 's/^{"ereignis":"ordner","titel":"\([^"]*\)".*/    (\1)/p' \
        -e 's/^{"fehler":"\([^"]*\)".*/    FEHLER: \1/p'
    case $antwort in
        *'"fehler"'*) fehler=1 ;;
    esac
}

# The text or the lines of a control must hold this.
erwarte() {
    printf 'zeige %s\n' "$1" >&"${BEDIENER[1]}"
    lesen
    if printf '%s' "$antwort" | grep -qF -- "$2"; then
        echo "    $1: $2"
    else
        echo "    $1 should show $2, but: $(printf '%s' "$antwort" | head -c 400)"
        fehler=1
    fi
}

bild() { tu "bild $1 $bilder/$2.png" >/dev/null; [ -s "$bilder/$2.png" ] || { echo "    no picture of $1"; fehler=1; }; }

ende() {
    tu "klick Tonkartei.MP_Beenden"
    case $antwort in
        *'"bereit":"ende"'*) ;;
        *)
            echo "    the program does not end"
            exit 1
            ;;
    esac
    wait "$bediener_prozess" || { echo "    the program ended with status $?"; fehler=1; }
    bediener_prozess=
}

rundgang() {
    local anhang=$1 sammlung=$2
    echo "== A new collection"
    starten --setze Anzahl-Zeit=3
    bild Splash "splash$anhang"
    tu "klick Splash.Button(3)"
    tu "antwort OK"
    tu "pfad $arbeit/sammlungen"
    tu "eingabe $sammlung"
    echo "== Adding the songs of beispiel/"
    tu "klick Tonkartei.Lieder_hinzufügen_Verzeichnis"
    tu "setze Verzeichnis_add.Pfad $wurzel/beispiel"
    bild Verzeichnis_add "verzeichnis$anhang"
    tu "klick Verzeichnis_add.Ok"
    tu "klick neue_Lieder_Liste.MP3_Tags_lesen"
    bild neue_Lieder_Liste "neue_lieder$anhang"
    tu "klick neue_Lieder_Liste.Ok"
    tu "antwort Nein"
    bild Kategorie_Wahl "kategorie_wahl$anhang"
    for kategorie in 1 1 4 4 5 5; do tu "wähle Kategorie_Wahl.Liste $kategorie"; done
    erwarte Tonkartei.Liste_Anzahl '"text":"6"'
}

rundgang "" Tour
echo "== Sorting, searching, categories"
tu "klick Tonkartei.sortieren(1)"
erwarte Tonkartei.Liste 'Kartenwalzer (Das Zettelkasten-Trio)'
tu "setze Tonkartei.Schnellsuche öhl"
erwarte Tonkartei.Liste_Anzahl '"text":"3"'
tu "setze Tonkartei.Schnellsuche \"\""
tu "klick Tonkartei.zeige_Kategorie(2)"
erwarte Tonkartei.Liste_Anzahl '"text":"2"'
tu "klick Tonkartei.zeige_Kategorie(1)"
echo "== Playing and counting"
tu "wähle Tonkartei.Liste 0"
tu "klick Tonkartei.Lied_starten"
tu "warte 1000"
printf 'spieler\n' >&"${BEDIENER[1]}"
lesen
printf '    %s' "$antwort" | head -n 1 | head -c 300
case $antwort in *'"status":1'*) ;; *) echo "    the player does not play"; fehler=1 ;; esac
echo
tu "warte 3500"
tu "wähle Tonkartei.Liste 1"
tu "klick Tonkartei.Lied_starten"
tu "warte 500"
tu "wähle Tonkartei.Liste 0"
erwarte Tonkartei.Anzahl '"text":"1"'
bild Tonkartei tonkartei
tu "klick Tonkartei.Menü_WinAmp_Beenden(2)"
ende
echo "== The next start"
starten
erwarte Tonkartei.Liste_Anzahl '"text":"6"'
tu "klick Tonkartei.sortieren(1)"
tu "wähle Tonkartei.Liste 0"
erwarte Tonkartei.Anzahl '"text":"1"'
ende
[ -f "$arbeit/sammlungen/Tour/MP3_Info.MDB" ] || { echo "no info file was saved"; fehler=1; }
[ ! -e "$arbeit/sammlungen/Tour/MP3_Info.DBG" ] || { echo "the access file stayed behind"; fehler=1; }

echo "== The same windows at twice the scale"
export QT_SCALE_FACTOR=2
rm -rf "$arbeit/wurzel"
mkdir "$arbeit/wurzel"
rundgang "@2x" Doppelt >"$arbeit/doppelt" || { cat "$arbeit/doppelt"; exit 1; }
tu "wähle Tonkartei.Liste 0" >/dev/null
bild Tonkartei "tonkartei@2x"
ende

echo
if [ "$fehler" -ne 0 ]; then
    echo "The tour found faults."
    exit 1
fi
echo "The tour is over; the pictures lie in ${bilder#"$wurzel"/}:"
ls "$bilder"
