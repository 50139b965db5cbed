#!/bin/sh
# Runs the tests of the Windows build under Wine, on a screen and in a Windows of their own: a fresh one each time, so that
# neither the user's folders, registry and recycle bin nor those of an earlier run are touched. Arguments go to ctest.
set -eu
cd "$(dirname "$0")/.."

windows=$PWD/build/windows/wine
# Wine's "my documents" and recycle bin lie in the home folder.
HOME=$windows/heim
WINEPREFIX=$windows/laufwerk
# Without these it offers to fetch parts that nothing here uses.
WINEDLLOVERRIDES="mscoree,mshtml="
WINEDEBUG=${WINEDEBUG:--all}
# File names in UTF-8, whatever the user's language is.
LC_ALL=C.UTF-8
export HOME WINEPREFIX WINEDLLOVERRIDES WINEDEBUG LC_ALL
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME WAYLAND_DISPLAY

if [ -z "${TONKARTEI_WINE_SCHIRM:-}" ]; then
    rm -rf "$windows"
    mkdir -p "$HOME" "$WINEPREFIX"
    export TONKARTEI_WINE_SCHIRM=1
    exec xvfb-run -a -s '-screen 0 1600x1200x24' sh skripte/windows_test.sh "$@"
fi

# Ends this Windows with all that still runs in it, and no other.
wineserver=/usr/lib/wine/wineserver
trap '"$wineserver" -k 2>/dev/null || true' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
# It stays up between the tests instead of starting anew for each.
"$wineserver" -p
wine wineboot --init 2>/dev/null || {
    echo "windows_test.sh: Wine does not start; with WINEDEBUG= it says why." >&2
    exit 1
}
ctest --preset windows "$@"
