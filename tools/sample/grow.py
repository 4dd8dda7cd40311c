# SPDX-License-Identifier: MIT
"""Changes a sample home as between two surveys: folders grow, one appears, one vanishes. The same at every scale."""
import os
import shutil

from .plan import Made, Plan


def grow(root, known, now):
    """Changes the home once more and returns a line per change. `known` is the content of its marker."""
    known["grown"] += 1
    number = known["grown"]
    films = "Movies" if known["system"] == "macos" else "Videos"
    plan = Plan(root, 1.0, 1000 + number, now)
    plan.file(f"{films}/New film {number}.mp4", 180 + number, 0.2)
    plan.file(f"Downloads/New installer {number}.iso", 75 + number, 0.1)
    plan.file(f"Documents/Conference {number}/Recording.m4a", 45 + number, 0.3)
    # Makes each file directly, since Plan.make() would also set the dates of everything else.
    made = Made()
    for path, entry in plan.entries.items():
        full = os.path.join(root, path)
        os.makedirs(os.path.dirname(full), exist_ok=True)
        plan.make_one(os.fsencode(full), entry, made)
        os.utime(full, (now, now))
    gone = "Documents/Moving house" if number == 1 else f"Documents/Conference {number - 1}"
    shutil.rmtree(os.path.join(root, gone))
    return [f"grew {films} and Downloads", f"added Documents/Conference {number}", f"removed {gone}",
            *(f"note: {note}" for note in made.notes)]
