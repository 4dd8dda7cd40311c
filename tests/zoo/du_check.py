#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Counts a tree independently, for comparison with a survey; prints one JSON object.

bytes: allocated bytes of everything except folders, hard links counted once, other devices omitted. files, folders:
their numbers, including every name of a file and ROOT itself. blocked: folders that cannot be read completely, which
contribute nothing else. duBytes: the result of du without the folders' own blocks. findFiles, findFolders: the results
of find. The tree must not change; no paths are built, so its depth is unlimited.
"""
import json
import os
import stat
import subprocess
import sys

FLAGS = os.O_RDONLY | os.O_DIRECTORY | os.O_CLOEXEC


class Count:
    def __init__(self):
        self.bytes = self.files = self.folders = self.blocked = self.folder_bytes = 0
        self.seen = set()

    def read(self, fd, device):
        """Counts one folder and returns the names of those in it, or None if it cannot be read."""
        try:
            entries = [(name, os.stat(name, dir_fd=fd, follow_symlinks=False)) for name in os.listdir(fd)]
        except PermissionError:
            return None
        self.folders += 1
        self.folder_bytes += os.fstat(fd).st_blocks * 512
        below = []
        for name, status in entries:
            if stat.S_ISDIR(status.st_mode):
                if status.st_dev == device:
                    below.append(name)
                continue
            self.files += 1
            identity = (status.st_dev, status.st_ino)
            if status.st_nlink < 2 or identity not in self.seen:
                self.bytes += status.st_blocks * 512
            if status.st_nlink >= 2:
                self.seen.add(identity)
        return below

    def walk(self, root):
        fd = os.open(root, FLAGS)
        device = os.fstat(fd).st_dev
        pending = [self.read(fd, device) or []]
        while pending:
            if pending[-1]:
                name = pending[-1].pop()
                try:
                    below = os.open(name, FLAGS | os.O_NOFOLLOW, dir_fd=fd)
                except PermissionError:
                    self.blocked += 1
                    continue
                names = self.read(below, device)
                if names is None:
                    self.blocked += 1
                    os.close(below)
                else:
                    os.close(fd)
                    fd = below
                    pending.append(names)
            else:
                pending.pop()
                if pending:
                    above = os.open("..", FLAGS, dir_fd=fd)
                    os.close(fd)
                    fd = above
        os.close(fd)


def output(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout


def du(root):
    if sys.platform == "linux":
        return int(output("du", "-s", "-D", "--block-size=1", "-x", root).split()[0])
    return int(output("du", "-skxH", root).split()[0]) * 1024


def find(root, *test):
    return output("find", "-H", root, "-xdev", *test, "-print0").count(b"\0")


def main():
    root = sys.argv[1]
    count = Count()
    count.walk(root)
    print(json.dumps({
        "bytes": count.bytes,
        "files": count.files,
        "folders": count.folders,
        "blocked": count.blocked,
        "duBytes": du(root) - count.folder_bytes,
        "findFiles": find(root, "!", "-type", "d"),
        "findFolders": find(root, "-type", "d"),
    }))


if __name__ == "__main__":
    main()
