# shellcheck shell=bash disable=SC2154
# Part of the tour: albums kept, and everything that two collections have to do with each other. Used by tour.sh.

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
    erwarte Vergleichsergebnis.gleiche '"text":"5"'
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
