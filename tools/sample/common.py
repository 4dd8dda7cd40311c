# SPDX-License-Identifier: MIT
"""The files that sample homes of all systems have: personal files and a developer's projects."""
import os

FIRST = "amber birch cedar delta ember fjord grove haven inlet jolly kite lumen maple north ocean pearl quill river stone " \
        "tidal umber vivid willow xenon yarrow zephyr".split()
SECOND = "bridge cloud dream field garden harbor island journey lantern meadow night orchard paper road shore song tower " \
         "valley water window".split()
EXTRA = "array async buffer color date error event glob json lexer merge parse path query router scroll set stream " \
        "style time tree type util walk yaml".split()


def title(random):
    return f"{random.choice(FIRST).title()} {random.choice(SECOND).title()}"


def pictures(plan, folder):
    random = plan.random
    trips = [("2023-07 Lofoten", 900), ("2024-05 Lisbon", 560), ("2025-08 Alps", 110), ("Family", 400),
             ("京都の秋", 820), ("Фотографии с дачи", 640), ("Ελλάδα", 480), ("صور العائلة", 300), ("תמונות", 250),
             ("पारिवारिक चित्र", 500), ("Cafe\u0301 🥐", 21)]
    for trip, age in trips:
        kind = random.choice(("jpg", "heic", "JPG"))
        plan.many(f"{folder}/{trip}", 20, 62, lambda n: f"IMG_{4000 + n * 7}.{kind}", (age, age + 6))
    plan.many(f"{folder}/Raw", 8, 210, lambda n: f"DSC_{1100 + n}.nef", (120, 130))
    plan.file(f"{folder}/Scans/Poster final.psd", 118, 410)
    for number in range(3):
        plan.copy(f"{folder}/Backup of Lisbon/IMG_{4000 + number * 7}.jpg",
                  next(p for p in plan.entries if "Lisbon" in p and f"IMG_{4000 + number * 7}." in p), 200)


def music(plan, folder):
    for number in range(9):
        album = f"{folder}/{title(plan.random)}/{title(plan.random)} {number + 1}"
        kind = "flac" if number == 0 else plan.random.choice(("mp3", "m4a"))
        plan.many(album, 10, 170 if number == 0 else 42, lambda n: f"{n + 1:02d} {title(plan.random)}.{kind}", (40, 1400))


def films(plan, folder):
    plan.file(f"{folder}/Wedding, uncut.mov", 940, 1130)
    plan.file(f"{folder}/Holiday 2024.mp4", 520, 320)
    plan.file(f"{folder}/Drone/Lofoten north shore.mov", 310, 96)
    plan.file(f"{folder}/Screen recording.webm", 64, 3)
    plan.copy(f"{folder}/Drone/Lofoten north shore (1).mov", f"{folder}/Drone/Lofoten north shore.mov", 60)


def documents(plan, folder):
    for year in (2021, 2022, 2023, 2024, 2025):
        age = (2026 - year) * 300
        plan.many(f"{folder}/Taxes/{year}", 8, 6, lambda n: f"Receipt {n + 1}.pdf", (age, age + 120))
    plan.many(f"{folder}/Papers", 14, 52, lambda n: f"{title(plan.random)} {n}.pdf", (10, 700))
    plan.file(f"{folder}/Slides/Annual review.pptx", 88, 45)
    plan.copy(f"{folder}/Slides/Annual review (copy).pptx", f"{folder}/Slides/Annual review.pptx", 44)
    plan.copy(f"{folder}/Old desktop/Annual review.pptx", f"{folder}/Slides/Annual review.pptx", 30)
    plan.file(f"{folder}/Budget.xlsx", 1.2, 1)
    plan.text(f"{folder}/Notes.md", "# Notes\n\n- call the plumber\n", 1)
    plan.text(f"{folder}/Список покупок.txt", "хлеб, молоко\n", 6)
    plan.text(f"{folder}/日本語のメモ.txt", "覚え書き\n", 80)
    plan.file(f"{folder}/" + "A very long title " * 10 + "for a report.pdf", 3, 700)
    plan.text(os.fsdecode(os.fsencode(folder) + b"/r\xe9sum\xe9 old.txt"), "written long ago\n", 1095)
    plan.folder(f"{folder}/Empty folder", 400)
    deep = f"{folder}/Archive"
    for level in range(30):
        deep += f"/{2000 + level % 26} {plan.random.choice(SECOND)}"
    plan.file(f"{deep}/the bottom.docx", 4, 1500)
    # Two names of the same file, counted once.
    plan.file(f"{folder}/Thesis/Thesis.zip", 74, 1200)
    plan.hard_link(f"{folder}/Thesis/Thesis as handed in.zip", f"{folder}/Thesis/Thesis.zip")
    plan.symbolic_link(f"{folder}/Latest thesis", "Thesis/Thesis.zip")
    # Removed and restored by --grow, which works at every scale because these are never smaller.
    plan.file(f"{folder}/Moving house/Inventory with pictures.pdf", 34, 330, least=26)
    plan.file(f"{folder}/Moving house/Contract.pdf", 2, 330)


def downloads(plan, folder, installers):
    for name, megabytes, days in installers:
        plan.file(f"{folder}/{name}", megabytes, days)
    plan.file(f"{folder}/dataset.tar.gz", 92, 210)
    plan.file(f"{folder}/fonts.zip", 14, 90)
    plan.copy(f"{folder}/fonts (1).zip", f"{folder}/fonts.zip", 89)
    plan.file(f"{folder}/Tickets.pdf", 0.4, 1)
    plan.file(f"{folder}/lecture.mp4", 130, 260)
    plan.file(f"{folder}/half a film.mkv.part", 45, 4)


def copies(plan, folder):
    """Sets of files of the same content, at any scale of a size at which they are looked for."""
    plan.sparse(f"{folder}/Atlas/tile 00.map", 2.1, 300, least=2.1)
    for number in range(1, 40):
        plan.sparse(f"{folder}/Atlas/tile {number:02d}.map", 2.1, 300, head=f"{folder}/Atlas/tile 00.map")
    plan.file(f"{folder}/Panorama.tif", 6, 150, least=4)
    plan.clone(f"{folder}/Panorama, as sent.tif", f"{folder}/Panorama.tif", 149)
    plan.file(f"{folder}/Interview.wav", 9, 80, least=3)
    plan.copy(f"{folder}/Interview (1).wav", f"{folder}/Interview.wav", 79)
    plan.copy(f"{folder}/For the radio/Interview.wav", f"{folder}/Interview.wav", 20)
    plan.hard_link(f"{folder}/For the radio/Interview, linked.wav", f"{folder}/Interview.wav")
    # As large, and another one.
    plan.copy(f"{folder}/Interview, second.wav", f"{folder}/Interview.wav", 60)
    plan.entries[f"{folder}/Interview, second.wav"] = (*plan.entries[f"{folder}/Interview, second.wav"][:3], "second")


def packages(plan, folder, count, megabytes, days):
    """A folder of installed packages: many small files."""
    for number in range(count):
        name = f"{plan.random.choice(EXTRA)}-{plan.random.choice(FIRST)}-{number}"
        plan.text(f"{folder}/{name}/package.json", f'{{"name": "{name}", "version": "1.{number}.0"}}\n', days)
        plan.many(f"{folder}/{name}/lib", 4, megabytes / count, lambda n: f"{EXTRA[n]}.js", (days, days + 60))


def projects(plan, folder):
    """Projects with everything that is recognised by its name alone, on every system."""
    shop = f"{folder}/lantern-shop"
    plan.text(f"{shop}/package.json", '{"name": "lantern-shop"}\n', 2)
    packages(plan, f"{shop}/node_modules", 70, 140, 12)
    plan.many(f"{shop}/.next/cache", 12, 95, lambda n: f"{n}.pack", (1, 5))
    plan.many(f"{shop}/.turbo/cache", 4, 18, lambda n: f"{n:016x}.tar.zst", (1, 9))
    plan.aged(shop, 2)
    old = f"{folder}/old-portfolio"
    plan.text(f"{old}/package.json", '{"name": "old-portfolio"}\n', 1095)
    packages(plan, f"{old}/node_modules", 40, 85, 1095)
    plan.text(f"{old}/.vercel/project.json", "{}\n", 1095)
    plan.aged(old, 1095)
    notes = f"{folder}/field-notes-app"
    plan.text(f"{notes}/App.js", "export default 1;\n", 150)
    plan.many(f"{notes}/.expo/web/cache", 6, 42, lambda n: f"{n}.bin", (150, 160))
    plan.many(f"{notes}/android/.gradle/8.4", 3, 9, lambda n: f"file{n}.bin", (150, 160))
    plan.aged(notes, 150)
    tides = f"{folder}/tides"
    plan.text(f"{tides}/Cargo.toml", '[package]\nname = "tides"\n', 20)
    plan.text(f"{tides}/src/main.rs", "fn main() {}\n", 20)
    plan.many(f"{tides}/target/debug/deps", 24, 260, lambda n: f"libtides_{n:04x}.rlib", (20, 30))
    plan.aged(tides, 20)
    lab = f"{folder}/weather-lab"
    plan.text(f"{lab}/forecast.py", "print('rain')\n", 60)
    plan.many(f"{lab}/__pycache__", 6, 1, lambda n: f"module{n}.cpython-311.pyc", (60, 61))
    plan.many(f"{lab}/.venv/lib/python3.11/site-packages/numbers_kit", 20, 130, lambda n: f"part{n}.so", (60, 70))
    plan.aged(lab, 60)
    # A "target" without a Cargo.toml beside it is not a build folder.
    plan.many(f"{folder}/archery/target", 5, 12, lambda n: f"score {n}.csv", (20, 300))
    plan.many(f"{folder}/tides/.git/objects/pack", 2, 24, lambda n: f"pack-{n}.pack", (20, 40))
    for path in (f"{shop}/node_modules", f"{shop}/.next", f"{shop}/.turbo", f"{old}/node_modules", f"{old}/.vercel",
                 f"{notes}/.expo", f"{notes}/android/.gradle", f"{tides}/target", f"{lab}/__pycache__", f"{lab}/.venv"):
        plan.cleanable(path)
    plan.many(".gradle/caches/modules-2/files-2.1", 14, 120, lambda n: f"{n:08x}/library-{n}.jar", (30, 300))
    plan.many(".npm/_cacache/content-v2/sha512", 40, 110, lambda n: f"{n:02x}/{n * 37:08x}", (2, 300))
    plan.cleanable(".gradle")
    plan.cleanable(".npm/_cacache")


def virtual_machines(plan, folder):
    plan.file(f"{folder}/Old Windows.vdi", 330, 1100)
    plan.file(f"{folder}/Build server.qcow2", 240, 25)
    plan.file(f"{folder}/Router.vmdk", 72, 640)
