#!/usr/bin/env python3
"""Turns the SVG sources of the icons into the .ico files of both themes, and lists them in icons.qrc.

Every source is rasterised by rsvg-convert once per size and theme; nothing else is needed, and the same
sources always give the same bytes.
"""

import pathlib
import struct
import subprocess
import sys
import zlib

FOLDER = pathlib.Path(__file__).resolve().parent
SIZES = (16, 24, 32, 48)
THEMES = {
    "dark": {"ink": "#d9dde3", "accent": "#ffae42"},
    "light": {"ink": "#3a424d", "accent": "#d45f00"},
}


def coloured(source, colours):
    for name, value in colours.items():
        source = source.replace("{{" + name + "}}", value)
    if "{{" in source:
        raise ValueError("a colour other than " + " and ".join(colours))
    return source


def rasterised(svg, size):
    command = ["rsvg-convert", "--width", str(size), "--height", str(size), "--format", "png"]
    return subprocess.run(command, input=svg.encode(), stdout=subprocess.PIPE, check=True).stdout


def png_chunks(png):
    position = 8
    while position < len(png):
        length, kind = struct.unpack_from(">I4s", png, position)
        yield kind, png[position + 8 : position + 8 + length]
        position += length + 12


def paeth(left, above, corner):
    estimate = left + above - corner
    return min((left, above, corner), key=lambda value: abs(estimate - value))


def unfiltered(kind, row, previous):
    """One row of an RGBA image without its PNG filter."""
    out = bytearray(row)
    for i, value in enumerate(row):
        left = out[i - 4] if i >= 4 else 0
        corner = previous[i - 4] if i >= 4 else 0
        above = previous[i]
        addend = (0, left, above, (left + above) // 2, paeth(left, above, corner))[kind]
        out[i] = (value + addend) & 255
    return out


def png_rows(png):
    """The rows of an 8-bit RGBA PNG that is not interlaced, from the top."""
    chunks = list(png_chunks(png))
    width, height, depth, colour, _, _, interlace = struct.unpack(">IIBBBBB", chunks[0][1])
    if (depth, colour, interlace) != (8, 6, 0):
        raise ValueError("rsvg-convert wrote another kind of PNG than RGBA")
    data = zlib.decompress(b"".join(body for kind, body in chunks if kind == b"IDAT"))
    stride = width * 4 + 1
    rows, previous = [], bytes(width * 4)
    for y in range(height):
        line = data[y * stride : (y + 1) * stride]
        previous = unfiltered(line[0], line[1:], previous)
        rows.append(previous)
    return rows


def swapped(row):
    """RGBA to BGRA."""
    out = bytearray(row)
    out[0::4], out[2::4] = row[2::4], row[0::4]
    return out


def mask_row(row):
    """One bit a pixel, set where the pixel is wholly transparent, filled up to four bytes."""
    bits = "".join("1" if alpha == 0 else "0" for alpha in row[3::4])
    bits += "0" * (-len(bits) % 32)
    return int(bits, 2).to_bytes(len(bits) // 8, "big")


def bitmap(rows):
    """The image as an icon entry: header, colours and mask, both from the bottom row up."""
    size = len(rows)
    colours = b"".join(swapped(row) for row in reversed(rows))
    mask = b"".join(mask_row(row) for row in reversed(rows))
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(colours) + len(mask), 0, 0, 0, 0)
    return header + colours + mask


def ico(entries):
    """The icon file of (size, bitmap) pairs."""
    offset = 6 + 16 * len(entries)
    head = struct.pack("<HHH", 0, 1, len(entries))
    for size, data in entries:
        head += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return head + b"".join(data for _, data in entries)


def resource_list(names):
    lines = ["<!DOCTYPE RCC>", '<RCC version="1.0">', '  <qresource prefix="/res">']
    lines += [f"    <file>{theme}/{name}.ico</file>" for theme in THEMES for name in names]
    return "\n".join(lines + ["  </qresource>", "</RCC>", ""])


def make_icon(source, theme, colours):
    svg = coloured(source.read_text(encoding="utf-8"), colours)
    entries = [(size, bitmap(png_rows(rasterised(svg, size)))) for size in SIZES]
    target = FOLDER / theme / (source.stem + ".ico")
    target.parent.mkdir(exist_ok=True)
    target.write_bytes(ico(entries))


def main():
    sources = sorted((FOLDER / "svg").glob("*.svg"))
    for source in sources:
        for theme, colours in THEMES.items():
            make_icon(source, theme, colours)
    (FOLDER / "icons.qrc").write_text(resource_list([source.stem for source in sources]), encoding="utf-8")
    print(f"{len(sources)} icons in {len(THEMES)} themes")


if __name__ == "__main__":
    sys.exit(main())
