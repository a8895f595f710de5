#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes service_icons.bmp and the icon files from the pictures below.

The strip is a bitmap of 16 colours, 343 x 18 pixels: 19 pictures of 18 x 18 side by side and one column more.
Magenta is the background, which whoever draws the strip leaves out. An icon is a picture drawn at 16 x 16, each of
its pixels twice as wide and high. Needed only when a picture changes; the files are kept beside the script.
"""

import pathlib
import struct

PALETTE = {
    "k": (0, 0, 0), "R": (128, 0, 0), "G": (0, 128, 0), "Y": (128, 128, 0),
    "B": (0, 0, 128), "p": (128, 0, 128), "C": (0, 128, 128), "s": (192, 192, 192),
    "d": (128, 128, 128), "r": (255, 0, 0), "g": (0, 255, 0), "y": (255, 255, 0),
    "b": (0, 0, 255), ".": (255, 0, 255), "c": (0, 255, 255), "w": (255, 255, 255),
}
COLOURS = list(PALETTE)


def rows_of(picture, width=18, height=18):
    """The picture's rows, filled up with background; a row of another width is a mistake."""
    rows = picture.split()
    for row in rows:
        assert len(row) == width, (len(row), row)
    assert len(rows) <= height
    return rows + ["." * width] * (height - len(rows))


ALPHA = [".k..kk...kk", "k.k.k.k.k..", "kkk.kk..k..", "k.k.k.k.k..", "k.k.kk...kk"]
NUMBERS = [".k..kk..kk.", "kk....k...k", ".k...k...k.", ".k..k.....k", "kkk.kkk.kk."]


def pager(body, screen, text, size=18):
    """A pager: its body, and a screen with text, whose margin is left out where there is no room for it."""
    margin = screen if size >= 18 else ""
    lines = [margin + row.replace(".", screen) + margin for row in text]
    width = len(lines[0])
    lines = [screen * width] + lines + [screen * width]
    inside = [body * width] + lines + [body * width, "www" + body + "www" + body * (width - 11) + "rrrr", body * width]
    edge = "." + "k" * (width + 2) + "."
    rows = [edge] + ["k" + body + line + body + "k" for line in inside] + [edge]
    return "\n".join(["." * size] * 2 + [row.ljust(size, ".") for row in rows])


def paste(base, picture, left, top):
    """Puts one picture over another; the background shows through."""
    rows = [list(row) for row in rows_of(base)]
    for y, row in enumerate(picture.split()):
        for x, pixel in enumerate(row):
            if pixel != ".":
                rows[top + y][left + x] = pixel
    return "\n".join("".join(row) for row in rows)


GLOBE = """
......kkkkk.......
....kkbGGGbkk.....
...kbbGGGGbbbk....
..kbGGGGGbbbbbk...
..kGGGGGbbbbGbk...
.kbGGGGbbbbGGGbk..
.kbbGGbbbbbGGGGk..
.kbbbGGbbbbbGGGk..
.kbbbbGGGbbbGGbk..
.kbbbbGGGGbbbGbk..
..kbbbbGGGGbbbk...
..kbbbbGGGbbbbk...
...kbbbGGbbbbk....
....kkbGbbbkk.....
......kkkkk.......
"""

ENVELOPE = """
kkkkkkkkkkkk
kkwwwwwwwwkk
kwkwwwwwwkwk
kwwkwwwwkwwk
kwwwkkkkwwwk
kwkkwwwwkkwk
kkwwwwwwwwkk
kkkkkkkkkkkk
"""

# In the order of the strip. A row that is not written is background.
PICTURES = [
    ("group of people", """
..................
...kkkk....kkkk...
..kYYYYk..kYYYYk..
..kyyyyk..kyyyyk..
..kykykkkkkkykyk..
..kyyykYYYYkyyyk..
...kkkYYyyYYkkk...
..kGGkyyyyyykGGk..
.kGGGkykyykykGGGk.
.kGGGkyyyyyykGGGk.
.kGGGGkyyyykGGGGk.
.kGGGkkkyykkkGGGk.
.kGGkrrkyykrrkGGk.
.kGkrrrrkkrrrrkGk.
.kkrrrrrrrrrrrrkk.
..krrkrrrrrrkrrk..
..krrkrrrrrrkrrk..
..kkkkkkkkkkkkkk..
"""),
    ("user", """
..................
......kkkkk.......
.....kYYYYYk......
....kYyyyyyYk.....
....kYyyyyyYk.....
....kyykykyyk.....
....kyyyyyyyk.....
....kyykkkyyk.....
.....kyyyyyk......
......kyyyk.......
....kkkyyykkk.....
...kbbbkykbbbk....
..kbbbbbkbbbbbk...
..kbbbbbbbbbbbk...
..kbbkbbbbbkbbk...
..kbbkbbbbbkbbk...
..kkkkkkkkkkkkk...
"""),
    ("folder", """
..................
..................
...kkkkk..........
..kyyyyyk.........
.kyyyyyyykkkkkk...
.kywwwwwwwwwwwyk..
.kwyyyyyyyyyyyyk..
.kwyykkkkkkkkkkkk.
.kwykyyyyyyyyyyyk.
.kwykywwwwwwwwyYk.
.kwkyyyyyyyyyyYk..
.kwkyyyyyyyyyyYk..
.kkyyyyyyyyyyYk...
.kkyYYYYYYYYYYk...
.kkkkkkkkkkkkk....
"""),
    ("alert", """
..................
........kk........
.......kyyk.......
.......kyyk.......
......kyyyyk......
......kyyyyk......
.....kyykkyyk.....
.....kyykkyyk.....
....kyyykkyyyk....
....kyyykkyyyk....
...kyyyykkyyyyk...
...kyyyykkyyyyk...
..kyyyyyyyyyyyyk..
..kyyyyykkyyyyyk..
.kyyyyyykkyyyyyyk.
.kyyyyyyyyyyyyyyk.
.kkkkkkkkkkkkkkkk.
"""),
    ("alphanumeric pager", pager("d", "c", ALPHA)),
    ("speech", """
..................
..kkkkkkkkkkkkkk..
.kwwwwwwwwwwwwwwk.
.kwwwwwwwwwwwwwwk.
.kwwkkkkwkkkkwwwk.
.kwwwwwwwwwwwwwwk.
.kwwkkwkkkkkwkkwk.
.kwwwwwwwwwwwwwwk.
.kwwkkkkkkwkkwwwk.
.kwwwwwwwwwwwwwwk.
.kwwwwwwwwwwwwwwk.
..kkkkwwwkkkkkkk..
.....kwwk.........
.....kwk..........
.....kk...........
.....k............
"""),
    ("program", """
..................
.kkkkkkkkkkkkkkkk.
.kBBBBBBBBBBBsksk.
.kBwwwBBBBBBBkssk.
.kBBBBBBBBBBBsksk.
.kkkkkkkkkkkkkkkk.
.kwwwwwwwwwwwwwwk.
.kwwwGwwwwwwwwwwk.
.kwwwGGwwwwwwwwwk.
.kwwwGGGwwwddddwk.
.kwwwGGGGwwwwwwwk.
.kwwwGGGwwwddddwk.
.kwwwGGwwwwwwwwwk.
.kwwwGwwwwwwwwwwk.
.kwwwwwwwwwwwwwwk.
.kkkkkkkkkkkkkkkk.
"""),
    ("SNMP trap", """
..................
....kkkk..kkkkkkk.
...kyyk...kcccccks
...kyyk...kcccccks
..kyyk....kcccccks
..kyykkk..kkkkkkks
.kyyyyyk...sskssss
.kkkkyk......k....
...kyyk......k....
...kyk.......k....
..kyyk...kkkkkkkk.
..kyk...kwwwwwwwwk
..kyk...kwggwwrrwk
.kyk....kwwwwwwwwk
.kk.....kkkkkkkkkk
"""),
    ("mail", """
..................
..................
..................
.kkkkkkkkkkkkkkkk.
.kkwwwwwwwwwwwwkk.
.kwkwwwwwwwwwwkwk.
.kwwkwwwwwwwwkwwk.
.kwwwkwwwwwwkwwwk.
.kwwwwkwwwwkwwwwk.
.kwwwkwkwwkwkwwwk.
.kwwkwwwkkwwwkwwk.
.kwkwwwwwwwwwwkwk.
.kkwwwwwwwwwwwwkk.
.kwwwwwwwwwwwwwwk.
.kkkkkkkkkkkkkkkk.
"""),
    ("phone call", """
..................
..................
...kkkkkkkkkkkk...
..kRrrrrrrrrrrRk..
.kRrrrrrrrrrrrrRk.
.kRrrRkkkkkkRrrRk.
.kRrrRk....kRrrRk.
.kkkkkkkkkkkkkkkk.
....kRrrrrrrrRk...
...kRrrkkkkrrrRk..
...kRrkwkwkwkrRk..
..kRrrkkwkwkkrrRk.
..kRrrkwkwkwkrrRk.
..kRrrrkkkkkrrrRk.
..kRRRRRRRRRRRRRk.
..kkkkkkkkkkkkkkk.
"""),
    ("numeric pager", pager("B", "g", NUMBERS)),
    ("serial port", """
..................
..................
..................
.kkkkkkkkkkkkkkkk.
kssssssssssssssssk
kskkkkkkkkkkkkkksk
kskwwwwwwwwwwwwksk
kskwkwkwkwkwkwwksk
ksskwwwwwwwwwwkssk
ksskwwkwkwkwkwkssk
kssskwwwwwwwwkssdk
kssskkkkkkkkkkssdk
kdddddddddddddddk.
.kkkkkkkkkkkkkkk..
"""),
    ("wave sound", """
..................
........k.........
.......kk.....k...
......kyk..k...k..
.....kyyk...k..k..
.kkkkyyyk...k...k.
.kYyyyyyk.k..k..k.
.kYyyyyyk..k.k..k.
.kYyyyyyk..k.k..k.
.kYyyyyyk..k.k..k.
.kYyyyyyk.k..k..k.
.kkkkYyyk...k...k.
.....kYyk...k..k..
......kYk..k...k..
.......kk.....k...
........k.........
"""),
    ("online-service mail", """
..................
...kkkkkkkkkkkk...
...kkwwwwwwwwkk...
...kwkwwwwwwkwk...
...kwwkwwwwkwwk...
...kwwwkkkkwwwk...
...kwkwwwwwwkwk...
...kkwwwwwwwwkk...
...kkkkkkkkkkkk...
........kk........
.kkkkkkkkkkkkkkkk.
.kddddddddddddddk.
.kdgdrdgdydddddsk.
.kdddddddddddddsk.
.kkkkkkkkkkkkkkkk.
"""),
    ("Internet mail", paste(GLOBE, ENVELOPE, 6, 9)),
    ("script", """
..................
..kkkkkkkkkkk.....
..kwwwwwwwwwkk....
..kwbbbbwwwwkwk...
..kwwwwwwwwwkkkk..
..kwwwrrrwwwwwwk..
..kwwwwwwwwwwwwk..
..kwwwGGGGGGwwwk..
..kwwwwwwwwwwwwk..
..kwwwwwrrrrwwwk..
..kwwwwwwwwwwwwk..
..kwwwGGGwwwwwwk..
..kwwwwwwwwwwwwk..
..kwbbbwwwwwwwwk..
..kwwwwwwwwwwwwk..
..kwwwwwwwwwwwwk..
..kkkkkkkkkkkkkk..
"""),
    ("clock", """
..................
......kkkkkk......
....kkwwwwwwkk....
...kwwwwkkwwwwk...
..kwwwwwkkwwwwwk..
..kwwwwwkkwwwwwk..
.kwwwwwwkkwwwwwwk.
.kwwwwwwkkwwwwwwk.
.kwkwwwwkkwwwwkwk.
.kwkwwwwkkkkkwkwk.
.kwwwwwwwkkkkwwwk.
.kwwwwwwwwwwwwwwk.
..kwwwwwwwwwwwwk..
..kwwwwwwwwwwwwk..
...kwwwwkkwwwwk...
....kkwwwwwwkk....
......kkkkkk......
"""),
    ("service enabled", """
..................
..................
...............kk.
..............kGGk
.............kGGgk
............kGGgk.
...........kGGgk..
..........kGGgk...
.kkk.....kGGgk....
kGGGk...kGGgk.....
kgGGGk.kGGgk......
.kgGGGkGGgk.......
..kgGGGGgk........
...kgGGgk.........
....kggk..........
.....kk...........
"""),
    ("service disabled", """
..................
..kk..........kk..
.krrk........krrk.
krrRRk......krrRRk
.kRrrRk....krrRRk.
..kRrrRk..krrRRk..
...kRrrRkkrrRRk...
....kRrrRrrRRk....
.....kRrrrRRk.....
.....krrrrRRk.....
....krrRRrrRRk....
...krrRRkkRrrRk...
..krrRRk..kRrrRk..
.krrRRk....kRrrRk.
krrRRk......kRrrRk
.kRRk........kRRk.
..kk..........kk..
"""),
]


def write_strip(path):
    width, height = 343, 18
    pictures = [rows_of(picture) for _, picture in PICTURES]
    data = bytearray()
    for y in reversed(range(height)):
        row = "".join(picture[y] for picture in pictures) + "."
        values = [COLOURS.index(pixel) for pixel in row] + [0]
        data += bytes(values[x] << 4 | values[x + 1] for x in range(0, width + 1, 2))
    palette = b"".join(struct.pack("<BBBB", b, g, r, 0) for r, g, b in PALETTE.values())
    offset = 14 + 40 + len(palette)
    header = struct.pack("<2sIHHI", b"BM", offset + len(data), 0, 0, offset)
    header += struct.pack("<IiiHHIIiiII", 40, width, height, 1, 4, 0, len(data), 2835, 2835, 16, 0)
    path.write_bytes(header + palette + data)


def write_icon(path, picture):
    """A 32 x 32 icon of 16 colours with a mask, from a picture of 16 x 16."""
    rows = rows_of(picture, 16, 16)
    colours, mask = bytearray(), bytearray()
    for y in reversed(range(32)):
        row = "".join(pixel * 2 for pixel in rows[y // 2])
        values = [0 if pixel == "." else COLOURS.index(pixel) for pixel in row]
        colours += bytes(values[x] << 4 | values[x + 1] for x in range(0, 32, 2))
        bits = sum((pixel == ".") << (31 - x) for x, pixel in enumerate(row))
        mask += struct.pack(">I", bits)
    palette = b"".join(struct.pack("<BBBB", b, g, r, 0) for r, g, b in PALETTE.values())
    image = struct.pack("<IiiHHIIiiII", 40, 32, 64, 1, 4, 0, len(colours) + len(mask), 0, 0, 16, 0)
    image += palette + colours + mask
    entry = struct.pack("<HHHBBBBHHII", 0, 1, 1, 32, 32, 16, 0, 1, 4, len(image), 22)
    path.write_bytes(entry + image)


def inner(picture):
    """The 16 x 16 in the middle of a picture of the strip."""
    return "\n".join(row[1:17] for row in rows_of(picture)[1:17])


def play():
    """A triangle that points to the right."""
    return "\n".join((5 * "." + min(max(0, 2 * min(y, 15 - y) - 2), 11) * "G").ljust(16, ".") for y in range(16))


def stop():
    """A square."""
    return "\n".join([16 * "."] * 3 + ["..." + 10 * "R" + "..."] * 10 + [16 * "."] * 3)


def main():
    here = pathlib.Path(__file__).resolve().parent
    assert len(PICTURES) == 19
    write_strip(here / "service_icons.bmp")
    icons = here.parent / "icons"
    by_name = dict(PICTURES)
    write_icon(icons / "mail.ico", inner(by_name["mail"]))
    write_icon(icons / "pager.ico", pager("d", "c", ALPHA, 16))
    write_icon(icons / "numeric_pager.ico", pager("B", "g", NUMBERS, 16))
    write_icon(icons / "play.ico", play())
    write_icon(icons / "stop.ico", stop())


if __name__ == "__main__":
    main()
