# shellcheck shell=bash disable=SC2154,SC2034
# Part of the tour: albums kept, and everything that two collections have to do with each other. Used by tour.sh.

# The number under which the song is stored; every song has eight lines in the info file, the fifth is its title.
nummer() {
    local datei=$1 anfang=$2 zeile
    zeile=$(LC_ALL=C grep -an "^$anfang" "$datei" | head -n 1 | cut -d : -f 1)
    [ -n "$zeile" ] || { echo "no such song in the info file: $anfang" >&2; exit 1; }
    echo $((6 - ($(wc -l <"$datei") - zeile - 3) / 8))
}

# Three albums of the songs and of titles that the collection does not have; bytes of the page 1252.
alben_anlegen() {
    local ordner=$1 info=$1/MP3_Info.MDB
    zeilen() { local zeile; for zeile in "$@"; do printf '%b\r\n' "$zeile"; done; }
    # Artist, minutes, seconds, title; and the beginning of the song's title in the info file when it is there.
    titel() {
        if [ $# -gt 4 ]; then
            local nr
            nr=$(nummer "$info" "$5")
            zeilen "$1" 0 "$2" "$3" T " $nr " "$4"
        else
            zeilen "$1" 0 "$2" "$3" F " 0 " "$4"
        fi
    }
    {
        zeilen Tonkartei 'V 1.02 16' 'Datenbank Alben-Verwaltung' ' 3 '
        zeilen ' 5 ' 'K\0344the \0326hlmann' ' 1998 ' F '\0334ber den D\0344chern'
        titel 'K\0344the \0326hlmann' 0 18 'Morgens \0374ber den D\0344chern' Morgens
        titel 'K\0344the \0326hlmann' 3 41 'Stra\0337enbahn nach S\0374den'
        titel 'K\0344the \0326hlmann' 0 18 'Regen im Treppenhaus' Regen
        titel 'K\0344the \0326hlmann' 0 18 'Kurzes Klingeln' Kurzes
        titel 'J\0366rg & \0304nne S\0374\0337' 4 12 'Z\0344hes Wachs'
        zeilen ' 3 ' 'Das Zettelkasten-Trio' ' 2003 ' F 'Von A bis Z'
        titel 'Das Zettelkasten-Trio' 0 18 'Kartenwalzer' Kartenwalzer
        titel 'Das Zettelkasten-Trio' 0 18 'Schublade A bis K' Schublade
        titel 'Das Zettelkasten-Trio' 2 55 'Schublade L bis Z'
        zeilen ' 2 ' 'J\0366rg & \0304nne S\0374\0337' ' 2001 ' T 'Laternenlied'
        titel 'J\0366rg & \0304nne S\0374\0337' 0 18 'Laternenlied f\0374r zwei' Laternenlied
        titel 'J\0366rg & \0304nne S\0374\0337' 5 3 'Laternenlied (lange Fassung)'
    } >"$ordner/MP3_Info.ALB"
}

oeffne() {
    tu "klick Tonkartei.öffne_Datenbank"
    tu "setze Datenbank_öffnen.Pfad $arbeit/sammlungen/$1"
    tu "klick Datenbank_öffnen.Ok"
}

# The album manager with the albums of this collection, and those of another one offered.
albenverwaltung() {
    local anhang=$1 freund=$2
    echo "== The album manager"
    tu "klick Tonkartei.zeige_Alben_Verwaltung"
    tu "wähle Alben_Verwaltung.Liste 1"
    tu "klick Alben_Verwaltung.Scan_DB"
    tu "antwort OK"
    erwarte Alben_Verwaltung.Anzahl_Titel '"text":"5"'
    bild Alben_Verwaltung "albenverwaltung$anhang"
    tu "klick Alben_Verwaltung.Album_import"
    tu "antwort OK"
    tu "setze Datenbank_öffnen.Pfad $arbeit/sammlungen/$freund"
    tu "klick Datenbank_öffnen.Ok"
    tu "klick Album_importieren.alle_hinzufügen"
    tu "wähle Album_importieren.Liste 0"
    bild Album_importieren "alben_importieren$anhang"
    tu "klick Album_importieren.Titel_anzeigen"
    bild Album_Titel_Liste "album_titel$anhang"
    tu "klick Album_Titel_Liste.Ok"
    tu "klick Album_importieren.Abbruch"
    tu "klick Alben_Verwaltung.Ende"
}

# Compared through files: what this collection has not is asked for, and the other one serves it.
vergleich_durch_dateien() {
    local anhang=$1 sammlung=$2 freund=$3
    echo "== Two collections compared, a request written and served"
    oeffne "$freund"
    tu "klick Tonkartei.Vergleichsdatei_erstellen"
    tu "antwort OK"
    tu "pfad $arbeit/freund$anhang.mvd"
    oeffne "$sammlung"
    tu "klick Tonkartei.Datenbank_vergleichen"
    tu "antwort OK"
    tu "pfad $arbeit/freund$anhang.mvd"
    erwarte Vergleichsergebnis.gleiche '"text":"4"'
    tu "klick Vergleichsergebnis.alle_anfordern"
    bild Vergleichsergebnis "vergleich$anhang"
    tu "klick Vergleichsergebnis.Anfrderungsdatei"
    tu "pfad $arbeit/wunsch$anhang.mad"
    tu "klick Vergleichsergebnis.Ok"
    oeffne "$freund"
    tu "klick Tonkartei.Anforderungs_Datenbank_erstellen"
    tu "antwort OK"
    tu "pfad $arbeit/wunsch$anhang.mad"
    tu "antwort OK"
    tu "pfad $arbeit/sammlungen"
    tu "eingabe Wunsch$anhang"
    tu "klick neue_Lieder_Liste.Ok"
    tu "klick DBadd_Kategorien.Ok"
    erwarte Tonkartei.Liste 'Kurzes Klingeln'
}

abgleich() {
    local anhang=$1 sammlung=$2 freund=$3
    echo "== Side by side: a song taken over, one passed over for good"
    oeffne "$sammlung"
    tu "klick Tonkartei.Menü_Live_abgleich"
    tu "antwort OK"
    tu "pfad $arbeit/sammlungen/$freund"
    tu "wähle Live_abgleich.Liste 0"
    tu "wähle Live_abgleich.KatListe 1"
    bild Live_abgleich "abgleich$anhang"
    tu "klick Live_abgleich.hinzufügen"
    erwarte Tonkartei.Liste_Anzahl '"text":"7"'
    tu "wähle Live_abgleich.Liste 0"
    tu "klick Live_abgleich.ignorieren"
    tu "klick Tonkartei.zeige_Ignorieren_Liste"
    erwarte LA_Ignorieren.Liste '"Käthe Öhlmann - Regen im Treppenhaus"'
    bild LA_Ignorieren "ignorieren$anhang"
    tu "klick LA_Ignorieren.Ok"
    tu "klick Live_abgleich.Ok"
    echo "== The categories compared"
    tu "wähle Tonkartei.Liste 0"
    tu "setze Tonkartei.Lied_Kategorie #5"
    tu "antwort Ja"
    tu "klick Tonkartei.Kategorie_abgleich"
    tu "antwort OK"
    tu "setze Datenbank_öffnen.Pfad $arbeit/sammlungen/$freund"
    tu "klick Datenbank_öffnen.Ok"
    tu "wähle Kategorie_vergleich.Liste 0"
    bild Kategorie_vergleich "kategorien_vergleichen$anhang"
    tu "klick Kategorie_vergleich.Kategorie_stimmt"
    tu "klick Kategorie_vergleich.Ok"
}

sicherung() {
    local anhang=$1
    echo "== A backup in two portions, the first made at once; the collection dissolved into folders"
    tu "klick Tonkartei.Datenbank_auflösen"
    tu "antwort Ja"
    bild auflösen "aufloesen$anhang"
    tu "klick auflösen.Ok"
    tu "antwort Nein"
    mkdir -p "$arbeit/ordner$anhang" "$arbeit/portionen$anhang"
    tu "pfad $arbeit/ordner$anhang"
    # One song is there twice: the shell's question.
    tu "antwort Ja"
    find "$arbeit/ordner$anhang" -name '*.mp3' | sed "s|^$arbeit/|    |"
    tu "klick Tonkartei.Menü_Backup_Portionen"
    tu "setze Backup_Portionen.Backup_Portionsgröße 1"
    erwarte Backup_Portionen.Backup_Anzahl_Portionen '"text":"1"'
    bild Backup_Portionen "backup$anhang"
    tu "klick Backup_Portionen.Ok"
    tu "pfad $arbeit/portionen$anhang"
    tu "eingabe Sicherung"
    case $antwort in *'2 Portionsdateien'*) ;; *) echo "    not two portions"; fehler=1 ;; esac
    tu "antwort Ja"
    tu "antwort OK"
    tu "pfad $arbeit/sammlungen"
    tu "eingabe Sicherung$anhang"
    tu "klick neue_Lieder_Liste.Ok"
    tu "klick DBadd_Kategorien.Ok"
    tu "antwort OK"
    erwarte Tonkartei.Liste 'Laternenlied'
}

# A friend has the same collection as it was before one song went and another one got a new name.
austausch() {
    local anhang=$1 sammlung=$2 freund=Freund$1
    cp -a "$arbeit/sammlungen/$sammlung" "$arbeit/sammlungen/$freund"
    starten
    tu "setze Tonkartei.Schnellsuche Kurzes"
    tu "wähle Tonkartei.Liste 0"
    tu "klick Tonkartei.Lied_löschen"
    tu "antwort Ja"
    tu "setze Tonkartei.Schnellsuche Regen"
    tu "wähle Tonkartei.Liste 0"
    tu "klick Tonkartei.Titel"
    tu "eingabe Niesel im Treppenhaus"
    tu "setze Tonkartei.Schnellsuche \"\""
    albenverwaltung "$anhang" "$freund"
    vergleich_durch_dateien "$anhang" "$sammlung" "$freund"
    abgleich "$anhang" "$sammlung" "$freund"
    sicherung "$anhang"
    ende
}
