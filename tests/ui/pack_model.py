#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The bubble map's layout once more, written from its description and not from the program: reads one case per line
("width height bytes bytes ...") and answers with one line per case ("index x y radius" for each circle)."""
import sys
from math import cos, hypot, sin, sqrt

CANDIDATES = 40000


def place(radii):
    biggest = max(radii)
    gap, step = biggest * 0.012, biggest * 0.03
    spots = [(0.0, 0.0, radii[0])]
    for r in radii[1:]:
        a, d = 0.0, step
        for _ in range(CANDIDATES):
            x, y = d * cos(a), d * sin(a)
            for px, py, pr in spots:
                if gap + r + pr > hypot(x - px, y - py):
                    break
            else:
                break
            d += step
            a += 0.25
        spots.append((x, y, r))
    return spots


def layout(width, height, weights):
    kept = [(i, w) for i, w in enumerate(weights) if w > 0]
    if not kept or width <= 0 or height <= 0:
        return []
    spots = place([sqrt(float(w)) for _, w in kept])
    left = min(x - r for x, _, r in spots)
    top = min(y - r for _, y, r in spots)
    wide = max(max(x + r for x, _, r in spots) - left, 1.0)
    high = max(max(y + r for _, y, r in spots) - top, 1.0)
    k = min((height - 48) / high, (width - 48) / wide)
    ox = (width - wide * k) * 0.5 - left * k
    oy = (height - high * k) * 0.5 - top * k
    return [(i, ox + k * x, oy + k * y, k * r) for (i, _), (x, y, r) in zip(kept, spots)]


for line in sys.stdin:
    width, height, *weights = line.split()
    circles = layout(float(width), float(height), [int(w) for w in weights])
    print(" ".join(f"{i} {x!r} {y!r} {r!r}" for i, x, y, r in circles))
