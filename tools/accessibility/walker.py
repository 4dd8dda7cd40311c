# SPDX-License-Identifier: MIT
"""Finds nodes by role and name, presses them through the bus, and checks every screen that appears. A node that cannot
be found or pressed is a finding, after which the walk continues."""
import re

import bus
from rules import BUTTONS, DIALOGS, MENU_ITEMS, MENUS, Expected, Finding, check_expected, judge
from tree import find

# Everything that looks clickable, whatever its role.
PRESSED = BUTTONS | MENU_ITEMS | {"page tab", "list item", "radio button", "check box", "switch", "menu", "menu bar"}
TICKS = frozenset({"check box", "switch", "toggle button"})


def expect(pattern, *roles, among=frozenset()):
    """`pattern` matches the whole name. `among` are wrong roles that a node of this name may have."""
    expected = Expected(re.compile(pattern), frozenset(roles))
    return Expected(expected.name, expected.roles, expected.among | among)


def any_named(*roles):
    """A node with one of these roles and any name."""
    return Expected(re.compile(".+"), frozenset(roles), frozenset())


class Walker:
    """`application` is its handle on the bus. Findings go to `report`, progress messages to `say`."""

    def __init__(self, application, report, say):
        self.application = application
        self.report = report
        self.say = say
        self.screen = "The start"
        self._tree = None

    @property
    def tree(self):
        """The current tree. Read again after each action, once it has settled."""
        if self._tree is None:
            self._tree = bus.settled(self.application)
        return self._tree

    def wait(self, done, seconds):
        """Waits until `done()`, which inspects the tree, or until the time is up."""
        for _ in bus.moments(seconds):
            self._tree = bus.settled(self.application, 2)
            if done():
                return

    def look(self, screen, *expected):
        """Checks the current tree against all rules and for these nodes."""
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
        """Scrolls an item into view by giving it the focus."""
        if self.find(pattern, roles) is not None:
            return
        name = re.compile(pattern)
        for node in self.tree.walk():
            if node.role in roles and name.fullmatch(node.name) and bus.act(node, "SetFocus"):
                self._tree = None
                return

    def press(self, pattern, roles=PRESSED):
        """Returns the node as it was before the press; None if it was not found or cannot be pressed."""
        node = self.find(pattern, roles)
        if node is None:
            self.fault("missing", f"nothing here is named \"{pattern}\" and can be pressed")
        elif not self.act(node):
            self.fault("action", "has no action that presses it", node)
        else:
            return node
        return None

    def act(self, node):
        """Presses the node if it has an action for that; returns whether it does."""
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
        """Presses one of several choices and checks that it takes the state."""
        if self.press(pattern, roles) is None:
            return
        chosen = self.find(pattern, roles)
        if chosen is None or not chosen.has(state):
            self.fault("state", f"was chosen and is not {state}", chosen)

    def toggle(self, pattern, roles=TICKS):
        """Toggles twice, which restores the state, and checks that the state follows each time."""
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
        """Presses a button that closes a dialog, and checks that the dialog is gone."""
        self.press(pattern)
        self._gone(roles)

    def escape(self, roles=MENUS):
        """Presses Escape and checks that nodes with these roles are gone."""
        self.press_key("Escape")
        self._gone(roles)

    def _gone(self, roles):
        left = self.find(".*", roles)
        if left is not None:
            self.fault("state", "was closed and still shows", left)
