# SPDX-License-Identifier: MIT
"""Collects the findings of all screens and reports each cause once."""
import re

from rules import OVERLAYS

# Masks what differs between screens and rows: numbers and quoted names.
_FIGURE = re.compile(r"\d[\d.,]*")
_NAME = re.compile("\"[^\"]*\"")
# A node in one of these is one of several of its kind.
_SEVERAL = frozenset({"list", "list item", "page tab list", "menu bar", "menu", "popup menu", "panel"})


def _plain(node):
    """A node's label without what distinguishes it from others of its kind; of repeated nodes and overlays only the
    role."""
    if node.role in OVERLAYS - {"frame"} or node.role in ("list item", "label", "scroll bar") or \
            node.parent is not None and node.parent.role in _SEVERAL:
        return node.role
    return _FIGURE.sub("#", node.label())


def _kind(finding):
    """A key that is equal for findings with the same cause: the same fault, role and ancestors."""
    text = _NAME.sub("", _FIGURE.sub("#", finding.text)) if finding.rule != "missing" else finding.text
    return finding.rule, _plain(finding.node), tuple(_plain(node) for node in finding.node.above()), text


class Report:
    def __init__(self):
        self.kinds = {}
        self.screens = []

    def add(self, screen, findings):
        """Returns the number of new kinds of findings."""
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
