#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The reader of snapshot lists once more, written from its description and not from the program. Reads one list per
line, in hexadecimal, and answers with a line of records "name uuid date update purgeable", the texts in hexadecimal and
"-" for nothing. Local time is that of Central Europe, by rule."""
import re
import sys
from datetime import datetime, timedelta

STAMP = re.compile(r"\d{4}-\d{2}-\d{2}-\d{6}", re.ASCII)
IDENTIFIER = re.compile(r"[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}", re.ASCII | re.IGNORECASE)
EPOCH = datetime(1970, 1, 1)


def last_sunday(year, month):
    day = datetime(year, month, 31, 1)
    return day - timedelta(days=day.isoweekday() % 7)


def is_summer(utc):
    return last_sunday(utc.year, 3) <= utc < last_sunday(utc.year, 10)


def date_of(name):
    found = STAMP.search(name)
    if not found:
        return None
    try:
        local = datetime.strptime(found[0][:-2], "%Y-%m-%d-%H%M")
        local = local.replace(second=int(found[0][-2:]))
    except ValueError:
        return None
    summer, winter = local - timedelta(hours=2), local - timedelta(hours=1)
    return int(((summer if is_summer(summer) else winter) - EPOCH).total_seconds())


def records(text):
    uuid, name, purgeable, found = "", "", False, []

    def end():
        if name:
            found.append((name, uuid, date_of(name), "os.update" in name or "os-update" in name, purgeable))
        return bool(name)

    for line in text.split("\n"):
        if line == "":
            continue
        line = line.strip("|+- \t")
        if IDENTIFIER.fullmatch(line):
            if end():
                purgeable = False
            uuid, name = line, ""
        elif line[:5] == "Name:":
            name = "".join(line.split("Name:")).strip(" \t")
        elif line[:10] == "Purgeable:":
            purgeable = "Yes" in line
    end()
    return found


def spelled(text):
    return text.encode().hex() or "-"


for case in sys.stdin:
    text = bytes.fromhex(case.strip()).decode()
    print(" ".join(f"{spelled(name)} {spelled(uuid)} {'-' if date is None else date} {int(update)} {int(purgeable)}"
                   for name, uuid, date, update, purgeable in records(text)))
