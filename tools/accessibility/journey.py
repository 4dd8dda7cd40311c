# SPDX-License-Identifier: MIT
"""Visits every screen of the application and lists what each has to show."""
import re

import bus
from rules import DIALOGS, MENU_ITEMS, RANGED, Finding, check_focus
from slowness import slowed
from walker import PRESSED, TICKS, any_named, expect

SCREENS = ("Overview", "Reclaim", "Privacy", "Tune", "Apps", "Clutter", "Duplicates", "Lens", "Health", "System",
           "Tools", "Settings")
# The screens that show a survey; last the one with the results.
SURVEYING = ("Reclaim", "Clutter", "Lens", "Overview")
MENUS_OF_BAR = {"Zelk": "About Zelk", "File": "Run Survey", "Go": "Overview", "Help": "Zelk Help"}
TITLES = frozenset({"menu", "menu item", "menu bar"})
TABS = frozenset({"page tab", "push button"})
FOLDERS = "Surveyed folders|Folders in .*"
REVIEW = "Review (&|and) Clean"
# An upper limit for the length of the focus chain.
MOST_STOPS = 60
# A slowed survey takes about a minute.
PROGRESS_SECONDS = 30
SURVEY_SECONDS = 300
CLEANING_SECONDS = 120
HASHING_SECONDS = 120


def main_window():
    """The nodes outside the current screen."""
    return [expect("Zelk", "frame"), expect(".*[Mm]enu.*", "menu bar"), expect("Modules", "page tab list"),
            *(expect(title, "menu", "menu item", among=TITLES) for title in MENUS_OF_BAR),
            *(expect(screen, "page tab") for screen in SCREENS),
            expect("(Collapse|Expand) sidebar", "push button", "toggle button"),
            expect("Developer view", "check box", "switch")]


def walk(walker, process):
    first_run(walker)
    menus(walker)
    stops(walker)
    survey(walker, process)
    for audience in ("everyone", "developers"):
        if audience == "developers":
            walker.choose("Developer view", "checked", TICKS)
        for screen in SCREENS:
            go(walker, screen, f"{screen} for {audience}")
            if screen in INSIDE:
                INSIDE[screen](walker, audience)
    walker.press("Developer view", TICKS)
    clean_up(walker)
    windows(walker)


def go(walker, screen, title):
    walker.screen = title
    walker.choose(screen, "selected", TABS)
    walker.look(title, *main_window())


def first_run(walker):
    forward = "Next|Get Started"
    for page in range(1, 10):
        if walker.find(forward) is None:
            break
        walker.look(f"Welcome, page {page}", expect(forward, "push button"), any_named(*DIALOGS),
                    expect("Page \\d of \\d", "label", "paragraph", "static", "progress bar", "panel", "page tab list",
                           among=frozenset({"unknown"})))
        walker.press(forward)
    else:
        walker.fault("state", "the welcome does not end")
    if walker.screen != f"Welcome, page {page - 1}":
        walker.fault("missing", "there was no welcome at the first start")
    # Not shown if the whole drive is readable anyway.
    if walker.find("Continue without it") is not None:
        walker.look("Access", expect("Continue without it", "push button", "link"), any_named(*DIALOGS))
        walker.press("Continue without it")
    walker.look("Overview at first", *main_window(), expect("Scan your whole .*", "push button"))


def open_menu(walker, title):
    """Opens a menu through its action if it has one, else by the keyboard."""
    node = walker.find(title, TITLES)
    if node is None or not walker.act(node):
        walker.press_key("F10")
        for _ in range(list(MENUS_OF_BAR).index(title)):
            walker.press_key("Right")


def menus(walker):
    for title, entry in MENUS_OF_BAR.items():
        walker.screen = f"Menu {title}"
        open_menu(walker, title)
        walker.look(walker.screen, expect(entry, "menu item"))
        walker.escape()
        if any(node.has("focused") and node.role in TITLES for node in walker.tree.walk()):
            walker.fault("focus", "Escape leaves the keyboard in the menu bar")
            walker.press_key("Escape")


def stops(walker):
    """Tab visits visible items with names only, and returns to the first one."""
    walker.screen = "The tab key's way"
    seen = []
    for _ in range(MOST_STOPS):
        walker.press_key("Tab")
        walker.report.add(walker.screen, check_focus(walker.tree))
        focused = [node for node in walker.tree.walk() if node.has("focused")]
        if not focused:
            walker.fault("focus", "the tab key leads to nothing", seen[-1] if seen else None)
            return
        if seen and focused[-1].path() == seen[0].path():
            return
        seen.append(focused[-1])
    walker.fault("focus", "the tab key does not come back to where it began")


def survey(walker, process):
    """Runs a survey, slowed down so that its progress can be observed."""
    walker.screen = "Overview during a survey"
    with slowed(process):
        if walker.press("Scan your whole .*") is None:
            return
        walker.look(walker.screen, *main_window(), any_named("progress bar"))
        told(walker)
        walker.screen = "Tools during a survey"
        walker.press("Tools", TABS)
        quiet(walker)
        for screen in SURVEYING:
            go(walker, screen, f"{screen} during a survey")
    # When it has ended, the button's name is the reclaimable size.
    walker.wait(lambda: walker.find("scanning.*|Scan .*", frozenset({"push button", "progress bar"})) is None,
                SURVEY_SECONDS)
    walker.look("Overview after a survey", *main_window())
    for pattern, roles in (("Empty( Trash)?", ("push button",)), ("See all", ("push button", "link")),
                           ("What changed since last scan", ("push button",))):
        walker.bring(pattern)
        walker.look("Overview after a survey", expect(pattern, *roles))
    if walker.find("Empty") is not None:
        walker.fault("name", "does not say what it empties", walker.find("Empty"))


def told(walker):
    """A progress bar must describe its progress in words. (These do not change here: the sample home has fewer items
    than lie between two updates.)"""
    for _ in bus.moments(PROGRESS_SECONDS):
        tree = bus.snapshot(walker.application)
        bars = [] if tree is None else [node for node in tree.shown() if node.role == "progress bar"]
        if tree is not None and not bars or any(bar.description.strip() for bar in bars):
            return  # having no progress bar was reported before
    walker.fault("value", f"the progress of a survey says nothing in {PROGRESS_SECONDS} seconds")


def quiet(walker):
    """Hidden nodes must not change their names."""
    before = walker.tree
    for _ in bus.moments(5):
        now = bus.snapshot(walker.application)
        if now is None:
            continue
        if [node.role for node in before.walk()] == [node.role for node in now.walk()]:
            for old, new in zip(before.walk(), now.walk()):
                if not old.showing and not new.showing and (old.name, old.description) != (new.name, new.description):
                    walker.report.add(walker.screen, [Finding("state", new, "does not show and changes its name or "
                                                                            "description")])
        before = now


def overview(walker, _audience):
    walker.bring("What changed since last scan")
    if walker.press("What changed since last scan") is not None:
        walker.look("What changed", expect("What changed", "dialog"), expect("Done", "push button"))
        walker.close("Done")


def menu_of(walker, pattern, title, entry):
    """Opens and closes the menu of a button."""
    if walker.press(pattern) is not None:
        walker.look(title, expect(entry, *MENU_ITEMS), any_named("menu", "popup menu"))
        walker.escape()


def first_row(walker, name):
    """The first visible row of the list with this name; reports an empty list."""
    rows = walker.find(name, frozenset({"list"}))
    shown = [] if rows is None else [row for row in rows.children if row.showing and row.role in PRESSED | TICKS]
    if not shown:
        walker.fault("missing", f"there is no row in a list named \"{name}\"", rows)
    return shown[0] if shown else None


def slide(walker):
    """A slider or spin box must accept a value. One without a range was reported before."""
    ranged = walker.find(".*", RANGED)
    if ranged is None or ranged.value is None or not ranged.value[0] < ranged.value[2]:
        return
    least, now, most = ranged.value
    for value in (most, now):
        walker.set_value(ranged, value)
        after = walker.find(".*", RANGED)
        if after is None or after.value is None or abs(after.value[1] - value) > (most - least) / 100:
            walker.fault("value", f"was set to {value:g} and is not there", after)


def reclaim(walker, audience):
    if audience == "everyone":
        walker.look(walker.screen, expect("Categories", "list"))
        menu_of(walker, "Select:.*", "Select menu of Reclaim", "Safe only")
        walker.screen = "Reclaim for everyone"
        row = first_row(walker, "Categories")
        if row is not None:
            # A name may change with the state.
            walker.toggle(re.escape(row.name.split(",")[0]) + "\\b.*", frozenset({row.role}))
        if walker.press(REVIEW) is not None:
            review(walker)
        return
    walker.look(walker.screen, expect("Items", "list"), any_named("slider"))
    if walker.press("What's safe to remove\\?") is not None:
        walker.look("What is safe to remove")
        walker.escape(DIALOGS)
    walker.screen = "Reclaim for developers"
    slide(walker)
    row = first_row(walker, "Items")
    if row is not None and walker.act(row):
        walker.look("Reclaim for developers, unfolded")


def review(walker):
    walker.look("Review of a clean-up", expect("Review cleanup", "dialog"), expect("What will go", "list"),
                expect("Delete permanently .*", *TICKS), expect("Cancel", "push button"))
    walker.toggle("Delete permanently .*")
    walker.close("Cancel")


def clutter(walker, _audience):
    walker.look(walker.screen, expect("Files", "list"), expect("Largest", "radio button"),
                expect("Oldest", "radio button"), expect("All", "radio button"))
    for order in ("Oldest", "Largest"):
        walker.choose(order, "checked")
    if first_row(walker, "Files") is not None:
        menu_of(walker, "Actions for .*", "Menu of a file", "Move to Trash")


def lens(walker, audience):
    walker.look(walker.screen, expect(FOLDERS, "list"), expect("Map of .*", "list"),
                expect("Start Over", "push button", "link"), expect("Review and Remove", "push button"))
    menu_of(walker, "Select:.*", "Select menu of Lens", "None")
    if walker.press("What is .*\\?") is not None:
        walker.look("What a folder is", any_named("dialog"), expect("Done", "push button"))
        walker.close("Done")
    walker.screen = f"Lens for {audience}"
    row = first_row(walker, FOLDERS)
    if row is None:
        return
    tick = next((node for node in row.walk() if node.showing and node.role in TICKS), None)
    if tick is None:
        walker.fault("missing", "has no tick", row)
    else:
        walker.toggle(re.escape(tick.name), TICKS)
        row = first_row(walker, FOLDERS)
    if walker.act(row):
        walker.look(f"Lens in a folder, for {audience}", expect("Back", "push button"))
        walker.press("Start Over")


def health(walker, _audience):
    walker.look(walker.screen, *(expect(gauge, "image") for gauge in ("CPU", "Memory", "Disk")),
                expect("Free up RAM", "push button"))
    if walker.press(".* Health Score") is not None:
        walker.look("What the score means", expect("Learn more", "push button"))
        walker.escape(DIALOGS)


def system(walker, _audience):
    walker.look(walker.screen, expect("Local snapshots", "heading"), expect("Reload the local snapshots", "push button"))
    if walker.press("Reload the local snapshots") is not None:
        walker.look("System, reloaded")


def settings(walker, _audience):
    title = walker.screen
    walker.look(title, expect("Add folder.*", "push button"), expect("Theme", "panel", "grouping"),
                *(expect(theme, "radio button") for theme in ("Light", "Dark")),
                expect("Age filter default.*", "spin button"), expect("Delete permanently by default", *TICKS))
    for theme in ("Light", "Dark"):
        walker.choose(theme, "checked", frozenset({"radio button", "push button"}))
        walker.look(f"Settings in the theme {theme}")
    walker.screen = title
    walker.toggle("Delete permanently by default")
    slide(walker)


def duplicates(walker, audience):
    if audience == "everyone":
        walker.press("Find duplicates")
        walker.wait(lambda: walker.find("Duplicate sets", frozenset({"list"})) is not None, HASHING_SECONDS)
    title = f"Duplicate sets for {audience}"
    walker.screen = title
    walker.look(title, expect("Duplicate sets", "list"), expect("Find duplicates", "push button"),
                expect("Keep first, trash rest: .*", "push button"), expect("Reveal in .*: .*", "push button"))
    if audience == "developers" and walker.press("Keep first, trash rest: .*") is not None:
        walker.look("Duplicate sets, one less", expect("Undo", "push button", "link"))
        walker.press("Undo")
        walker.look("Duplicate sets, after an undo", expect("Duplicate sets", "list"))


def tune(walker, audience):
    if audience == "everyone":
        walker.press("Check this .*")
    title = f"Levers for {audience}"
    walker.screen = title
    walker.look(title, expect("Free up RAM", "push button"), expect("Flush DNS cache", "push button"),
                expect("Refresh memory", "push button"), expect("All", "push button"), expect("None", "push button"),
                expect("Search", "text", "entry"), expect("Background items", "list"))
    row = first_row(walker, "Background items")
    if row is not None and row.has("checkable"):
        walker.toggle(re.escape(row.name), frozenset({row.role}))


def apps(walker, audience):
    if audience == "everyone":
        walker.press("Scan applications")
        walker.wait(lambda: walker.find("Applications", frozenset({"list"})) is not None, CLEANING_SECONDS)
    title = f"Applications for {audience}"
    walker.screen = title
    walker.look(title, expect("Applications", "list"), expect("Total footprint", "radio button"),
                expect("App size", "radio button"), expect("Uninstall .+", "push button"))
    for order in ("App size", "Total footprint"):
        walker.choose(order, "checked")
    first_row(walker, "Applications")
    if walker.press("Uninstall Tidepool") is not None:
        ready = "Move .* to Trash"
        walker.wait(lambda: any(node.has("sensitive") for node in [walker.find(ready)] if node), CLEANING_SECONDS)
        walker.look(f"Sheet of an application for {audience}", expect("Uninstall Tidepool", "dialog"),
                    expect("What will go", "list"), expect("Cancel", "push button"), expect(ready, "push button"))
        walker.close("Cancel")


def privacy(walker, audience):
    if audience == "everyone":
        walker.press("Scan for traces")
    title = f"Traces for {audience}"
    walker.screen = title
    walker.wait(lambda: walker.find("Clear traces") is not None, CLEANING_SECONDS)
    walker.look(title, expect("Traces", "list"), expect("Clear traces", "push button"))
    row = first_row(walker, "Traces")
    if row is not None and row.has("checkable"):
        walker.toggle(re.escape(row.name), frozenset({row.role}))


INSIDE = {"Overview": overview, "Reclaim": reclaim, "Privacy": privacy, "Tune": tune, "Apps": apps, "Clutter": clutter,
          "Duplicates": duplicates, "Lens": lens, "Health": health, "System": system, "Settings": settings}


def clean_up(walker):
    """Runs a clean-up to its end, into the Trash of the sample home."""
    go(walker, "Reclaim", "Reclaim before a clean-up")
    if walker.press(REVIEW) is None or walker.press("Move .* to Trash") is None:
        return
    walker.screen = "Result of a clean-up"
    ended = "Keep in Trash|Done"
    walker.wait(lambda: walker.find(ended) is not None, CLEANING_SECONDS)
    walker.look(walker.screen, expect("Moved to the Trash", "dialog"), expect(ended, "push button"))
    if not any(node.has("focused") and node.showing for node in walker.tree.walk()):
        walker.fault("focus", "nothing has the keyboard, so the result is told to nobody")
    walker.close(ended)


def by_keys(walker, entry):
    """Chooses an entry of the open menu by the keyboard. Returns False if there is no such entry."""
    entries = [node.name for node in walker.tree.shown() if node.role in MENU_ITEMS and node.parent.role != "menu bar"]
    place = next((place for place, name in enumerate(entries) if re.fullmatch(entry, name)), None)
    if place is None:
        return False
    for _ in range(place + 1):
        walker.press_key("Down")
    walker.press_key("Return")
    return True


def windows(walker):
    """Opens the secondary windows by their menu entries."""
    for title, menu, entry, shown in (("About", "Zelk", "About Zelk", expect("Zelk", "heading")),
                                      ("Help", "Help", "Zelk Help", expect("Topics", "list")),
                                      ("Settings", "Zelk", "Settings.*", expect("Add folder.*", "push button"))):
        walker.screen = f"Window {title}"
        open_menu(walker, menu)
        if walker.press(entry, MENU_ITEMS) is None and not by_keys(walker, entry):
            walker.escape()
            continue
        if walker.window_count() < 2:
            walker.fault("missing", f"the entry {entry} opens no window")
            continue
        walker.look(walker.screen, shown)
        walker.press_key("Escape")
        if walker.window_count() > 1:
            walker.fault("state", "was closed and still shows", walker.tree.children[-1])
