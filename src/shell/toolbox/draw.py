#!/usr/bin/env python3
"""Draws the toolbox bitmaps: 16 x 16 pixels, 16 colours, from the pictures below. Run it in this folder."""
import struct

PALETTE = {  # letter: index, and the system's 16 colours in the order of that index
    'k': 0, 'r': 1, 'g': 2, 'y': 3, 'b': 4, 'm': 5, 'c': 6, '.': 7,
    '-': 8, 'R': 9, 'G': 10, 'Y': 11, 'B': 12, 'M': 13, 'C': 14, 'w': 15,
}
COLOURS = [  # red, green, blue
    (0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128), (0, 128, 128), (192, 192, 192),
    (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0), (0, 0, 255), (255, 0, 255), (0, 255, 255), (255, 255, 255),
]

PICTURES = {
    # A flat button: one thin border, a caption, the pointer over it. The bottom left pixel's colour is
    # what a toolbox takes for transparent.
    'qvFlatCommand': """
        ................
        ................
        bbbbbbbbbbbbbbbb
        bwwwwwwwwwwwwwwb
        bwwkkwwkkwkwkwwb
        bwkwwkwkwkkwkwwb
        bwkwwkwkwkkkwwwb
        bwkwwkwkkwkwkwwb
        bwwkkwwkwwkwkwwb
        bwwwwwwwwwwkwwwb
        bwwwwwwwwwwkkwwb
        bbbbbbbbbbbkwkbb
        ...........kwwk.
        ...........kwwwk
        ...........kwkk.
        ...........kk...
    """,
    # The same button with a picture, a sun, before its caption.
    'qvImageCommand': """
        ................
        ................
        bbbbbbbbbbbbbbbb
        bwwwwwwwwwwwwwwb
        bwwwywwwwwwwwwwb
        bwywywywwwwwwwwb
        bwwYYYwwwwkwkwwb
        bwyYYYywkwkkwwwb
        bwwYYYwwwwkkkwwb
        bwywywywwwkwkkwb
        bwwwywwwwwkwwkkb
        bwwwwwwwwwkwwwkk
        bbbbbbbbbbkwwwwk
        ..........kwkkkk
        ..........kkwk..
        ..........k.kk..
    """,
    # A tool bar's button, raised by its light and dark edges, with a sheet of paper.
    'FlatToolButton': """
        ................
        .wwwwwwwwwwwww-.
        .w............-.
        .w.kkkkkkk....-.
        .w.kwwwwwkk...-.
        .w.kwwwwwkwk..-.
        .w.kwBBwwkkk..-.
        .w.kwwwwwwwk..-.
        .w.kwBBBBBwk..-.
        .w.kwwwwwwwk..-.
        .w.kwBBBBBwk..-.
        .w.kwwwwwwwk..-.
        .w.kkkkkkkkk..-.
        .w............-.
        .--------------.
        ................
    """,
    # A chosen option button, the pointer over it.
    'qvFlatOption': """
        ................
        ................
        ......bbbb......
        ....bbwwwwbb....
        ...bwwwwwwwwb...
        ...bwwwwwwwwb...
        ..bwwwwkkwwwwb..
        ..bwwwkkkkwwwb..
        ..bwwwkkkkkwwb..
        ..bwwwwkkwkkwb..
        ...bwwwwwwkwkb..
        ...bwwwwwwkwwk..
        ....bbwwwwkwwwk.
        ......bbbbkwkk..
        ..........kk....
        ................
    """,
    # A check box that is set, the pointer over it.
    'qvFlatCheck': """
        ................
        ................
        ..bbbbbbbbbbbb..
        ..bwwwwwwwwwwb..
        ..bwwwwwwwwwkb..
        ..bwwwwwwwwkkb..
        ..bwkwwwwwkkkb..
        ..bwkkwwwkkkwb..
        ..bwkkkwkkkwwb..
        ..bwwkkkkkkwwb..
        ..bwwwkkkwkkwb..
        ..bwwwwkwwkwkb..
        ..bwwwwwwwkwwk..
        ..bbbbbbbbkwwwk.
        ..........kwkk..
        ..........kk....
    """,
}


def bitmap(picture):
    rows = picture.split()
    assert len(rows) == 16 and all(len(row) == 16 for row in rows)
    pixels = b''.join(
        bytes(PALETTE[row[x]] << 4 | PALETTE[row[x + 1]] for x in range(0, 16, 2)) for row in reversed(rows))
    table = b''.join(struct.pack('<4B', b, g, r, 0) for r, g, b in COLOURS)
    info = struct.pack('<IiiHHIIiiII', 40, 16, 16, 1, 4, 0, len(pixels), 0, 0, 16, 16)
    start = 14 + len(info) + len(table)
    return struct.pack('<2sIHHI', b'BM', start + len(pixels), 0, 0, start) + info + table + pixels


for name, picture in PICTURES.items():
    with open(name + '.bmp', 'wb') as file:
        file.write(bitmap(picture))
