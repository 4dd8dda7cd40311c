#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The health score once more, written from its description and not from the program: reads one case per line ("volume?
total available memory used processor battery? percent") and answers with one line per case: the score, the place of its
grade, and the levels of processor, memory and battery."""
import sys
from fractions import Fraction

BANDS = ["0.85", "0.7", "0.5", "0.3"]


def step(value, *steps):
    """The first result whose limit is above the value; the last one has none."""
    for limit, result in steps:
        if limit is None or value < limit:
            return Fraction(result)


def score(volume, total, available, memory, used, load, battery, percent):
    earned = possible = Fraction(0)
    if volume and total > 0:
        possible += Fraction("0.5")
        full = max(total - available, 0) / total
        earned += step(full, (0.75, "0.5"), (0.9, "0.3"), (0.97, "0.15"), (None, "0.025"))
    possible += Fraction("0.4")
    taken = used / memory if memory > 0 else 0
    earned += step(taken, (0.7, "0.3"), (0.9, "0.18"), (None, "0.09"))
    earned += step(load, (0.7, "0.1"), (0.9, "0.06"), (None, "0.03"))
    if battery:
        possible += Fraction("0.1")
        earned += step(percent, (16, "0.03"), (41, "0.06"), (None, "0.1"))
    return earned / possible


def level(value, limits):
    return sum(value >= limit for limit in limits)


for line in sys.stdin:
    words = line.split()
    volume, total, available, memory, used = (int(word) for word in words[:5])
    load, battery, percent = float(words[5]), int(words[6]), int(words[7])
    exact = score(volume, total, available, memory, used, load, battery, percent)
    grade = sum(exact < Fraction(band) for band in BANDS)
    taken = used / memory if memory > 0 else 0
    print(repr(float(exact)), grade, level(load, (0.7, 0.9)), level(taken, (0.7, 0.9)), 2 - level(percent, (16, 41)))
