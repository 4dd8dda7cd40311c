#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes random and hostile argument lists for zelk-admin, each with what a model of its own says that zelk-admin may do.

  admin_model.py SEED COUNT

Numbers are 32 bits, little-endian; a text is its length and its bytes. For each list: the number of arguments and the
arguments; 1 if it is accepted, else 0; 1 if caches are dropped, else 0; the number of programs, and of each the number
of its words and the words.
"""
import random
import re
import struct
import sys

CONFIG = re.compile(rb"(?!-)[A-Za-z0-9_-]{1,255}")
NUMBER = re.compile(rb"[1-9][0-9]{0,9}")
PACKAGE = re.compile(rb"[a-z0-9][a-z0-9+.-]{1,254}")
SNAPPER = b"/usr/bin/snapper"


def judge(words):
    """(whether it drops caches, the programs), or None if it must refuse."""
    verb, rest = (words[0], words[1:]) if words else (None, [])
    if verb == b"free-memory" and not rest:
        return True, []
    if verb == b"delete-snapshot" and len(rest) == 2 and CONFIG.fullmatch(rest[0]) and NUMBER.fullmatch(rest[1]):
        if int(rest[1]) < 2**32:
            return False, [[SNAPPER, b"-c", rest[0], b"delete", b"--sync", rest[1]]]
    if verb == b"thin-snapshots" and len(rest) == 1 and CONFIG.fullmatch(rest[0]):
        return False, [[SNAPPER, b"-c", rest[0], b"cleanup", b"--free-space", b"5000000000", algorithm]
                       for algorithm in (b"number", b"timeline")]
    if verb == b"remove-package" and len(rest) == 1 and PACKAGE.fullmatch(rest[0]):
        return False, [[b"/usr/bin/dpkg", b"--remove", rest[0]]]
    return None


VERBS = [b"free-memory", b"delete-snapshot", b"thin-snapshots", b"remove-package"]
HOSTILE = [b"", b" ", b"-", b"--", b"-o", b"-c", b"--help", b"-h", b"--root=/", b"-oDpkg::Pre-Invoke::=id", b"/", b".", b"..",
           b"*", b"a*", b"?", b"root\n", b"\nroot", b"root\nhome", b"root;reboot", b";", b"&&", b"|", b"$(id)", b"`id`",
           b"$PATH", b"${IFS}", b"~", b"root ", b" root", b"root/..", b"../root", b"/etc/passwd", b"root\t", b"root\r",
           "größe".encode(), "ｒｏｏｔ".encode(), b"\xff\xfe", b"\xc0\xaf", b"\x01", b"\x7f", b"'", b'"', b"\\", b"#", b"%s%n",
           b"0", b"00", b"01", b"-1", b"+1", b"1.0", b"1e3", b"0x10", b"1 ", b" 1", b"1\n", b"1-5", b"1,2",
           "１".encode(), "٣".encode(), b"4294967295", b"4294967296", b"4294967297", b"9999999999", b"10000000000",
           b"99999999999999999999", b"a", b"A", b"G++", b"g++", b"a.", b"..a", b"a+", b"a-", b"-a", b"+a", b".a",
           b"libc6:i386", b"falkon=1", b"falkon/stable", b"a_b", b"a" * 254, b"a" * 255, b"a" * 256, b"1" * 255,
           b"free-memory", b"FREE-MEMORY", b"free-memory ", b"free_memory", b"free-memor", b"free-memoryy",
           b"delete-snapshots", b"thin-snapshot", b"remove", b"sh", b"/bin/sh"]
GOOD = {"config": [b"root", b"home", b"My_home-2", b"0", b"_", b"a" * 255, b"a-"],
        "number": [b"1", b"12", b"4294967295", b"4294967294", b"999999999"],
        "package": [b"falkon", b"g++", b"0ad", b"libstdc++-12-dev", b"python3.11", b"a.", b"a" * 255, b"ab"]}


def random_bytes(choose, most):
    return bytes(choose.randrange(1, 256) for _ in range(choose.randrange(most)))


def random_word(choose):
    kind = choose.randrange(20)
    if kind < 9:
        return choose.choice(HOSTILE)
    if kind < 13:
        return random_bytes(choose, 12)
    if kind < 19:
        letters = b"abzABZ019_-+.; \n$-"
        return bytes(choose.choice(letters) for _ in range(choose.randrange(8)))
    if choose.randrange(40) == 0:  # 100 KB
        return ((choose.choice(HOSTILE) or b"a") * 100_000)[:100_000]
    return choose.choice(GOOD[choose.choice(list(GOOD))])


def good_list(choose):
    verb = choose.choice(VERBS)
    kinds = {VERBS[0]: [], VERBS[1]: ["config", "number"], VERBS[2]: ["config"], VERBS[3]: ["package"]}[verb]
    return [verb] + [choose.choice(GOOD[kind]) for kind in kinds]


def spoil(choose, words):
    """One small change."""
    at = choose.randrange(len(words))
    kind = choose.randrange(7)
    if kind == 0:
        del words[at]
    elif kind == 1:
        words.insert(choose.randrange(len(words) + 1), random_word(choose))
    elif kind == 2:
        words[at] = random_word(choose)
    elif kind == 3:
        place = choose.randrange(len(words[at]) + 1)
        words[at] = words[at][:place] + bytes([choose.randrange(1, 256)]) + words[at][place:]
    elif kind == 4:
        words[at] = words[at][:-1]
    elif kind == 5:
        words[at] = choose.choice([words[at].upper(), words[at] + b"\n", b"\n" + words[at], b" " + words[at], words[at] * 2])
    else:
        choose.shuffle(words)


def argument_list(choose):
    kind = choose.randrange(10)
    if kind == 0:
        return [random_bytes(choose, 300) for _ in range(choose.randrange(5))]
    if kind == 1:
        return [random_word(choose) for _ in range(choose.randrange(6))]
    if kind < 5:
        return [choose.choice(VERBS)] + [random_word(choose) for _ in range(choose.randrange(4))]
    words = good_list(choose)
    for _ in range(0 if kind == 5 else choose.randrange(1, 3)):
        if words:
            spoil(choose, words)
    return words


def text(word):
    return struct.pack("<I", len(word)) + word


def texts(words):
    return struct.pack("<I", len(words)) + b"".join(text(word) for word in words)


def main(seed, count):
    choose = random.Random(seed)
    for _ in range(count):
        words = argument_list(choose)
        verdict = judge(words)
        drops, programs = verdict or (False, [])
        sys.stdout.buffer.write(texts(words) + struct.pack("<III", verdict is not None, drops, len(programs)) +
                                b"".join(texts(program) for program in programs))


if __name__ == "__main__":
    main(int(sys.argv[1]), int(sys.argv[2]))
