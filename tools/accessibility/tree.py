# SPDX-License-Identifier: MIT
"""A snapshot of an accessibility tree as plain values, read from the bus or made for a test."""
from dataclasses import dataclass, field


@dataclass(eq=False)
class Node:
    """`rect` is x, y, width and height in screen pixels, `value` the minimum, current value and maximum; None if there
    is none. `handle` is the object on the bus."""
    role: str
    name: str = ""
    description: str = ""
    states: frozenset = frozenset()
    rect: tuple = None
    value: tuple = None
    actions: tuple = ()
    children: list = field(default_factory=list)
    handle: object = None
    parent: "Node" = None

    def __post_init__(self):
        for child in self.children:
            child.parent = self

    def has(self, state):
        return state in self.states

    @property
    def showing(self):
        return "showing" in self.states

    def walk(self):
        """This node and all its descendants, in tree order."""
        waiting = [self]
        while waiting:
            node = waiting.pop()
            yield node
            waiting.extend(reversed(node.children))

    def shown(self):
        """The showing nodes of walk(). Descendants of a hidden node may be showing."""
        return (node for node in self.walk() if node.showing)

    def above(self):
        """The ancestors, innermost first."""
        node = self.parent
        while node is not None:
            yield node
            node = node.parent

    def label(self):
        return f"{self.role} \"{self.name}\""

    def path(self):
        return " > ".join(node.label() for node in reversed([self, *self.above()]))

    def signature(self):
        """Equal for two snapshots without a difference."""
        return [(node.role, node.name, node.description, node.states, node.rect, node.value) for node in self.walk()]


def find(root, roles, name):
    """The showing node with one of these roles and a name that fully matches the pattern. The last one if there are
    several, since overlays come after the window's content. None if there is none."""
    found = None
    for node in root.shown():
        if node.role in roles and name.fullmatch(node.name):
            found = node
    return found
