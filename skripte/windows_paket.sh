#!/bin/sh
# Makes of the Windows build what goes to its users: both executables, stripped, in build/windows, and a zip of them with the
# licence texts that static linking asks for.
set -eu
cd "$(dirname "$0")/.."
bau=build/windows
version=$(sed -n 's/^project(tonkartei VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
name=Tonkartei-$version-windows

for datei in Tonkartei.exe WinAmp.Exe; do
    x86_64-w64-mingw32-strip -o "$bau/$datei" "$bau/bin/$datei"
done

rm -rf "${bau:?}/$name" "$bau/$name.zip"
mkdir -p "$bau/$name/Lizenzen/Compiler"
cp "$bau/Tonkartei.exe" "$bau/WinAmp.Exe" "$bau/$name"
cp LICENSE "$bau/$name/Lizenzen/Tonkartei.txt"
cp -R build/windows-vorrat/qt/lizenzen/qt build/windows-vorrat/mpg123/lizenzen/mpg123 "$bau/$name/Lizenzen"
cp /usr/share/doc/qt6-translations-l10n/copyright "$bau/$name/Lizenzen/qt/translations-copyright"
for paket in gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev; do
    cp "/usr/share/doc/$paket/copyright" "$bau/$name/Lizenzen/Compiler/$paket.txt"
done
cp /usr/share/common-licenses/GPL-3 "$bau/$name/Lizenzen/Compiler/GPL-3.txt"
# Which source these libraries are from, so that whoever likes can link the program to others.
version_von() {
    dpkg-query -W -f '${source:Package} ${source:Version}' "$1"
}
sed -e "s/@VERSION@/$version/" -e "s/@QT@/$(version_von qt6-base-dev)/" -e "s/@MPG123@/$(version_von libmpg123-0)/" \
    -e "s/@UEBERSETZUNG@/$(version_von qt6-translations-l10n)/" -e "s/@COMPILER@/$(version_von g++-mingw-w64-x86-64-posix)/" \
    -e 's/$/\r/' paket/windows/lizenzen.txt.in >"$bau/$name/Lizenzen/Liesmich.txt"

(cd "$bau" && zip -q -9 -X -r "$name.zip" "$name")
rm -rf "${bau:?}/$name"
echo "$bau/Tonkartei.exe, $bau/WinAmp.Exe, $bau/$name.zip"
