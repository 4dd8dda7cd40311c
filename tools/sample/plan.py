# SPDX-License-Identifier: MIT
"""Collects what to create before creating it, so that the size is known before the disk is touched."""
import fcntl
import os
import random
from dataclasses import dataclass, field

MB = 1_000_000
DAY = 86_400
BLOCK = 4096


FICLONE = 0x40049409  # not in every version of the module


@dataclass
class Made:
    files: int = 0
    folders: int = 0
    notes: list = field(default_factory=list)


def reserve(fd, size, notes):
    """Allocates the blocks of an open file without writing them."""
    try:
        os.posix_fallocate(fd, 0, size)
    except (AttributeError, OSError):
        os.ftruncate(fd, size)
        note = "this file system cannot reserve blocks: the files are sparse, and their sizes on the disk near 0"
        if note not in notes:
            notes.append(note)


def share(fd, source):
    """Makes the open file share the blocks of another. False if the file system cannot."""
    try:
        with open(source, "rb") as file:
            fcntl.ioctl(fd, FICLONE, file.fileno())
        return True
    except OSError:
        return False


class Plan:
    """Paths are relative to the home; sizes are megabytes at scale 1; ages are days."""

    def __init__(self, root, scale=1.0, seed=1, now=0.0):
        self.root = root
        self.scale = scale
        self.now = now
        self.random = random.Random(seed)
        self.reclaimable = []  # paths that a survey will call reclaimable, for the history
        self.bytes = 0
        self.entries = {}  # path -> how to make it, in order
        self.sizes = set()
        self.ages = {}  # folder -> days, if it differs from the age of its contents

    def scaled(self, megabytes, least=0.0):
        """Bytes that no other large file has: equal sizes would make them candidates for duplicates."""
        size = max(int(max(megabytes * self.scale, least) * MB), 1)
        while size > MB and size in self.sizes:
            size += 512
        self.sizes.add(size)
        return size

    def file(self, path, megabytes=0.01, days=30.0, least=0.0):
        """At least `least` megabytes, at any scale."""
        size = self.scaled(megabytes, least)
        self.bytes += -(-size // BLOCK) * BLOCK
        self.entries[path] = ("file", size, days, path)

    def begin(self, path, head):
        """Makes a planned file begin with these characters, each a byte."""
        kind, size, days, own = self.entries[path]
        assert kind == "file"
        self.entries[path] = (kind, max(size, len(head) + len(own)), days, head + own)

    def copy(self, path, of, days=30.0):
        """A copy of another file, with the same bytes."""
        kind, size, _, head = self.entries[of]
        assert kind == "file"
        self.bytes += -(-size // BLOCK) * BLOCK
        self.entries[path] = ("file", size, days, head)

    def sparse(self, path, megabytes, days=30.0, least=0.0, head=None):
        """A file that is a hole but for its beginning, which is `head` or else its own path."""
        size = self.scaled(megabytes, least) if head is None else self.entries[head][1]
        self.bytes += BLOCK
        self.entries[path] = ("sparse", size, days, head or path)

    def clone(self, path, of, days=30.0):
        """A copy of another file that shares its blocks where the file system can do that."""
        self.copy(path, of, days)
        self.entries[path] = ("clone", *self.entries[path][1:], of)

    def text(self, path, content, days=30.0):
        data = content if isinstance(content, bytes) else content.encode()
        self.bytes += BLOCK
        self.entries[path] = ("text", data, days)

    def folder(self, path, days=None):
        self.entries[path] = ("folder",)
        if days is not None:
            self.ages[path] = days

    def hard_link(self, path, of):
        self.entries[path] = ("hard", of)

    def symbolic_link(self, path, target):
        self.entries[path] = ("link", target)

    def aged(self, path, days):
        """Sets the date of a folder, independent of its contents."""
        self.ages[path] = days

    def cleanable(self, path):
        self.reclaimable.append(path)

    def many(self, folder, count, megabytes, name, days=(2, 400)):
        """`count` files of varying size, `megabytes` in total. `name` makes a path from a number."""
        shares = [self.random.uniform(0.4, 1.6) for _ in range(count)]
        for number, share in enumerate(shares):
            self.file(f"{folder}/{name(number)}", megabytes * share / sum(shares), self.random.uniform(*days))

    def make(self):
        made = Made()
        dates = {}
        os.makedirs(self.root, exist_ok=True)
        root = os.fsencode(self.root)
        for path, entry in self.entries.items():
            full = os.path.join(root, os.fsencode(path))
            try:
                if entry[0] == "folder":
                    os.makedirs(full, exist_ok=True)
                    continue
                os.makedirs(os.path.dirname(full), exist_ok=True)
                self.make_one(full, entry, made)
            except OSError as error:
                # macOS file systems refuse names that are not UTF-8. The home works as well without them.
                made.notes.append(f"left out {path!r}: {error.strerror}")
                continue
            made.files += 1
            if entry[0] in ("file", "text", "sparse", "clone"):
                dates[full] = self.now - entry[2] * DAY
        self.date(root, dates, made)
        return made

    def make_one(self, full, entry, made):
        if entry[0] == "hard":
            os.link(os.path.join(os.fsencode(self.root), os.fsencode(entry[1])), full)
            return
        if entry[0] == "link":
            os.symlink(os.fsencode(entry[1]), full)
            return
        fd = os.open(full, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o644)
        try:
            if entry[0] == "text":
                os.write(fd, entry[1])
                return
            if entry[0] == "clone" and share(fd, os.path.join(os.fsencode(self.root), os.fsencode(entry[4]))):
                return
            if entry[0] == "sparse":
                os.ftruncate(fd, entry[1])
            else:
                reserve(fd, entry[1], made.notes)
            # Makes files of the same size differ unless one is a copy of the other.
            os.write(fd, os.fsencode(entry[3])[:entry[1]])
        finally:
            os.close(fd)

    def date(self, root, dates, made):
        """Sets the date of every file, and of every folder that of its newest content."""
        ages = {os.path.join(root, os.fsencode(path)): days for path, days in self.ages.items()}
        newest = {}
        for folder, below, files in os.walk(root, topdown=False):
            made.folders += 1
            inside = []
            for name in files:
                full = os.path.join(folder, name)
                if full in dates:
                    os.utime(full, (dates[full], dates[full]))
                    inside.append(dates[full])
            inside += [newest[os.path.join(folder, name)] for name in below if os.path.join(folder, name) in newest]
            date = self.now - ages[folder] * DAY if folder in ages else max(inside, default=self.now - 90 * DAY)
            newest[folder] = date
            os.utime(folder, (date, date))
