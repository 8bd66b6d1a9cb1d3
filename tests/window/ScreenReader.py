#!/usr/bin/python3
"""Goes through the windows of the program as a screen reader finds them: ScreenReader.py PROGRAM

Every control that takes the focus has a name, no two of one kind have the same name within their group, option buttons
and links are told as such, and each step of the wizard is told once. Needs a session bus of its own (dbus-run-session).
"""
import contextlib
import os
import socket
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
    raise SystemExit(f"{what} did not come within {PATIENCE} seconds, but {words()}")


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


def windows():
    return [one for application in pyatspi.Registry.getDesktop(0) if application and application.name == "orlena"
            for one in application if one and has(one, pyatspi.STATE_SHOWING)]


def window(title):
    return wait_for(f'the window "{title}"', lambda: next((one for one in windows() if one.name == title), None))


def words():
    """What is said in each window, for a failure."""
    return [(one.name, [node.name for node, _ in seen(one) if node.getRole() == LABEL]) for one in windows()]


def find(place, role, name):
    """By its role, told in the words of the accessibility tree."""
    def look():
        for node, _ in seen(place):
            if node.getRoleName() == role and node.name == name:
                return node
        return None
    return wait_for(f'the {role} "{name}" of "{place.name}"', look)


def act(node, wanted):
    wait_for(f'"{node.name}" to be enabled', lambda: has(node, pyatspi.STATE_ENABLED))
    action = node.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    if wanted not in names:
        raise SystemExit(f'"{node.name}" offers no "{wanted}", but {names}')
    action.doAction(names.index(wanted))


def press(place, name, role="push button"):
    act(find(place, role, name), "Press")


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


def close(opened, button):
    press(opened, button)
    wait_for(f'"{opened.name}" to close', lambda: not has(opened, pyatspi.STATE_SHOWING))


def check_and_close(title, button):
    opened = window(title)
    check(opened)
    close(opened, button)


def expect(told, role, name):
    if (role, name) not in told:
        failures.append(f'no {role} "{name}", but {told}')


def type_into(place, name, text):
    find(place, "text", name).queryEditableText().setTextContents(text)


def choose_device(title, words):
    dialog = window(title)
    check(dialog)
    type_into(dialog, "Find:", words)
    close(dialog, "OK")


def walk_properties(wizard):
    press(wizard, "Properties...")
    dialog = window("Properties of Display Device")
    for page in ("IO Assignment", "Properties", "Basic"):
        press(dialog, page, "page tab")
        check(dialog, page)
    close(dialog, "Cancel")


def menu_entry(button, name):
    """The entry of a button's menu, which need not be open."""
    for menu in button:
        for entry in menu:
            if entry.name == name:
                return entry
    return None


def walk_communication(wizard, address):
    """The address book, which gets a receiver to send to, and what else the button's menu opens."""
    button = find(wizard, "push button", "Communication Settings")
    act(button, "Press")
    book = window("Communication Settings")
    check(book)
    type_into(book, "Name:", "Lecture Hall")
    type_into(book, "Address:", address)
    press(book, "Add")
    close(book, "OK")
    act(menu_entry(button, "Set IP Information..."), "Press")
    check_and_close("IP Information", "Cancel")


def choose_display(wizard, words):
    """With the page's button, and goes on to the last page but one."""
    press(wizard, "Display Device")
    press(wizard, "Choose...")
    choose_device("Select a Display Device", words)
    press(wizard, "Room Options")


def walk_faults(wizard):
    """A display whose second Power Off the former one's command is still sent for."""
    choose_display(wizard, "x31 orvistel")
    press(wizard, "Next >")
    press(wizard, "Upload System")
    build = window("Build Program")
    find(build, "push button", "Go to Page")
    check(build, "with an error")
    close(build, "Go to Page")
    find(wizard, "radio button", "Discrete")


def walk_upload(wizard, address):
    """With a display that lacks commands, which the panels tell of, to a receiver that never answers."""
    choose_display(wizard, "k55 hotel")
    press(wizard, "Include Fenlet Interface", "check box")
    press(wizard, "Next >")
    press(wizard, "Upload System")
    find(window("Touchpanel Creation"), "push button", "Continue")
    check_and_close("Touchpanel Creation", "Continue")
    transfer = window("Upload")
    check(transfer)
    bars = [node.name for node, _ in seen(transfer) if node.getRole() == pyatspi.ROLE_PROGRESS_BAR]
    if bars != [f'Sending "My Orlena System" to the receiver at {address.removeprefix("tcp ")}...']:
        failures.append(f"the progress bars of the transfer are {bars}")
    close(transfer, "Cancel")
    press(wizard, "Audio Settings", "link")
    check_and_close("Audio Settings", "Close")


def walk_wizard(address):
    wizard = window("Orlena")
    for number, (step, title) in enumerate(STEPS.items()):
        wait_for(f'the page "{title}"', lambda: any(title in n.name for n, _ in seen(wizard) if n.getRole() == LABEL))
        if step == "Display Device":
            press(wizard, "Choose...")
            choose_device("Select a Display Device", "p2200 bravonne")
            find(wizard, "check box", "Enable power triggered relay:")
            walk_properties(wizard)
        elif step == "Power Control":
            press(wizard, "Send second Power Off command", "check box")
            type_into(wizard, "Send second Power Off command after seconds", "3")
        elif step == "Display Options":
            press(wizard, "Include Screen control", "check box")
            press(wizard, "Choose...")
            choose_device("Select a Device", "mixed 240")
        elif step == "Orlena Transmitters":
            press(wizard, "Add to System")
        told = check(wizard, f"{number} {step}")
        for other in STEPS:
            times = sum(name == other and role in ("push button", "page tab") for role, name in told)
            if times != 1 and other != "Finish":  # a button of the window is called so too
                failures.append(f'"{other}" is told {times} times on {step}')
        if step == "Audio Control":
            expect(told, "radio button", "Master volume")
            press(wizard, "Master volume", "radio button")
            option = find(wizard, "radio button", "Master volume")
            wait_for("the option to be chosen", lambda: has(option, pyatspi.STATE_CHECKED))
        if step == "Power On/Off Lockout":
            expect(told, "text", "Power On Lockout for seconds")
        if step != "Finish":
            press(wizard, "Next >")
    press(wizard, "Documentation")
    check_and_close("System Documentation", "Close")
    walk_communication(wizard, address)
    walk_faults(wizard)
    walk_upload(wizard, address)


def walk_recovery(restart):
    """The program is killed while a name is typed, and offers it when it starts again."""
    press(window("Trellisar"), "New System...")
    wizard = window("Orlena")
    press(wizard, "Next >")
    type_into(wizard, "System Name:", "Lecture Hall")
    time.sleep(2)
    restart()
    dialog = window("Unsaved System")
    told = check(dialog)
    for button in ("Restore", "Discard", "Later"):
        expect(told, "push button", button)
    close(dialog, "Restore")
    name = find(window("Orlena"), "text", "System Name:").queryText().getText(0, -1)
    if name != "Lecture Hall":
        failures.append(f'the name that was restored is "{name}"')
    restart()
    close(window("Unsaved System"), "Discard")


@contextlib.contextmanager
def running(command):
    """The program on a display of its own, with no more of the user's than that. What is given kills it and starts it
    again."""
    folder = tempfile.TemporaryDirectory(prefix="orlena-test-")
    display = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    environment = dict(os.environ, DISPLAY=":" + display.stdout.readline().strip(), QT_QPA_PLATFORM="xcb",
                       QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", XDG_CONFIG_HOME=folder.name,
                       TRELLISAR_SYSTEMS=folder.name + "/systems")
    programs = []

    def restart():
        for program in programs:
            program.kill()
            program.wait()
        programs[:] = [subprocess.Popen(command, env=environment)]

    restart()
    try:
        yield restart
    finally:
        for program in programs:
            program.kill()
            program.wait()
        display.kill()
        display.wait()


def main():
    with running([sys.argv[1]]) as restart:
        walk_recovery(restart)
        host = window("Trellisar")
        check(host)
        press(host, "Preferences...")
        check_and_close("Preferences", "Cancel")
        press(host, "New System...")
        with socket.create_server(("127.0.0.1", 0)) as silent:
            walk_wizard(f"tcp 127.0.0.1:{silent.getsockname()[1]}")
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
