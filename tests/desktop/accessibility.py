#!/usr/bin/env python3
"""Uses the window as a screen reader does, over the accessibility bus: each control that can be seen has a name, and all
of them are reached by Tab, or by arrow keys within a group of choices. Where it matters, their roles are those expected.

Usage: accessibility.py PROGRAM SAMPLES

SAMPLES: the folder of the sample documents. Runs itself again with a display, a session bus and a home of its own. Needs
Xvfb, openbox, D-Bus and AT-SPI.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

INSIDE = "FOLVERO_ACCESSIBILITY_TEST"
PATIENCE = 60  # seconds
MOMENT = 1  # seconds that the focus has to move in
TAB, RETURN, ESCAPE, LEFT, RIGHT, DOWN = 0xFF09, 0xFF0D, 0xFF1B, 0xFF51, 0xFF53, 0xFF54
CONTROL, ALT = 37, 64
# The letters of the menu and of the command in it that open each sheet, and its title.
SHEETS = [("fi", "Import a PDF"), ("vt", "Choose a template"), ("fp", "Publish the book"), ("ha", "About Folvero")]
CONTROLS = {"push button", "toggle button", "check box", "radio button", "text", "password text", "combo box", "list",
            "tree", "tree table", "table", "slider", "spin button", "link", "menu item", "table cell", "list item"}
# What arrow keys reach.
CHOICES = ("radio button", "check box")
# Their insides are reached with the container, or are the book's own.
CONTAINERS = {"menu bar", "tree", "tree table", "table", "list", "combo box", "text", "document web", "scroll bar"}


def rerun(program, samples):
    """In a session without anything of the user's."""
    with tempfile.TemporaryDirectory() as folder:
        home = pathlib.Path(folder)
        (home / "run").mkdir(mode=0o700)
        environment = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "DBUS_"))}
        environment |= {INSIDE: "yes", "HOME": folder, "XDG_RUNTIME_DIR": str(home / "run"), "LANG": "C.UTF-8",
                        "LANGUAGE": "en", "QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        if os.geteuid() == 0:
            environment["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
        command = ["xvfb-run", "-a", "-s", "-screen 0 1280x800x24", "dbus-run-session", "--", sys.executable, __file__]
        return subprocess.run([*command, program, samples], env=environment).returncode


class Screen:
    """What a screen reader knows of the program."""

    def __init__(self, name):
        self.name = name

    def window(self):
        """The window in front: a sheet, where one is open."""
        desktop = Atspi.get_desktop(0)
        windows = [window for app in self.children(desktop) if app.get_name() == self.name
                   for window in self.children(app) if self.has(window, "SHOWING")]
        return next((window for window in windows if self.has(window, "ACTIVE")), None)

    def wait_for_window(self, title, expected=()):
        """Until it gets what is typed and has what is expected. A question goes by its text: its title is the program's
        name."""
        end = time.monotonic() + PATIENCE
        missing, there = {title}, set()
        while missing and time.monotonic() < end:
            time.sleep(0.1)
            try:
                window = self.window()
                if window and any(title in name for name in self.names(window)):
                    there = {self.describe(one) for one in self.shown(window, {"document web"})}
                    missing = set(expected) - there
            except GLib.Error:  # it has gone meanwhile
                pass
        if missing:
            sys.exit(f"{title}: waited in vain for {', '.join(missing)}; there is {', '.join(there)}")
        return window

    def names(self, window):
        labels = [part.get_name() for part in self.children(window) if part.get_role_name() == "label"]
        return [window.get_name()] + (labels if window.get_role_name() == "alert" else [])

    def has(self, thing, state):
        return thing.get_state_set().contains(getattr(Atspi.StateType, state))

    @staticmethod
    def children(thing):
        try:
            found = [thing.get_child_at_index(at) for at in range(thing.get_child_count())]
        except GLib.Error:  # it has gone meanwhile
            return []
        return [child for child in found if child]

    def shown(self, thing, within=()):
        """All that can be seen and used, without what is inside of the roles in within."""
        for child in self.children(thing):
            if self.has(child, "SHOWING"):
                if self.has(child, "SENSITIVE"):
                    yield child
                if child.get_role_name() not in within:
                    yield from self.shown(child, within)

    def label(self, thing):
        labels = [relation.get_target(0).get_name() for relation in thing.get_relation_set()
                  if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]
        # The name of a list that drops down is what it shows.
        return "".join(labels) or ("" if thing.get_role_name() == "combo box" else thing.get_name())

    def describe(self, thing):
        return f"{thing.get_role_name()} “{self.label(thing)}”"

    def press(self, key, held=None):
        """Keysyms of X, such as the codes of capital and small letters; held: a key code."""
        kinds = Atspi.KeySynthType
        if held:
            Atspi.generate_keyboard_event(held, None, kinds.PRESS)
        Atspi.generate_keyboard_event(key, None, kinds.SYM)
        if held:
            Atspi.generate_keyboard_event(held, None, kinds.RELEASE)


def names_missing(screen, window):
    return [f"{one.get_role_name()} without a name, in “{one.get_parent().get_name()}”"
            for one in screen.shown(window, {"document web"})
            if one.get_role_name() in CONTROLS and not screen.label(one).strip()]


def not_reached(screen, window):
    wanted = {screen.describe(one): one for one in screen.shown(window, CONTAINERS)
              if one.get_role_name() in CONTROLS}
    reached = set()

    def focused():
        found = next((name for name, one in wanted.items() if screen.has(one, "FOCUSED")), "")
        reached.add(found)
        return found

    def move(key):
        before = now = focused()
        screen.press(key)
        end = time.monotonic() + MOMENT
        while now == before and time.monotonic() < end:
            time.sleep(0.01)
            now = focused()
        return now

    focused()
    for _ in range(3 * len(wanted) + 30):
        if reached.issuperset(wanted):
            break
        found = move(TAB)
        for arrow in (RIGHT, DOWN, LEFT):
            before = ""
            while found.startswith(CHOICES) and found != before:
                before, found = found, move(arrow)
    return [f"no key reaches {one}" for one in wanted if one not in reached]


def check(screen, title, expected=()):
    """expected: controls that must be there, with their roles."""
    window = screen.wait_for_window(title, expected)
    return [f"{title}: {fault}" for fault in names_missing(screen, window) + not_reached(screen, window)]


def choose(screen, menu, command):
    """By their letters."""
    screen.press(ord(menu), ALT)
    screen.press(ord(command))


def check_sheets(screen):
    faults = check(screen, "Demo book", ["push button “Choose a file…”"])
    for (menu, command), title in SHEETS:
        choose(screen, menu, command)
        faults += check(screen, title)
        screen.press(ESCAPE)
        screen.wait_for_window("Demo book")
    return faults


def check_password(screen):
    faults = check(screen, "Password", ["password text “Password:”", "push button “Cancel”"])
    choose(screen, "p", "x")  # the field, and what is typed into it
    screen.press(RETURN)
    return faults + check(screen, "Password", ["label “This password does not open it.”"])


def check_bars(screen):
    """Those of a book with a damaged page and of one that was published, and the questions on the way."""
    faults = check(screen, "Yearbook", ["frame “Message”", "push button “Close the message”"])
    choose(screen, "f", "p")
    screen.wait_for_window("Publish the book")
    screen.press(RETURN)
    faults += check(screen, "The book is not complete", ["push button “OK”"])
    screen.press(RETURN)
    faults += check(screen, "Open the result files?", ["push button “Open it”", "push button “No”"])
    screen.press(ESCAPE)
    faults += check(screen, "Yearbook", ["frame “Published book”", "push button “Publish again”"])
    screen.press(ord("n"), CONTROL)
    question = "Save the changes to “Yearbook”?"
    faults += check(screen, question, ["push button “Save”", "push button “Don't save”", "push button “Cancel”"])
    screen.press(ESCAPE)
    screen.wait_for_window("Yearbook")
    return faults


# The sample that the program opens, the name it has then, and what is looked at.
RUNS = [(None, None, check_sheets), ("encrypted.pdf", "Report.pdf", check_password),
        ("damaged-page.pdf", "Yearbook.pdf", check_bars)]


def main(program, samples):
    Atspi.init()
    screen = Screen("Folvero")
    manager = subprocess.Popen(["openbox"])
    faults = []
    for sample, name, look in RUNS:
        arguments = [shutil.copy(pathlib.Path(samples, sample), pathlib.Path.home() / name)] if sample else []
        process = subprocess.Popen([program, *arguments])
        try:
            faults += look(screen)
        finally:
            process.terminate()
            process.wait()
    manager.terminate()
    print("\n".join(faults) or "all controls have names and are reached by keys")
    return 1 if faults else 0


sys.exit(main(*sys.argv[1:]) if INSIDE in os.environ else rerun(*sys.argv[1:]))
