"""The window of an action that was asked for on the bus, as a file manager's menu does."""

import os
import signal

from gi.repository import Gio, GLib

from . import accessibility
from .deployment import EXTENSION
from .extension import INTERFACE, OBJECT, processes_of
from .waiting import eventually

_RUN_TIMEOUT = 60_000


def run_action(case, action, *paths, **options):
    """Asks the companion; the name of the error after the interface's, nothing where there is none."""
    arguments = GLib.Variant("(saaya{sv})", (action, [os.fsencode(path) for path in paths], options))
    try:
        case.bus.connection.call_sync(EXTENSION, OBJECT, INTERFACE, "Run", arguments, None, Gio.DBusCallFlags.NONE,
                                      _RUN_TIMEOUT, None)
    except GLib.Error as error:
        return Gio.DBusError.get_remote_error(error).removeprefix(INTERFACE + ".Error.")
    return None


class ActionWindow:
    """The window of an action that runs, from its start to its end."""

    def __init__(self, case, action, title, *paths, **options):
        self._case = case
        self._action = action
        others = self.processes()
        case.assertIsNone(run_action(case, action, *paths, **options))
        self.process, = set(self.processes()) - set(others)
        case.addCleanup(self.kill)
        self.window = eventually(lambda: self.find_window(title), f"the window “{title}”")

    def processes(self):
        # A program's name is longer than the kernel's own note of it, which is not what is looked at.
        return processes_of(self._action, "HOME=" + self._case.home.folder)

    def is_running(self):
        return self.process in self.processes()

    def kill(self):
        if self.is_running():
            os.kill(self.process, signal.SIGKILL)
        eventually(lambda: not self.is_running(), "the action to go")

    def find_window(self, title):
        """The window of that title, which has the keyboard; LookupError where there is none yet."""
        application = accessibility.application(self._case.bus.accessibility_address, self.process)
        for window in application.children:
            if window.has("showing") and window.name == title and window.has("active"):
                return window
        raise LookupError(f"no window “{title}” is on view")

    def focused(self, window=None):
        return (window or self.window).focused()

    def tab_to(self, name, window=None, key="Tab"):
        """Goes to the control of that name by keyboard alone."""
        seen = []
        for _ in range(60):
            found = eventually(lambda: self.focused(window), "something to have the keyboard")
            if found.name == name:
                return found
            seen.append(found.name)
            self._case.hands.press(key)
            eventually(lambda: self.focused(window) != found, f"the keyboard to go on from “{found.name}”")
        raise AssertionError(f"the keyboard does not come to “{name}”, but to {seen}")

    def texts(self, role="label"):
        return [label.name for label in self.window.all(role)]
