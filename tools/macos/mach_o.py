# SPDX-License-Identifier: MIT
"""Reads the symbols of a 64-bit Mach-O object file, which Debian's nm cannot do."""
import struct
from pathlib import Path

SYMBOL_TABLE = 2  # LC_SYMTAB
EXTERNAL, TYPE, DEBUGGING = 0x01, 0x0E, 0xE0


def symbols(path: Path):
    """The names that the object defines, and those that it needs."""
    data = path.read_bytes()
    magic, _, _, _, commands, _, _, _ = struct.unpack_from("<8I", data)
    if magic != 0xFEEDFACF:
        raise ValueError(f"{path} is no 64-bit Mach-O file")
    defined, wanted = set(), set()
    at = 32
    for _ in range(commands):
        command, size = struct.unpack_from("<2I", data, at)
        if command == SYMBOL_TABLE:
            table, count, names, _ = struct.unpack_from("<4I", data, at + 8)
            for i in range(count):
                name_at, kind, _, _, value = struct.unpack_from("<IBBHQ", data, table + 16 * i)
                if kind & DEBUGGING or not kind & EXTERNAL:
                    continue
                start = names + name_at
                name = data[start:data.index(0, start)].decode()
                (defined if kind & TYPE or value else wanted).add(name)
        at += size
    return defined, wanted
