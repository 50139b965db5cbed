#!/bin/sh
# The tests' share: their lines against those of src/ and werkzeug/. Fails above a third.
set -eu
cd "$(dirname "$0")/.."

zeilen() {
    git ls-files -co --exclude-standard -- "$@" | grep -E '\.(cpp|hpp|h|py|sh)$' | while read -r datei; do
        [ ! -f "$datei" ] || cat "$datei"
    done | wc -l
}

tests=$(zeilen tests)
code=$(zeilen src werkzeug)
promille=$((tests * 1000 / code))
echo "tests: $tests lines to $code of src/ and werkzeug/, $((promille / 10)).$((promille % 10)) % (at most 33.3)"
[ $((tests * 3)) -le "$code" ]
