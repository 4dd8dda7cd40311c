# SPDX-License-Identifier: MIT
"""Collects what the rules find on one screen after the other, and tells it once."""
import re

from rules import OVERLAYS

# What differs from screen to screen, and from one row to the next: figures, and the names of others.
_FIGURE = re.compile(r"\d[\d.,]*")
_NAME = re.compile("\"[^\"]*\"")
# What stands in one of these is one of several of its kind.
_SEVERAL = frozenset({"list", "list item", "page tab list", "menu bar", "menu", "popup menu", "panel"})


def _plain(node):
    """Without its name, where it is one of several or opens over the rest."""
    if node.role in OVERLAYS - {"frame"} or node.role in ("list item", "label", "scroll bar") or \
            node.parent is not None and node.parent.role in _SEVERAL:
        return node.role
    return _FIGURE.sub("#", node.label())


def _kind(finding):
    """Equal for findings of one cause: the same fault of nodes of one role in the same place."""
    text = _NAME.sub("", _FIGURE.sub("#", finding.text)) if finding.rule != "missing" else finding.text
    return finding.rule, _plain(finding.node), tuple(_plain(node) for node in finding.node.above()), text


class Report:
    def __init__(self):
        self.kinds = {}
        self.screens = []

    def add(self, screen, findings):
        """Gives how many of these were not known yet."""
        if screen not in self.screens:
            self.screens.append(screen)
        known = len(self.kinds)
        for finding in findings:
            first, nodes, screens = self.kinds.setdefault(_kind(finding), (finding, set(), []))
            nodes.add(finding.node.path())
            if screen not in screens:
                screens.append(screen)
        return len(self.kinds) - known

    def count(self):
        return len(self.kinds)

    def lines(self):
        for finding, nodes, screens in self.kinds.values():
            more = f" (and {len(nodes) - 1} more like it)" if len(nodes) > 1 else ""
            also = f" (and on {len(screens) - 1} more)" if len(screens) > 1 else ""
            yield f"{screens[0]}{also}: {finding.rule}: {finding.node.path()}{more}: {finding.text}"
