# SPDX-License-Identifier: MIT
"""What can be said of a package without installing it."""
import hashlib
import json
import subprocess
import tempfile
from pathlib import Path

ID = "io.github.zelk.Zelk"
PROGRAMS = ("usr/bin/zelk", "usr/bin/zelk-survey", "usr/libexec/zelk-admin")


class Wrong(Exception):
    """The package is not as it must be."""


def output(*command):
    """What the command prints; it is wrong if it fails."""
    ran = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if ran.returncode != 0:
        raise Wrong(f"{command[0]} gives {ran.returncode}:\n{ran.stdout}")
    return ran.stdout


def silent(*command):
    said = output(*command)
    if said.strip():
        raise Wrong(f"{command[0]} says:\n{said}")


def check_desktop(root):
    share = root / "usr/share"
    silent("desktop-file-validate", share / f"applications/{ID}.desktop")
    output("appstreamcli", "validate", "--no-net", share / f"metainfo/{ID}.metainfo.xml")
    # The parts of the tree that belong together, such as the icon of the entry.
    output("appstreamcli", "validate-tree", "--no-net", root)
    for page in sorted(share.glob("man/man*/*")):
        silent("sh", "-c", 'gzip -dc "$0" | mandoc -T lint -W warning', page)


def check_hardening(root):
    for name in PROGRAMS:
        # The C library's start-up code is not marked as tracked, so no program is as a whole; see below.
        exempt = ["--nocfprotection"]
        if name.endswith("admin"):
            exempt.append("--nofortify")  # all that it copies are strings of lengths that no compiler knows
        output("hardening-check", *exempt, root / name)
        # Every function that is called through a pointer begins with a mark, where processors know it.
        if "x86-64" in output("readelf", "-h", root / name):
            marks = output("objdump", "-d", "--no-show-raw-insn", root / name).count("endbr64")
            if marks < 50:
                raise Wrong(f"{name} has {marks} marks for indirect branch tracking")


def digest(kind, path):
    return {"algorithm": kind.upper(), "checksumValue": hashlib.new(kind, path.read_bytes()).hexdigest()}


def check_parts(root, package):
    """The list of parts beside the package has every file with its digests, and whatever the package depends on."""
    parts = json.loads(package.with_suffix(".spdx.json").read_text())
    if parts["spdxVersion"] != "SPDX-2.3":
        raise Wrong("the list of parts is no SPDX 2.3")
    ids = [parts["SPDXID"]] + [each["SPDXID"] for each in parts["packages"] + parts["files"]]
    if len(ids) != len(set(ids)):
        raise Wrong("two parts have one identifier")
    related = {each["relatedSpdxElement"] for each in parts["relationships"]}
    if related != set(ids) - {parts["SPDXID"]}:
        raise Wrong(f"the list of parts says not of everything what it is: {related ^ set(ids)}")

    files = {f"./{file.relative_to(root)}": file for file in root.rglob("*") if file.is_file()}
    listed = {each["fileName"]: each["checksums"] for each in parts["files"]}
    if files.keys() != listed.keys():
        raise Wrong(f"the list of parts and the package differ in {files.keys() ^ listed.keys()}")
    for name, file in files.items():
        if listed[name] != [digest("sha1", file), digest("sha256", file)]:
            raise Wrong(f"the list of parts has another {name}")

    packages = {each["name"]: each for each in parts["packages"]}
    own = packages.pop("zelk")
    if own["checksums"] != [digest("sha256", package)]:
        raise Wrong("the list of parts is of another package")
    if own["versionInfo"] != output("dpkg-deb", "-f", package, "Version").strip():
        raise Wrong("the list of parts is of another version")
    depends = output("dpkg-deb", "-f", package, "Depends").strip()
    missing = {each.split()[0] for each in depends.split(", ")} - packages.keys()
    if missing:
        raise Wrong(f"the list of parts lacks {missing}")
    if not all(each["versionInfo"] for each in packages.values()):
        raise Wrong("a part has no version")
    return f"{len(files)} files and {len(packages)} packages in the list of parts"


def check_files(package):
    """Raises Wrong, or gives a remark."""
    silent("lintian", "--allow-root", "-I", "-E", "--pedantic", "--tag-display-limit", "0", package)
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        output("dpkg-deb", "-x", package, root)
        check_desktop(root)
        check_hardening(root)
        return check_parts(root, package)
