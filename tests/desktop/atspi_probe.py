#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads and drives Kelmora's window through the accessibility bus (AT-SPI),
the way a screen reader would. Usage:
  atspi_probe.py wait-window TITLE      until a frame with that title shows
  atspi_probe.py cell ROW COLUMN        prints a table cell's text
  atspi_probe.py rows                   prints the table's row count
  atspi_probe.py focused-text           prints the text of the focused text input
  atspi_probe.py status                 prints the status bar's text
  atspi_probe.py buttons                prints the toolbar and dialog buttons, one a line
  atspi_probe.py press NAME             presses the first button with that name
  atspi_probe.py text NAME              prints the text of the first control with that name
  atspi_probe.py centre NAME            prints the screen centre "X Y" of that control
  atspi_probe.py left-of NAME DX        prints "X Y": DX pixels in from its left edge, half-way down
  atspi_probe.py extents NAME           prints "X Y WIDTH HEIGHT" of that control on the screen
Exits 1 with a message when what it looks for does not appear in 20 s."""

import sys
import warnings
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

warnings.filterwarnings("ignore", category=DeprecationWarning)

TIMEOUT = 20.0
POLL = 0.2


def kelmora():
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        app = desktop.get_child_at_index(i)
        if app is not None and (app.get_name() or "").lower() == "kelmora":
            return app
    return None


def walk(node, depth=0):
    if node is None or depth > 40:
        return
    yield node
    try:
        count = node.get_child_count()
    except Exception:
        return
    for i in range(count):
        try:
            child = node.get_child_at_index(i)
        except Exception:
            continue
        yield from walk(child, depth + 1)


def role(node):
    try:
        return node.get_role_name()
    except Exception:
        return ""


def text_of(node):
    try:
        t = node.get_text_iface()
        if t is not None:
            return t.get_text(0, t.get_character_count())
    except Exception:
        pass
    return node.get_name() or ""


def until(find, what):
    deadline = time.monotonic() + TIMEOUT
    while time.monotonic() < deadline:
        app = kelmora()
        if app is not None:
            found = find(app)
            if found is not None:
                return found
        time.sleep(POLL)
    sys.exit("not found: " + what)


def find_role(app, wanted):
    for node in walk(app):
        if role(node) == wanted:
            return node
    return None


def main(argv):
    command = argv[1]
    if command == "wait-window":
        title = argv[2]
        # A main window is a frame; a plain top-level window (the preferences)
        # is whatever its widget is, but always a child of the application.
        until(lambda app: next((n for n in walk(app)
                                if n.get_name() == title and
                                (role(n) == "frame" or n.get_parent() == app)), None),
              "window " + title)
        print(title)
    elif command == "rows":
        table = until(lambda app: find_role(app, "table"), "table")
        print(table.get_table_iface().get_n_rows())
    elif command == "cell":
        row, column = int(argv[2]), int(argv[3])
        table = until(lambda app: find_role(app, "table"), "table")
        cell = table.get_table_iface().get_accessible_at(row, column)
        print(text_of(cell))
    elif command == "focused-text":
        def focused(app):
            for node in walk(app):
                if role(node) == "text" and node.get_state_set().contains(Atspi.StateType.FOCUSED):
                    return node
            return None
        print(text_of(until(focused, "focused text input")))
    elif command == "status":
        bar = until(lambda app: find_role(app, "status bar"), "status bar")
        texts = [text_of(n) for n in walk(bar) if n is not bar and text_of(n)]
        print(" ".join(texts) if texts else text_of(bar))
    elif command == "status-message":
        # The message shown over the status text, if any.
        bar = until(lambda app: find_role(app, "status bar"), "status bar")
        print(bar.get_description() or "")
    elif command == "buttons":
        app = until(lambda app: app, "application")
        for node in walk(app):
            if role(node) in ("push button", "toggle button"):
                print(node.get_name())
    elif command == "press":
        name = argv[2]
        button = until(lambda app: next((n for n in walk(app)
                                         if role(n) == "push button" and n.get_name() == name),
                                        None), "button " + name)
        button.get_action_iface().do_action(0)
        print("pressed " + name)
    elif command == "described":
        # The name of the control whose description is the argument: a line
        # whose name is what it shows, like the check bar.
        wanted = argv[2]
        node = until(lambda app: next((n for n in walk(app)
                                       if n.get_description() == wanted), None),
                     "control described " + wanted)
        print(node.get_name())
    elif command in ("text", "centre", "left-of", "extents"):
        name = argv[2]
        node = until(lambda app: next((n for n in walk(app)
                                       if n.get_name() == name and role(n) != "label"), None),
                     "control " + name)
        if command == "text":
            print(text_of(node))
        elif command == "extents":
            box = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
            print(box.x, box.y, box.width, box.height)
        else:
            box = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
            x = box.x + int(argv[3]) if command == "left-of" else box.x + box.width // 2
            print(x, box.y + box.height // 2)
    else:
        sys.exit("unknown command " + command)


if __name__ == "__main__":
    main(sys.argv)
