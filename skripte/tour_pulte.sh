#!/bin/bash
# The tour's round of the two DJ desks, on simulated players, which take no time: each at rest and in the middle of a fade.
# Sourced by tour.sh, whose functions and variables it uses.
# shellcheck disable=SC2154

pulte() {
    local anhang=$1 sammlung=$arbeit/sammlungen/$2/ n
    echo "== The DJ desks"
    mkdir -p "$arbeit/spieler"
    : >"$arbeit/spieler/WinAmp.Exe"
    rm -rf "$arbeit/pult"
    starten --maschine probe --wurzel "$arbeit/pult" --setze "WinAmp=$arbeit/spieler/" \
        --setze 'geöffnete Datenbanken\Anzahl=1' --setze "geöffnete Datenbanken\\Nr. 1=$sammlung"
    tu "zufall 0 0.3 0.6 0.9"
    tu "klick Tonkartei.starte_DJ_Modus"
    tu "uhr +1000"
    bild DJModus "pult$anhang"
    erwarte DJModus.Fadezeit '"text":"5"'
    for n in 4 2 3; do
        tu "wähle DJModus.Liste(1) $n"
        tu "ziehe DJModus.Liste(1) DJModus.Listen_Mode(2)"
        tu "ziehe DJModus.Liste(1) DJModus.Listen_Mode(3)"
    done
    tu "klick DJModus.Listen_Mode(3)"
    tu "klick DJModus.Player_Auto_Immer(1)"
    tu "klick DJModus.Player_Taste_Pause(1)"
    tu "spieler TonkarteiWA1 position=61000"
    tu "setze DJModus.Crossfade(1) 30"
    tu "klick DJModus.Start_Fade(1)"
    tu "uhr +2000"
    erwarte "DJModus.Crossfade(1)" '"wert":70'
    bild DJModus "pult_faden$anhang"
    tu "schließe DJModus"
    tu "zufall 0 0.5"
    tu "klick Tonkartei.starte_DJ_Modus_alt"
    bild DJ_Modus "pult_alt$anhang"
    for n in 4 0 2; do
        tu "wähle DJ_Liste.Liste $n"
        tu "ziehe DJ_Liste.Liste Wunschliste.Liste"
    done
    tu "klick Mixer.WinAmp1_Random"
    tu "klick Mixer.WinAmp2_Random"
    tu "klick Mixer.WinAmp1_Play_Pause"
    tu "spieler TonkarteiWA1 position=90000"
    tu "uhr +500"
    tu "klick Mixer.Fade_anderes_Lied"
    tu "uhr +2000"
    erwarte Mixer.Crossfade_Mitte '"text":"Auto"'
    bild DJ_Modus "pult_alt_faden$anhang"
    tu "schließe DJ_Modus"
    ende
}
