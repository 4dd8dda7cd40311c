# SPDX-License-Identifier: MIT
"""Reads 64-bit Mach-O files, which Debian's nm and readelf cannot do: the symbols of objects, and what programs and
libraries tell the loader."""
import struct
from dataclasses import dataclass, field
from pathlib import Path

MAGIC, UNIVERSAL = 0xFEEDFACF, 0xCAFEBABE
SYMBOL_TABLE = 0x02
LOADED, NAMED, WEAK, REEXPORTED, UPWARD = 0x0C, 0x0D, 0x80000018, 0x8000001F, 0x80000023
SEARCHED, SIGNED, OLD_MINIMUM, BUILT_FOR = 0x8000001C, 0x1D, 0x24, 0x32
EXTERNAL, TYPE, DEBUGGING = 0x01, 0x0E, 0xE0
PROGRAM, LIBRARY, PLUGIN = 2, 6, 8
POSITION_INDEPENDENT = 0x200000
PROCESSORS = {0x0100000C: "arm64", 0x01000007: "x86_64"}
MACOS = 1


@dataclass
class Image:
    """What a program or library for one processor tells the loader."""
    processor: str
    kind: int
    position_independent: bool
    platform: int = 0
    minimum: tuple = (0, 0)
    rpaths: list = field(default_factory=list)
    libraries: list = field(default_factory=list)
    signed: bool = False


def commands(data, start=0):
    """The load commands of the file that begins there: each with its kind, place and size."""
    if struct.unpack_from("<I", data, start)[0] != MAGIC:
        raise ValueError("no 64-bit Mach-O file")
    count, length = struct.unpack_from("<2I", data, start + 16)
    at, end = start + 32, start + 32 + length
    for _ in range(count):
        kind, size = struct.unpack_from("<2I", data, at)
        if size < 8 or at + size > end:
            raise ValueError("a load command reaches beyond its table")
        yield kind, at, size
        at += size


def symbols(path: Path):
    """The names that the object defines, and those that it needs."""
    data = path.read_bytes()
    defined, wanted = set(), set()
    for kind, at, _ in commands(data):
        if kind != SYMBOL_TABLE:
            continue
        table, count, names, _ = struct.unpack_from("<4I", data, at + 8)
        for i in range(count):
            name_at, bits, _, _, value = struct.unpack_from("<IBBHQ", data, table + 16 * i)
            if bits & DEBUGGING or not bits & EXTERNAL:
                continue
            start = names + name_at
            name = data[start:data.index(0, start)].decode()
            (defined if bits & TYPE or value else wanted).add(name)
    return defined, wanted


def image(data, start):
    processor, _, kind, _, _, flags = struct.unpack_from("<6I", data, start + 4)
    found = Image(PROCESSORS.get(processor, hex(processor)), kind, bool(flags & POSITION_INDEPENDENT))
    for command, at, size in commands(data, start):
        def text():
            begin = at + struct.unpack_from("<I", data, at + 8)[0]
            return data[begin:at + size].split(b"\0")[0].decode()

        if command == SEARCHED:
            found.rpaths.append(text())
        elif command in (LOADED, WEAK, REEXPORTED, UPWARD):
            found.libraries.append(text())
        elif command == SIGNED:
            found.signed = True
        elif command in (BUILT_FOR, OLD_MINIMUM):
            place = 12 if command == BUILT_FOR else 8
            version = struct.unpack_from("<I", data, at + place)[0]
            found.platform = struct.unpack_from("<I", data, at + 8)[0] if command == BUILT_FOR else MACOS
            found.minimum = (version >> 16, version >> 8 & 0xFF)
    return found


def images(path: Path):
    """The file's images, one for each processor; none if it is no Mach-O file at all. Raises ValueError if it is a
    broken one."""
    data = path.read_bytes()
    try:
        if data[:4] == struct.pack("<I", MAGIC):
            return [image(data, 0)]
        # Classes of Java begin with the same four bytes; their version would be a large number of processors.
        if data[:4] != struct.pack(">I", UNIVERSAL) or struct.unpack_from(">I", data, 4)[0] > 8:
            return []
        return [image(data, struct.unpack_from(">I", data, 8 + 20 * i + 8)[0])
                for i in range(struct.unpack_from(">I", data, 4)[0])]
    except (struct.error, UnicodeDecodeError) as error:
        raise ValueError(str(error)) from error
