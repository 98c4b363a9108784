#!/usr/bin/env python3
"""Makes the icons of the media in resources/icons anew: draw.py resources/icons

Each is a picture of a disc, a tape or a book over a short label. The letters are strokes, so that no font matters.
"""
import sys
from pathlib import Path

# Strokes on a grid four wide and six high, the origin at the upper left corner.
LETTERS = {
    "A": "M0 6L2 0L4 6M.8 4H3.2",
    "B": "M0 0V6H2.4A1.6 1.6 0 0 0 2.4 2.8H0M0 0H2A1.4 1.4 0 0 1 2 2.8",
    "C": "M4 1A2.4 3 0 1 0 4 5",
    "D": "M0 0V6H1.4A2.6 3 0 0 0 1.4 0Z",
    "E": "M4 0H0V6H4M0 3H3.2",
    "G": "M4 1A2.4 3 0 1 0 4 5V3.2H2.4",
    "H": "M0 0V6M4 0V6M0 3H4",
    "I": "M2 0V6",
    "L": "M0 0V6H3.8",
    "M": "M0 6V0L2 3.6L4 0V6",
    "N": "M0 6V0L4 6V0",
    "R": "M0 6V0H2.2A1.6 1.6 0 0 1 2.2 3.2H0M2 3.2L4 6",
    "S": "M3.8 1C3.4 .2 2.8 0 2 0C.8 0 .2 .6 .2 1.5C.2 3.6 3.9 2.4 3.9 4.5C3.9 5.4 3.2 6 2 6C1.1 6 .4 5.7 0 5",
    "T": "M0 0H4M2 0V6",
    "V": "M0 0L2 6L4 0",
    "W": "M0 0L1 6L2 2L3 6L4 0",
    "X": "M0 0L4 6M4 0L0 6",
    "-": "M1 3.2H3",
}

DISC = '<circle cx="24" cy="16" r="14"/><circle cx="24" cy="16" r="4"/><path d="M24 7A9 9 0 0 1 33 16"/>'
RINGS = '<circle cx="24" cy="16" r="14"/><circle cx="24" cy="16" r="10"/><circle cx="24" cy="16" r="4"/>'
SHINE = '<circle cx="24" cy="16" r="14"/><circle cx="24" cy="16" r="4"/><path d="M16 8L21 13M27 19L32 24"/>'
PEN = '<path d="M34 25A14 14 0 1 1 38 17"/><circle cx="24" cy="16" r="4"/><path d="M29 28L30 24L39 15L42 18L33 27Z"/>'
VIDEO = ('<rect x="6" y="4" width="36" height="24" rx="2"/><circle cx="16" cy="16" r="5"/>'
         '<circle cx="32" cy="16" r="5"/><path d="M21 21H27"/>')
CASSETTE = ('<rect x="7" y="5" width="34" height="22" rx="3"/><circle cx="18" cy="14" r="3"/>'
            '<circle cx="30" cy="14" r="3"/><path d="M21 14H27M14 27L17 21H31L34 27"/>')
SQUARE = '<rect x="9" y="2" width="30" height="28" rx="2"/><circle cx="24" cy="14" r="8"/><path d="M18 26H30"/>'
BOOK = '<path d="M24 6C20 3 14 3 8 4V27C14 26 20 26 24 29C28 26 34 26 40 27V4C34 3 28 3 24 6V29"/>'
FILM = ('<rect x="7" y="4" width="34" height="24" rx="2"/><path d="M14 4V28M34 4V28M7 10H14M7 16H14M7 22H14'
        'M34 10H41M34 16H41M34 22H41"/>')

ICONS = {
    "DVDVideo": (DISC, "DVD"),
    "BluRay": (RINGS, "BD"),
    "HDDVD": (SHINE, "HD"),
    "DVDAudio": (DISC, "DVD-A"),
    "Manga": (BOOK, "MANGA"),
    "LD": (RINGS, "LD"),
    "CD": (SHINE, "CD"),
    "VHS": (VIDEO, "VHS"),
    "SACD": (RINGS, "SACD"),
    "DVHS": (VIDEO, "D-VHS"),
    "DivX": (FILM, "DIVX"),
    "Xvid": (FILM, "XVID"),
    "VCD": (SHINE, "VCD"),
    "CDi": (SHINE, "CD-I"),
    "MD": (SQUARE, "MD"),
    "CDR": (PEN, "CD-R"),
    "CDRW": (PEN, "CD-RW"),
    "DCC": (CASSETTE, "DCC"),
    "DAT": (CASSETTE, "DAT"),
    "CC": (CASSETTE, "MC"),
}

SIDE = 48
LETTER_WIDTH = 4
GAP = 2
SCALE = 1.6
LABEL_TOP = 36


def label(text):
    width = (len(text) * (LETTER_WIDTH + GAP) - GAP) * SCALE
    left = (SIDE - width) / 2
    strokes = []
    for place, letter in enumerate(text):
        x = left + place * (LETTER_WIDTH + GAP) * SCALE
        strokes.append(f'<path transform="translate({x:g} {LABEL_TOP}) scale({SCALE})" stroke-width="1.1" '
                       f'd="{LETTERS[letter]}"/>')
    return "\n    ".join(strokes)


def drawing(shape, text):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{SIDE}" height="{SIDE}" viewBox="0 0 {SIDE} {SIDE}">\n'
            f'  <g fill="none" stroke="currentColor" stroke-width="2" stroke-linecap="round" '
            f'stroke-linejoin="round">\n    {shape}\n    {label(text)}\n  </g>\n</svg>\n')


def main():
    folder = Path(sys.argv[1])
    for name, (shape, text) in ICONS.items():
        (folder / f"medium_{name}.svg").write_text(drawing(shape, text), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
