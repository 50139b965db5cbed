#!/bin/sh
# Runs every benchmark (bench_*) of the folder given and fails when one fails; each is run even if one before it failed.
set -u
ordner=$1
ergebnis=0
anzahl=0
for programm in "$ordner"/bench_*; do
    [ -x "$programm" ] || continue
    anzahl=$((anzahl + 1))
    echo "== ${programm##*/}"
    QT_QPA_PLATFORM=offscreen "$programm" || { echo "failed: ${programm##*/}" >&2; ergebnis=1; }
done
if [ "$anzahl" -eq 0 ]; then
    echo "no benchmark in $ordner" >&2
    exit 1
fi
exit "$ergebnis"
