"""Actions that show a window: started over the bus as a script does, or from a menu, and driven by keyboard."""

import os
import signal

from gi.repository import Gio, GLib

from . import accessibility
from .deployment import EXTENSION
from .extension import INTERFACE, OBJECT, Companion, processes_of
from .reading import Reader
from .suite import record
from .waiting import eventually

_RUN_TIMEOUT = 60_000


class ActionWindow:
    """The process of an action and its window."""

    def __init__(self, case, process_id):
        self._case = case
        self.process_id = process_id

    def is_running(self):
        try:
            # One that has ended and that its parent has not looked after yet counts as gone.
            with open(f"/proc/{self.process_id}/stat", encoding="utf-8", errors="replace") as file:
                return file.read().rpartition(")")[2].split()[0] != "Z"
        except OSError:
            return False

    def windows(self):
        application = accessibility.application(self._case.bus.accessibility_address, self.process_id)
        return application.shown_children()

    def active_window(self, title):
        """Waits for the window of that title to be on view and to have the keyboard."""
        def find():
            return next((window for window in self.windows() if window.name == title and window.has("active")), None)

        return eventually(find, f"the window “{title}”")

    def go_to(self, name, window, key="Tab"):
        """Presses a key until the control of that name has the keyboard."""
        seen = []
        for _ in range(60):
            found = eventually(window.focused, "something to have the keyboard")
            if found.name == name:
                return found
            seen.append(found.name)
            self._case.hands.press(key)
            eventually(lambda: window.focused() != found, f"the keyboard to go on from “{found.name}”")
        raise AssertionError(f"the keyboard does not come to “{name}”, but to {seen}")

    def wait_for_end(self):
        eventually(lambda: not self.is_running(), "the action to end")

    def kill(self):
        if self.is_running():
            os.kill(self.process_id, signal.SIGKILL)
        self.wait_for_end()


class ActionDriver(Reader):
    """A test case's part that has an action, and its window once that is on view."""

    def wait_for_action(self, action):
        """Waits for an action that was chosen in a menu."""
        def found():
            # What it starts in its turn is one as well until it becomes another program.
            processes = processes_of(action, "HOME=" + self.home.folder)
            return processes if len(processes) == 1 else None

        process, = eventually(found, f"the action “{action}”")
        self.action = ActionWindow(self, process)
        self.addCleanup(self.action.kill)

    def wait_for_action_window(self, action, title):
        self.wait_for_action(action)
        self.window = self.action.active_window(title)

    def labels(self):
        return self.window.texts()

    def assertTells(self, words):
        eventually(lambda: words in self.labels(), f"the words “{words}”")

    def go_to(self, name):
        self.action.go_to(name, self.window)

    def choose(self, box, *keys):
        """Chooses in a box that has its first entry. A box is called what is chosen in it."""
        self.go_to(box)
        self.hands.press("Home", *keys)

    def press_button(self, name):
        self.go_to(name)
        self.hands.press("space")


def start_companion(case):
    """A companion whose one listed folder has the person's files."""
    case.suite.write(menuArrayDic=record(), foldersArray=[case.home.files], foldersArraystate=[1])
    Companion(case).start()


def ask_for_action(case, action, *paths, background=False):
    """Asks the companion for an action; paths are bytes or text. A refusal is a GLib.Error."""
    options = {"background": GLib.Variant("b", True)} if background else {}
    arguments = GLib.Variant("(saaya{sv})", (action, [os.fsencode(path) for path in paths], options))
    case.bus.connection.call_sync(EXTENSION, OBJECT, INTERFACE, "Run", arguments, None, Gio.DBusCallFlags.NONE,
                                  _RUN_TIMEOUT, None)


def run_action(case, action, *paths, background=False):
    """Asks the companion for an action with a window."""
    def running():
        return set(processes_of(action, "HOME=" + case.home.folder))

    before = running()
    ask_for_action(case, action, *paths, background=background)
    started, = running() - before
    window = ActionWindow(case, started)
    case.addCleanup(window.kill)
    return window
