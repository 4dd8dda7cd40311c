# SPDX-License-Identifier: MIT
"""Tests that each rule finds what it should and accepts what is correct, on trees made here, without a bus or a
display."""
import re

from report import Report
from rules import Expected, check_expected, comes_before, in_sight, judge
from tree import Node, find

SHOWN = {"enabled", "sensitive", "showing", "visible"}


def made(role, name="", *children, states="", rect=(0, 0, 10, 10), **more):
    """A showing node. `states` adds to the usual ones; `-showing` removes one."""
    words = states.split()
    own = SHOWN | {word for word in words if not word.startswith("-")}
    own -= {word[1:] for word in words if word.startswith("-")}
    return Node(role, name, states=frozenset(own), rect=rect, children=list(children), **more)


def pressed(role, name="", *children, **more):
    """A node with an action that presses it."""
    return made(role, name, *children, actions=("Press", "SetFocus"), **more)


def tick(name, states="checkable", role="check box"):
    return pressed(role, name, states=states)


def down(*nodes, left=0, top=0):
    """Places the nodes below each other."""
    for place, node in enumerate(nodes):
        node.rect = (left, top + 20 * place, 10, 10)
    return nodes


def window(*nodes):
    return made("application", "Zelk", made("frame", "Zelk", *nodes, rect=(0, 0, 500, 500)), rect=None)


def tabs(*states):
    return made("page tab list", "Modules", *down(*(pressed("page tab", f"Tab {place}", states=f"selectable {state}")
                                                    for place, state in enumerate(states))))


def choices(*states):
    return made("panel", "Order", *down(*(tick(f"Choice {place}", f"checkable {state}", "radio button")
                                          for place, state in enumerate(states))))


def ranged(role, value):
    return made(role, "Age", value=value)


def two(second, first=(100, 100, 50, 20), role="push button"):
    """A window with two controls at these places, in this tree order."""
    return window(pressed("push button", "First", rect=first), pressed(role, "Second", rect=second))


def right():
    """A correct window with one node of each kind."""
    bar = made("menu bar", "Menus", made("menu", "File", actions=("Press",)), rect=(0, 0, 400, 20))
    rows = made("list", "Files", *down(made("list item", "One", pressed("push button", "Actions for One", rect=(50, 150, 10, 10))),
                                       made("list item", "Two"), left=50, top=150))
    rest = down(choices("checked", ""), made("label", "Words"), made("heading", "Title"), tick("Permanent", "checkable checked"),
                ranged("slider", (0, 5, 10)), ranged("spin button", (1, 1, 2)),
                made("progress bar", "Cleaning", description="1 of 2"), made("progress bar", "Cleaning", value=(0, 0, 1)),
                pressed("push button menu", "Select"), top=200)
    for node in rest:
        for number, child in enumerate(node.children):
            child.rect = (20 * number, node.rect[1], 10, 10)
    dialog = made("dialog", "Review", pressed("push button", "Cancel", states="focusable focused"), states="modal",
                  rect=(50, 50, 100, 100))
    menu = made("popup menu", "Select", pressed("menu item", "All"), rect=(10, 10, 100, 100))
    hidden = [pressed("push button", "", states="-showing focusable"), made("unknown", "", states="-showing")]
    return window(bar, made("scroll bar"), tabs("selected", ""), rows, *rest, dialog, menu, *hidden)


# The states that a correct node of a role has.
OWN = {"check box": "checkable", "radio button": "checkable", "switch": "checkable", "dialog": "modal"}

NAMED = ("push button", "toggle button", "push button menu", "link", "label", "heading", "menu item", "check menu item",
         "radio menu item", "slider", "spin button", "check box", "radio button", "switch", "dialog", "alert", "menu",
         "popup menu", "page tab", "list item", "combo box", "entry", "page tab list", "list", "menu bar", "progress bar",
         "frame", "image")
AROUND = {"page tab": "page tab list", "list item": "list", "menu item": "menu bar", "check menu item": "menu",
          "radio menu item": "popup menu"}


def standing(role, node):
    """A window with the node inside the container that its role requires."""
    return window(pressed(AROUND.get(role, "panel"), "Around", node))


def scrolled(*rows):
    """A list above a button, with rows that are scrolled out of view."""
    return window(made("list", "Files", *(made("list item", "One", rect=row) for row in rows), rect=(50, 50, 100, 50)),
                  pressed("push button", "Done", rect=(50, 110, 100, 20)))


# Description, tree, and expected findings as the rule's name and a part of the text.
WRONG = (
    ("a button without a name", window(pressed("push button")), ["name: has no name"]),
    ("a name of blanks", window(pressed("push button", "  ")), ["name: has no name"]),
    *((f"a {role} without a name", standing(role, pressed(role, states=OWN.get(role, ""), value=(0, 0, 1))),
       ["name: has no name"]) for role in NAMED),
    ("a focusable panel without a name", window(made("panel", states="focusable")), ["name: takes the keyboard"]),
    *((f"the role {role}", window(made(role, "Page 1 of 4")), [f"role: has the role {role}"])
      for role in ("unknown", "invalid")),
    ("a tick that is a button", window(tick("Cache", role="push button")), ["role: can be checked"]),
    ("a checked button", window(pressed("push button", "Cache", states="checked")), ["role: can be checked"]),
    ("a button that toggles", window(made("push button", "Cache", actions=("Press", "Toggle"))), ["role: can be checked"]),
    ("a tab that is a button", window(pressed("push button", "Lens", states="selectable")), ["role: can be selected"]),
    ("a selected button", window(pressed("push button", "Lens", states="selected")), ["role: can be selected"]),
    ("a row that is a button", window(made("list", "Files", pressed("push button", "One"))), ["role: stands in a list"]),
    ("an entry that is a button", window(made("popup menu", "Select", pressed("push button", "All"))),
     ["role: stands in a popup menu"]),
    ("a title that is a bar", window(made("menu bar", "Menus", made("menu bar", "File"))), ["role: stands in a menu bar"]),
    ("a row in no list", window(made("list item", "One")), ["role: stands in no list"]),
    ("a tab among no tabs", window(pressed("page tab", "Lens")), ["role: stands in no page tab list"]),
    *((f"a {role} in no menu", window(pressed(role, "All")), ["role: stands in no menu"])
      for role in ("menu item", "check menu item", "radio menu item")),
    *((f"a button in a {role}", window(pressed(role, "File", pressed("push button", "All"))), [f"role: stands in a {role}"])
      for role in ("menu", "popup menu")),
    ("an entry that is ticked, in a bar", window(made("menu bar", "Menus", pressed("check menu item", "All"))),
     ["role: stands in a menu bar", "role: stands in no menu"]),
    ("a scroll bar with a stop", window(made("scroll bar", states="focusable")), ["state: is a scroll bar"]),
    ("a hidden one", window(made("scroll bar", states="focusable -showing")), ["state: is a scroll bar"]),
    ("a tick that cannot be checked", window(tick("Cache", "")), ["state: cannot be checked"]),
    ("a switch that has no state", window(tick("Dark", "", "switch")), ["state: cannot be checked"]),
    ("a choice that cannot be checked", window(tick("Light", "", "radio button")), ["state: cannot be checked"]),
    ("a dialog that is not modal", window(made("dialog", "Review")), ["state: is a dialog and not modal"]),
    ("a text with a stop", window(made("label", "Words", states="focusable")), ["state: is a text"]),
    ("a button without a size", window(pressed("push button", "Cancel", rect=(5, 5, 0, 10))), ["state: shows and has no"]),
    ("choices of which none is checked", window(choices("", "")), ["state: holds 2 of role radio button, of which none is checked"]),
    ("choices of which two are", window(choices("checked", "checked")), ["Choice 0\", radio button \"Choice 1\" are checked"]),
    ("tabs of which two are selected", window(tabs("selected", "selected", "")), ["state: holds 3 of role page tab"]),
    ("tabs of which none is selected", window(tabs("", "")), ["state: holds 2 of role page tab, of which none"]),
    ("a button that cannot be pressed", window(made("push button", "Cancel", actions=("SetFocus",))), ["action: has no"]),
    ("a menu that cannot be opened", window(made("menu bar", "Menus", made("menu", "File"))), ["action: has no"]),
    ("a slider without a value", window(ranged("slider", None)), ["value: has no value"]),
    ("a slider of nothing", window(ranged("slider", (0, 0, 0))), ["value: has the range 0 to 0"]),
    ("a slider below its range", window(ranged("slider", (1, 0, 9))), ["value: has the value 0"]),
    ("a stepper above its range", window(ranged("spin button", (1, 10, 9))), ["value: has the value 10"]),
    ("a progress that says nothing", window(made("progress bar", "Cleaning")), ["value: says neither"]),
    ("a progress of nothing", window(made("progress bar", "Cleaning", value=(0, 0, 0))), ["value: says neither"]),
    ("the keyboard at what is hidden", window(pressed("push button", "Cancel", states="focused -showing")),
     ["focus: has the keyboard and does not show"]),
    *((f"the keyboard at a {role}", window(made(role, "Review", states="focused modal")),
       [f"focus: has the keyboard and is a {role}"])
      for role in ("dialog", "alert", "panel", "filler", "frame", "page tab list", "menu bar", "application")),
    ("the keyboard at what has no name", window(made("text", states="focused")), ["focus: has the keyboard and no name"]),
    ("the keyboard in two places", window(*down(pressed("push button", "One", states="focused"),
                                                pressed("push button", "Two", states="focused"))),
     ["focus: has the keyboard as push button \"One\" has too"]),
    ("what is above and touches", two((100, 80, 50, 20)), ["order: follows"]),
    ("what is to the left and touches", two((50, 100, 50, 20)), ["order: follows"]),
    ("a small one beside a large one, to its left", two((50, 100, 20, 20), (100, 50, 50, 120)), ["order: follows"]),
    ("one whose content is hidden", window(pressed("push button", "First", rect=(0, 90, 9, 9)),
                                           made("panel", "", made("label", "Words", states="-showing"), rect=(0, 0, 9, 9))),
     ["order: follows"]),
    ("rows of a list that are in sight", scrolled((50, 80, 100, 20), (50, 60, 100, 20)), ["order: follows"]),
    ("a control above the one before it", two((100, 50, 50, 20)), ["order: follows push button \"First\""]),
    ("one above and to the left", two((0, 50, 50, 20)), ["order: follows"]),
    ("one to the left in the row", two((40, 105, 50, 20)), ["order: follows"]),
    ("texts in the wrong order too", two((100, 50, 50, 20), role="label"), ["order: follows"]),
    ("order inside of a dialog", window(made("dialog", "Review", pressed("push button", "First", rect=(0, 90, 9, 9)),
                                             pressed("push button", "Second", rect=(0, 60, 9, 9)), states="modal")),
     ["order: follows"]),
)

# Correct trees that resemble those above.
RIGHT = (
    ("one of everything", right()),
    ("what is below", two((0, 130, 50, 20))),
    ("what is to the right in the row", two((160, 95, 50, 20))),
    ("the next column, from its top", two((160, 0, 50, 20))),
    ("the next column, which touches", two((150, 0, 50, 20))),
    ("what has no height", two((0, 0, 20, 0), role="label")),
    ("a value at either end", window(*down(ranged("slider", (0, 0, 9)), ranged("slider", (0, 9, 9))))),
    ("a tip over the rest", window(pressed("push button", "First", rect=(100, 100, 50, 20)),
                                   made("tool tip", "First", made("label", "First", rect=(0, 0, 9, 9))))),
    ("a second window", made("application", "Zelk", *(made("frame", name, pressed("push button", name, rect=(0, top, 9, 9)))
                                                      for name, top in (("One", 50), ("Two", 0))), rect=None)),
    ("a row below its list", scrolled((50, 150, 100, 20))),
    ("a row that touches it from below", scrolled((50, 100, 100, 40), (50, 140, 100, 20))),
    ("a row above its list", scrolled((50, 20, 100, 30), (50, 0, 100, 20), (50, 30, 100, 20))),
    ("a row beside its list", scrolled((150, 60, 20, 20), (0, 60, 50, 20))),
    ("a map", window(made("list", "Map of home", *(made("list item", name, rect=(0, top, 9, 9))
                                                   for name, top in (("Large", 50), ("Small", 0))), rect=(0, 0, 99, 99)))),
    ("the keyboard of each window", made("application", "Zelk", *(
        made("frame", name, pressed("push button", name, states="focused")) for name in ("One", "Two")), rect=None)),
    ("the keyboard of a closed window", made("application", "Zelk", made("frame", "One", pressed(
        "push button", "One", states="focused -showing"), states="-showing"), rect=None)),
    ("a menu in a menu", window(made("menu bar", "Menus", pressed("menu item", "File", pressed("menu", "Recent",
                                pressed("menu item", "One"), rect=(0, 10, 9, 9)))))),
    ("menus in menus", window(made("popup menu", "Select", pressed("menu", "Recent", pressed("menu", "Older"))))),
    ("a button that toggles and says so", window(tick("Fold", role="toggle button"))),
    ("one choice alone", window(choices(""))),
    ("what overlaps", two((90, 90, 50, 20))),
    ("what is a little higher and to the left", two((40, 88, 50, 20))),
    ("what has no place", two(None)),
    ("what has no size", two((0, 0, 0, 0), role="label")),
    ("a dialog over the rest", window(pressed("push button", "First", rect=(100, 100, 50, 20)),
                                      made("dialog", "Review", pressed("push button", "Second", rect=(0, 0, 9, 9)),
                                           states="modal"))),
    ("a button that is switched off", window(made("push button", "Cancel", states="-enabled"))),
    ("what is around the keyboard", window(made("dialog", "Review", pressed("push button", "Cancel", states="focused"),
                                                states="modal focused"))),
    ("a tick that toggles", window(made("check box", "Cache", actions=("Toggle",)))),
    ("a row that is a tick", window(made("list", "Folders", tick("One")))),
    ("a tick in a row", window(made("list", "Folders", made("list item", "One", tick("One"))))),
)


def _told(finding):
    return f"{finding.rule}: {finding.text}"


def _compare(name, found, due):
    """Compares findings with the expected ones and yields the differences."""
    for words in due:
        hits = [told for told in found if words in told]
        if hits:
            found.remove(hits[0])
        else:
            yield f"{name}: not found: {words}"
    for told in found:
        yield f"{name}: found besides: {told}"


def _expectations():
    tree = window(tick("Developer view", role="push button"), made("label", "Lens"), pressed("page tab", "Lens"))

    def told(pattern, *roles):
        return [_told(finding) for finding in check_expected(tree, [Expected(re.compile(pattern), frozenset(roles))])]

    yield from _compare("what is there", told("Lens", "page tab"), [])
    yield from _compare("a wrong role", told("Developer .*", "check box", "switch"), ["role: is no check box or switch"])
    yield from _compare("half a name", told("Developer", "push button"), ["missing: nothing here is named \"Developer\""])
    yield from _compare("what is not there", told("Health", "page tab"), ["missing: nothing here is named \"Health\""])
    yield from _compare("a text of that name", told("Lens", "label"), [])
    # Other roles may share the name, such as a label beside it, but not a list, a progress bar or a dialog.
    for role in ("list", "progress bar", "dialog"):
        other = window(made(role, "Files", description="1 of 2", states="modal"))
        found = [_told(finding) for finding in check_expected(other, [Expected(re.compile("Files"), frozenset({"slider"}))])]
        yield from _compare(f"a {role} of that name", found, ["role: is no slider"])


def _reports():
    def row(number):
        return judge(window(made("list", "Files", made("list item", f"File {number}, {number} MB", states="checkable"),
                                 made("list item", ""))))

    report = Report()
    news = [report.add("One", row(1)), report.add("Two", row(2)), report.add("Two", judge(window(made("heading"))))]
    if news != [1, 0, 1] or report.count() != 2:
        yield f"a report counts {news}, {report.count()}"
    if report.screens != ["One", "Two"]:
        yield f"a report knows the screens {report.screens}"
    twice = Report()
    twice.add("One", judge(window(*down(pressed("push button", "A", rect=(0, 0, 0, 0)),
                                        *(made("label", f"Words {word}", states="focusable") for word in "ab")))))
    many = [line for line in twice.lines() if "is a text" in line]
    if twice.count() != 1 or "One: state:" not in many[0] or "label \"Words a\" (and 1 more like it): is a text" not in many[0]:
        yield f"a report does not count what is alike: {many}"
    named = Report()
    named.add("One", judge(window(*down(*(made("push button", word) for word in ("Cancel", "Done"))))))
    if named.count() != 2 or "more" in "".join(named.lines()):
        yield "a report takes two buttons for one"
    lines = list(report.lines())
    if not lines[0].startswith("One (and on 1 more): name: application \"Zelk\" > frame \"Zelk\" > list \"Files\" > "
                               "list item \"\""):
        yield f"a report says {lines[0]}"


def _values():
    tree = window(tick("One", "checkable"), tick("One", "checkable checked"), tick("One", "-showing"), tick("One more"))
    if find(tree, {"check box"}, re.compile("One")) is not tree.children[0].children[1]:
        yield "the last one that shows is not found"
    if find(tree, {"push button"}, re.compile("One")) is not None:
        yield "one of another role is found"
    if tree.children[0].children[0].path() != "application \"Zelk\" > frame \"Zelk\" > check box \"One\"":
        yield "a path is wrong"
    if [node.name for node in tree.walk()] != ["Zelk", "Zelk", "One", "One", "One", "One more"]:
        yield "the order of a walk is wrong"
    for rect, shown in (((50, 40, 9, 10), False), ((50, 41, 9, 10), True), ((50, 100, 9, 10), False),
                        ((50, 99, 9, 10), True), ((40, 60, 10, 9), False), ((41, 60, 10, 9), True),
                        ((150, 60, 10, 9), False), ((149, 60, 10, 9), True)):
        if in_sight(scrolled(rect).children[0].children[0].children[0]) != shown:
            yield f"a row at {rect} is taken for {'scrolled out' if shown else 'in sight'}"
    # Rectangles that overlap by half their height do not share a row yet.
    if comes_before((0, 10, 10, 20), (20, 20, 10, 20)) or not comes_before((0, 9, 10, 20), (20, 10, 10, 20)):
        yield "rows begin elsewhere"


def run(say):
    """Runs all tests, reports failures to `say`, and returns whether all passed."""
    complaints = []
    for name, tree, due in WRONG:
        complaints += _compare(name, [_told(finding) for finding in judge(tree)], due)
    for name, tree in RIGHT:
        complaints += _compare(name, [_told(finding) for finding in judge(tree)], [])
    for more in (_expectations, _reports, _values):
        complaints += more()
    for complaint in complaints:
        say(complaint)
    say("the self-test failed" if complaints else
        f"{len(WRONG)} faults, all found; {len(RIGHT)} trees without one, none found")
    return not complaints
