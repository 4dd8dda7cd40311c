# SPDX-License-Identifier: MIT
"""Compares our declarations of Cocoa calls with a list of what the frameworks have.

The declarations are the headers in tools/macos/cocoa, one folder per framework. The list is the npm package of
TypeScript declarations generated from Apple's headers: a class is a `declare class` whose members are named by the
joined words of the selector, an enumeration is a constant with its values."""
import re
from pathlib import Path

NUMBERS = {"double", "float", "int", "long", "long long", "unsigned", "unsigned int", "unsigned long long",
           "NSInteger", "NSUInteger", "NSTimeInterval"}
TEXTS = {"const char*", "NSString*"}
GENERIC = {"id", "ObjectType", "KeyType", "CFTypeRef", "CFArrayRef", "CFDictionaryRef"}


class Frameworks:
    """The contents of the list."""

    def __init__(self, types: Path, frameworks):
        text = "\n".join((types / f"{name}.d.ts").read_text() for name in sorted({"Runtime", *frameworks}))
        self.classes, self.parents = {}, {}
        for name, parent, body in re.findall(
                r"^declare (?:class|interface) (\w+)(?:<.*?>)?(?: extends (\w+))?[^{\n]*\{\n(.*?)^\}", text, re.M | re.S):
            members = self.classes.setdefault(name, {})
            members.update((self._member(line), line) for line in body.splitlines() if line.strip())
            if parent:
                self.parents[name] = parent
        self.functions = dict(re.findall(r"^declare function (\w+)(\(.*\): .*);$", text, re.M))
        self.constants = dict(re.findall(r"^declare const (\w+): ([\w.]+);$", text, re.M))
        self.enums = {name: dict(re.findall(r"(\w+): (-?\d+)", body))
                      for name, body in re.findall(r"^declare const (\w+): \{\n(.*?)^\};", text, re.M | re.S)}

    @staticmethod
    def _member(line):
        match = re.match(r"\s*(static )?(?:readonly )?(\w+)\$?\??", line)
        return (bool(match[1]), match[2]) if match else None

    def member(self, owner, static, name):
        """The declaration in the class or a superclass."""
        seen = [owner, "NSObjectProtocol"]
        while owner := self.parents.get(owner):
            seen.append(owner)
        return next((line for o in seen if (line := self.classes.get(o, {}).get((static, name)))), None)


def split_parameters(text):
    parts, depth, start = [], 0, 0
    for i, char in enumerate(text):
        if char in "(<[{":
            depth += 1
        elif char in ")]}" or (char == ">" and text[i - 1] != "="):
            depth -= 1
        elif char == "," and depth == 0:
            parts.append(text[start:i])
            start = i + 1
    return [part.strip() for part in parts + [text[start:]] if part.strip()]


def signature(line):
    """The parameter types and the result type of a function or member in the list."""
    line = line.strip().rstrip(";")
    line = re.sub(r"^(static )?(readonly )?\w*\$?", "", line)
    if line.startswith("<"):  # type parameters, which end before the parameters
        line = line[line.index(">(") + 1 if ">(" in line else 0:]
    if not line.startswith("("):
        return [], line.lstrip("?: ")
    depth = 0
    for end, char in enumerate(line):
        depth += (char == "(") - (char == ")")
        if depth == 0:
            break
    parameters = [p.split(": ", 1)[1] for p in split_parameters(line[1:end]) if not p.startswith("this:")]
    return parameters, line[end + 1:].lstrip(": ")


class Declarations:
    """The contents of our headers."""

    def __init__(self, folder: Path):
        self.frameworks = {header.relative_to(folder).parts[0] for header in folder.rglob("*.h")}
        text = "\n".join(header.read_text() for header in sorted(folder.rglob("*.h")))
        text = re.sub(r"//.*|^#.*|/\*.*?\*/", "", text, flags=re.M)
        text = re.sub(r"__attribute__\(\((?:[^()]|\([^()]*\))*\)\)", "", text)
        text = re.sub(r"static inline .*?\n\}", "", text, flags=re.S)
        self.interfaces = [(name, self._statements(body)) for name, body in re.findall(
            r"@interface (\w+)[^\n]*\n(.*?)@end", text, re.S)]
        text = re.sub(r"@interface.*?@end", "", text, flags=re.S)
        self.enums = {name: dict(re.findall(r"(\w+) = (-?\w+)", body))
                      for body, name in re.findall(r"typedef enum[^{]*\{(.*?)\} (\w+);", text, re.S)}
        self.structs = {name: re.findall(r"(\w+);", body)
                        for body, name in re.findall(r"typedef struct \{(.*?)\} (\w+);", text, re.S)}
        self.aliases = {name: spelt.replace(" ", "") if spelt.endswith("*") else spelt
                        for spelt, name in re.findall(r"typedef ([\w ]+\*?) (\w+);", text)}
        self.constants = re.findall(r"extern ([\w ]+\*?) const (\w+)\s*;", text)
        self.functions = re.findall(r"^(\w+\*?) (\w+)\(([^()]*)\)\s*;", text, re.M)

    @staticmethod
    def _statements(body):
        return [" ".join(statement.split()) for statement in body.split(";") if statement.strip()]


class Check:
    def __init__(self, declarations: Declarations, frameworks: Frameworks):
        self.declared, self.known = declarations, frameworks
        self.errors = []
        self.checked = 0

    def run(self):
        for owner, statements in self.declared.interfaces:
            if owner not in self.known.classes:
                self.errors.append(f"there is no class {owner}")
            for statement in statements:
                self._member(owner, statement)
        for name, members in self.declared.enums.items():
            for member, value in members.items():
                self.checked += 1
                if not any(known in member and known_value == value
                           for known, known_value in self.known.enums.get(name, {}).items()):
                    self.errors.append(f"{name} has no {member} = {value}")
        for name, fields in self.declared.structs.items():
            self.checked += 1
            known = [field for _, field in self.known.classes.get(name, {}) if field != "constructor"]
            if known != fields:
                self.errors.append(f"{name} has the fields {known}, not {fields}")
        for spelt, name in self.declared.constants:
            self.checked += 1
            if not self._fits(spelt, self.known.constants.get(name)):
                self.errors.append(f"there is no constant {name} of type {spelt}")
        for result, name, parameters in self.declared.functions:
            spelt = [re.sub(r"\s*\b\w+$", "", p) if " " in p else p for p in parameters.split(", ")]
            self._call(name, self.known.functions.get(name), [] if spelt == ["void"] else spelt, result)
        return self.errors

    def _member(self, owner, statement):
        if match := re.match(r"@property\s*\(?([^)]*)\)?\s*(.*?)\s*(\w+)$", statement):
            attributes, spelt, name = match.groups()
            static, parameters = "class" in attributes, []
        else:
            match = re.match(r"([-+]) \(((?:[^()]|\([^()]*\))*?)\)(\w.*)$", statement)
            static, spelt, rest = match[1] == "+", match[2], match[3]
            parts = re.findall(r"(\w+):\(((?:[^()]|\((?:[^()]|\([^()]*\))*\))*)\)", rest)
            words = [part for part, _ in parts] or [rest]
            name = words[0] + "".join(word[0].upper() + word[1:] for word in words[1:])
            parameters = [spelt_parameter for _, spelt_parameter in parts]
        line = self.known.member(owner, static, name)
        self._call(f"{'+' if static else '-'}[{owner} {name}]", line, parameters, spelt)

    def _call(self, name, line, parameters, result):
        self.checked += 1
        if line is None:
            self.errors.append(f"there is no {name}")
            return
        known_parameters, known_result = signature(line)
        if len(known_parameters) != len(parameters):
            self.errors.append(f"{name} takes {len(known_parameters)} arguments, not {len(parameters)}")
            return
        for spelt, known in zip([*parameters, result], [*known_parameters, known_result]):
            if not self._fits(spelt, known):
                self.errors.append(f"{name}: {spelt} is declared where the system has {known}")

    def _fits(self, spelt, known):
        """Whether a type in our spelling matches `known`, the type in the list, which distinguishes fewer types."""
        if known is None:
            return False
        spelt = re.sub(r"^out ", "", spelt.strip()).replace(" *", "*")
        known = known.removesuffix(" | null")
        if spelt in GENERIC:
            return known in ("interop.Object", "ObjectType", "KeyType")
        spelt = self.declared.aliases.get(spelt, spelt)
        if spelt in self.declared.enums:
            return known == f"interop.Enum<typeof {spelt}>"
        if spelt == "BOOL":
            return known == "boolean"
        if spelt in NUMBERS:
            return known == "number"
        if spelt in TEXTS:
            return known == "string"
        if spelt == "instancetype":
            return known in ("this", "InstanceType<This>")
        if "(^)" in spelt:
            return "=>" in known
        if spelt.endswith("[]") or spelt.endswith("**") or spelt == "id*":
            return known == "interop.PointerConvertible"
        return re.match(r"\w+", spelt)[0] == re.match(r"[\w.]+", known)[0]


def check_declarations(cocoa: Path, types: Path):
    """Returns the number of declarations checked, and the errors."""
    declarations = Declarations(cocoa)
    check = Check(declarations, Frameworks(types, declarations.frameworks))
    errors = check.run()
    return check.checked, errors
