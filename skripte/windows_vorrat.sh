#!/bin/sh
# The libraries that the Windows build links, cross-built from Debian's own sources: Qt and mpg123, both static. They are built
# once into a cache outside the tree, each in a folder named by its version and by what it was made with; build/windows-vorrat
# links to them. Without a word when all is there. Arguments: which of "mpg123 qt" (default: both).
set -eu
cd "$(dirname "$0")/.."
baum=$PWD

vorrat=${TONKARTEI_VORRAT:-${XDG_CACHE_HOME:-$HOME/.cache}/tonkartei}/windows
links=$baum/build/windows-vorrat
kerne=${TONKARTEI_KERNE:-$(nproc)}
ziel=x86_64-w64-mingw32

qt_optionen="
-DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
-DCMAKE_FIND_ROOT_PATH=/usr/$ziel -DFEATURE_pkg_config=OFF -DFEATURE_relocatable=ON
-DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_testlib=OFF -DFEATURE_printsupport=OFF
-DFEATURE_xml=OFF -DFEATURE_concurrent=OFF
-DINPUT_opengl=no -DFEATURE_vulkan=OFF -DFEATURE_direct2d=OFF -DFEATURE_direct2d1_1=OFF
-DFEATURE_directwrite=OFF -DFEATURE_directwrite3=OFF
-DFEATURE_icu=OFF -DFEATURE_zstd=OFF -DFEATURE_glib=OFF -DFEATURE_gif=OFF -DFEATURE_jpeg=OFF
-DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_freetype=OFF
-DFEATURE_system_harfbuzz=OFF -DFEATURE_system_doubleconversion=OFF -DFEATURE_system_libb2=OFF
-DFEATURE_tabletevent=OFF"  # the header it takes is not free, so not in Debian's archive
mpg123_optionen="--host=$ziel --with-audio=win32 --disable-components --enable-libmpg123
--disable-shared --enable-static --disable-modules"

abbruch() {
    echo "windows_vorrat.sh: $1" >&2
    exit 1
}

# version PACKAGE: the upstream version of an installed package. The source is taken in the same one: moc and the like of the
# host have to go with the library, and the name of the folder in the cache is known without asking anyone.
version() {
    dpkg-query -W -f '${source:Upstream-Version}' "$1" 2>/dev/null | sed 's/[+~]dfsg.*//' | grep . ||
        abbruch "$1 is not installed (skripte/einrichten.sh windows brings it)."
}

# ordner NAME VERSION OPTIONS: where NAME lies in the cache.
ordner() {
    stand=$({
        echo "$3"
        dpkg-query -W -f '${binary:Package} ${Version}\n' g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev
        grep -v '^#' cmake/windows.cmake
    } | sha256sum | cut -c1-12)
    echo "$vorrat/$1-$2-$stand"
}

# quelle NAME VERSION: unpacks Debian's source package into ./quelle. apt gets lists of its own for this, so that the machine's
# are left as they are, and no rights are needed.
quelle() {
    if [ ! -e "$arbeit/apt.conf" ]; then
        ausgabe=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
        mkdir -p "$arbeit/apt/listen/partial" "$arbeit/apt/archiv/partial"
        # Where the machine takes its packages from, Debian's part of it; known even where no list has been fetched yet. What
        # is in several archives comes from the first: the updates' are whole, while mirrors of the big one may lack signatures.
        apt-get update --print-uris |
            sed -n "s|^'\(.*\)/dists/\(${ausgabe}[^/]*\)/InRelease'.*|deb-src \1 \2 main|p" |
            sort -r -k 3 >"$arbeit/apt/quellen.list"
        [ -s "$arbeit/apt/quellen.list" ] || abbruch "apt knows no archive of Debian $ausgabe."
        cat >"$arbeit/apt.conf" <<EOF
Dir::Etc::sourcelist "$arbeit/apt/quellen.list";
Dir::Etc::sourceparts "-";
Dir::State::lists "$arbeit/apt/listen";
Dir::Cache "$arbeit/apt";
APT::Sandbox::User "$(id -un)";
EOF
        APT_CONFIG=$arbeit/apt.conf apt-get -qq update || abbruch "The lists of source packages cannot be fetched."
    fi
    mkdir -p "$arbeit/$1"
    cd "$arbeit/$1"
    APT_CONFIG=$arbeit/apt.conf apt-get -qq source --download-only --only-source "$1" >&2 ||
        abbruch "The source package $1 cannot be fetched."
    geholt=$(sed -n 's/^Version: \([0-9]*:\)\{0,1\}\(.*\)-[^-]*$/\2/p' ./*.dsc | sed 's/[+~]dfsg.*//')
    [ "$geholt" = "$2" ] || abbruch "The archive has $1 $geholt, but installed here is $2; bring the system up to date."
    dpkg-source --extract ./*.dsc quelle >protokoll 2>&1 || verlauf "$1 cannot be unpacked."
}

# verlauf SENTENCE: ends with the last lines of the log.
verlauf() {
    mkdir -p "$vorrat"
    cp protokoll "$vorrat/fehlschlag.log"
    tail -n 30 protokoll >&2
    abbruch "$1 The whole log: $vorrat/fehlschlag.log"
}

# The log of a build; on the screen a line every five percent of it.
fortschritt() {
    tee -a protokoll | awk -v name="$1" '
        match($0, /^\[[0-9]+\/[0-9]+\]/) {
            split(substr($0, 2, RLENGTH - 2), zahl, "/")
            jetzt = int(20 * zahl[1] / zahl[2])
            if (jetzt > zuletzt) { printf "  %s: %d of %d\n", name, zahl[1], zahl[2]; fflush() }
            zuletzt = jetzt
        }'
}

# Licence texts that must go along with an executable which these libraries are part of.
qt_lizenzen() {
    mkdir -p "$1/lizenzen/qt"
    cp quelle/debian/copyright "$1/lizenzen/qt/copyright"
    cp quelle/LICENSES/LGPL-3.0-only.txt quelle/LICENSES/GPL-3.0-only.txt quelle/LICENSES/GPL-2.0-only.txt "$1/lizenzen/qt/"
    for teil in double-conversion freetype harfbuzz-ng libpng md4c pcre2 pixman zlib; do
        for datei in LICENSE LICENCE COPYING LICENSE.txt LICENSE.md LICENCE-SLJIT docs/FTL.TXT; do
            [ ! -f "quelle/src/3rdparty/$teil/$datei" ] ||
                cp "quelle/src/3rdparty/$teil/$datei" "$1/lizenzen/qt/$teil-$(basename "$datei")"
        done
    done
}

# Both are called within a folder of their own that holds ./quelle, and leave what is to stay in ./fertig/NAME. The prefix they
# are told is no real place: it ends up in the executables, and no user's home has any business there.
qt_bauen() {
    # Options are left to be split at their blanks.
    # shellcheck disable=SC2086
    cmake -S quelle -B bau -G Ninja -DCMAKE_TOOLCHAIN_FILE="$baum/cmake/windows.cmake" \
        -DCMAKE_INSTALL_PREFIX=/qt $qt_optionen >>protokoll 2>&1 || verlauf "Qt cannot be configured."
    { cmake --build bau --parallel "$kerne" 2>&1 || touch gescheitert; } | fortschritt Qt
    [ ! -e gescheitert ] || verlauf "Qt cannot be built."
    DESTDIR=$PWD/fertig cmake --install bau >>protokoll 2>&1 || verlauf "Qt cannot be built."
    qt_lizenzen fertig/qt
}
mpg123_bauen() {
    mkdir bau
    # shellcheck disable=SC2086
    {
        (cd bau && ../quelle/configure --prefix=/mpg123 CC="$ziel-gcc-posix" $mpg123_optionen && make -j"$kerne" &&
            make install DESTDIR="$PWD/../fertig") >>protokoll 2>&1
    } || verlauf "mpg123 cannot be built."
    mkdir -p fertig/mpg123/lizenzen/mpg123
    cp quelle/debian/copyright quelle/COPYING fertig/mpg123/lizenzen/mpg123/
}

# bringen NAME SOURCE-PACKAGE FOLDER VERSION HINT
bringen() {
    if [ ! -d "$3" ]; then
        echo "Cross-building $1 $4 for Windows ($5), into $3"
        quelle "$2" "$4"
        "$1_bauen"
        mv "fertig/$1" "$3"
        cd "$baum"
        rm -rf "${arbeit:?}/$2"
    fi
    mkdir -p "$links"
    ln -sfn "$3" "$links/$1"
}

qt_version=$(version qt6-base-dev)
mpg123_version=$(version libmpg123-0)
qt=$(ordner qt "$qt_version" "$qt_optionen")
mpg123=$(ordner mpg123 "$mpg123_version" "$mpg123_optionen")

# One at a time; who waited finds the work done. The lock goes with the process, however that ends.
if [ ! -d "$qt" ] || [ ! -d "$mpg123" ]; then
    command -v flock >/dev/null || abbruch "flock is missing."
    mkdir -p "$vorrat"
    exec 9>"$vorrat/sperre"
    if ! flock -n 9; then
        echo "Another build of these libraries is under way; waiting for it."
        flock 9
    fi
    rm -rf "$vorrat"/arbeit.*
    arbeit=$(mktemp -d "$vorrat/arbeit.XXXXXX")
    trap 'rm -rf "$arbeit"' EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
fi

for teil in "${@:-mpg123 qt}"; do
    for name in $teil; do
        case $name in
            mpg123) bringen mpg123 mpg123 "$mpg123" "$mpg123_version" "less than a minute" ;;
            qt) bringen qt qt6-base "$qt" "$qt_version" "a quarter of an hour on two cores, this once" ;;
            *) abbruch "unknown library '$name' (known: mpg123, qt)" ;;
        esac
    done
done
