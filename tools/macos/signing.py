# SPDX-License-Identifier: MIT
"""How the application bundle of macOS is signed."""
from pathlib import Path

import mach_o

ENTITLEMENTS = Path(__file__).resolve().parents[2] / "packaging/macos/Zelk.entitlements"


def signed_parts(bundle: Path):
    """What has a signature of its own, in the order in which it is made: one covers those of what is inside. The bundle
    is the last, and its signature that of its main program; likewise with frameworks."""
    main = bundle / "Contents/MacOS/Zelk"
    frameworks = sorted((path for path in bundle.rglob("*.framework") if path.is_dir() and not path.is_symlink()),
                        key=lambda path: -len(path.parts))
    covered = {main} | {(framework / framework.stem).resolve() for framework in frameworks}
    libraries, programs = [], []
    for path in sorted(bundle.rglob("*")):
        if path.is_symlink() or not path.is_file() or path in covered or path.resolve() in covered:
            continue
        if mach_o.images(path):
            (programs if path.parent == main.parent else libraries).append(path)
    return [*libraries, *frameworks, *programs, bundle]


def command(part: Path, bundle: Path, identity: str):
    words = ["codesign", "--force", "--sign", identity]
    if identity != "-":
        # Without a team the hardened runtime would refuse the bundle's own libraries.
        words += ["--timestamp", "--options", "runtime"]
    if part == bundle:
        words += ["--entitlements", str(ENTITLEMENTS)]
    return [*words, str(part)]
