# SPDX-License-Identifier: MIT
"""What happens between two surveys: folders grow, one appears, one goes. The same at every scale."""
import os
import shutil

from .plan import Made, Plan


def grow(root, known, now):
    """Changes the home once more and gives a line for each change; `known` is what its marker says."""
    known["grown"] += 1
    number = known["grown"]
    films = "Movies" if known["system"] == "macos" else "Videos"
    plan = Plan(root, 1.0, 1000 + number, now)
    plan.file(f"{films}/New film {number}.mp4", 180 + number, 0.2)
    plan.file(f"Downloads/New installer {number}.iso", 75 + number, 0.1)
    plan.file(f"Documents/Conference {number}/Recording.m4a", 45 + number, 0.3)
    # The walk that dates a whole home would date what was there already, so each is made by itself.
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
