# SPDX-License-Identifier: MIT
"""The hands of the walk: finds something by its role and name, presses it through the bus, and has every screen judged
that comes of it. What cannot be found or pressed is a finding, after which the walk goes on."""
import re

import bus
from rules import BUTTONS, DIALOGS, MENU_ITEMS, MENUS, Expected, Finding, check_expected, judge
from tree import find

# What a person takes for something to press, whatever role it says.
PRESSED = BUTTONS | MENU_ITEMS | {"page tab", "list item", "radio button", "check box", "switch", "menu", "menu bar"}
TICKS = frozenset({"check box", "switch", "toggle button"})


def expect(pattern, *roles, among=frozenset()):
    """The pattern is of the whole name. `among` are roles that a node of this name may have by mistake."""
    expected = Expected(re.compile(pattern), frozenset(roles))
    return Expected(expected.name, expected.roles, expected.among | among)


def any_named(*roles):
    """Something of one of these roles, whatever it is called."""
    return Expected(re.compile(".+"), frozenset(roles), frozenset())


class Walker:
    """`application` is its handle on the bus. Findings go to `report`, remarks on the way to `say`."""

    def __init__(self, application, report, say):
        self.application = application
        self.report = report
        self.say = say
        self.screen = "The start"
        self._tree = None

    @property
    def tree(self):
        """What is there since the last thing that was done, once it has settled."""
        if self._tree is None:
            self._tree = bus.settled(self.application)
        return self._tree

    def wait(self, done, seconds):
        """Until `done()`, which looks at the tree, or until the time is over."""
        for _ in bus.moments(seconds):
            self._tree = bus.settled(self.application, 2)
            if done():
                return

    def look(self, screen, *expected):
        """Judges what is there now, which is to have these nodes."""
        self.screen = screen
        new = self.report.add(screen, [*judge(self.tree), *check_expected(self.tree, expected)])
        self.say(f"{screen}: {sum(1 for _ in self.tree.shown())} nodes, {new} new findings")

    def fault(self, rule, text, node=None):
        self.report.add(self.screen, [Finding(rule, node or self.tree, text)])

    def find(self, pattern, roles=PRESSED):
        return find(self.tree, roles, re.compile(pattern))

    def window_count(self):
        return sum(1 for window in self.tree.children if window.showing)

    def bring(self, pattern, roles=PRESSED):
        """Scrolls to what is out of sight, as the keyboard does: what has it is brought into sight."""
        if self.find(pattern, roles) is not None:
            return
        name = re.compile(pattern)
        for node in self.tree.walk():
            if node.role in roles and name.fullmatch(node.name) and bus.act(node, "SetFocus"):
                self._tree = None
                return

    def press(self, pattern, roles=PRESSED):
        """Gives what was pressed, as it was before; None where there is none or it cannot be pressed."""
        node = self.find(pattern, roles)
        if node is None:
            self.fault("missing", f"nothing here is named \"{pattern}\" and can be pressed")
        elif not self.act(node):
            self.fault("action", "has no action that presses it", node)
        else:
            return node
        return None

    def act(self, node):
        """Whether the node has an action that presses it, which then was done."""
        done = bus.act(node, "Press", "Toggle", "ShowMenu")
        if done:
            self._tree = None
        return done

    def press_key(self, name):
        bus.press_key(name)
        self._tree = None

    def set_value(self, node, value):
        bus.set_value(node, value)
        self._tree = None

    def choose(self, pattern, state, roles=PRESSED):
        """Presses one of several choices, which then has the state."""
        if self.press(pattern, roles) is None:
            return
        chosen = self.find(pattern, roles)
        if chosen is None or not chosen.has(state):
            self.fault("state", f"was chosen and is not {state}", chosen)

    def toggle(self, pattern, roles=TICKS):
        """Twice, so that it is as before; each time the state has to follow."""
        for _ in range(2):
            before = self.press(pattern, roles)
            after = self.find(pattern, roles)
            if before is None:
                return
            if after is None or before.has("checked") == after.has("checked"):
                self.fault("state", f"was pressed and is {'still' if before.has('checked') else 'not'} checked",
                           after or before)
                return

    def close(self, pattern, roles=DIALOGS):
        """Presses what closes a dialog, of which then nothing is left."""
        self.press(pattern)
        self._gone(roles)

    def escape(self, roles=MENUS):
        """The same by the key."""
        self.press_key("Escape")
        self._gone(roles)

    def _gone(self, roles):
        left = self.find(".*", roles)
        if left is not None:
            self.fault("state", "was closed and still shows", left)
