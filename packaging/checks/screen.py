# SPDX-License-Identifier: MIT
"""A display of its own with a window manager, whose picture and keyboard belong to whoever checks the package."""
import ctypes
import re
import shutil
import struct
import subprocess
import tempfile
import zlib
from pathlib import Path


class Picture:
    """What the display shows, as rows of red, green and blue."""

    def __init__(self, dump):
        header = struct.unpack(">25I", dump[:100])  # of a window dump, as Xvfb keeps its picture
        self.width, self.height, stride, colours = header[4], header[5], header[12], header[19]
        start = header[0] + colours * 12
        self.rows = []
        for y in range(self.height):
            pixels = dump[start + y * stride:start + y * stride + self.width * 4]
            row = bytearray(self.width * 3)
            row[0::3], row[1::3], row[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
            self.rows.append(bytes(row))

    def save(self, path):
        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        rows = zlib.compress(b"".join(b"\0" + row for row in self.rows))
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", rows) + chunk(b"IEND", b""))

    def colours(self):
        """How many there are; a blank screen has one, and a window without its contents a few."""
        found = set()
        for row in self.rows[::4]:
            found.update(zip(row[0::12], row[1::12], row[2::12]))
        return len(found)

    def scan_button(self):
        """The height at which the round button of the home screen is widest; None if there is none. Nothing else has the
        accent's colours over so many pixels in a row."""
        runs = [(self._longest_accent(row), y) for y, row in enumerate(self.rows)]
        wide = [y for length, y in runs if 150 <= length <= 200]
        return (wide[0] + wide[-1]) // 2 if len(wide) > 20 else None

    @staticmethod
    def _longest_accent(row):
        accent = bytes(1 if r >= 225 and 115 <= g <= 220 and b <= 140 else 0
                       for r, g, b in zip(row[0::3], row[1::3], row[2::3]))
        return max(map(len, re.findall(b"\1+", accent)), default=0)


class Screen:
    """A context manager: the display exists only inside. Any user and any system of this machine may draw on it."""

    def __enter__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="zelk-screen-"))
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", "1", "-screen", "0", "1280x860x24", "-fbdir", self.folder, "-ac", "-noreset", "-nolisten",
             "tcp"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.name = f":{self.server.stdout.readline().decode().strip()}"
        # Without it no window becomes active, and keys go nowhere.
        self.manager = subprocess.Popen(["openbox", "--sm-disable"], env={"DISPLAY": self.name, "HOME": str(self.folder)},
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return self

    def __exit__(self, *_):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def picture(self):
        return Picture((self.folder / "Xvfb_screen0").read_bytes())

    def press(self, *names):
        """Presses these keys together, by their names in X."""
        x11, xtest = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XStringToKeysym.restype = ctypes.c_ulong
        display = ctypes.c_void_p(x11.XOpenDisplay(self.name.encode()))
        codes = [x11.XKeysymToKeycode(display, ctypes.c_ulong(x11.XStringToKeysym(name.encode()))) for name in names]
        for code in codes:
            xtest.XTestFakeKeyEvent(display, code, 1, 0)
        for code in reversed(codes):
            xtest.XTestFakeKeyEvent(display, code, 0, 0)
        x11.XCloseDisplay(display)  # sends them first
