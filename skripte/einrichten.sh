#!/bin/sh
# Installs the Debian packages that building, testing and running need, and nothing when they are all there (one
# question to dpkg, no apt). Groups by argument: "leistung" adds the benchmarks' packages, "format" the formatter, "pruefen"
# all that looks at the sources, "paket" what making a Debian package takes, "handbuch" what makes the handbook a page,
# "windows" the cross compiler and what running its programs takes.
set -eu

# Building and running. libgl1 and the xcb libraries come with Qt; sound comes with libmpv.
pakete="g++ cmake ninja-build pkg-config ccache qt6-base-dev libmpv-dev"
# German buttons in the dialogs that Qt brings; Qt itself only recommends them.
pakete="$pakete qt6-translations-l10n"
# Letters for the windows: without a font every character is a box.
pakete="$pakete fontconfig fonts-dejavu-core"
# Tests and the operator.
pakete="$pakete libgtest-dev libgmock-dev nlohmann-json3-dev"

for gruppe in "$@"; do
    case $gruppe in
        leistung) pakete="$pakete libtag1-dev" ;;
        format) pakete="$pakete clang-format" ;;
        # It compiles the benchmarks as well.
        pruefen) pakete="$pakete clang-format clang-tidy shellcheck libtag1-dev" ;;
        paket) pakete="$pakete dpkg-dev file" ;;
        handbuch) pakete="$pakete cmark-gfm" ;;
        # libmpg123-0 names the version that is cross-built; dpkg-dev unpacks sources.
        windows)
            pakete="$pakete g++-mingw-w64-x86-64-posix googletest libmpg123-0 dpkg-dev zip"
            pakete="$pakete wine wine64 xvfb xauth"
            ;;
        *)
            echo "einrichten.sh: unknown group '$gruppe' (known: leistung, format, pruefen, paket, handbuch, windows)" >&2
            exit 2
            ;;
    esac
done

# A Wayland desktop without an X server beside it; elsewhere Qt's X11 plug-in serves.
if [ -n "${WAYLAND_DISPLAY:-}" ] && [ -z "${DISPLAY:-}" ]; then
    pakete="$pakete qt6-wayland"
fi

if ! command -v dpkg-query >/dev/null 2>&1 || ! command -v apt-get >/dev/null 2>&1; then
    echo "This is no Debian system, so nothing is installed here. Needed, by their Debian names:" >&2
    echo "  $pakete" >&2
    exit 0
fi

# dpkg-query fails for names that it has never heard of, yet prints the others; what is installed counts.
# Lists of packages are left to be split at their blanks.
# shellcheck disable=SC2086
vorhanden=$(dpkg-query -W -f '${db:Status-Status} ${binary:Package}\n' $pakete 2>/dev/null |
    sed -n 's/^installed \([^:]*\).*/\1/p') || true
fehlend=
for paket in $pakete; do
    case "
$vorhanden
" in
        *"
$paket
"*) ;;
        *) fehlend="$fehlend $paket" ;;
    esac
done
[ -n "$fehlend" ] || exit 0

echo "Missing packages:$fehlend"
if [ "$(id -u)" -eq 0 ]; then
    als_root=
elif command -v sudo >/dev/null 2>&1; then
    als_root=sudo
    # Without a terminal nobody can type a password.
    if [ ! -t 0 ]; then
        als_root="sudo -n"
    fi
else
    als_root=nein
fi

von_hand() {
    echo "$1 Please have an administrator run:" >&2
    echo "  apt-get update && apt-get install --no-install-recommends$fehlend" >&2
    exit 1
}
[ "$als_root" != nein ] || von_hand "Not root, and there is no sudo here."
if [ -n "$als_root" ] && ! $als_root true; then
    von_hand "sudo refused."
fi

apt_get() {
    $als_root env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 "$@"
}
# shellcheck disable=SC2086
einspielen() {
    apt_get install -y --no-install-recommends $fehlend
}

# The package lists are fetched only where they are missing or too old to serve.
# shellcheck disable=SC2086
if apt_get install -s --no-install-recommends $fehlend >/dev/null 2>&1 && einspielen; then
    exit 0
fi
apt_get update
einspielen || von_hand "apt-get failed."
