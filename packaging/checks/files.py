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
    for page in sorted((share / "man/man1").iterdir()):
        silent("sh", "-c", 'gzip -dc "$0" | mandoc -T lint -W warning', page)


def check_hardening(root):
    for name in PROGRAMS:
        output("hardening-check", root / name)
        notes = output("readelf", "-n", root / name)
        if "x86-64" in output("readelf", "-h", root / name) and not ("IBT" in notes and "SHSTK" in notes):
            raise Wrong(f"{name} has a part without indirect branch tracking or a shadow stack")


def needed(program):
    return [line.split("[")[1].rstrip("]") for line in output("readelf", "-d", program).splitlines() if "(NEEDED)" in line]


def check_parts(root, package):
    """The list of parts has every file with its digest, and whatever the package depends on."""
    path = root / "usr/share/doc/zelk/zelk.spdx.json"
    parts = json.loads(path.read_text())
    if parts["spdxVersion"] != "SPDX-2.3":
        raise Wrong("the list of parts is no SPDX 2.3")
    ids = [parts["SPDXID"]] + [each["SPDXID"] for each in parts["packages"] + parts["files"]]
    if len(ids) != len(set(ids)):
        raise Wrong("two parts have one identifier")
    related = {each["relatedSpdxElement"] for each in parts["relationships"]}
    if not related | {each["spdxElementId"] for each in parts["relationships"]} <= set(ids):
        raise Wrong("the list of parts relates what it does not have")
    if set(ids) - related - {parts["SPDXID"]}:
        raise Wrong(f"nothing says what these are to Zelk: {set(ids) - related}")

    files = {f"./{file.relative_to(root / 'usr')}": file for file in root.rglob("*") if file.is_file() and file != path}
    listed = {each["fileName"]: {sum["algorithm"]: sum["checksumValue"] for sum in each["checksums"]}
              for each in parts["files"]}
    for name in files.keys() ^ listed.keys():
        raise Wrong(f"the list of parts and the package differ in {name}")
    for name, file in files.items():
        content = file.read_bytes()
        if listed[name] != {"SHA1": hashlib.sha1(content).hexdigest(), "SHA256": hashlib.sha256(content).hexdigest()}:
            raise Wrong(f"the list of parts has another {name}")

    versions = {each["name"]: each["versionInfo"] for each in parts["packages"]}
    if versions.pop("zelk") != output("dpkg-deb", "-f", package, "Version").strip():
        raise Wrong("the list of parts is of another version")
    depends = output("dpkg-deb", "-f", package, "Depends").strip()
    missing = {each.split()[0] for each in depends.split(", ")} - versions.keys()
    if missing:
        raise Wrong(f"the list of parts lacks {missing}")
    if not all(versions.values()):
        raise Wrong("a part has no version")
    return f"{len(files)} files and {len(versions)} packages in the list of parts"


def check_files(package):
    """Raises Wrong, or gives a remark."""
    silent("lintian", "-I", "-E", "--pedantic", "--tag-display-limit", "0", package)
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        output("dpkg-deb", "-x", package, root)
        check_desktop(root)
        check_hardening(root)
        return check_parts(root, package)
