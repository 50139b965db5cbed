#!/bin/bash
# Plays the main job without a screen, with real files, the real player and the real windows drawn off-screen: a new
# collection, songs added, sorted, searched, cut by categories, played and counted; then the counts, albums, the playlist,
# the editor of categories, the menus, the statistics, the text export, the display and the DJ desks after a new start; then
# all windows once more at twice the scale, and some in other colours, on small screens and under Wayland. Prints what happens and leaves a picture of every window in build/tour. Fails when something
# is not as it should.
set -eu
wurzel=$(cd "$(dirname "$0")/.." && pwd)
bediener=${1:-$wurzel/build/release/bin/tonkartei-bediener}
bilder=$wurzel/build/tour
arbeit=$(mktemp -d)
bediener_prozess=
aufraeumen() {
    [ -z "$bediener_prozess" ] || kill "$bediener_prozess" 2>/dev/null || true
    rm -rf "$arbeit"
}
trap aufraeumen EXIT
rm -f "$bilder"/*.png
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
    # Its own descriptors are taken away as soon as it ends, with the last reply unread.
    exec {von_ihm}<&"${BEDIENER[0]}" {an_ihn}>&"${BEDIENER[1]}"
    lesen
}

# Reads the replies up to the one that says that the program waits.
lesen() {
    antwort=
    local zeile
    while IFS= read -r -u "$von_ihm" zeile; do
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
    printf '%s\n' "$1" >&"$an_ihn"
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
    printf 'zeige %s\n' "$1" >&"$an_ihn"
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
    exec {von_ihm}<&- {an_ihn}>&-
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
    tu "wähle neue_Lieder_Liste.gefundene_Lieder 0"
    tu "klick neue_Lieder_Liste.Tag_ändern"
    bild MP3_Tag_ändern "tag$anhang"
    tu "klick MP3_Tag_ändern.Abbruch"
    bild neue_Lieder_Liste "neue_lieder$anhang"
    tu "klick neue_Lieder_Liste.Ok"
    tu "antwort Nein"
    bild Kategorie_Wahl "kategorie_wahl$anhang"
    for kategorie in 1 1 4 4 5 5; do tu "wähle Kategorie_Wahl.Liste $kategorie"; done
    erwarte Tonkartei.Liste_Anzahl '"text":"6"'
}

# What there is to see of a whole collection.
ansichten() {
    local anhang=$1
    tu "klick Tonkartei.sortieren(1)"
    tu "wähle Tonkartei.Liste 0"
    bild Tonkartei "tonkartei$anhang"
    echo "== Albums"
    tu "wähle Tonkartei.Datenbank_Modus 1"
    erwarte Tonkartei.Liste '["Das Zettelkasten-Trio - Von A bis Z","Jörg & Änne Süß - Laternenlied","Käthe Öhlmann - Über den Dächern"]'
    tu "wähle Tonkartei.Liste 2"
    erwarte Tonkartei.Liste2 'Jörg & Änne Süß - Zähes Wachs'
    tu "wähle Tonkartei.Liste2 2"
    erwarte Tonkartei.Titel '"text":"Regen im Treppenhaus"'
    bild Tonkartei "alben$anhang"
    tu "wähle Tonkartei.Liste2 1"
    erwarte Tonkartei.Titel 'nicht in Datenbank'
    tu "klick Tonkartei.Menü_starte_Album"
    bild Album_wählen "album_wahl$anhang"
    tu "klick Album_wählen.Abbruch"
    tu "wähle Tonkartei.Datenbank_Modus 0"
    tu "wähle Tonkartei.Liste 0"
    echo "== The playlist"
    for _ in 1 2 3 4; do tu "klick Tonkartei.Lieder_add_to_Playlist"; done
    erwarte Playlist.Liste_Anzahl '"text":"24"'
    for zeile in 23 22 21 20; do
        tu "wähle Playlist.Liste $zeile"
        tu "klick Playlist.löschen"
    done
    tu "klick Playlist.sortieren"
    tu "wähle Playlist.Liste 5"
    tu "setze Playlist.Reihenfolge 1"
    bild Playlist "playlist$anhang"
    for name in OMP_Playlist OMP_Optionen UMP_autoshow; do bild "Playlist.$name" "menue_playlist_${name#*_}$anhang"; done
    tu "rechtsklick Playlist.Liste 4"
    bild Kontextmenüs.Playlist_Menü "menue_playlist_liste$anhang"
    tu "klick Playlist.speichern"
    tu "pfad $arbeit/zwanzig.m3u"
    tu "klick Playlist.beenden"
    tu "klick Tonkartei.zeige_Playlist"
    tu "klick Playlist.öffnen"
    tu "pfad $arbeit/zwanzig.m3u"
    tu "antwort OK"
    erwarte Playlist.Liste_Anzahl '"text":"20"'
    tu "klick Playlist.beenden"
    echo "== Categories, the about box, menus"
    tu "klick Tonkartei.Kategorie_Edit"
    tu "wähle Kategorie_bearbeiten.Liste 2"
    erwarte Kategorie_bearbeiten.Kategorie_Name '"text":"Hip-Hop/Rap"'
    bild Kategorie_bearbeiten "kategorien$anhang"
    tu "klick Kategorie_bearbeiten.Ok"
    tu "klick Tonkartei.zeige_Info"
    bild Infofenster "info$anhang"
    tu "klick Infofenster.Ok"
    echo "== What is under the mouse, the remote control"
    tu "maus Tonkartei.Liste"
    bild Tonkartei "maus_liste$anhang"
    tu "maus Tonkartei.WinAmp_Show"
    erwarte Tonkartei.WinAmp_Frame '"sichtbar":true'
    tu "maus Tonkartei.WinAmp_Play"
    bild Tonkartei "fernsteuerung$anhang"
    tu "maus Tonkartei.Schnellsuche"
    erwarte Tonkartei.WinAmp_Frame '"sichtbar":false'
    tu "klick Tonkartei.Anz_Kat_Schemas(2)"
    tu "rechtsklick Tonkartei.SysTray"
    bild Kontextmenüs.Tray_Menü "menue_tray$anhang"
    bild Kontextmenüs.Tray_Kategorien "menue_tray_kategorien$anhang"
    tu "rechtsklick Tonkartei.Liste 0"
    bild Kontextmenüs.Lied_Menü "menue_lied$anhang"
    for name in OMP_Datei OMP_Lieder OMP_Optionen UMP_Kategorien UMP_Allgemeines UMP_WinAmp; do
        bild "Tonkartei.$name" "menue_${name#*_}$anhang"
    done
    # A rebuilt list brings the selection back, not what it says about the song.
    tu "wähle Tonkartei.Liste 0"
    # With the buttons of two schemes.
    bild Tonkartei "tonkartei_schemas$anhang"
}

# Dialogs on songs; one song is added a second time, as if it came from another collection.
dialoge() {
    local anhang=$1 sammlung=$2
    echo "== Songs from a date on, songs of another collection"
    tu "klick Tonkartei.Lieder_ab_Datum"
    bild Datum_eingeben "datum$anhang"
    tu "klick Datum_eingeben.Abbruch"
    tu "klick Tonkartei.Lieder_hinzufügen_Verzeichnis"
    tu "wähle Verzeichnis_add.Liste 0"
    bild Verzeichnis_add "verzeichnisse$anhang"
    tu "klick Verzeichnis_add.Abbruch"
    tu "klick Tonkartei.add_Datenbank"
    tu "setze Datenbank_öffnen.Pfad $arbeit/sammlungen/$sammlung"
    bild Datenbank_öffnen "datenbank_oeffnen$anhang"
    tu "klick Datenbank_öffnen.Ok"
    bild DB_add_start_Kategorien "andere_kategorien$anhang"
    tu "klick DB_add_start_Kategorien.Ok"
    bild neue_Lieder_Liste "andere_lieder$anhang"
    tu "klick neue_Lieder_Liste.del_alle"
    tu "wähle neue_Lieder_Liste.gefundene_Lieder 0"
    tu "klick neue_Lieder_Liste.add_dieses"
    tu "klick neue_Lieder_Liste.Ok"
    tu "antwort Ja"
    tu "wähle DBadd_Kategorien.Liste 1"
    bild DBadd_Kategorien "kategorien_zuordnen$anhang"
    tu "klick DBadd_Kategorien.Ok"
    erwarte Tonkartei.Liste_Anzahl '"text":"7"'
}

# What the seven songs tell about themselves, the list as a text file, and the settings of a display.
auswertungen() {
    local anhang=$1 ordner=$arbeit/sammlungen/$2 jahr nr
    echo "== Statistics"
    jahr=$(($(date +%Y) - 1))
    for nr in 1 2 3 4 5; do touch -d "$jahr-$((nr * 2))-1$nr 12:00" "$ordner/0000000$nr.MP3"; done
    touch -d "$((jahr - 1))-07-01 12:00" "$ordner/00000006.MP3" "$ordner/00000007.MP3"
    printf '%4d: %s\r\n' 1 4 2 voll 3 9 3 12 5 2 6 17 >"$ordner/MP3_Info.ABR"
    tu "klick Tonkartei.Statistik_anzeigen"
    erwarte Statistik.Liste_Anzahl '"text":"7"'
    tu "wähle Statistik.Liste 0"
    bild Statistik "statistik_gehoert$anhang"
    tu "wähle Statistik.Ansicht 1"
    tu "setze Statistik.Einsortiert_Jahr $jahr"
    erwarte Statistik.Einsortiert_Anzahl '"text":"5"'
    tu "maus Statistik.Einsortiert_Grafik 4000 1500"
    bild Statistik "statistik_einsortiert$anhang"
    tu "wähle Statistik.Ansicht 2"
    erwarte "Statistik.Kategorie_Anzahl(1)" '"text":"7"'
    bild Statistik "statistik_kategorien$anhang"
    tu "wähle Statistik.Ansicht 3"
    erwarte Statistik.AListe '"00:02: '
    bild Statistik "statistik_abgebrochen$anhang"
    tu "klick Statistik.Ok"
    echo "== The list as a text file, the display"
    tu "klick Tonkartei.ASCII_Datei"
    tu "setze Datei_ausgabe.Dateiname $arbeit/lieder$anhang.txt"
    tu "setze Datei_ausgabe.Spalte(4) Datum"
    bild Datei_ausgabe "ausgabe$anhang"
    tu "klick Datei_ausgabe.Ok"
    [ "$(grep -c . "$arbeit/lieder$anhang.txt")" = 7 ] || { echo "    the text file has not seven lines"; fehler=1; }
    tu "klick Tonkartei.Menü_Display_Setup"
    tu "antwort OK"
    bild Display_Setup "display$anhang"
    tu "klick Display_Setup.Abbruch"
}

# shellcheck source=skripte/tour_pulte.sh
. "$wurzel/skripte/tour_pulte.sh"
# shellcheck source=skripte/tour_aussehen.sh
. "$wurzel/skripte/tour_aussehen.sh"
# shellcheck source=skripte/tour_austausch.sh
. "$wurzel/skripte/tour_austausch.sh"

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
printf 'spieler\n' >&"$an_ihn"
lesen
printf '    %s' "$antwort" | head -n 1 | head -c 300
case $antwort in *'"status":1'*) ;; *) echo "    the player does not play"; fehler=1 ;; esac
echo
tu "maus Tonkartei.WinAmp_Show"
tu "warte 1500"
erwarte Tonkartei.WinAmp_Zeit '"text":"00:0'
erwarte Tonkartei.WinAmp_Position '"max":18'
bild Tonkartei "fernsteuerung_spielt"
tu "klick Tonkartei.Winamp_Pause"
tu "warte 700"
erwarte Tonkartei.WinAmp_Zeit '"text":"|| 00:0'
tu "klick Tonkartei.WinAmp_Play"
tu "maus Tonkartei.Liste"
tu "warte 1300"
tu "wähle Tonkartei.Liste 1"
tu "klick Tonkartei.Lied_starten"
tu "warte 500"
tu "wähle Tonkartei.Liste 0"
erwarte Tonkartei.Anzahl '"text":"1"'
echo "== Autoplay, in order: two songs come to their end"
tu "wähle Tonkartei.Liste 1"
tu "klick Tonkartei.Autoplay_Random"
tu "klick Tonkartei.Autoplay"
tu "maus Tonkartei.WinAmp_Show"
for zeile in 2 3; do
    tu "setze Tonkartei.WinAmp_Position 17"
    tu "warte 3500"
    erwarte Tonkartei.Liste "\"gewählt\":$zeile"
done
erwarte Tonkartei.WinAmp_Zeit '"text":"00:0'
bild Tonkartei "autoplay"
tu "klick Tonkartei.Autoplay"
tu "klick Tonkartei.zeige_Random_Liste"
erwarte Tonkartei.Liste_Anzahl '"text":"4"'
echo "== Boxes"
for befehl in Random_Prozent Zeit_Anzahl auto_Kat_Wechsel_Setup Zufalls_Playlist; do
    tu "klick Tonkartei.$befehl"
    bild eingabe "eingabe_$befehl"
    tu "abbrechen"
    case $antwort in *'"bereit":"meldung"'*) bild meldung "meldung_$befehl" && tu "antwort OK" ;; esac
done
tu "klick Tonkartei.Lieder_Anzahl"
bild meldung "meldung_Lieder_Anzahl"
tu "antwort Nein"
tu "klick Tonkartei.alle_Anzahl_ändern"
bild eingabe "eingabe_Anzahl"
tu "abbrechen"
tu "klick Tonkartei.Lücken_füllen"
bild meldung "meldung_Luecken"
tu "antwort Nein"
tu "klick Tonkartei.Menü_WinAmp_Beenden(2)"
ende
alben_anlegen "$arbeit/sammlungen/Tour"
echo "== The next start"
starten
erwarte Tonkartei.Liste_Anzahl '"text":"6"'
ansichten ""
erwarte Tonkartei.Anzahl '"text":"1"'
dialoge "" Tour
auswertungen "" Tour
ende
[ -f "$arbeit/sammlungen/Tour/MP3_Info.MDB" ] || { echo "no info file was saved"; fehler=1; }
[ ! -e "$arbeit/sammlungen/Tour/MP3_Info.DBG" ] || { echo "the access file stayed behind"; fehler=1; }
austausch "" Tour
pulte "" Tour
aussehen Tour
kleiner_schirm Tour 1024 600
wayland Tour

echo "== The same windows at twice the scale"
export QT_SCALE_FACTOR=2
rm -rf "$arbeit/wurzel"
mkdir "$arbeit/wurzel"
rundgang "@2x" Doppelt
ende
alben_anlegen "$arbeit/sammlungen/Doppelt"
starten
ansichten "@2x"
dialoge "@2x" Doppelt
auswertungen "@2x" Doppelt
ende
austausch "@2x" Doppelt
pulte "@2x" Doppelt
aussehen Doppelt "@2x"
kleiner_schirm Doppelt 1920 1080 "@2x"

echo
if [ "$fehler" -ne 0 ]; then
    echo "The tour found faults."
    exit 1
fi
echo "The tour is over; the pictures lie in ${bilder#"$wurzel"/}:"
ls "$bilder"
