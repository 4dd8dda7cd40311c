# SPDX-License-Identifier: MIT
"""The rules for accessibility trees. Each takes the tree of the application and yields findings, without access to the
bus. Only showing nodes are checked, except where a rule says otherwise."""
from dataclasses import dataclass

from tree import Node

BUTTONS = frozenset({"push button", "toggle button", "push button menu", "link"})
TEXTS = frozenset({"label", "heading", "paragraph"})
MENU_ITEMS = frozenset({"menu item", "check menu item", "radio menu item"})
RANGED = frozenset({"slider", "spin button"})
CHECKED = frozenset({"check box", "radio button", "switch"})
DIALOGS = frozenset({"dialog", "alert"})
MENUS = frozenset({"menu", "popup menu"})

# Roles to choose, press or enter, which need a name.
INTERACTIVE = BUTTONS | MENU_ITEMS | RANGED | CHECKED | {"page tab", "list item", "combo box", "entry", "menu"}
# All roles that need a name: those announced on entering them, and texts.
NAMED = INTERACTIVE | TEXTS | DIALOGS | MENUS | {"page tab list", "list", "menu bar", "progress bar", "frame", "image"}
# Roles without a meaning.
UNTOLD = frozenset({"unknown", "invalid"})
# Containers that must not have the focus. A list may have it, on behalf of its current row.
HOLDERS = DIALOGS | {"panel", "filler", "frame", "page tab list", "menu bar", "application"}

# The interactive roles allowed directly in a container.
HELD = {
    "list": frozenset({"list item", "check box"}),  # a row may be a check box as a whole
    "menu bar": frozenset({"menu", "menu item"}),
    "menu": MENU_ITEMS | {"menu"},
    "popup menu": MENU_ITEMS | {"menu"},
}
# The ancestors required for a role.
HOLDER = {
    "list item": frozenset({"list"}),
    "page tab": frozenset({"page tab list"}),
    "menu item": MENUS | {"menu bar"},
    "check menu item": MENUS,
    "radio menu item": MENUS,
}
# A list in the order of size, whose nodes may lie anywhere.
MAP = "Map of "
# Roles that lie over the rest and have an order of their own.
OVERLAYS = DIALOGS | MENUS | {"comment", "tool tip", "frame"}


@dataclass(frozen=True)
class Finding:
    """A violation: `rule` is the name of the rule, `text` says what is wrong with `node`."""
    rule: str
    node: Node
    text: str


def check_names(root):
    for node in root.shown():
        if node.role in NAMED and not node.name.strip():
            yield Finding("name", node, "has no name")
        elif not node.name.strip() and node.has("focusable") and node.role != "scroll bar":
            yield Finding("name", node, "takes the keyboard and has no name")


def _checkable(node):
    """Qt 6.4 does not report "checkable", but every checkable node has the action."""
    return node.has("checkable") or node.has("checked") or "Toggle" in node.actions


def check_roles(root):
    for node in root.shown():
        if node.role in UNTOLD:
            yield Finding("role", node, f"has the role {node.role}, which tells nothing")
        elif node.role in BUTTONS - {"toggle button"} and _checkable(node):
            yield Finding("role", node, "can be checked and is no check box, radio button or toggle button")
        elif node.role in BUTTONS and (node.has("selectable") or node.has("selected")):
            yield Finding("role", node, "can be selected and is no page tab, list item or radio button")


def check_holders(root):
    """Rows must be in lists, tabs in tab lists and entries in menus, and those contain no other interactive roles."""
    for node in root.shown():
        if node.parent is not None and node.parent.role in HELD and node.role in INTERACTIVE | {"menu bar"}:
            wanted = HELD[node.parent.role]
            if node.role not in wanted:
                yield Finding("role", node, f"stands in a {node.parent.role} and is no {_either(wanted)}")
        if node.role in HOLDER and not any(above.role in HOLDER[node.role] for above in node.above()):
            yield Finding("role", node, f"stands in no {_either(HOLDER[node.role])}")


def check_states(root):
    for node in root.walk():
        # Includes hidden ones: they would still be a stop in the focus chain.
        if node.role == "scroll bar" and node.has("focusable"):
            yield Finding("state", node, "is a scroll bar and takes the keyboard")
    for node in root.shown():
        if node.role in CHECKED and not _checkable(node):
            yield Finding("state", node, "cannot be checked, so nobody is told whether it is")
        if node.role == "dialog" and not node.has("modal"):
            yield Finding("state", node, "is a dialog and not modal")
        if node.role in TEXTS and node.has("focusable"):
            yield Finding("state", node, "is a text and takes the keyboard")
        if node.role in INTERACTIVE and node.rect is not None and min(node.rect[2:]) <= 0:
            yield Finding("state", node, "shows and has no size")


def check_choices(root):
    """Of sibling radio buttons exactly one is checked, of sibling tabs exactly one is selected."""
    for node in root.shown():
        for role, state in (("radio button", "checked"), ("page tab", "selected")):
            choices = [child for child in node.children if child.showing and child.role == role]
            taken = [choice for choice in choices if choice.has(state)]
            if len(choices) > 1 and len(taken) != 1:
                which = ", ".join(choice.label() for choice in taken) or "none"
                yield Finding("state", node, f"holds {len(choices)} of role {role}, of which {which} "
                                             f"{'are' if len(taken) > 1 else 'is'} {state}")


def check_actions(root):
    """Everything clickable has an action that presses it."""
    for node in root.shown():
        if node.role in INTERACTIVE - RANGED - {"list item", "entry"} and node.has("enabled") and \
                not {"Press", "Toggle", "ShowMenu"} & set(node.actions):
            yield Finding("action", node, "has no action that presses it")


def check_ranges(root):
    for node in root.shown():
        if node.role not in RANGED:
            continue
        if node.value is None:
            yield Finding("value", node, "has no value")
            continue
        least, now, most = node.value
        if not least < most:
            yield Finding("value", node, f"has the range {least:g} to {most:g}")
        elif not least <= now <= most:
            yield Finding("value", node, f"has the value {now:g}, outside of {least:g} to {most:g}")


def check_progress(root):
    """A progress bar has a description or a value within a range."""
    for node in root.shown():
        if node.role == "progress bar" and not node.description.strip() and \
                (node.value is None or not node.value[0] < node.value[2]):
            yield Finding("value", node, "says neither in words nor as a value how far it is")


def _window(node):
    return next((above for above in [node, *node.above()] if above.role == "frame"), None)


def check_focus(root):
    """Each window has at most one focused node, which is showing and has a name. Qt also reports the ancestors of that
    node as focused, and does not reset the focus of a closed window."""
    ends = {}
    for node in root.walk():
        window = _window(node)
        if not node.has("focused") or window is not None and not window.showing or \
                any(other.has("focused") for other in node.walk() if other is not node):
            continue
        first = ends.setdefault(window, node)
        if not node.showing:
            yield Finding("focus", node, "has the keyboard and does not show")
        elif node.role in HOLDERS:
            yield Finding("focus", node, f"has the keyboard and is a {node.role}, where there is nothing to press")
        elif not node.name.strip():
            yield Finding("focus", node, "has the keyboard and no name")
        if first is not node:
            yield Finding("focus", node, f"has the keyboard as {first.label()} has too")


def comes_before(one, other):
    """Whether the rectangle `one` comes before `other` in reading order, from top to bottom and from left to right
    within a row. Neither does if they overlap, or if `one` is at the bottom of a column and `other` higher up in a
    column to the right."""
    left, top, width, height = one
    other_left, other_top, other_width, other_height = other
    beside = min(top + height, other_top + other_height) - max(top, other_top)
    if beside > min(height, other_height) / 2:  # they share a row
        return left + width <= other_left
    return top + height <= other_top and not other_left + other_width <= left


def in_sight(node):
    """Rows that are scrolled out of their list still report that they are showing."""
    left, top, width, height = node.rect
    for above in node.above():
        if above.role == "list" and above.rect is not None:
            x, y, wide, high = above.rect
            if left + width <= x or x + wide <= left or top + height <= y or y + high <= top:
                return False
    return True


def check_order(root):
    """The tree order of texts and controls must be their reading order. Overlays such as dialogs have an order of their
    own."""
    last = {}
    for node in root.shown():
        if node.role in OVERLAYS or node.rect is None or min(node.rect[2:]) <= 0 or node.role == "scroll bar":
            continue
        if any(child.showing and child.rect is not None for child in node.children):
            continue  # ordered by its children
        if not in_sight(node) or any(above.role == "list" and above.name.startswith(MAP) for above in node.above()):
            continue
        surface = next((above for above in node.above() if above.role in OVERLAYS), None)
        before = last.get(surface)
        last[surface] = node
        if before is not None and comes_before(node.rect, before.rect):
            yield Finding("order", node, f"follows {before.label()} and stands before it: {_place(node)} and "
                                         f"{_place(before)}")


RULES = (check_names, check_roles, check_holders, check_states, check_choices, check_actions, check_ranges,
         check_progress, check_focus, check_order)


def judge(root, rules=RULES):
    return [finding for rule in rules for finding in rule(root)]


@dataclass(frozen=True)
class Expected:
    """A node that a screen must show: a compiled pattern for its whole name, and its allowed roles."""
    name: object
    roles: frozenset
    # Nodes with other roles may have the same name, such as a label beside it.
    among: frozenset = INTERACTIVE | DIALOGS | {"list", "progress bar"}


def check_expected(root, expected):
    """Reports expected nodes that are missing or have a wrong role."""
    for wanted in expected:
        named = [node for node in root.shown() if wanted.name.fullmatch(node.name) and
                 node.role in wanted.among | wanted.roles]
        if not named:
            yield Finding("missing", root, f"nothing here is named \"{wanted.name.pattern}\" and is a "
                                           f"{_either(wanted.roles)}")
        elif not any(node.role in wanted.roles for node in named):
            for node in named:
                yield Finding("role", node, f"is no {_either(wanted.roles)}")


def _either(roles):
    return " or ".join(sorted(roles))


def _place(node):
    return "{}, {} ({} by {})".format(*node.rect)
