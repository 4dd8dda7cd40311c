# SPDX-License-Identifier: MIT
"""Rehearses packaging/macos/release on any system: the script itself, with stand-ins for Apple's tools that write down
what they are asked for."""
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

import bundle_mistakes

ROOT = Path(__file__).resolve().parents[2]
NEEDED = ("CMakeLists.txt", "scripts", "packaging/macos", "tools/macos")
STAND_IN = """#!/bin/sh
name=$(basename "$0")
echo "$name $*" >>"$REHEARSED"
case "$name $*" in
    "uname -m") echo arm64 ;;
    uname*) echo Darwin ;;
    uuidgen*) echo 5EC2E7 ;;
    "ditto -c"*) for last; do :; done; echo zip >"$last" ;;
    ditto*) cp -R "$1" "$2" ;;
    hdiutil*) for last; do :; done; echo image >"$last" ;;
    "security list-keychains -d user") echo '    "/Users/ada/Library/Keychains/a b.keychain-db"' ;;
    "security find-identity"*) echo "$IDENTITIES" ;;
    "xcrun notarytool"*) echo "  status: $VERDICT" ;;
esac
"""
TOOLS = ("uname", "uuidgen", "ditto", "hdiutil", "security", "codesign", "xcrun")
CERTIFICATE = {"MACOS_CERTIFICATE": "Y2VydA==", "MACOS_CERTIFICATE_PASSWORD": "secret"}
KEY = {"MACOS_NOTARY_KEY": "a2V5", "MACOS_NOTARY_KEY_ID": "KEY", "MACOS_NOTARY_ISSUER": "ISSUER"}


class Rehearsal:
    def __init__(self, folder: Path, facts):
        self.root, self.log = folder / "root", folder / "log"
        for part in NEEDED:
            (self.root / part).parent.mkdir(parents=True, exist_ok=True)
            (shutil.copytree if (ROOT / part).is_dir() else shutil.copy)(ROOT / part, self.root / part)
        bundle_mistakes.make_bundle(self.root / "build/macos/installed", facts, {})
        self.tools = folder / "tools"
        for tool in TOOLS:
            bundle_mistakes.write(self.tools / tool, STAND_IN).chmod(0o755)

    def run(self, variables, verdict="Accepted", identities='  1) ABCDEF12 "Developer ID Application: Ada"'):
        """The status, the calls and the words of the script with these variables."""
        self.log.write_text("")
        shutil.rmtree(self.root / "build/macos/packages", ignore_errors=True)
        kept = {name: value for name, value in os.environ.items() if not name.startswith("MACOS_")}
        kept |= {"PATH": f"{self.tools}:{os.environ['PATH']}", "REHEARSED": str(self.log), "VERDICT": verdict,
                 "IDENTITIES": identities}
        done = subprocess.run([self.root / "packaging/macos/release"], env=kept | variables, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        return done.returncode, self.log.read_text().splitlines(), done.stdout


def order_faults(calls):
    """Whether every part is signed before what it is in, and the bundle last."""
    signed = [Path(call.split()[-1]) for call in calls if call.startswith("codesign --force") and ".app" in call]
    if len(signed) != len(set(signed)) or not signed or signed[-1].name != "Zelk.app":
        return [f"signed, in this order: {signed}"]
    return [f"{part.name} is signed after {outer.name}, which holds it" for i, outer in enumerate(signed)
            for part in signed[i + 1:] if part.is_relative_to(outer)]


def has_in_order(calls, *beginnings):
    rest = iter(calls)
    return all(any(call.startswith(beginning) for call in rest) for beginning in beginnings)


def faults(facts):
    wrong = []

    def expect(name, good, told):
        if not good:
            wrong.append(f"{name}:\n{told}")

    with tempfile.TemporaryDirectory() as folder:
        rehearsal = Rehearsal(Path(folder), facts)
        image = "Zelk-" + facts.version + "-arm64.dmg"
        made = rehearsal.root / "build/macos/packages" / image

        status, calls, words = rehearsal.run({})
        own = [call for call in calls if call.startswith("codesign --force")]
        expect("without secrets it signs for this Mac alone and says so",
               status == 0 and made.exists() and "Not signed for other Macs" in words
               and all("--sign - " in call and "runtime" not in call for call in own) and not order_faults(calls)
               and not any("notarytool" in call or "find-identity" in call for call in calls), (words, calls))

        for missing in CERTIFICATE:
            status, calls, words = rehearsal.run({key: CERTIFICATE[key] for key in CERTIFICATE if key != missing})
            expect(f"a certificate without {missing} is a mistake", status != 0 and missing in words
                   and not any(call.startswith("codesign") for call in calls), (words, calls))
        for missing in KEY:
            status, calls, words = rehearsal.run(CERTIFICATE | {key: KEY[key] for key in KEY if key != missing})
            expect(f"a key without {missing} is a mistake", status != 0 and missing in words
                   and not any(call.startswith("codesign") for call in calls), (words, calls))

        status, calls, words = rehearsal.run(CERTIFICATE, identities="     0 valid identities found")
        expect("a certificate of no identity is a mistake", status != 0 and "no identity" in words
               and not any(call.startswith("codesign") for call in calls), (words, calls))

        status, calls, words = rehearsal.run(CERTIFICATE)
        own = [call for call in calls if call.startswith("codesign --force") and not call.endswith(image)]
        expect("with a certificate it signs for every Mac",
               status == 0 and made.exists() and "Not notarised" in words and not order_faults(calls)
               and all("--sign ABCDEF12 --timestamp --options runtime" in call for call in own)
               and [call.endswith("Zelk.app") for call in own if "--entitlements" in call] == [True]
               and calls[-1].startswith("security delete-keychain") and "secret" not in words
               and any('-s ' in call and "a b.keychain-db" in call for call in calls if "list-keychains" in call)
               and not any("notarytool" in call for call in calls), (words, calls))

        status, calls, words = rehearsal.run(CERTIFICATE | KEY)
        expect("with a key it notarises both and staples what was accepted",
               status == 0 and has_in_order(calls, "codesign --verify", "ditto -c", "xcrun notarytool submit",
                                            "xcrun stapler staple build/macos/installed/Zelk.app", "ditto build",
                                            "hdiutil create", "codesign --force", "xcrun notarytool submit",
                                            f"xcrun stapler staple build/macos/packages/{image}"), (words, calls))

        status, calls, words = rehearsal.run(CERTIFICATE | KEY, verdict="Invalid")
        expect("what is not accepted is not handed out", status != 0 and not made.exists()
               and not any("stapler" in call for call in calls), (words, calls))
    return wrong
