# SPDX-License-Identifier: MIT
"""Writes the records of earlier surveys in the application's own format."""
import json
import os
import random

DAY = 86_400
EPOCH = 978_307_200  # 2001-01-01, the epoch of the dates in the file
RECORDS = 14
WITHOUT_FOLDERS = 3  # the oldest records, from before folders were recorded
LEAST = 20_000_000  # the minimum bytes of a recorded folder
MOST = 400

TYPES = {
    "video": "mp4 mov m4v avi mkv webm flv wmv mpg mpeg 3gp m2ts ts",
    "audio": "mp3 m4a wav aac flac aiff aif ogg wma caf",
    "image": "jpg jpeg png gif heic heif tiff tif bmp webp raw cr2 cr3 nef arw dng psd svg",
    "archive": "zip tar gz tgz bz2 xz 7z rar zst pkg xip",
    "diskImage": "dmg iso sparseimage sparsebundle img cdr",
    "document": "pdf doc docx xls xlsx ppt pptx pages numbers key txt md rtf csv epub json xml",
}
TYPE_OF = {extension: kind for kind, extensions in TYPES.items() for extension in extensions.split()}


def type_of(name):
    stem, dot, extension = name.rpartition(".")
    return TYPE_OF.get(extension.lower(), "other") if stem and dot else "other"


def count(root):
    """Allocated bytes by folder and by type. Counts a file with several names once, and not the blocks of folders
    themselves."""
    sizes, types, seen = {}, {}, set()
    for folder, below, files in os.walk(root, topdown=False):
        total = 0
        for name in below + files:
            full = os.path.join(folder, name)
            status = os.lstat(full)
            if os.path.isdir(full) and not os.path.islink(full):
                total += sizes[full]
                continue
            if status.st_nlink > 1:
                if (status.st_dev, status.st_ino) in seen:
                    continue
                seen.add((status.st_dev, status.st_ino))
            total += status.st_blocks * 512
            kind = type_of(name)
            types[kind] = types.get(kind, 0) + status.st_blocks * 512
        sizes[folder] = total
    return sizes, types


def is_text(path):
    try:
        path.encode()
        return True
    except UnicodeEncodeError:
        return False


def records(root, known, now):
    sizes, types = count(root)
    big = sorted(((size, path) for path, size in sizes.items() if size >= LEAST and is_text(path)), reverse=True)[:MOST]
    reclaimable = sum(sizes.get(os.path.join(root, path), 0) for path in known["reclaimable"])
    volume = os.statvfs(root)
    free = volume.f_bavail * volume.f_frsize
    used = max(volume.f_blocks * volume.f_frsize - free, 0)
    chance = random.Random(7)
    days = [0.25]
    while len(days) < RECORDS:
        days.append(days[-1] + chance.uniform(6, 15))
    # At this rate the disk is full in about 190 days, or later if too little is used for that.
    rate = min(free / 190, used * 0.6 / days[-1])
    all_records = []
    for place, age in enumerate(reversed(days)):
        part = 1.0 if place == RECORDS - 1 else 0.80 + 0.18 * place / RECORDS + chance.uniform(-0.008, 0.008)
        record = {
            "date": now - age * DAY - EPOCH,
            "totalScanned": int(sizes[root] * part),
            "used": int(used - rate * (age - days[0])),
            "free": int(free + rate * (age - days[0])),
            "reclaimable": int(reclaimable * (1.0 if place == RECORDS - 1 else chance.uniform(0.6, 1.1))),
            "types": {kind: int(size * part) for kind, size in types.items()},
        }
        if place >= WITHOUT_FOLDERS:
            record["folders"] = {path: int(size * part) for size, path in big if size * part >= LEAST}
        all_records.append(record)
    return all_records


def write(root, known, now):
    support = "Library/Application Support" if known["system"] == "macos" else ".local/share"
    folder = os.path.join(root, support, "Zelk")
    os.makedirs(folder, exist_ok=True)
    path = os.path.join(folder, "history.json")
    if os.path.exists(path):
        os.unlink(path)  # so that its own bytes are not counted
    written = records(root, known, now)
    with open(path, "w", encoding="utf-8") as file:
        json.dump(written, file, separators=(",", ":"), ensure_ascii=False)
    return path, len(written)
