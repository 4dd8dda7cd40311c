# SPDX-License-Identifier: MIT
"""The self-test of tools/macos_bundle_check: a right bundle, made of nothing, in which each mistake must be found."""
import os
import plistlib
import shutil
import struct
import tempfile
import zlib
from pathlib import Path

import bundle
import icns
import mach_o

SIDES = {"icp4": 16, "icp5": 32, "ic07": 128, "ic08": 256, "ic09": 512, "ic10": 1024}
MODULES = ("QtQuick", "QtQuick.Templates")
ARM64 = 0x0100000C


def disc(side, inside=(250, 160, 40), rim=(40, 30, 50)):
    """A disc of two colours on a transparent ground, as pixels."""
    rows = bytearray()
    for y in range(side):
        for x in range(side):
            away = ((2 * x + 1 - side) ** 2 + (2 * y + 1 - side) ** 2) / side ** 2
            colour = inside if away < 0.4 else rim if away < 0.8 else None
            rows += bytes((*colour, 255)) if colour else bytes(4)
    return bytes(rows)


def grown(pixels, side, wanted):
    """The same drawing in a multiple of the size."""
    times, out = wanted // side, bytearray()
    for y in range(side):
        row = b"".join(pixels[4 * (y * side + x):4 * (y * side + x) + 4] * times for x in range(side))
        out += row * times
    return bytes(out)


def png(side, pixels):
    raw = b"".join(b"\0" + pixels[4 * side * y:4 * side * (y + 1)] for y in range(side))

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    head = struct.pack(">2I5B", side, side, 8, 6, 0, 0, 0)
    return icns.PNG + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(raw, 1)) + chunk(b"IEND", b"")


def icon(elements):
    body = b"".join(struct.pack(">4sI", name.encode(), len(data) + 8) + data for name, data in elements.items())
    return struct.pack(">4sI", b"icns", len(body) + 8) + body


def right_elements():
    small = disc(16)
    return {name: png(side, grown(small, 16, side)) for name, side in SIDES.items()}


def program(kind=mach_o.PROGRAM, rpaths=(bundle.FRAMEWORKS,), libraries=("/usr/lib/libSystem.B.dylib",),
            minimum=(13, 0), signed=True, flags=mach_o.POSITION_INDEPENDENT, platform=mach_o.MACOS):
    def with_text(command, head, text):
        data = text.encode() + b"\0"
        start = 8 + len(head)
        size = (start + len(data) + 7) // 8 * 8
        return struct.pack("<2I", command, size) + head + data.ljust(size - start, b"\0")

    parts = [with_text(mach_o.SEARCHED, struct.pack("<I", 12), rpath) for rpath in rpaths]
    parts += [with_text(mach_o.LOADED, struct.pack("<4I", 24, 2, 0, 0), name) for name in libraries]
    version = minimum[0] << 16 | minimum[1] << 8
    parts.append(struct.pack("<6I", mach_o.BUILT_FOR, 24, platform, version, version, 0))
    if signed:
        parts.append(struct.pack("<4I", mach_o.SIGNED, 16, 0, 0))
    body = b"".join(parts)
    return struct.pack("<8I", mach_o.MAGIC, ARM64, 0, kind, len(parts), len(body), flags, 0) + body


def universal(*files):
    head, at, body = struct.pack(">2I", mach_o.UNIVERSAL, len(files)), 4096, b""
    for file in files:
        head += struct.pack(">5I", ARM64, 0, at + len(body), len(file), 12)
        body += file
    return head.ljust(at, b"\0") + body


def description(facts):
    texts = {key: f"Zelk reads the names, sizes and dates of what is in place {number} to show what takes up space."
             for number, key in enumerate(bundle.USAGES)}
    return facts.entries() | texts | {"CFBundleVersion": "7"}


def write(path: Path, data):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data if isinstance(data, bytes) else data.encode())
    return path


def make_bundle(folder: Path, facts, elements):
    contents = folder / "Zelk.app/Contents"
    write(contents / "Info.plist", plistlib.dumps(description(facts)))
    write(contents / "Resources/Zelk.icns", icon(elements))
    write(contents / "Resources/qt.conf", "[Paths]\n")
    for language in facts.translated:
        write(contents / f"Resources/translations/zelk_{language}.qm", b"words")
    core = "@rpath/QtCore.framework/Versions/A/QtCore"
    for name in bundle.PROGRAMS:
        write(contents / "MacOS" / name, program(libraries=("/usr/lib/libSystem.B.dylib", core))).chmod(0o755)
    for name in ("QtCore", "QtQuick"):
        framework = contents / f"Frameworks/{name}.framework"
        older = program(mach_o.LIBRARY, rpaths=(), minimum=(11, 0))
        write(framework / f"Versions/A/{name}", universal(older, older))
        os.symlink(f"Versions/A/{name}", framework / name)
    plugin = program(mach_o.PLUGIN, rpaths=("@loader_path/../../Frameworks",), libraries=(core,), minimum=(12, 0))
    write(contents / "PlugIns/platforms/libqcocoa.dylib", plugin)
    for module in MODULES:
        name = module.lower().replace(".", "")
        place = contents / "Resources/qml" / module.replace(".", "/")
        write(contents / f"PlugIns/lib{name}plugin.dylib",
              program(mach_o.PLUGIN, rpaths=("@loader_path/../Frameworks",), libraries=(core,), minimum=(12, 0)))
        write(place / "qmldir", f"module {module}\noptional plugin {name}plugin\n")
        up = "../" * (3 + module.count("."))
        os.symlink(f"{up}PlugIns/lib{name}plugin.dylib", place / f"lib{name}plugin.dylib")
    return folder / "Zelk.app"


def replaced(path, old, new, times=-1):
    return lambda made: write(made / path, (made / path).read_bytes().replace(old, new, times))


def put(path, data):
    return lambda made: write(made / path, data)


def away(path):
    def remove(made):
        (shutil.rmtree if (made / path).is_dir() and not (made / path).is_symlink() else os.remove)(made / path)
    return remove


def link(path, target):
    return lambda made: os.symlink(target, made / path)


MAIN = "Contents/MacOS/Zelk"
IN_BUNDLE = {
    "a program without a way to the libraries": put(MAIN, program(rpaths=())),
    "a program that looks in the folder of the build too":
        put(MAIN, program(rpaths=(bundle.FRAMEWORKS, "/opt/homebrew/lib"))),
    "a program for a newer system": put(MAIN, program(minimum=(14, 0))),
    "a program for an older system": put(MAIN, program(minimum=(12, 0))),
    "a program for another platform": put(MAIN, program(platform=2)),
    "a program that is a library": put(MAIN, program(kind=mach_o.LIBRARY)),
    "a program at a fixed address": put(MAIN, program(flags=0)),
    "a program without a signature": put(MAIN, program(signed=False)),
    "a program of Linux": put(MAIN, b"\x7fELF" + bytes(60)),
    "a program that is cut off": put(MAIN, program()[:60]),
    "a program whose commands are longer than their table": put(MAIN, program()[:20] + bytes(4) + program()[24:]),
    "a program that may not be run": lambda made: (made / MAIN).chmod(0o644),
    "no program for the terminal": away("Contents/MacOS/zelk-survey"),
    "a library of Homebrew": put(MAIN, program(libraries=("/opt/homebrew/opt/libplist/lib/libplist-2.0.dylib",))),
    "a library that was not put there": put(MAIN, program(libraries=("@rpath/libplist-2.0.dylib",))),
    "a library for a newer system":
        put("Contents/Frameworks/QtCore.framework/Versions/A/QtCore", program(mach_o.LIBRARY, minimum=(14, 0))),
    "one processor's half for a newer system":
        put("Contents/Frameworks/QtCore.framework/Versions/A/QtCore",
            universal(program(mach_o.LIBRARY), program(mach_o.LIBRARY, minimum=(15, 1)))),
    "no toolkit": away("Contents/Frameworks/QtQuick.framework"),
    "no plugin for the window system": away("Contents/PlugIns/platforms/libqcocoa.dylib"),
    "no module of the views": away("Contents/Resources/qml/QtQuick/Templates"),
    "a module without its plugin": away("Contents/Resources/qml/QtQuick/libqtquickplugin.dylib"),
    "a plugin that is only linked": away("Contents/PlugIns/libqtquicktemplatesplugin.dylib"),
    "a link out of the bundle": link("Contents/Resources/outside", "/usr/bin/true"),
    "no words of a language": away("Contents/Resources/translations/zelk_pt_BR.qm"),
    "no description": away("Contents/Info.plist"),
    "no icon": away("Contents/Resources/Zelk.icns"),
    "a bundle of another name": lambda made: made.rename(made.with_name("zelk-survey.app")),
}


def in_description(facts):
    """Each with the description in which it was made."""
    right = description(facts)
    for key in right:
        yield f"no {key}", {other: value for other, value in right.items() if other != key}
    for key, value in {"CFBundleShortVersionString": "0.0.9", "LSMinimumSystemVersion": "14.0",
                       "CFBundleIdentifier": "io.github.zelk.zelk", "CFBundleName": "zelk",
                       "CFBundleExecutable": "zelk", "CFBundlePackageType": "BNDL", "CFBundleVersion": "1.2.3.4",
                       "NSHighResolutionCapable": "true", "CFBundleLocalizations": ["en", "tlh"],
                       "LSUIElement": True, "NSAppleEventsUsageDescription": "Zelk asks other applications.",
                       "NSAppDataUsageDescription": "", "NSDesktopFolderUsageDescription": "@TEXT@",
                       "NSDocumentsFolderUsageDescription": right["NSDownloadsFolderUsageDescription"]}.items():
        yield f"{key} = {value!r}", right | {key: value}


SANDBOX = "com.apple.security.app-sandbox"
IN_ENTITLEMENTS = {
    "no entitlement": plistlib.dumps({}),
    "an entitlement that is off": plistlib.dumps({key: False for key in bundle.ENTITLEMENTS}),
    "an entitlement too many": plistlib.dumps(bundle.ENTITLEMENTS | {SANDBOX: True}),
    "another entitlement that is off": plistlib.dumps(bundle.ENTITLEMENTS | {SANDBOX: False}),
    "a comment in the entitlements": plistlib.dumps(bundle.ENTITLEMENTS).replace(b"<dict>", b"<dict><!-- why -->"),
    "entitlements that are cut off": plistlib.dumps(bundle.ENTITLEMENTS)[:-20],
}


def in_icon(right):
    """Each with the elements in which it was made."""
    for name, side in SIDES.items():
        yield f"no picture of {side}", icon({other: data for other, data in right.items() if other != name})
    yield "a blank picture", icon(right | {"ic09": png(512, bytes(4 * 512 * 512))})
    yield "a picture of one colour", icon(right | {"ic09": png(512, bytes((9, 9, 9, 255)) * 512 * 512)})
    other = grown(disc(16, inside=(20, 90, 200)), 16, 256)
    yield "a picture of something else", icon(right | {"ic08": png(256, other)})
    yield "a picture of another size", icon(right | {"ic08": right["ic07"]})
    yield "a picture that is cut off", icon(right | {"ic08": right["ic08"][:90]})
    yield "a picture in an unknown form", icon(right | {"ic08": b"GIF89a" + bytes(40)})
    yield "an icon that is cut off", icon(right)[:-9]
    yield "an icon with something behind it", icon(right) + b"more"
    yield "a mask that is missing", icon(right | {"is32": bytes((255, 9)) * 5 + bytes((243, 9))})
    yield "runs that are too long", icon(right | {"is32": bytes((255, 9)) * 6, "s8mk": bytes(256)})


def make_sources(folder: Path, organization="zelk.github.io", application="Zelk", viewed="QtQuick", deployed="QtQuick"):
    write(folder / "src/state/SettingsPreferences.h",
          f'#ifdef Q_OS_MACOS\n        return QStringLiteral("{organization}");\n')
    write(folder / "src/ui/shell/Application.cpp", f'setApplicationName(QStringLiteral("{application}"));\n')
    write(folder / "src/ui/screens/View.qml", f"import {viewed}\nimport Zelk.Controls\n")
    write(folder / "src/app/BundledImports.qml", f"import {deployed}\n")
    return folder


IN_SOURCES = {
    "preferences of another identifier": {"organization": "Zelk"},
    "an application of another name": {"application": "zelk"},
    "an import that is not deployed": {"viewed": "QtQuick.Controls"},
    "an import that no view has": {"deployed": "QtQuick.Dialogs"},
}


INSTALLS, SCANNED = "packaging/macos/cmake_install.cmake", "src/app/.qt_plugins/Qt6_QmlPlugins_Imports_zelk.cmake"
SCRIPT = ".qt/deploy_qml_app_zelk_0"


def make_project(folder: Path, facts):
    """What is read of the project once CMake has configured it for macOS."""
    write(folder / "src/app/Zelk.app/Contents/Info.plist", plistlib.dumps(description(facts)))
    write(folder / SCRIPT, "qt6_deploy_qml_imports(TARGET zelk PLUGINS_FOUND found)\nEXECUTABLE Zelk.app\n")
    write(folder / INSTALLS, f'-add_rpath "{bundle.FRAMEWORKS}" Zelk\n-add_rpath "{bundle.FRAMEWORKS}" zelk-survey\n'
                             f'include("{folder}/{SCRIPT}")\n')
    write(folder / SCANNED, "".join(f'"X;NAME;{module};PATH;/qml;PLUGIN;plugin;"\n' for module in MODULES))
    return folder


IN_PROJECT = {
    "another description": replaced("src/app/Zelk.app/Contents/Info.plist", b"APPL", b"BNDL"),
    "no deploy script": replaced(INSTALLS, b"include", b"#"),
    "a deploy script for no views": replaced(SCRIPT, b"qt6_deploy_qml_imports", b"# "),
    "a deploy script for another bundle": replaced(SCRIPT, b"Zelk.app", b"zelk.app"),
    "one program without a way to the libraries": replaced(INSTALLS, b"-add_rpath", b"", 1),
    "a deploy script that comes first": lambda made: write(made / INSTALLS, b"".join(reversed(
        (made / INSTALLS).read_bytes().splitlines(keepends=True)))),
    "a module that is not found": replaced(SCANNED, b"QtQuick.Templates", b"QtQuick.Other"),
    "a module without a plugin": replaced(SCANNED, b"PLUGIN;", b""),
}


def all_found(facts, say):
    """Says what was not found; returns whether everything was."""
    wrong, count = [], 0
    facts = bundle.Facts(facts.version, facts.minimum, ["de", "pt_BR"])

    def expect(name, faults, any_fault=True):
        nonlocal count
        count += any_fault
        if bool(faults) != any_fault:
            wrong.append(f"{name}: " + ("not found" if any_fault else "; ".join(faults)))

    elements = right_elements()
    target = f"aarch64-macos.{facts.minimum}"
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        made = make_bundle(folder / "right", facts, elements)
        expect("a right bundle", bundle.bundle_faults(made, facts, MODULES), False)
        for mistake, make in IN_BUNDLE.items():
            shutil.rmtree(folder / "wrong", ignore_errors=True)
            shutil.copytree(made.parent, folder / "wrong", symlinks=True)
            make(folder / "wrong/Zelk.app")
            left = next((folder / "wrong").iterdir())
            expect(mistake, bundle.bundle_faults(left, facts, MODULES))

        expect("a right description", bundle.plist_faults(plistlib.dumps(description(facts)), facts), False)
        for mistake, entries in in_description(facts):
            expect(mistake, bundle.plist_faults(plistlib.dumps(entries), facts))
        expect("a description that is none", bundle.plist_faults(b"<plist><dict>", facts))

        expect("right entitlements", bundle.entitlement_faults(plistlib.dumps(bundle.ENTITLEMENTS)), False)
        for mistake, content in IN_ENTITLEMENTS.items():
            expect(mistake, bundle.entitlement_faults(content))

        expect("a right icon", bundle.icon_faults(write(folder / "right.icns", icon(elements))), False)
        for mistake, content in in_icon(elements):
            expect(mistake, bundle.icon_faults(write(folder / "wrong.icns", content)))
        expect("an element too many", bundle.icon_faults(folder / "right.icns", bundle.BY_PNG2ICNS))

        expect("right sources", bundle.source_faults(make_sources(folder / "sources"), facts, target), False)
        for mistake, parts in IN_SOURCES.items():
            expect(mistake, bundle.source_faults(make_sources(folder / "sources", **parts), facts, target))
        expect("a compiler for another system",
               bundle.source_faults(make_sources(folder / "sources"), facts, "aarch64-macos.12.0"))

        project = make_project(folder / "project", facts)
        expect("a right project", bundle.deployment_faults(project, facts, MODULES), False)
        for mistake, make in IN_PROJECT.items():
            make(make_project(project, facts))
            expect(mistake, bundle.deployment_faults(project, facts, MODULES))
    for line in wrong:
        say(line)
    say("the self-test failed" if wrong else f"{count} mistakes, all found")
    return not wrong
