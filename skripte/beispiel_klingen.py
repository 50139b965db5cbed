#!/usr/bin/env python3
"""Makes the tunes in beispiel/: composed, synthesised, encoded and tagged here; no foreign sound is in them.

Needs Python 3 without further modules and the encoder "lame". The MP3 files are committed, so this is only run to
change a tune:

    python3 skripte/beispiel_klingen.py [FOLDER]

Every file is MPEG 1 Layer III at a constant bit rate, 44100 Hz, begins with a frame (no ID3v2) and ends with a
128-byte ID3v1 tag in Windows-1252. The tag is written here and not by the encoder, whose idea of blanks and umlauts
differs from one version to the next.
"""

import array
import math
import os
import subprocess
import sys
import tempfile

RATE = 44100

HALBTON = {"c": 0, "d": 2, "e": 4, "f": 5, "g": 7, "a": 9, "b": 10, "h": 11}


def frequenz(name):
    """"c4" is middle C, "fis4" and "es4" a semitone up or down."""
    buchstabe, rest = name[0], name[1:]
    versatz = 0
    if rest.startswith("is"):
        versatz, rest = 1, rest[2:]
    elif rest.startswith("es"):
        versatz, rest = -1, rest[2:]
    elif rest.startswith("s"):
        versatz, rest = -1, rest[1:]
    ton = 12 * (int(rest) + 1) + HALBTON[buchstabe] + versatz
    return 440.0 * 2.0 ** ((ton - 69) / 12.0)


# An instrument: strengths of the harmonics, attack in seconds, how fast it dies away (1/s), vibrato depth.
KLANG = {
    "flöte": ([1.0, 0.25, 0.08, 0.03], 0.04, 0.6, 0.004),
    "zupf": ([1.0, 0.6, 0.4, 0.22, 0.12, 0.06], 0.004, 3.2, 0.0),
    "glocke": ([1.0, 0.0, 0.45, 0.0, 0.25, 0.12], 0.003, 2.0, 0.0),
    "orgel": ([1.0, 0.5, 0.0, 0.3, 0.0, 0.1], 0.03, 0.15, 0.001),
    "bass": ([1.0, 0.35, 0.1], 0.01, 1.4, 0.0),
}


def stimme(spur, noten, schlag, klang, stärke, ort):
    """Adds a voice ("c4:1 e4:1/2 -:1", lengths in beats) to the stereo track; ort is 0 (left) to 1 (right)."""
    obertöne, anstieg, abfall, vibrato = KLANG[klang]
    links, rechts = spur
    lautstärke_l = stärke * math.cos(ort * math.pi / 2)
    lautstärke_r = stärke * math.sin(ort * math.pi / 2)
    beginn = 0.0
    for note in noten.split():
        name, länge = note.split(":")
        zähler, _, nenner = länge.partition("/")
        dauer = schlag * float(zähler) / float(nenner or 1)
        if name != "-":
            f = frequenz(name)
            nachklang = 0.25
            erste = int(beginn * RATE)
            anzahl = min(int((dauer + nachklang) * RATE), len(links) - erste)
            for i in range(anzahl):
                t = i / RATE
                phase = 2 * math.pi * f * t + vibrato * f / 5 * math.sin(2 * math.pi * 5 * t)
                w = 0.0
                for n, a in enumerate(obertöne, start=1):
                    if a:
                        w += a * math.sin(n * phase)
                h = math.exp(-abfall * t)
                if t < anstieg:
                    h *= t / anstieg
                if t > dauer:
                    h *= max(0.0, 1.0 - (t - dauer) / nachklang)
                links[erste + i] += w * h * lautstärke_l
                rechts[erste + i] += w * h * lautstärke_r
        beginn += dauer


STÜCKE = [
    {
        "datei": "Kartenwalzer.mp3", "titel": "Kartenwalzer", "künstler": "Das Zettelkasten-Trio",
        "album": "Alphabetisch abgelegt", "jahr": "2024", "bemerkung": "Walzer in G", "genre": 32,
        "rate": 96, "mono": False, "schlag": 0.38, "dauer": 18.8,
        "stimmen": [
            ("g4:2 h4:1 d5:2 h4:1 c5:1 h4:1 a4:1 d4:3 fis4:2 a4:1 c5:2 a4:1 h4:1 a4:1 g4:1 h4:3 "
             "e5:2 d5:1 c5:2 a4:1 d5:1 c5:1 h4:1 g4:3 a4:1 h4:1 c5:1 fis4:2 a4:1 g4:6", "flöte", 0.5, 0.35),
            ("g2:3 g2:3 a2:3 d2:3 d2:3 d2:3 g2:3 g2:3 c3:3 c3:3 g2:3 e2:3 d2:3 d2:3 g2:6", "bass", 0.55, 0.5),
            (" ".join("-:1 %s:1 %s:1" % (a, a) for a in
                      "h3 h3 c4 c4 c4 c4 h3 h3 c4 c4 h3 h3 c4 c4 h3".split()), "zupf", 0.22, 0.75),
        ],
    },
    {
        "datei": "Morgens über den Dächern.mp3", "titel": "Morgens über den Dächern",
        "künstler": "Käthe Öhlmann", "album": "Grüße vom Fensterbrett", "jahr": "2023",
        "bemerkung": "für Glocken", "genre": 80, "rate": 64, "mono": True, "schlag": 0.38, "dauer": 12.8,
        "stimmen": [
            ("e5:1 h4:1 g4:1 h4:1 e5:1 fis5:1 g5:2 d5:1 a4:1 fis4:1 a4:1 d5:1 e5:1 fis5:2 "
             "c5:1 g4:1 e4:1 g4:1 c5:1 d5:1 e5:2 h4:1 d5:1 fis5:1 e5:1 e5:4", "glocke", 0.5, 0.5),
            ("e3:4 e3:4 d3:4 d3:4 c3:4 c3:4 h2:4 e3:4", "orgel", 0.22, 0.5),
        ],
    },
    {
        "datei": "Schublade A bis K.mp3", "titel": "Schublade A bis K", "künstler": "Das Zettelkasten-Trio",
        "album": "Alphabetisch abgelegt", "jahr": "2024", "bemerkung": "", "genre": 8,
        "rate": 112, "mono": False, "schlag": 0.3, "dauer": 16.0,
        "stimmen": [
            ("-:1/2 f4:1/2 a4:1/2 c5:1 d5:1/2 c5:1 a4:1/2 g4:1/2 f4:1 d4:1 -:1 "
             "-:1/2 g4:1/2 b4:1/2 d5:1 f5:1/2 d5:1 c5:1/2 b4:1/2 g4:1 e4:1 -:1 "
             "-:1/2 a4:1/2 c5:1/2 e5:1 f5:1/2 e5:1 c5:1/2 a4:1/2 d5:1 c5:1 -:1 "
             "b4:1/2 a4:1/2 g4:1/2 f4:1/2 e4:1 g4:1 f4:4 "
             "-:1/2 f4:1/2 a4:1/2 c5:1 d5:1/2 c5:1 f5:1/2 e5:1/2 d5:1 c5:1 -:1 "
             "b4:1/2 c5:1/2 d5:1/2 b4:1/2 g4:1 e4:1 f4:4", "zupf", 0.55, 0.3),
            (" ".join("f2:1 a2:1 c3:1 d3:1 g2:1 b2:1 c3:1 e2:1".split() * 6) + " f2:4", "bass", 0.6, 0.55),
            ("-:8 " + " ".join("-:1/2 c4:1/2 -:1/2 d4:1/2 -:1/2 e4:1/2 -:1/2 c4:1/2".split() * 9), "orgel", 0.12, 0.8),
        ],
    },
    {
        "datei": "Laternenlied für zwei.mp3", "titel": "Laternenlied für zwei", "künstler": "Jörg & Änne Süß",
        "album": "Straßenlicht", "jahr": "2022", "bemerkung": "Flöte und Zupfgeige", "genre": 80,
        "rate": 80, "mono": False, "schlag": 0.5, "dauer": 19.9,
        "stimmen": [
            ("a4:1 d5:3/2 cis5:1/2 d5:1 e5:1 f5:2 e5:1 d5:1 c5:3/2 b4:1/2 a4:1 g4:1 a4:3 "
             "a4:1 b4:3/2 c5:1/2 d5:1 f5:1 e5:2 d5:1 cis5:1 d5:3/2 e5:1/2 cis5:1 a4:1 d5:4 a4:2 d5:4",
             "flöte", 0.45, 0.25),
            ("-:1 " + " ".join("%s3:1/2 %s4:1/2 %s4:1/2 %s4:1/2" % t for t in
                                [("d", "d", "f", "a"), ("d", "d", "f", "a"), ("b", "d", "f", "d"), ("d", "d", "f", "a"),
                                 ("c", "c", "e", "g"), ("c", "c", "e", "g"), ("f", "c", "f", "a"), ("f", "c", "f", "a"),
                                 ("g", "d", "g", "d"), ("b", "d", "f", "d"), ("a", "e", "g", "cis"), ("a", "e", "g", "cis"),
                                 ("d", "d", "f", "a"), ("a", "e", "g", "cis"), ("d", "d", "f", "a"), ("d", "d", "f", "a"),
                                 ("d", "d", "a", "f")]) + " d3:4", "zupf", 0.32, 0.7),
        ],
    },
    {
        "datei": "Regen im Treppenhaus.mp3", "titel": "Regen im Treppenhaus", "künstler": "Käthe Öhlmann",
        "album": "Grüße vom Fensterbrett", "jahr": "2023", "bemerkung": "leise", "genre": 26,
        "rate": 64, "mono": True, "schlag": 0.26, "dauer": 10.5,
        "stimmen": [
            ("a5:1 e5:1 c5:1 e5:1 g5:1 d5:1 h4:1 d5:1 f5:1 c5:1 a4:1 c5:1 e5:1 h4:1 gis4:1 h4:1 "
             "a5:1 e5:1 c5:1 e5:1 h5:1 g5:1 d5:1 g5:1 c5:1 f5:1 a5:1 f5:1 e5:1 d5:1 c5:1 h4:1 a4:6", "zupf", 0.5, 0.5),
            ("a2:4 g2:4 f2:4 e2:4 a2:4 g2:4 f2:4 e2:4 a2:6", "orgel", 0.25, 0.5),
        ],
    },
    {
        # Ends while one watches: for trying out what happens at the end of a song.
        "datei": "Kurzes Klingeln.mp3", "titel": "Kurzes Klingeln", "künstler": "Käthe Öhlmann",
        "album": "Grüße vom Fensterbrett", "jahr": "2023", "bemerkung": "3 Sekunden", "genre": 80,
        "rate": 64, "mono": True, "schlag": 0.3, "dauer": 3.0,
        "stimmen": [("d5:1 fis5:1 a5:1 d6:1 a5:1 fis5:1 d5:2", "glocke", 0.6, 0.5)],
    },
]


def klinge(stück):
    """Two channels of floats, faded out at the end and levelled to the same peak for every tune."""
    anzahl = int(stück["dauer"] * RATE)
    spur = ([0.0] * anzahl, [0.0] * anzahl)
    for noten, klang, stärke, ort in stück["stimmen"]:
        stimme(spur, noten, stück["schlag"], klang, stärke, ort)
    spitze = max(max(map(abs, kanal)) for kanal in spur)
    ausklang = int(0.4 * RATE)
    for kanal in spur:
        for i in range(anzahl):
            kanal[i] *= 0.8 / spitze
            if anzahl - i < ausklang:
                kanal[i] *= (anzahl - i) / ausklang
    return spur


def wav(spur, mono):
    links, rechts = spur
    if mono:
        werte = array.array("h", (int(32767 * (l + r) / 2) for l, r in zip(links, rechts)))
        kanäle = 1
    else:
        werte = array.array("h", (int(32767 * w) for paar in zip(links, rechts) for w in paar))
        kanäle = 2
    if sys.byteorder == "big":
        werte.byteswap()
    daten = werte.tobytes()
    kopf = b"RIFF" + (36 + len(daten)).to_bytes(4, "little") + b"WAVEfmt " + (16).to_bytes(4, "little")
    kopf += (1).to_bytes(2, "little") + kanäle.to_bytes(2, "little") + RATE.to_bytes(4, "little")
    kopf += (RATE * kanäle * 2).to_bytes(4, "little") + (kanäle * 2).to_bytes(2, "little") + (16).to_bytes(2, "little")
    return kopf + b"data" + len(daten).to_bytes(4, "little") + daten


def id3v1(stück):
    """The tag's 128 bytes: fields of 30 bytes (the year 4), filled up with zero bytes."""
    def feld(text, länge):
        return text.encode("cp1252")[:länge].ljust(länge, b"\0")
    return (b"TAG" + feld(stück["titel"], 30) + feld(stück["künstler"], 30) + feld(stück["album"], 30)
            + feld(stück["jahr"], 4) + feld(stück["bemerkung"], 30) + bytes([stück["genre"]]))


def main():
    hier = os.path.dirname(os.path.abspath(__file__))
    ziel = sys.argv[1] if len(sys.argv) > 1 else os.path.join(hier, "..", "beispiel")
    os.makedirs(ziel, exist_ok=True)
    with tempfile.TemporaryDirectory() as ablage:
        for stück in STÜCKE:
            quelle = os.path.join(ablage, "stück.wav")
            roh = os.path.join(ablage, "stück.mp3")
            with open(quelle, "wb") as datei:
                datei.write(wav(klinge(stück), stück["mono"]))
            subprocess.run(["lame", "--quiet", "--cbr", "-b", str(stück["rate"]), "--resample", "44.1",
                            "-m", "m" if stück["mono"] else "j", "--noreplaygain", quelle, roh], check=True)
            with open(roh, "rb") as datei:
                mp3 = datei.read()
            # 0xFB: MPEG 1, Layer III, no checksum.
            if mp3[:2] != b"\xff\xfb":
                sys.exit("%s does not begin with the expected frame" % stück["datei"])
            with open(os.path.join(ziel, stück["datei"]), "wb") as datei:
                datei.write(mp3 + id3v1(stück))
            print("%-32s %6.1f s %7d bytes" % (stück["datei"], stück["dauer"], len(mp3) + 128))


if __name__ == "__main__":
    main()
