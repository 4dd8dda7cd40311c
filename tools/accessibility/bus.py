# SPDX-License-Identifier: MIT
"""Reads trees from the accessibility bus and acts on their nodes, through the library that screen readers use.

Connects on import, to the buses named by the environment at that time."""
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402
import pyatspi  # noqa: E402

from tree import Node  # noqa: E402

# A busy machine answers slowly, and after a timeout a node would seem to have no name.
ANSWER_MILLISECONDS = 60_000
Atspi.set_timeout(ANSWER_MILLISECONDS, ANSWER_MILLISECONDS)

# X keysyms.
KEYS = {"Down": 0xFF54, "Escape": 0xFF1B, "F10": 0xFFC7, "Return": 0xFF0D, "Right": 0xFF53, "Tab": 0xFF09}


def _interface(query):
    try:
        return query()
    except NotImplementedError:
        return None


def _read_one(handle):
    states = frozenset(pyatspi.stateToString(state) for state in handle.getState().getStates())
    component = _interface(handle.queryComponent)
    rect = None
    if component is not None:
        # In screen coordinates: in window coordinates Qt 6.4 adds the window's position to the size.
        box = component.getExtents(pyatspi.DESKTOP_COORDS)
        rect = (box.x, box.y, box.width, box.height)
    ranged = _interface(handle.queryValue)
    value = None if ranged is None else (ranged.minimumValue, ranged.currentValue, ranged.maximumValue)
    acting = _interface(handle.queryAction)
    actions = () if acting is None else tuple(acting.getName(i) for i in range(acting.nActions))
    return Node(handle.getRoleName(), handle.name or "", handle.description or "", states, rect, value, actions,
                handle=handle)


def _read(handle):
    """The whole tree; None if a part of it disappeared while reading."""
    try:
        root = _read_one(handle)
        waiting = [root]
        while waiting:
            node = waiting.pop()
            for index in range(node.handle.childCount):
                below = node.handle.getChildAtIndex(index)
                if below is None:
                    continue
                child = _read_one(below)
                child.parent = node
                node.children.append(child)
                waiting.append(child)
        return root
    except (GLib.Error, LookupError, RuntimeError):
        return None


def application(process, seconds=120):
    """The handle of the only application on the bus; None if its process ends or the time is up."""
    until = time.monotonic() + seconds
    while time.monotonic() < until and process.poll() is None:
        desktop = pyatspi.Registry.getDesktop(0)
        for index in range(desktop.childCount):
            handle = desktop.getChildAtIndex(index)
            if handle is not None and handle.childCount > 0:
                return handle
        time.sleep(0.1)
    return None


def settled(handle, seconds=10, still=0.3):
    """The tree after it has not changed for `still` seconds, so that animations have ended and lists are filled. If it
    keeps changing, such as a counter, the tree after `seconds`."""
    until = time.monotonic() + seconds
    before, since = None, time.monotonic()
    while True:
        handle.clearCache()
        now = _read(handle)
        signature = None if now is None else now.signature()
        if signature is None or signature != before:
            before, since = signature, time.monotonic()
        elif time.monotonic() - since >= still:
            return now
        if now is not None and time.monotonic() > until:
            return now
        time.sleep(0.05)


def snapshot(handle):
    """The current tree."""
    handle.clearCache()
    return _read(handle)


def act(node, *names):
    """Runs the first of these actions that the node has; False if it has none."""
    acting = _interface(node.handle.queryAction)
    for name in names:
        for index in range(acting.nActions if acting is not None else 0):
            if acting.getName(index) == name:
                acting.doAction(index)
                return True
    return False


def press_key(name):
    """Sends a key press to whatever has the focus."""
    pyatspi.Registry.generateKeyboardEvent(KEYS[name], None, pyatspi.KEY_SYM)


def set_value(node, value):
    node.handle.queryValue().currentValue = value


def moments(seconds):
    """Yields repeatedly until the time is up, and at least twice even on a slow machine."""
    until = time.monotonic() + seconds
    yield
    while True:
        time.sleep(0.2)
        yield
        if time.monotonic() > until:
            return
