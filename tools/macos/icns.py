# SPDX-License-Identifier: MIT
"""Reads the icon file of an application bundle into pixels."""
import functools
import struct
import subprocess
import tempfile
import zlib
from dataclasses import dataclass
from pathlib import Path

# The elements in the three forms that they can have: colours and, beside them, a mask; colours with their opacity; a
# picture file.
PAIRS = {"is32": ("s8mk", 16), "il32": ("l8mk", 32), "ih32": ("h8mk", 48), "it32": ("t8mk", 128)}
PACKED = {"ic04": 16, "ic05": 32, "icsb": 18, "icsB": 36}
PICTURES = {"icp4": 16, "icp5": 32, "icp6": 64, "ic07": 128, "ic08": 256, "ic09": 512, "ic10": 1024,
            "ic11": 32, "ic12": 64, "ic13": 256, "ic14": 512, "SB24": 24}
NO_PICTURES = ("TOC ", "icnV", "info", "name")
PNG, JPEG_2000 = b"\x89PNG\r\n\x1a\n", b"\x00\x00\x00\x0cjP  "


@dataclass
class Picture:
    side: int
    pixels: bytes  # red, green, blue and opacity of each

    def at(self, x, y):
        """The pixel at this part of the width and of the height."""
        start = 4 * (int(y * self.side) * self.side + int(x * self.side))
        return tuple(self.pixels[start:start + 4])


def elements(data):
    """The elements by their names. Raises ValueError unless they fill the file to the byte."""
    if data[:4] != b"icns" or len(data) < 8 or struct.unpack_from(">I", data, 4)[0] != len(data):
        raise ValueError("no icon file, or not a whole one")
    found, at = {}, 8
    while at < len(data):
        if at + 8 > len(data):
            raise ValueError("an element is cut off")
        name, size = struct.unpack_from(">4sI", data, at)
        if size < 8 or at + size > len(data):
            raise ValueError(f"element {name.decode('latin-1')} reaches beyond the file")
        found[name.decode("latin-1")] = data[at + 8:at + size]
        at += size
    return found


def unpacked(data, wanted):
    """Runs of bytes: a count below 128 is followed by one more than that many bytes, another by one byte that stands
    for 125 fewer than that many."""
    out, at = bytearray(), 0
    while len(out) < wanted:
        if at + 1 >= len(data):
            raise ValueError("the runs end too early")
        count = data[at]
        if count < 128:
            out += data[at + 1:at + 2 + count]
            at += 2 + count
        else:
            out += data[at + 1:at + 2] * (count - 125)
            at += 2
    if len(out) != wanted:
        raise ValueError("the runs reach beyond the picture")
    return bytes(out)


def from_planes(side, red, green, blue, opacity):
    pixels = bytearray(4 * side * side)
    for channel, plane in enumerate((red, green, blue, opacity)):
        pixels[channel::4] = plane
    return Picture(side, bytes(pixels))


def from_png(data):
    """A picture of eight bits for each of four channels, rows in order, as every maker of icons writes it."""
    at, packed, head = 8, b"", None
    while at + 8 <= len(data):
        size, kind = struct.unpack_from(">I4s", data, at)
        body = data[at + 8:at + 8 + size]
        if kind == b"IHDR":
            head = struct.unpack(">2I5B", body)
        elif kind == b"IDAT":
            packed += body
        at += 12 + size
    if head is None or head[0] != head[1] or head[2:] != (8, 6, 0, 0, 0):
        raise ValueError("no square picture of eight bits with opacity")
    side, row = head[0], 4 * head[0]
    try:
        raw = zlib.decompress(packed)
    except zlib.error as error:
        raise ValueError(str(error)) from error
    if len(raw) != side * (row + 1):
        raise ValueError("the rows do not fill the picture")
    out, above = bytearray(), bytes(row)
    for y in range(side):
        line = bytearray(raw[y * (row + 1) + 1:(y + 1) * (row + 1)])
        unfilter(raw[y * (row + 1)], line, above)
        out += line
        above = line
    return Picture(side, bytes(out))


def unfilter(method, line, above):
    """Undoes the filter of one row, given the row above."""
    if method == 1:
        for i in range(4, len(line)):
            line[i] = line[i] + line[i - 4] & 255
    elif method == 2:
        for i in range(len(line)):
            line[i] = line[i] + above[i] & 255
    elif method == 3:
        for i in range(len(line)):
            line[i] = line[i] + ((line[i - 4] if i >= 4 else 0) + above[i]) // 2 & 255
    elif method == 4:
        for i in range(len(line)):
            left, up, corner = (line[i - 4], above[i], above[i - 4]) if i >= 4 else (0, above[i], 0)
            away = abs(up - corner), abs(left - corner), abs(left + up - 2 * corner)
            nearest = min(away)
            line[i] = line[i] + (left if away[0] == nearest else up if away[1] == nearest else corner) & 255
    elif method != 0:
        raise ValueError("an unknown filter")


@functools.cache
def decoded(file):
    """The picture files that icns2png makes of the icon file, by their sides. It alone reads JPEG 2000 here."""
    with tempfile.TemporaryDirectory() as folder:
        try:
            subprocess.run(["icns2png", "-x", "-o", folder, str(file)], check=True, capture_output=True)
        except (OSError, subprocess.CalledProcessError) as error:
            raise ValueError(f"icns2png does not read it: {error}") from error
        return {int(path.stem.rsplit("_", 1)[1].split("x")[0]): path.read_bytes()
                for path in Path(folder).glob("*.png")}


def picture(file, found, name):
    """The picture of this element."""
    if name in PAIRS:
        mask, side = PAIRS[name]
        area = side * side
        data = found[name]
        if name == "it32" and data[:4] == bytes(4):
            data = data[4:]
        planes = unpacked(data, 3 * area)
        if len(found.get(mask, b"")) != area:
            raise ValueError(f"its mask {mask} is missing or of another size")
        return from_planes(side, planes[:area], planes[area:2 * area], planes[2 * area:], found[mask])
    data = found[name]
    if data[:4] == b"ARGB" and name in PACKED:
        side = PACKED[name]
        area = side * side
        planes = unpacked(data[4:], 4 * area)
        return from_planes(side, planes[area:2 * area], planes[2 * area:3 * area], planes[3 * area:], planes[:area])
    side = (PICTURES | PACKED).get(name)
    if side is None:
        raise ValueError("an unknown element")
    if data[:8] == PNG:
        drawn = from_png(data)
    elif data[:8] == JPEG_2000:
        if side not in decoded(file):
            raise ValueError("icns2png finds no such picture")
        drawn = from_png(decoded(file)[side])
    else:
        raise ValueError("a picture in an unknown form")
    if drawn.side != side:
        raise ValueError(f"a picture of {drawn.side} pixels where {side} belong")
    return drawn


def pictures(file: Path):
    """The pictures of the file by the names of their elements. Raises ValueError if one cannot be read."""
    found = elements(file.read_bytes())
    masks = {mask for mask, _ in PAIRS.values()}
    drawn = {}
    for name in found:
        if name in NO_PICTURES or name in masks:
            continue
        try:
            drawn[name] = picture(file, found, name)
        except ValueError as error:
            raise ValueError(f"element {name}: {error}") from error
    return drawn
