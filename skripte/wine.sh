#!/bin/sh
# Runs one program of the Windows build for CTest. What it says goes through a file: a process that it left behind would keep
# a pipe open, and the test would seem to run on.
ausgabe=$(mktemp)
trap 'rm -f "$ausgabe"' EXIT
wine "$@" >"$ausgabe" 2>&1 </dev/null
ende=$?
cat "$ausgabe"
exit $ende
