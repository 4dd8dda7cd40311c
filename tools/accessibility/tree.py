# SPDX-License-Identifier: MIT
"""One moment of an accessibility tree as plain values, read from the bus or made for a test."""
from dataclasses import dataclass, field


@dataclass(eq=False)
class Node:
    """`rect` is x, y, width, height in pixels of the screen, `value` the lowest, the current and the highest; both are
    None where the node has none. `handle` is what it was read from."""
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
        """This node and all below it, in the order of the document."""
        waiting = [self]
        while waiting:
            node = waiting.pop()
            yield node
            waiting.extend(reversed(node.children))

    def shown(self):
        """The same without what is not showing. What is below a node that does not show may still show."""
        return (node for node in self.walk() if node.showing)

    def above(self):
        """The nodes around this one, from the inside out."""
        node = self.parent
        while node is not None:
            yield node
            node = node.parent

    def label(self):
        return f"{self.role} \"{self.name}\""

    def path(self):
        return " > ".join(node.label() for node in reversed([self, *self.above()]))

    def signature(self):
        """Equal for two readings of a tree in which nothing changed."""
        return [(node.role, node.name, node.description, node.states, node.rect, node.value) for node in self.walk()]


def find(root, roles, name):
    """The showing node of one of these roles whose whole name the compiled pattern matches: the last one, since what
    opens over a window stands behind it. None where there is none."""
    found = None
    for node in root.shown():
        if node.role in roles and name.fullmatch(node.name):
            found = node
    return found
