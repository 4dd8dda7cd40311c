# SPDX-License-Identifier: MIT
"""What the application bundle of macOS must be. Each function returns what is wrong, one line for each fault."""
import os
import plistlib
import re
from dataclasses import dataclass
from pathlib import Path

import icns
import mach_o

ENTITLEMENTS = {"com.apple.security.cs.allow-jit": True}
FRAMEWORKS = "@executable_path/../Frameworks"
SYSTEM = ("/usr/lib/", "/System/Library/")
PROGRAMS = ("Zelk", "zelk-survey")
# Asked by the system in the middle of a survey.
USAGES = ("NSDesktopFolderUsageDescription", "NSDocumentsFolderUsageDescription", "NSDownloadsFolderUsageDescription",
          "NSRemovableVolumesUsageDescription", "NSNetworkVolumesUsageDescription",
          "NSFileProviderDomainUsageDescription", "NSAppDataUsageDescription")
SIDES = {16, 32, 128, 256, 512, 1024}
BY_PNG2ICNS = {"is32", "s8mk", "il32", "l8mk", "it32", "t8mk", "ic08", "ic09", "ic10"}
GRID = 8
IMPORT = re.compile(r"^import\s+([A-Z][A-Za-z0-9.]*)", re.MULTILINE)


def only(pattern, path):
    """What the one place in the file says that has this form."""
    found = re.findall(pattern, path.read_text())
    if len(found) != 1:
        raise SystemExit(f"{path}: {len(found)} places look like {pattern}")
    return found[0]


@dataclass
class Facts:
    """What the rest of the project says about the same things."""
    version: str
    minimum: str
    translated: list

    @staticmethod
    def of(root: Path):
        lists = root / "CMakeLists.txt"
        translated = sorted(name.stem.removeprefix("zelk_") for name in (root / "translations").glob("zelk_*.ts"))
        return Facts(version=only(r"project\(Zelk VERSION ([0-9.]+) ", lists),
                     minimum=only(r"set\(CMAKE_OSX_DEPLOYMENT_TARGET ([0-9.]+)\)", lists),
                     translated=translated)

    def entries(self):
        """Every entry of the description with its value, but for the build number and the usages."""
        return {"CFBundleDevelopmentRegion": "en",
                "CFBundleDisplayName": "Zelk",
                "CFBundleExecutable": "Zelk",
                "CFBundleIconFile": "Zelk.icns",
                "CFBundleIdentifier": "io.github.zelk.Zelk",
                "CFBundleInfoDictionaryVersion": "6.0",
                "CFBundleLocalizations": ["en", *(language.replace("_", "-") for language in self.translated)],
                "CFBundleName": "Zelk",
                "CFBundlePackageType": "APPL",
                "CFBundleShortVersionString": self.version,
                "LSApplicationCategoryType": "public.app-category.utilities",
                "LSMinimumSystemVersion": self.minimum,
                "NSHighResolutionCapable": True,
                "NSPrincipalClass": "NSApplication"}


def parsed(content):
    try:
        found = plistlib.loads(content)
    except Exception as error:  # whatever expat says
        return None, [f"is no property list: {error}"]
    return (found, []) if isinstance(found, dict) else (None, ["is no dictionary"])


def plist_faults(content: bytes, facts: Facts):
    found, faults = parsed(content)
    if found is None:
        return faults
    wanted = facts.entries()
    for key, value in wanted.items():
        if key not in found:
            faults.append(f"{key} is missing")
        elif found[key] != value or type(found[key]) is not type(value):
            faults.append(f"{key} is {found[key]!r}, not {value!r}")
    build = found.get("CFBundleVersion")
    if not isinstance(build, str) or not re.fullmatch(r"[0-9]+(\.[0-9]+){0,2}", build):
        faults.append(f"CFBundleVersion is {build!r}, not one to three numbers")
    for key in USAGES:
        text = found.get(key)
        if not isinstance(text, str):
            faults.append(f"{key} is missing")
        elif "Zelk" not in text or not text.endswith(".") or not 60 <= len(text) <= 240:
            faults.append(f"{key} does not tell a person in a sentence or two what Zelk does there: {text!r}")
    texts = [found[key] for key in USAGES if key in found]
    if len(set(map(str, texts))) != len(texts):
        faults.append("two places are described by the same words")
    for key in sorted(found.keys() - wanted.keys() - set(USAGES) - {"CFBundleVersion"}):
        faults.append(f"{key} does not belong there")
    return faults


def entitlement_faults(content: bytes):
    found, faults = parsed(content)
    if found is None:
        return faults
    for key, value in ENTITLEMENTS.items():
        if found.get(key) is not value:
            faults.append(f"{key} is not {value}")
    faults += [f"{key} is more than Zelk needs" for key in sorted(found.keys() - ENTITLEMENTS.keys())]
    # The kernel's own parser, unlike that of codesign, has failed on them.
    if b"<!--" in content:
        faults.append("has a comment")
    return faults


def mosaic(picture):
    """The mean of every channel, weighted by opacity, in GRID by GRID parts."""
    side, step = picture.side, picture.side // GRID
    cells = []
    for row in range(GRID):
        for column in range(GRID):
            sums, count = [0, 0, 0, 0], 0
            for y in range(row * step, (row + 1) * step, max(1, step // 8)):
                for x in range(column * step, (column + 1) * step, max(1, step // 8)):
                    at = 4 * (y * side + x)
                    red, green, blue, opacity = picture.pixels[at:at + 4]
                    for channel, value in enumerate((red * opacity // 255, green * opacity // 255,
                                                     blue * opacity // 255, opacity)):
                        sums[channel] += value
                    count += 1
            cells += [total / count for total in sums]
    return cells


def picture_faults(drawn: dict):
    """Of pictures by name: that none is blank and that all show the same."""
    faults, mosaics = [], {name: mosaic(picture) for name, picture in drawn.items()}
    for name, cells in mosaics.items():
        opacity = cells[3::4]
        if max(opacity) < 250 or drawn[name].at(0, 0)[3] != 0:
            faults.append(f"element {name} is no drawing on a transparent ground")
        if max(max(cells[i::4]) - min(cells[i::4]) for i in range(3)) < 60:
            faults.append(f"element {name} is blank")
    largest = max(drawn, key=lambda name: drawn[name].side)
    for name, cells in mosaics.items():
        if max(abs(a - b) for a, b in zip(cells, mosaics[largest])) > 40:
            faults.append(f"element {name} shows something else than {largest}")
    return faults


def icon_faults(path: Path, wanted=None):
    """`wanted` are its elements, if they are known."""
    try:
        names = icns.elements(path.read_bytes()).keys()
        drawn = icns.pictures(path)
    except (OSError, ValueError) as error:
        return [str(error)]
    faults = []
    if wanted is not None and names != wanted:
        faults.append(f"has the elements {sorted(names)}, not {sorted(wanted)}")
    missing = SIDES - {picture.side for picture in drawn.values()}
    if missing:
        faults.append(f"has no picture of {sorted(missing)} pixels")
    return faults + (picture_faults(drawn) if drawn else [])


def version(text):
    return tuple(int(part) for part in text.split("."))


def resolved(library, image_path: Path, bundle: Path, rpaths):
    """The files of the bundle that a loader may take this library from; None if it looks outside of it."""
    program = bundle / "Contents/MacOS"
    places = {"@executable_path": program, "@loader_path": image_path.parent}
    head, _, rest = library.partition("/")
    if head in places:
        return [places[head] / rest]
    if head != "@rpath":
        return None
    found = []
    for rpath in rpaths:
        head, _, below = rpath.partition("/")
        if head in places:
            found.append(places[head] / below / rest)
    return found


def image_faults(path: Path, bundle: Path, facts: Facts, program_rpaths):
    """Of one program or library of the bundle."""
    faults, name = [], path.relative_to(bundle)
    for image in mach_o.images(path):
        if image.platform != mach_o.MACOS:
            faults.append(f"{name} is not for macOS")
        if image.minimum > version(facts.minimum)[:2]:
            faults.append(f"{name} needs macOS {'.'.join(map(str, image.minimum))}")
        if not image.signed:
            faults.append(f"{name} has no signature, not even one of the linker")
        faults += [f"{name} looks for libraries in {rpath}" for rpath in image.rpaths if not rpath.startswith("@")]
        for library in image.libraries:
            if library.startswith(SYSTEM):
                continue
            places = resolved(library, path, bundle, image.rpaths + program_rpaths)
            if places is None:
                faults.append(f"{name} loads {library}, which is not in the bundle")
            elif not any(place.exists() for place in places):
                faults.append(f"{name} loads {library}, which nothing in the bundle is")
    return faults


def program_faults(path: Path, facts: Facts):
    """Of a program in Contents/MacOS."""
    try:
        images = mach_o.images(path)
    except (OSError, ValueError) as error:
        return [f"{path.name}: {error}"]
    if not images:
        return [f"{path.name} is no program of macOS"]
    faults = []
    for image in images:
        if image.kind != mach_o.PROGRAM or not image.position_independent:
            faults.append(f"{path.name} is no position-independent program")
        if image.rpaths != [FRAMEWORKS]:
            faults.append(f"{path.name} looks for libraries in {image.rpaths}, not in {FRAMEWORKS} alone")
        if image.minimum != version(facts.minimum)[:2]:
            faults.append(f"{path.name} is built for macOS {'.'.join(map(str, image.minimum))}, not {facts.minimum}")
    if not os.access(path, os.X_OK):
        faults.append(f"{path.name} may not be run")
    return faults


def toolkit_faults(bundle: Path, facts: Facts, imports):
    """Of what is put beside the programs: without what the deploy tool puts there no window opens."""
    faults = []
    for part in ("Frameworks/QtCore.framework", "Frameworks/QtQuick.framework", "PlugIns/platforms/libqcocoa.dylib",
                 "Resources/qt.conf"):
        if not (bundle / "Contents" / part).exists():
            faults.append(f"Contents/{part} is missing")
    for language in facts.translated:
        if not (bundle / f"Contents/Resources/translations/zelk_{language}.qm").exists():
            faults.append(f"the translation {language} is missing")
    for module in sorted(imports):
        description = bundle / "Contents/Resources/qml" / module.replace(".", "/") / "qmldir"
        if not description.exists():
            faults.append(f"the module {module} is missing")
            continue
        for plugin in re.findall(r"^(?:optional )?plugin (\w+)", description.read_text(), re.MULTILINE):
            if not (description.parent / f"lib{plugin}.dylib").exists():
                faults.append(f"the plugin {plugin} of {module} is missing")
    return faults


def deployment_faults(project: Path, facts: Facts, imports):
    """Of what the project, configured for macOS, tells the toolkit's deploy tool, which must find the modules
    `imports`."""
    faults = []
    description = project / "src/app/Zelk.app/Contents/Info.plist"
    faults += [f"the project's Info.plist: {fault}" for fault in plist_faults(description.read_bytes(), facts)]
    installs = (project / "packaging/macos/cmake_install.cmake").read_text()
    scripts = [Path(name) for name in re.findall(r'include\("([^"]+/deploy_qml_app[^"]*)"\)', installs)]
    if len(scripts) != 1:
        return [*faults, f"cmake --install runs {len(scripts)} deploy scripts"]
    for part in ("qt_deploy_qml_imports(TARGET zelk ", "EXECUTABLE Zelk.app"):
        if part not in re.sub(r"qt6_", "qt_", scripts[0].read_text()):
            faults.append(f"the deploy script says nothing of {part}")
    if installs.count(f'-add_rpath "{FRAMEWORKS}"') != len(PROGRAMS):
        faults.append(f"cmake --install does not give each program {FRAMEWORKS}")
    if installs.find("zelk-survey") > installs.find(scripts[0].name):
        faults.append("the deploy tool runs before all programs are there")
    found = (project / "src/app/.qt_plugins/Qt6_QmlPlugins_Imports_zelk.cmake").read_text()
    deployed = set(re.findall(r";NAME;([\w.]+);PATH;[^\n]*;PLUGIN;", found))
    faults += [f"the toolkit's scanner finds no plugin of {module}"
               for module in sorted(set(imports) - deployed)]
    return faults


def bundle_faults(bundle: Path, facts: Facts, imports=(), elements=None):
    """Of a bundle as it is installed. `imports` are the modules of the toolkit that it must have, if any."""
    contents = bundle / "Contents"
    if not contents.is_dir():
        return [f"{bundle} is no bundle"]
    if bundle.name != "Zelk.app":
        return [f"it is called {bundle.name}, not Zelk.app"]
    faults = []
    try:
        faults += [f"Info.plist: {fault}" for fault in plist_faults((contents / "Info.plist").read_bytes(), facts)]
    except OSError as error:
        faults.append(str(error))
    faults += [f"Zelk.icns: {fault}" for fault in icon_faults(contents / "Resources/Zelk.icns", elements)]
    for name in PROGRAMS:
        faults += program_faults(contents / "MacOS" / name, facts)
    for path in sorted(bundle.rglob("*")):
        if path.is_symlink() and not path.exists():
            faults.append(f"{path.relative_to(bundle)} is a link that leads nowhere")
        elif path.is_symlink() and not path.resolve().is_relative_to(bundle.resolve()):
            faults.append(f"{path.relative_to(bundle)} is a link that leads out of the bundle")
        elif path.is_file() and not path.is_symlink():
            try:
                faults += image_faults(path, bundle, facts, [FRAMEWORKS])
            except ValueError as error:
                faults.append(f"{path.relative_to(bundle)}: {error}")
    if imports:
        faults += toolkit_faults(bundle, facts, imports)
    return faults


def imports_of(views):
    """The modules of the toolkit that these views import."""
    return {module for view in views for module in IMPORT.findall(view.read_text())
            if module.partition(".")[0] != "Zelk"}


def source_faults(root: Path, facts: Facts, target: str):
    """Of what other sources say about the same things as the bundle. `target` is that of the cross-compiler."""
    faults = []
    identifier = facts.entries()["CFBundleIdentifier"]
    organization = only(r'#ifdef Q_OS_MACOS\s+return QStringLiteral\("([^"]+)"\)',
                        root / "src/state/SettingsPreferences.h")
    domain = ".".join([*reversed(organization.lower().split(".")), "Zelk"])
    if domain != identifier:
        faults.append(f"the preferences are kept for {domain}, not for {identifier}")
    application = only(r'setApplicationName\(QStringLiteral\("([^"]+)"\)\)', root / "src/ui/shell/Application.cpp")
    if application != facts.entries()["CFBundleName"]:
        faults.append(f"the application calls itself {application}")
    if not target.endswith(f"-macos.{facts.minimum}"):
        faults.append(f"tools/macos_check compiles for {target}, the bundle is for macOS {facts.minimum}")
    imported = imports_of((root / "src/ui").rglob("*.qml"))
    deployed = imports_of((root / "src/app").rglob("*.qml"))
    faults += [f"a view imports {module}, which src/app/BundledImports.qml does not name"
               for module in sorted(imported - deployed)]
    faults += [f"src/app/BundledImports.qml names {module}, which no view imports"
               for module in sorted(deployed - imported)]
    return faults
