#!/usr/bin/python3
# The settings editor on the accessibility bus, as a screen reader finds it.
#
#   settings.py KORVEL_SETTINGS SAMPLE_SETTINGS
import difflib
import os
import shutil
import sys

from desktop import DEADLINE, Desktop, Failed, wait_for

TOO_WIDE = "Too wide for the paper"


def say_that_one_reads():
    """Tells the programs of the desktop that somebody uses the accessibility bus."""
    from gi.repository import Gio, GLib

    Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        "org.a11y.Bus",
        "/org/a11y/bus",
        "org.freedesktop.DBus.Properties",
        "Set",
        GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))),
        None,
        Gio.DBusCallFlags.NONE,
        DEADLINE * 1000,
        None,
    )


class Reader:
    """What a screen reader sees of one program."""

    def __init__(self, process):
        import pyatspi
        from gi.repository import Atspi, GLib

        Atspi.set_timeout(DEADLINE * 1000, DEADLINE * 1000)
        self.process = process
        self.bus = pyatspi
        self.gone = (LookupError, NotImplementedError, GLib.Error)
        self.events = GLib.MainContext.default()
        self.desktop = pyatspi.Registry.getDesktop(0)
        self.desktop.setCacheMask(pyatspi.cache.NONE)  # each look is one at the program as it is

    def program(self):
        if self.process.poll() is not None:
            raise Failed(f"the editor has ended: {self.process.returncode}")
        while self.events.iteration(False):
            pass
        for i in range(self.desktop.childCount):
            program = self.desktop.getChildAtIndex(i)
            if program and program.get_process_id() == self.process.pid:
                return program
        return None

    def look(self, role, name, of):
        """What a question gives of the first that has a role and a name, or the beginning of one;
        null where there is none."""
        try:
            found = (program := self.program()) and self.bus.findDescendant(
                program, lambda each: each.getRoleName() == role and each.name.startswith(name)
            )
            return found and of(found)
        except self.gone:  # while it was looked at
            return None

    def find(self, role, name, that=lambda found: True):
        """Waits for the first of a role and a name until something is true of it."""
        what = f"{role} {name!r}"
        return wait_for(what, lambda: self.look(role, name, lambda f: that(f) and f))

    def do(self, role, name, wanted):
        found = self.find(role, name)
        action = found.queryAction()
        names = [action.getName(i) for i in range(action.nActions)]
        if wanted not in names:
            raise Failed(f"{role} {name!r} has no action {wanted!r}, but {names}")
        action.doAction(names.index(wanted))

    def width(self, number, finding):
        """Waits until the field shows a width, and tells of what is wrong with it or not."""
        self.find(
            "spin button",
            "Paper width",
            lambda field: field.queryValue().currentValue == number
            and (TOO_WIDE in field.description) == finding,
        )

    def set_width(self, number):
        self.find("spin button", "Paper width").queryValue().currentValue = number

    def paper(self, *lines):
        """Waits until the paper has lines, as they are read one by one."""
        read = []

        def is_there(paper):
            read[:] = self.lines_of(paper)
            return set(lines) <= set(read)

        try:
            self.find("text", "Paper", is_there)
        except Failed as failed:
            raise Failed(f"{failed} with {lines}; it is {read}") from failed

    def lines_of(self, paper):
        text = paper.queryText()
        offset, lines = 0, []
        while offset < text.characterCount:
            line, _, offset = text.getTextAtOffset(offset, self.bus.TEXT_BOUNDARY_LINE_START)
            lines.append(line.rstrip("\n"))
        return lines


def check(desktop, program, sample):
    with open(sample, "rb") as file:
        before = file.read()
    conf = os.path.join(desktop.home, ".korvel", "conf", "korvel.conf")
    os.makedirs(os.path.dirname(conf))
    shutil.copyfile(sample, conf)

    def saved():
        with open(conf, "rb") as file:
            return file.read()

    say_that_one_reads()
    editor = desktop.start([program])
    reader = Reader(editor)

    # The documents by their names, and the paper of each.
    reader.do("list item", "Kitchen order", "Toggle")
    reader.paper("COMANDA", "  2 Spaghetti alle vongole ver")
    reader.do("list item", "Receipt", "Toggle")
    reader.paper(" Serial Number: 118", "    TOTAL...............   80.90", "=" * 32)
    reader.width(32, finding=False)

    # A width that is too wide is said at the field and below the paper; nothing is written.
    reader.set_width(40)
    reader.width(40, finding=True)
    reader.find("list item", f"Paper width: {TOO_WIDE}")
    reader.find(
        "list item",
        "Lines 2, 4, 9, 11, 15, 18–26, 28 are wider than the paper: up to 40 characters, of 32. "
        "Quantity column 3, Price column 7, Amount column 8, Paper width 40.",
    )
    reader.paper("=" * 40)

    reader.do("menu item", "Undo paper width 40", "Press")
    reader.width(32, finding=False)
    reader.paper("=" * 32)

    reader.set_width(40)
    reader.width(40, finding=True)
    if saved() != before:
        raise Failed("the file was written before it was saved")
    reader.do("menu item", "Save", "Press")
    head, group, rest = before.partition(b"receiptdoc: ")
    # The store ends each group of the file with an empty line.
    after = head + group + rest.replace(b'paperWidth = "32"', b'paperWidth = "40"', 1) + b"\n"
    try:
        wait_for("the saved file", lambda: saved() == after)
    except Failed as failed:
        lines = (text.decode().splitlines() for text in (after, saved()))
        raise Failed("\n".join([str(failed), *difflib.unified_diff(*lines)])) from failed

    reader.do("menu item", "Quit", "Press")
    wait_for("the end of the editor", lambda: editor.poll() is not None)
    if editor.returncode != 0:
        raise Failed(f"the editor ended with {editor.returncode}")


def main():
    try:
        with Desktop() as desktop:
            try:
                check(desktop, *sys.argv[1:])
            except Exception:
                sys.stderr.write(desktop.logged())
                raise
    except (Failed, ImportError) as error:
        sys.exit(f"{type(error).__name__}: {error}")


main()
