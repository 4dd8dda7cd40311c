#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Finds duplicates on its own, to check what Zelk finds: find_duplicates.py MINIMUM HOME < ROOTS

Reads the folders of each search, every one ended by a zero byte and the last by two. Prints for each search a line
"roots", and a line for each set: its hash, and its paths in hexadecimal. Written for clarity; shares nothing with the
program but the rules.
"""
import hashlib
import os
import stat
import sys

PARTS = (b"/node_modules/", b"/.git/", b".app/", b".framework/", b"/Library/Caches/")


def files(folder, entered, device):
    """The regular files below a folder, depth first, the names of a folder in byte order."""
    status = os.stat(folder)
    if (status.st_dev, status.st_ino) in entered or status.st_dev != device:
        return
    entered.add((status.st_dev, status.st_ino))
    try:
        names = sorted(os.listdir(folder))
    except OSError:
        return
    for name in names:
        path = os.path.join(folder, name)
        try:
            kind = os.lstat(path)
        except OSError:
            continue
        if name.startswith(b"."):
            continue
        if stat.S_ISDIR(kind.st_mode):
            yield from files(path, entered, device)
        elif stat.S_ISREG(kind.st_mode):
            yield path, kind.st_size


def find(roots, minimum, home):
    by_size, entered = {}, set()
    for root in roots:
        root = os.path.realpath(root)
        if not os.path.isdir(root):
            continue
        for path, size in files(root, entered, os.stat(root).st_dev):
            if size < minimum or any(part in path for part in PARTS) or path.startswith(home + b"/snap/"):
                continue
            by_size.setdefault(size, []).append(path)
    sets = []
    for size in sorted(by_size, reverse=True):
        by_hash = {}
        for path in by_size[size] if len(by_size[size]) > 1 else ():
            try:
                with open(path, "rb") as file:
                    digest = hashlib.sha256(file.read()).hexdigest()
            except OSError:
                continue
            by_hash.setdefault(digest, []).append(path)
        sets += [(size * (len(paths) - 1), f"{digest}-{size}", paths)
                 for digest, paths in by_hash.items() if len(paths) > 1]
    return sorted(sets, key=lambda one: -one[0])


def main():
    minimum, home = int(sys.argv[1]), os.fsencode(sys.argv[2])
    for search in sys.stdin.buffer.read().split(b"\0\0")[:-1]:
        print("roots")
        for _, key, paths in find(search.split(b"\0"), minimum, home):
            print(key, *(path.hex() for path in paths))


if __name__ == "__main__":
    main()
