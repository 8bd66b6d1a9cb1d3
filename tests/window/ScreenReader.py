#!/usr/bin/python3
"""Goes through the windows of the program as a screen reader finds them: ScreenReader.py PROGRAM

Every control that takes the focus has a name, no two of one kind have the same name within their group, option buttons
and links are told as such, and each step of the wizard is told once. Needs a session bus of its own (dbus-run-session).
"""
import os
import subprocess
import sys
import tempfile
import time

import pyatspi

PATIENCE = 30  # seconds until something is there
STEPS = {  # by the names in the list, with the titles of their pages
    "Start": "Orlena", "Name and Location": "Name & Location", "Display Device": "Display Device",
    "Audio Control": "Audio Control", "Power Control": "Power Control", "Power On/Off Lockout": "Power Lockout",
    "Display Options": "Display Options", "Orlena Transmitters": "OL Transmitters", "Room Options": "Room Options",
    "Finish": "Orlena"}
LABEL = pyatspi.ROLE_LABEL
failures = []


def wait_for(what, find):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = find()
        except Exception:  # what was looked at has gone in the meantime
            found = None
        if found:
            return found
        time.sleep(0.05)
    raise SystemExit(f"{what} did not come within {PATIENCE} seconds")


def has(node, state):
    return node.getState().contains(state)


def seen(node, path=()):
    """All that shows below a node, each with the names of what holds it."""
    for child in node:
        if child is None or not has(child, pyatspi.STATE_SHOWING):
            continue
        yield child, path
        if child.getRole() not in (pyatspi.ROLE_TABLE, pyatspi.ROLE_TREE_TABLE, pyatspi.ROLE_LIST, pyatspi.ROLE_TREE,
                                   pyatspi.ROLE_COMBO_BOX):
            yield from seen(child, path + (child.name,))


def window(title):
    def find():
        desktop = pyatspi.Registry.getDesktop(0)
        for application in desktop:
            if application and application.name == "orlena":
                for one in application:
                    if one and one.name == title and has(one, pyatspi.STATE_SHOWING):
                        return one
        return None
    return wait_for(f'the window "{title}"', find)


def find(place, role, name):
    """By its role, told in the words of the accessibility tree."""
    def look():
        for node, _ in seen(place):
            if node.getRoleName() == role and node.name == name:
                return node
        return None
    return wait_for(f'the {role} "{name}" of "{place.name}"', look)


def press(place, name, role="push button"):
    button = find(place, role, name)
    wait_for(f'"{name}" to be enabled', lambda: has(button, pyatspi.STATE_ENABLED))
    action = button.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    action.doAction(names.index("Press"))


def check(place, state=""):
    told = {}
    where = f"{place.name} {state}".strip()
    for node, path in seen(place):
        role, name = node.getRoleName(), node.name
        if not has(node, pyatspi.STATE_FOCUSABLE) or node.getRole() == pyatspi.ROLE_FILLER:
            continue
        if not name:
            failures.append(f"{where}: a {role} without a name, in {path}")
        elif (role, name, path) in told:
            failures.append(f'{where}: two of the kind {role} have the name "{name}"')
        told[(role, name, path)] = True
    print(f"{where}: {len(told)} controls")
    return [(role, name) for role, name, _ in told]


def check_and_close(title, button):
    opened = window(title)
    check(opened)
    press(opened, button)
    wait_for(f'"{title}" to close', lambda: not has(opened, pyatspi.STATE_SHOWING))


def expect(told, role, name):
    if (role, name) not in told:
        failures.append(f'no {role} "{name}", but {told}')


def type_into(place, name, text):
    find(place, "text", name).queryEditableText().setTextContents(text)


def choose_device(title, words):
    dialog = window(title)
    check(dialog)
    type_into(dialog, "Find:", words)
    press(dialog, "OK")
    wait_for(f'"{title}" to close', lambda: not has(dialog, pyatspi.STATE_SHOWING))


def walk_wizard():
    wizard = window("Orlena")
    for number, (step, title) in enumerate(STEPS.items()):
        wait_for(f'the page "{title}"', lambda: any(title in n.name for n, _ in seen(wizard) if n.getRole() == LABEL))
        if step == "Display Device":
            press(wizard, "Choose...")
            choose_device("Select a Display Device", "p2200 bravonne")
            find(wizard, "check box", "Enable power triggered relay:")
        elif step == "Display Options":
            press(wizard, "Include Screen control", "check box")
            press(wizard, "Choose...")
            choose_device("Select a Device", "mixed 240")
        told = check(wizard, f"{number} {step}")
        for other in STEPS:
            times = sum(name == other and role in ("push button", "page tab") for role, name in told)
            if times != 1 and other != "Finish":  # a button of the window is called so too
                failures.append(f'"{other}" is told {times} times on {step}')
        if step == "Audio Control":
            expect(told, "radio button", "Master volume")
        if step == "Power On/Off Lockout":
            expect(told, "text", "Power On Lockout for seconds")
        if step != "Finish":
            press(wizard, "Next >")
    press(wizard, "Documentation")
    check_and_close("System Documentation", "Close")


def main():
    folder = tempfile.TemporaryDirectory(prefix="orlena-test-")
    display = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    environment = dict(os.environ, DISPLAY=":" + display.stdout.readline().strip(), QT_QPA_PLATFORM="xcb",
                       QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", XDG_CONFIG_HOME=folder.name,
                       TRELLISAR_SYSTEMS=folder.name + "/systems")
    program = subprocess.Popen([sys.argv[1]], env=environment)
    try:
        host = window("Trellisar")
        check(host)
        press(host, "Preferences...")
        check_and_close("Preferences", "Cancel")
        press(host, "New System...")
        walk_wizard()
    finally:
        program.kill()
        program.wait()
        display.kill()
        display.wait()
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
