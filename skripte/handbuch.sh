#!/bin/sh
# Makes docs/handbuch.md a page for the browser: build/handbuch/handbuch.html, its pictures beside it in bilder/. They come
# from the tour's last run, or else from docs/bilder; one that is in neither is left out of the page, and named. Headings get
# anchors in plain letters ("Für Größen" is #fuer-groessen), so that the program can open a chapter.
set -eu
wurzel=$(cd "$(dirname "$0")/.." && pwd)
ziel=$wurzel/build/handbuch
quelle=$wurzel/docs/handbuch.md
sh "$wurzel/skripte/einrichten.sh" handbuch

rm -rf "$ziel"
mkdir -p "$ziel/bilder"
sed -n 's|.*](bilder/\([^)]*\)).*|\1|p' "$quelle" | sort -u | while read -r bild; do
    for ordner in "$wurzel/build/tour" "$wurzel/docs/bilder"; do
        if [ -s "$ordner/$bild" ]; then
            cp "$ordner/$bild" "$ziel/bilder/"
            break
        fi
    done
    [ -e "$ziel/bilder/$bild" ] || echo "handbuch.sh: no picture $bild (make tour draws it); left out" >&2
done

# The headings of the second order are listed behind the first paragraphs, before the first of them.
cmark-gfm --extension table "$quelle" >"$ziel/rumpf"
awk -v ordner="$ziel/" -v stil="$wurzel/docs/handbuch.css" '
function anker(text) {
    gsub(/<[^>]*>/, "", text)
    gsub(/ä|Ä/, "ae", text); gsub(/ö|Ö/, "oe", text); gsub(/ü|Ü/, "ue", text); gsub(/ß/, "ss", text)
    text = tolower(text)
    gsub(/[^a-z0-9]+/, "-", text)
    gsub(/^-|-$/, "", text)
    return text
}
NR == FNR {
    if (/^<h2>/) { text = $0; gsub(/<[^>]*>/, "", text); inhalt = inhalt "<li><a href=\"#" anker(text) "\">" text "</a></li>\n" }
    next
}
FNR == 1 {
    print "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">"
    print "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>Handbuch der Tonkartei</title>\n<style>"
    while ((getline zeile < stil) > 0) print zeile
    print "</style>\n</head>\n<body>"
}
/^<h[23]>/ {
    if (/^<h2>/ && !gelistet++) print "<nav aria-label=\"Inhalt\">\n<ol>\n" inhalt "</ol>\n</nav>"
    sub(/>/, " id=\"" anker($0) "\">")
}
/^<p><img src="bilder\// {
    split($0, teile, "\"")
    if ((getline zeile < (ordner teile[2])) < 0) next
    close(ordner teile[2])
    print "<figure><img src=\"" teile[2] "\" alt=\"" teile[4] "\" loading=\"lazy\"><figcaption>" teile[4] "</figcaption></figure>"
    next
}
{ print }
END { print "</body>\n</html>" }
' "$ziel/rumpf" "$ziel/rumpf" >"$ziel/handbuch.html"
rm "$ziel/rumpf"

# A link within the page that leads nowhere is a fault of the text.
leer=$(grep -o 'href="#[^"]*"' "$ziel/handbuch.html" | sed 's/.*#\(.*\)"/\1/' | sort -u | while read -r marke; do
    grep -q " id=\"$marke\"" "$ziel/handbuch.html" || printf ' #%s' "$marke"
done)
if [ -n "$leer" ]; then
    echo "handbuch.sh: links that lead nowhere:$leer" >&2
    exit 1
fi
echo "build/handbuch/handbuch.html"
